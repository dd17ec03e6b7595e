#pragma once

#include "document/ScheduleDocument.h"

#include <functional>

namespace tb {

// The steps the main window's two import commands take around their dialogs.
// `save` runs the main window's Save command.

inline constexpr const char *ScriptImportSaveQuestion =
    "You have made changes to the schedule which have not been saved. Do you wish to save them now?";
inline constexpr const char *FinalDraftSaveQuestion =
    "Schedule has not been saved since the last change. Do you wish to save it now?";
inline constexpr const char *FinalDraftImportingText = "Importing script...";

// Before the script import wizard empties the document: the question of the New
// command when there are unsaved changes. Yes saves first; false (Cancel) means the
// import must not go on. The wizard asks this when Import! is clicked, so that
// cancelling the wizard never costs the open schedule.
bool AskToSaveBeforeScriptImport(ScheduleDocument &doc, const std::function<void()> &save);

// Before the Final Draft dialog: the save question (false on Cancel), then the
// document is emptied and the status bar shows "Importing script...".
bool BeginFinalDraftImport(ScheduleDocument &doc, const std::function<void()> &save);

// After the Final Draft dialog: the status text is cleared and the board rescaled.
void EndFinalDraftImport(ScheduleDocument &doc);

} // namespace tb
