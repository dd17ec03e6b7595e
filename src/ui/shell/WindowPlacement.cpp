#include "ui/shell/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace tb {

namespace {

QScreen *screenFor(const QRect &rect)
{
    QScreen *best = nullptr;
    qint64 bestArea = 0;
    for (QScreen *screen : QGuiApplication::screens()) {
        const QRect common = screen->availableGeometry().intersected(rect);
        const qint64 area = qint64(common.width()) * common.height();
        if (area > bestArea) {
            best = screen;
            bestArea = area;
        }
    }
    return best ? best : QGuiApplication::primaryScreen();
}

} // namespace

QRect FitToScreen(const QRect &wanted, const QRect &available)
{
    if (!available.isValid())
        return wanted;
    QRect placed(wanted.topLeft(), wanted.size().boundedTo(available.size()));
    if (placed.right() > available.right())
        placed.moveRight(available.right());
    if (placed.bottom() > available.bottom())
        placed.moveBottom(available.bottom());
    if (placed.left() < available.left())
        placed.moveLeft(available.left());
    if (placed.top() < available.top())
        placed.moveTop(available.top());
    return placed;
}

void PlaceWindow(QWidget &window, const QRect &wanted)
{
    QScreen *screen = screenFor(wanted);
    const QRect placed = screen ? FitToScreen(wanted, screen->availableGeometry()) : wanted;
    window.resize(placed.size());
    window.move(placed.topLeft());
}

void KeepOnScreen(QWidget &window)
{
    const QRect frame = window.frameGeometry();
    QScreen *screen = window.screen() ? window.screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect available = screen->availableGeometry();
    const QRect placed = FitToScreen(frame, available);
    if (placed == frame)
        return;
    // The frame is larger than the client area by the window decoration.
    const QSize decoration = frame.size() - window.size();
    window.resize((placed.size() - decoration).expandedTo(QSize(100, 100)));
    window.move(placed.topLeft());
}

} // namespace tb
