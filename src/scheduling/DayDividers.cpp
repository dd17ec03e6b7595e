#include "DayDividers.h"

#include "DayCalculation.h"
#include "document/DocumentOperations.h"
#include "document/ScheduleDocument.h"
#include "document/UndoStore.h"

#include <cmath>

namespace tb {

namespace {

// A divider placed by the automatic division is a cleared row with only its kind
// set, unlike the dividers of the menu commands; files have always held both forms.
StripRecord autoDividerRow()
{
    StripRecord row;
    row.set(StripField::StripKind, StripKinds::DayDivider);
    return row;
}

void clearSelection(ScheduleDocument &doc)
{
    doc.SelStart = 0;
    doc.SelEnd = 0;
}

} // namespace

bool HasDayDividers(const ScheduleDocument &doc)
{
    return doc.days.dividers > 0;
}

StripRecord NewDayDividerRow()
{
    StripRecord row;
    row.set(StripField::StripKind, StripKinds::DayDivider);
    row.set(StripField::PageLength, QStringLiteral("0"));
    row.set(StripField::DayCount, QStringLiteral("1"));
    row.set(StripField::StripColour, QStringLiteral("clBlack"));
    return row;
}

Result AddDayDivider(ScheduleDocument &doc)
{
    if (!doc.strips.canGrow(1))
        return Result::failure(StripTable::fullMessage());
    TakeUndoSnapshot(doc, QStringLiteral("Add day divider"));
    (void)doc.strips.append(NewDayDividerRow()); // room checked above
    SetModified(doc);
    doc.view().scrollToStrip(doc.strips.count() - 3);
    doc.view().repaintBoard();
    return Result::success();
}

Result InsertDayDivider(ScheduleDocument &doc)
{
    if (doc.SelStart < 1 || doc.SelStart > doc.strips.count()) {
        doc.prompter().error(
            QStringLiteral("Ooops! You need to first select a position to insert the day divider. Please try again."));
        return Result::failure(QString());
    }
    if (!doc.strips.canGrow(1))
        return Result::failure(StripTable::fullMessage());
    TakeUndoSnapshot(doc, QStringLiteral("Insert day divider"));
    (void)doc.strips.insert(doc.SelStart, NewDayDividerRow());
    // The selection keeps its row numbers, so the highlight now starts at the new
    // divider rather than following the strips it was on. Users know the command
    // this way and it stays so.
    SetModified(doc);
    doc.view().repaintBoard();
    return Result::success();
}

bool RemoveAllDayDividers(ScheduleDocument &doc)
{
    if (!doc.prompter().confirm(QStringLiteral("Are you sure you wish to remove ALL day dividers from the schedule?")))
        return false;
    TakeUndoSnapshot(doc, QStringLiteral("Remove all day dividers"));
    RemoveStripsOfKind(doc, StripKinds::DayDivider);
    SetModified(doc);
    doc.view().scrollToStrip(1);
    clearSelection(doc);
    UpdateCommandsAndStatus(doc);
    doc.view().repaintBoard();
    return true;
}

QString AutoPagesHeading(int maxPages)
{
    return QStringLiteral("If a single scene is longer than ") + QString::number(maxPages) +
           QStringLiteral(" pages...");
}

Result AutoDayDividers(ScheduleDocument &doc, const AutoPagesOptions &options)
{
    const int max = options.maxPages;
    if (max < MinPagesPerDay || max > MaxPagesPerDay)
        return Result::failure(QStringLiteral("The maximum must be between %1 and %2 pages per day.")
                                   .arg(MinPagesPerDay)
                                   .arg(MaxPagesPerDay));

    TakeUndoSnapshot(doc, QStringLiteral("auto day dividers"));
    // The table as it stood, to put back if the dividers do not fit: copying it
    // costs one pointer.
    const StripTable before = doc.strips;
    const int selStart = doc.SelStart;
    const int selEnd = doc.SelEnd;

    if (options.removeDividers) {
        RemoveStripsOfKind(doc, StripKinds::DayDivider);
        RemoveStripsOfKind(doc, StripKinds::AutoRestDay);
    }

    StripTable &strips = doc.strips;
    AutoPagesMode mode = options.mode;
    float p = 0.0f; // the day's pages, in single precision like every page total
    int c = 0;      // scenes in the day
    bool full = false;

    for (int i = 1; i <= strips.count(); ++i) {
        if (!strips[i].isScene())
            continue;
        p = float(double(p) + PageLengthOf(strips[i]));
        ++c;
        if (!(double(p) > max))
            continue;

        const bool alone = c == 1; // one scene is longer than a whole day
        if (alone) {
            if (options.mode == AutoPagesMode::Ask) {
                doc.view().scrollToStrip(i);
                doc.SelStart = i;
                doc.SelEnd = i;
                doc.view().repaintBoard();
                const QString question = QStringLiteral("Scene ") + strips[i][StripField::SceneNumber] +
                                         QStringLiteral(" is longer than ") + QString::number(max) +
                                         QStringLiteral(" pages. \r\rWould you like Torvanbridge to add dividers "
                                                        "and / or allow for the additional pages in the next day?\r\r");
                mode = doc.prompter().confirm(question) ? AutoPagesMode::Split : AutoPagesMode::Keep;
            }
            ++i; // the dividers go after the long scene
        }

        const bool split = alone && mode == AutoPagesMode::Split;
        // Whole days the long scene fills, rounded half to even: 12 pages at 5 a day
        // give two dividers.
        const int n = split ? int(std::nearbyint(double(p) / max)) : 1;
        if (!strips.insertRows(i, n)) {
            full = true;
            break;
        }
        for (int row = i; row < i + n; ++row)
            strips[row] = autoDividerRow();

        // A split scene leaves what it did not shoot for the next day, which may make
        // that day overflow at once; otherwise the next day starts empty. A day that
        // overflowed because of a further scene got its divider before that scene,
        // which the loop now counts again at the start of the new day.
        p = split ? float(double(p) - max) : 0.0f;
        c = 0;
    }

    // The last day is closed when it holds pages and fits; pages carried beyond the
    // maximum stay open.
    if (!full && p > 0.0f && double(p) <= max)
        full = !strips.append(autoDividerRow());

    if (full) {
        doc.strips = before;
        doc.SelStart = selStart;
        doc.SelEnd = selEnd;
        SetModified(doc);
        doc.view().repaintBoard();
        return Result::failure(StripTable::fullMessage() +
                               QStringLiteral("\r\rThe day dividers do not fit; the schedule is unchanged."));
    }

    SetModified(doc);
    clearSelection(doc);
    // The commands and the pages panel follow the cleared selection.
    UpdateCommandsAndStatus(doc);
    doc.view().scrollToStrip(1);
    doc.view().repaintBoard();
    return Result::success();
}

} // namespace tb
