#pragma once

#include "document/ScheduleDocument.h"

#include <QString>

namespace tb {

// A plain-text overview of a schedule: titles, start date, strips by kind, elements
// by category and the day totals.
QString DocumentSummary(const ScheduleDocument &doc);

} // namespace tb
