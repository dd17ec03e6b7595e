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

using Run = tb::test::CliRun;

Run cli(const QStringList &args)
{
    return tb::test::RunCli(args);
}

const QString Example = QStringLiteral(TB_SOURCE_DIR "/examples/harbour-lights.tbf");

// Runs COMMAND IN -o <temp OUT> ARGS..., expects success and opens the result.
void runAndOpen(ScheduleDocument &doc, const QString &command, const QString &in, const QString &out,
                const QStringList &args = {})
{
    const Run run = cli(QStringList{command, in, "-o", out} + args);
    QVERIFY2(run.code == 0, qPrintable(run.err));
    QVERIFY(OpenDocument(doc, out).ok());
}

// The leading number of a scene number ("12A" is 12).
int leadingNumber(const QString &text)
{
    qsizetype digits = 0;
    while (digits < text.size() && text.at(digits).isDigit())
        ++digits;
    return text.left(digits).toInt();
}

} // namespace

class TestBreakdownCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sortThenRenumber();
    void usageErrors_data();
    void usageErrors();
    void conform();
    void elementsCommands();
    void buildAScheduleFromScratch();
    void refusedCommandsWriteNothing_data();
    void refusedCommandsWriteNothing();
};

void TestBreakdownCli::sortThenRenumber()
{
    // The default keys start with the location, in the locale's order.
    ScheduleDocument doc;
    const QString sorted = TempPath("sorted.tbf");
    const Run run = cli({"sort", Example, "-o", sorted});
    QCOMPARE(run.code, 0);
    QVERIFY(run.err.contains("[answered Yes]"));
    QVERIFY(OpenDocument(doc, sorted).ok());
    QCOMPARE(doc.strips.count(), 60);
    QCollator collator(QLocale(QLocale::English, QLocale::UnitedStates));
    for (int i = 2; i <= doc.strips.count(); ++i) {
        QVERIFY(doc.strips[i].isScene());
        QVERIFY2(collator.compare(doc.strips[i - 1][StripField::Location], doc.strips[i][StripField::Location]) <= 0,
                 qPrintable(QString::number(i)));
    }
    ScheduleDocument renumbered;
    runAndOpen(renumbered, "renumber", sorted, TempPath("renumbered.tbf"));
    for (int i = 1; i <= renumbered.strips.count(); ++i)
        QCOMPARE(renumbered.strips[i][StripField::StripId], QString::number(i));
    QCOMPARE(renumbered.values.NextStripId, renumbered.strips.count());

    ScheduleDocument byScene;
    runAndOpen(byScene, "sort", Example, TempPath("sorted-by-scene.tbf"), {"--keys", "scene"});
    for (int i = 2; i <= byScene.strips.count(); ++i)
        QVERIFY(leadingNumber(byScene.strips[i - 1][StripField::SceneNumber]) <=
                leadingNumber(byScene.strips[i][StripField::SceneNumber]));
}

void TestBreakdownCli::usageErrors_data()
{
    QTest::addColumn<QStringList>("args");
    const QStringList scene{"add-scene", Example, "-o", "x.tbf", "--scene", "1", "--int-ext", "I"};
    const QStringList element{"add-element", Example, "-o", "x.tbf", "--description", "X", "--category"};
    QTest::newRow("sort unknown key") << QStringList{"sort", Example, "-o", "x.tbf", "--keys", "colour"};
    QTest::newRow("sort four keys") << QStringList{"sort", Example, "-o", "x.tbf", "--keys", "scene,scene,scene,scene"};
    QTest::newRow("conform without entries") << QStringList{"conform", Example, "-o", "x.tbf"};
    QTest::newRow("renumber without -o") << QStringList{"renumber", Example};
    QTest::newRow("add-scene missing pages") << scene + QStringList{"--day-night", "D"};
    QTest::newRow("add-scene bad pages") << scene + QStringList{"--pages", "1 9/8", "--day-night", "D"};
    QTest::newRow("add-scene bad time") << scene + QStringList{"--pages", "1", "--day-night", "NOON"};
    QTest::newRow("add-element bad category") << element + QStringList{"16"};
    QTest::newRow("add-element long id") << element + QStringList{"1", "--id", "12345"};
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
    QVERIFY(OpenDocument(doc, out).ok());
    QCOMPARE(Kinds(doc), "1 2 1 4");
    QCOMPARE(doc.strips[1][StripField::StripId], "3");
    QCOMPARE(doc.strips[3][StripField::StripId], "1");
    QCOMPARE(doc.strips[4][StripField::Synopsis], "Travel");
}

