#include "ui/board/BoardView.h"

#include "board/BoardMoves.h"

#include "document/DayCalculation.h"
#include "document/ScheduleDocument.h"
#include "document/Settings.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>

namespace tb {

namespace {

// The drop marker's top, below the top of the board.
constexpr int ArrowTop = 20;
constexpr int ArrowShadow = 2;
// Strips the auto-scroll timers move per tick, and their interval.
constexpr int AutoScrollInterval = 100;
// A mouse move within this many pixels of the press does not start a drag.
constexpr int DragThreshold = 5;
// Hint display time, milliseconds.
constexpr int HintDisplayTime = 8000;

const QString AutoRestClickText = QStringLiteral(
    "You cannot select auto-rest day banners, as these are managed by Torvanbridge.\r\rIf you wish to manually "
    "ccontrol them, select \"Convert auto-rest days to banners\" from the Strips menu.");
const QString DontShowAgainText = QStringLiteral("Don't show this message again");

} // namespace

// The paint box: shows the display buffer and hands its mouse input to the board.
class BoardPaintBox : public QWidget
{
public:
    BoardPaintBox(BoardView *view)
        : QWidget(view)
        , m_view(view)
    {
        setObjectName(QStringLiteral("PBox"));
        setMouseTracking(true);
        setAttribute(Qt::WA_OpaquePaintEvent);
        setAttribute(Qt::WA_NoSystemBackground);
    }

protected:
    void paintEvent(QPaintEvent *event) override { m_view->PBoxPaint(event); }
    void mousePressEvent(QMouseEvent *event) override { m_view->PBoxMouseDown(event, false); }
    void mouseDoubleClickEvent(QMouseEvent *event) override
    {
        // The classic order: the double-click handler first, then the press that
        // carries the double-click state.
        if (event->button() == Qt::LeftButton)
            m_view->PBoxDblClick();
        m_view->PBoxMouseDown(event, true);
    }
    void mouseMoveEvent(QMouseEvent *event) override { m_view->PBoxMouseMove(event); }
    void mouseReleaseEvent(QMouseEvent *event) override { m_view->PBoxMouseUp(event); }
    void wheelEvent(QWheelEvent *event) override { m_view->handleWheel(event); }
    void contextMenuEvent(QContextMenuEvent *event) override { m_view->PBoxContextMenu(event->globalPos()); }

private:
    BoardView *m_view;
};

// The drop marker: a small arrow pointing down at the boundary where dragged strips
// will land, in the tool-tip colour with a shadow.
class BoardDropArrow : public QWidget
{
public:
    explicit BoardDropArrow(QWidget *parent)
        : QWidget(parent)
    {
        setObjectName(QStringLiteral("Arrow"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const qreal w = width() - ArrowShadow;
        const qreal h = height() - ArrowShadow;
        const qreal shaft = w * 0.34;
        const qreal headTop = h * 0.45;
        QPainterPath arrow;
        arrow.moveTo((w - shaft) / 2, 0.5);
        arrow.lineTo((w + shaft) / 2, 0.5);
        arrow.lineTo((w + shaft) / 2, headTop);
        arrow.lineTo(w - 0.5, headTop);
        arrow.lineTo(w / 2, h - 0.5);
        arrow.lineTo(0.5, headTop);
        arrow.lineTo((w - shaft) / 2, headTop);
        arrow.closeSubpath();
        p.fillPath(arrow.translated(ArrowShadow, ArrowShadow), QColor(0, 0, 0, 90));
        p.setPen(QPen(QColor(60, 60, 60), 1));
        p.setBrush(palette().color(QPalette::ToolTipBase));
        p.drawPath(arrow);
    }
};

BoardView::BoardView(ScheduleDocument &doc, Settings &settings, QWidget *parent)
    : QWidget(parent)
    , m_doc(doc)
    , m_settings(settings)
    , m_pbox(new BoardPaintBox(this))
    , m_hScroll(new QScrollBar(Qt::Horizontal, this))
    , m_vScroll(new QScrollBar(Qt::Vertical, this))
    , m_corner(new QWidget(this))
    , m_arrow(new BoardDropArrow(this))
    , m_lTimer(new QTimer(this))
    , m_rTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("BoardView"));
    m_hScroll->setObjectName(QStringLiteral("HScroll"));
    m_vScroll->setObjectName(QStringLiteral("VScroll"));
    m_corner->setObjectName(QStringLiteral("ScrollCorner"));
    m_corner->setAutoFillBackground(true);
    m_lTimer->setObjectName(QStringLiteral("LTimer"));
    m_rTimer->setObjectName(QStringLiteral("RTimer"));
    m_lTimer->setInterval(AutoScrollInterval);
    m_rTimer->setInterval(AutoScrollInterval);
    for (QScrollBar *bar : {m_hScroll, m_vScroll}) {
        bar->setSingleStep(1);
        bar->setPageStep(10);
        bar->installEventFilter(this);
        connect(bar, &QScrollBar::valueChanged, this, &BoardView::repaintBoard);
    }
    m_corner->installEventFilter(this);
    connect(m_lTimer, &QTimer::timeout, this, &BoardView::LTimerTimer);
    connect(m_rTimer, &QTimer::timeout, this, &BoardView::RTimerTimer);
    setMinimumSize(120, 120);
    // Hit testing reads the header height of the last drawing; until the first paint
    // it is that of the current scale.
    m_lastDraw.headerHeight = BoardGeometry(m_scale).headerH;
    SetScrolls();
    ReScalePB();
}

BoardView::~BoardView() = default;

QWidget *BoardView::paintBox() const
{
    return m_pbox;
}

QWidget *BoardView::dropArrow() const
{
    return m_arrow;
}

void BoardView::setStyle(const BoardStyle &style)
{
    m_style = style;
    repaintBoard();
}

void BoardView::setScenePopups(bool on)
{
    m_style.ScenePopups = on;
}

void BoardView::setBoardScale(double scale)
{
    m_scale = SnapBoardScale(scale);
    m_lastDraw.headerHeight = BoardGeometry(m_scale).headerH;
    SetScrolls();
    ReScalePB();
    repaintBoard();
}

void BoardView::SetScrolls()
{
    const std::pair<QScrollBar *, int> bars[] = {{m_hScroll, m_doc.strips.count()},
                                                 {m_vScroll, m_doc.elements.count()}};
    for (const auto &[bar, count] : bars) {
        if (count > 0) {
            bar->setRange(1, count);
        } else {
            bar->setRange(0, 0);
            bar->setValue(0);
        }
        bar->setPageStep(10);
    }
}

void BoardView::ReScalePB()
{
    m_arrow->hide();
    m_arrow->move(m_arrow->x(), ArrowTop);
    const int w = width();
    const int h = height();
    const int barW = m_vScroll->sizeHint().width();
    const int barH = m_hScroll->sizeHint().height();
    m_hScroll->setGeometry(0, h - barH, qMax(0, w - barW), barH);
    m_vScroll->setGeometry(w - barW, 0, barW, qMax(0, h - barH));
    m_pbox->setGeometry(0, 0, qMax(1, w - barW), qMax(1, h - barH));
    m_corner->setGeometry(w - barW, h - barH, barW, barH);
    SetBufferSize(m_pbox->width(), m_pbox->height());
}

void BoardView::SetBufferSize(int width, int height)
{
    const Result sized = m_buffer.SetBufferSize(width, height, m_pbox->devicePixelRatioF());
    if (!sized)
        m_doc.prompter().error(sized.message());
}

void BoardView::repaintBoard()
{
    m_pbox->update();
}

void BoardView::resetBoard()
{
    m_lTimer->stop();
    m_rTimer->stop();
    m_dragging = false;
    m_buffer = BoardBuffer();
    ReScalePB();
    SetScrolls();
    m_hScroll->setValue(m_hScroll->minimum());
    m_vScroll->setValue(m_vScroll->minimum());
    m_pbox->unsetCursor();
    repaintBoard();
}

void BoardView::scrollToStrip(int row)
{
    m_hScroll->setValue(row);
}

int BoardView::horizontalScroll() const
{
    return m_hScroll->value();
}

int BoardView::verticalScroll() const
{
    return m_vScroll->value();
}

void BoardView::setScrollPositions(int horizontal, int vertical)
{
    m_hScroll->setValue(horizontal);
    m_vScroll->setValue(vertical);
}

int BoardView::GetStripNum(int x) const
{
    return tb::GetStripNum(boardGeometry(), x, m_hScroll->value());
}

int BoardView::GetElementNum(int y) const
{
    return tb::GetElementNum(boardGeometry(), m_lastDraw.headerHeight, y, m_vScroll->value());
}

bool BoardView::handleWheel(QWheelEvent *event)
{
    const QPoint delta = event->angleDelta();
    // Shift turns some mice's wheel sideways; either way one notch is one step.
    const int notch = delta.y() != 0 ? delta.y() : delta.x();
    if ((notch > 0) != (m_wheelRemainder > 0))
        m_wheelRemainder = 0;
    m_wheelRemainder += notch;
    const bool shift = event->modifiers() == Qt::ShiftModifier;
    while (m_wheelRemainder >= 120 || m_wheelRemainder <= -120) {
        const bool down = m_wheelRemainder < 0;
        m_wheelRemainder += down ? 120 : -120;
        if (shift) {
            // Element rows: down shows the next row.
            if (down && m_vScroll->value() < m_vScroll->maximum())
                m_vScroll->setValue(m_vScroll->value() + 1);
            else if (!down && m_vScroll->value() > 1)
                m_vScroll->setValue(m_vScroll->value() - 1);
        } else {
            // Strips the other way round: wheel down moves the view one strip to the
            // left. The board has always scrolled this way and users expect it.
            if (down && m_hScroll->value() > 1)
                m_hScroll->setValue(m_hScroll->value() - 1);
            else if (!down && m_hScroll->value() < m_hScroll->maximum())
                m_hScroll->setValue(m_hScroll->value() + 1);
        }
    }
    event->accept();
    return true;
}

void BoardView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    ReScalePB();
}

