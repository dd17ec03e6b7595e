#include "scheduling/DayDividers.h"

#include "document/DayCalculation.h"
#include "document/DocumentEdit.h"
#include "document/DocumentOperations.h"
#include "document/ScheduleDocument.h"

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
    DocumentEdit edit(doc, QStringLiteral("Add day divider"));
    (void)doc.strips.append(NewDayDividerRow()); // room checked above
    edit.markModified();
    // The end of the board comes into view (counted after the rest days went in).
    edit.scrollToStrip(doc.strips.count() - 3);
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
    DocumentEdit edit(doc, QStringLiteral("Insert day divider"));
    (void)doc.strips.insert(doc.SelStart, NewDayDividerRow());
    // The selection keeps its row numbers, so the highlight now starts at the new
    // divider rather than following the strips it was on. Users know the command
    // this way and it stays so.
    return Result::success();
}

bool RemoveAllDayDividers(ScheduleDocument &doc)
{
    if (!doc.prompter().confirm(QStringLiteral("Are you sure you wish to remove ALL day dividers from the schedule?")))
        return false;
    DocumentEdit edit(doc, QStringLiteral("Remove all day dividers"));
    RemoveStripsOfKind(doc, StripKinds::DayDivider);
    edit.scrollToStrip(1);
    // The commands and the pages panel follow the cleared selection.
    clearSelection(doc);
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

    DocumentEdit edit(doc, QStringLiteral("auto day dividers"));
    // The table as it stood, to put back if the dividers do not fit: copying it
    // costs one pointer.
    const StripTable before = doc.strips;
    const int selStart = doc.SelStart;
    const int selEnd = doc.SelEnd;

    if (options.removeDividers) {
        RemoveStripsOfKind(doc, StripKinds::DayDivider);
        RemoveStripsOfKind(doc, StripKinds::AutoRestDay);
    }

    // The board is rebuilt in one pass into a new table rather than by inserting
    // dividers in place, which would move the rest of the board at every divider.
    const StripTable source = doc.strips;
    StripTable board;
    AutoPagesMode mode = options.mode;
    float p = 0.0f; // the day's pages, in single precision like every page total
    int c = 0;      // scenes in the day
    bool full = false;

    auto addDividers = [&](int n) {
        for (int k = 0; k < n && !full; ++k)
            full = !board.append(autoDividerRow());
    };

    for (int j = 1; j <= source.count() && !full; ++j) {
        const StripRecord &strip = source[j];
        if (!strip.isScene()) {
            full = !board.append(strip);
            continue;
        }
        const double pages = PageLengthOf(strip);
        // A scene may be counted twice: a day that overflowed because of a further
        // scene gets its divider before that scene, which then starts the new day.
        for (;;) {
            p = float(double(p) + pages);
            ++c;
            if (!(double(p) > max)) {
                full = !board.append(strip);
                break;
            }
            if (c > 1) {
                addDividers(1);
                p = 0.0f;
                c = 0;
                if (full)
                    break;
                continue;
            }

            // One scene is longer than a whole day: its dividers go after it.
            if (options.mode == AutoPagesMode::Ask) {
                // The board shows the dividers placed so far, with this scene first
                // and selected, while the user decides.
                const int row = board.count() + 1;
                StripTable shown = board;
                for (int k = j; k <= source.count(); ++k) {
                    if (!shown.append(source[k]))
                        break;
                }
                doc.strips = shown;
                doc.SelStart = row;
                doc.SelEnd = row;
                DocumentChange showing;
                showing.firstStrip = row;
                showing.boardOnly = true;
                doc.view().documentChanged(doc, showing);
                const QString question = QStringLiteral("Scene ") + strip[StripField::SceneNumber] +
                                         QStringLiteral(" is longer than ") + QString::number(max) +
                                         QStringLiteral(" pages. \r\rWould you like Torvanbridge to add dividers "
                                                        "and / or allow for the additional pages in the next day?\r\r");
                mode = doc.prompter().confirm(question) ? AutoPagesMode::Split : AutoPagesMode::Keep;
            }
            full = !board.append(strip);
            const bool split = mode == AutoPagesMode::Split;
            // Whole days the scene fills, rounded half to even: 12 pages at 5 a day
            // give two dividers. What a split scene leaves over is shot the next day,
            // which may make that day overflow at once; otherwise it starts empty.
            addDividers(split ? int(std::nearbyint(double(p) / max)) : 1);
            p = split ? float(double(p) - max) : 0.0f;
            c = 0;
            break;
        }
    }

    // The last day is closed when it holds pages and fits; pages carried beyond the
    // maximum stay open.
    if (!full && p > 0.0f && double(p) <= max)
        addDividers(1);

    if (full) {
        doc.strips = before;
        doc.SelStart = selStart;
        doc.SelEnd = selEnd;
        return Result::failure(StripTable::fullMessage() +
                               QStringLiteral("\r\rThe day dividers do not fit; the schedule is unchanged."));
    }

    doc.strips = board;
    // The commands and the pages panel follow the cleared selection.
    clearSelection(doc);
    edit.scrollToStrip(1);
    return Result::success();
}

} // namespace tb
