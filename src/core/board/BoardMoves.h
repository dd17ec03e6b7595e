#pragma once

#include "document/ScheduleDocument.h"

namespace tb {

// The most strips one drag moves (the size of the working store).
inline constexpr int MaxStripsMoved = 1000;

// The strip a drop lands before: the strip right of the marked boundary, or the end of
// the board (strip count + 1) for anything past the last strip.
int DropTarget(const ScheduleDocument &doc, int stripUnderBoundary);

// Drops the selected strips before the target strip (count + 1 = at the end). A target
// inside the selection moves nothing and returns false. Otherwise takes the undo
// snapshot "Move strip" or "Move strips", moves the strips, leaves them selected at
// their new place and marks the document modified.
bool MoveStrips(ScheduleDocument &doc, int target);

} // namespace tb
