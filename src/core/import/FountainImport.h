#pragma once

#include "import/ScreenplayText.h"

#include <QStringList>

namespace tb {

// Reads a screenplay written in Fountain, one string per line as ReadImportText gives
// them: the title page's Title, scene headings (INT., EXT., INT./EXT., I/E, EST. and
// forced ".HEADING"), scene numbers ("#12A#"), action, character cues ("@" forced,
// "^" dual dialogue), parentheticals, dialogue, transitions ("CUT TO:", forced ">")
// and centered text, forced page breaks ("==="). Notes ("[[ ]]"), the boneyard
// ("/* */"), sections ("#") and synopses ("=") are left out; emphasis markup is
// removed.
ScreenplayText ParseFountain(const QStringList &lines);

// Builds a new schedule from a Fountain screenplay (ParseFountain, then
// BuildScheduleFromScreenplay).
Result ImportFountain(ScheduleDocument &doc, const QStringList &lines, const ScriptImportSettings &words);

} // namespace tb
