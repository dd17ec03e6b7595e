#include "scheduling/Banners.h"

#include "document/DayCalculation.h"
#include "document/DocumentEdit.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"

namespace tb {

namespace {

bool hasSelectedStrip(const ScheduleDocument &doc)
{
    return doc.SelStart >= 1 && doc.SelStart <= doc.strips.count();
}

QString colourPair(const BannerColours &colours)
{
    return colours.background + u',' + colours.text;
}

} // namespace

bool HasBanners(const ScheduleDocument &doc)
{
    return doc.days.banners > 0;
}

bool FirstSelectedIsBanner(const ScheduleDocument &doc)
{
    return hasSelectedStrip(doc) && doc.strips[doc.SelStart].isBanner();
}

bool HasAutoRestDays(const ScheduleDocument &doc)
{
    for (int i = 1; i <= doc.strips.count(); ++i) {
        if (doc.strips[i].isAutoRestDay())
            return true;
    }
    return false;
}

bool CanInsertBanner(ScheduleDocument &doc)
{
    if (hasSelectedStrip(doc))
        return true;
    doc.prompter().error(QStringLiteral("You need to select a strip before inserting a banner."));
    return false;
}

bool CanEditBanner(ScheduleDocument &doc)
{
    if (hasSelectedStrip(doc))
        return true;
    doc.prompter().error(QStringLiteral("You need to select a banner before you can edit it."));
    return false;
}

BannerContent ReadBanner(const ScheduleDocument &doc, int row, const BannerColours &fallback)
{
    const StripRecord &strip = doc.strips[row];
    BannerContent content;
    content.text = strip[StripField::Synopsis];

    const QString &colours = strip[StripField::StripColour];
    const qsizetype comma = colours.indexOf(u',');
    if (comma >= 0) {
        content.colours.background = colours.left(comma);
        content.colours.text = colours.mid(comma + 1, 20);
    } else {
        content.colours = fallback;
    }

    // The day count is compared as text: blank and "0" (and anything sorting before
    // "0") mean no day change; anything else is read as a number for the spin box.
    const QString &days = strip[StripField::DayCount];
    if (QString::compare(days, QStringLiteral("0")) <= 0)
        content.days = 0;
    else
        content.days = qBound(MinBannerDays, legacy::StrToIntDef(days, MinBannerDays), MaxBannerDays);
    return content;
}

Result WriteBanner(ScheduleDocument &doc, BannerMode mode, const BannerContent &content)
{
    if (mode != BannerAddAtEnd && !hasSelectedStrip(doc))
        return Result::failure(mode == BannerInsert
                                   ? QStringLiteral("You need to select a strip before inserting a banner.")
                                   : QStringLiteral("You need to select a banner before you can edit it."));
    if (mode != BannerEdit && !doc.strips.canGrow(1))
        return Result::failure(StripTable::fullMessage());

    DocumentEdit edit(doc, mode == BannerAddAtEnd ? QStringLiteral("Add banner")
                           : mode == BannerInsert ? QStringLiteral("Insert banner")
                                                  : QStringLiteral("Edit banner"));
    int row = 0;
    switch (mode) {
    case BannerAddAtEnd:
        row = doc.strips.count() + 1;
        (void)doc.strips.insertRows(row, 1); // room checked above
        break;
    case BannerInsert:
        row = doc.SelStart;
        (void)doc.strips.insertRows(row, 1);
        break;
    case BannerEdit:
        row = doc.SelStart;
        break;
    }

    // The row is cleared even when a banner is edited: it keeps its place, and
    // nothing else it held survives.
    StripRecord banner;
    banner.set(StripField::StripKind, StripKinds::Banner);
    banner.set(StripField::Synopsis, content.text);
    banner.set(StripField::StripColour, colourPair(content.colours));
    banner.set(StripField::DayCount, QString::number(content.days > 0 ? content.days : 0));
    doc.strips[row] = banner;

    // A banner added at the end is brought into view.
    if (mode == BannerAddAtEnd)
        edit.scrollToStrip(row - 4);
    return Result::success();
}

bool RemoveAllBanners(ScheduleDocument &doc)
{
    if (!doc.prompter().confirm(QStringLiteral("Are you sure you wish to remove ALL banners from the schedule?")))
        return false;
    DocumentEdit edit(doc, QStringLiteral("Remove all banners"));
    RemoveStripsOfKind(doc, StripKinds::Banner);
    edit.scrollToStrip(1);
    // The commands and the pages panel follow the cleared selection.
    doc.SelStart = 0;
    doc.SelEnd = 0;
    return true;
}

bool ConvertAutoRestDaysToBanners(ScheduleDocument &doc, const BannerColours &colours)
{
    if (!doc.prompter().confirm(
            QStringLiteral("This feature will convert all auto-rest days to normal 1 day banners, and remove all rest "
                           "day settings.\r\rWARNING: This operation cannot be un-done. Are you sure you wish to "
                           "proceed?")))
        return false;

    // No undo snapshot: the question has told the user this cannot be undone.
    DocumentEdit edit(doc);
    const QString pair = colourPair(colours);
    const StripTable &rows = doc.strips;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        if (!rows[i].isAutoRestDay())
            continue;
        // The day number and date the rest day carried stay as they are.
        StripRecord &strip = doc.strips[i];
        strip.set(StripField::StripKind, StripKinds::Banner);
        strip.set(StripField::DayCount, QStringLiteral("1"));
        strip.set(StripField::Synopsis, QStringLiteral("REST DAY"));
        strip.set(StripField::StripColour, pair);
    }
    // Without the rule no new rest days appear in their place.
    doc.values.AutoRestDayRule.clear();
    return true;
}

} // namespace tb
