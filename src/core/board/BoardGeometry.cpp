#include "board/BoardGeometry.h"

#include <QFontMetricsF>
#include <QHash>

#include <cmath>

namespace tb {

int BoardRound(double value)
{
    // The default floating-point rounding mode rounds halves to even.
    return int(std::nearbyint(value));
}

BoardGeometry::BoardGeometry(double s)
    : scale(s)
    , stripW(BoardRound(40 * s))
    , rowH(BoardRound(18 * s))
    , colW(BoardRound(200 * s))
    , headerH(16 * BoardRound(18 * s))
    , margin(BoardRound(3 * s))
    , cornerMargin(BoardRound(4 * s))
{}

namespace {

// a * b / c rounded to the nearest whole number, halves away from zero.
int mulDiv(int a, int b, int c)
{
    if (c == 0)
        return -1;
    const long long product = (long long)a * b;
    const long long half = (c > 0 ? c : -c) / 2;
    const bool negative = (product < 0) != (c < 0);
    const long long magnitude = ((product < 0 ? -product : product) + half) / (c > 0 ? c : -c);
    return int(negative ? -magnitude : magnitude);
}

// Cell height per pixel of em size for a family, measured once.
double cellPerEm(const QString &family)
{
    thread_local QHash<QString, double> ratios;
    auto it = ratios.constFind(family);
    if (it != ratios.cend())
        return *it;
    QFont probe(family);
    probe.setPixelSize(1000);
    const QFontMetricsF metrics(probe);
    double ratio = (metrics.ascent() + metrics.descent()) / 1000.0;
    if (!(ratio > 0.5 && ratio < 3.0))
        ratio = 1.15; // a font that reports no usable metrics: the usual sans serif cell
    ratios.insert(family, ratio);
    return ratio;
}

} // namespace

int BoardFontHeight(int heightAtScale1, double scale, int dpiX, int dpiY)
{
    if (dpiX <= 0 || dpiY <= 0)
        dpiX = dpiY = 96;
    return mulDiv(dpiY, BoardRound(heightAtScale1 * scale), dpiX);
}

QFont BoardFont(const QString &family, int cellHeight, bool bold)
{
    QFont font(family);
    font.setPixelSize(qMax(1, int(std::lround(cellHeight / cellPerEm(family)))));
    font.setBold(bold);
    return font;
}

int GetStripNum(const BoardGeometry &g, int x, int firstStrip)
{
    if (g.stripW <= 0)
        return firstStrip;
    return (x - g.colW) / g.stripW + firstStrip;
}

int GetElementNum(const BoardGeometry &g, int headerH, int y, int firstElement)
{
    if (g.rowH <= 0)
        return firstElement;
    return (y - headerH) / g.rowH + firstElement;
}

int ZoomIndexForScale(double scale)
{
    const long percent = std::lround(scale * 100);
    if (percent < 60 || percent > 140 || percent % 10 != 0)
        return -1;
    return int(percent - 60) / 10;
}

double ScaleForZoomIndex(int index)
{
    if (index < 0 || index >= ZoomStepCount)
        return 1.0;
    return (60 + 10 * index) / 100.0;
}

double SnapBoardScale(double scale)
{
    const int index = ZoomIndexForScale(scale);
    return index < 0 ? 1.0 : ScaleForZoomIndex(index);
}

} // namespace tb
