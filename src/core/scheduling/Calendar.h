#pragma once

#include "document/Result.h"

#include <QDate>
#include <QString>

#include <array>
#include <optional>

namespace tb {

class ScheduleDocument;

// The calendar of a schedule: the start date (the first day of principal photography,
// production day 1) and the rest day rule from which the automatic rest days come.

// Whether a start date is set.
bool HasStartDate(const ScheduleDocument &doc);
// The start date; invalid when none is set.
QDate StartDate(const ScheduleDocument &doc);

// The "Start date" dialog's OK. A date earlier than today asks whether the user means
// it; no start date (nullopt) clears the start date and the rest day rule, asking
// first when the rule goes by weekday. Returns false when the user answered No, in
// which case nothing changed and the dialog stays open.
bool ApplyStartDate(ScheduleDocument &doc, const std::optional<QDate> &date, const QDate &today);

// ---- Rest day rule ----------------------------------------------------------------
// The rule is "S" or "D" followed by digits 1..7 in ascending order; blank for none.
// "D": digit k makes weekday k (1 Monday .. 7 Sunday) a rest day.
// "S": digit k makes day k + 1 of every seven days counted from day 1 a rest day.

enum class RestDayBasis { FromStartDay, DayOfWeek };

struct RestDayChoice
{
    RestDayBasis basis = RestDayBasis::FromStartDay;
    std::array<bool, 7> ticked{}; // boxes 1..7 at 0..6
};

// The choice the rest day dialog shows for the stored rule. The weekday basis needs
// a start date: without one the dialog shows "from the start day" whatever the rule.
RestDayChoice ReadRestDayRule(const ScheduleDocument &doc);

// The rule text for a choice: the letter, then the digit of every ticked box in order.
QString RestDayRuleText(const RestDayChoice &choice);

// Stores a rule (as the rest day dialog writes it, or blank for none), marks the
// document modified and repaints the board. The digits are stored in ascending order.
// A rule of another form, or a weekday rule without a start date, is refused.
Result ApplyRestDayRule(ScheduleDocument &doc, const QString &rule);

// "First day of production is currently a Friday." for the start date; blank without one.
QString FirstProductionDayText(const ScheduleDocument &doc);

} // namespace tb
