#pragma once

// "Export board": the board written as a spreadsheet (CSV) or as one web page (HTML).

#include "board/BoardStyle.h"

#include "document/Result.h"
#include "document/ScheduleDocument.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace tb {

enum class BoardExportFormat { Spreadsheet, Html };

// The format a file name asks for by its extension (".csv", ".html" or ".htm", any
// case); nothing for any other name.
std::optional<BoardExportFormat> BoardExportFormatOf(const QString &path);

// The board as comma-separated values (UTF-8, CR LF between rows, every field that
// holds a comma, a quote or a line break quoted, quotes doubled): a header row, then
// one row per strip in board order. The columns are the strip's kind, day and
// shooting-day numbers, date, scene, INT/EXT, D/N, set, location, synopsis, pages (a
// number) and eighths, script page, sheet number, lock date, the notes one per line,
// and one column per category listing the strip's elements, one per line ("id - name"
// for the cast).
QByteArray BoardCsv(const ScheduleDocument &doc);

// The board as one self-contained web page (no external files): the production
// details, then the schedule day by day, each strip a band in its board colours. It
// fits a phone's width and prints with its colours.
QByteArray BoardHtml(const ScheduleDocument &doc, const BoardStyle &style);

// Writes the export in the format to the path, whole or not at all.
Result ExportBoard(const ScheduleDocument &doc, const BoardStyle &style, BoardExportFormat format, const QString &path);

} // namespace tb
