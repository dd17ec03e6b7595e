#pragma once

#include "document/Records.h"
#include "document/Result.h"

#include <QString>

namespace tb {

class ScheduleDocument;

// Commands on day dividers: the strips (kind "2") that close a shooting day.
//
// The command functions here and in the other scheduling headers do everything the
// menu command does, as one DocumentEdit: the undo snapshot, the change, the document
// marked modified, the selection, the scroll the board is to make (passed to the
// views, which scroll and repaint), and the messages and questions through the
// document's prompter. A refusal the user has already been told about (a missing
// selection, say) comes back as a failure with an empty message; any other failure
// carries the message for the caller to show, and leaves the document unchanged.

// Whether the board holds a day divider (the counter RecalculateDays keeps);
// "&Remove all day dividers..." is enabled by it.
bool HasDayDividers(const ScheduleDocument &doc);

// A divider as the menu commands make it: kind "2", page length "0", day count "1",
// colour "clBlack", every other field empty.
StripRecord NewDayDividerRow();

// "Add day divider at end": appends a divider and scrolls the board to the end.
Result AddDayDivider(ScheduleDocument &doc);

// "Insert day divider": a divider before the first selected strip. Without a selection
// the user is told to select a position first and nothing changes.
Result InsertDayDivider(ScheduleDocument &doc);

// "Remove all day dividers...": asks first; banners and rest days stay. Returns whether
// the dividers were removed.
bool RemoveAllDayDividers(ScheduleDocument &doc);

// ---- Automatic day dividers (pages per day) -----------------------------------------

enum class AutoPagesMode {
    Keep,  // a scene longer than a day stays on one day, which runs over
    Split, // a long scene gets as many days as it needs; what is left spills into the next day
    Ask,   // the user is asked at each long scene
};

inline constexpr int MinPagesPerDay = 1;
inline constexpr int MaxPagesPerDay = 20;
inline constexpr int DefaultPagesPerDay = 5;

struct AutoPagesOptions
{
    int maxPages = DefaultPagesPerDay;
    AutoPagesMode mode = AutoPagesMode::Keep;
    bool removeDividers = true; // remove every divider (and rest day) first
};

// The dialog's heading for a spin value: "If a single scene is longer than 5 pages...".
QString AutoPagesHeading(int maxPages);

// Places day dividers so that no day holds more than the maximum of scene pages. When
// the dividers would not fit in the strip table, the table is put back as it was, and
// the failure says so.
Result AutoDayDividers(ScheduleDocument &doc, const AutoPagesOptions &options);

} // namespace tb
