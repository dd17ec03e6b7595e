#pragma once

namespace tb {

class ScheduleDocument;

// What the document and its selection allow: the tests the menu entries, the board's
// pop-up and the tool buttons are enabled by. A strip selection is the run
// SelStart..SelEnd (its first strip must lie on the board); an element selection is
// SelElement (a row of the element table).

bool HasStrips(const ScheduleDocument &doc);
bool HasElements(const ScheduleDocument &doc);
bool HasSelectedStrip(const ScheduleDocument &doc);
bool HasSelectedElement(const ScheduleDocument &doc);
// A run of strips or one element: what Cut, Copy and Delete work on.
bool HasSelection(const ScheduleDocument &doc);
// Whether the first selected strip is a scene; the scene editor edits only scenes.
bool FirstSelectedIsScene(const ScheduleDocument &doc);
// Whether the private clipboard holds what the selection takes: strips before a
// selected strip, or an element onto a selected element.
bool CanPasteSelection(const ScheduleDocument &doc);
// Whether there is an edit to take back, or one taken back to redo.
bool CanUndo(const ScheduleDocument &doc);
bool CanRedo(const ScheduleDocument &doc);

} // namespace tb
