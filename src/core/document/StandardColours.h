#pragma once

#include "document/BoardPreferences.h"

#include <QtGlobal>

#include <array>

namespace tb {

// The strip colours production boards use, in the earlier edition's colour values
// ($00BBGGRR), by slot 1..10 (index 0 unused): day interior white, day exterior
// yellow, night interior blue, night exterior green, the interior/exterior mixes in
// between, day dividers black with white text, automatic rest days grey, banners
// orange and unknown strips pink, all other text black.
//
// The earlier edition started with every strip white with black text, so that day
// dividers and rest days looked like empty scenes. A first start (no settings file)
// takes these colours instead; an existing settings file is read as it is, and a
// missing key in it still means white and black. The preferences offer them again
// with "Reset to standard colours".
struct StripColours
{
    std::array<quint32, StripSlotCount + 1> background{};
    std::array<quint32, StripSlotCount + 1> text{};
};

StripColours StandardStripColours();

} // namespace tb