void BoardView::wheelEvent(QWheelEvent *event)
{
    handleWheel(event);
}

bool BoardView::eventFilter(QObject *watched, QEvent *event)
{
    // The scroll bars would scroll themselves; the board's own wheel rule applies
    // over them as everywhere else.
    if (event->type() == QEvent::Wheel && (watched == m_hScroll || watched == m_vScroll || watched == m_corner))
        return handleWheel(static_cast<QWheelEvent *>(event));
    return QWidget::eventFilter(watched, event);
}

void BoardView::PBoxPaint(QPaintEvent *)
{
    const QSize size = m_pbox->size();
    if (m_buffer.size() != size || m_buffer.image().devicePixelRatio() != m_pbox->devicePixelRatioF())
        SetBufferSize(size.width(), size.height());
    m_lastDraw = m_buffer.paint(m_doc, m_style, m_hScroll->value(), m_vScroll->value(), m_scale, &m_texts);
    QPainter painter(m_pbox);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, 0, m_buffer.image());
}

void BoardView::recalculate()
{
    RecalculateDays(m_doc);
    // The window updates its commands and the pages panel for the new selection.
    m_doc.view().documentChanged(m_doc, {});
}

void BoardView::PBoxMouseDown(QMouseEvent *event, bool doubleClick)
{
    const QPoint pos = event->position().toPoint();
    m_pressX = pos.x();
    m_pressY = pos.y();
    const BoardGeometry g = boardGeometry();
    // The strip under the press. Mouse moves keep it current; taking it again here
    // keeps a press after a wheel scroll (with no move between) on the strip it hits.
    m_hovered = GetStripNum(pos.x());
    const Qt::MouseButtons buttons = event->buttons();
    const Qt::KeyboardModifiers keys = event->modifiers();
    const bool leftAlone = !doubleClick && buttons == Qt::LeftButton && keys == Qt::NoModifier;
    const bool leftShift = !doubleClick && buttons == Qt::LeftButton && keys == Qt::ShiftModifier;

    if (pos.x() > g.colW && m_doc.strips.count() >= 1) {
        if (m_hovered >= 1 && m_hovered <= m_doc.strips.count() && m_doc.strips[m_hovered].isAutoRestDay()) {
            // Rest days are placed by the calendar; they cannot be picked up.
            Prompt prompt;
            prompt.kind = MessageKind::Warning;
            prompt.text = AutoRestClickText;
            prompt.buttons = Buttons::Ok;
            (void)AskUnlessRemembered(m_doc.prompter(), m_settings, RememberedWarning::AutoRestClick, prompt);
            m_pbox->unsetCursor();
            m_doc.SelStart = 0;
            m_doc.SelEnd = 0;
            repaintBoard();
            recalculate();
            emit selectionChanged();
            return;
        }
        if (leftAlone) {
            m_doc.SelStart = m_hovered;
            m_doc.SelEnd = m_hovered;
        } else if (leftShift) {
            // Widen the range to the strip. With nothing selected before, the first
            // stays 0 and the highlight runs from strip 1; that is how it has always been.
            if (m_hovered < m_doc.SelStart)
                m_doc.SelStart = m_hovered;
            if (m_hovered > m_doc.SelEnd)
                m_doc.SelEnd = m_hovered;
            if (m_doc.SelStart > m_doc.SelEnd)
                m_doc.SelStart = m_doc.SelEnd;
        } else {
            return;
        }
        m_doc.SelElement = -1;
        repaintBoard();
        recalculate();
        emit selectionChanged();
        return;
    }

    if (pos.x() <= g.colW && pos.y() > m_lastDraw.headerHeight && m_doc.elements.count() >= 1) {
        if (leftAlone) {
            m_doc.SelStart = 0;
            m_doc.SelEnd = 0;
            m_doc.SelElement = qMin(GetElementNum(pos.y()), m_doc.elements.count());
            repaintBoard();
            recalculate();
            emit selectionChanged();
        } else if (doubleClick && buttons == Qt::LeftButton) {
            emit editElementRequested();
            repaintBoard();
            recalculate();
        }
    }
}

