#include "ui/scheduling/SchedulingMenu.h"

#include "document/CommandState.h"
#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"
#include "document/Settings.h"
#include "scheduling/Banners.h"
#include "scheduling/DayDividers.h"
#include "ui/scheduling/TfrmAutoPages.h"
#include "ui/scheduling/TfrmBanner.h"
#include "ui/scheduling/TfrmCalender.h"
#include "ui/scheduling/TfrmDate.h"
#include "ui/scheduling/TfrmEOD.h"
#include "ui/scheduling/TfrmHold.h"
#include "ui/scheduling/TfrmLockStrip.h"
#include "ui/scheduling/TfrmStartDate1.h"
#include "ui/shell/CommandHost.h"
#include "ui/shell/MenuActions.h"

#include <QWidget>

namespace tb {

namespace {

void report(ScheduleDocument &doc, const Result &result)
{
    if (!result.ok() && !result.message().isEmpty())
        doc.prompter().error(result.message());
}

} // namespace

SchedulingCommands::SchedulingCommands(CommandHost &host)
    : QObject(host.window())
    , m_host(host)
{
    setObjectName(QStringLiteral("SchedulingCommands"));
    QWidget *window = host.window();
    ScheduleDocument &document = host.document();
    // Created in the program's start-up order, each once for the whole run.
    m_date = new TfrmDate(document, window);
    m_calender = new TfrmCalender(document, window);
    m_autoPages = new TfrmAutoPages(document, window);
    m_startDate = new TfrmStartDate1(document, window);
    m_banner = new TfrmBanner(document, window);
    m_lockStrip = new TfrmLockStrip(document, window);
    m_endOfDay = new TfrmEOD(document, window);
    m_hold = new TfrmHold(document, window);
}

ScheduleDocument &SchedulingCommands::doc() const
{
    return m_host.document();
}

BannerColours SchedulingCommands::bannerColours() const
{
    const Settings &settings = m_host.settings();
    return {legacy::ColorValueToString(settings.stripBackground[static_cast<int>(StripSlot::Banner)]),
            legacy::ColorValueToString(settings.stripText[static_cast<int>(StripSlot::Banner)])};
}

void SchedulingCommands::openBannerDialog(BannerMode mode)
{
    // New banners start in the colours the preferences hold now.
    m_banner->setDefaultColours(bannerColours());
    m_banner->setMode(mode);
    m_banner->exec();
}

void SchedulingCommands::AdddaydividerClick()
{
    report(doc(), AddDayDivider(doc()));
}

void SchedulingCommands::InsertdaydividerClick()
{
    report(doc(), InsertDayDivider(doc()));
}

void SchedulingCommands::Removealldaydividers1Click()
{
    RemoveAllDayDividers(doc());
}

void SchedulingCommands::AutomaticdaydividersClick()
{
    m_autoPages->exec();
}

void SchedulingCommands::Addbanner1Click()
{
    openBannerDialog(BannerAddAtEnd);
}

void SchedulingCommands::Insertbanner1Click()
{
    if (!CanInsertBanner(doc()))
        return;
    openBannerDialog(BannerInsert);
}

void SchedulingCommands::EditBanner1Click()
{
    if (!CanEditBanner(doc()))
        return;
    openBannerDialog(BannerEdit);
}

void SchedulingCommands::Removeallbanners1Click()
{
    RemoveAllBanners(doc());
}

void SchedulingCommands::Convertautorestdaystobanners1Click()
{
    ConvertAutoRestDaysToBanners(doc(), bannerColours());
}

void SchedulingCommands::Startdate1Click()
{
    m_startDate->exec();
    // The board shows the new dates once the dialog is gone.
    m_host.repaintBoard();
}

void SchedulingCommands::Autorestdays1Click()
{
    m_calender->exec();
}

void SchedulingCommands::Holddays1Click()
{
    m_hold->exec();
}

void SchedulingCommands::Endofday1Click()
{
    m_endOfDay->exec();
}

void SchedulingCommands::Lockstriptodate1Click()
{
    m_lockStrip->exec();
}

MenuTable SchedulingMenuEntries(CommandHost &host)
{
    auto *commands = new SchedulingCommands(host); // owned by the main window
    const auto run = [commands](void (SchedulingCommands::*handler)()) {
        return [commands, handler] { (commands->*handler)(); };
    };
    using namespace actions;
    using C = SchedulingCommands;
    return {
        // Production
        {.name = Startdate1, .caption = "&Start date...", .handler = run(&C::Startdate1Click)},
        {.name = Holddays1, .caption = "Hold days...", .handler = run(&C::Holddays1Click)},
        {.name = Endofday1, .caption = "&End of day...", .shortcut = "Ctrl+E", .handler = run(&C::Endofday1Click)},
        // Strips
        {.name = Lockstriptodate1,
         .caption = "Lock / un-lock to date...",
         .enabledWhen = HasSelectedStrip,
         .handler = run(&C::Lockstriptodate1Click)},
        {.name = Adddaydivider1,
         .caption = "Add &day divider at end",
         .shortcut = "Shift+Ins",
         .handler = run(&C::AdddaydividerClick)},
        {.name = Insertdaydivider1,
         .caption = "I&nsert day divider",
         .enabledWhen = HasSelectedStrip,
         .handler = run(&C::InsertdaydividerClick)},
        {.name = Removealldaydividers1,
         .caption = "&Remove all day dividers...",
         .enabledWhen = HasDayDividers,
         .handler = run(&C::Removealldaydividers1Click)},
        {.name = Addbanner1,
         .caption = "Add &banner at end...",
         .shortcut = "Ctrl+Ins",
         .handler = run(&C::Addbanner1Click)},
        {.name = Insertbanner1,
         .caption = "In&sert banner...",
         .enabledWhen = HasSelectedStrip,
         .handler = run(&C::Insertbanner1Click)},
        {.name = EditBanner1,
         .caption = "Edi&t banner...",
         .enabledWhen = FirstSelectedIsBanner,
         .handler = run(&C::EditBanner1Click)},
        {.name = Removeallbanners1,
         .caption = "Re&move all banners...",
         .enabledWhen = HasBanners,
         .handler = run(&C::Removeallbanners1Click)},
        {.name = Automaticdaydividers1,
         .caption = "A&uto pages-per-day...",
         .enabledWhen = HasStrips,
         .handler = run(&C::AutomaticdaydividersClick)},
        {.name = Autorestdays1, .caption = "Aut&o rest days...", .handler = run(&C::Autorestdays1Click)},
        {.name = Convertautorestdaystobanners1,
         .caption = "Convert auto-rest days to banners...",
         .enabledWhen = HasAutoRestDays,
         .handler = run(&C::Convertautorestdaystobanners1Click)},
        // The board's pop-up
        {.name = PopLockstrip1,
         .caption = "Lock / un-lock to date...",
         .enabledWhen = HasSelectedStrip,
         .handler = run(&C::Lockstriptodate1Click)},
        {.name = PopAdddaydivider1,
         .caption = "Add day divider at end...",
         .shortcut = "Shift+Ins",
         .handler = run(&C::AdddaydividerClick)},
        {.name = PopInsertdaydivider1,
         .caption = "Insert day divider...",
         .enabledWhen = HasSelectedStrip,
         .handler = run(&C::InsertdaydividerClick)},
    };
}

} // namespace tb
