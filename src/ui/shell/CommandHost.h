#pragma once

class QAction;
class QWidget;

namespace tb {

class ScheduleDocument;
class Settings;

// What the main window offers the areas that serve its menu entries. Each area has
// one function, <Area>MenuEntries(CommandHost &), that makes its dialogs once (the
// main window is their parent) and returns its table of entries (MenuEntry.h): the
// main window assembles its menus, the board's pop-up and the tool bar from those
// tables.
class CommandHost
{
public:
    virtual ~CommandHost() = default;

    virtual ScheduleDocument &document() = 0;
    // The main window, parent of every dialog.
    virtual QWidget *window() = 0;
    // The entry with this object name (MenuActions.h); null for a name no table declares.
    virtual QAction *action(const char *objectName) = 0;
    // The preferences and remembered answers.
    virtual Settings &settings() = 0;
    // Repaint the board after a dialog changed the document.
    virtual void repaintBoard() = 0;
};

} // namespace tb
