#include "TestSupport.h"

#include "document/DocumentOperations.h"
#include "document/ScheduleFile.h"

#include <QCollator>
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
    process.start(QStringLiteral(TB_CLI_PATH), QStringList{"--locale", "en_US"} + args);
    process.waitForFinished(60000);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

const QString Example = QStringLiteral(TB_SOURCE_DIR "/examples/harbour-lights.tbf");

bool open(ScheduleDocument &doc, const QString &path)
{
    return OpenDocument(doc, path).ok();
}

} // namespace

class TestBreakdownCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sortDefaultKeys();
    void sortByScene();
    void usageErrors_data();
    void usageErrors();
    void conform();
    void conformWithNothingAccepted();
    void renumber();
    void elementsCommands();
    void buildAScheduleFromScratch();
    void refusedSceneWritesNothing_data();
    void refusedSceneWritesNothing();
};

void TestBreakdownCli::sortDefaultKeys()
{
    const QString out = TempPath("sorted.tbf");
    const Run run = cli({"sort", Example, "-o", out});
    QCOMPARE(run.code, 0);
    QVERIFY(run.err.contains("[answered Yes]"));
    ScheduleDocument doc;
    QVERIFY(open(doc, out));
    QCOMPARE(doc.strips.count(), 60);
    QCollator collator(QLocale(QLocale::English, QLocale::UnitedStates));
    for (int i = 2; i <= doc.strips.count(); ++i) {
        QVERIFY(doc.strips[i].isScene());
        const int order =
            collator.compare(doc.strips[i - 1][StripField::Location], doc.strips[i][StripField::Location]);
        QVERIFY2(order <= 0, qPrintable(QString::number(i)));
    }
}

void TestBreakdownCli::sortByScene()
{
    const QString out = TempPath("sorted-by-scene.tbf");
    QCOMPARE(cli({"sort", Example, "-o", out, "--keys", "scene"}).code, 0);
    ScheduleDocument doc;
    QVERIFY(open(doc, out));
    int last = -1;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        const QString &text = doc.strips[i][StripField::SceneNumber];
        qsizetype digits = 0;
        while (digits < text.size() && text.at(digits).isDigit())
            ++digits;
        const int scene = text.left(digits).toInt();
        QVERIFY(scene >= last);
        last = scene;
    }
}

void TestBreakdownCli::usageErrors_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::newRow("sort unknown key") << QStringList{"sort", Example, "-o", "x.tbf", "--keys", "colour"};
    QTest::newRow("sort four keys") << QStringList{"sort", Example, "-o", "x.tbf", "--keys", "scene,scene,scene,scene"};
    QTest::newRow("conform without entries") << QStringList{"conform", Example, "-o", "x.tbf"};
    QTest::newRow("renumber without -o") << QStringList{"renumber", Example};
    QTest::newRow("add-scene missing pages")
        << QStringList{"add-scene", Example, "-o", "x.tbf", "--scene", "1", "--int-ext", "I", "--day-night", "D"};
    QTest::newRow("add-scene bad pages") << QStringList{"add-scene", Example, "-o",        "x.tbf", "--scene",     "1",
                                                        "--pages",   "1 9/8", "--int-ext", "I",     "--day-night", "D"};
    QTest::newRow("add-scene bad time") << QStringList{
        "add-scene", Example, "-o", "x.tbf", "--scene", "1", "--pages", "1", "--int-ext", "I", "--day-night", "NOON"};
    QTest::newRow("add-element bad category")
        << QStringList{"add-element", Example, "-o", "x.tbf", "--description", "X", "--category", "16"};
    QTest::newRow("add-element long id") << QStringList{"add-element", Example,      "-o", "x.tbf", "--description",
                                                        "X",           "--category", "1",  "--id",  "12345"};
}

void TestBreakdownCli::usageErrors()
{
    QFETCH(QStringList, args);
    const Run run = cli(args);
    QCOMPARE(run.code, 2);
    QVERIFY(run.err.contains("usage: torvanbridge-cli"));
}

void TestBreakdownCli::conform()
{
    const QString out = TempPath("conformed.tbf");
    const Run run = cli({"conform", Example, "-o", out, "--", "3", "+", "999", "1", "*Travel", "05"});
    QCOMPARE(run.code, 0);
    QVERIFY(run.err.contains("No strip was found with that number. Please try again."));
    QVERIFY(run.err.contains("You have entered less strips than exist in the current schedule."));
    ScheduleDocument doc;
    QVERIFY(open(doc, out));
    QCOMPARE(Kinds(doc), "1 2 1 4");
    QCOMPARE(doc.strips[1][StripField::StripId], "3");
    QCOMPARE(doc.strips[3][StripField::StripId], "1");
    QCOMPARE(doc.strips[4][StripField::Synopsis], "Travel");
}

void TestBreakdownCli::conformWithNothingAccepted()
{
    const QString out = TempPath("never-conformed.tbf");
    const Run run = cli({"conform", Example, "-o", out, "--", "999"});
    QCOMPARE(run.code, 1);
    QVERIFY(!QFile::exists(out));
}

void TestBreakdownCli::renumber()
{
    const QString sorted = TempPath("to-renumber.tbf");
    QCOMPARE(cli({"sort", Example, "-o", sorted}).code, 0);
    const QString out = TempPath("renumbered.tbf");
    QCOMPARE(cli({"renumber", sorted, "-o", out}).code, 0);
    ScheduleDocument doc;
    QVERIFY(open(doc, out));
    for (int i = 1; i <= doc.strips.count(); ++i)
        QCOMPARE(doc.strips[i][StripField::StripId], QString::number(i));
    QCOMPARE(doc.values.NextStripId, doc.strips.count());
}

