#include "ui/scheduling/SchedulingMenu.h"

#include "document/ScheduleDocument.h"
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

#include <QAction>
#include <QWidget>

namespace tb {

namespace {

const char *const ObjectName = "SchedulingCommands";

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
    setObjectName(QLatin1String(ObjectName));
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

    const QList<SchedulingDialog *> dialogs{m_date,   m_calender,  m_autoPages, m_startDate,
                                            m_banner, m_lockStrip, m_endOfDay,  m_hold};
    for (SchedulingDialog *dialog : dialogs)
        connect(dialog, &SchedulingDialog::helpRequested, this, [this](const QString &page) { m_host.showHelp(page); });

    connectAction(actions::Adddaydivider1, &SchedulingCommands::AdddaydividerClick);
    connectAction(actions::PopAdddaydivider1, &SchedulingCommands::AdddaydividerClick);
    connectAction(actions::Insertdaydivider1, &SchedulingCommands::InsertdaydividerClick);
    connectAction(actions::PopInsertdaydivider1, &SchedulingCommands::InsertdaydividerClick);
    connectAction(actions::Removealldaydividers1, &SchedulingCommands::Removealldaydividers1Click);
    connectAction(actions::Automaticdaydividers1, &SchedulingCommands::AutomaticdaydividersClick);
    connectAction(actions::Addbanner1, &SchedulingCommands::Addbanner1Click);
    connectAction(actions::Insertbanner1, &SchedulingCommands::Insertbanner1Click);
    connectAction(actions::EditBanner1, &SchedulingCommands::EditBanner1Click);
    connectAction(actions::Removeallbanners1, &SchedulingCommands::Removeallbanners1Click);
    connectAction(actions::Convertautorestdaystobanners1, &SchedulingCommands::Convertautorestdaystobanners1Click);
    connectAction(actions::Startdate1, &SchedulingCommands::Startdate1Click);
    connectAction(actions::Autorestdays1, &SchedulingCommands::Autorestdays1Click);
    connectAction(actions::Holddays1, &SchedulingCommands::Holddays1Click);
    connectAction(actions::Endofday1, &SchedulingCommands::Endofday1Click);
    connectAction(actions::Lockstriptodate1, &SchedulingCommands::Lockstriptodate1Click);
    connectAction(actions::PopLockstrip1, &SchedulingCommands::Lockstriptodate1Click);
}

void SchedulingCommands::connectAction(const char *name, void (SchedulingCommands::*handler)())
{
    if (QAction *action = m_host.action(name))
        connect(action, &QAction::triggered, this, handler);
}

ScheduleDocument &SchedulingCommands::doc() const
{
    return m_host.document();
}

void SchedulingCommands::setBannerColours(const BannerColours &colours)
{
    m_bannerColours = colours;
    m_banner->setDefaultColours(colours);
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
    m_banner->setMode(BannerAddAtEnd);
    m_banner->exec();
}

void SchedulingCommands::Insertbanner1Click()
{
    if (!CanInsertBanner(doc()))
        return;
    m_banner->setMode(BannerInsert);
    m_banner->exec();
}

void SchedulingCommands::EditBanner1Click()
{
    if (!CanEditBanner(doc()))
        return;
    m_banner->setMode(BannerEdit);
    m_banner->exec();
}

void SchedulingCommands::Removeallbanners1Click()
{
    RemoveAllBanners(doc());
}

void SchedulingCommands::Convertautorestdaystobanners1Click()
{
    ConvertAutoRestDaysToBanners(doc(), m_bannerColours);
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

void InstallSchedulingCommands(CommandHost &host)
{
    if (!FindSchedulingCommands(host))
        new SchedulingCommands(host); // owned by the main window
}

SchedulingCommands *FindSchedulingCommands(CommandHost &host)
{
    QWidget *window = host.window();
    return window ? window->findChild<SchedulingCommands *>(QLatin1String(ObjectName), Qt::FindDirectChildrenOnly)
                  : nullptr;
}

} // namespace tb
