#pragma once

#include "ui/shell/MenuEntry.h"

namespace tb {

class TfrmMain;

// The main window's own entries: File (New, Open, Save, Save As, Preferences, Exit), Edit and its pop-up twins, View
// (Fullscreen, the zoom steps) and Help.
MenuTable ShellMenuEntries(TfrmMain &main);

} // namespace tb
