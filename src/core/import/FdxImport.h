#pragma once

#include "import/ScreenplayText.h"

#include <QByteArray>

namespace tb {

// The message of a file that is not a Final Draft script; the reason follows it.
inline constexpr const char *FdxReadErrorText = "This file is not a Final Draft script (.fdx) that can be read.";

// Reads a Final Draft script (.fdx, XML): Scene Heading, Action, Character, Dialogue,
// Parenthetical, Transition paragraphs (others are read as action, for the page count;
// dual dialogue too), a heading's Number attribute and its SceneProperties Length and
// Page, and the title page's first line as the title.
ResultOf<ScreenplayText> ParseFdx(const QByteArray &bytes);

// Builds a new schedule from a Final Draft script file. A file that cannot be read or
// is no .fdx shows FdxReadErrorText with the reason and leaves the document as it was.
Result ImportFdxFile(ScheduleDocument &doc, const QString &path, const ScriptImportSettings &words);

} // namespace tb
