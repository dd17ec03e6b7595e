#pragma once

#include "board/BoardGeometry.h"
#include "board/BoardStyle.h"

#include "document/ScheduleDocument.h"

#include <QColor>
#include <QString>

#include <memory>

class QPainter;

namespace tb {

class BoardTextCache;

// What a DrawBoard call leaves behind for its caller.
struct BoardDrawState
{
    // The scaled header height of the last drawing; hit testing on the screen reads it.
    int headerHeight = 0;
    // When printing: the right edge of the last column drawn and the bottom of the
    // last element row drawn (the printed extent).
    int printedRight = 0;
    int printedBottom = 0;
    // Texts laid out by earlier drawings, reused by the next (created by DrawBoard).
    // A board is redrawn with the same texts on every paint; shaping them anew each
    // time would cost more than all the rest of the drawing.
    std::shared_ptr<BoardTextCache> texts;
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

// Draws the board onto the painter: strips from firstStrip (through lastStrip, -1 for
// all) left to right, element rows from firstElement, with the header band
// (withHeader) and the element name column and header corner (withElementColumn), at
// the scale, with its top-left corner at (left, top). The painter's clip rectangle,
// or the whole device when none is set, bounds the drawing on the right and at the
// bottom. Printing (forPrinting) draws only whole strips and rows, leaves out elements
// not flagged for the board, and clears the selection first. inColour false draws
// dividers black with white text and everything else white with black text.
// Returns the last strip and the last element row drawn, each as "%3d".
QString DrawBoard(ScheduleDocument &doc, const BoardStyle &style, int firstStrip, int firstElement, int lastStrip,
                  bool withHeader, bool withElementColumn, bool forPrinting, bool inColour, double scale, int left,
                  int top, QPainter &canvas, BoardDrawState *state = nullptr);

} // namespace tb
