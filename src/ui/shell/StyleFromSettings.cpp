#include "ui/shell/StyleFromSettings.h"

#include "document/LegacyText.h"
#include "document/Settings.h"

namespace tb {

BoardStyle StyleFromSettings(const Settings &settings)
{
    BoardStyle style;
    for (int slot = 1; slot <= ColourSlotCount; ++slot) {
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

} // namespace tb
