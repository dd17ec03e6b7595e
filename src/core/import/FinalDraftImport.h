#pragma once

#include "document/Result.h"
#include "document/ScheduleDocument.h"

#include <QString>

namespace tb {

// Messages of the Final Draft import.
inline constexpr const char *FinalDraftReadErrorText =
    "Error reading file(s). The files may be of the wrong type, or corrupted. Try re-exporting from Final Draft.";
inline constexpr const char *FinalDraftNoLengthText =
    "Could not find scene length information. Are you sure you selected a valid Final Draft scene report?";
inline constexpr const char *FinalDraftLengthErrorText = "Error converting scene length.";

// Reads Final Draft's Script Report (scenes, headings and the characters of each
// scene) and then its Scene Report (one length per scene, in the same order) into
// scene strips and cast elements appended to the document. The caller empties the
// document first.
//
// Script Report: a line beginning "##" opens a scene ("## Page: 12, Scene: 5"); the
// next line is its heading; the lines after it, up to an empty line, name the
// characters. Scene Report: every non-empty line is a scene; after three
// tab-separated fields come the length and "Pg", "Pgs" or "...".
//
// A length line without a marker shows FinalDraftNoLengthText and ends the reading
// of lengths; a length that is no number shows FinalDraftLengthErrorText and gives
// the scene one eighth. Both still end in a modified document with strip 1 selected.
// A character name is new when no cast element has it yet; every new name becomes a
// cast element, and a location keeps its last letter.
//
// A file that cannot be read shows
// FinalDraftReadErrorText and fails: what was written until then stays (with the
// strip count as far as it had grown) and the document is not marked modified.
Result ImportFinalDraft(ScheduleDocument &doc, const QString &sceneReportPath, const QString &scriptReportPath);

} // namespace tb
