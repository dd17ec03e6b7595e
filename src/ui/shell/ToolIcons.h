#pragma once

#include <QIcon>

namespace tb {

// The main window's tool button pictures, drawn by the program so that they look the
// same on every desktop whatever icon theme is installed.
enum class ToolIcon { Open, Save, Undo, Cut, Copy, Paste };

QIcon MakeToolIcon(ToolIcon which);

} // namespace tb
