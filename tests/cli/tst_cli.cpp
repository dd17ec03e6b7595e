// Every subcommand of torvanbridge-cli, run as a process: usage errors exit 2, refused
// input exits 1 and writes nothing, and each command's effect shows in what it wrote.
// What the commands do in detail is tested on the core functions they call; the
// whole-document outputs (info, reports, dood, export, print-board) are pinned byte for
// byte by the golden_outputs test.

#include "ImportTestSupport.h"

#include "document/ScheduleFile.h"

#include <QImage>
#include <QPoint>

using namespace tb;
using namespace tb::test;

namespace {

using L = QStringList;

const QString Example = QStringLiteral(TB_SOURCE_DIR "/examples/harbour-lights.tbf");

// The arguments with their placeholders replaced: EX the example schedule, SMALL and
// EMPTY the schedules made in initTestCase, OUT the output, @NAME a file written there.
QStringList expand(QStringList args, const QString &out)
{
    for (QString &arg : args) {
        if (arg == "EX")
            arg = Example;
        else if (arg == "SMALL" || arg == "EMPTY")
            arg = TempPath(arg.toLower() + ".tbf");
        else if (arg == "OUT")
            arg = out;
        else if (arg.startsWith(u'@'))
            arg = TempPath(arg.mid(1));
    }
    return args;
}

// Arguments separated by blanks.
QStringList a(const char *args)
{
    return QString::fromUtf8(args).split(u' ');
}

// A fresh output path named after the data row, of the type the command writes.
QString rowOutput(const QString &command)
{
    const bool pdf = command == "report" || command == "callsheet" || command == "dood" || command == "print-board";
    const QString extension = command == "board" ? ".png" : pdf ? ".pdf" : command == "export" ? ".csv" : ".tbf";
    return TempPath(QString::fromLatin1(QTest::currentDataTag()).replace(u' ', u'_') + extension);
}

} // namespace

class TestCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // SMALL: scenes 1 (3 pages), 2 (4 pages), a divider, scene 3 (12 pages), a banner
        // and a divider; Friday start, Saturdays and Sundays off. Its elements stand out of
        // category order, its cast number is 7 and its first sheet number 40.
        ScheduleDocument doc;
        doc.values.StartDate = "46087";
        doc.values.AutoRestDayRule = "D67";
        AddScene(doc, "1", "3");
        AddScene(doc, "2", "4");
        AddDivider(doc);
        AddScene(doc, "3", "12");
        AddBanner(doc, "Travel", 1);
        AddDivider(doc);
        AddElement(doc, "LAMP", 5, "Prp");
        AddElement(doc, "ANNA", 1, "7");
        doc.strips[1].set(StripField::Assignments, "1,2");
        doc.strips[1].set(StripField::StripId, "40");
        SetModified(doc);
        QVERIFY(SaveDocument(doc, TempPath("small.tbf")).ok());

        ScheduleDocument empty;
        NewDocument(empty);
        QVERIFY(SaveDocument(empty, TempPath("empty.tbf")).ok());

        WriteLines("script.txt", {"EXT. PARK - MAGIC HOUR", "", "SIMON SAYS", "Jump.", "", "EXT. PARK - GLOAMING", "",
                                  "ANN", "Run.", "", "", "", ""});
        WriteLines("not.fdx", {"INT. ROOM - DAY"});
        WriteLines("two-scenes.txt", {"1\tA\t1\tx Pgs", "2\tB\t2\tno length"});
        WriteLines("two.txt", {"## Page: 1, Scene: 1", "INT. A - DAY", "", "## Page: 2, Scene: 2", "INT. B - DAY", ""});
        QVERIFY(WriteBytes(TempPath("corrupt.tbf"), "hello\r\n"));
    }
    void usageErrors_data()
    {
        // message: stderr holds it
        Columns<QStringList, QString>("args", "message");

        const L scene = a("add-scene EX -o OUT --scene 1 --int-ext I");
        const L element = a("add-element EX -o OUT --description X --category");
        const L import = a("import-text @script.txt -o OUT");
        const QString boardUsage = "usage: torvanbridge-cli board IN -o OUT.png|OUT.pdf";
        Row("no command", L{}, "Commands:");
        Row("unknown command", a("frobnicate"), "unknown command frobnicate");
        Row("unknown global option", a("--verbose info EX"), "unknown option --verbose");
        Row("missing -o", a("resave EX"), "usage: torvanbridge-cli resave");
        Row("-o without a value", a("resave EX -o"), "usage: torvanbridge-cli resave");
        Row("unknown option", a("info --colour EX"), "usage: torvanbridge-cli info");
        // Every value is one line of the schedule file: a line break is refused for every command.
        Row("two-line title", a("details EX -o OUT --title A\nB"), "a value cannot hold a line break (\"A\\nB\")");

        Row("import-text, two scripts", a("import-text @script.txt @two.txt -o OUT"), "usage:");
        Row("lines 0", import + a("--lines 0"), "usage: torvanbridge-cli import-text");
        Row("import-fd, one report", a("import-fd @two.txt -o OUT"), "usage: torvanbridge-cli import-fd");
        Row("review neither keep nor auto", import + a("--review some"), "--review must be keep or auto");
        Row("import-fountain without -o", a("import-fountain @script.txt"), "usage: torvanbridge-cli import-fountain");
        Row("import-fdx, two files", a("import-fdx @not.fdx @two.txt -o OUT"), "usage: torvanbridge-cli import-fdx");

        Row("lock without unlock or date", a("lock SMALL -o OUT --from 1 --to 2"),
            "give either --date YYYY-MM-DD or --unlock");
        Row("max out of range", a("auto-pages SMALL -o OUT --max 21"), "--max must be between 1 and 20");
        Row("bad mode", a("auto-pages SMALL -o OUT --max 5 --mode ask"), "--mode is keep or split");
        Row("bad date", a("start-date SMALL -o OUT --date 6/3/2026"), "--date needs a date as YYYY-MM-DD");

        Row("sort unknown key", a("sort EX -o OUT --keys colour"), "usage: torvanbridge-cli sort");
        Row("sort four keys", a("sort EX -o OUT --keys scene,scene,scene,scene"), "usage:");
        Row("conform without entries", a("conform EX -o OUT"), "usage: torvanbridge-cli conform");
        Row("renumber without -o", a("renumber EX"), "usage: torvanbridge-cli renumber");
        Row("add-scene missing pages", scene + a("--day-night D"), "usage: torvanbridge-cli add-scene");
        Row("add-scene bad pages", scene + L{"--pages", "1 9/8", "--day-night", "D"}, "usage:");
        Row("add-scene bad time", scene + a("--pages 1 --day-night NOON"), "usage:");
        Row("add-element bad category", element + a("16"), "usage: torvanbridge-cli add-element");
        Row("add-element long id", element + a("1 --id 12345"), "usage:");

        Row("board without output", a("board EX"), "needs -o OUT.png or -o OUT.pdf\n" + boardUsage);
        Row("board wrong type", a("board EX -o x.jpg"), "the output must end in .png or .pdf");
        Row("board scale", a("board EX -o OUT --scale 0"), "--scale must be a number from 0.1 to 10");
        Row("board width", a("board EX -o OUT --width wide"), "--width must be a whole number from 1 to 20000");
        Row("board colours", a("board EX -o OUT --colours pink"), "--colours must be classic or plain");
        Row("board, two inputs", a("board EX EX -o OUT"), "needs one schedule file");

        Row("export wrong type", a("export EX -o x.xlsx"), "needs -o OUT.csv or -o OUT.html");
        Row("export colours", a("export EX -o x.csv --colours pink"), "--colours must be classic or plain");
        Row("crew without a name", a("details EX -o OUT --crew Gaffer"),
            "--crew takes POSITION=NAME or POSITION=NAME=CONTACT");

        Row("unknown report", a("report callsheet EX -o OUT"), "unknown report callsheet");
        Row("report without output", a("report schedule EX"), "expected KIND, an input file and -o OUT.pdf");
        Row("paper", a("report schedule EX -o OUT --paper a3"), "--paper is a4 or letter");
        Row("range for breakdown", a("report breakdown EX -o OUT --from 1"),
            "--from, --to and --all-days are for schedule and oneline");
        Row("sheets for elements", a("report elements EX -o OUT --sheets 1"), "--sheets is for breakdown");
        Row("bad sheet list", a("report breakdown EX -o OUT --sheets a,b"), "--sheets takes breakdown sheet numbers");
        Row("call sheet without a date", a("callsheet EX -o OUT"), "give either --date YYYY-MM-DD or --sheet");
        Row("call sheet bad date", a("callsheet EX -o OUT --date tomorrow"), "--date needs a date as YYYY-MM-DD");
        Row("end of day without scenes", a("end-of-day EX -o OUT --date 2027-04-06"),
            "--date YYYY-MM-DD and --shot SCENE,... are required");

        Row("dood wrong type", a("dood EX -o x.txt"), "the output must end in .csv or .pdf");
        Row("dood colour without a pdf", a("dood EX --color"), "--color is for a .pdf output");
        Row("print-board without a pdf", a("print-board EX"), "needs -o OUT.pdf");
        Row("print-board from alone", a("print-board EX -o OUT --from 2"), "--from and --to go together");
        Row("print-board scale", a("print-board EX -o OUT --scale 300"),
            "--scale must be a whole number from 50 to 200");
        Row("print-board both orientations", a("print-board EX -o OUT --portrait --landscape"),
            "--portrait or --landscape, not both");
    }
    void usageErrors()
    {
        auto [args, message] = Fetch<QStringList, QString>("args", "message");
        const QString out = rowOutput(args.value(0));
        const CliRun run = RunCli(expand(args, out));
        QCOMPARE(run.code, 2);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        QVERIFY(!QFile::exists(out));
    }
    void commands_data()
    {
        // args: "-o OUT" follows the command and its inputs
        // err: stderr holds it
        // checks: of the file written, ";"-separated: "out TEXT" all of stdout, OUT standing for
        // the file written; "kinds K", "strips N", "elements N", "rule R", "next N",
        // "s ROW F1,F2... V1|V2..." strip fields by number and "e ROW F1,F2... V1|V2..."
        // element fields by number. A command that fails writes nothing.
        Columns<QStringList, int, QString, QString>("args", "code", "err", "checks");
        // The outputs of the commands on whole schedules are pinned by golden_outputs.

        Row("import-text",
            L{"import-text", "@script.txt", "--lines", "4", "--day-words", "MAGIC HOUR, noon", "--night-words=GLOAMING",
              "--ignore-words", "SIMON SAYS,"},
            0, "",
            "out Imported 2 scenes and 1 cast elements into OUT\nImported 2 scenes, 1 character, 3 2/8 pages.\n;"
            "strips 2;elements 1;e 1 0 Ann;s 1 2,11,5 D|PARK|1.25;s 2 2 N");
        // An import that fails part-way says so and writes nothing.
        Row("import-fd, no lengths", a("import-fd @two-scenes.txt @two.txt"), 1,
            "Error converting scene length.\nCould not find scene length information. Are you sure you selected a "
            "valid Final Draft scene report?\n",
            "");
        Row("a line break in a value", a("add-scene SMALL --scene 1 --synopsis two\nlines"), 2,
            "a value cannot hold a line break (\"two\\nlines\")", "");

        // The input board SMALL: 1 1 2 3 3 1 4 2 (the two rest days follow Friday's divider).
        Row("auto-pages keeping dividers", a("auto-pages SMALL --max 8 --keep-dividers"), 0, "",
            "kinds 1 1 2 3 3 2 1 2 4 2");
        Row("rest-days none", L{"rest-days", "SMALL", "--rule", ""}, 0, "", "kinds 1 1 2 1 4 2;rule ");

        // Refused entries are reported and left out; the missing strips are removed.
        Row("conform", a("conform EX -- 3 + 999 1 *Travel 05"), 0,
            "No strip was found with that number. Please try again.", "kinds 1 2 1 4;s 1,3 14 3|1;s 4 6 Travel");
        Row("add-element",
            L{"add-element", "EMPTY", "--description", "ANNA", "--category", "1", "--name", "Mara Quint", "--hold"}, 0,
            "", "elements 1;e 1 3,2,6,4 1|1|SAG|Mara Quint");
        Row("add-element, a cast number taken", a("add-element EX --description BEN --category 1 --id 1"), 0,
            "already being used by another cast element", "elements 66;e 66 3 1");
        Row("add-scene",
            L{"add-scene",   "SMALL", "--scene",    "12A",     "--pages", "1 3/8", "--int-ext",  "I/E",
              "--day-night", "DSK",   "--location", "HARBOUR", "--set",   "Quay",  "--synopsis", "Anna arrives, late",
              "--page",      "7",     "--elements", "2,1"},
            0, "",
            "out Added scene 12A as strip 9, breakdown sheet 4\n;strips 9;s 9 1,5,3,2,11,15,4,6,19,14 "
            "12A|1.375|I/E|DSK|HARBOUR|Quay|7|Anna arrives, late|1,2|4;next 4");
        Row("add-scene, decimal pages", a("add-scene EMPTY --scene 13 --pages 0.5 --int-ext E --day-night N"), 0, "",
            "s 1 5,14 0.5|1");

        // Refused input: the message, and nothing written.
        const auto refused = [](const char *tag, const QStringList &args, const QString &message) {
            Row(tag, args, 1, message, QString());
        };
        const L scene = a("add-scene EX --scene 1 --int-ext I --day-night D --pages");
        refused("corrupt schedule", a("resave @corrupt.tbf"),
                "Torvanbrigde cannot read this file. It may be the wrong type, or perhaps it is corrupted.");
        refused("missing schedule", a("resave @missing.tbf"),
                "missing.tbf.\n\nThe file cannot be read: there is no such file.");
        refused("script missing", a("import-text @missing-script.txt"), "Error with import procedure.\n\n");
        refused("Fountain script missing", a("import-fountain @missing-script.txt"),
                "Error with import procedure.\n\n");
        refused("not an fdx", a("import-fdx @not.fdx"),
                "This file is not a Final Draft script (.fdx) that can be read.");
        refused("scene report missing", a("import-fd @no-scenes.txt @two.txt"),
                "Error reading file(s). The files may be of the wrong type, or corrupted. Try re-exporting from Final "
                "Draft.");
        refused("row beyond the board", a("add-divider SMALL --before 9"),
                "--before 9: the schedule has strips 1 to 8.");
        refused("bad rule", a("rest-days SMALL --rule X6"), "The rest day rule must start with S");
        refused("hold days out of range", a("hold-days SMALL --days 1000"), "The hold days must be between 1 and 999.");
        refused("no length", scene + a("0"), "Oops! Scene must be a minimum of 1/8ths");
        refused("no such element", scene + a("1 --elements 1,99"),
                "There is no element 99 in this schedule (it has 65).");
        refused("conform with nothing accepted", a("conform EX -- 999"), "No strip was found with that number.");
        refused("board of a missing schedule", a("board @missing.tbf"),
                "The file cannot be read: there is no such file.");
        refused("day range", a("report schedule EX --from 3 --to 99"),
                "The day range 3 to 99 is not within the schedule's production days 1 to 19.");
        refused("unknown sheet", a("report breakdown EX --sheets 11,9999"),
                "No scene has the breakdown sheet number 9999.");
        refused("unknown category", a("report elements EX --categories 16"),
                "There is no category 16: categories are numbered 1 to 15.");
        refused("report of a missing schedule", a("report schedule @missing.tbf"),
                "The file cannot be read: there is no such file.");
        refused("call sheet without a start date", a("callsheet EMPTY --date 2027-04-06"),
                "You need to enter a production start date before you can print call sheets.");
        refused("call sheet from a schedule file", a("callsheet EX --sheet EX"), "Incorrect or bad call sheet file");
        refused("scene not on the day", a("end-of-day EX --date 2027-04-06 --shot 9,11"),
                "Scene 11 is not scheduled on 2027-04-06.");
        refused("dood of an unknown category", a("dood EX --category 16"),
                "There is no category 16: categories are numbered 1 to 15.");
        refused("print-board beyond the board", a("print-board EX --from 5 --to 999"),
                "The strips 5 to 999 are not within the board's strips 1 to 79.");
        refused("export of a missing schedule", a("export @missing.tbf"),
                "The file cannot be read: there is no such file.");
        refused("call times", L{"details", "EX", "--unit-call", "7:00 am"},
                "Call times are not kept in schedule files");
        refused("51 crew lines", a("details EX") + QStringList(51, "--crew=Runner=Al"),
                "The crew list has room for 50 lines, not 51.");
    }

    void commands()
    {
        auto [args, code, err, checks] = Fetch<QStringList, int, QString, QString>("args", "code", "err", "checks");

        const QString file = rowOutput(args.value(0));
        int inputs = 1;
        while (inputs < args.size() && !args.at(inputs).startsWith("--"))
            ++inputs;
        const CliRun run = RunCli(expand(args.mid(0, inputs) + L{"-o", "OUT"} + args.mid(inputs), file));
        QVERIFY2(run.code == code, qPrintable(run.err));
        QVERIFY2(run.err.contains(err), qPrintable(run.err));
        if (code != 0) {
            QVERIFY(!QFileInfo::exists(file));
            return;
        }
        ScheduleDocument doc;
        QVERIFY(OpenDocument(doc, file).ok());
        for (const QString &check : checks.split(u';', Qt::SkipEmptyParts)) {
            const QString key = check.section(u' ', 0, 0);
            const QString value = check.section(u' ', 1);
            if (key == "out")
                QCOMPARE(run.out, QString(value).replace("OUT", file));
            else if (key == "kinds")
                QCOMPARE(Kinds(doc), value);
            else if (key == "strips")
                QCOMPARE(doc.strips.count(), value.toInt());
            else if (key == "elements")
                QCOMPARE(doc.elements.count(), value.toInt());
            else if (key == "rule")
                QCOMPARE(doc.values.AutoRestDayRule, value);
            else if (key == "next")
                QCOMPARE(doc.values.NextStripId, value.toInt());
            else { // "s ROW FIELDS VALUES" or "e ROW FIELDS VALUES"; ROW may list rows for one field
                const QStringList rows = check.section(u' ', 1, 1).split(u',');
                const QStringList fields = check.section(u' ', 2, 2).split(u',');
                QStringList got;
                for (const QString &row : rows)
                    for (const QString &field : fields)
                        got << (key == "s" ? doc.strips[row.toInt()].at(field.toInt())
                                           : doc.elements[row.toInt()].at(field.toInt()));
                QCOMPARE(got.join(u'|'), check.section(u' ', 3));
            }
        }
    }
    void board_data()
    {
        // out: stdout after "OUT: "
        // pixel: of the PNG
        // check: its colour
        Columns<QStringList, QString, QString, QPoint, QString>("options", "file", "out", "pixel", "check");

        // At 140% the fifth strip is a day divider, drawn with the user's divider colour.
        const L big = a("--scale 1.4 --width 900 --height 700");
        const QPoint divider(280 + 4 * 56 + 28, 400 + 25 * 5 + 12);
        Row("preferences", big, "board.png", "900 x 700 at 140%, strips 1-12, element rows 1-12", divider, "#ff0000");
        Row("classic over preferences", big + a("--colours classic"), "classic.png",
            "900 x 700 at 140%, strips 1-12, element rows 1-12", divider, "#000000");
        // With plain colours the same divider, now first, is white. Without a settings file
        // (the standard colours) and as a PDF the board is pinned by golden_outputs.
        Row("plain colours, scrolled", a("--colours plain --first-strip 5 --first-element 10 --width 800 --height 600"),
            "plain.png", "800 x 600 at 100%, strips 5-19, element rows 10-27", QPoint(200 + 20, 288 + 18 * 3 + 9),
            "#ffffff");
    }
    void board()
    {
        auto [options, file, out, pixel, check] =
            Fetch<QStringList, QString, QString, QPoint, QString>("options", "file", "out", "pixel", "check");
        // The test runner's private configuration folder stands for the user's, where the
        // day dividers are red.
        const QString ini = qEnvironmentVariable("XDG_CONFIG_HOME") + "/Torvanbridge.ini";
        QVERIFY(WriteBytes(ini, "[Strips]\r\nCB7=clRed\r\n"));
        const QString path = TempPath(file);
        const CliRun run = RunCli(L{"board", Example, "-o", path} + options);
        QFile::remove(ini);
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out, path + ": " + out + u'\n');
        const QImage image(path);
        QCOMPARE(image.size(), QSize(out.section(u' ', 0, 0).toInt(), out.section(u' ', 2, 2).toInt()));
        QCOMPARE(image.pixelColor(pixel).name(), check);
    }
    void checkTemplate_data()
    {
        // expected: in stdout, or stderr on failure
        Columns<QByteArray, int, QString>("text", "code", "expected");
        const QByteArray head = "object F: TForm\n  object R: TAlReport\n  end\n";
        Row("fields checked",
            head + "  object D: tAlBand\n    object SceneField: TAlField\n    end\n"
                   "    object Extra: TAlField\n    end\n  end\nend\n",
            0, "lacks DayField");
        Row("unfilled field", head + "  object D: tAlBand\n    object Extra: TAlField\n    end\n  end\nend\n", 0,
            "field Extra receives no value from the report");
        Row("mistake with line and cause", head + "  object D: tAlBand\n    BandType = alr_Nonsense\n  end\nend\n", 1,
            "ShootSch1.dfm, line 5: expected one of alr_Title");
    }
    void checkTemplate()
    {
        auto [text, code, expected] = Fetch<QByteArray, int, QString>("text", "code", "expected");
        QDir().mkpath(TempPath(QTest::currentDataTag()));
        const QString path = TempPath(QString::fromLatin1(QTest::currentDataTag()) + "/ShootSch1.dfm");
        QVERIFY(WriteBytes(path, text));
        const CliRun run = RunCli({"check-template", path});
        QCOMPARE(run.code, code);
        QVERIFY2((code == 0 ? run.out : run.err).contains(expected), qPrintable(run.out + run.err));
    }
    // Details given are set, the others kept.
    void details()
    {
        const QString out = TempPath("details.tbf");
        const CliRun set = RunCli({"details", Example, "-o", out, "--title", "Rain", "--address", "1 Quay St, Truro",
                                   "--address", "TR1 2AB", "--upm", "Ann Lee", "--logo", "logo.png", "--crew",
                                   "Gaffer=Jo Smith=07700 900123", "--crew", "Grip=Sam=Lee"});
        QVERIFY2(set.code == 0, qPrintable(set.err));
        // As in the dialog, a logo that is no picture is reported and still taken.
        QVERIFY(set.err.contains("Error opening logo image file. Make sure this is a valid graphic file."));
        const CliRun info = RunCli({"info", out, "--details"});
        QCOMPARE(info.code, 0);
        // The whole listing is pinned by golden_outputs; here the options it does not run.
        QVERIFY(info.out.startsWith("Title:       Rain\nCompany:     Brenholt Pictures Ltd\n"));
        QVERIFY(info.out.contains("Director:    Declan Mayhew\n1st AD:      Ruth Sandoval\nPM:          Ann Lee\n"));
        QVERIFY(info.out.contains("Logo:        " + QDir::current().absoluteFilePath("logo.png") + "\n"));
        QVERIFY(info.out.endsWith("Crew:\n  Gaffer = Jo Smith = 07700 900123\n  Grip = Sam = Lee\n"));
    }
};

TB_TEST_MAIN(TestCli)
#include "tst_cli.moc"
