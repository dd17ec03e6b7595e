#pragma once

#include "document/ScheduleDocument.h"

namespace tb {

// The one pass over the strip table that derives everything about days: day and
// shooting-day numbers, the page total of each day (on its divider), the date of
// every divider and banner, and the automatic rest days of the rest day rule.
// It runs after every change to the document.
void RecalculateDays(ScheduleDocument &doc);

// Removes every strip of the given kind, keeping the others in order.
void RemoveStripsOfKind(ScheduleDocument &doc, const QString &kind);

// The text of status panel 1: the page total of the scene strips in the selected
// range, added up in single precision, as "1 3/8 pages"; empty when it is 0. The
// window shows it whenever it updates its commands (UpdateCommandsAndStatus).
QString SelectedPagesText(const ScheduleDocument &doc);

// The date text of a day: start + day - 1 as "ddd, mmmm d, yyyy".
QString DayDateText(double startSerial, int day);

// The number of days a banner stands for, from its DayCount field: 0 (no day change)
// for blank, unreadable or negative text, and never more than MaxBannerDayCount, so
// that day totals cannot overflow whatever a file holds.
inline constexpr int MaxBannerDayCount = 10000;
int BannerDayCount(const QString &dayCount);

} // namespace tb
