#pragma once

#include "ui/shell/MenuEntry.h"

namespace tb {

class CommandHost;

// The File menu's "&Import script..." (the wizard) and "Import &Final Draft
// reports...". The two dialogs are made now and kept for the run.
MenuTable ImportMenuEntries(CommandHost &host);

} // namespace tb
