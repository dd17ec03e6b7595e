#pragma once

#include "scheduling/Banners.h"
#include "ui/shell/MenuEntry.h"

#include <QObject>

namespace tb {

class CommandHost;
class ScheduleDocument;
class TfrmAutoPages;
class TfrmBanner;
class TfrmCalender;
class TfrmDate;
class TfrmEOD;
class TfrmHold;
class TfrmLockStrip;
class TfrmStartDate1;

// The main window's scheduling commands: day dividers, banners, the calendar, hold
// days, end of day and strip locks. Created once by SchedulingMenuEntries as a child
// of the main window; it creates each dialog once and keeps it for the run.
class SchedulingCommands : public QObject
{
    Q_OBJECT

public:
    explicit SchedulingCommands(CommandHost &host);

    // The "Banner" colour pair of the preferences: the colours of new banners and of
    // converted rest days.
    BannerColours bannerColours() const;

    // The handlers, by the names of the commands they serve.
    void AdddaydividerClick();
    void InsertdaydividerClick();
    void Removealldaydividers1Click();
    void AutomaticdaydividersClick();
    void Addbanner1Click();
    void Insertbanner1Click();
    void EditBanner1Click(); // also what a double click on a banner does
    void Removeallbanners1Click();
    void Convertautorestdaystobanners1Click();
    void Startdate1Click();
    void Autorestdays1Click();
    void Holddays1Click();
    void Endofday1Click();
    void Lockstriptodate1Click();

    TfrmAutoPages *autoPagesDialog() const { return m_autoPages; }
    TfrmBanner *bannerDialog() const { return m_banner; }
    TfrmCalender *calenderDialog() const { return m_calender; }
    TfrmDate *dateDialog() const { return m_date; }
    TfrmEOD *endOfDayDialog() const { return m_endOfDay; }
    TfrmHold *holdDialog() const { return m_hold; }
    TfrmLockStrip *lockStripDialog() const { return m_lockStrip; }
    TfrmStartDate1 *startDateDialog() const { return m_startDate; }

private:
    ScheduleDocument &doc() const;
    void openBannerDialog(BannerMode mode);

    CommandHost &m_host;
    TfrmDate *m_date;
    TfrmCalender *m_calender;
    TfrmAutoPages *m_autoPages;
    TfrmStartDate1 *m_startDate;
    TfrmBanner *m_banner;
    TfrmLockStrip *m_lockStrip;
    TfrmEOD *m_endOfDay;
    TfrmHold *m_hold;
};

// The scheduling entries of the Production and Strips menus and of the board's pop-up,
// served by a SchedulingCommands made now.
MenuTable SchedulingMenuEntries(CommandHost &host);

} // namespace tb
