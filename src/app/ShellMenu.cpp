#include "app/ShellMenu.h"

#include "app/MainMenuLayout.h"
#include "app/TfrmMain.h"
#include "document/CommandState.h"
#include "ui/shell/MenuActions.h"

#include <QAction>

namespace tb {

MenuTable ShellMenuEntries(TfrmMain &main)
{
    TfrmMain *m = &main;
    const auto run = [m](void (TfrmMain::*handler)()) { return [m, handler] { (m->*handler)(); }; };

    using namespace actions;
    MenuTable table{
        // File
        {.name = New1, .caption = "&New", .handler = run(&TfrmMain::New1Click)},
        {.name = Openfile1, .caption = "&Open...", .hint = "Open", .handler = run(&TfrmMain::Openfile1Click)},
        {.name = Save1, .caption = "&Save", .shortcut = "F12", .hint = "Save", .handler = run(&TfrmMain::Save1Click)},
        {.name = SaveAs1, .caption = "Save &As...", .handler = run(&TfrmMain::SaveAs1Click)},
        {.name = Preferences1, .caption = "P&references...", .handler = run(&TfrmMain::Preferences1Click)},
        {.name = Exit1, .caption = "&Exit", .shortcut = "Ctrl+Q", .handler = run(&TfrmMain::Exit1Click)},
        // Edit
        {.name = Undo1,
         .caption = "&Undo",
         .shortcut = "Ctrl+Z",
         .hint = "Undo",
         .enabledWhen = CanUndo,
         .handler = run(&TfrmMain::Undo1Click)},
        {.name = Redo1, .caption = "Redo", .enabledWhen = CanRedo, .handler = run(&TfrmMain::Redo1Click)},
        {.name = Cut1,
         .caption = "&Cut",
         .shortcut = "Ctrl+X",
         .hint = "Cut",
         .enabledWhen = HasSelection,
         .handler = run(&TfrmMain::Cut1Click)},
        {.name = Copy1,
         .caption = "Co&py",
         .shortcut = "Ctrl+C",
         .hint = "Copy",
         .enabledWhen = HasSelection,
         .handler = run(&TfrmMain::Copy1Click)},
        {.name = Paste1,
         .caption = "&Paste",
         .shortcut = "Ctrl+V",
         .hint = "Paste",
         .enabledWhen = CanPasteSelection,
         .handler = run(&TfrmMain::Paste1Click)},
        {.name = Delete1,
         .caption = "Delete",
         .shortcut = "Del",
         .enabledWhen = HasSelection,
         .handler = run(&TfrmMain::Delete1Click)},
        // The board's pop-up
        {.name = PopCut1,
         .caption = "Cut",
         .shortcut = "Ctrl+X",
         .enabledWhen = HasSelection,
         .handler = run(&TfrmMain::Cut1Click)},
        {.name = PopCopy1,
         .caption = "Copy",
         .shortcut = "Ctrl+C",
         .enabledWhen = HasSelection,
         .handler = run(&TfrmMain::Copy1Click)},
        {.name = PopPaste1,
         .caption = "Paste (insert)",
         .shortcut = "Ctrl+V",
         .enabledWhen = CanPasteSelection,
         .handler = run(&TfrmMain::Paste1Click)},
        {.name = PopDelete1,
         .caption = "Delete selection",
         .shortcut = "Del",
         .enabledWhen = HasSelection,
         .handler = run(&TfrmMain::Delete1Click)},
        // View
        {.name = Fullscreen1,
         .caption = "Fullscreen",
         .handler = [m] { m->Fullscreen1Click(m->findAction(QLatin1String(Fullscreen1))->isChecked()); },
         .checkable = true},
    };
    for (const ZoomStep &step : ZoomSteps()) {
        const char *name = step.entry;
        table.append({.name = name,
                      .caption = QString::number(step.percent) + QLatin1Char('%'),
                      .handler = [m, name] { m->N1001Click(m->findAction(QLatin1String(name))); },
                      .checkable = true});
    }
    table.append({
        {.name = Contents1, .caption = "&Contents", .shortcut = "F1", .handler = run(&TfrmMain::Contents1Click)},
        {.name = Index1, .caption = "&Index", .handler = run(&TfrmMain::Index1Click)},
        {.name = About1, .caption = "&About...", .handler = run(&TfrmMain::About1Click)},
    });
    return table;
}

} // namespace tb
