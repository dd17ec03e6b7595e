#include "TestSupport.h"

#include "board/BoardPrinting.h"
#include "board/PerforatedCalibration.h"
#include "document/DayCalculation.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPdfWriter>

using namespace tb;
using namespace tb::test;

namespace {

constexpr int Dpi = 300;

// A PDF sheet: A4 landscape, 300 dpi, unprintable edges of `edgeMm` all round.
struct Sheet
{
    explicit Sheet(double edgeMm = 4.0)
        : pdf(std::make_unique<QPdfWriter>(&buffer))
        , writer(*pdf)
    {
        buffer.open(QIODevice::WriteOnly);
        writer.setResolution(Dpi);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                         QMarginsF(edgeMm, edgeMm, edgeMm, edgeMm), QPageLayout::Millimeter));
    }
    // Pages in the file, finished by closing the writer.
    int pdfPages()
    {
        pdf.reset();
        const QByteArray data = buffer.data();
        return int(data.count("/Type /Page\n"));
    }
    QBuffer buffer;
    std::unique_ptr<QPdfWriter> pdf;
    QPdfWriter &writer;
};

void fillBoard(ScheduleDocument &doc, int scenes)
{
    AddElement(doc, QStringLiteral("Anna Bell"), 1, QStringLiteral("AB"));
    doc.elements[1].set(ElementField::PrintOnBoard, QStringLiteral("1"));
    for (int i = 1; i <= scenes; ++i) {
        AddScene(doc, QString::number(i), QStringLiteral("1"));
        if (i % 5 == 0)
            AddDivider(doc);
    }
    RecalculateDays(doc);
}

} // namespace

class TestBoardPrinting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pages_data()
    {
        Columns<int, int, bool, bool>("from", "to", "perforated", "everyHeader");
        // Printed at an overall scale of 150 %: kept on plain paper, 100 % after perforated stock.

        Row("one strip", 7, 7, false, false);
        Row("all, plain", 1, -1, false, false);
        Row("all, header on every page", 1, -1, false, true);
        Row("all, perforated", 1, -1, true, false);
        Row("range", 10, 50, true, false);
    }
    void pages()
    {
        auto [from, to, perforated, everyHeader] =
            Fetch<int, int, bool, bool>("from", "to", "perforated", "everyHeader");

        ScheduleDocument doc;
        fillBoard(doc, 60); // 72 strips
        doc.SelStart = doc.SelEnd = 3;
        BoardPrintOptions options;
        options.firstStrip = from;
        options.lastStrip = to;
        options.perforated = perforated;
        options.headerOnEveryPage = everyHeader;
        options.overallScale = 1.5;
        options.perfWidth = 9.6;
        Sheet sheet;
        const BoardPrintResult printed = PrintBoard(doc, BoardStyle(), options, sheet.writer);

        const int last = to < 0 ? doc.strips.count() : to;
        QVERIFY(printed.problem.isEmpty());
        QVERIFY(!printed.pages.isEmpty());
        QCOMPARE(printed.pages.first().firstStrip, from);
        QCOMPARE(printed.pages.last().lastStrip, last);
        for (int p = 1; p < printed.pages.size(); ++p)
            QCOMPARE(printed.pages.at(p).firstStrip, printed.pages.at(p - 1).lastStrip + 1);
        if (from == to)
            QCOMPARE(printed.pages.size(), 1);
        else
            QVERIFY(printed.pages.size() > 1);
        // Pages without the element column hold more strips (five strip widths more).
        if (!everyHeader && printed.pages.size() > 2) {
            const auto width = [&](int p) { return printed.pages.at(p).lastStrip - printed.pages.at(p).firstStrip; };
            QCOMPARE(width(1), width(0) + 5);
        }
        // Every page is followed by a new one, the last included.
        QCOMPARE(sheet.pdfPages(), int(printed.pages.size()) + 1);
        QCOMPARE(doc.SelStart, 0);
        QCOMPARE(printed.overallScale, perforated ? 1.0 : 1.5);
        // A strip is one perforated strip wide at 100 %.
        QCOMPARE(printed.scale, Dpi / 25.4 * 9.6 / 40 * printed.overallScale);
    }
    void perforatedMarginInsideTheEdge()
    {
        ScheduleDocument doc;
        fillBoard(doc, 10);
        BoardPrintOptions options;
        options.perforated = true;
        options.perfMargin = 5.2;
        options.perfWidth = 9.565;
        const double dotsPerMm = Dpi / 25.4;
        const int strip = qRound(40 * (dotsPerMm * 9.565 / 40));

        Sheet wide(4.0); // the margin lies beyond the edge
        QCOMPARE(PrintBoard(doc, BoardStyle(), options, wide.writer).left,
                 qRound(5.2 * dotsPerMm) - wide.writer.pageLayout().marginsPixels(Dpi).left());
        Sheet narrow(6.0); // the margin lies inside the edge: one strip further right
        const int offset = narrow.writer.pageLayout().marginsPixels(Dpi).left();
        QVERIFY(qRound(5.2 * dotsPerMm) < offset);
        QCOMPARE(PrintBoard(doc, BoardStyle(), options, narrow.writer).left, qRound(5.2 * dotsPerMm) - offset + strip);
    }
    void calibrationPage()
    {
        Sheet sheet(6.0);
        const CalibrationPageResult page = PrintCalibrationPage(5.2, 9.565, sheet.writer);
        const double dotsPerMm = Dpi / 25.4;
        QVERIFY(page.printed);
        QCOMPARE(page.stripWidth, qRound(9.565 * dotsPerMm));
        QCOMPARE(page.firstLeft,
                 qRound(5.2 * dotsPerMm) - sheet.writer.pageLayout().marginsPixels(Dpi).left() + page.stripWidth);
        QCOMPARE(page.strips, 28); // the strips that fit across 285 mm of printable width
        QCOMPARE(sheet.pdfPages(), 1);
    }
};

TB_TEST_MAIN(TestBoardPrinting)
#include "tst_boardprinting.moc"
