#include "SchedulingTestView.h"

#include "document/ScheduleFile.h"

#include <QFile>
#include <QProcess>

using namespace tb;
using namespace tb::test;

namespace {

using Run = CliRun;

// Scenes 1 (3 pages), 2 (4 pages), a divider, scene 3 (12 pages), a banner and a
// divider; Friday start, Saturdays and Sundays off.
QString Input()
{
    static const QString path = [] {
        ScheduleDocument doc;
        doc.values.StartDate = "46087";
        doc.values.AutoRestDayRule = "D67";
        Build(doc, {"3", "4", "|", "12"});
        AddBanner(doc, "Travel", 1);
        AddDivider(doc);
        SetModified(doc);
        const QString file = TempPath("input.tbf");
        if (!SaveDocument(doc, file))
            qFatal("cannot write the input schedule");
        return file;
    }();
    return path;
}

// Runs COMMAND INPUT OPTIONS... -o OUT on the input schedule above.
Run cli(QStringList args, const QString &out)
{
    args.insert(1, Input());
    args << "-o" << out;
    return RunCli(args);
}

} // namespace

class TestSchedulingCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data();
    void commands();
    void refusedWritesNothing_data();
    void refusedWritesNothing();
};

void TestSchedulingCli::commands_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("kinds");
    QTest::addColumn<QString>("check"); // "field row value" checks, ";"-separated; "rule X", "start X", "hold N"

    using L = QStringList;
    // The input board: 1 1 2 3 3 1 4 2 (the two rest days follow Friday's divider).
    Row("add-divider", L{"add-divider"}, "1 1 2 3 3 1 4 2 2", "");
    Row("add-divider --before", L{"add-divider", "--before", "2"}, "1 2 3 3 1 2 1 4 2", "");
    Row("remove-dividers", L{"remove-dividers"}, "1 1 1 4", "");
    Row("remove-banners", L{"remove-banners"}, "1 1 2 3 3 1 2", "");
    // Split at 5 pages: 3 + 4 overflows, so does 4 + 12, and 12 alone gets two
    // dividers and carries 7, which leaves the last day open.
    Row("auto-pages split", L{"auto-pages", "--max", "5", "--mode", "split"}, "1 2 3 3 1 2 1 2 2 4", "");
    Row("auto-pages keep", L{"auto-pages", "--max", "5"}, "1 2 3 3 1 2 1 2 4", "");
    Row("auto-pages keeping dividers", L{"auto-pages", "--max", "8", "--keep-dividers"}, "1 1 2 3 3 2 1 2 4 2", "");
    Row("start-date", L{"start-date", "--date", "2026-03-09"}, "1 1 2 1 4 2", "start 46090");
    Row("start-date --clear", L{"start-date", "--clear"}, "1 1 2 1 4 2", "start ;rule ");
    Row("rest-days S1", L{"rest-days", "--rule", "S1"}, "1 1 2 3 1 4 2", "rule S1");
    Row("rest-days none", L{"rest-days", "--rule", ""}, "1 1 2 1 4 2", "rule ");
    Row("convert-rest-days", L{"convert-rest-days"}, "1 1 2 4 4 1 4 2", "rule ;6 4 REST DAY;16 5 clWhite,clBlack");
    Row("lock", L{"lock", "--from", "1", "--to", "2", "--date", "2026-03-10"}, "1 1 2 3 3 1 4 2",
        "13 1 3/10/2026;13 2 3/10/2026;13 3 ");
    Row("hold-days", L{"hold-days", "--days", "14"}, "1 1 2 3 3 1 4 2", "hold 14");
}

void TestSchedulingCli::commands()
{
    QFETCH(QStringList, args);
    QFETCH(QString, kinds);
    QFETCH(QString, check);

    const QString out = TempPath(QString::fromLatin1(QTest::currentDataTag()).replace(u' ', u'_') + ".tbf");
    const Run run = cli(args, out);
    QVERIFY2(run.code == 0, qPrintable(run.err));

    ScheduleDocument doc;
    QVERIFY(OpenDocument(doc, out).ok());
    QCOMPARE(Kinds(doc), kinds);
    for (const QString &item : check.split(u';', Qt::SkipEmptyParts)) {
        const QString key = item.section(u' ', 0, 0);
        if (key == "rule")
            QCOMPARE(doc.values.AutoRestDayRule, item.section(u' ', 1));
        else if (key == "start")
            QCOMPARE(doc.values.StartDate, item.section(u' ', 1));
        else if (key == "hold")
            QCOMPARE(doc.values.HoldDays, item.section(u' ', 1).toInt());
        else
            QCOMPARE(doc.strips[item.section(u' ', 1, 1).toInt()].at(key.toInt()), item.section(u' ', 2));
    }
}

void TestSchedulingCli::refusedWritesNothing_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");

    using L = QStringList;
    Row("row beyond the board", L{"add-divider", "--before", "9"}, 1, "--before 9: the schedule has strips 1 to 8.");
    Row("lock without unlock or date", L{"lock", "--from", "1", "--to", "2"}, 2,
        "give either --date YYYY-MM-DD or --unlock");
    Row("bad rule", L{"rest-days", "--rule", "X6"}, 1, "The rest day rule must start with S");
    Row("max out of range", L{"auto-pages", "--max", "21"}, 2, "--max must be between 1 and 20");
    Row("bad mode", L{"auto-pages", "--max", "5", "--mode", "ask"}, 2, "--mode is keep or split");
    Row("bad date", L{"start-date", "--date", "6/3/2026"}, 2, "--date needs a date as YYYY-MM-DD");
    Row("hold days out of range", L{"hold-days", "--days", "1000"}, 1, "The hold days must be between 1 and 999.");
}

void TestSchedulingCli::refusedWritesNothing()
{
    QFETCH(QStringList, args);
    QFETCH(int, code);
    QFETCH(QString, message);
    const QString out = TempPath("refused.tbf");
    const Run run = cli(args, out);
    QCOMPARE(run.code, code);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QVERIFY(!QFile::exists(out));
}

QTEST_GUILESS_MAIN(TestSchedulingCli)
#include "tst_schedulingcli.moc"
