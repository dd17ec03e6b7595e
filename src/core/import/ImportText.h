#pragma once

#include "document/Result.h"

#include <QString>
#include <QStringList>

namespace tb {

// Text files handed to the importers: screenplays saved as plain text and the text
// reports of Final Draft. They come from many programs, so the reader is lenient:
// UTF-8 when the bytes are valid UTF-8 (a byte order mark is dropped), Windows-1252
// otherwise; CR LF, LF and a lone CR all end a line. A line break at the very end
// does not add an empty last line.
ResultOf<QStringList> ReadImportText(const QString &path);

// Splits text into lines by the rules above.
QStringList SplitImportLines(const QString &text);

// Removes leading and trailing blanks and control characters (everything up to and
// including the blank), the way the importers have always trimmed: tabs, the form
// feed that PDF-to-text tools put at the start of a page, stray NULs.
QString TrimImportLine(const QString &line);

// Copy(text, index, count) of the earlier edition's strings: index is 1-based, an
// index below 1 starts at the first character, and the count is cut to what is there.
// The Final Draft reader takes its fixed offsets this way.
QString CopyChars(const QString &text, qsizetype index, qsizetype count);

} // namespace tb
