// The report command of the command-line tool, run as a process.

#include "TestSupport.h"

#include <QFile>
#include <QProcess>
#include <QTest>

using namespace tb::test;

namespace {

using Run = tb::test::CliRun;

Run cli(const QStringList &args)
{
    return tb::test::RunCli(args);
}

QByteArray head(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.read(5) : QByteArray();
}

const QString Example = QStringLiteral(TB_SOURCE_DIR "/examples/harbour-lights.tbf");

} // namespace

class TestReportCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindWritesAPdf_data();
    void everyKindWritesAPdf();
    void traceListsEveryValueInOrder();
    void usageErrors_data();
    void usageErrors();
    void userErrorsWriteNothing_data();
    void userErrorsWriteNothing();
};

void TestReportCli::everyKindWritesAPdf_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::newRow("schedule") << QStringList{"schedule"};
    QTest::newRow("schedule, letter, all days") << QStringList{"schedule", "--paper", "letter", "--all-days"};
    QTest::newRow("oneline range") << QStringList{"oneline", "--from", "2", "--to", "4"};
    QTest::newRow("breakdown") << QStringList{"breakdown", "--sheets", "11,24"};
    QTest::newRow("elements") << QStringList{"elements", "--categories", "1,4,5"};
}

void TestReportCli::everyKindWritesAPdf()
{
    QFETCH(QStringList, args);
    const QString out = TempPath(args.join(u'-') + ".pdf");
    QStringList call{"report", args.first(), Example, "-o", out};
    call += args.mid(1);
    const Run run = cli(call);
    QVERIFY2(run.code == 0, qPrintable(run.err));
    QCOMPARE(head(out), QByteArray("%PDF-"));
    QVERIFY(run.out.isEmpty());
}

void TestReportCli::traceListsEveryValueInOrder()
{
    const Run run =
        cli({"report", "oneline", Example, "-o", TempPath("traced.pdf"), "--trace", "--from", "1", "--to", "1"});
    QCOMPARE(run.code, 0);
    const QStringList lines = run.out.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.at(0), QStringLiteral("AddNamedValue(PictureField) = \"Harbour Lights\""));
    QCOMPARE(lines.at(1), QStringLiteral("AddNamedValue(CompanyField) = Brenholt Pictures Ltd"));
    QVERIFY(lines.at(2).startsWith("AddNamedValue(DayField) = SHOOTING DAY 1 : Monday, April 5, 2027"));
    // Values for fields the one-line template leaves out are traced as not found, with
    // their line breaks written as \r\n so that each trace line stays one line.
    QVERIFY(run.out.contains("AlField CatagoryField1 = not found for value: CAST\\r\\n    2 TOM QUINN\\r\\n"));
    QCOMPARE(lines.last(), QStringLiteral("AddNamedValue(GrandTotal) = End (Days 1 to 1)"));
}

void TestReportCli::usageErrors_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown kind") << QStringList{"callsheet", Example, "-o", "x.pdf"} << "unknown report callsheet";
    QTest::newRow("no output") << QStringList{"schedule", Example} << "expected KIND, an input file and -o OUT.pdf";
    QTest::newRow("paper") << QStringList{"schedule", Example, "-o", "x.pdf", "--paper", "a3"}
                           << "--paper is a4 or letter";
    QTest::newRow("range for breakdown") << QStringList{"breakdown", Example, "-o", "x.pdf", "--from", "1"}
                                         << "--from, --to and --all-days are for schedule and oneline";
    QTest::newRow("sheets for elements") << QStringList{"elements", Example, "-o", "x.pdf", "--sheets", "1"}
                                         << "--sheets is for breakdown";
    QTest::newRow("bad sheet list") << QStringList{"breakdown", Example, "-o", "x.pdf", "--sheets", "a,b"}
                                    << "--sheets takes breakdown sheet numbers";
}

void TestReportCli::usageErrors()
{
    QFETCH(QStringList, args);
    QFETCH(QString, message);
    const Run run = cli(QStringList{"report"} + args);
    QCOMPARE(run.code, 2);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
}

void TestReportCli::userErrorsWriteNothing_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("message");
    QTest::newRow("day range") << QStringList{"schedule", Example, "--from", "3", "--to", "99"}
                               << "The day range 3 to 99 is not within the schedule's production days 1 to 19.";
    QTest::newRow("unknown sheet") << QStringList{"breakdown", Example, "--sheets", "11,9999"}
                                   << "No scene has the breakdown sheet number 9999.";
    QTest::newRow("unknown category") << QStringList{"elements", Example, "--categories", "16"}
                                      << "There is no category 16: categories are numbered 1 to 15.";
    // A missing schedule is the reader's message, and no file either.
    QTest::newRow("missing schedule") << QStringList{"schedule", TempPath("nowhere.tbf")}
                                      << "This file cannot be opened by Torvanbridge";
}

void TestReportCli::userErrorsWriteNothing()
{
    QFETCH(QStringList, args);
    QFETCH(QString, message);
    const QString out = TempPath("never.pdf");
    const Run run = cli(QStringList{"report"} + args.mid(0, 2) + QStringList{"-o", out} + args.mid(2));
    QCOMPARE(run.code, 1);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QVERIFY(!QFile::exists(out));
}

QTEST_MAIN(TestReportCli)
#include "tst_reportcli.moc"
