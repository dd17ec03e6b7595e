#pragma once

#include "ui/board/BoardView.h"

namespace tb {

class Settings;

// The board's drawing values from the preferences: the ten colour pairs, the font,
// the two description lines, the shooting-days and scene pop-up settings.
BoardStyle StyleFromSettings(const Settings &settings);

} // namespace tb
