// The layout run on small templates written here: which bands land on which page, where,
// and what their fields show.

#include "TestSupport.h"

#include "document/LegacyText.h"
#include "reports/AlLayout.h"
#include "reports/AlPrinter.h"
#include "reports/AlReport.h"
#include "reports/DfmParser.h"
#include "reports/ReportOutput.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QPdfWriter>

using namespace tb;
using namespace tb::test;

namespace {

using L = QStringList;
using Places = QList<QPoint>;

// Design heights and their output heights at 96 ppi and 1200 dpi: v x 12.5 + 0.5, ties to even.
constexpr int H10 = 126; // 125.5 -> 126
constexpr int H20 = 250; // 250.5 -> 250
constexpr int H30 = 376; // 375.5 -> 376

QString band(const QString &name, int top, int height, const QString &type, const QString &extra = {},
             const QString &children = {})
{
    return QStringLiteral("  object %1: tAlBand\n    Top = %2\n    Width = 500\n    Height = %3\n"
                          "    BandType = %4\n%5%6  end\n")
        .arg(name, QString::number(top), QString::number(height), type, extra, children);
}

QString fieldOn(const QString &name, int left = 0, int top = 0, const QString &extra = {})
{
    return QStringLiteral("    object %1: TAlField\n      Left = %2\n      Top = %3\n      Width = 100\n"
                          "      Height = 14\n%4    end\n")
        .arg(name, QString::number(left), QString::number(top), extra);
}

std::unique_ptr<ReportForm> makeForm(const QString &bands)
{
    ResultOf<DfmObject> parsed =
        ParseDfmText("object F: TForm\n  object R: TAlReport\n  end\n" + bands + "end\n", "t.dfm");
    auto built = parsed ? BuildReportForm(parsed.value(), "t.dfm") : Result::failure(parsed.message());
    if (!built)
        qWarning() << built.message();
    return built ? std::move(built.value()) : nullptr;
}

// The bands of each page by name, e.g. "Head Col D D | Head Col D Foot".
QString bandNames(const ReportLayout &layout)
{
    QStringList pages;
    for (const LaidOutPage &page : layout.pages) {
        QStringList names;
        for (const PlacedBand &b : page.bands)
            names.append(b.band->Name);
        pages.append(names.join(u' '));
    }
    return pages.join(QStringLiteral(" | "));
}

const PlacedControl *controlOf(const PlacedBand &band, const QString &name)
{
    for (const PlacedControl &pc : band.controls)
        if (pc.control->Name == name)
            return &pc;
    return nullptr;
}

LayoutPage pageOf(int height)
{
    return {10000, height};
}

// Pushes values by a short description: "N*3" pushes 1, 2, 3 to N; "Day=a,b" pushes a and
// b to Day; several are separated by ";".
void pushValues(TAlReport &report, const QString &values)
{
    for (const QString &part : values.split(u';', Qt::SkipEmptyParts)) {
        const qsizetype star = part.indexOf(u'*');
        if (star > 0) {
            for (int i = 1; i <= part.mid(star + 1).toInt(); ++i)
                report.AddNamedValue(part.left(star), QString::number(i));
        } else {
            const qsizetype eq = part.indexOf(u'=');
            for (const QString &value : part.mid(eq + 1).split(u','))
                report.AddNamedValue(part.left(eq), value);
        }
    }
}

// Page header, column titles, detail rows and a page footer.
QString pagedBands()
{
    return band("Head", 0, 20, "alr_PageHeader") + band("Col", 20, 10, "alr_DetailHeader") +
           band("D", 30, 30, "alr_Detail", {}, fieldOn("N")) + band("Foot", 60, 10, "alr_PageFooter");
}

// Day groups around the detail rows, headed by column titles.
QString groupBands(bool withFooter)
{
    return band("Col", 0, 10, "alr_DetailHeader") + band("D", 10, 30, "alr_Detail", {}, fieldOn("N")) +
           band("GH", 100, 10, "alr_GroupHeader", {}, fieldOn("Day")) +
           (withFooter ? band("GF", 110, 10, "alr_GroupFooter", {}, fieldOn("DayEnd")) : QString()) +
           "  object L: TAlDetailLink\n    GroupHeader = GH\n" + (withFooter ? "    GroupFooter = GF\n" : "") +
           "    GroupBand = D\n    DataSource = Day\n  end\n";
}

// A template laid out with its values, kept together as the layout points into the form.
struct Laid
{
    std::unique_ptr<ReportForm> form;
    ReportLayout layout;
};

Laid layOut(const QString &bands, const QString &values, int height)
{
    Laid laid{makeForm(bands), {}};
    if (laid.form) {
        pushValues(*laid.form->report, values);
        laid.layout = LayOutReport(*laid.form->report, pageOf(height));
    }
    return laid;
}

} // namespace

class TestAlLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scaling_data()
    {
        Columns<int, int, int>("design", "dpi", "expected");
        // The half added before rounding leans values upward; ties go to the even neighbour.
        // The heights at 1200 dpi are the layouts' H10, H20 and H30.
        Row("1 at screen", 1, 96, 2);
        Row("2 at screen", 2, 96, 2);
        Row("3 at screen", 3, 96, 4);
        Row("11 at 600", 11, 600, 69);
        Row("0", 0, 600, 0);
    }
    void scaling()
    {
        auto [design, dpi] = Fetch<int, int>("design", "dpi");
        QTEST(ScaleToOutput(design, dpi, 96), "expected");
        QCOMPARE(MillimetresToDots(25.4, 1200), 1200); // 1200.5 rounds to the even 1200
        QCOMPARE(MillimetresToDots(10, 600), 237);     // 236.7 + 0.5
    }
    void bandsOnPages_data()
    {
        // pages: the bands of each page by name
        // texts: the control ("band.control"), then what it shows in each of the band's rows, "-"
        // where the row lacks it
        // places: the top-left corners of the first bands of the last page
        Columns<QString, QString, int, QString, QStringList, Places>("bands", "values", "height", "pages", "texts",
                                                                     "places");
        const QString detail = band("D", 0, 20, "alr_Detail", {}, fieldOn("N"));
        Row("detail without values prints once", detail, "", 10000, "D", L{"D.N", ""}, Places{});
        // A detail row repeats while any field has a value.
        Row("detail rows take their values", band("D", 0, 20, "alr_Detail", {}, fieldOn("A") + fieldOn("B", 200)),
            "A*2;B*4", 10000, "D D D D", L{"D.A", "1", "2", "", ""},
            Places{{0, 0}, {0, H20}, {0, 2 * H20}, {0, 3 * H20}});
        // Room for the header, the column titles, three rows and the footer, exactly; the
        // footer sits at the usable bottom.
        const int paged = H20 + H10 + 3 * H30 + H10 + 1;
        Row("page breaks repeat detail headers", pagedBands(), "N*10", paged,
            "Head Col D D D Foot | Head Col D D D Foot | Head Col D D D Foot | Head Col D Foot",
            L{"D.N", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"},
            Places{{0, 0}, {0, H20}, {0, H20 + H10}, {0, paged - 1 - H10}});
        Row("title and footer only", band("Title", 0, 20, "alr_Title") + band("Foot", 40, 10, "alr_PageFooter"), "",
            5000, "Title Foot", L{}, Places{});
        // Footers stack upward from the usable bottom.
        Row("footers stack", detail + band("Foot1", 40, 10, "alr_PageFooter") + band("Foot2", 50, 20, "alr_PageFooter"),
            "N*1", 5000, "D Foot1 Foot2", L{}, Places{{0, 0}, {0, 5000 - 1 - H10 - H20}, {0, 5000 - 1 - H20}});
        Row("footers alone make a page", band("Foot", 40, 10, "alr_PageFooter"), "", 5000, "Foot", L{}, Places{});
        Row("first and later page headers",
            band("First", 0, 10, "alr_PageHeader", "    FirstPageHeaderOnly = True\n") +
                band("Later", 10, 10, "alr_PageHeader", "    NotFirstPageHeader = True\n") +
                band("Every", 20, 10, "alr_PageHeader") +
                band("Off", 25, 10, "alr_PageHeader", "    Enabled = False\n") +
                band("D", 30, 30, "alr_Detail", {}, fieldOn("N")),
            "N*3", 2 * H10 + 2 * H30 + 1, "First Every D D | Later Every D", L{}, Places{});
        Row("new page band",
            band("Title", 0, 10, "alr_Title") + band("Break", 10, 10, "alr_NewPage") +
                band("D", 20, 10, "alr_Detail", {}, fieldOn("N")) + band("Foot", 40, 10, "alr_PageFooter") +
                band("Closing", 30, 10, "alr_ReportFooter"),
            "N*2", 5000, "Title Foot | D D Closing Foot", L{}, Places{});
        // Each row is taller than what is left below the header: it starts a new page and is
        // drawn there anyway, once, rather than asking for pages for ever.
        Row("too tall band still prints",
            band("Head", 0, 20, "alr_PageHeader") + band("D", 20, 30, "alr_Detail", {}, fieldOn("N")), "N*2",
            H20 + H30 / 2, "Head D | Head D", L{}, Places{});
        // Detail rows fill the columns left to right; another band type draws the same
        // content in each column, at one height.
        const int step = MillimetresToDots(20, 1200);
        Row("columns fill left to right",
            band("D", 0, 20, "alr_Detail", "    Columns = 3\n    ColWidthMM = 20\n", fieldOn("N")) +
                band("Foot", 40, 10, "alr_ReportFooter", "    Columns = 2\n    ColWidthMM = 20\n"),
            "N*4", 5000, "D D D D Foot Foot", L{},
            Places{{0, 0}, {step, 0}, {2 * step, 0}, {0, H20}, {0, 2 * H20}, {step, 2 * H20}});
        // The group bands show the row that opens or closes the group.
        const QString days = "N*5;Day=Day 1,Day 1,Day 2,Day 3,Day 3;DayEnd=E1,E1,E2,E3,E3";
        Row("group breaks through a detail link", groupBands(true), days, 10000, "Col GH D D GF GH D GF GH D D GF",
            L{"GH.Day", "Day 1", "Day 2", "Day 3"},
            Places{{0, 0}, {0, H10}, {0, 2 * H10}, {0, 2 * H10 + H30}, {0, 2 * H10 + 2 * H30}});
        Row("group footers show the closing row", groupBands(true), days, 10000, "Col GH D D GF GH D GF GH D D GF",
            L{"GF.DayEnd", "E1", "E2", "E3"}, Places{});
        // Column titles, the group header and two rows per page; the repeated group header
        // shows the group's row again.
        Row("group header repeats on a new page", groupBands(false), "N*5;Day=Day 1,Day 1,Day 1,Day 1,Day 2",
            2 * H10 + 2 * H30 + 1, "Col GH D D | Col GH D D | Col GH D", L{"GH.Day", "Day 1", "Day 1", "Day 2"},
            Places{});
        // Room for two rows but not for the footer after the second: the second row goes to
        // the next page with its footer, rather than leave a footer alone there.
        Row("last row keeps its group footer", groupBands(true), "N*2;Day=Day 1,Day 1", 2 * H10 + 2 * H30 + 1,
            "Col GH D | Col GH D GF", L{}, Places{});
        // Two rows a page: three pages, each knowing the total.
        Row("page of pages",
            detail + band("Foot", 40, 20, "alr_PageFooter", {},
                          "    object P: TAlSysField\n      DataType = alr_PageOfPages\n    end\n"),
            "N*5", H20 * 3 + 1, "D D Foot | D D Foot | D Foot",
            L{"Foot.P", "Page 1 of 3", "Page 2 of 3", "Page 3 of 3"}, Places{});
        Row("labels for blank fields are left out",
            band("D", 0, 20, "alr_Detail", {},
                 fieldOn("Dir", 100) + "    object DirLabel: TAlLabel\n      Caption = 'Director'\n"
                                       "      LabelFor = Dir\n    end\n"),
            "Dir=Ann, ,Bo", 10000, "D D D", L{"D.DirLabel", "Director", "-", "Director"}, Places{});
    }
    void bandsOnPages()
    {
        auto [bands, values, height, pages, texts, places] = Fetch<QString, QString, int, QString, QStringList, Places>(
            "bands", "values", "height", "pages", "texts", "places");
        const Laid laid = layOut(bands, values, height);
        QVERIFY(laid.form);
        QCOMPARE(bandNames(laid.layout), pages);
        const QString control = texts.value(0);
        QStringList shown{control};
        int detailRows = 0;
        for (const LaidOutPage &page : laid.layout.pages) {
            for (const PlacedBand &b : page.bands) {
                if (b.band->BandType == tAlBandType::alr_Detail)
                    QCOMPARE(b.row, detailRows++); // detail rows are numbered from 0
                if (b.band->Name == control.section(u'.', 0, 0)) {
                    const PlacedControl *c = controlOf(b, control.section(u'.', 1));
                    shown.append(c ? c->text : QStringLiteral("-"));
                    if (c && c->text.isEmpty())
                        QVERIFY(c->lines.isEmpty());
                }
            }
        }
        if (!texts.isEmpty())
            QCOMPARE(shown, texts);
        Places corners;
        for (const PlacedBand &b : laid.layout.pages.last().bands.mid(0, places.size()))
            corners.append(b.rect.topLeft());
        QCOMPARE(corners, places);
        // A second run starts again from the first values.
        QCOMPARE(bandNames(LayOutReport(*laid.form->report, pageOf(height))), pages);
    }
    void sameNameFieldsOnlyFirstReceives()
    {
        auto form = makeForm(band("D", 0, 20, "alr_Detail", {}, fieldOn("Name") + fieldOn("NAME", 200)));
        QVERIFY(form);
        TAlReport &report = *form->report;
        QStringList trace;
        report.DebugTrace = true;
        report.OnTrace = [&](const QString &line) { trace.append(line); };
        report.AddNamedValue(QStringLiteral("name"), QStringLiteral("first"));
        report.AddNamedValue(QStringLiteral("Missing"), QStringLiteral("lost"));
        report.DebugTrace = false;
        report.AddNamedValue(QStringLiteral("Missing"), QStringLiteral("silent"));
        QCOMPARE(trace, QStringList({"AddNamedValue(name) = first", "AlField Missing = not found for value: lost"}));
        const auto fields = form->fields();
        QCOMPARE(fields[0]->values, QStringList{"first"});
        QVERIFY(fields[1]->values.isEmpty());
    }
    void marginsAndPrinterOffsets()
    {
        auto form =
            makeForm(band("Head", 0, 20, "alr_PageHeader", {}, fieldOn("T", 10, 5)) + band("D", 20, 20, "alr_Detail"));
        QVERIFY(form);
        form->report->LeftMarginMM = 10;
        LayoutPage page = pageOf(5000);
        page.offsetLeft = 100;
        page.offsetTop = 80;
        const ReportLayout layout = LayOutReport(*form->report, page);
        const PlacedBand &head = layout.pages[0].bands[0];
        // The margin counts from the sheet's edge and the first band from the sheet's top,
        // both given in the printer's coordinates, which start at its offsets.
        const int left = MillimetresToDots(10, 1200) - 100;
        QCOMPARE(head.rect.topLeft(), QPoint(left, -80));
        QCOMPARE(controlOf(head, "T")->rect.topLeft(),
                 QPoint(left + ScaleToOutput(10, 1200, 96), -80 + ScaleToOutput(5, 1200, 96)));
    }
    void expandGrowsTheBand()
    {
        const QString wrap = QStringLiteral("      AutoSize = False\n      WordWrap = True\n");
        auto form = makeForm(band("D", 0, 50, "alr_Detail", "    ClipMode = cm_Expand\n",
                                  fieldOn("Lines", 0, 2, wrap) + fieldOn("Below", 0, 18, wrap) +
                                      fieldOn("Beside", 200, 18, wrap) +
                                      QStringLiteral("    object Rule: TAlShape\n      Top = 49\n      Width = 500\n"
                                                     "      Height = 1\n    end\n"
                                                     "    object Box: TAlShape\n      Top = 0\n      Width = 10\n"
                                                     "      Height = 50\n    end\n")));
        QVERIFY(form);
        pushValues(*form->report, "Lines=one,one\r\ntwo\r\nthree\r\nfour\r\n;Below=under,under;Beside=beside,beside");
        const ReportLayout layout = LayOutReport(*form->report, pageOf(10000)); // b points into it
        const auto &b = layout.pages[0].bands;
        const int h50 = ScaleToOutput(50, 1200, 96);
        QCOMPARE(b[0].rect.height(), h50);
        QCOMPARE(b[1].rect.top(), h50);
        const int lh = int(std::ceil(static_cast<const TAlLabel *>(form->find("Lines"))->metrics().lineSpacing()));
        const int grown = 4 * lh - ScaleToOutput(14, 1200, 96);
        QCOMPARE(b[1].rect.height(), h50 + grown);
        QVERIFY(!controlOf(b[1], "Lines")->clipped);
        // The field below moves down by what the one above grew; the one beside stays.
        QCOMPARE(controlOf(b[1], "Below")->rect.top(), h50 + ScaleToOutput(18, 1200, 96) + grown);
        QCOMPARE(controlOf(b[1], "Beside")->rect.top(), h50 + ScaleToOutput(18, 1200, 96));
        // The rule at the bottom moves down with the band, the box from the top stretches.
        QCOMPARE(controlOf(b[1], "Rule")->rect.bottom(), b[1].rect.bottom());
        QCOMPARE(controlOf(b[1], "Box")->rect.top(), b[1].rect.top());
        QCOMPARE(controlOf(b[1], "Box")->rect.bottom(), b[1].rect.bottom());
    }
    void clipModes()
    {
        const QString field = fieldOn("Text", 0, 0, "      AutoSize = False\n      WordWrap = True\n");
        const QString text = "Text=a text much too long for a field one hundred pixels wide and one line high";
        const Laid clip = layOut(band("D", 0, 20, "alr_Detail", {}, field), text, 5000);
        const PlacedControl *c = controlOf(clip.layout.pages[0].bands[0], "Text");
        // Never cut silently: the line that fits ends in an ellipsis.
        QCOMPARE(c->lines.size(), 1);
        QVERIFY(c->cut);
        QVERIFY(c->lines.first().text.endsWith(QChar(0x2026)));
        QVERIFY(c->clipped);
        QCOMPARE(c->clip, c->rect);
        const Laid over = layOut(band("D", 0, 20, "alr_Detail", "    ClipMode = cm_Overwrite\n", field), text, 5000);
        QVERIFY(!controlOf(over.layout.pages[0].bands[0], "Text")->clipped);
        QCOMPARE(over.layout.pages[0].bands[0].rect.height(), H20); // the band keeps its height
    }
    void systemFields()
    {
        const QString sys =
            QStringLiteral("    object S%1: TAlSysField\n      Top = %2\n      DataType = %1\n    end\n");
        auto form = makeForm(band("D", 0, 20, "alr_Detail", {}, fieldOn("N")) +
                             band("Foot", 40, 80, "alr_PageFooter", {},
                                  sys.arg("alr_PageNum").arg(0) + sys.arg("alr_Counter").arg(14) +
                                      sys.arg("alr_Count").arg(28) + sys.arg("alr_Date").arg(42)));
        QVERIFY(form);
        TAlReport &report = *form->report;
        report.now = QDateTime(QDate(2027, 4, 5), QTime(9, 30));
        pushValues(report, "N*3");
        const ReportLayout layout = LayOutReport(report, pageOf(H20 * 2 + ScaleToOutput(80, 1200, 96) + 1));
        QCOMPARE(layout.pages.size(), 2);
        QStringList texts;
        for (const PlacedControl &c : layout.pages[1].bands.last().controls)
            texts.append(c.text);
        QCOMPARE(texts, QStringList({"2", "3", "3", legacy::FormatDate(QDate(2027, 4, 5), legacy::ShortDatePattern)}));
    }
    void printingFamilyHasABoldFace_data()
    {
        QTest::addColumn<QString>("family");
        Row("the templates' Arial", "Arial");
        Row("a family no system has", "Quillbrook Grotesque Nonesuch");
    }
    void printingFamilyHasABoldFace()
    {
        // Whatever a template names, the text prints in a family with a bold face of its own,
        // so that bold texts keep to the widths they were measured at.
        QFETCH(QString, family);
        const QString used = QFontInfo(QFont(PrintingFamily(family))).family();
        QVERIFY2(QFontDatabase::styles(used).contains(QStringLiteral("Bold"), Qt::CaseInsensitive), qPrintable(used));
    }
    void textLines_data()
    {
        Columns<QString, double, QStringList>("text", "width", "lines");
        Row("empty", "", 0.0, QStringList());
        Row("line breaks", "a\r\nb\rc\nd", 0.0, QStringList{"a", "b", "c", "d"});
        Row("one break at the end", "a\r\nb\r\n", 0.0, QStringList{"a", "b"});
        Row("blank lines at the end", "a\r\n \r\n", 0.0, QStringList{"a"});
        Row("blank lines inside", "a\r\n\r\nb", 0.0, QStringList{"a", "", "b"});
        Row("only a blank", " ", 0.0, QStringList());
        Row("wrapped with indent", "    aaa bbb ccc", 9.0, QStringList{"    aaa", "    bbb", "    ccc"});
        Row("long word stays whole", "aaaaaaaaaaaa b", 5.0, QStringList{"aaaaaaaaaaaa", "b"});
    }
    void textLines()
    {
        auto [text, width] = Fetch<QString, double>("text", "width");
        QFont font(QStringLiteral("Liberation Mono"));
        font.setPixelSize(10);
        const QFontMetricsF metrics(font);
        // Widths are given in characters of the fixed-pitch font.
        QTEST(BreakTextLines(text, font, width * metrics.horizontalAdvance(u'x')), "lines");
    }
    void previewAndPrintBreakAlikeAndPdfsAreWhole()
    {
        auto form =
            makeForm(band("Head", 0, 40, "alr_PageHeader") + band("Col", 40, 12, "alr_DetailHeader") +
                     band("D", 52, 17, "alr_Detail", {}, fieldOn("N")) + band("Foot", 70, 23, "alr_PageFooter"));
        QVERIFY(form);
        pushValues(*form->report, "N*400");
        // A printer with unprintable borders, as a PDF writer with margins stands for one.
        const QString path = TempPath("breaks.pdf");
        QPdfWriter writer(path);
        writer.setResolution(600);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(4.2, 5.1, 3.3, 6.4),
                                         QPageLayout::Millimeter));
        QVERIFY(form->report->Print(writer).ok());
        const int printed = TAlPrinter::Instance().PageCount();
        QList<TDrawMetaFile *> pages;
        QVERIFY(form->report->PreparePreview(pages, PrinterGeometry::fromDevice(writer)).ok());
        QCOMPARE(int(pages.size()), printed);
        QVERIFY2(printed > 5, qPrintable(QString::number(printed)));
        // A preview page is the printable area with the offsets, at screen resolution.
        QVERIFY(qAbs(pages.first()->Width - qRound((210 - 3.3) / 25.4 * 96)) <= 1);
        QVERIFY(qAbs(pages.first()->Height - qRound((297 - 6.4) / 25.4 * 96)) <= 1);
        QVERIFY(!pages.first()->picture().isNull());
        qDeleteAll(pages);

        // A PDF file is written whole or not at all.
        const QString pdf = TempPath("report.pdf");
        QVERIFY(WriteReportPdf(*form->report, pdf, tPapersize::alr_Letter).ok());
        const QByteArray before = ReadFileBytes(pdf);
        QVERIFY(before.startsWith("%PDF"));
        // A cancelled run leaves the earlier file as it was.
        class Cancelling : public ReportProgressBox
        {
        public:
            void open(const QString &, const QString &, bool) override {}
            void setCaption(const QString &) override {}
            void setLabel(const QString &) override {}
            bool keepAlive() override { return true; }
            void close() override {}
        } box;
        form->report->progressBox = &box;
        QVERIFY(!WriteReportPdf(*form->report, pdf).ok());
        QCOMPARE(ReadFileBytes(pdf), before);
        QVERIFY(!WriteReportPdf(*form->report, TempPath("no/such/folder/x.pdf")).ok());
    }
};

TB_TEST_MAIN(TestAlLayout)
#include "tst_allayout.moc"
