#pragma once

#include "document/Result.h"
#include "document/ScheduleDocument.h"

#include <QString>
#include <QStringList>

namespace tb {

// Word lists of the plain-text import, as the wizard starts them on every run of the
// program.
QStringList DefaultDayWords();
QStringList DefaultNightWords();
QStringList DefaultIgnoreWords();

// What the user tells the script import wizard.
struct ScriptImportSettings
{
    int linesPerPage = 55; // the longest printed page, blank lines included (1..99)
    QStringList dayWords = DefaultDayWords();
    QStringList nightWords = DefaultNightWords();
    QStringList ignoreWords = DefaultIgnoreWords();
};

// The message of a failed plain-text import.
inline constexpr const char *ScriptImportErrorText = "Error with import procedure.";

// Reads a screenplay file for the import. A file that cannot be read gives the
// import's error message followed by the reason.
ResultOf<QStringList> ReadScriptFile(const QString &path);

// Builds a new schedule from a screenplay in formatted plain text, one string per
// line, numbered from 0:
// - the document is emptied first (NewDocument), whatever it held;
// - every line written entirely in capitals that holds an INT/EXT marker is a scene
//   heading and becomes a scene strip, with interior/exterior, time of day, location
//   and, from the line count to the next heading, a length in eighths of a page;
// - other short capitals-only lines are character cues: each new name becomes a cast
//   element, assigned to the scene of the last heading.
// Progress goes to the status sink: the gauge, and "Import progress : N - LOCATION"
// in the message panel; the window is kept alive after every line. A script with
// more scenes than the strip table holds keeps the first ones and the user is told
// how many were left out (cast names past the element table likewise). On failure
// the user is shown "Error with import procedure.", the strips read so far are not
// counted, and the elements made so far stay; the document is marked modified either
// way.
Result DoImport(ScheduleDocument &doc, const QStringList &lines, const ScriptImportSettings &settings);

} // namespace tb