void BoardView::PBoxDblClick()
{
    const int first = m_doc.SelStart;
    if (first < 1 || first > m_doc.strips.count())
        return;
    const StripRecord &strip = m_doc.strips[first];
    if (strip.isScene())
        emit editSceneRequested();
    else if (strip.isBanner())
        emit editBannerRequested();
}

void BoardView::PBoxMouseMove(QMouseEvent *event)
{
    const QPoint pos = event->position().toPoint();
    const int x = pos.x();
    m_hovered = GetStripNum(x);
    const BoardGeometry g = boardGeometry();
    const bool leftHeld = event->buttons() & Qt::LeftButton;
    const bool pastThreshold = x < m_pressX - DragThreshold || x > m_pressX + DragThreshold;
    if (leftHeld && m_doc.SelStart >= 1 && (pastThreshold || m_dragging)) {
        m_pbox->setCursor(Qt::DragMoveCursor);
        QToolTip::hideText();
        // Near either edge the board scrolls by itself while the strips are held there.
        if (x < g.colW) {
            if (!m_lTimer->isActive())
                m_lTimer->start();
        } else {
            m_lTimer->stop();
        }
        if (x > m_pbox->width() - g.stripW) {
            if (!m_rTimer->isActive())
                m_rTimer->start();
        } else {
            m_rTimer->stop();
        }
        // The marker sits on the strip boundary nearest the mouse.
        const int markerW = g.stripW / 2;
        const int half = markerW / 2;
        int markerX = BoardRound(double(x) / g.stripW) * g.stripW - half;
        if (markerX < g.colW)
            markerX = g.colW - half;
        if (markerX > m_pbox->width())
            markerX = m_pbox->width() - half;
        m_arrow->setGeometry(markerX, ArrowTop, markerW + ArrowShadow, markerW + markerW / 2 + ArrowShadow);
        m_arrow->show();
        m_arrow->raise();
        m_dragging = true;
        return;
    }
    m_dragging = false;
    showHint(event);
}

