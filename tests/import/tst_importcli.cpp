#include "TestSupport.h"

#include "document/ScheduleDocument.h"
#include "document/ScheduleFile.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

using namespace tb;
using namespace tb::test;

namespace {

struct Run
{
    int code = -1;
    QString out;
    QString err;
};

Run cli(const QStringList &args)
{
    QProcess process;
    process.start(QStringLiteral(TB_CLI_PATH), args);
    process.waitForFinished(60000);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString WriteLines(const QString &name, const QStringList &lines)
{
    const QString path = TempPath(name);
    QFile f(path);
    if (f.open(QIODevice::WriteOnly))
        f.write(lines.join(u'\n').toUtf8() + '\n');
    return path;
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
    void importTextMissingScript();
    void importTextFailsPartWay();
    void importFinalDraft();
    void importFinalDraftMissingReport();
    void importFinalDraftFailsPartWay();
    void importFinalDraftLengthMessages();
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
    QCOMPARE(opened.doc.strips[1][StripField::Location], QStringLiteral("STONEHENGE"));
    QCOMPARE(opened.doc.elements[1][ElementField::Description], QStringLiteral("Jason"));
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
    QCOMPARE(opened.doc.strips[1][StripField::DayNight], QStringLiteral("D"));
    QCOMPARE(opened.doc.strips[1][StripField::Location], QStringLiteral("PARK"));
    QCOMPARE(opened.doc.strips[1][StripField::PageLength], QStringLiteral("1.25")); // 5 lines, 4 a page
    QCOMPARE(opened.doc.strips[2][StripField::DayNight], QStringLiteral("N"));
    QCOMPARE(opened.doc.elements.count(), 1);
    QCOMPARE(opened.doc.elements[1][ElementField::Description], QStringLiteral("Ann"));
}

void TestImportCli::importTextMissingScript()
{
    const QString out = TempPath("never.tbf");
    const Run run = cli({"import-text", TempPath("missing-script.txt"), "-o", out});
    QCOMPARE(run.code, 1);
    QVERIFY(run.err.startsWith("Error with import procedure.\n\n"));
    QVERIFY(run.err.contains("missing-script.txt"));
    QVERIFY(!QFile::exists(out));
}

void TestImportCli::importTextFailsPartWay()
{
    QStringList lines{"ANN"};
    for (int k = 0; k <= MaxStrips; ++k)
        lines << QStringLiteral("INT. ROOM %1 - DAY").arg(k);
    const QString out = TempPath("too-many.tbf");
    const Run run = cli({"import-text", WriteLines("too-many.txt", lines), "-o", out});
    QCOMPARE(run.code, 1);
    QCOMPARE(run.err, QStringLiteral("Error with import procedure.\n"));
    // The elements made stay; the strips were never counted.
    Opened opened(out);
    QVERIFY(opened.ok);
    QCOMPARE(opened.doc.strips.count(), 0);
    QCOMPARE(opened.doc.elements.count(), 1);
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
    QCOMPARE(opened.doc.strips[1][StripField::PageLength], QStringLiteral("1.375"));
}

void TestImportCli::importFinalDraftMissingReport()
{
    const QString out = TempPath("fd-never.tbf");
    const Run run =
        cli({"import-fd", TempPath("no-scenes.txt"), QDir(DataDir).filePath("fd-script-report.txt"), "-o", out});
    QCOMPARE(run.code, 1);
    QVERIFY(run.err.startsWith("Error reading file(s). The files may be of the wrong type, or corrupted. "
                               "Try re-exporting from Final Draft.\n"));
    QVERIFY(!QFile::exists(out));
}

void TestImportCli::importFinalDraftFailsPartWay()
{
    const QString script = WriteLines(
        "six.txt", {"## Page: 1, Scene: 1", "INT. ROOM - DAY", "ANN", "BOB", "CAL", "DAN", "EVE", "FAY", ""});
    const QString scenes = WriteLines("six-scenes.txt", {"1\tINT. ROOM - DAY\t1\t1 Pg"});
    const QString out = TempPath("six.tbf");
    const Run run = cli({"import-fd", scenes, script, "-o", out});
    QCOMPARE(run.code, 1);
    QVERIFY(run.err.startsWith("Error reading file(s)."));
    Opened opened(out);
    QVERIFY(opened.ok);
    QCOMPARE(opened.doc.strips.count(), 1);
    QCOMPARE(opened.doc.elements.count(), 5);
}

void TestImportCli::importFinalDraftLengthMessages()
{
    const QString script =
        WriteLines("two.txt", {"## Page: 1, Scene: 1", "INT. A - DAY", "", "## Page: 2, Scene: 2", "INT. B - DAY", ""});
    const QString scenes = WriteLines("two-scenes.txt", {"1\tA\t1\tx Pgs", "2\tB\t2\tno length"});
    const QString out = TempPath("two.tbf");
    const Run run = cli({"import-fd", scenes, script, "-o", out});
    QCOMPARE(run.code, 1);
    QCOMPARE(run.err, QStringLiteral("Error converting scene length.\nCould not find scene length information. Are "
                                     "you sure you selected a valid Final Draft scene report?\n"));
    Opened opened(out);
    QCOMPARE(opened.doc.strips.count(), 2);
    QCOMPARE(opened.doc.strips[1][StripField::PageLength], QStringLiteral("0.125"));
}

void TestImportCli::usageErrors_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::newRow("import-text without -o") << QStringList{"import-text", "a.txt"};
    QTest::newRow("import-text, two scripts") << QStringList{"import-text", "a.txt", "b.txt", "-o", "x.tbf"};
    QTest::newRow("lines 0") << QStringList{"import-text", "a.txt", "-o", "x.tbf", "--lines", "0"};
    QTest::newRow("lines 100") << QStringList{"import-text", "a.txt", "-o", "x.tbf", "--lines", "100"};
    QTest::newRow("lines not a number") << QStringList{"import-text", "a.txt", "-o", "x.tbf", "--lines", "many"};
    QTest::newRow("unknown option") << QStringList{"import-text", "a.txt", "-o", "x.tbf", "--font", "Courier"};
    QTest::newRow("import-fd, one report") << QStringList{"import-fd", "a.txt", "-o", "x.tbf"};
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
