#pragma once

#include <QString>

class QAction;
class QWidget;

namespace tb {

class ScheduleDocument;
class Settings;

// What the main window offers the subsystems that serve its menu entries. Each
// subsystem has one function, Install<Area>Commands(CommandHost &), that finds its
// actions by object name (MenuActions.h), connects them to handlers that show its
// dialogs modally, and keeps those dialogs for the whole run.
class CommandHost
{
public:
    virtual ~CommandHost() = default;

    virtual ScheduleDocument &document() = 0;
    // The main window, parent of every dialog.
    virtual QWidget *window() = 0;
    // The menu entry (or pop-up entry) with this object name; never null for the
    // names in MenuActions.h.
    // Asking for an entry tells the main window that the caller serves it: until some
    // subsystem has asked, an entry of a later subsystem stays disabled; from then on
    // it is enabled by the state of the document and the selection.
    virtual QAction *action(const char *objectName) = 0;
    // The preferences and remembered answers.
    virtual Settings &settings() = 0;
    // Repaint the board after a dialog changed the document.
    virtual void repaintBoard() = 0;
    // Opens the help page of a dialog (a file name under the bundled help folder).
    virtual void showHelp(const QString &page) = 0;
};

} // namespace tb
