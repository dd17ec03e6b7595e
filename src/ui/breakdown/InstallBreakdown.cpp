#include "ui/breakdown/InstallBreakdown.h"

#include "breakdown/ElementEditing.h"
#include "breakdown/StripOrder.h"
#include "ui/breakdown/TfrmAddElement.h"
#include "ui/breakdown/TfrmConform.h"
#include "ui/breakdown/TfrmProdInfo.h"
#include "ui/breakdown/TfrmSort.h"
#include "ui/breakdown/TfrmStrip.h"

#include "document/ScheduleDocument.h"
#include "ui/shell/CommandHost.h"
#include "ui/shell/MenuActions.h"

#include <QAction>

namespace tb {

namespace {

template <typename Dialog>
void connectHelp(CommandHost *host, Dialog *dialog)
{
    QObject::connect(dialog, &Dialog::helpRequested, dialog, [host](const QString &page) { host->showHelp(page); });
}

void connectAction(CommandHost &host, const char *name, QObject *context, const std::function<void()> &handler)
{
    if (QAction *action = host.action(name))
        QObject::connect(action, &QAction::triggered, context, [handler] { handler(); });
}

} // namespace

void InstallBreakdownCommands(CommandHost &host)
{
    CommandHost *h = &host;
    ScheduleDocument &doc = host.document();
    QWidget *window = host.window();

    auto *elementDialog = new TfrmAddElement(doc, window);
    auto *stripDialog = new TfrmStrip(doc, window);
    auto *prodDialog = new TfrmProdInfo(doc, window);
    auto *sortDialog = new TfrmSort(doc, window);
    auto *conformDialog = new TfrmConform(doc, window);
    // The scene editor's "Add new..." and the element menu share one element dialog,
    // so the category last right-clicked in the scene editor is the one new elements
    // start in.
    stripDialog->setElementDialog(elementDialog);
    connectHelp(h, elementDialog);
    connectHelp(h, stripDialog);
    connectHelp(h, prodDialog);
    connectHelp(h, sortDialog);
    connectHelp(h, conformDialog);

    // Scenes: the mode decides what OK does (1 append, 9 insert at the selected strip,
    // 4 edit the selected strip).
    auto openScene = [h, stripDialog](int mode) {
        ScheduleDocument &d = h->document();
        const int current = d.SelStart;
        const bool valid = current >= 1 && current <= d.strips.count();
        if (mode == SceneMode::Insert && !valid)
            return;
        // Only a scene strip opens for editing; dividers and banners have editors of their own.
        if (mode == SceneMode::Edit && !(valid && d.strips[current].isScene()))
            return;
        stripDialog->editMode = mode;
        stripDialog->currentStrip = valid ? current : 0;
        stripDialog->exec();
        h->repaintBoard();
    };
    for (const char *name : {actions::Addscene1, actions::PopAddscene1})
        connectAction(host, name, stripDialog, [openScene] { openScene(SceneMode::Add); });
    for (const char *name : {actions::Insertscene1, actions::PopInsertscene1})
        connectAction(host, name, stripDialog, [openScene] { openScene(SceneMode::Insert); });
    for (const char *name : {actions::Editscene1, actions::PopEditscene1})
        connectAction(host, name, stripDialog, [openScene] { openScene(SceneMode::Edit); });

    // Elements.
    auto openElement = [h, elementDialog](bool edit) {
        ScheduleDocument &d = h->document();
        if (edit && !(d.SelElement >= 1 && d.SelElement <= d.elements.count()))
            return;
        elementDialog->editIndex = edit ? d.SelElement : -1;
        elementDialog->exec();
        h->repaintBoard();
    };
    for (const char *name : {actions::Addelement1, actions::PopAddelement1})
        connectAction(host, name, elementDialog, [openElement] { openElement(false); });
    for (const char *name : {actions::Editelement1, actions::PopEditelement1})
        connectAction(host, name, elementDialog, [openElement] { openElement(true); });
    connectAction(host, actions::Reordercastnumbering1, elementDialog, [h] { ResetCastNumbering(h->document()); });
    connectAction(host, actions::Sortelements1, elementDialog, [h] { SortElementsByCategory(h->document()); });

    // Production details.
    connectAction(host, actions::Maindetails1, prodDialog, [h, prodDialog] {
        prodDialog->exec();
        h->repaintBoard();
    });

    // Whole-table strip commands.
    connectAction(host, actions::Sortstrips1, sortDialog, [h, sortDialog] {
        sortDialog->exec();
        h->repaintBoard();
    });
    connectAction(host, actions::Conformstriporder1, conformDialog, [h, conformDialog] {
        conformDialog->exec();
        h->repaintBoard();
    });
    connectAction(host, actions::Resetbreakdownnumbering1, sortDialog, [h] { ResetBreakdownNumbering(h->document()); });
}

} // namespace tb