void TestBreakdownCli::elementsCommands()
{
    ScheduleDocument doc;
    const QString sorted = TempPath("elements-sorted.tbf");
    runAndOpen(doc, "sort-elements", Example, sorted);
    for (int i = 2; i <= doc.elements.count(); ++i)
        QVERIFY(doc.elements[i - 1][ElementField::CategoryNumber].toInt() <=
                doc.elements[i][ElementField::CategoryNumber].toInt());
    ScheduleDocument reset;
    runAndOpen(reset, "reset-cast", sorted, TempPath("cast-reset.tbf"));
    QCOMPARE(reset.elements[1][ElementField::BoardId], "1");
    QCOMPARE(reset.elements[25][ElementField::BoardId], "25");
}

void TestBreakdownCli::buildAScheduleFromScratch()
{
    QString path = TempPath("scratch-0.tbf");
    {
        ScheduleDocument empty;
        NewDocument(empty);
        QVERIFY(SaveDocument(empty, path).ok());
    }
    int n = 0;
    auto step = [&](QStringList args) {
        const QString next = TempPath(QStringLiteral("scratch-%1.tbf").arg(++n));
        const Run run = cli(QStringList{args.takeFirst(), path, "-o", next} + args);
        path = next;
        return run;
    };
    QCOMPARE(step({"add-element", "--description", "ANNA", "--category", "1", "--name", "Mara Quint", "--hold"}).code,
             0);
    QCOMPARE(step({"add-element", "--description", "LAMP", "--category", "5"}).code, 0);
    const Run duplicate = step({"add-element", "--description", "BEN", "--category", "1", "--id", "1"});
    QCOMPARE(duplicate.code, 0);
    QVERIFY(duplicate.err.contains("already being used by another cast element"));
    const Run scene =
        step({"add-scene", "--scene", "12A", "--pages", "1 3/8", "--int-ext", "I/E", "--day-night", "DSK", "--location",
              "HARBOUR", "--set", "Quay", "--synopsis", "Anna arrives, late", "--page", "7", "--elements", "3,1"});
    QCOMPARE(scene.code, 0);
    QCOMPARE(scene.out, "Added scene 12A as strip 1, breakdown sheet 1\n");
    QCOMPARE(step({"add-scene", "--scene", "13", "--pages", "0.5", "--int-ext", "E", "--day-night", "N"}).code, 0);

    ScheduleDocument doc;
    QVERIFY(OpenDocument(doc, path).ok());
    auto fields = [](const auto &record, auto... f) { return QStringList{record[f]...}.join(u'|'); };
    using E = ElementField;
    using S = StripField;
    QCOMPARE(doc.elements.count(), 3);
    QCOMPARE(fields(doc.elements[1], E::BoardId, E::PrintOnBoard, E::HoldRule, E::PersonName), "1|1|SAG|Mara Quint");
    QCOMPARE(fields(doc.elements[2], E::BoardId, E::PrintOnBoard), "Prp|");
    QCOMPARE(doc.elements[3][E::BoardId], "1");
    QCOMPARE(doc.strips.count(), 2);
    QCOMPARE(fields(doc.strips[1], S::SceneNumber, S::PageLength, S::IntExt, S::DayNight, S::Location, S::SetName,
                    S::ScriptPage, S::Synopsis, S::Assignments),
             "12A|1.375|I/E|DSK|HARBOUR|Quay|7|Anna arrives, late|1,3");
    QCOMPARE(fields(doc.strips[2], S::PageLength, S::StripId), "0.5|2");
    QCOMPARE(doc.values.NextStripId, 2);
}

void TestBreakdownCli::refusedCommandsWriteNothing_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("message");
    const QStringList scene{"add-scene", "--scene", "1", "--int-ext", "I", "--day-night", "D", "--pages"};
    QTest::newRow("no length") << scene + QStringList{"0"} << "Oops! Scene must be a minimum of 1/8ths";
    QTest::newRow("no such element") << scene + QStringList{"1", "--elements", "1,99"}
                                     << "There is no element 99 in this schedule (it has 65).";
    QTest::newRow("conform with nothing accepted")
        << QStringList{"conform", "--", "999"} << "No strip was found with that number.";
}

void TestBreakdownCli::refusedCommandsWriteNothing()
{
    QFETCH(QStringList, args);
    QFETCH(QString, message);
    const QString out = TempPath("refused.tbf");
    const Run run = cli(QStringList{args.takeFirst(), Example, "-o", out} + args);
    QCOMPARE(run.code, 1);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QVERIFY(!QFile::exists(out));
}

QTEST_GUILESS_MAIN(TestBreakdownCli)
#include "tst_breakdowncli.moc"
