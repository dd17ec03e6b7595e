#include "scheduling/StripLocking.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"
#include "scheduling/Calendar.h"

#include <utility>

namespace tb {

namespace {

// The selected rows, first to last, within the table; empty (first > last) without
// a selection.
std::pair<int, int> selectedRows(const ScheduleDocument &doc)
{
    int first = doc.SelStart;
    int last = doc.SelEnd > 0 ? doc.SelEnd : doc.SelStart;
    if (first > last)
        std::swap(first, last);
    return {qMax(first, 1), qMin(last, doc.strips.count())};
}

void writeLockDates(ScheduleDocument &doc, const QString &text)
{
    const auto [first, last] = selectedRows(doc);
    for (int row = first; row <= last; ++row) {
        if (doc.strips[row][StripField::LockDate] != text)
            doc.strips[row].set(StripField::LockDate, text);
    }
    SetModified(doc);
}

} // namespace

bool CanLockStrips(ScheduleDocument &doc)
{
    if (HasStartDate(doc))
        return true;
    doc.prompter().information(
        QStringLiteral("You cannot lock strip(s) to a specific date yet, because you have not set a start date for the "
                       "production.\r\rPlease select Production | Start date... from the menu first."));
    return false;
}

QDate LockDateOf(const ScheduleDocument &doc, int row)
{
    const QString &text = doc.strips[row][StripField::LockDate];
    return text.isEmpty() ? QDate() : legacy::ParseShortDate(text);
}

Result LockStrips(ScheduleDocument &doc, const QDate &date)
{
    if (!CanLockStrips(doc))
        return Result::failure(QString());
    if (!date.isValid())
        return Result::failure(QStringLiteral("The date to lock the strips to is not a valid date."));
    // The start date is kept as a day number; it is compared here as the date it stands for.
    const QDate start = StartDate(doc);
    if (start > date) {
        // The user is warned but the lock goes ahead: a strip may be pinned to a date
        // before the shoot (a second unit day, say), and the program has always let it.
        doc.prompter().error(QStringLiteral("Errr? The date you have selected is before the production start "
                                            "date!\r\rYou must enter a date that is on or after ") +
                             legacy::FormatDate(start, QString::fromLatin1(legacy::ShortDatePattern)) + u'.');
    }
    writeLockDates(doc, legacy::FormatDate(date, QString::fromLatin1(legacy::ShortDatePattern)));
    return Result::success();
}

void UnlockStrips(ScheduleDocument &doc)
{
    writeLockDates(doc, QString());
}

Result SetHoldDays(ScheduleDocument &doc, int days)
{
    if (days < MinHoldDays || days > MaxHoldDays)
        return Result::failure(
            QStringLiteral("The hold days must be between %1 and %2.").arg(MinHoldDays).arg(MaxHoldDays));
    doc.values.HoldDays = days;
    return Result::success();
}

} // namespace tb
