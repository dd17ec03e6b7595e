#pragma once

namespace tb {

class CommandHost;

// Connects the scene, element, production and strip-order entries of the main menu
// and the board's pop-up menu to their dialogs. The dialogs are made once, with the
// main window as parent, and kept for the whole run.
void InstallBreakdownCommands(CommandHost &host);

} // namespace tb
