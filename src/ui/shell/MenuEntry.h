#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace tb {

class ScheduleDocument;

// Whether an entry is enabled for the document and its selection: one of the core's
// predicates (document/CommandState.h, scheduling/Banners.h, ...).
using EnabledWhen = bool (*)(const ScheduleDocument &);

// One command of the main menu, the board's pop-up or the tool bar, as the area that
// serves it declares it. The main window places the entries by object name
// (MenuActions.h, app/MainMenuLayout.cpp) and never adds captions or rules of its own.
// A new command is one row in its area's table (<Area>Menu.cpp), the core function it
// runs, and a test of that function.
struct MenuEntry
{
    // The object name ("Addscene1").
    const char *name = nullptr;
    // The caption; "&" marks the access key.
    QString caption = {};
    // The shortcut key in portable form ("Shift+Ins"); none when empty.
    QString shortcut = {};
    // The hint of the entry's tool button ("Open"); none when empty.
    QString hint = {};
    // Null: enabled whenever the entry has a handler.
    EnabledWhen enabledWhen = nullptr;
    // What the entry does. Empty for a command not built yet: such an entry stands in
    // its menu and stays disabled until a handler is given.
    std::function<void()> handler = {};
    // A check mark that the entry toggles ("Fullscreen", the zoom steps).
    bool checkable = false;
};

using MenuTable = QList<MenuEntry>;

} // namespace tb
