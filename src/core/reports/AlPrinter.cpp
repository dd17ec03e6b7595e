#include "reports/AlPrinter.h"

#include "reports/AlLayout.h"

#include <QPageLayout>
#include <QPagedPaintDevice>

#include <cmath>

#ifdef __GLIBC__
#endif

namespace tb {

namespace {

int toLayout(int dots, int dpi)
{
    return dpi > 0 ? int(std::lround(double(dots) * LayoutDpi / dpi)) : dots;
}

} // namespace

// ---- Printer geometry ----

PrinterGeometry PrinterGeometry::fromDevice(const QPagedPaintDevice &device)
{
    PrinterGeometry g;
    g.dpiX = device.logicalDpiX();
    g.dpiY = device.logicalDpiY();
    const QPageLayout layout = device.pageLayout();
    const QRect full = layout.fullRectPixels(g.dpiX);
    const QRect paint = layout.paintRectPixels(g.dpiX);
    g.offsetLeft = paint.left() - full.left();
    g.offsetTop = paint.top() - full.top();
    g.physicalWidth = full.width();
    g.physicalHeight = full.height();
    g.printableWidth = paint.width();
    g.printableHeight = paint.height();
    return g;
}

PrinterGeometry PrinterGeometry::forPaper(tPapersize paper, TPrinterOrientation orientation, int dpi)
{
    QSize mm = PaperSizeMM(paper);
    if (orientation == TPrinterOrientation::poLandscape)
        mm.transpose();
    PrinterGeometry g;
    g.dpiX = g.dpiY = dpi;
    g.physicalWidth = g.printableWidth = int(std::lround(mm.width() * dpi / 25.4));
    g.physicalHeight = g.printableHeight = int(std::lround(mm.height() * dpi / 25.4));
    return g;
}

// ---- Preview pages ----

QPainter *TDrawMetaFile::Canvas()
{
    if (!m_painter) {
        m_painter = std::make_unique<QPainter>();
        if (!m_painter->begin(&m_picture)) {
            m_painter.reset();
            return nullptr;
        }
        // The engine draws in layout units; the page records them at screen resolution.
        const double scale = double(TAlPrinter::ScreenPpi) / TAlPrinter::LayoutDpi;
        m_painter->scale(scale, scale);
        m_painter->setRenderHint(QPainter::Antialiasing);
        m_painter->setRenderHint(QPainter::TextAntialiasing);
    }
    return m_painter.get();
}

void TDrawMetaFile::Close()
{
    if (m_painter) {
        m_painter->end();
        m_painter.reset();
        m_picture.setBoundingRect(QRect(0, 0, Width, Height));
    }
}

// ---- The printer wrapper ----

TAlPrinter &TAlPrinter::Instance()
{
    static TAlPrinter *instance = new TAlPrinter; // lives for the rest of the run
    return *instance;
}

void TAlPrinter::setupGeometry(const PrinterGeometry &g)
{
    ResolutionX = ResolutionY = LayoutDpi;
    if (PreviewMode) {
        // A preview page is the whole printable area with the offsets, at screen resolution.
        previewPageSize = QSize(int(std::lround(double(g.printableWidth + g.offsetLeft) * ScreenPpi / g.dpiX)),
                                int(std::lround(double(g.printableHeight + g.offsetTop) * ScreenPpi / g.dpiY)));
        PageWidth = toLayout(g.printableWidth + g.offsetLeft, g.dpiX);
        PageHeight = toLayout(g.printableHeight + g.offsetTop, g.dpiY);
        OffsetLeft = OffsetTop = MarginRight = MarginBottom = 0;
    } else {
        OffsetLeft = toLayout(g.offsetLeft, g.dpiX);
        OffsetTop = toLayout(g.offsetTop, g.dpiY);
        MarginRight = toLayout(g.physicalWidth - g.offsetLeft - g.printableWidth, g.dpiX);
        MarginBottom = toLayout(g.physicalHeight - g.offsetTop - g.printableHeight, g.dpiY);
        PageWidth = toLayout(g.printableWidth, g.dpiX);
        PageHeight = toLayout(g.printableHeight, g.dpiY);
    }
}

void TAlPrinter::SetupForPrinting(QPagedPaintDevice *device, std::function<void()> abortJob)
{
    m_painter.reset();
    PreviewMode = false;
    PreviewPages = nullptr;
    CurrentPreviewPage = 0;
    m_device = device;
    m_abortJob = std::move(abortJob);
    m_devicePages = 0;
    setupGeometry(PrinterGeometry::fromDevice(*device));
}

void TAlPrinter::SetupForPreview(const PrinterGeometry &printer, QList<TDrawMetaFile *> *pages)
{
    m_painter.reset();
    PreviewMode = true;
    PreviewPages = pages;
    CurrentPreviewPage = 0;
    m_device = nullptr;
    m_abortJob = nullptr;
    setupGeometry(printer);
}

bool TAlPrinter::BeginDoc()
{
    if (PreviewMode)
        return true;
    m_painter = std::make_unique<QPainter>();
    if (!m_device || !m_painter->begin(m_device)) {
        m_painter.reset();
        return false;
    }
    m_painter->scale(double(m_device->logicalDpiX()) / LayoutDpi, double(m_device->logicalDpiY()) / LayoutDpi);
    m_painter->setRenderHint(QPainter::Antialiasing);
    m_devicePages = 1;
    return true;
}

bool TAlPrinter::NewPage()
{
    if (!PreviewMode) {
        if (!m_device || !m_device->newPage())
            return false;
        ++m_devicePages;
        return true;
    }
    if (!PreviewPages)
        return false;
    if (CurrentPreviewPage > 0 && CurrentPreviewPage <= PreviewPages->size())
        PreviewPages->at(CurrentPreviewPage - 1)->Close();
    PreviewPages->append(new TDrawMetaFile(previewPageSize.width(), previewPageSize.height()));
    CurrentPreviewPage = int(PreviewPages->size());
    return true;
}

void TAlPrinter::EndDoc()
{
    if (!PreviewMode) {
        if (m_painter)
            m_painter->end();
        m_painter.reset();
        return;
    }
    if (PreviewPages && CurrentPreviewPage > 0 && CurrentPreviewPage <= PreviewPages->size())
        PreviewPages->at(CurrentPreviewPage - 1)->Close();
}

void TAlPrinter::Abort()
{
    if (PreviewMode) {
        EndDoc();
        return;
    }
    if (m_abortJob)
        m_abortJob();
    if (m_painter && m_painter->isActive())
        m_painter->end();
    m_painter.reset();
}

QPainter *TAlPrinter::Canvas()
{
    if (!PreviewMode)
        return m_painter.get();
    if (!PreviewPages)
        return nullptr;
    if (CurrentPreviewPage == 0 && !NewPage())
        return nullptr;
    return PreviewPages->at(CurrentPreviewPage - 1)->Canvas();
}

int TAlPrinter::PageCount() const
{
    if (PreviewMode)
        return PreviewPages ? int(PreviewPages->size()) : 0;
    return m_devicePages;
}

// ---- Printing and preview runs of a report ----

namespace {

// Opens the progress box for a run and closes it at the end.
class ProgressBoxRun
{
public:
    ProgressBoxRun(ReportProgressBox *box, const QString &caption, bool cancelVisible)
        : m_box(box)
    {
        if (m_box) {
            m_box->open(QStringLiteral("Processing..."), QStringLiteral("Initializing..."), cancelVisible);
            m_box->setCaption(caption);
        }
    }
    ~ProgressBoxRun()
    {
        if (m_box)
            m_box->close();
    }
    bool cancelled() { return m_box && m_box->keepAlive(); }

private:
    ReportProgressBox *m_box;
};

} // namespace

Result TAlReport::Print(QPagedPaintDevice &device, const std::function<void()> &abortJob)
{
    TAlPrinter &printer = TAlPrinter::Instance();
    printer.SetupForPrinting(&device, abortJob);
    ProgressBoxRun box(progressBox, QStringLiteral("Printing..."), true);
    const LayoutPage page{printer.PageWidth, printer.PageHeight, printer.OffsetLeft, printer.OffsetTop, false};
    const ReportLayout layout = LayOutReport(*this, page);
    if (layout.cancelled) {
        printer.Abort();
        return Result::failure(QStringLiteral("Printing was cancelled."));
    }
    if (!printer.BeginDoc())
        return Result::failure(QStringLiteral("The printer could not start the print job."));
    for (qsizetype i = 0; i < layout.pages.size(); ++i) {
        if (i > 0 && !printer.NewPage()) {
            printer.Abort();
            return Result::failure(QStringLiteral("The printer could not start a new page."));
        }
        PaintPage(*printer.Canvas(), layout.pages.at(i));
        if (box.cancelled() || cancelled) {
            printer.Abort();
            return Result::failure(QStringLiteral("Printing was cancelled."));
        }
    }
    printer.EndDoc();
    return Result::success();
}

Result TAlReport::PreparePreview(QList<TDrawMetaFile *> &pages, const PrinterGeometry &geometry)
{
    TAlPrinter &printer = TAlPrinter::Instance();
    printer.SetupForPreview(geometry, &pages);
    ProgressBoxRun box(progressBox, QStringLiteral("Preparing Preview..."), false);
    const LayoutPage page{printer.PageWidth, printer.PageHeight, 0, 0, true};
    const ReportLayout layout = LayOutReport(*this, page);
    // A cancelled preview keeps the pages made so far.
    for (qsizetype i = 0; i < layout.pages.size(); ++i) {
        if (i > 0)
            printer.NewPage();
        QPainter *canvas = printer.Canvas();
        if (!canvas)
            return Result::failure(QStringLiteral("AlPrinter could not assign the Canvas"));
        PaintPage(*canvas, layout.pages.at(i));
    }
    printer.EndDoc();
    return Result::success();
}

bool PrintRecordedPages(const QList<TDrawMetaFile *> &pages, QPagedPaintDevice &device, int first, int last)
{
    first = std::max(first, 1);
    last = std::min<int>(last, int(pages.size()));
    if (first > last)
        return true;
    const PrinterGeometry g = PrinterGeometry::fromDevice(device);
    // A recorded page covers the printable area and the offsets: it is drawn shifted back
    // by them, into (-left, -top) .. (printable width - 1, printable height - 1).
    const QRectF target(QPointF(-g.offsetLeft, -g.offsetTop), QPointF(g.printableWidth - 1, g.printableHeight - 1));
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    painter.setRenderHint(QPainter::Antialiasing);
    for (int p = first; p <= last; ++p) {
        if (p > first && !device.newPage()) {
            painter.end();
            return false;
        }
        const TDrawMetaFile &page = *pages.at(p - 1);
        painter.save();
        painter.translate(target.topLeft());
        painter.scale(target.width() / std::max(1, page.Width), target.height() / std::max(1, page.Height));
        painter.drawPicture(0, 0, page.picture());
        painter.restore();
    }
    return painter.end();
}

} // namespace tb
