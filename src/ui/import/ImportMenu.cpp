#include "ui/import/ImportMenu.h"

#include "import/ImportCommandSteps.h"
#include "ui/import/TfrmFDImport.h"
#include "ui/import/TfrmImportScript.h"

#include "ui/shell/CommandHost.h"
#include "ui/shell/MenuActions.h"

#include <QAction>

namespace tb {

MenuTable ImportMenuEntries(CommandHost &host)
{
    auto *wizard = new TfrmImportScript(host.document(), host.window());
    auto *finalDraft = new TfrmFDImport(host.document(), host.window());
    CommandHost *h = &host;

    // The main window's Save: saves to the document's file, or asks for one.
    auto save = [h] { h->action(actions::Save1)->trigger(); };

    // The wizard empties the document only when Import! is clicked; the question
    // about unsaved changes comes then, so that cancelling the wizard loses nothing.
    wizard->beforeImport = [h, save] { return AskToSaveBeforeScriptImport(h->document(), save); };

    using namespace actions;
    return {
        {.name = Importscript1,
         .caption = "&Import script...",
         .handler =
             [h, wizard] {
                 wizard->exec();
                 h->repaintBoard();
             }},
        {.name = ImportFinalDraft1,
         .caption = "Import &Final Draft reports...",
         .handler =
             [h, finalDraft, save] {
                 if (!BeginFinalDraftImport(h->document(), save))
                     return;
                 finalDraft->exec();
                 EndFinalDraftImport(h->document());
                 h->repaintBoard();
             }},
    };
}

} // namespace tb
