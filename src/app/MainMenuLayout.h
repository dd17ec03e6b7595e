#pragma once

#include "ui/shell/MenuCommands.h"
#include "ui/shell/ToolIcons.h"

#include <QList>

namespace tb {

// Where the entries of the areas' tables stand: the menus of the menu bar in order
// (each a submenu item with its object name and caption), the board's pop-up and
// the tool bar. Only object names and the menus' own captions are given here; the
// entries' captions, keys, hints and rules are their tables'.
QList<MenuItem> MainMenuLayout();
QList<MenuItem> BoardPopupLayout();

struct ToolButtonItem
{
    const char *entry; // the entry the button runs and follows
    ToolIcon icon;
    const char *buttonName; // the button's object name ("OpenBut")
    bool separatorBefore;
};
QList<ToolButtonItem> ToolBarLayout();

// The steps of View > "&Zoom": the entries N601 .. N1401 and their percentages.
struct ZoomStep
{
    const char *entry;
    int percent;
};
QList<ZoomStep> ZoomSteps();

} // namespace tb
