#include "TestSupport.h"

#include "document/DocumentOperations.h"
#include "document/ScheduleFile.h"

#include <QFile>
#include <QProcess>
#include <QTest>

using namespace tb;
using namespace tb::test;

namespace {

struct Run
{
    int code = -1;
    QString err;
};

Run cli(const QStringList &args)
{
    QProcess process;
    process.start(QStringLiteral(TB_CLI_PATH), QStringList{"--locale", "en_US"} + args);
    process.waitForFinished(60000);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
}

// Scenes 1 (3 pages), 2 (4 pages), a divider, scene 3 (12 pages), a banner and a
// divider; Friday start, Saturdays and Sundays off.
QString Input()
{
    static const QString path = [] {
        ScheduleDocument doc;
        doc.values.StartDate = "46087";
        doc.values.AutoRestDayRule = "D67";
        AddScene(doc, "1", "3");
        AddScene(doc, "2", "4");
        AddDivider(doc);
        AddScene(doc, "3", "12");
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

    // The input board: 1 1 2 3 3 1 4 2 (the two rest days follow Friday's divider).
    QTest::newRow("add-divider") << QStringList{"add-divider"} << "1 1 2 3 3 1 4 2 2"
                                 << "";
    QTest::newRow("add-divider --before") << QStringList{"add-divider", "--before", "2"} << "1 2 3 3 1 2 1 4 2"
                                          << "";
    QTest::newRow("remove-dividers") << QStringList{"remove-dividers"} << "1 1 1 4"
                                     << "";
    QTest::newRow("remove-banners") << QStringList{"remove-banners"} << "1 1 2 3 3 1 2"
                                    << "";
    // Split at 5 pages: 3 + 4 overflows, so does 4 + 12, and 12 alone gets two
    // dividers and carries 7, which leaves the last day open.
    QTest::newRow("auto-pages split") << QStringList{"auto-pages", "--max", "5", "--mode", "split"}
                                      << "1 2 3 3 1 2 1 2 2 4"
                                      << "";
    QTest::newRow("auto-pages keep") << QStringList{"auto-pages", "--max", "5"} << "1 2 3 3 1 2 1 2 4"
                                     << "";
    QTest::newRow("auto-pages keeping dividers")
        << QStringList{"auto-pages", "--max", "8", "--keep-dividers"} << "1 1 2 3 3 2 1 2 4 2"
        << "";
    QTest::newRow("start-date") << QStringList{"start-date", "--date", "2026-03-09"} << "1 1 2 1 4 2"
                                << "start 46090";
    QTest::newRow("start-date --clear") << QStringList{"start-date", "--clear"} << "1 1 2 1 4 2"
                                        << "start ;rule ";
    QTest::newRow("rest-days S1") << QStringList{"rest-days", "--rule", "S1"} << "1 1 2 3 1 4 2"
                                  << "rule S1";
    QTest::newRow("rest-days none") << QStringList{"rest-days", "--rule", ""} << "1 1 2 1 4 2"
                                    << "rule ";
    QTest::newRow("convert-rest-days") << QStringList{"convert-rest-days"} << "1 1 2 4 4 1 4 2"
                                       << "rule ;6 4 REST DAY;16 5 clWhite,clBlack";
    QTest::newRow("lock") << QStringList{"lock", "--from", "1", "--to", "2", "--date", "2026-03-10"}
                          << "1 1 2 3 3 1 4 2"
                          << "13 1 3/10/2026;13 2 3/10/2026;13 3 ";
    QTest::newRow("hold-days") << QStringList{"hold-days", "--days", "14"} << "1 1 2 3 3 1 4 2"
                               << "hold 14";
}

void TestSchedulingCli::commands()
{
    QFETCH(QStringList, args);
    QFETCH(QString, kinds);
    QFETCH(QString, check);

    const QString out = TempPath(QString::fromLatin1(QTest::currentDataTag()).replace(u' ', u'_') + ".tbf");
    QStringList full = args;
    full.insert(1, Input());
    full << "-o" << out;
    const Run run = cli(full);
    QVERIFY2(run.code == 0, qPrintable(run.err));

    ScheduleDocument doc;
    QVERIFY(OpenDocument(doc, out).ok());
    QCOMPARE(Kinds(doc), kinds);
    for (const QString &item : check.split(u';', Qt::SkipEmptyParts)) {
        const QStringList parts = item.split(u' ');
        const QString value =
            item.section(u' ', parts.first() == "hold" || parts.first() == "rule" || parts.first() == "start" ? 1 : 2);
        if (parts.first() == "rule")
            QCOMPARE(doc.values.AutoRestDayRule, value);
        else if (parts.first() == "start")
            QCOMPARE(doc.values.StartDate, value);
        else if (parts.first() == "hold")
            QCOMPARE(doc.values.HoldDays, value.toInt());
        else
            QCOMPARE(doc.strips[parts.at(1).toInt()].at(parts.first().toInt()), value);
    }
}

void TestSchedulingCli::refusedWritesNothing_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");

    QTest::newRow("row beyond the board")
        << QStringList{"add-divider", "--before", "9"} << 1 << "--before 9: the schedule has strips 1 to 8.";
    QTest::newRow("lock without unlock or date")
        << QStringList{"lock", "--from", "1", "--to", "2"} << 2 << "give either --date YYYY-MM-DD or --unlock";
    QTest::newRow("bad rule") << QStringList{"rest-days", "--rule", "X6"} << 1 << "The rest day rule must start with S";
    QTest::newRow("max out of range") << QStringList{"auto-pages", "--max", "21"} << 2
                                      << "--max must be between 1 and 20";
    QTest::newRow("bad mode") << QStringList{"auto-pages", "--max", "5", "--mode", "ask"} << 2
                              << "--mode is keep or split";
    QTest::newRow("bad date") << QStringList{"start-date", "--date", "6/3/2026"} << 2
                              << "--date needs a date as YYYY-MM-DD";
    QTest::newRow("hold days out of range")
        << QStringList{"hold-days", "--days", "1000"} << 1 << "The hold days must be between 1 and 999.";
}

void TestSchedulingCli::refusedWritesNothing()
{
    QFETCH(QStringList, args);
    QFETCH(int, code);
    QFETCH(QString, message);
    const QString out = TempPath("refused.tbf");
    QStringList full = args;
    full.insert(1, Input());
    full << "-o" << out;
    const Run run = cli(full);
    QCOMPARE(run.code, code);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QVERIFY(!QFile::exists(out));
}

QTEST_GUILESS_MAIN(TestSchedulingCli)
#include "tst_schedulingcli.moc"
