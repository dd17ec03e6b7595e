#include "TestSupport.h"

#include "board/BoardStyle.h"

#include <QFile>
#include <QImage>
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

} // namespace

class TestBoardCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void png();
    void pdf();
    void plainColoursAndScrolling();
    void usageErrors_data();
    void usageErrors();
    void missingScheduleWritesNothing();
};

void TestBoardCommand::png()
{
    const QString out = TempPath("board.png");
    const Run run = cli({"board", Example, "-o", out, "--scale", "1.4", "--width", "900", "--height", "700"});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, out + ": 900 x 700 at 140%, strips 1-12, element rows 1-12\n");
    const QImage image(out);
    QCOMPARE(image.size(), QSize(900, 700));
    // The first strip of the example is a dawn exterior: a day exterior's colour.
    const QColor dayExt = ClassicBoardStyle().backgroundOf(StripSlot::DayExt);
    QCOMPARE(image.pixelColor(280 + 28, 400 + 25 * 5 + 12), dayExt);
    // The fifth is a day divider, black.
    QCOMPARE(image.pixelColor(280 + 4 * 56 + 28, 400 + 25 * 5 + 12), QColor(Qt::black));
}

void TestBoardCommand::pdf()
{
    const QString out = TempPath("board.pdf");
    const Run run = cli({"board", Example, "-o", out, "--width", "1200", "--height", "800"});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, out + ": 1200 x 800 at 100%, strips 1-25, element rows 1-29\n");
    QFile f(out);
    QVERIFY(f.open(QIODevice::ReadOnly));
    const QByteArray bytes = f.readAll();
    QVERIFY(bytes.startsWith("%PDF-"));
    QVERIFY(bytes.contains("/Title"));
    // One page, 1200 x 800 pixels at 96 per inch: 900 x 600 points.
    QVERIFY(bytes.contains("/MediaBox [0 0 900.000000 600.000000]"));
}

void TestBoardCommand::plainColoursAndScrolling()
{
    const QString out = TempPath("plain.png");
    const Run run = cli({"board", Example, "-o", out, "--colours", "plain", "--first-strip", "5", "--first-element",
                         "10", "--width", "800", "--height", "600"});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, out + ": 800 x 600 at 100%, strips 5-19, element rows 10-27\n");
    const QImage image(out);
    // Strip 5, a divider, stands first; without a colour scheme it is white.
    QCOMPARE(image.pixelColor(200 + 20, 288 + 18 * 3 + 9), QColor(Qt::white));
}

void TestBoardCommand::usageErrors_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("message");
    QTest::newRow("no output") << QStringList{Example} << "needs -o OUT.png or -o OUT.pdf";
    QTest::newRow("wrong type") << QStringList{Example, "-o", "x.jpg"} << "the output must end in .png or .pdf";
    QTest::newRow("bad scale") << QStringList{Example, "-o", "x.png", "--scale", "0"}
                               << "--scale must be a number from 0.1 to 10";
    QTest::newRow("bad width") << QStringList{Example, "-o", "x.png", "--width", "wide"}
                               << "--width must be a whole number from 1 to 20000";
    QTest::newRow("bad colours") << QStringList{Example, "-o", "x.png", "--colours", "pink"}
                                 << "--colours must be classic or plain";
    QTest::newRow("two inputs") << QStringList{Example, Example, "-o", "x.png"} << "needs one schedule file";
}

void TestBoardCommand::usageErrors()
{
    QFETCH(QStringList, args);
    QFETCH(QString, message);
    const Run run = cli(QStringList{"board"} + args);
    QCOMPARE(run.code, 2);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QVERIFY(run.err.contains("usage: torvanbridge-cli board IN -o OUT.png|OUT.pdf"));
}

void TestBoardCommand::missingScheduleWritesNothing()
{
    const QString out = TempPath("never.png");
    const Run run = cli({"board", TempPath("missing.tbf"), "-o", out});
    QCOMPARE(run.code, 1);
    QVERIFY(!QFile::exists(out));
}

QTEST_MAIN(TestBoardCommand)
#include "tst_boardcommand.moc"
