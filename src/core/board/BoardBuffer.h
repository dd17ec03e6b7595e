#pragma once

#include "board/DrawBoard.h"

#include "document/Result.h"

#include <QImage>

namespace tb {

// The screen board's display buffer: an image the size of the paint box that the board
// is drawn into on every paint and then copied to the window in one operation, so the
// window never shows a half-drawn board, not even while strips are dragged.
class BoardBuffer
{
public:
    // Gives the buffer the paint box's size (in device-independent pixels; the ratio is
    // that of the screen). When the new image cannot be had, the old one stays and the
    // failure carries the message the user is shown.
    Result SetBufferSize(int width, int height, qreal devicePixelRatio = 1.0);

    // PBoxPaint's drawing: the board from the first strip and element row shown, with
    // header and element column, in colour, at the zoom scale, at (0, 0).
    BoardDrawResult paint(ScheduleDocument &doc, const BoardStyle &style, int firstStrip, int firstElement,
                          double scale, BoardTextCache *texts);

    const QImage &image() const { return m_image; }
    QSize size() const { return m_size; }

private:
    QImage m_image;
    QSize m_size;
};

} // namespace tb
