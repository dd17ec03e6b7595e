#include "board/BoardStyle.h"

namespace tb {

QString StripSlotCaption(StripSlot slot)
{
    switch (slot) {
    case StripSlot::DayExt:
        return QStringLiteral("Day - Ext");
    case StripSlot::DayInt:
        return QStringLiteral("Day - Int");
    case StripSlot::DayIntExt:
        return QStringLiteral("Day - Int/Ext");
    case StripSlot::NightExt:
        return QStringLiteral("Night - Ext");
    case StripSlot::NightInt:
        return QStringLiteral("Night - Int");
    case StripSlot::NightIntExt:
        return QStringLiteral("Night - Int/Ext");
    case StripSlot::DayDivider:
        return QStringLiteral("Day divider");
    case StripSlot::AutoRestDay:
        return QStringLiteral("Auto rest day");
    case StripSlot::Banner:
        return QStringLiteral("Banner");
    case StripSlot::Unknown:
        break;
    }
    return QStringLiteral("Unknown");
}

BoardStyle::BoardStyle()
{
    background.fill(QColor(Qt::white));
    text.fill(QColor(Qt::black));
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
