#include "ui/reports/ReportsMenu.h"

#include "board/BoardStyle.h"

#include "ui/reports/TfrmElUse.h"
#include "ui/reports/TfrmPrintBS.h"
#include "ui/reports/TfrmShootSch.h"
#include "ui/shell/CommandHost.h"
#include "ui/shell/MenuActions.h"

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

    using namespace actions;
    return {
        {.name = Breakdownsheets1, .caption = "&Breakdown sheets...", .handler = showDialog(sheets)},
        {.name = Callsheet1, .caption = "&Call sheet..."},
        {.name = Dayoutofdays1, .caption = "&Day out of days..."},
        {.name = Elementsummary1, .caption = "Element summary...", .handler = showDialog(elementSummary)},
        {.name = Productionboard1, .caption = "&Production board..."},
        {.name = Shootingschedule1,
         .caption = "&Shooting schedule...",
         .handler = showDialog(schedule),
         .addedShortcuts = {"Ctrl+P"}},
    };
}

} // namespace tb
