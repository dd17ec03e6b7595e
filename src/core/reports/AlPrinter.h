#pragma once

// The output side of the report engine: the printer wrapper TAlPrinter and the recorded
// preview page TDrawMetaFile.
//
// Every target is laid out at one resolution, LayoutDpi, whatever the device: a PDF
// writer, a printer or a preview page at screen resolution. The painter of each target
// maps those units onto its own dots. Band heights rounded at each device's own
// resolution would drift apart by a dot per band and break pages at different rows;
// laid out once at a common resolution, preview, PDF and paper break at the same rows.

#include "reports/AlReport.h"

#include <QList>
#include <QPainter>
#include <QPicture>
#include <QSize>

#include <functional>
#include <memory>

class QPagedPaintDevice;

namespace tb {

// What the engine needs to know of a printer, in the printer's own dots.
struct PrinterGeometry
{
    int dpiX = 1200;
    int dpiY = 1200;
    int offsetLeft = 0; // printing offsets: where the printable area starts on the sheet
    int offsetTop = 0;
    int physicalWidth = 0; // the whole sheet
    int physicalHeight = 0;
    int printableWidth = 0; // the printable area
    int printableHeight = 0;

    // Read from a device's page layout (its paint rectangle is the printable area).
    static PrinterGeometry fromDevice(const QPagedPaintDevice &device);
    // A sheet of the engine's paper size that is printable to its edges, as a PDF file is.
    static PrinterGeometry forPaper(tPapersize paper, TPrinterOrientation orientation, int dpi = 1200);
};

// One recorded preview page: a picture at screen resolution with a canvas to draw on.
class TDrawMetaFile
{
public:
    TDrawMetaFile(int width, int height)
        : Width(width)
        , Height(height)
    {}
    TDrawMetaFile(const TDrawMetaFile &) = delete;
    TDrawMetaFile &operator=(const TDrawMetaFile &) = delete;
    ~TDrawMetaFile() { Close(); }

    const int Width;
    const int Height;

    // The canvas records into the picture; scaled so that the engine draws in layout units.
    QPainter *Canvas();
    // Ends the recording; the picture is then ready to be shown or printed.
    void Close();
    const QPicture &picture() const { return m_picture; }

private:
    QPicture m_picture;
    std::unique_ptr<QPainter> m_painter;
};

class TAlPrinter
{
public:
    // The resolution every report is laid out at (see the top of this file).
    static constexpr int LayoutDpi = tb::LayoutDpi;
    // The resolution of preview pages: screen pixels per inch.
    static constexpr int ScreenPpi = 96;

    // One shared instance, made on first use; it lives for the rest of the run.
    static TAlPrinter &Instance();

    bool PreviewMode = true;
    QList<TDrawMetaFile *> *PreviewPages = nullptr;
    int CurrentPreviewPage = 0; // 0 = none yet
    // In output units (LayoutDpi): printing offsets, the unprintable right and bottom
    // margins, and the page the layout fills.
    int OffsetLeft = 0;
    int OffsetTop = 0;
    int MarginRight = 0;
    int MarginBottom = 0;
    int PageWidth = 0;
    int PageHeight = 0;
    int ResolutionX = LayoutDpi;
    int ResolutionY = LayoutDpi;
    // The printer's own size of a preview page, in screen pixels.
    QSize previewPageSize;

    // Sets up for real output on the device (a printer or a PDF writer).
    void SetupForPrinting(QPagedPaintDevice *device, std::function<void()> abortJob = {});
    // Sets up for preview pages of the printer described, appended to the list.
    void SetupForPreview(const PrinterGeometry &printer, QList<TDrawMetaFile *> *pages);

    // Real printer: starts the job. Preview: nothing.
    bool BeginDoc();
    // Real printer: the next sheet. Preview: closes the current page and appends a new one.
    bool NewPage();
    // Real printer: ends the job. Preview: closes the current page.
    void EndDoc();
    // Cancels a real job; preview pages made so far stay.
    void Abort();
    // Real printer: its canvas. Preview: the current page's canvas, made on demand.
    // Null when no canvas can be had ("AlPrinter could not assign the Canvas").
    QPainter *Canvas();
    int PageCount() const;

private:
    TAlPrinter() = default;
    void setupGeometry(const PrinterGeometry &g);

    QPagedPaintDevice *m_device = nullptr;
    std::function<void()> m_abortJob;
    std::unique_ptr<QPainter> m_painter;
    int m_devicePages = 0;
};

// Prints recorded preview pages a..b (1-based) onto a device: each page is stretched
// over the printable area and the printing offsets, so it lands where a direct print
// would have put it. Starts and ends the job. False when the device fails.
bool PrintRecordedPages(const QList<TDrawMetaFile *> &pages, QPagedPaintDevice &device, int first, int last);

} // namespace tb
