#include "ImportTestSupport.h"

#include "document/ScheduleDocument.h"
#include "document/ScheduleFile.h"

#include <QDir>
#include <QProcess>

using namespace tb;
using namespace tb::test;

namespace {

using Run = tb::test::CliRun;

Run cli(const QStringList &args)
{
    return tb::test::RunCli(args);
}

// Opens a schedule the tool wrote; an empty document when it cannot be read.
struct Opened
{
    ScheduleDocument doc;
    SilentPrompter prompter;
    bool ok = false;
    explicit Opened(const QString &path)
    {
        doc.setPrompter(&prompter);
        ok = OpenDocument(doc, path).ok();
    }
};

const QString DataDir = QStringLiteral(TB_IMPORT_DATA);
const QString ScreenplayDir = QStringLiteral(TB_SCREENPLAYS_DIR);

} // namespace

class TestImportCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void importText();
    void importTextOptions();
    void importFinalDraft();
    void failures_data();
    void failures();
    void usageErrors_data();
    void usageErrors();
};

void TestImportCli::importText()
{
    const QString script = QDir(ScreenplayDir).filePath("trelby-test.txt");
    if (!QFile::exists(script))
        QSKIP("the shared screenplays are not on this machine");
    const QString out = TempPath("trelby.tbf");
    const Run run = cli({"import-text", script, "-o", out});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, "Imported 11 scenes and 9 cast elements into " + out + "\n");
    QCOMPARE(run.err, QString());
    Opened opened(out);
    QVERIFY(opened.ok);
    QCOMPARE(opened.doc.strips.count(), 11);
    QCOMPARE(opened.doc.strips[1][StripField::Location], "STONEHENGE");
    QCOMPARE(opened.doc.elements[1][ElementField::Description], "Jason");
}

void TestImportCli::importTextOptions()
{
    const QString script = WriteLines("options.txt", {"EXT. PARK - MAGIC HOUR", "", "SIMON SAYS", "Jump.", "",
                                                      "EXT. PARK - GLOAMING", "", "ANN", "Run.", "", "", "", ""});
    const QString out = TempPath("options.tbf");
    const Run run = cli({"import-text", script, "-o", out, "--lines", "4", "--day-words", "MAGIC HOUR, noon",
                         "--night-words=GLOAMING", "--ignore-words", "SIMON SAYS,"});
    QCOMPARE(run.code, 0);
    Opened opened(out);
    QCOMPARE(opened.doc.strips.count(), 2);
    QCOMPARE(opened.doc.strips[1][StripField::DayNight], "D");
    QCOMPARE(opened.doc.strips[1][StripField::Location], "PARK");
    QCOMPARE(opened.doc.strips[1][StripField::PageLength], "1.25"); // 5 lines, 4 a page
    QCOMPARE(opened.doc.strips[2][StripField::DayNight], "N");
    QCOMPARE(Cast(opened.doc), QStringList{"Ann"});
}

void TestImportCli::importFinalDraft()
{
    const QString out = TempPath("fd.tbf");
    const Run run = cli({"import-fd", QDir(DataDir).filePath("fd-scene-report.txt"),
                         QDir(DataDir).filePath("fd-script-report.txt"), "-o", out});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.err, QString());
    QCOMPARE(run.out, "Imported 5 scenes and 5 cast elements into " + out + "\n");
    Opened opened(out);
    QCOMPARE(opened.doc.strips.count(), 5);
    QCOMPARE(opened.doc.strips[1][StripField::PageLength], "1.375");
}

