#pragma once

namespace tb {

class CommandHost;

// Serves "&Import script..." (Importscript1) and "Import &Final Draft reports..."
// (ImportFinalDraft1): creates the two import dialogs once, as children of the main
// window, and connects the two menu actions to them.
void InstallImportCommands(CommandHost &host);

} // namespace tb
