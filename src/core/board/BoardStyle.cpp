#include "board/BoardStyle.h"

#include "document/LegacyText.h"
#include "document/Settings.h"

namespace tb {

BoardStyle::BoardStyle()
    : fontName(SettingKeys::Font.fallback)
    , DescLine1(SettingKeys::DescLine1.fallback)
    , DescLine2(SettingKeys::DescLine2.fallback)
    , ShowShootingDays(SettingKeys::ShowShootingDays.fallback)
    , ScenePopups(SettingKeys::ScenePopups.fallback)
{
    background.fill(QColor(Qt::white));
    text.fill(QColor(Qt::black));
    for (int slot = 1; slot <= StripSlotCount; ++slot) {
        background[slot] = legacy::ColorValueToQColor(SettingKeys::StripBackground(slot).fallback);
        text[slot] = legacy::ColorValueToQColor(SettingKeys::StripText(slot).fallback);
    }
}

BoardStyle StyleFromSettings(const Settings &settings)
{
    BoardStyle style;
    for (int slot = 1; slot <= StripSlotCount; ++slot) {
        style.background[slot] = legacy::ColorValueToQColor(settings.stripBackground[slot]);
        style.text[slot] = legacy::ColorValueToQColor(settings.stripText[slot]);
    }
    style.fontName = settings.boardFont;
    style.DescLine1 = settings.descLine1;
    style.DescLine2 = settings.descLine2;
    style.ShowShootingDays = settings.showShootingDays;
    style.ScenePopups = settings.scenePopups;
    return style;
}

BoardStyle ClassicBoardStyle()
{
    BoardStyle style;
    const QColor black(Qt::black);
    style.setSlot(StripSlot::DayExt, QColor(255, 240, 120), black);
    style.setSlot(StripSlot::DayInt, QColor(255, 255, 255), black);
    style.setSlot(StripSlot::DayIntExt, QColor(255, 205, 140), black);
    style.setSlot(StripSlot::NightExt, QColor(150, 215, 150), black);
    style.setSlot(StripSlot::NightInt, QColor(150, 190, 240), black);
    style.setSlot(StripSlot::NightIntExt, QColor(195, 170, 230), black);
    style.setSlot(StripSlot::DayDivider, QColor(0, 0, 0), QColor(Qt::white));
    style.setSlot(StripSlot::AutoRestDay, QColor(215, 215, 215), black);
    style.setSlot(StripSlot::Banner, QColor(250, 190, 190), black);
    style.setSlot(StripSlot::Unknown, QColor(235, 235, 235), black);
    return style;
}

} // namespace tb
