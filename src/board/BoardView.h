#pragma once

// Stand-in for the board widget until the real board lands: the same public
// interface, a plain drawing, no interaction. Only the main window's code needs it.

#include <QColor>
#include <QString>
#include <QWidget>

#include <array>
#include <functional>

class QMenu;
class QWheelEvent;

namespace tb {

class ScheduleDocument;

struct BoardStyle
{
    BoardStyle()
    {
        background.fill(Qt::white);
        text.fill(Qt::black);
    }
    std::array<QColor, 11> background;
    std::array<QColor, 11> text;
    QString fontName = QStringLiteral("Arial");
    int DescLine1 = 12;
    int DescLine2 = 7;
    bool ShowShootingDays = true;
    bool ScenePopups = true;
};

int ZoomIndexForScale(double scale);
double ScaleForZoomIndex(int index);

class BoardView : public QWidget
{
    Q_OBJECT

public:
    explicit BoardView(ScheduleDocument &doc, QWidget *parent = nullptr);

    void setStyle(const BoardStyle &style);
    const BoardStyle &style() const { return m_style; }
    double boardScale() const { return m_scale; }
    void setBoardScale(double scale);

    void SetScrolls() {}
    void ReScalePB() {}
    void repaintBoard() { update(); }
    void resetBoard();
    void scrollToStrip(int row) { m_h = row; }
    int horizontalScroll() const { return m_h; }
    int verticalScroll() const { return m_v; }
    void setScrollPositions(int h, int v)
    {
        m_h = h;
        m_v = v;
    }
    void setPopupMenu(QMenu *menu) { m_popup = menu; }
    void setScenePopups(bool on) { m_style.ScenePopups = on; }
    bool handleWheel(QWheelEvent *event);

    std::function<bool()> skipAutoRestWarning;
    std::function<void(bool)> setSkipAutoRestWarning;

signals:
    void selectionChanged();
    void editSceneRequested();
    void editBannerRequested();
    void editElementRequested();
    void documentChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    ScheduleDocument &m_doc;
    BoardStyle m_style;
    double m_scale = 1.0;
    int m_h = 0;
    int m_v = 0;
    QMenu *m_popup = nullptr;
};

} // namespace tb
