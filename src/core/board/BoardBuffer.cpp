#include "board/BoardBuffer.h"

#include <QPainter>

#include <cmath>

namespace tb {

Result BoardBuffer::SetBufferSize(int width, int height, qreal devicePixelRatio)
{
    width = qMax(width, 1);
    height = qMax(height, 1);
    if (!(devicePixelRatio > 0))
        devicePixelRatio = 1.0;
    // A display buffer is never larger than the raster engine can paint on; a size
    // beyond that is refused before anything is allocated, as a failed allocation is.
    constexpr double MaxSide = 32767;
    const double pixelWidth = std::ceil(width * devicePixelRatio);
    const double pixelHeight = std::ceil(height * devicePixelRatio);
    if (pixelWidth > MaxSide || pixelHeight > MaxSide)
        return Result::failure(QStringLiteral(
            "Error with Torvanbridge display buffer. Try saving your work and re-starting the computer."));
    const QSize pixels{int(pixelWidth), int(pixelHeight)};
    if (m_size == QSize(width, height) && m_image.size() == pixels && m_image.devicePixelRatio() == devicePixelRatio)
        return Result::success();
    QImage image(pixels, QImage::Format_RGB32);
    if (image.isNull()) {
        return Result::failure(QStringLiteral(
            "Error with Torvanbridge display buffer. Try saving your work and re-starting the computer."));
    }
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::white);
    m_image = image;
    m_size = QSize(width, height);
    return Result::success();
}

BoardDrawResult BoardBuffer::paint(ScheduleDocument &doc, const BoardStyle &style, int firstStrip, int firstElement,
                                   double scale, BoardTextCache *texts)
{
    if (m_image.isNull())
        return {};
    QPainter painter(&m_image);
    painter.setClipRect(QRect(QPoint(0, 0), m_size));
    BoardDrawOptions options;
    options.firstStrip = firstStrip;
    options.firstElement = firstElement;
    options.scale = scale;
    options.texts = texts;
    return DrawBoard(doc, style, options, painter);
}

} // namespace tb
