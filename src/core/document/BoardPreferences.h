#pragma once

#include <QString>
#include <QStringList>

namespace tb {

// The words the preferences and the board share: the ten colour slots of the strips
// and the codes of the two description lines. The settings file, the preferences
// dialog and the board drawing all take them from here.

// The colour slots, numbered as the settings file numbers them ("CB1".."CB10",
// "CT1".."CT10").
enum class StripSlot : int {
    DayExt = 1,
    DayInt,
    DayIntExt,
    NightExt,
    NightInt,
    NightIntExt,
    DayDivider,
    AutoRestDay,
    Banner,
    Unknown,
};
inline constexpr int StripSlotCount = 10;

// The caption of a slot in the preferences dialog ("Day - Ext" .. "Unknown").
QString StripSlotCaption(StripSlot slot);

// Description line codes: the strip field number plus one, as the preferences store
// them.
namespace DescLineCodes {
inline constexpr int Location = 12;
inline constexpr int Synopsis = 7;
inline constexpr int Sequence = 11;
inline constexpr int SceneNumbers = 2;
inline constexpr int Notes = 19;
} // namespace DescLineCodes

// The items of the two description line boxes, in their order: "Location",
// "Synopsis", "Sequence", "Scene number(s)", "Notes".
QStringList DescLineItems();
// The code of an item; 0 for an index outside the list.
int DescLineCode(int itemIndex);
// The item of a code; -1 for a code that is none of the five.
int DescLineItemIndex(int code);

} // namespace tb
