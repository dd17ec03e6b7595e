#pragma once

#include "ui/shell/MenuEntry.h"

namespace tb {

class CommandHost;

// The scene, element, production and strip-order entries of the main menu and the
// board's pop-up. The dialogs are made now, with the main window as parent, and kept
// for the whole run.
MenuTable BreakdownMenuEntries(CommandHost &host);

} // namespace tb
