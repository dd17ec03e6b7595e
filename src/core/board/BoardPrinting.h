#pragma once

// Printing the production board, on plain paper or on perforated strip stock: the
// page loop that has the board drawing fill page after page.

#include "board/BoardStyle.h"

#include "document/Result.h"

#include <QDateTime>
#include <QList>
#include <QString>

class QPagedPaintDevice;

namespace tb {

class ScheduleDocument;
class Settings;

// The perforated stock setup's defaults: the margin, and the width of ten strips.
inline constexpr double DefaultPerfMargin = 5.2;
inline constexpr double DefaultTenPerfStrips = 95.65;

// OK in the perforated stock setup: the margin and a tenth of the width of ten strips
// become the settings and are written to the settings file.
Result StorePerforatedStock(Settings &settings, double marginMm, double tenStripsMm);

// What the print dialog gathers.
struct BoardPrintOptions
{
    // The range of strips; lastStrip -1 prints through the last strip.
    int firstStrip = 1;
    int lastStrip = -1;
    // Perforated strip stock: the left margin up to the first strip and the width of
    // one strip, in millimetres.
    bool perforated = false;
    double perfMargin = 5.4;
    double perfWidth = 9.6;
    // Plain paper headers: the date and time at the top left, "Page n" at the right.
    bool showDate = true;
    bool showPageNumber = true;
    // The board header (header band and element column) on every page, not only the
    // first.
    bool headerOnEveryPage = false;
    bool blackAndWhite = false;
    // The overall scale (1.0 = 100 %), which the program keeps for the whole run.
    double overallScale = 1.0;
    // The width of one strip on the screen, in screen pixels, that is scaled to one
    // perforated strip. It is the width at 100 % whatever the board's zoom: taking the
    // zoomed width, as the program once did, printed strips off the perforations
    // whenever the board was zoomed.
    int screenStripWidth = 40;
    // The date and time the plain paper header shows.
    QDateTime printed = QDateTime::currentDateTime();
};

// The strips one printed page holds.
struct PrintedBoardPage
{
    int firstStrip = 0;
    int lastStrip = 0;
};

struct BoardPrintResult
{
    QList<PrintedBoardPage> pages;
    // The board's left edge and top on the page, in device dots.
    int left = 0;
    int top = 0;
    // The drawing scale used.
    double scale = 1.0;
    // The overall scale after printing: 100 % after perforated stock, else as it was.
    double overallScale = 1.0;
    // Set when a page could not hold a single strip; the printing stops there.
    QString problem;
};

// The title of a board print job: "Torvanbridge - " and the document's name.
QString BoardPrintJobTitle(const ScheduleDocument &doc);

// The "Only strip :" entry of a strip: a scene as its scene number, two blanks and
// its location; a divider, rest day or banner as "Divider  ", "Rest  " or "Banner  "
// and its location field.
QString BoardRangeEntry(const ScheduleDocument &doc, int strip);

// Prints the board onto the device, whose first page is the current one. The board
// is scaled so that a strip is one perforated strip wide at the overall scale of 100 %;
// printing on perforated stock sets the overall scale to 100 % (the result's
// overallScale), which the caller keeps for the rest of the run. The printing clears the board's selection.
BoardPrintResult PrintBoard(ScheduleDocument &doc, const BoardStyle &style, const BoardPrintOptions &options,
                            QPagedPaintDevice &device);

} // namespace tb
