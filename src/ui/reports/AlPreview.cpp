#include "ui/reports/AlPreview.h"

#include "reports/AlPrinter.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

namespace tb {

namespace {

// Room around the page, in screen pixels.
constexpr int PageMargin = 20;
constexpr int PageShadow = 5;

} // namespace

tAlPreview::tAlPreview(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    viewport()->setBackgroundRole(QPalette::Dark);
    viewport()->setAutoFillBackground(true);
    QPalette palette = viewport()->palette();
    palette.setColor(QPalette::Dark, QColor(128, 128, 128));
    viewport()->setPalette(palette);
    setFocusPolicy(Qt::StrongFocus);
    horizontalScrollBar()->setSingleStep(10);
    verticalScrollBar()->setSingleStep(10);
}

tAlPreview::~tAlPreview()
{
    clearPages();
}

void tAlPreview::clearPages()
{
    qDeleteAll(m_pages);
    m_pages.clear();
    m_page = 0;
    updateScrollBars();
    viewport()->update();
}

bool tAlPreview::setCurrentPage(int n)
{
    if (n < 1 || n > pageCount())
        return false;
    m_page = n;
    updateScrollBars();
    viewport()->update();
    Q_EMIT pageChanged(m_page, pageCount());
    return true;
}

void tAlPreview::lastPage()
{
    if (pageCount() > 0)
        setCurrentPage(pageCount());
}

bool tAlPreview::setZoom(int z)
{
    if (z < 25 || z > 200 || z == m_zoom)
        return false;
    m_zoom = z;
    updateScrollBars();
    viewport()->update();
    Q_EMIT zoomChanged(m_zoom);
    return true;
}

int tAlPreview::zoomInStep(int z)
{
    switch (z) {
    case 50:
        return 75;
    case 75:
        return 100;
    case 100:
        return 150;
    case 150:
        return 200;
    default:
        return z;
    }
}

int tAlPreview::zoomOutStep(int z)
{
    switch (z) {
    case 200:
        return 150;
    case 150:
        return 100;
    case 100:
        return 75;
    case 75:
        return 50;
    default:
        return z;
    }
}

QSize tAlPreview::zoomedSize() const
{
    if (m_page < 1 || m_page > pageCount())
        return QSize();
    const TDrawMetaFile *page = m_pages.at(m_page - 1);
    return QSize(page->Width * m_zoom / 100, page->Height * m_zoom / 100);
}

QRect tAlPreview::pageRect() const
{
    const QSize size = zoomedSize();
    if (size.isEmpty())
        return QRect();
    const QSize view = viewport()->size();
    // Centred while the page fits, else placed by the scroll bars.
    const int x = size.width() + 2 * PageMargin <= view.width() ? (view.width() - size.width()) / 2
                                                                : PageMargin - horizontalScrollBar()->value();
    const int y = size.height() + 2 * PageMargin <= view.height() ? (view.height() - size.height()) / 2
                                                                  : PageMargin - verticalScrollBar()->value();
    return QRect(QPoint(x, y), size);
}

void tAlPreview::updateScrollBars()
{
    const QSize size = zoomedSize();
    const QSize view = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, size.width() + 2 * PageMargin - view.width()));
    verticalScrollBar()->setRange(0, std::max(0, size.height() + 2 * PageMargin - view.height()));
    horizontalScrollBar()->setPageStep(view.width());
    verticalScrollBar()->setPageStep(view.height());
}

void tAlPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    const QRect rect = pageRect();
    if (rect.isEmpty())
        return;
    painter.fillRect(rect.translated(PageShadow, PageShadow), QColor(60, 60, 60));
    painter.fillRect(rect, Qt::white);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.save();
    painter.setClipRect(rect);
    painter.translate(rect.topLeft());
    painter.scale(m_zoom / 100.0, m_zoom / 100.0);
    // A recorded page holds only the changes of pen, brush and font from those a
    // painter starts with. A painter on this view starts with the view's light text
    // colour, so a page whose first text is black (the element summary's title and
    // company) would play back white on white. Start from the recording's defaults.
    painter.setPen(QPen());
    painter.setBrush(QBrush());
    painter.setFont(QFont());
    painter.drawPicture(0, 0, m_pages.at(m_page - 1)->picture());
    painter.restore();
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

void tAlPreview::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBars();
}

void tAlPreview::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        setZoom(zoomInStep(m_zoom));
    else if (event->button() == Qt::RightButton)
        setZoom(zoomOutStep(m_zoom));
    QAbstractScrollArea::mousePressEvent(event);
}

void tAlPreview::scrollContentsBy(int, int)
{
    viewport()->update();
}

} // namespace tb
