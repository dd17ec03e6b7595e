#pragma once

namespace tb {

class CommandHost;

// Connects the File > "&Print" entries "&Breakdown sheets...", "&Call sheet...",
// "Element summary..." and "&Shooting schedule..." to their dialogs, which are made now
// and kept for the run.
void InstallReportCommands(CommandHost &host);

} // namespace tb
