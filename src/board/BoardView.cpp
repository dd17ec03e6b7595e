#include "BoardView.h"

#include "document/ScheduleDocument.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace tb {

int ZoomIndexForScale(double scale)
{
    const int percent = int(std::lround(scale * 100));
    if (percent < 60 || percent > 140 || percent % 10 != 0)
        return -1;
    return (percent - 60) / 10;
}

double ScaleForZoomIndex(int index)
{
    return (60 + 10 * index) / 100.0;
}

BoardView::BoardView(ScheduleDocument &doc, QWidget *parent)
    : QWidget(parent)
    , m_doc(doc)
{
    setAutoFillBackground(false);
}

void BoardView::setStyle(const BoardStyle &style)
{
    m_style = style;
    update();
}

void BoardView::setBoardScale(double scale)
{
    m_scale = scale;
    update();
}

void BoardView::resetBoard()
{
    m_h = m_doc.strips.count() > 0 ? 1 : 0;
    m_v = m_doc.elements.count() > 0 ? 1 : 0;
    update();
}

bool BoardView::handleWheel(QWheelEvent *event)
{
    event->accept();
    return true;
}

void BoardView::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    const int w = int(40 * m_scale);
    for (int i = 1; i <= m_doc.strips.count() && 200 + i * w < width(); ++i)
        p.fillRect(200 + (i - 1) * w, 0, w - 1, height(),
                   m_doc.strips[i].isScene() ? QColor(250, 250, 210) : Qt::black);
    p.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignLeft | Qt::AlignTop,
               QStringLiteral("Board stand-in: %1 strips, %2 elements, %3%")
                   .arg(m_doc.strips.count())
                   .arg(m_doc.elements.count())
                   .arg(std::lround(m_scale * 100)));
}

void BoardView::contextMenuEvent(QContextMenuEvent *event)
{
    if (m_popup)
        m_popup->popup(event->globalPos());
}

} // namespace tb
