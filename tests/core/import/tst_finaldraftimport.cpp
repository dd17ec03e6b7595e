#include "ImportTestSupport.h"

#include "import/FinalDraftImport.h"
#include "import/ImportCommandSteps.h"

using namespace tb;
using namespace tb::test;

namespace {

const QString DataDir = QStringLiteral(TB_IMPORT_DATA);
const QString ReadError = QString::fromLatin1(FinalDraftReadErrorText);

QString WriteCrLf(const QString &name, const QStringList &lines)
{
    return WriteLines(name, lines, "\r\n");
}

// A Script Report of the given scenes: each is a heading and its characters.
QStringList ScriptReport(const QList<QStringList> &scenes)
{
    QStringList lines{"Script Report", QString()};
    int n = 0;
    for (const QStringList &scene : scenes) {
        ++n;
        lines << QStringLiteral("## Page: %1, Scene: %1").arg(n);
        lines << scene;
        lines << QString();
    }
    return lines;
}

struct Imported
{
    ScheduleDocument doc;
    ScriptedPrompter prompter{doc};
    Result result = Result::success();

    Imported(const QString &sceneReport, const QString &scriptReport)
    {
        NewDocument(doc);
        result = ImportFinalDraft(doc, sceneReport, scriptReport);
    }
    // Scenes given as lines; every scene one eighth long.
    explicit Imported(const QList<QStringList> &scenes)
    {
        QStringList lengths;
        for (int k = 0; k < scenes.size(); ++k)
            lengths << QStringLiteral("%1\tX\t1\t1/8 Pg").arg(k + 1);
        NewDocument(doc);
        result = ImportFinalDraft(doc, WriteCrLf("scenes.txt", lengths), WriteCrLf("script.txt", ScriptReport(scenes)));
    }
    const StripRecord &strip(int row) const { return doc.strips[row]; }
};

} // namespace

class TestFinalDraftImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sampleReports()
    {
        Imported run(QDir(DataDir).filePath("fd-scene-report.txt"), QDir(DataDir).filePath("fd-script-report.txt"));
        QVERIFY(run.result.ok());
        QVERIFY(run.prompter.prompts.isEmpty());
        QCOMPARE(run.doc.values.NextStripId, 5);

        auto column = [&](StripField f) { return StripColumn(run.doc, f).join(u'|'); };
        QCOMPARE(Kinds(run.doc), "1 1 1 1 1");
        QCOMPARE(column(StripField::StripId), "1|2|3|4|5");
        QCOMPARE(column(StripField::ScriptPage), "1|2|3|4|5");
        QCOMPARE(column(StripField::SceneNumber), "1|2|3A|4|5");
        QCOMPARE(column(StripField::IntExt), "I|E|I|E|");
        QCOMPARE(column(StripField::DayNight), "N||DWN|DSK|D");
        QCOMPARE(column(StripField::Location), "KITCHEN|BARN|CAR|HARBOUR WALL|");
        QCOMPARE(column(StripField::PageLength), "1.375|0.25|0.375|0.5|0.125");
        QCOMPARE(column(StripField::Assignments), "1,2|1|2,3||");
        // Mary and John are known from the first scene on.
        QCOMPARE(Cast(run.doc), (QStringList{"MARY", "JOHN", "PETE"}));
        for (int j = 1; j <= 3; ++j) {
            QCOMPARE(run.doc.elements[j][ElementField::CategoryNumber], "1");
            QCOMPARE(run.doc.elements[j][ElementField::PrintOnBoard], "1");
            QCOMPARE(run.doc.elements[j][ElementField::BoardId], QString::number(j));
        }
        QCOMPARE(run.doc.locationPickList, (QStringList{"KITCHEN", "BARN", "CAR", "HARBOUR WALL"}));
        QVERIFY(run.doc.Modified);
        QCOMPARE(run.doc.SelStart, 1);
        QCOMPARE(run.doc.SelEnd, 1);
    }

    void offsets_data()
    {
        Columns<QString, QString, QString>("line", "page", "scene");

        Row("page 12, scene 5", "## Page: 12, Scene: 5", "12", "5");
        Row("four characters of scene", "## Page: 3, Scene: 12A extra", "3", "12A ");
        Row("other words, same offsets", "## Seite 44, Szene 9B", "44", "B");
        Row("no comma", "## Page: 7", "", " 7");
        Row("nothing after the marks", "##", "", "");
    }

    void offsets()
    {
        QFETCH(QString, line);

        Imported run(WriteCrLf("offset-scenes.txt", {"1\tX\t1\t1/8 Pg"}),
                     WriteCrLf("offset-script.txt", {line, "INT. ROOM - DAY", "ANN"}));
        QVERIFY(run.result.ok());
        QCOMPARE(run.doc.strips.count(), 1);
        QTEST(run.strip(1)[StripField::ScriptPage], "page");
        QTEST(run.strip(1)[StripField::SceneNumber], "scene");
        QCOMPARE(run.strip(1)[StripField::Location], "ROOM");
        QCOMPARE(Cast(run.doc), QStringList{"ANN"});
    }

    void headings_data()
    {
        Columns<QString, QString, QString, QString>("heading", "intExt", "dayNight", "location");

        Row("kitchen at night", "INT. KITCHEN - NIGHT", "I", "N", "KITCHEN");
        Row("the last letter is kept", "EXT. BARN", "E", "", "BARN");
        Row("INT/EXT in the first scene", "INT/EXT. HOUSE - DAY", "I/E", "D", "HOUSE");
        Row("EXT/INT", "EXT/INT. SHED - MORNING", "I/E", "D", "SHED");
        Row("I/E", "I/E. PORCH - AFTERNOON", "I/E", "D", "PORCH");
        Row("night tests come after day tests", "EXT. ROAD - DAY INTO NIGHT", "E", "N", "ROAD");
        Row("dawn comes last", "EXT. ROAD - DUSK TO DAWN", "E", "DWN", "ROAD");
        Row("digits stop the location", "INT. ROOM 12 - DAY", "I", "D", "ROOM");
        Row("no INT or EXT", "MONTAGE - NIGHT", "", "D", "");
        Row("letter case counts", "int. kitchen - night", "", "D", "");
        Row("location in capitals", "INT. Mary's flat - DAY", "I", "D", "MARY");
    }

    void headings()
    {
        QFETCH(QString, heading);

        Imported run(QList<QStringList>{{heading}});
        QVERIFY(run.result.ok());
        QCOMPARE(run.doc.strips.count(), 1);
        QTEST(run.strip(1)[StripField::IntExt], "intExt");
        QTEST(run.strip(1)[StripField::DayNight], "dayNight");
        QTEST(run.strip(1)[StripField::Location], "location");
    }

    void carriedPosition_data()
    {
        Columns<QList<QStringList>, QString>("scenes", "lastIntExt");

        // The combined interior/exterior is looked for at the position the previous
        // scene left behind.
        Row("after a location of 8 characters", QList<QStringList>{{"INT. KITCHEN - NIGHT"}, {"INT/EXT. HOUSE - DAY"}},
            "I");
        Row("after a location of 1 character", QList<QStringList>{{"INT. AB"}, {"INT/EXT. HOUSE - DAY"}}, "I/E");
        Row("a heading without INT or EXT keeps the position",
            QList<QStringList>{{"INT. AB"}, {"MONTAGE"}, {"INT/EXT. HOUSE - DAY"}}, "I/E");
        Row("two characters leave position 3",
            QList<QStringList>{{"INT. KITCHEN - NIGHT", "MARY", "JOHN"}, {"X I/E YARD"}}, "I/E");
        Row("two characters, INT/EXT at the start is missed",
            QList<QStringList>{{"INT. AB", "MARY", "JOHN"}, {"INT/EXT. HOUSE - DAY"}}, "I");
    }

    void carriedPosition()
    {
        QFETCH(QList<QStringList>, scenes);
        Imported run(scenes);
        QVERIFY(run.result.ok());
        QTEST(run.strip(run.doc.strips.count())[StripField::IntExt], "lastIntExt");
    }

    void knownCharacters_data()
    {
        Columns<QStringList, QStringList, QString>("scene", "cast", "assignments");

        // Each cue assigns again; the assignment list's own duplicate test lets a small
        // number in twice.
        Row("a name twice is one element", QStringList{"INT. ROOM - DAY", "MARY", "MARY (CONT'D)"}, QStringList{"MARY"},
            "1,1");
        Row("known in any letter case", QStringList{"INT. ROOM - DAY", "MARY", "mary"}, QStringList{"MARY"}, "1,1");
        Row("an initial is a name of its own", QStringList{"INT. ROOM - DAY", "MARY", "M"}, QStringList{"MARY", "M"},
            "1,2");
        Row("extension dropped, case ignored when assigning", QStringList{"INT. ROOM - DAY", "Mary (V.O.)", "BOB"},
            QStringList{"Mary", "BOB"}, "1,2");
    }

    void knownCharacters()
    {
        QFETCH(QStringList, scene);
        Imported run(QList<QStringList>{scene});
        QVERIFY(run.result.ok());
        QTEST(Cast(run.doc), "cast");
        QTEST(run.strip(1)[StripField::Assignments], "assignments");
    }

    void twentyCharacters()
    {
        // Twenty characters, each speaking in two scenes: twenty cast elements, each
        // assigned where it speaks.
        QStringList first{"INT. ROOM - DAY"}, second{"EXT. YARD - NIGHT"}, names, all;
        for (int k = 0; k < 20; ++k) {
            names << QStringLiteral("PERSON %1").arg(QChar(u'A' + k));
            first << names.last();
            second << (k % 2 ? names.last() + " (CONT'D)" : names.last().toLower());
            all << QString::number(k + 1);
        }
        Imported run(QList<QStringList>{first, second});
        QVERIFY(run.result.ok());
        QVERIFY(run.prompter.prompts.isEmpty());
        QCOMPARE(Cast(run.doc), names);
        QCOMPARE(StripColumn(run.doc, StripField::Assignments), QStringList(2, all.join(u',')));
        QCOMPARE(run.strip(2)[StripField::Location], "YARD");
        QVERIFY(run.doc.Modified);
    }

    void lengths_data()
    {
        Columns<QString, QString, QStringList>("line", "length", "messages");

        const QStringList none;
        const QStringList conversion{QString::fromLatin1(FinalDraftLengthErrorText)};
        Row("pages and eighths", "1\tINT. A\t1\t1 3/8 Pgs", "1.375", none);
        Row("whole pages read as eighths", "1\tINT. A\t1\t2 Pgs", "0.25", none);
        Row("twelve pages read as one eighth", "1\tINT. A\t1\t12 Pgs", "0.125", none);
        Row("eighths", "1\tINT. A\t1\t3/8 Pg", "0.375", none);
        Row("dots", "1\tINT. A\t1\t4/8 ...", "0.5", none);
        Row("blanks around the length", "1\tINT. A\t1\t   5/8   Pgs", "0.625", none);
        Row("no tabs", "6/8 Pgs", "0.75", none);
        Row("not a number", "1\tINT. A\t1\tx Pgs", "0.125", conversion);
        Row("no length", "1\tINT. A\t1\tPgs", "0.125", conversion);
        Row("eighths not a number", "1\tINT. A\t1\t1 x/8 Pgs", "0.125", conversion);
    }

    void lengths()
    {
        QFETCH(QString, line);

        Imported run(WriteCrLf("lengths.txt", {line}), WriteCrLf("one-scene.txt", ScriptReport({{"INT. A - DAY"}})));
        QVERIFY(run.result.ok());
        QTEST(run.prompter.texts(), "messages");
        QTEST(run.strip(1)[StripField::PageLength], "length");
    }

    void lengthsStopWithoutAMarker()
    {
        Imported run(
            WriteCrLf("stops.txt", {"1\tINT. A\t1\t2/8 Pgs", "", "2\tINT. B\t1\tlong", "3\tINT. C\t2\t3/8 Pgs"}),
            WriteCrLf("three.txt", ScriptReport({{"INT. A"}, {"INT. B"}, {"INT. C"}})));
        QVERIFY(run.result.ok());
        QCOMPARE(run.prompter.texts(), QStringList{FinalDraftNoLengthText});
        QCOMPARE(run.strip(1)[StripField::PageLength], "0.25");
        QCOMPARE(run.strip(2)[StripField::PageLength], QString());
        QCOMPARE(run.strip(3)[StripField::PageLength], QString());
        // The import still ends normally.
        QVERIFY(run.doc.Modified);
        QCOMPARE(run.doc.SelStart, 1);
    }

    void missingFiles()
    {
        const QString scenes = QDir(DataDir).filePath("fd-scene-report.txt");
        const QString script = QDir(DataDir).filePath("fd-script-report.txt");
        const QString missing = TempPath("missing-report.txt");

        Imported noScript(scenes, missing);
        QVERIFY(!noScript.result.ok());
        QCOMPARE(noScript.prompter.texts(), QStringList{ReadError});
        QCOMPARE(noScript.doc.strips.count(), 0);
        QVERIFY(!noScript.doc.Modified);

        // The Script Report is read first; its scenes stay without lengths.
        Imported noScenes(missing, script);
        QVERIFY(!noScenes.result.ok());
        QCOMPARE(noScenes.prompter.texts(), QStringList{ReadError});
        QCOMPARE(noScenes.doc.strips.count(), 5);
        QCOMPARE(noScenes.doc.elements.count(), 3);
        QCOMPARE(noScenes.strip(1)[StripField::PageLength], QString());
        QVERIFY(!noScenes.doc.Modified);
    }

    void commandSteps_data()
    {
        Columns<bool, bool, QList<Answer>, bool, int>("finalDraft", "modified", "answers", "goesOn", "saves");

        for (bool fd : {false, true}) {
            const char *name = fd ? "Final Draft" : "script";
            QTest::addRow("%s, unmodified: no question", name) << fd << false << QList<Answer>{} << true << 0;
            QTest::addRow("%s, Yes saves", name) << fd << true << QList<Answer>{Answer::Yes} << true << 1;
            QTest::addRow("%s, No goes on", name) << fd << true << QList<Answer>{Answer::No} << true << 0;
            QTest::addRow("%s, Cancel stops", name) << fd << true << QList<Answer>{Answer::Cancel} << false << 0;
        }
    }

    void commandSteps()
    {
        auto [finalDraft, modified, answers, goesOn] =
            Fetch<bool, bool, QList<Answer>, bool>("finalDraft", "modified", "answers", "goesOn");

        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        AddScene(doc, "1", "1");
        doc.Modified = modified;
        prompter.answers = answers;
        int saved = 0;
        auto save = [&saved] { ++saved; };

        const bool result = finalDraft ? BeginFinalDraftImport(doc, save) : AskToSaveBeforeScriptImport(doc, save);
        QCOMPARE(result, goesOn);
        QTEST(saved, "saves");
        if (modified) {
            QCOMPARE(prompter.prompts.size(), 1);
            const Prompt &p = prompter.prompts.first();
            QCOMPARE(p.text, QString::fromLatin1(finalDraft ? FinalDraftSaveQuestion : ScriptImportSaveQuestion));
            QCOMPARE(p.buttons, Buttons::YesNoCancel);
            QCOMPARE(p.kind, MessageKind::Confirmation);
            QVERIFY(p.beep);
        } else {
            QVERIFY(prompter.prompts.isEmpty());
        }
        // The Final Draft command empties the document before its dialog (the menu-command
        // test checks its status text); the wizard empties it itself when it imports.
        QCOMPARE(doc.strips.count(), finalDraft && goesOn ? 0 : 1);
    }
};

TB_TEST_GUILESS_MAIN(TestFinalDraftImport)
#include "tst_finaldraftimport.moc"
