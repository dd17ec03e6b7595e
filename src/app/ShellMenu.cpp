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
        {.name = New1, .caption = "&New", .handler = run(&TfrmMain::New1Click), .addedShortcuts = {"Ctrl+N"}},
        {.name = Openfile1,
         .caption = "&Open...",
         .hint = "Open",
         .handler = run(&TfrmMain::Openfile1Click),
         .addedShortcuts = {"Ctrl+O"}},
        {.name = Save1,
         .caption = "&Save",
         .shortcut = "F12",
         .hint = "Save",
         .handler = run(&TfrmMain::Save1Click),
         .addedShortcuts = {"Ctrl+S"}},
        {.name = SaveAs1,
         .caption = "Save &As...",
         .handler = run(&TfrmMain::SaveAs1Click),
         .addedShortcuts = {"Ctrl+Shift+S"}},
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
        // Find strips: an addition of this edition.
        {.name = FindStrips1,
         .caption = "&Find strips...",
         .handler = run(&TfrmMain::FindStrips1Click),
         .addedShortcuts = {"Ctrl+F"}},
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
    // Zooming by keys: an addition of this edition. Each step goes through the zoom
    // items, so it counts as a change of the schedule as they do.
    table.append({
        {.name = ZoomIn1,
         .caption = "Zoom &in",
         .handler = [m] { m->ZoomStepClick(+1); },
         .addedShortcuts = {"Ctrl++", "Ctrl+="}},
        {.name = ZoomOut1,
         .caption = "Zoom &out",
         .handler = [m] { m->ZoomStepClick(-1); },
         .addedShortcuts = {"Ctrl+-"}},
        {.name = ZoomReset1,
         .caption = "&Actual size",
         .handler = [m] { m->ZoomStepClick(0); },
         .addedShortcuts = {"Ctrl+0"}},
    });
    table.append({
        {.name = Contents1, .caption = "&Contents", .shortcut = "F1", .handler = run(&TfrmMain::Contents1Click)},
        {.name = Index1, .caption = "&Index", .handler = run(&TfrmMain::Index1Click)},
        {.name = About1, .caption = "&About...", .handler = run(&TfrmMain::About1Click)},
    });
    return table;
}

} // namespace tb
