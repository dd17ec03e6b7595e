#pragma once

#include "document/Result.h"

#include <QDate>

namespace tb {

class ScheduleDocument;

// Strips locked to a calendar date (field 13, the date in the short date form), which
// strip sorting leaves in place, and the hold-day threshold of the day out of days.

// Whether strips can be locked: without a start date the user is told to set one and
// the result is false (the lock dialog then does not open).
bool CanLockStrips(ScheduleDocument &doc);

// The date a strip is locked to; invalid when it is free or the text is no date.
QDate LockDateOf(const ScheduleDocument &doc, int row);

// Locks every strip from the first to the last selected to the date. A date before
// the start date is warned about, and the strips are locked to it all the same.
// Without a start date the user is told so and nothing changes.
Result LockStrips(ScheduleDocument &doc, const QDate &date);

// Frees every strip from the first to the last selected. The document is marked
// modified even when none of them was locked.
void UnlockStrips(ScheduleDocument &doc);

inline constexpr int MinHoldDays = 1;
inline constexpr int MaxHoldDays = 999;

// Stores the hold-day threshold: a gap of this many days or fewer between an
// element's drop and its next pickup counts as hold days. It travels with the
// document but does not mark it modified.
Result SetHoldDays(ScheduleDocument &doc, int days);

} // namespace tb
