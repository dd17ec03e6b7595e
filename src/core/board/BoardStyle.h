#pragma once

#include "document/BoardPreferences.h"

#include <QColor>
#include <QString>

#include <array>

namespace tb {

class Settings;

// The preference values the board is drawn with. A default-constructed style is the
// board of a program without a settings file (the fallbacks of the settings keys):
// white strips with black text, Arial, the location over the synopsis, shooting days
// counted, scene pop-ups on.
struct BoardStyle
{
    BoardStyle();

    // Background and text colour per slot; index 0 is unused.
    std::array<QColor, StripSlotCount + 1> background;
    std::array<QColor, StripSlotCount + 1> text;
    QString fontName;
    int DescLine1;
    int DescLine2;
    // "Days" are shooting days on the production board.
    bool ShowShootingDays;
    // Pop-up scene description when the mouse is over a strip heading.
    bool ScenePopups;

    const QColor &backgroundOf(StripSlot slot) const { return background[static_cast<int>(slot)]; }
    const QColor &textOf(StripSlot slot) const { return text[static_cast<int>(slot)]; }
    void setSlot(StripSlot slot, const QColor &back, const QColor &fore)
    {
        background[static_cast<int>(slot)] = back;
        text[static_cast<int>(slot)] = fore;
    }
};

// The board as the user's preferences draw it: the ten colour pairs, the font, the
// two description lines, the shooting-days and scene pop-up settings. The window and
// the command line both draw with it.
BoardStyle StyleFromSettings(const Settings &settings);

// The colours of a paper stripboard: white day interiors, yellow day exteriors, blue
// night interiors, green night exteriors, black day dividers. The command line's
// "--colours classic"; the preferences default to white strips.
BoardStyle ClassicBoardStyle();

} // namespace tb
