#pragma once

#include <QFont>
#include <QString>

namespace tb {

// Rounds to the nearest whole number, halves to the even neighbour (12.5 -> 12,
// 13.5 -> 14). Every scaled board size goes through it.
int BoardRound(double value);

// The board's sizes in pixels at one scale. At 1.0: strips 40 wide, rows 18 high,
// the element name column 200 wide, the header 16 rows high.
struct BoardGeometry
{
    explicit BoardGeometry(double scale = 1.0);

    double scale;
    int stripW;       // width of one strip
    int rowH;         // height of one element row and of one header line slot
    int colW;         // width of the element name column
    int headerH;      // always exactly 16 rounded row heights
    int margin;       // text margin inside a strip
    int cornerMargin; // text margin in the header corner
};

// Font heights at scale 1.0, as cell heights in device pixels.
inline constexpr int HeaderLabelFontHeight = 15;
inline constexpr int StripFontHeight = 14;
inline constexpr int ElementMarkFontHeight = 16;

// The height a board font gets on a device: the scaled height, corrected for devices
// whose resolutions differ by axis (vertical dots per inch x height / horizontal dots
// per inch, rounded as integer division with rounding does).
int BoardFontHeight(int heightAtScale1, double scale, int dpiX, int dpiY);

// A board font of the given family whose cell (ascent plus descent) is cellHeight
// device pixels high. Heights are cell heights, as the board's proportions were laid
// out with them; the family's em size is derived from its own metrics.
QFont BoardFont(const QString &family, int cellHeight, bool bold = false);

// Hit testing on the screen board. Neither clamps: callers clamp.
// The strip under x: (x - colW) / stripW truncated toward zero, plus the first strip shown.
int GetStripNum(const BoardGeometry &g, int x, int firstStrip);
// The element row under y: (y - headerH) / rowH truncated toward zero, plus the first row shown.
int GetElementNum(const BoardGeometry &g, int headerH, int y, int firstElement);

// The nine zoom steps 60% .. 140%: the step index (0..8) of a scale, or -1 when the
// scale is none of them; and the scale of a step.
int ZoomIndexForScale(double scale);
double ScaleForZoomIndex(int index);
inline constexpr int ZoomStepCount = 9;
// The scale the screen board uses for a requested one: one of the nine steps, or 1.0.
double SnapBoardScale(double scale);

} // namespace tb
