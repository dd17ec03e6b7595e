#include "board/PerforatedCalibration.h"

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>

namespace tb {

CalibrationPageResult PrintCalibrationPage(double marginMm, double stripWidthMm, QPagedPaintDevice &device)
{
    CalibrationPageResult result;
    QPainter p;
    if (!p.begin(&device))
        return result;
    const double dotsPerMm = device.logicalDpiX() / 25.4;
    const double dotsPerMmY = device.logicalDpiY() / 25.4;
    const QMargins offsets = device.pageLayout().marginsPixels(device.logicalDpiX());
    const int width = device.width();
    const int height = device.height();

    // The strips where the board would print them.
    const double strip = stripWidthMm * dotsPerMm;
    double x0 = qRound(marginMm * dotsPerMm) - offsets.left();
    if (x0 < 0)
        x0 += qRound(strip);
    result.firstLeft = int(x0);
    result.stripWidth = qRound(strip);

    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(8);
    p.setFont(font);
    p.setPen(QPen(Qt::black, 0));

    // The ruler: a tick every millimetre from the sheet's edge, longer every 5 mm,
    // numbered every 10 mm.
    const int rulerTop = qRound(2 * dotsPerMmY);
    for (int mm = 0;; ++mm) {
        const int x = qRound(mm * dotsPerMm) - offsets.left();
        if (x > width)
            break;
        if (x < 0)
            continue;
        const double length = mm % 10 == 0 ? 5 : (mm % 5 == 0 ? 3.5 : 2);
        p.drawLine(x, rulerTop, x, rulerTop + qRound(length * dotsPerMmY));
        if (mm % 10 == 0)
            p.drawText(QPoint(x + 2, rulerTop + qRound(9 * dotsPerMmY)), QString::number(mm));
    }
    p.drawText(QRect(0, rulerTop + qRound(11 * dotsPerMmY), width, qRound(6 * dotsPerMmY)), Qt::AlignLeft,
               QStringLiteral("Perforated strip paper: left margin %1 mm, strip width %2 mm (10 strips %3 mm). "
                              "Ruler in millimetres from the edge of the sheet.")
                   .arg(marginMm, 0, 'f', 2)
                   .arg(stripWidthMm, 0, 'f', 3)
                   .arg(stripWidthMm * 10, 0, 'f', 2));

    // The outlines, numbered at their top, down to the bottom of the page.
    const int top = qRound(20 * dotsPerMmY);
    const int bottom = height - 1;
    for (int i = 0; i < CalibrationStripCount; ++i) {
        const int left = qRound(x0 + i * strip);
        const int right = qRound(x0 + (i + 1) * strip);
        if (right > width)
            break;
        p.drawRect(left, top, right - left, bottom - top);
        p.drawText(QRect(left, top, right - left, qRound(6 * dotsPerMmY)), Qt::AlignCenter, QString::number(i + 1));
        ++result.strips;
    }
    p.end();
    result.printed = true;
    return result;
}

} // namespace tb
