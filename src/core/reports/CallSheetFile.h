#pragma once

// Call sheet files (".tbc", and ".tbs" as the save dialog names them): a saved sheet
// with its hand edits. Text lines, written like a schedule file (Windows-1252 when every
// character fits, else UTF-8; CR LF line ends):
//   "Torvanbridge call sheet file V1"
//   the date as a date-time number, then weather, unit, costume, makeup and wrap
//   every cell of the scene, cast, extras, crew and other grids, row by row
//   the notes as one comma text
// No row counts are stored: a file is read into a sheet with the row counts it was
// saved from, which keeps the format as simple as the program has always had it.

#include "reports/CallSheet.h"

#include "document/Result.h"

#include <QString>
#include <QStringList>

namespace tb {

inline constexpr char CallSheetFileHeader[] = "Torvanbridge call sheet file V1";
inline constexpr char CallSheetFileError[] = "Error saving call sheet file";
inline constexpr char CallSheetFileBadHeader[] = "Incorrect or bad call sheet file";

// The lines of the file for a sheet.
QStringList CallSheetFileLines(const CallSheet &sheet);

// Writes the sheet. The file is replaced only once it is complete: a failure leaves an
// earlier file whole. The failure's message is "Error saving call sheet file".
Result WriteCallSheetFile(const CallSheet &sheet, const QString &path);

// Reads a file into the sheet: the date (which does not refill the sheet), the five
// texts, each grid's current rows cell by cell, and the notes. Lines past the end of
// the file read as empty texts. A first line other than the header fails with
// "Incorrect or bad call sheet file" and changes nothing; a file that cannot be read,
// or a date that is no number, fails with "Error saving call sheet file" (the program's
// words for reading too) and leaves the sheet as it was read up to there.
Result ReadCallSheetFile(CallSheet &sheet, const QString &path);

// The date a call sheet file was saved for, without reading the rest.
ResultOf<double> CallSheetFileDate(const QString &path);

} // namespace tb
