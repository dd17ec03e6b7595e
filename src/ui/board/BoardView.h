#pragma once

#include "board/BoardBuffer.h"
#include "board/BoardGeometry.h"
#include "board/BoardStyle.h"
#include "board/DrawBoard.h"

#include <QWidget>

#include <functional>

class QMenu;
class QMouseEvent;
class QScrollBar;
class QTimer;
class QWheelEvent;

namespace tb {

class ScheduleDocument;
class Settings;
class BoardPaintBox;
class BoardDropArrow;

// The production board on the main window: the paint box PBox that shows the board
// through its display buffer, the scroll bars HScroll (first strip shown) and VScroll
// (first element row shown), the filler between them, the drop marker Arrow and the
// two auto-scroll timers LTimer and RTimer. It turns clicks into selections, drags
// into strip moves, double clicks into editor requests and the wheel into scrolling.
// The selection itself lives in the document (SelStart, SelEnd, SelElement).
class BoardView : public QWidget
{
    Q_OBJECT

public:
    // The settings keep the remembered answer of the warning on clicking an auto rest day.
    BoardView(ScheduleDocument &doc, Settings &settings, QWidget *parent = nullptr);
    ~BoardView() override;

    // The preference values the board is drawn with (colours, font, description
    // lines, shooting days, scene pop-ups). Note that style() here is the board's
    // style; the widget style is QWidget::style().
    using QWidget::setStyle;
    void setStyle(const BoardStyle &style);
    const BoardStyle &style() const { return m_style; }
    // The "Pop-up scene description when mouse is over a strip heading" preference
    // (the same value as style().ScenePopups).
    void setScenePopups(bool on);

    // BoardScale, the zoom. The screen board knows the nine steps 0.6 .. 1.4; any other
    // value is taken as 1.0, as the zoom box does. Relayout, scroll bars, repaint.
    double boardScale() const { return m_scale; }
    void setBoardScale(double scale);
    BoardGeometry boardGeometry() const { return BoardGeometry(m_scale); }

    // HScroll 1..strip count and VScroll 1..element count (0..0 for an empty table),
    // large change 10.
    void SetScrolls();
    // Lays out the paint box, the scroll bars, the corner filler and the drop marker,
    // then sizes the display buffer to the paint box.
    void ReScalePB();
    // Gives the display buffer the paint box's size; a failure is shown to the user and
    // the old buffer stays.
    void SetBufferSize(int width, int height);
    void repaintBoard();
    // After the document was emptied or replaced: buffer recreated, layout, scroll bars
    // back to the start, drag abandoned, repaint.
    void resetBoard();
    // Makes the strip the first one shown.
    void scrollToStrip(int row);
    int horizontalScroll() const;
    int verticalScroll() const;
    void setScrollPositions(int horizontal, int vertical);

    // The board's pop-up menu, shown on a right click on the paint box.
    void setPopupMenu(QMenu *menu) { m_popup = menu; }

    // The wheel as the main window takes it anywhere over itself: with exactly Shift the
    // element rows scroll (down = next row); otherwise the strips, wheel down moving the
    // view one strip to the left. Always handled.
    bool handleWheel(QWheelEvent *event);

    // Hit testing in paint box coordinates, against the current scroll positions and
    // the header height of the last drawing. Neither clamps.
    int GetStripNum(int x) const;
    int GetElementNum(int y) const;
    int headerHeight() const { return m_lastDraw.headerHeight; }
    bool isDragging() const { return m_dragging; }
    // What the last paint drew (the last strip and element row among it).
    const BoardDrawResult &lastDraw() const { return m_lastDraw; }

    // The parts, for the main window's layout code and for tests.
    QWidget *paintBox() const;
    QScrollBar *horizontalBar() const { return m_hScroll; }
    QScrollBar *verticalBar() const { return m_vScroll; }
    QWidget *dropArrow() const;
    QTimer *leftTimer() const { return m_lTimer; }
    QTimer *rightTimer() const { return m_rTimer; }
    const QImage &displayBuffer() const { return m_buffer.image(); }

Q_SIGNALS:
    // A click changed the selection; the day recalculation and the command update have run.
    void selectionChanged();
    // Double clicks: the first selected strip is a scene / a banner; an element row.
    void editSceneRequested();
    void editBannerRequested();
    void editElementRequested();
    // Strips were dropped at a new place (the document is marked modified).
    void documentChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class BoardPaintBox;

    void PBoxPaint(QPaintEvent *event);
    void PBoxMouseDown(QMouseEvent *event, bool doubleClick);
    void PBoxMouseMove(QMouseEvent *event);
    void PBoxMouseUp(QMouseEvent *event);
    void PBoxDblClick();
    void PBoxContextMenu(const QPoint &globalPos);
    void LTimerTimer();
    void RTimerTimer();
    void showHint(QMouseEvent *event);
    void recalculate();
    void endDrag();

    ScheduleDocument &m_doc;
    Settings &m_settings;
    BoardStyle m_style;
    double m_scale = 1.0;
    BoardBuffer m_buffer;
    BoardTextCache m_texts;
    BoardDrawResult m_lastDraw;

    BoardPaintBox *m_pbox;
    QScrollBar *m_hScroll;
    QScrollBar *m_vScroll;
    QWidget *m_corner;
    BoardDropArrow *m_arrow;
    QTimer *m_lTimer;
    QTimer *m_rTimer;
    QMenu *m_popup = nullptr;

    int m_hovered = 0;
    int m_lastHinted = 0;
    int m_pressX = 0;
    int m_pressY = 0;
    bool m_dragging = false;
    int m_wheelRemainder = 0;
};

} // namespace tb
