#pragma once

#include "reports/DayOutOfDays.h"

#include <QAbstractScrollArea>

namespace tb {

// The day out of days grid: the name column and the three title rows stay in place
// while the day columns and element rows scroll under them.
class DodGridView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit DodGridView(QWidget *parent = nullptr);

    static constexpr int NameColumnWidth = 150;
    static constexpr int DefaultColumnWidth = 40;
    static constexpr int RowHeight = 17;

    void setGrid(const DayOutOfDaysGrid &grid);
    const DayOutOfDaysGrid &grid() const { return m_grid; }
    // "Use color": work days green, hold days cyan.
    void setUseColour(bool on);

    // The background a cell is painted with.
    QColor cellBackground(int row, int column) const;
    // The rectangle of a cell in the viewport, with the current scroll positions.
    QRect cellRect(int row, int column) const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateScrollBars();
    int columnX(int column) const;

    DayOutOfDaysGrid m_grid;
    bool m_colour = false;
};

} // namespace tb
