#pragma once

// The day out of days: which production days each element of a category works,
// starts, finishes, is dropped and picked up again, or is held.

#include <QList>
#include <QString>
#include <QStringList>

namespace tb {

class ScheduleDocument;

// What the chart is built for.
struct DayOutOfDaysOptions
{
    // "Show hold days": held gaps of elements with the hold rule are written "H".
    bool showHolds = true;
    // The category whose elements get a row (1 = cast).
    int category = 1;
    // Three columns at the right of every row: work days, hold days and their sum.
    bool totals = false;
};

// The grid as the window shows it. Rows 0 to 2 are the title rows (shooting day,
// date, weekday), column 0 the row titles; from row 3 on one row per element,
// from column 1 on one column per production day (then the totals, when asked for).
struct DayOutOfDaysGrid
{
    static constexpr int TitleRows = 3;

    // cells[row][column]; every row has columnCount() cells.
    QList<QStringList> cells;
    // The element number of each element row (index row - TitleRows).
    QList<int> elements;
    // Per element row: the work days and hold days counted while building.
    QList<int> workDays;
    QList<int> holdDays;
    // Per column: whether the day is an automatic rest day (column 0 and the totals
    // never are).
    QList<bool> restDay;
    // The number of day columns (columns 1 .. dayColumns).
    int dayColumns = 0;
    bool totals = false;

    int rowCount() const { return int(cells.size()); }
    int columnCount() const { return cells.isEmpty() ? 0 : int(cells.first().size()); }
    const QString &cell(int row, int column) const { return cells.at(row).at(column); }
    bool isDayColumn(int column) const { return column >= 1 && column <= dayColumns; }
    bool isTotalColumn(int column) const { return totals && column > dayColumns; }
};

// The titles of the three title rows, each with its leading blank.
QStringList DayOutOfDaysRowTitles();
// The titles of the three total columns ("Work", "Hold", "Total").
QStringList DayOutOfDaysTotalTitles();

// Builds the chart from the schedule's derived day fields, the category's elements
// and the document's hold threshold. Reads the document only (an unreadable
// assignment list is reported once).
DayOutOfDaysGrid BuildDayOutOfDays(const ScheduleDocument &doc, const DayOutOfDaysOptions &options = {});

// The grid as comma-separated text: one line per row ended by LF, a cell quoted with
// double quotes (inner quotes doubled) only when it holds a comma, a quote, CR or LF.
QString DayOutOfDaysCsv(const DayOutOfDaysGrid &grid);

} // namespace tb
