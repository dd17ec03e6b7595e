#pragma once

#include "board/BoardGeometry.h"
#include "board/BoardStyle.h"

#include "document/ScheduleDocument.h"

#include <QColor>
#include <QString>

#include <QHash>

#include <memory>
#include <optional>

class QFont;
class QPainter;

namespace tb {

struct FontTexts;

// Texts laid out by earlier drawings (widths, glyph layouts, shortened description
// lines), kept by a caller that draws the same board again and again. A board is
// redrawn with the same texts on every paint; shaping them anew each time would cost
// more than all the rest of the drawing.
class BoardTextCache
{
public:
    BoardTextCache();
    ~BoardTextCache();
    BoardTextCache(const BoardTextCache &) = delete;
    BoardTextCache &operator=(const BoardTextCache &) = delete;

    // The texts of one font on a device of the resolution; rotated text is kept apart
    // from upright text, as its layout differs.
    FontTexts &forFont(const QFont &font, int dpi, bool rotated);

private:
    QHash<QString, std::shared_ptr<FontTexts>> m_fonts;
};

// How DrawBoard draws: what part of the board, where, at what scale, and by which
// rules. The defaults are the window's paint.
struct BoardDrawOptions
{
    // The strip drawn in the first column and the element row drawn in the first row.
    int firstStrip = 1;
    int firstElement = 1;
    // The last strip to draw; -1 draws through the last strip (a printed range ends
    // earlier).
    int lastStrip = -1;
    // The header band (the six header lines and the rotated description lines).
    bool withHeader = true;
    // The element name column and the header corner.
    bool withElementColumn = true;
    // Printing rules: only whole strips and rows, elements not flagged for the board
    // left out without a gap, the selection cleared first.
    bool forPrinting = false;
    // The strip colour pairs; false draws in black and white (dividers black with white
    // text, everything else white with black text).
    bool inColour = true;
    // The drawing scale: the zoom on the screen, the printer's resolution factor times
    // the overall scale when printing.
    double scale = 1.0;
    // The board's top-left corner on the canvas.
    int left = 0;
    int top = 0;
    // Texts of earlier drawings to reuse (and add to); none lays every text out anew.
    BoardTextCache *texts = nullptr;
};

// What a DrawBoard call leaves behind for its caller.
struct BoardDrawResult
{
    // The last strip drawn (the first strip minus one when none fitted); nothing when
    // the document has no strips.
    std::optional<int> lastStrip;
    // The last element row drawn (the first row minus one when none fitted).
    int lastElement = 0;
    // The scaled header height; hit testing on the screen reads it.
    int headerHeight = 0;
    // When printing: the right edge of the last column drawn and the bottom of the last
    // element row drawn (the printed extent).
    int printedRight = 0;
    int printedBottom = 0;

    // The board's long-standing report of a drawing, which production board printing
    // reads to start its next page: the last strip drawn and the last element row
    // drawn, each as "%3d" (the strip part left out when the document has no strips).
    QString lastDrawnText() const;
};

// The colour slot a strip is drawn with: day/night by interior/exterior for scenes
// ("DWN" counts as day, "DSK" as night, exact and case-sensitive), the divider and
// rest day slots by kind, Unknown for anything else. Banners carry their own colours
// and report the Banner slot.
StripSlot StripSlotOf(const StripRecord &strip);

// The background and text colour of a strip. A banner takes both from its colour
// field, "background,text" in colour names; a banner whose field holds no comma gets
// the Banner background for both, so its text disappears into the strip. Schedules
// have always drawn such banners that way, and it is kept. A colour name that does not
// convert gives the Banner slot's colour.
QColor StripColour(const StripRecord &strip, const BoardStyle &style);
QColor StripTextColour(const StripRecord &strip, const BoardStyle &style);

// Whether the strip's assignment list (field 19, split at commas) names the element row.
bool UsesElement(const StripRecord &strip, int element);

// The text of a description line for a strip: the line code (a field number plus one)
// picks the field; the location is shown in upper case and scene numbers with "Scene ".
QString DescriptionLine(const StripRecord &strip, int code);

// The two rotated lines of a strip's header, before any shortening.
QString FirstDescriptionText(const StripRecord &strip, const BoardStyle &style);
QString SecondDescriptionText(const StripRecord &strip, const BoardStyle &style);

// The pop-up description of a strip heading, lines separated by "\r"; empty for
// banners and anything that has no description.
QString StripHintText(const StripRecord &strip);

// Draws the board onto the painter as the options say: strips from the first
// (through the last) left to right, element rows from the first, with the header band
// and the element name column. The painter's clip rectangle, or the whole device when
// none is set, bounds the drawing on the right and at the bottom.
BoardDrawResult DrawBoard(ScheduleDocument &doc, const BoardStyle &style, const BoardDrawOptions &options,
                          QPainter &canvas);

} // namespace tb
