#pragma once

// Text conventions of the earlier Windows edition. Schedules, settings files and
// templates written by that edition hold numbers, dates, colours and lists in the
// forms of its class library; these functions read and write exactly those forms
// so that old files and new ones stay interchangeable.

#include <QByteArray>
#include <QColor>
#include <QDate>
#include <QLocale>
#include <QString>
#include <QStringList>

namespace tb::legacy {

// ---- Comma text -------------------------------------------------------------
// A list held in one line: items joined by ",". An item is wrapped in double quotes
// (inner quotes doubled) when it holds a comma, a blank, a quote or a control
// character. A list of one empty item is written as "". On reading, leading blanks
// and control characters are skipped, quoted items are unquoted, and an unquoted
// item also ends at a blank, so "a b" reads as two items. A trailing "," adds an
// empty last item. A NUL character ends the text.
QString JoinCommaText(const QStringList &items);
QStringList SplitCommaText(const QString &text);

// ---- Numbers ----------------------------------------------------------------
// Integer text as the class library reads it: leading blanks skipped, an optional
// sign, decimal digits or "$" (or "0x") followed by hexadecimal digits, nothing after.
// Decimal text must lie in the range of int; hexadecimal text may use all 32 bits
// ("$FFFFFFFF" is -1), which is how colour values such as "$FF00000F" are read.
int StrToInt(const QString &text, bool *ok);
// Same, but a text that does not convert gives the fallback.
int StrToIntDef(const QString &text, int fallback);

// The general float-to-text form: up to 15 significant digits, no trailing zeros,
// fixed notation while the exponent is below 15 and the value is at least 0.00001,
// scientific otherwise ("1E-6", "1.5E20"). The separator is "." (see FloatFromText).
// A value halfway between two 15-digit texts is rounded away from zero. Not-a-number
// and infinities are written "NAN", "INF" and "-INF".
QString FloatToText(double value);
// The shortest fixed-notation text that reads back as the same single-precision
// value ("3.375", "0", "12").
QString SingleToText(float value);
// Reads a float written with "." or "," (older files hold "0,5"); leading and trailing
// blanks are allowed, the locale plays no part. Gives 0 and *ok false for anything
// else, including a value beyond the range of double.
double FloatFromText(const QString &text, bool *ok);

// Format "%3d": right-aligned in a field of three, padded with blanks ("  7").
QString Pad3(int value);

// ---- Dates ------------------------------------------------------------------
// Date serial numbers count days since 30 December 1899 (serial 0). A fraction is a
// time of day and is dropped (toward zero) when converting to a date. An invalid date
// gives serial 0; a serial that is no number or lies beyond QDate gives an invalid date.
double DateToSerial(const QDate &date);
QDate SerialToDate(double serial);

// Formats a date with a pattern of the earlier edition: d, dd, ddd (short day name),
// dddd (long day name), ddddd (the locale's short date, always with a four-digit
// year), dddddd (the locale's long date), m, mm, mmm, mmmm, yy, yyyy. Letters may be
// upper or lower case; "y" counts as "yy", "yyy" as "yyyy" and more than six "d" as
// "dddddd". Text in double or single quotes is copied without the quotes, any other
// character as it stands. Names come from the locale; numbers use ASCII digits. An
// invalid date gives an empty text.
QString FormatDate(const QDate &date, const QString &pattern, const QLocale &locale = QLocale());

// The patterns used across the program.
inline constexpr const char *DayDatePattern = "ddd, mmmm d, yyyy"; // "Fri, March 6, 2026"
inline constexpr const char *LongDatePattern = "dddddd";
inline constexpr const char *ShortDatePattern = "ddddd";
inline constexpr const char *DayMonthPattern = "d/m";
inline constexpr const char *ShortDayPattern = "ddd";
inline constexpr const char *LongDayPattern = "dddd";

// The locale's short date format with the year always written with four digits,
// as a Qt date format string (for QLocale::toString and QLocale::toDate).
QString ShortDateFormat(const QLocale &locale = QLocale());
// Reads a date written in the locale's short date format (two- or four-digit year;
// day and month with or without a leading zero). A two-digit year below 50 is taken
// as 20yy, any other as 19yy. Returns an invalid QDate for text that is no date.
QDate ParseShortDate(const QString &text, const QLocale &locale = QLocale());

// Weekday as the earlier edition numbers it: 1 Sunday .. 7 Saturday (0 for an
// invalid date).
int DayOfWeek(const QDate &date);

// ---- Colours ----------------------------------------------------------------
// The earlier edition stores a colour as one integer: 0x00BBGGRR for a colour given by
// its red, green and blue parts, 0xFF0000nn for the system colour number nn (clBtnFace,
// clWindow ...), 0x1FFFFFFF for "no colour" (clNone) and 0x20000000 for "the
// control's default colour" (clDefault).

// Colour names of the class library ("clBlack", "clWhite", "clRed" ...); any other
// colour is written "$00BBGGRR" (blue, green, red in hexadecimal). A QColor does not
// know that it came from a system colour, so this never writes a system colour name;
// an invalid or fully transparent colour is written "clNone".
QString ColorToString(const QColor &color);
// Reads a colour name, a "$" hexadecimal number or a decimal number and gives the
// colour it stands for (see ColorValueToQColor). Returns an invalid QColor for text
// that is none of these.
QColor StringToColor(const QString &text);

// The same on the stored integer, so that system colours keep their names:
// ColorValueToString(0xFF00000F) is "clBtnFace". A value without a name is written
// "$" and eight upper-case hexadecimal digits.
QString ColorValueToString(quint32 value);
// Reads a colour name (letter case does not matter) or an integer (see StrToInt; a
// negative number or "$FF0000nn" gives a system colour). Returns false, leaving
// *value alone, for text that is neither.
bool StringToColorValue(const QString &text, quint32 *value);
// The colour a stored integer is shown in. System colours give the classic Windows
// defaults (clBtnFace is 212,208,200; a system colour number without a default gives
// black), clNone gives a fully transparent colour and clDefault gives black.
QColor ColorValueToQColor(quint32 value);

// ---- Text encoding ----------------------------------------------------------
// Windows-1252, the code page the earlier edition wrote its files in. Every byte
// decodes to one character (bytes the code page leaves undefined decode to the
// control character of the same number), so decoding and encoding give the bytes
// back unchanged.
QString DecodeWindows1252(const QByteArray &bytes);
// Returns false when a character has no Windows-1252 byte.
bool CanEncodeWindows1252(const QString &text);
// A character without a Windows-1252 byte is written "?".
QByteArray EncodeWindows1252(const QString &text);

// File text as the program reads it, for schedules, settings, templates and every
// imported text: by its byte order mark first (UTF-8, UTF-16 little or big endian;
// the mark is dropped), else UTF-8 when the bytes are well-formed UTF-8 and hold at
// least one non-ASCII byte, else Windows-1252.
QString DecodeFileText(const QByteArray &bytes);
// File text as the program writes it, such that DecodeFileText gives it back exactly:
// Windows-1252 (what the earlier edition reads) when every character fits and the
// bytes do not also read as UTF-8, UTF-8 without byte order mark otherwise.
QByteArray EncodeFileText(const QString &text);

} // namespace tb::legacy
