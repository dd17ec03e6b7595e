#include "ui/import/InstallImportCommands.h"

#include "import/ImportCommandSteps.h"
#include "ui/import/TfrmFDImport.h"
#include "ui/import/TfrmImportScript.h"

#include "ui/shell/CommandHost.h"
#include "ui/shell/MenuActions.h"

#include <QAction>

namespace tb {

void InstallImportCommands(CommandHost &host)
{
    auto *wizard = new TfrmImportScript(host.document(), host.window());
    auto *finalDraft = new TfrmFDImport(host.document(), host.window());

    // The main window's Save: saves to the document's file, or asks for one.
    auto save = [&host] { host.action(actions::Save1)->trigger(); };

    // The wizard empties the document only when Import! is clicked; the question
    // about unsaved changes comes then, so that cancelling the wizard loses nothing.
    wizard->beforeImport = [&host, save] { return AskToSaveBeforeScriptImport(host.document(), save); };
    QObject::connect(host.action(actions::Importscript1), &QAction::triggered, wizard, [&host, wizard] {
        wizard->exec();
        host.repaintBoard();
    });

    QObject::connect(host.action(actions::ImportFinalDraft1), &QAction::triggered, finalDraft,
                     [&host, finalDraft, save] {
                         if (!BeginFinalDraftImport(host.document(), save))
                             return;
                         finalDraft->exec();
                         EndFinalDraftImport(host.document());
                         host.repaintBoard();
                     });

    QObject::connect(wizard, &TfrmImportScript::helpRequested, wizard,
                     [&host](const QString &page) { host.showHelp(page); });
    QObject::connect(finalDraft, &TfrmFDImport::helpRequested, finalDraft,
                     [&host](const QString &page) { host.showHelp(page); });
}

} // namespace tb