void BoardView::showHint(QMouseEvent *event)
{
    const QPoint pos = event->position().toPoint();
    const BoardGeometry g = boardGeometry();
    if (pos.x() > g.colW && pos.y() < m_lastDraw.headerHeight && event->buttons() == Qt::NoButton &&
        event->modifiers() == Qt::NoModifier && m_style.ScenePopups) {
        // The hint comes from the second move over the same strip on.
        if (m_hovered >= 1 && m_hovered <= m_doc.strips.count() && m_hovered == m_lastHinted) {
            QString text = StripHintText(m_doc.strips[m_hovered]);
            if (text.isEmpty()) {
                QToolTip::hideText();
            } else {
                text.replace(u'\r', u'\n');
                QToolTip::showText(event->globalPosition().toPoint(), text, m_pbox, QRect(), HintDisplayTime);
            }
        }
        m_lastHinted = m_hovered;
        return;
    }
    QToolTip::hideText();
}

void BoardView::PBoxMouseUp(QMouseEvent *)
{
    if (!m_dragging)
        return;
    m_lTimer->stop();
    m_rTimer->stop();
    const int target = DropTarget(m_doc, GetStripNum(m_arrow->x() + (m_arrow->width() - ArrowShadow)));
    const bool moved = MoveStrips(m_doc, target);
    endDrag();
    if (moved)
        emit documentChanged();
}

void BoardView::endDrag()
{
    m_dragging = false;
    m_arrow->hide();
    m_pbox->unsetCursor();
    repaintBoard();
}

void BoardView::PBoxContextMenu(const QPoint &globalPos)
{
    if (m_popup)
        m_popup->popup(globalPos);
}

void BoardView::LTimerTimer()
{
    if (m_hScroll->value() > 1)
        m_hScroll->setValue(m_hScroll->value() - 1);
    repaintBoard();
}

void BoardView::RTimerTimer()
{
    if (m_hScroll->value() < m_hScroll->maximum())
        m_hScroll->setValue(m_hScroll->value() + 1);
    repaintBoard();
}

} // namespace tb
