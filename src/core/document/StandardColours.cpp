#include "document/StandardColours.h"

namespace tb {

namespace {

// $00BBGGRR from red, green and blue.
constexpr quint32 rgb(int red, int green, int blue)
{
    return quint32(red) | quint32(green) << 8 | quint32(blue) << 16;
}

} // namespace

StripColours StandardStripColours()
{
    StripColours colours;
    const auto set = [&colours](StripSlot slot, quint32 background, quint32 text) {
        colours.background[int(slot)] = background;
        colours.text[int(slot)] = text;
    };
    constexpr quint32 black = rgb(0, 0, 0);
    set(StripSlot::DayExt, rgb(255, 255, 0), black);          // clYellow
    set(StripSlot::DayInt, rgb(255, 255, 255), black);        // clWhite
    set(StripSlot::DayIntExt, rgb(255, 255, 160), black);     // pale yellow
    set(StripSlot::NightExt, rgb(120, 200, 120), black);      // green
    set(StripSlot::NightInt, rgb(120, 160, 240), black);      // blue
    set(StripSlot::NightIntExt, rgb(120, 180, 180), black);   // blue-green
    set(StripSlot::DayDivider, black, rgb(255, 255, 255));    // clBlack, white text
    set(StripSlot::AutoRestDay, rgb(192, 192, 192), black);   // clSilver
    set(StripSlot::Banner, rgb(255, 176, 80), black);         // orange
    set(StripSlot::Unknown, rgb(255, 160, 200), black);       // pink
    return colours;
}

} // namespace tb
