#include "document/BoardPreferences.h"

#include <iterator>

namespace tb {

namespace {

const char *const SlotCaptions[StripSlotCount] = {"Day - Ext",   "Day - Int",       "Day - Int/Ext", "Night - Ext",
                                                  "Night - Int", "Night - Int/Ext", "Day divider",   "Auto rest day",
                                                  "Banner",      "Unknown"};

struct DescLineChoice
{
    const char *item;
    int code;
};

const DescLineChoice DescLineChoices[] = {
    {"Location", DescLineCodes::Location}, {"Synopsis", DescLineCodes::Synopsis},
    {"Sequence", DescLineCodes::Sequence}, {"Scene number(s)", DescLineCodes::SceneNumbers},
    {"Notes", DescLineCodes::Notes},
};
constexpr int DescLineChoiceCount = int(std::size(DescLineChoices));

} // namespace

QString StripSlotCaption(StripSlot slot)
{
    const int index = static_cast<int>(slot) - 1;
    if (index < 0 || index >= StripSlotCount)
        return {};
    return QString::fromLatin1(SlotCaptions[index]);
}

QStringList DescLineItems()
{
    QStringList items;
    for (const DescLineChoice &choice : DescLineChoices)
        items.append(QString::fromLatin1(choice.item));
    return items;
}

int DescLineCode(int itemIndex)
{
    if (itemIndex < 0 || itemIndex >= DescLineChoiceCount)
        return 0;
    return DescLineChoices[itemIndex].code;
}

int DescLineItemIndex(int code)
{
    for (int i = 0; i < DescLineChoiceCount; ++i) {
        if (DescLineChoices[i].code == code)
            return i;
    }
    return -1;
}

} // namespace tb
