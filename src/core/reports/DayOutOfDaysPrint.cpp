#include "reports/DayOutOfDaysPrint.h"

#include "document/LegacyText.h"

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>

namespace tb {

namespace {

const QColor TitleGrey(232, 232, 232);
const QColor WorkGreen(176, 255, 160);
// Hold days print light blue, not the screen's cyan: cyan all but vanishes on paper.
const QColor HoldBlue(176, 176, 255);
const QColor RestGrey(224, 224, 224);

class ChartPrinter
{
public:
    ChartPrinter(const DayOutOfDaysGrid &grid, const DayOutOfDaysPrintOptions &options, QPagedPaintDevice &device)
        : m_grid(grid)
        , m_options(options)
        , m_device(device)
        , m_xu(qRound(device.logicalDpiX() / 25.4))
        , m_yu(qRound(device.logicalDpiY() / 25.4))
    {}

    DayOutOfDaysPrintResult run()
    {
        DayOutOfDaysPrintResult result;
        if (!m_painter.begin(&m_device))
            return result;
        QFont font(QStringLiteral("Arial"));
        font.setPointSizeF(9);
        m_painter.setFont(font);
        m_painter.setBrush(Qt::white);
        m_painter.setPen(Qt::black);
        m_regular = font;
        m_bold = font;
        m_bold.setBold(true);

        const int columns = m_grid.columnCount();
        int first = 0;
        int slice = 0;
        m_page = 0;
        while (first < columns) {
            ++slice;
            if (slice > 1)
                m_device.newPage();
            ++m_page;
            const int last = lastFitting(first);
            printSlice(slice, first, last);
            first = last + 1;
            // The next slice begins directly with the next day column: the name column
            // is printed on the first slice only, as the chart always has been.
        }
        m_painter.end();
        result.pages = m_page;
        result.slices = slice;
        return result;
    }

private:
    int columnWidth(int column) const { return column == 0 ? 40 * m_xu : 12 * m_xu; }

    // The last column of a slice that starts at first: columns are added while the
    // next one still fits in the page width (at least one column per slice).
    int lastFitting(int first) const
    {
        int x = columnWidth(first);
        int last = first;
        while (last + 1 < m_grid.columnCount() && x + columnWidth(last + 1) <= m_device.width()) {
            x += columnWidth(last + 1);
            ++last;
        }
        return last;
    }

    void header(int slice)
    {
        const int width = m_device.width();
        const int height = 5 * m_yu;
        m_painter.setFont(m_regular);
        m_painter.drawText(QRect(0, 0, width, height), Qt::AlignLeft | Qt::AlignVCenter,
                           QStringLiteral("DAY OUT OF DAYS   \"%1\"").arg(m_options.title));
        m_painter.drawText(QRect(0, 0, width, height), Qt::AlignHCenter | Qt::AlignVCenter,
                           QStringLiteral("Printed ") +
                               legacy::FormatDate(m_options.printed, QString::fromLatin1(legacy::ShortDatePattern)));
        m_painter.drawText(QRect(0, 0, width, height), Qt::AlignRight | Qt::AlignVCenter,
                           QStringLiteral("Page %1 - %2").arg(slice).arg(m_page));
    }

    QColor background(int row, int column) const
    {
        if (column == 0 || row < DayOutOfDaysGrid::TitleRows)
            return TitleGrey;
        const QString &text = m_grid.cell(row, column);
        if (m_options.inColour && m_grid.isDayColumn(column)) {
            if (text.contains(u'W'))
                return WorkGreen;
            if (text == QLatin1String("H"))
                return HoldBlue;
        }
        if (m_grid.restDay.value(column))
            return RestGrey;
        return Qt::white;
    }

    // The vertical lines of a page's part of the table, from top to bottom.
    void verticals(int first, int last, int top, int bottom)
    {
        m_painter.setPen(QPen(Qt::black, 1));
        int x = 0;
        for (int c = first; c <= last; ++c) {
            m_painter.drawLine(x, top, x, bottom);
            x += columnWidth(c);
        }
        m_painter.drawLine(x, top, x, bottom);
    }

    void printSlice(int slice, int first, int last)
    {
        const int rowH = 5 * m_yu;
        const int tableTop = 5 * m_yu;
        const int pageH = m_device.height();
        int right = 0;
        for (int c = first; c <= last; ++c)
            right += columnWidth(c);
        header(slice);
        int y = tableTop;
        for (int row = 0; row < m_grid.rowCount(); ++row) {
            if (y + rowH > pageH && y > tableTop) {
                verticals(first, last, tableTop, qMin(y, pageH));
                m_device.newPage();
                ++m_page;
                header(slice);
                y = tableTop;
            }
            int x = 0;
            for (int c = first; c <= last; ++c) {
                const int w = columnWidth(c);
                // The sheet is white: only other backgrounds and non-empty texts are drawn.
                const QColor back = background(row, c);
                if (back != Qt::white)
                    m_painter.fillRect(x, y, w, rowH, back);
                const QString &text = m_grid.cell(row, c);
                if (!text.isEmpty()) {
                    const bool title = c == 0 && row < DayOutOfDaysGrid::TitleRows;
                    m_painter.setFont(title ? m_bold : m_regular);
                    if (c == 0)
                        m_painter.drawText(QRect(x + 10, y + 7, w - 10, rowH - 7), Qt::AlignLeft | Qt::AlignTop, text);
                    else
                        m_painter.drawText(QRect(x, y + 7, w, rowH - 7), Qt::AlignHCenter | Qt::AlignTop, text);
                }
                x += w;
            }
            m_painter.setPen(QPen(Qt::black, row == DayOutOfDaysGrid::TitleRows ? 3 : 1));
            m_painter.drawLine(0, y, right, y);
            y += rowH;
        }
        // The closing line under the last row.
        m_painter.setPen(QPen(Qt::black, 1));
        m_painter.drawLine(0, y, right, y);
        verticals(first, last, tableTop, qMin(y, pageH));
        m_painter.setBrush(Qt::white);
    }

    const DayOutOfDaysGrid &m_grid;
    const DayOutOfDaysPrintOptions &m_options;
    QPagedPaintDevice &m_device;
    QPainter m_painter;
    QFont m_regular;
    QFont m_bold;
    int m_xu;
    int m_yu;
    int m_page = 0;
};

} // namespace

DayOutOfDaysPrintResult PrintDayOutOfDays(const DayOutOfDaysGrid &grid, const DayOutOfDaysPrintOptions &options,
                                          QPagedPaintDevice &device)
{
    return ChartPrinter(grid, options, device).run();
}

} // namespace tb
