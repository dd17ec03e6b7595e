#include "ui/breakdown/BreakdownMenu.h"

#include "breakdown/ElementEditing.h"
#include "breakdown/StripOrder.h"
#include "ui/breakdown/TfrmAddElement.h"
#include "ui/breakdown/TfrmConform.h"
#include "ui/breakdown/TfrmProdInfo.h"
#include "ui/breakdown/TfrmSort.h"
#include "ui/breakdown/TfrmStrip.h"

#include "document/CommandState.h"
#include "document/ScheduleDocument.h"
#include "ui/shell/CommandHost.h"
#include "ui/shell/MenuActions.h"

namespace tb {

MenuTable BreakdownMenuEntries(CommandHost &host)
{
    CommandHost *h = &host;
    ScheduleDocument &doc = host.document();
    QWidget *window = host.window();

    auto *elementDialog = new TfrmAddElement(doc, window);
    auto *stripDialog = new TfrmStrip(doc, host.settings(), window);
    auto *prodDialog = new TfrmProdInfo(doc, window);
    auto *sortDialog = new TfrmSort(doc, window);
    auto *conformDialog = new TfrmConform(doc, window);
    // The scene editor's "Add new..." and the element menu share one element dialog,
    // so the category last right-clicked in the scene editor is the one new elements
    // start in.
    stripDialog->setElementDialog(elementDialog);

    // Scenes: the mode decides what OK does (1 append, 9 insert at the selected strip,
    // 4 edit the selected strip).
    auto openScene = [h, stripDialog](int mode) {
        return [h, stripDialog, mode] {
            ScheduleDocument &d = h->document();
            const bool valid = HasSelectedStrip(d);
            if (mode == SceneMode::Insert && !valid)
                return;
            // Only a scene strip opens for editing; dividers and banners have editors of their own.
            if (mode == SceneMode::Edit && !FirstSelectedIsScene(d))
                return;
            stripDialog->editMode = mode;
            stripDialog->currentStrip = valid ? d.SelStart : 0;
            stripDialog->exec();
            h->repaintBoard();
        };
    };
    auto openElement = [h, elementDialog](bool edit) {
        return [h, elementDialog, edit] {
            ScheduleDocument &d = h->document();
            if (edit && !HasSelectedElement(d))
                return;
            elementDialog->editIndex = edit ? d.SelElement : -1;
            elementDialog->exec();
            h->repaintBoard();
        };
    };
    auto show = [h](QDialog *dialog) {
        return [h, dialog] {
            dialog->exec();
            h->repaintBoard();
        };
    };

    using namespace actions;
    return {
        // Production
        {.name = Maindetails1, .caption = "&Main details...", .handler = show(prodDialog)},
        // Strips
        {.name = Addscene1, .caption = "&Add scene at end...", .shortcut = "Ins", .handler = openScene(SceneMode::Add)},
        {.name = Insertscene1,
         .caption = "&Insert scene...",
         .shortcut = "Shift+Ins",
         .enabledWhen = HasSelectedStrip,
         .handler = openScene(SceneMode::Insert)},
        {.name = Editscene1,
         .caption = "&Edit scene...",
         .shortcut = "Ctrl+Ins",
         .enabledWhen = FirstSelectedIsScene,
         .handler = openScene(SceneMode::Edit)},
        {.name = Sortstrips1, .caption = "Sort stri&ps...", .enabledWhen = HasStrips, .handler = show(sortDialog)},
        {.name = Conformstriporder1,
         .caption = "Conform strip order...",
         .enabledWhen = HasStrips,
         .handler = show(conformDialog)},
        {.name = Resetbreakdownnumbering1,
         .caption = "Reset brea&kdown numbering...",
         .enabledWhen = HasStrips,
         .handler = [h] { ResetBreakdownNumbering(h->document()); }},
        // Elements
        {.name = Addelement1, .caption = "&Add element...", .shortcut = "Ctrl+E", .handler = openElement(false)},
        {.name = Editelement1,
         .caption = "Edit element...",
         .enabledWhen = HasSelectedElement,
         .handler = openElement(true)},
        {.name = Reordercastnumbering1,
         .caption = "Reset cast numbering...",
         .enabledWhen = HasElements,
         .handler = [h] { ResetCastNumbering(h->document()); }},
        {.name = Sortelements1,
         .caption = "Sort elements by category...",
         .enabledWhen = HasElements,
         .handler = [h] { SortElementsByCategory(h->document()); }},
        // The board's pop-up
        {.name = PopAddscene1,
         .caption = "Add scene at end...",
         .shortcut = "Ins",
         .handler = openScene(SceneMode::Add)},
        {.name = PopInsertscene1,
         .caption = "Insert scene...",
         .shortcut = "Shift+Ins",
         .enabledWhen = HasSelectedStrip,
         .handler = openScene(SceneMode::Insert)},
        {.name = PopEditscene1,
         .caption = "Edit scene...",
         .enabledWhen = FirstSelectedIsScene,
         .handler = openScene(SceneMode::Edit)},
        {.name = PopAddelement1,
         .caption = "Add element at end...",
         .shortcut = "Ctrl+E",
         .handler = openElement(false)},
        {.name = PopEditelement1,
         .caption = "Edit element...",
         .enabledWhen = HasSelectedElement,
         .handler = openElement(true)},
    };
}

} // namespace tb
