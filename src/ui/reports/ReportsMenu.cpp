#include "ui/reports/ReportsMenu.h"

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
#include "ui/shell/CommandHost.h"
#include "ui/shell/MenuActions.h"

#include <QAction>

namespace tb {

namespace {

// Shows a dialog made once for the run (the main window owns it) modally.
std::function<void()> showDialog(QDialog *dialog)
{
    return [dialog] { dialog->exec(); };
}

} // namespace

MenuTable ReportsMenuEntries(CommandHost &host)
{
    CommandHost *h = &host;
    auto *sheets = new TfrmPrintBS(host.document(), host.window());
    // Each sheet's heading takes its strip's colour from the board's colours.
    sheets->boardStyle = [h] { return StyleFromSettings(h->settings()); };
    auto *elementSummary = new TfrmElUse(host.document(), host.window());
    auto *schedule = new TfrmShootSch(host.document(), host.window());
    auto *dood = new TfrmDOD(host.document(), host.window());
    auto *printBoard = new TfrmPrintIt(host.document(), host.settings(), host.window());
    // Printing clears the board's selection.
    printBoard->boardChanged = [h] { h->repaintBoard(); };
    auto *callSheet = new TfrmCallSheet(host.document(), host.window());
    callSheet->setSettings(&host.settings());
    // The call sheet needs dates: without a start date the user is asked for one first,
    // and the sheet opens only once one has been entered.
    auto openCallSheet = [h, callSheet] {
        ScheduleDocument &doc = h->document();
        if (!HasStartDate(doc)) {
            doc.prompter().information(QString::fromLatin1(CallSheetNeedsStartText));
            h->action(actions::Startdate1)->trigger();
            if (!HasStartDate(doc))
                return;
        }
        callSheet->exec();
    };

    using namespace actions;
    return {
        {.name = Breakdownsheets1, .caption = "&Breakdown sheets...", .handler = showDialog(sheets)},
        {.name = Callsheet1, .caption = "&Call sheet...", .handler = openCallSheet},
        {.name = Dayoutofdays1, .caption = "&Day out of days...", .handler = showDialog(dood)},
        {.name = Elementsummary1, .caption = "Element summary...", .handler = showDialog(elementSummary)},
        {.name = Productionboard1, .caption = "&Production board...", .handler = showDialog(printBoard)},
        {.name = Shootingschedule1,
         .caption = "&Shooting schedule...",
         .handler = showDialog(schedule),
         .addedShortcuts = {"Ctrl+P"}},
    };
}

} // namespace tb
