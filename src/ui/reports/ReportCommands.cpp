#include "ui/reports/ReportCommands.h"

#include "board/BoardStyle.h"
#include "document/ScheduleDocument.h"
#include "reports/CallSheet.h"
#include "scheduling/Calendar.h"
#include "ui/reports/TfrmCallSheet.h"
#include "ui/reports/TfrmDOD.h"
#include "ui/reports/TfrmElUse.h"
#include "ui/reports/TfrmPrintBS.h"
#include "ui/reports/TfrmPrintIt.h"
#include "ui/reports/TfrmShootSch.h"
#include "ui/scheduling/SchedulingMenu.h"
#include "ui/shell/CommandHost.h"
#include "ui/shell/MenuActions.h"

#include <QAction>

namespace tb {

namespace {

template <typename Dialog>
Dialog *install(CommandHost &host, const char *actionName)
{
    auto *dialog = new Dialog(host.document(), host.window()); // owned by the main window
    dialog->showHelp = [&host](const QString &page) { host.showHelp(page); };
    QObject::connect(host.action(actionName), &QAction::triggered, dialog, [dialog] { dialog->exec(); });
    return dialog;
}

} // namespace

void InstallReportCommands(CommandHost &host)
{
    auto *sheets = install<TfrmPrintBS>(host, actions::Breakdownsheets1);
    // Each sheet's heading takes its strip's colour from the board's colours.
    sheets->boardStyle = [&host] { return StyleFromSettings(host.settings()); };
    install<TfrmElUse>(host, actions::Elementsummary1);
    install<TfrmShootSch>(host, actions::Shootingschedule1);

    // The call sheet needs dates: without a start date the user is asked for one first,
    // and the sheet opens only once one has been entered.
    auto *callSheet = new TfrmCallSheet(host.document(), host.window()); // owned by the main window
    callSheet->showHelp = [&host](const QString &page) { host.showHelp(page); };
    callSheet->setSettings(&host.settings());
    QObject::connect(host.action(actions::Callsheet1), &QAction::triggered, callSheet, [&host, callSheet] {
        ScheduleDocument &doc = host.document();
        if (!HasStartDate(doc)) {
            doc.prompter().information(QString::fromLatin1(CallSheetNeedsStartText));
            if (SchedulingCommands *scheduling = FindSchedulingCommands(host))
                scheduling->Startdate1Click();
            if (!HasStartDate(doc))
                return;
        }
        callSheet->exec();
    });

    install<TfrmDOD>(host, actions::Dayoutofdays1);

    auto *printIt = new TfrmPrintIt(host.document(), host.settings(), host.window()); // owned by the main window
    printIt->showHelp = [&host](const QString &page) { host.showHelp(page); };
    printIt->boardChanged = [&host] { host.repaintBoard(); };
    QObject::connect(host.action(actions::Productionboard1), &QAction::triggered, printIt,
                     [printIt] { printIt->exec(); });
}

} // namespace tb
