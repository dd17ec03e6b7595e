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

const QString Example = QStringLiteral(TB_SOURCE_DIR "/examples/harbour-lights.tbf");

} // namespace

class TestCli : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resaveReproducesTheExample()
    {
        const QString out = TempPath("example-resaved.tbf");
        const Run run = cli({"resave", Example, "-o", out});
        QCOMPARE(run.code, 0);
        QCOMPARE(ReadFileBytes(out), ReadFileBytes(Example));
    }

    void info()
    {
        const Run run = cli({"info", Example});
        QCOMPARE(run.code, 0);
        QVERIFY(run.out.contains("Title:       Harbour Lights\n"));
        QVERIFY(run.out.contains("Start date:  Mon, April 5, 2027\n"));
        QVERIFY(run.out.contains("(60 scenes, 13 day dividers, 2 banners, 4 auto rest days)"));
        QVERIFY(run.out.contains("  Cast        25\n"));
        QVERIFY(run.out.contains("Days:        19 production, 15 shooting\n"));
    }

    void failedOpenWritesNothing()
    {
        const QString bad = TempPath("not-a-schedule.tbf");
        QFile f(bad);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("hello\r\n");
        f.close();
        const QString out = TempPath("never-written.tbf");
        const Run run = cli({"resave", bad, "-o", out});
        QCOMPARE(run.code, 1);
        QVERIFY(run.err.contains(
            "Torvanbrigde cannot read this file. It may be the wrong type, or perhaps it is corrupted."));
        QVERIFY(!QFile::exists(out));

        const Run missing = cli({"resave", TempPath("missing.tbf"), "-o", out});
        QCOMPARE(missing.code, 1);
        QVERIFY(missing.err.startsWith("Error opening file .\n\nThis file cannot be opened by Torvanbridge"));
        QVERIFY(!QFile::exists(out));
    }

    void usageErrors_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::newRow("no command") << QStringList{};
        QTest::newRow("unknown command") << QStringList{"frobnicate"};
        QTest::newRow("missing -o") << QStringList{"resave", "in.tbf"};
        QTest::newRow("-o without a value") << QStringList{"resave", "in.tbf", "-o"};
        QTest::newRow("unknown option") << QStringList{"info", "--colour", "x.tbf"};
        QTest::newRow("unknown global option") << QStringList{"--verbose", "info", "x.tbf"};
    }

    void usageErrors()
    {
        QFETCH(QStringList, args);
        const Run run = cli(args);
        QCOMPARE(run.code, 2);
        QVERIFY(!run.err.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
