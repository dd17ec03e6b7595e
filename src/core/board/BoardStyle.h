#pragma once

#include <QColor>
#include <QString>

#include <array>

namespace tb {

// The ten colour slots of the preferences, numbered as the settings file numbers
// them ("CB1".."CB10", "CT1".."CT10").
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

// Description line codes: the strip field number plus one, as the preferences store them.
namespace DescLineCodes {
inline constexpr int Location = 12;
inline constexpr int Synopsis = 7;
inline constexpr int Sequence = 11;
inline constexpr int SceneNumbers = 2;
inline constexpr int Notes = 19;
} // namespace DescLineCodes

// The preference values the board is drawn with. A default-constructed style is the
// board of a program without a settings file: white strips with black text, Arial,
// the location over the synopsis, shooting days counted, scene pop-ups on.
struct BoardStyle
{
    BoardStyle();

    // Background and text colour per slot; index 0 is unused.
    std::array<QColor, StripSlotCount + 1> background;
    std::array<QColor, StripSlotCount + 1> text;
    QString fontName = QStringLiteral("Arial");
    int DescLine1 = DescLineCodes::Location;
    int DescLine2 = DescLineCodes::Synopsis;
    // "Days" are shooting days on the production board.
    bool ShowShootingDays = true;
    // Pop-up scene description when the mouse is over a strip heading.
    bool ScenePopups = true;

    const QColor &backgroundOf(StripSlot slot) const { return background[static_cast<int>(slot)]; }
    const QColor &textOf(StripSlot slot) const { return text[static_cast<int>(slot)]; }
    void setSlot(StripSlot slot, const QColor &back, const QColor &fore)
    {
        background[static_cast<int>(slot)] = back;
        text[static_cast<int>(slot)] = fore;
    }
};

// The colours of a paper stripboard: white day interiors, yellow day exteriors, blue
// night interiors, green night exteriors, black day dividers. Used by the command-line
// renderer and offered as a starting point; the preferences default to white strips.
BoardStyle ClassicBoardStyle();

} // namespace tb
