#include "ui/shell/ToolIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace tb {

namespace {

// Draws on a 24 x 24 grid.
void paintIcon(QPainter &p, ToolIcon which)
{
    const QColor outline(60, 60, 60);
    p.setPen(QPen(outline, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (which) {
    case ToolIcon::Open: {
        QPainterPath back;
        back.moveTo(2.5, 6);
        back.lineTo(9, 6);
        back.lineTo(11, 8);
        back.lineTo(19.5, 8);
        back.lineTo(19.5, 19);
        back.lineTo(2.5, 19);
        back.closeSubpath();
        p.setBrush(QColor(214, 168, 60));
        p.drawPath(back);
        QPainterPath front;
        front.moveTo(2.5, 19);
        front.lineTo(6, 11);
        front.lineTo(22.5, 11);
        front.lineTo(19.5, 19);
        front.closeSubpath();
        p.setBrush(QColor(250, 212, 110));
        p.drawPath(front);
        break;
    }
    case ToolIcon::Save: {
        QPainterPath body;
        body.moveTo(3, 3);
        body.lineTo(18, 3);
        body.lineTo(21, 6);
        body.lineTo(21, 21);
        body.lineTo(3, 21);
        body.closeSubpath();
        p.setBrush(QColor(52, 92, 160));
        p.drawPath(body);
        p.setBrush(QColor(225, 228, 235));
        p.drawRect(QRectF(7, 3, 9, 6));
        p.setBrush(QColor(52, 92, 160));
        p.setPen(Qt::NoPen);
        p.drawRect(QRectF(13, 4, 2, 4));
        p.setPen(QPen(outline, 1.2));
        p.setBrush(Qt::white);
        p.drawRect(QRectF(6, 13, 12, 8));
        p.setPen(QPen(QColor(150, 150, 150), 1));
        p.drawLine(QPointF(8, 16), QPointF(16, 16));
        p.drawLine(QPointF(8, 18.5), QPointF(16, 18.5));
        break;
    }
    case ToolIcon::Undo: {
        QPainterPath arc;
        arc.moveTo(7, 9);
        arc.lineTo(14, 9);
        arc.cubicTo(QPointF(22, 9), QPointF(22, 20), QPointF(14, 20));
        arc.lineTo(8, 20);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor(40, 110, 60), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(arc);
        QPainterPath head;
        head.moveTo(2, 9);
        head.lineTo(9, 3.5);
        head.lineTo(9, 14.5);
        head.closeSubpath();
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(40, 110, 60));
        p.drawPath(head);
        break;
    }
    case ToolIcon::Cut: {
        p.setPen(QPen(QColor(110, 110, 120), 2, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(8.5, 14.5), QPointF(17, 2));
        p.drawLine(QPointF(15.5, 14.5), QPointF(7, 2));
        p.setPen(QPen(QColor(170, 30, 30), 2));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(QPointF(7, 18), 3.5, 3.5);
        p.drawEllipse(QPointF(17, 18), 3.5, 3.5);
        p.setPen(Qt::NoPen);
        p.setBrush(outline);
        p.drawEllipse(QPointF(12, 10.5), 1.2, 1.2);
        break;
    }
    case ToolIcon::Copy: {
        for (const QPointF &at : {QPointF(3, 2.5), QPointF(9, 8.5)}) {
            p.setPen(QPen(outline, 1.2));
            p.setBrush(Qt::white);
            p.drawRect(QRectF(at, QSizeF(12, 13)));
            p.setPen(QPen(QColor(120, 140, 190), 1));
            for (int line = 0; line < 3; ++line)
                p.drawLine(at + QPointF(2.5, 3.5 + 3 * line), at + QPointF(9.5, 3.5 + 3 * line));
        }
        break;
    }
    case ToolIcon::Paste: {
        p.setBrush(QColor(168, 118, 70));
        p.drawRoundedRect(QRectF(3, 4, 15, 18), 1.5, 1.5);
        p.setBrush(QColor(200, 200, 205));
        p.drawRoundedRect(QRectF(7, 2, 7, 4), 1, 1);
        p.setBrush(Qt::white);
        p.drawRect(QRectF(10, 9, 11, 13));
        p.setPen(QPen(QColor(120, 140, 190), 1));
        for (int line = 0; line < 3; ++line)
            p.drawLine(QPointF(12.5, 12.5 + 3 * line), QPointF(18.5, 12.5 + 3 * line));
        break;
    }
    }
}

QPixmap iconPixmap(ToolIcon which, int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 24.0, size / 24.0);
    paintIcon(p, which);
    return pixmap;
}

} // namespace

QIcon MakeToolIcon(ToolIcon which)
{
    QIcon icon;
    for (int size : {16, 24, 32, 48})
        icon.addPixmap(iconPixmap(which, size));
    return icon;
}

} // namespace tb
