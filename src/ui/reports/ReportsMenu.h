#pragma once

#include "ui/shell/MenuEntry.h"

namespace tb {

class CommandHost;

// The File > "&Print" entries. "&Breakdown sheets...", "&Call sheet...", "Element
// summary..." and "&Shooting schedule..." open their dialogs, which are made now and
// kept for the run; the day out of days and the board printing are not built yet and
// their entries stand disabled.
MenuTable ReportsMenuEntries(CommandHost &host);

} // namespace tb
