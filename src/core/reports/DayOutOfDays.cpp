#include "reports/DayOutOfDays.h"

#include "document/AssignmentList.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"

#include <QVarLengthArray>

namespace tb {

namespace {

enum RunState { NoneYet = 0, AfterDrop = 1, Working = 2, AfterHold = 3 };

} // namespace

QStringList DayOutOfDaysRowTitles()
{
    return {QStringLiteral(" Shooting day:"), QStringLiteral(" Date:"), QStringLiteral(" Day of week:")};
}

QStringList DayOutOfDaysTotalTitles()
{
    return {QStringLiteral("Work"), QStringLiteral("Hold"), QStringLiteral("Total")};
}

DayOutOfDaysGrid BuildDayOutOfDays(const ScheduleDocument &doc, const DayOutOfDaysOptions &options)
{
    DayOutOfDaysGrid grid;
    const QString categoryText = QString::number(options.category);

    // Title rows, then one row per element of the category in element-table order.
    for (const QString &title : DayOutOfDaysRowTitles())
        grid.cells.append(QStringList{title});
    QVarLengthArray<int, 512> rowOfElement(doc.elements.count() + 1);
    std::fill(rowOfElement.begin(), rowOfElement.end(), -1);
    for (int e = 1; e <= doc.elements.count(); ++e) {
        const ElementRecord &element = doc.elements[e];
        if (element[ElementField::CategoryNumber] != categoryText)
            continue;
        rowOfElement[e] = int(grid.cells.size());
        grid.cells.append(
            QStringList{element[ElementField::BoardId] + QStringLiteral(" - ") + element[ElementField::Description]});
        grid.elements.append(e);
    }
    const int rows = int(grid.cells.size());
    grid.workDays.fill(0, grid.elements.size());
    grid.holdDays.fill(0, grid.elements.size());
    grid.restDay.append(false);

    // The day columns: N is the production-day index of the board's last strip.
    const int stripCount = doc.strips.count();
    const int days = stripCount > 0 ? legacy::StrToIntDef(doc.strips[stripCount][StripField::DayNumber], 0) : 0;
    const double start = StartDateSerial(doc);
    bool reportedUnreadable = false;
    int position = 1;
    for (int d = 0; d < days && position <= stripCount; ++d) {
        for (QStringList &row : grid.cells)
            row.append(QString());
        const int column = int(grid.cells.first().size()) - 1;
        grid.restDay.append(false);
        const QDate date = legacy::SerialToDate(start + d);
        grid.cells[1][column] = legacy::FormatDate(date, QStringLiteral("d\"/\"m"));
        grid.cells[2][column] = legacy::FormatDate(date, QString::fromLatin1(legacy::ShortDayPattern));

        const QString dayText = QString::number(d);
        while (position <= stripCount && doc.strips[position][StripField::DayNumber] == dayText) {
            const StripRecord &strip = doc.strips[position];
            if (strip.kind() == StripKinds::Scene) {
                grid.cells[0][column] = QString::number(legacy::StrToIntDef(strip[StripField::ShootDayNumber], 0) + 1);
                const AssignmentRead read =
                    ReadAssignmentList(strip[StripField::Assignments], UnreadableItem::EndsList);
                if (read.unreadable && !reportedUnreadable) {
                    // One message for the whole chart: asking row by row, as the chart once
                    // did, showed it for every cast member of every such strip.
                    reportedUnreadable = true;
                    doc.prompter().error(QString::fromLatin1(AssignmentReadError));
                }
                for (int element : read.numbers) {
                    if (element < 1 || element >= rowOfElement.size() || rowOfElement[element] < 0)
                        continue;
                    const int row = rowOfElement[element];
                    QString &cell = grid.cells[row][column];
                    if (cell.isEmpty()) {
                        ++grid.workDays[row - DayOutOfDaysGrid::TitleRows];
                        cell = QStringLiteral("W");
                    }
                }
            }
            ++position;
        }
        // The day is a rest day when the strip that ended its walk is an automatic rest
        // day.
        grid.restDay[column] = position <= stripCount && doc.strips[position].isAutoRestDay();
    }
    const int columns = int(grid.cells.first().size());
    grid.dayColumns = columns - 1;

    // Starts, pick-ups, drops, holds and the finish of each element row.
    const int threshold = doc.values.HoldDays;
    for (int row = DayOutOfDaysGrid::TitleRows; row < rows; ++row) {
        QStringList &cells = grid.cells[row];
        const int index = row - DayOutOfDaysGrid::TitleRows;
        const bool holdRule = doc.elements[grid.elements.at(index)][ElementField::HoldRule] == QLatin1String("SAG");
        int state = NoneYet;
        int c = 1;
        while (c < columns) {
            if (cells.at(c).isEmpty()) {
                ++c;
                continue;
            }
            if (state == NoneYet)
                cells[c].prepend(u'S');
            else if (state == AfterDrop)
                cells[c].prepend(u'P');
            state = Working;
            int e = c;
            while (e < columns && !cells.at(e).isEmpty())
                ++e;
            // The next work day within the threshold's reach: a gap becomes a hold only
            // when it is shorter than the threshold. The hold dialog says "or less", but
            // schedules have always been charted with this test, and it is kept.
            int n = -1;
            int look = e;
            for (; look < columns && look <= e + threshold - 1; ++look) {
                if (!cells.at(look).isEmpty()) {
                    n = look;
                    break;
                }
            }
            if (n >= 0) {
                if (options.showHolds && holdRule) {
                    for (int h = e; h < n; ++h) {
                        cells[h] = QStringLiteral("H");
                        ++grid.holdDays[index];
                    }
                }
                state = AfterHold;
                c = n;
            } else {
                cells[e - 1].append(u'D');
                state = AfterDrop;
                c = look;
            }
        }
        // The last drop of the row is the finish.
        for (int last = columns - 1; last >= 1; --last) {
            if (cells.at(last).isEmpty())
                continue;
            const qsizetype drop = cells.at(last).indexOf(u'D');
            if (drop >= 0)
                cells[last] = cells.at(last).left(drop) + u'F';
            break;
        }
    }

    if (options.totals) {
        grid.totals = true;
        const QStringList titles = DayOutOfDaysTotalTitles();
        for (int t = 0; t < titles.size(); ++t) {
            for (int row = 0; row < rows; ++row) {
                QString text;
                if (row == 0) {
                    text = titles.at(t);
                } else if (row >= DayOutOfDaysGrid::TitleRows) {
                    const int index = row - DayOutOfDaysGrid::TitleRows;
                    const int values[] = {grid.workDays.at(index), grid.holdDays.at(index),
                                          grid.workDays.at(index) + grid.holdDays.at(index)};
                    text = QString::number(values[t]);
                }
                grid.cells[row].append(text);
            }
            grid.restDay.append(false);
        }
    }
    return grid;
}

QString DayOutOfDaysCsv(const DayOutOfDaysGrid &grid)
{
    QString text;
    for (const QStringList &row : grid.cells) {
        for (int c = 0; c < row.size(); ++c) {
            if (c > 0)
                text += u',';
            const QString &cell = row.at(c);
            if (cell.contains(u',') || cell.contains(u'"') || cell.contains(u'\r') || cell.contains(u'\n')) {
                QString quoted = cell;
                quoted.replace(QLatin1String("\""), QLatin1String("\"\""));
                text += u'"' + quoted + u'"';
            } else {
                text += cell;
            }
        }
        text += u'\n';
    }
    return text;
}

} // namespace tb