void TestBreakdownCli::elementsCommands()
{
    const QString sorted = TempPath("elements-sorted.tbf");
    QCOMPARE(cli({"sort-elements", Example, "-o", sorted}).code, 0);
    ScheduleDocument doc;
    QVERIFY(open(doc, sorted));
    int last = 0;
    for (int i = 1; i <= doc.elements.count(); ++i) {
        const int category = doc.elements[i][ElementField::CategoryNumber].toInt();
        QVERIFY(category >= last);
        last = category;
    }
    const QString reset = TempPath("cast-reset.tbf");
    QCOMPARE(cli({"reset-cast", sorted, "-o", reset}).code, 0);
    ScheduleDocument again;
    QVERIFY(open(again, reset));
    QCOMPARE(again.elements[1][ElementField::BoardId], "1");
    QCOMPARE(again.elements[25][ElementField::BoardId], "25");
}

void TestBreakdownCli::buildAScheduleFromScratch()
{
    QString path = TempPath("scratch-0.tbf");
    {
        ScheduleDocument empty;
        NewDocument(empty);
        QVERIFY(SaveDocument(empty, path).ok());
    }
    auto step = [&path](int n, QStringList args) {
        const QString next = TempPath(QStringLiteral("scratch-%1.tbf").arg(n));
        args.insert(1, path);
        args.insert(2, "-o");
        args.insert(3, next);
        const Run run = cli(args);
        path = next;
        return run;
    };
    QCOMPARE(
        step(1, {"add-element", "--description", "ANNA", "--category", "1", "--name", "Mara Quint", "--hold"}).code, 0);
    QCOMPARE(step(2, {"add-element", "--description", "LAMP", "--category", "5"}).code, 0);
    const Run duplicate = step(3, {"add-element", "--description", "BEN", "--category", "1", "--id", "1"});
    QCOMPARE(duplicate.code, 0);
    QVERIFY(duplicate.err.contains("already being used by another cast element"));
    const Run scene = step(4, {"add-scene", "--scene", "12A", "--pages", "1 3/8", "--int-ext", "I/E", "--day-night",
                               "DSK", "--location", "HARBOUR", "--set", "Quay", "--synopsis", "Anna arrives, late",
                               "--page", "7", "--elements", "3,1"});
    QCOMPARE(scene.code, 0);
    QCOMPARE(scene.out, "Added scene 12A as strip 1, breakdown sheet 1\n");
    QCOMPARE(step(5, {"add-scene", "--scene", "13", "--pages", "0.5", "--int-ext", "E", "--day-night", "N"}).code, 0);

    ScheduleDocument doc;
    QVERIFY(open(doc, path));
    QCOMPARE(doc.elements.count(), 3);
    QCOMPARE(doc.elements[1][ElementField::BoardId], "1");
    QCOMPARE(doc.elements[1][ElementField::PrintOnBoard], "1");
    QCOMPARE(doc.elements[1][ElementField::HoldRule], "SAG");
    QCOMPARE(doc.elements[1][ElementField::PersonName], "Mara Quint");
    QCOMPARE(doc.elements[2][ElementField::BoardId], "Prp");
    QCOMPARE(doc.elements[2][ElementField::PrintOnBoard], "");
    QCOMPARE(doc.elements[3][ElementField::BoardId], "1");
    QCOMPARE(doc.strips.count(), 2);
    const StripRecord &s = doc.strips[1];
    QCOMPARE(s[StripField::SceneNumber], "12A");
    QCOMPARE(s[StripField::PageLength], "1.375");
    QCOMPARE(s[StripField::IntExt], "I/E");
    QCOMPARE(s[StripField::DayNight], "DSK");
    QCOMPARE(s[StripField::Location], "HARBOUR");
    QCOMPARE(s[StripField::SetName], "Quay");
    QCOMPARE(s[StripField::ScriptPage], "7");
    QCOMPARE(s[StripField::Synopsis], "Anna arrives, late");
    QCOMPARE(s[StripField::Assignments], "1,3");
    QCOMPARE(doc.strips[2][StripField::PageLength], "0.5");
    QCOMPARE(doc.strips[2][StripField::StripId], "2");
    QCOMPARE(doc.values.NextStripId, 2);
}

void TestBreakdownCli::refusedSceneWritesNothing_data()
{
    QTest::addColumn<QStringList>("extra");
    QTest::addColumn<QString>("message");
    QTest::newRow("no length") << QStringList{"--pages", "0"} << "Oops! Scene must be a minimum of 1/8ths";
    QTest::newRow("no such element") << QStringList{"--pages", "1", "--elements", "1,99"}
                                     << "There is no element 99 in this schedule (it has 65).";
}

void TestBreakdownCli::refusedSceneWritesNothing()
{
    QFETCH(QStringList, extra);
    QFETCH(QString, message);
    const QString out = TempPath("refused-scene.tbf");
    const Run run =
        cli(QStringList{"add-scene", Example, "-o", out, "--scene", "1", "--int-ext", "I", "--day-night", "D"} + extra);
    QCOMPARE(run.code, 1);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QVERIFY(!QFile::exists(out));
}

QTEST_GUILESS_MAIN(TestBreakdownCli)
#include "tst_breakdowncli.moc"