void TestImportCli::failures_data()
{
    QTest::addColumn<QStringList>("args");   // the command and its inputs; "-o OUT" follows
    QTest::addColumn<QString>("err");        // stderr starts with it
    QTest::addColumn<int>("strips");         // what was written; -1: no file
    QTest::addColumn<QString>("pageLength"); // of strip 1, when written
    QTest::addColumn<int>("elements");

    const QString fdScript = QDir(DataDir).filePath("fd-script-report.txt");
    const QString readError = "Error reading file(s). The files may be of the wrong type, or corrupted. "
                              "Try re-exporting from Final Draft.\n";
    Row("script missing", QStringList{"import-text", TempPath("missing-script.txt")},
        "Error with import procedure.\n\n", -1, "", 0);
    QStringList tooMany{"ANN"};
    for (int k = 0; k <= MaxStrips; ++k)
        tooMany << QStringLiteral("INT. ROOM %1 - DAY").arg(k);
    // The elements made stay; the strips were never counted.
    Row("script too long", QStringList{"import-text", WriteLines("too-many.txt", tooMany)},
        "Error with import procedure.\n", 0, "", 1);
    Row("scene report missing", QStringList{"import-fd", TempPath("no-scenes.txt"), fdScript}, readError, -1, "", 0);
    // A fifth character fails the new-character test; what was read stays.
    Row("fifth character",
        QStringList{"import-fd", WriteLines("six-scenes.txt", {"1\tINT. ROOM - DAY\t1\t1 Pg"}),
                    WriteLines("six.txt", {"## Page: 1, Scene: 1", "INT. ROOM - DAY", "ANN", "BOB", "CAL", "DAN", "EVE",
                                           "FAY", ""})},
        "Error reading file(s).", 1, "", 5);
    Row("length messages",
        QStringList{"import-fd", WriteLines("two-scenes.txt", {"1\tA\t1\tx Pgs", "2\tB\t2\tno length"}),
                    WriteLines("two.txt", {"## Page: 1, Scene: 1", "INT. A - DAY", "", "## Page: 2, Scene: 2",
                                           "INT. B - DAY", ""})},
        "Error converting scene length.\nCould not find scene length information. Are you sure you selected a valid "
        "Final Draft scene report?\n",
        2, "0.125", 0);
}

void TestImportCli::failures()
{
    QFETCH(QStringList, args);
    QFETCH(QString, err);
    QFETCH(int, strips);
    QFETCH(QString, pageLength);
    QFETCH(int, elements);
    const QString out = TempPath(QString::fromLatin1(QTest::currentDataTag()).replace(u' ', u'-') + ".tbf");
    const Run run = cli(args << "-o" << out);
    QCOMPARE(run.code, 1);
    QVERIFY2(run.err.startsWith(err), qPrintable(run.err));
    if (strips < 0) { // a missing input: nothing written
        if (args.first() == "import-text")
            QVERIFY(run.err.contains(args.at(1).section(u'/', -1)));
        QVERIFY(!QFile::exists(out));
        return;
    }
    if (err.endsWith(u'\n'))
        QCOMPARE(run.err, err); // nothing more
    Opened opened(out);
    QVERIFY(opened.ok);
    QCOMPARE(opened.doc.strips.count(), strips);
    QCOMPARE(opened.doc.elements.count(), elements);
    if (strips > 0)
        QCOMPARE(opened.doc.strips[1][StripField::PageLength], pageLength);
}

void TestImportCli::usageErrors_data()
{
    QTest::addColumn<QStringList>("args");
    using L = QStringList;
    Row("import-text without -o", L{"import-text", "a.txt"});
    Row("import-text, two scripts", L{"import-text", "a.txt", "b.txt", "-o", "x.tbf"});
    Row("lines 0", L{"import-text", "a.txt", "-o", "x.tbf", "--lines", "0"});
    Row("lines 100", L{"import-text", "a.txt", "-o", "x.tbf", "--lines", "100"});
    Row("lines not a number", L{"import-text", "a.txt", "-o", "x.tbf", "--lines", "many"});
    Row("unknown option", L{"import-text", "a.txt", "-o", "x.tbf", "--font", "Courier"});
    Row("import-fd, one report", L{"import-fd", "a.txt", "-o", "x.tbf"});
}

void TestImportCli::usageErrors()
{
    QFETCH(QStringList, args);
    const Run run = cli(args);
    QCOMPARE(run.code, 2);
    QVERIFY(run.err.contains("usage: torvanbridge-cli import-"));
}

QTEST_GUILESS_MAIN(TestImportCli)
#include "tst_importcli.moc"
