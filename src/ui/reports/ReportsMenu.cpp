#include "ui/reports/ReportsMenu.h"

#include "ui/reports/TfrmElUse.h"
#include "ui/reports/TfrmPrintBS.h"
#include "ui/reports/TfrmShootSch.h"
#include "ui/shell/CommandHost.h"
#include "ui/shell/MenuActions.h"

namespace tb {

namespace {

// The dialog, made once for the run (the main window owns it), shown modally.
template <typename Dialog>
std::function<void()> showDialog(CommandHost &host)
{
    auto *dialog = new Dialog(host.document(), host.window());
    return [dialog] { dialog->exec(); };
}

} // namespace

MenuTable ReportsMenuEntries(CommandHost &host)
{
    using namespace actions;
    return {
        {.name = Breakdownsheets1, .caption = "&Breakdown sheets...", .handler = showDialog<TfrmPrintBS>(host)},
        {.name = Callsheet1, .caption = "&Call sheet..."},
        {.name = Dayoutofdays1, .caption = "&Day out of days..."},
        {.name = Elementsummary1, .caption = "Element summary...", .handler = showDialog<TfrmElUse>(host)},
        {.name = Productionboard1, .caption = "&Production board..."},
        {.name = Shootingschedule1,
         .caption = "&Shooting schedule...",
         .handler = showDialog<TfrmShootSch>(host),
         .addedShortcuts = {"Ctrl+P"}},
    };
}

} // namespace tb
