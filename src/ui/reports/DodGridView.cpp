#include "ui/reports/DodGridView.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace tb {

namespace {

const QColor FixedGrey(232, 232, 232);
const QColor RestGrey(128, 128, 128);
const QColor WorkGreen(176, 255, 160);
const QColor HoldCyan(176, 255, 255);
const QColor LineGrey(192, 192, 192);

} // namespace

DodGridView::DodGridView(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    horizontalScrollBar()->setSingleStep(1);
    verticalScrollBar()->setSingleStep(1);
}

void DodGridView::setGrid(const DayOutOfDaysGrid &grid)
{
    m_grid = grid;
    updateScrollBars();
    viewport()->update();
}

void DodGridView::setUseColour(bool on)
{
    m_colour = on;
    viewport()->update();
}

QColor DodGridView::cellBackground(int row, int column) const
{
    if (column == 0 || row < DayOutOfDaysGrid::TitleRows)
        return FixedGrey;
    // Colour goes over the grey of a rest day.
    if (m_colour && m_grid.isDayColumn(column)) {
        const QString &text = m_grid.cell(row, column);
        if (text.contains(u'W'))
            return WorkGreen;
        if (text == QLatin1String("H"))
            return HoldCyan;
    }
    if (m_grid.restDay.value(column))
        return RestGrey;
    return Qt::white;
}

int DodGridView::columnX(int column) const
{
    if (column == 0)
        return 0;
    // Scrolled columns: the first scrolled column shown is the scroll bar's value + 1.
    return NameColumnWidth + (column - 1 - horizontalScrollBar()->value()) * DefaultColumnWidth;
}

QRect DodGridView::cellRect(int row, int column) const
{
    // Element rows scroll under the title rows: the scroll bar's value is the first
    // element row shown.
    const int shown =
        row < DayOutOfDaysGrid::TitleRows ? row : row - verticalScrollBar()->value() + DayOutOfDaysGrid::TitleRows;
    const int y = shown * RowHeight;
    return QRect(columnX(column), y, column == 0 ? NameColumnWidth : DefaultColumnWidth, RowHeight);
}

void DodGridView::updateScrollBars()
{
    const int columns = m_grid.columnCount();
    const int rows = m_grid.rowCount();
    const int visibleColumns = qMax(1, (viewport()->width() - NameColumnWidth) / DefaultColumnWidth);
    const int visibleRows = qMax(1, viewport()->height() / RowHeight - DayOutOfDaysGrid::TitleRows);
    horizontalScrollBar()->setRange(0, qMax(0, columns - 1 - visibleColumns));
    horizontalScrollBar()->setPageStep(visibleColumns);
    // The vertical value is the first element row shown, from TitleRows on.
    verticalScrollBar()->setRange(DayOutOfDaysGrid::TitleRows, qMax(DayOutOfDaysGrid::TitleRows, rows - visibleRows));
    verticalScrollBar()->setPageStep(visibleRows);
}

void DodGridView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBars();
}

void DodGridView::paintEvent(QPaintEvent *)
{
    QPainter p(viewport());
    p.fillRect(viewport()->rect(), palette().color(QPalette::Window));
    QFont regular = font();
    QFont bold = regular;
    bold.setBold(true);
    const int rows = m_grid.rowCount();
    const int columns = m_grid.columnCount();
    const int firstRow = verticalScrollBar()->value();
    const int firstColumn = horizontalScrollBar()->value() + 1;
    const int width = viewport()->width();
    const int height = viewport()->height();

    auto paintCell = [&](int row, int column) {
        const QRect r = cellRect(row, column);
        p.fillRect(r, cellBackground(row, column));
        p.setPen(LineGrey);
        p.drawLine(r.right(), r.top(), r.right(), r.bottom());
        p.drawLine(r.left(), r.bottom(), r.right(), r.bottom());
        p.setPen(Qt::black);
        p.setFont(column == 0 && row < DayOutOfDaysGrid::TitleRows ? bold : regular);
        const QRect text = r.adjusted(2, 0, -2, 0);
        p.drawText(text, (column == 0 ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter, m_grid.cell(row, column));
    };
    // Scrolled cells first, then the fixed rows and column over them.
    for (int row = firstRow; row < rows && cellRect(row, 0).top() < height; ++row)
        for (int c = firstColumn; c < columns && columnX(c) < width; ++c)
            paintCell(row, c);
    for (int row = 0; row < qMin(rows, int(DayOutOfDaysGrid::TitleRows)); ++row)
        for (int c = firstColumn; c < columns && columnX(c) < width; ++c)
            paintCell(row, c);
    for (int row = firstRow; row < rows && cellRect(row, 0).top() < height; ++row)
        paintCell(row, 0);
    for (int row = 0; row < qMin(rows, int(DayOutOfDaysGrid::TitleRows)); ++row)
        paintCell(row, 0);
}

} // namespace tb
