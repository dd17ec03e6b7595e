#pragma once

// The day out of days printed straight onto a paged device (a printer or a PDF
// writer), without the report engine.

#include "reports/DayOutOfDays.h"

#include <QDate>
#include <QString>

class QPagedPaintDevice;

namespace tb {

struct DayOutOfDaysPrintOptions
{
    // The production title of the page header.
    QString title;
    // "Use color": work and hold cells in colour.
    bool inColour = false;
    // The date after "Printed ".
    QDate printed = QDate::currentDate();
};

// What a printout made.
struct DayOutOfDaysPrintResult
{
    int pages = 0;  // pages started in all
    int slices = 0; // horizontal slices of day columns
};

// Prints the chart on the device, whose first page is already the current one:
// Arial 9, millimetre units from the device's resolution, the page header on every
// page, as many columns as fit across, new pages for rows that overflow and for the
// next slice of columns.
DayOutOfDaysPrintResult PrintDayOutOfDays(const DayOutOfDaysGrid &grid, const DayOutOfDaysPrintOptions &options,
                                          QPagedPaintDevice &device);

} // namespace tb
