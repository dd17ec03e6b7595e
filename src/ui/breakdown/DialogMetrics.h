#pragma once

#include <QFontMetrics>
#include <QWidget>

#include <algorithm>

namespace tb {

// Grid column widths are given for the earlier edition's small dialog font, whose
// characters averaged five pixels. Widths grow with the font in use so that the same
// text fits.
inline int ScaledWidth(const QWidget *widget, int designWidth)
{
    const double factor = std::clamp(widget->fontMetrics().averageCharWidth() / 5.0, 1.0, 2.5);
    return int(designWidth * factor + 0.5);
}

} // namespace tb
