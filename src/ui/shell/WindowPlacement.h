#pragma once

#include <QRect>

class QWidget;

namespace tb {

// The place a remembered window rectangle gets on the screen it opens on: its size no
// larger than the screen's free area, and moved so that all of it is on that area. A
// window last used on a larger screen thus fits a smaller one.
QRect FitToScreen(const QRect &wanted, const QRect &available);

// Places a top-level window at a remembered rectangle, fitted to the screen that holds
// most of it (the primary screen when none does).
void PlaceWindow(QWidget &window, const QRect &wanted);

// Moves a window that is partly off its screen back onto it, shrinking it if it is
// larger than the screen.
void KeepOnScreen(QWidget &window);

} // namespace tb
