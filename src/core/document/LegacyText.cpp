#include "document/LegacyText.h"

#include <QByteArrayView>
#include <QStringDecoder>
#include <QStringView>
#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <iterator>
#include <string_view>
#include <system_error>

namespace tb::legacy {

namespace {

const char16_t *begin16(const QString &text)
{
    return reinterpret_cast<const char16_t *>(text.utf16());
}

const char16_t *end16(const QString &text)
{
    return begin16(text) + text.size();
}

std::u16string_view view16(const QString &text)
{
    return std::u16string_view(begin16(text), std::size_t(text.size()));
}

constexpr bool isAsciiDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

int hexDigitValue(char16_t c)
{
    if (isAsciiDigit(c))
        return c - u'0';
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10;
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    return -1;
}

void setOk(bool *ok, bool value)
{
    if (ok)
        *ok = value;
}

// Appends a non-negative number with at least minDigits digits (leading zeros).
void appendNumber(QString &out, int value, int minDigits)
{
    char buffer[16];
    const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value);
    const int length = int(end - buffer);
    for (int i = length; i < minDigits; ++i)
        out.append(u'0');
    out.append(QLatin1String(buffer, length));
}

} // namespace

// ---- Comma text -------------------------------------------------------------

namespace {

bool needsQuotes(const QString &item)
{
    for (const char16_t c : view16(item))
        if (c <= u' ' || c == u'"' || c == u',')
            return true;
    return false;
}

// p points just past an opening quote. A doubled quote stands for one quote; the item
// ends at the next single quote, or with the text when there is none. On return p is
// past the closing quote.
QString extractQuoted(const char16_t *&p, const char16_t *end)
{
    QString item;
    const char16_t *from = p;
    while (p != end) {
        if (*p != u'"') {
            ++p;
            continue;
        }
        if (p + 1 != end && p[1] == u'"') {
            item.append(QStringView(from, p + 1));
            p += 2;
            from = p;
            continue;
        }
        item.append(QStringView(from, p));
        ++p;
        return item;
    }
    item.append(QStringView(from, p));
    return item;
}

} // namespace

QString JoinCommaText(const QStringList &items)
{
    if (items.size() == 1 && items.front().isEmpty())
        return QStringLiteral("\"\"");

    qsizetype estimate = 0;
    for (const QString &item : items)
        estimate += item.size() + 1;
    QString result;
    result.reserve(estimate + 8);

    bool first = true;
    for (const QString &item : items) {
        if (!first)
            result.append(u',');
        first = false;
        if (!needsQuotes(item)) {
            result.append(item);
            continue;
        }
        result.append(u'"');
        const QStringView view(item);
        qsizetype from = 0;
        for (qsizetype i = 0; i < view.size(); ++i) {
            if (view[i] == u'"') {
                result.append(view.mid(from, i + 1 - from));
                result.append(u'"');
                from = i + 1;
            }
        }
        result.append(view.mid(from));
        result.append(u'"');
    }
    return result;
}

QStringList SplitCommaText(const QString &text)
{
    QStringList items;
    const char16_t *p = begin16(text);
    // The earlier edition read the text up to its terminating NUL: a NUL character ends
    // the text here as well.
    const char16_t *const end = std::find(p, end16(text), u'\0');
    const auto skipBlanks = [&p, end] {
        while (p != end && *p <= u' ')
            ++p;
    };

    skipBlanks();
    while (p != end) {
        if (*p == u'"') {
            ++p;
            items.append(extractQuoted(p, end));
        } else {
            const char16_t *from = p;
            while (p != end && *p > u' ' && *p != u',')
                ++p;
            items.append(QStringView(from, p).toString());
        }
        skipBlanks();
        if (p != end && *p == u',') {
            if (p + 1 == end)
                items.append(QString());
            ++p;
            skipBlanks();
        }
    }
    return items;
}

// ---- Numbers ----------------------------------------------------------------

int StrToInt(const QString &text, bool *ok)
{
    const char16_t *p = begin16(text);
    const char16_t *const end = end16(text);
    while (p != end && *p <= u' ')
        ++p;

    bool negative = false;
    if (p != end && (*p == u'+' || *p == u'-')) {
        negative = *p == u'-';
        ++p;
    }
    bool hex = false;
    if (p != end && *p == u'$') {
        hex = true;
        ++p;
    } else if (end - p >= 2 && p[0] == u'0' && (p[1] == u'x' || p[1] == u'X')) {
        hex = true;
        p += 2;
    }
    if (p == end) {
        setOk(ok, false);
        return 0;
    }

    std::uint32_t magnitude = 0;
    if (hex) {
        // Hexadecimal text may fill all 32 bits; the sign is applied afterwards.
        for (; p != end; ++p) {
            const int digit = hexDigitValue(*p);
            if (digit < 0 || magnitude > 0x0FFFFFFFu) {
                setOk(ok, false);
                return 0;
            }
            magnitude = magnitude << 4 | std::uint32_t(digit);
        }
    } else {
        const std::uint32_t limit = negative ? 2147483648u : 2147483647u;
        for (; p != end; ++p) {
            if (!isAsciiDigit(*p)) {
                setOk(ok, false);
                return 0;
            }
            const std::uint32_t digit = *p - u'0';
            if (magnitude > (limit - digit) / 10) {
                setOk(ok, false);
                return 0;
            }
            magnitude = magnitude * 10 + digit;
        }
    }
    setOk(ok, true);
    return static_cast<int>(negative ? 0u - magnitude : magnitude);
}

int StrToIntDef(const QString &text, int fallback)
{
    bool ok = false;
    const int value = StrToInt(text, &ok);
    return ok ? value : fallback;
}

QString FloatToText(double value)
{
    if (std::isnan(value))
        return QStringLiteral("NAN");
    if (std::isinf(value))
        return value < 0 ? QStringLiteral("-INF") : QStringLiteral("INF");
    if (value == 0)
        return QStringLiteral("0");

    // The earlier edition took 18 significant digits and rounded them to 15, halves
    // away from zero; doing the same gives the same text for values on a tie.
    char scientific[40];
    const auto converted =
        std::to_chars(scientific, scientific + sizeof scientific, std::fabs(value), std::chars_format::scientific, 17);
    // scientific now holds "d.ddddddddddddddddde[+-]xx".
    char digits[18];
    digits[0] = scientific[0];
    std::memcpy(digits + 1, scientific + 2, 17);
    int exponent = 0;
    const char *exponentText = scientific + 20;
    if (*exponentText == '+')
        ++exponentText;
    std::from_chars(exponentText, converted.ptr, exponent);

    int count = 15;
    if (digits[15] >= '5') {
        int i = 14;
        while (i >= 0 && digits[i] == '9') {
            digits[i] = '0';
            --i;
        }
        if (i < 0) {
            digits[0] = '1';
            ++exponent;
        } else {
            ++digits[i];
        }
    }
    while (count > 1 && digits[count - 1] == '0')
        --count;

    char out[48];
    char *o = out;
    if (value < 0)
        *o++ = '-';
    if (exponent >= -5 && exponent < 15) {
        if (exponent >= 0) {
            for (int i = 0; i <= exponent; ++i)
                *o++ = i < count ? digits[i] : '0';
            if (count > exponent + 1) {
                *o++ = '.';
                for (int i = exponent + 1; i < count; ++i)
                    *o++ = digits[i];
            }
        } else {
            *o++ = '0';
            *o++ = '.';
            for (int i = -1; i > exponent; --i)
                *o++ = '0';
            for (int i = 0; i < count; ++i)
                *o++ = digits[i];
        }
    } else {
        *o++ = digits[0];
        if (count > 1) {
            *o++ = '.';
            for (int i = 1; i < count; ++i)
                *o++ = digits[i];
        }
        *o++ = 'E';
        o = std::to_chars(o, out + sizeof out, exponent).ptr;
    }
    return QString::fromLatin1(out, o - out);
}

QString SingleToText(float value)
{
    if (std::isnan(value))
        return QStringLiteral("NAN");
    if (std::isinf(value))
        return value < 0 ? QStringLiteral("-INF") : QStringLiteral("INF");
    if (value == 0)
        return QStringLiteral("0");
    // The longest fixed text of a float (the smallest subnormal) has 47 characters.
    char buffer[96];
    const auto converted = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
    return QString::fromLatin1(buffer, converted.ptr - buffer);
}

double FloatFromText(const QString &text, bool *ok)
{
    const char16_t *p = begin16(text);
    const char16_t *end = end16(text);
    while (p != end && *p <= u' ')
        ++p;
    while (end != p && end[-1] <= u' ')
        --end;

    // Page lengths and day totals are short plain decimals read on every change of the
    // board. With at most 15 digits and no exponent, the digits as an integer divided by
    // a power of ten (both exact in a double) is the correctly rounded value.
    {
        const char16_t *q = p;
        const bool negative = q != end && *q == u'-';
        if (q != end && (*q == u'+' || *q == u'-'))
            ++q;
        quint64 digits = 0;
        int count = 0;
        int fraction = 0;
        bool separator = false;
        bool plain = q != end;
        for (; q != end && plain; ++q) {
            if (isAsciiDigit(*q)) {
                digits = digits * 10 + quint64(*q - u'0');
                ++count;
                if (separator)
                    ++fraction;
            } else if ((*q == u'.' || *q == u',') && !separator) {
                separator = true;
            } else {
                plain = false;
            }
        }
        if (plain && count > 0 && count <= 15) {
            static constexpr double powers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
            const double value = double(digits) / powers[fraction];
            setOk(ok, true);
            return negative ? -value : value;
        }
    }

    // The number is checked here and copied in the form std::from_chars reads: no "+"
    // before the number and "." as the separator.
    QVarLengthArray<char, 64> ascii;
    const auto fail = [ok] {
        setOk(ok, false);
        return 0.0;
    };
    if (p != end && (*p == u'+' || *p == u'-')) {
        if (*p == u'-')
            ascii.append('-');
        ++p;
    }
    int mantissaDigits = 0;
    while (p != end && isAsciiDigit(*p)) {
        ascii.append(char(*p++));
        ++mantissaDigits;
    }
    if (p != end && (*p == u'.' || *p == u',')) {
        ascii.append('.');
        ++p;
        while (p != end && isAsciiDigit(*p)) {
            ascii.append(char(*p++));
            ++mantissaDigits;
        }
    }
    if (mantissaDigits == 0)
        return fail();
    if (p != end && (*p == u'e' || *p == u'E')) {
        ascii.append('e');
        ++p;
        if (p != end && (*p == u'+' || *p == u'-'))
            ascii.append(char(*p++));
        int exponentDigits = 0;
        while (p != end && isAsciiDigit(*p)) {
            ascii.append(char(*p++));
            ++exponentDigits;
        }
        if (exponentDigits == 0)
            return fail();
    }
    if (p != end)
        return fail();

    double value = 0;
    const auto converted = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
    if (converted.ec != std::errc() || converted.ptr != ascii.data() + ascii.size())
        return fail();
    setOk(ok, true);
    return value;
}

QString Pad3(int value)
{
    QString text = QString::number(value);
    if (text.size() < 3)
        text.prepend(QString(3 - text.size(), u' '));
    return text;
}

// ---- Dates ------------------------------------------------------------------

namespace {

QDate serialZero()
{
    return QDate(1899, 12, 30);
}

// Hands each run of one format letter of a Qt date format to run, and everything else
// (quoted text with its quotes) to literal.
template <typename Run, typename Literal>
void scanQtFormat(const QString &format, Run run, Literal literal)
{
    const char16_t *p = begin16(format);
    const char16_t *const end = end16(format);
    while (p != end) {
        if (*p == u'\'') {
            const char16_t *from = p++;
            while (p != end && *p != u'\'')
                ++p;
            if (p != end)
                ++p;
            literal(QStringView(from, p));
            continue;
        }
        if ((*p >= u'a' && *p <= u'z') || (*p >= u'A' && *p <= u'Z')) {
            const char16_t letter = *p;
            int count = 0;
            while (p != end && *p == letter) {
                ++p;
                ++count;
            }
            run(letter, count);
            continue;
        }
        literal(QStringView(p, 1));
        ++p;
    }
}

enum class FieldParse { Date, NoDate, Unsupported };

// Reads a date in a numeric Qt date format (d, dd, M, MM, yy, yyyy and literal text).
// Day and month are read with one or two digits whatever the format says. A blank in
// the format matches any run of blanks, or none. Formats with other fields
// (month names and the like) are left to QLocale.
FieldParse parseNumericDate(QStringView text, const QString &format, QDate *date)
{
    struct Part
    {
        char16_t field; // 'd', 'M', 'y', 'Y' (two-digit year) or 0 for literal text
        QStringView literal;
    };
    QVarLengthArray<Part, 16> parts;
    bool supported = true;
    scanQtFormat(
        format,
        [&](char16_t letter, int count) {
            if ((letter == u'd' || letter == u'M') && count <= 2)
                parts.append({letter, {}});
            else if (letter == u'y' && count == 4)
                parts.append({u'y', {}});
            else if (letter == u'y' && count == 2)
                parts.append({u'Y', {}});
            else
                supported = false;
        },
        [&](QStringView literal) {
            if (literal.startsWith(u'\'')) {
                literal = literal.mid(1);
                if (literal.endsWith(u'\''))
                    literal.chop(1);
                if (literal.isEmpty())
                    literal = u"'"; // '' is a quote
            }
            parts.append({0, literal});
        });
    if (!supported)
        return FieldParse::Unsupported;

    int day = 0;
    int month = 0;
    int year = 0;
    qsizetype pos = 0;
    const auto readNumber = [&](int minDigits, int maxDigits, int *value) {
        int digits = 0;
        *value = 0;
        while (digits < maxDigits && pos < text.size() && isAsciiDigit(text[pos].unicode())) {
            *value = *value * 10 + (text[pos].unicode() - u'0');
            ++pos;
            ++digits;
        }
        return digits >= minDigits;
    };
    for (const Part &part : parts) {
        bool matched = true;
        switch (part.field) {
        case u'd':
            matched = readNumber(1, 2, &day);
            break;
        case u'M':
            matched = readNumber(1, 2, &month);
            break;
        case u'y':
            matched = readNumber(4, 4, &year);
            break;
        case u'Y':
            matched = readNumber(2, 2, &year);
            year += year < 50 ? 2000 : 1900;
            break;
        default:
            for (const QChar c : part.literal) {
                if (c == u' ') {
                    while (pos < text.size() && text[pos] == u' ')
                        ++pos;
                } else if (pos < text.size() && text[pos] == c) {
                    ++pos;
                } else {
                    matched = false;
                    break;
                }
            }
        }
        if (!matched)
            return FieldParse::NoDate;
    }
    if (pos != text.size())
        return FieldParse::NoDate;
    *date = QDate(year, month, day);
    return date->isValid() ? FieldParse::Date : FieldParse::NoDate;
}

// The format with the year in yearDigits digits (2 or 4).
QString withYearDigits(const QString &format, int yearDigits)
{
    QString out;
    out.reserve(format.size() + 2);
    scanQtFormat(
        format,
        [&out, yearDigits](char16_t letter, int count) {
            out.append(QString(letter == u'y' ? yearDigits : count, QChar(letter)));
        },
        [&out](QStringView literal) { out.append(literal); });
    return out;
}

} // namespace

double DateToSerial(const QDate &date)
{
    if (!date.isValid())
        return 0;
    return double(serialZero().daysTo(date));
}

QDate SerialToDate(double serial)
{
    if (!std::isfinite(serial))
        return QDate();
    const double days = std::trunc(serial);
    // Far beyond any schedule, and well inside what QDate can count.
    if (std::fabs(days) > 1e9)
        return QDate();
    return serialZero().addDays(qint64(days));
}

// The first character of the locale's short date format that is not a letter or a
// quote: "/" in the United States, "." in Germany, "-" in the Netherlands.
QString dateSeparator(const QLocale &locale)
{
    const QString format = locale.dateFormat(QLocale::ShortFormat);
    for (QChar c : format) {
        if (!c.isLetter() && c != u'\'' && c != u'"')
            return QString(c);
    }
    return QStringLiteral("/");
}

QString FormatDate(const QDate &date, const QString &pattern, const QLocale &locale)
{
    if (!date.isValid())
        return QString();

    QString out;
    out.reserve(pattern.size() + 16);
    const char16_t *p = begin16(pattern);
    const char16_t *const end = end16(pattern);
    while (p != end) {
        const char16_t c = *p;
        if (c == u'"' || c == u'\'') {
            const char16_t *from = ++p;
            while (p != end && *p != c)
                ++p;
            out.append(QStringView(from, p));
            if (p != end)
                ++p;
            continue;
        }
        if (c == u'/') {
            // As in the earlier edition, "/" stands for the locale's date separator.
            out.append(dateSeparator(locale));
            ++p;
            continue;
        }
        const char16_t letter = (c >= u'A' && c <= u'Z') ? char16_t(c + (u'a' - u'A')) : c;
        if (letter != u'd' && letter != u'm' && letter != u'y') {
            out.append(QChar(c));
            ++p;
            continue;
        }
        // A run of the same character (same case) makes one field, "dD" is two.
        int count = 0;
        while (p != end && *p == c) {
            ++p;
            ++count;
        }
        switch (letter) {
        case u'd':
            if (count <= 2)
                appendNumber(out, date.day(), count);
            else if (count == 3)
                out.append(locale.dayName(date.dayOfWeek(), QLocale::ShortFormat));
            else if (count == 4)
                out.append(locale.dayName(date.dayOfWeek(), QLocale::LongFormat));
            else if (count == 5)
                out.append(locale.toString(date, ShortDateFormat(locale)));
            else
                out.append(locale.toString(date, QLocale::LongFormat));
            break;
        case u'm':
            if (count <= 2)
                appendNumber(out, date.month(), count);
            else if (count == 3)
                out.append(locale.monthName(date.month(), QLocale::ShortFormat));
            else
                out.append(locale.monthName(date.month(), QLocale::LongFormat));
            break;
        default:
            if (count <= 2)
                appendNumber(out, ((date.year() % 100) + 100) % 100, 2);
            else
                appendNumber(out, date.year(), 4);
            break;
        }
    }
    return out;
}

QString ShortDateFormat(const QLocale &locale)
{
    return withYearDigits(locale.dateFormat(QLocale::ShortFormat), 4);
}

QDate ParseShortDate(const QString &text, const QLocale &locale)
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (trimmed.isEmpty())
        return QDate();

    const QString localeFormat = locale.dateFormat(QLocale::ShortFormat);
    for (const int yearDigits : {4, 2}) {
        const QString format = withYearDigits(localeFormat, yearDigits);
        QDate date;
        switch (parseNumericDate(trimmed, format, &date)) {
        case FieldParse::Date:
            return date;
        case FieldParse::NoDate:
            break;
        case FieldParse::Unsupported:
            // A format with names in it: QLocale reads it, and a two-digit year as 19yy.
            date = locale.toDate(trimmed.toString(), format);
            if (date.isValid()) {
                if (yearDigits == 2 && date.year() < 1950)
                    date = date.addYears(100);
                return date;
            }
            break;
        }
    }
    return QDate();
}

int DayOfWeek(const QDate &date)
{
    if (!date.isValid())
        return 0;
    return date.dayOfWeek() % 7 + 1;
}

// ---- Colours ----------------------------------------------------------------

namespace {

constexpr quint32 SystemColorFlag = 0x80000000u;
constexpr quint32 ColorNone = 0x1FFFFFFFu;
constexpr quint32 ColorDefault = 0x20000000u;

struct NamedColor
{
    const char *name;
    quint32 value;
};

// Colours given by their parts come first: ColorToString names a colour after the
// first entry with its value.
constexpr NamedColor NamedColors[] = {
    {"clBlack", 0x000000},
    {"clMaroon", 0x000080},
    {"clGreen", 0x008000},
    {"clOlive", 0x008080},
    {"clNavy", 0x800000},
    {"clPurple", 0x800080},
    {"clTeal", 0x808000},
    {"clGray", 0x808080},
    {"clSilver", 0xC0C0C0},
    {"clRed", 0x0000FF},
    {"clLime", 0x00FF00},
    {"clYellow", 0x00FFFF},
    {"clBlue", 0xFF0000},
    {"clFuchsia", 0xFF00FF},
    {"clAqua", 0xFFFF00},
    {"clWhite", 0xFFFFFF},
    {"clMoneyGreen", 0xC0DCC0},
    {"clSkyBlue", 0xF0CAA6},
    {"clCream", 0xF0FBFF},
    {"clMedGray", 0xA4A0A0},
    {"clScrollBar", 0xFF000000},
    {"clBackground", 0xFF000001},
    {"clActiveCaption", 0xFF000002},
    {"clInactiveCaption", 0xFF000003},
    {"clMenu", 0xFF000004},
    {"clWindow", 0xFF000005},
    {"clWindowFrame", 0xFF000006},
    {"clMenuText", 0xFF000007},
    {"clWindowText", 0xFF000008},
    {"clCaptionText", 0xFF000009},
    {"clActiveBorder", 0xFF00000A},
    {"clInactiveBorder", 0xFF00000B},
    {"clAppWorkSpace", 0xFF00000C},
    {"clHighlight", 0xFF00000D},
    {"clHighlightText", 0xFF00000E},
    {"clBtnFace", 0xFF00000F},
    {"clBtnShadow", 0xFF000010},
    {"clGrayText", 0xFF000011},
    {"clBtnText", 0xFF000012},
    {"clInactiveCaptionText", 0xFF000013},
    {"clBtnHighlight", 0xFF000014},
    {"cl3DDkShadow", 0xFF000015},
    {"cl3DLight", 0xFF000016},
    {"clInfoText", 0xFF000017},
    {"clInfoBk", 0xFF000018},
    {"clNone", ColorNone},
    {"clDefault", ColorDefault},
};

// The classic Windows scheme, by system colour number.
constexpr QRgb SystemColorDefaults[] = {
    qRgb(212, 208, 200), // clScrollBar
    qRgb(58, 110, 165),  // clBackground
    qRgb(10, 36, 106),   // clActiveCaption
    qRgb(128, 128, 128), // clInactiveCaption
    qRgb(212, 208, 200), // clMenu
    qRgb(255, 255, 255), // clWindow
    qRgb(0, 0, 0),       // clWindowFrame
    qRgb(0, 0, 0),       // clMenuText
    qRgb(0, 0, 0),       // clWindowText
    qRgb(255, 255, 255), // clCaptionText
    qRgb(212, 208, 200), // clActiveBorder
    qRgb(212, 208, 200), // clInactiveBorder
    qRgb(128, 128, 128), // clAppWorkSpace
    qRgb(10, 36, 106),   // clHighlight
    qRgb(255, 255, 255), // clHighlightText
    qRgb(212, 208, 200), // clBtnFace
    qRgb(128, 128, 128), // clBtnShadow
    qRgb(128, 128, 128), // clGrayText
    qRgb(0, 0, 0),       // clBtnText
    qRgb(212, 208, 200), // clInactiveCaptionText
    qRgb(255, 255, 255), // clBtnHighlight
    qRgb(64, 64, 64),    // cl3DDkShadow
    qRgb(212, 208, 200), // cl3DLight
    qRgb(0, 0, 0),       // clInfoText
    qRgb(255, 255, 225), // clInfoBk
};

} // namespace

QString ColorValueToString(quint32 value)
{
    for (const NamedColor &named : NamedColors)
        if (named.value == value)
            return QLatin1String(named.name);
    char buffer[10] = {'$', '0', '0', '0', '0', '0', '0', '0', '0', 0};
    static constexpr char HexDigits[] = "0123456789ABCDEF";
    for (int i = 0; i < 8; ++i)
        buffer[8 - i] = HexDigits[(value >> (4 * i)) & 0xF];
    return QLatin1String(buffer, 9);
}

bool StringToColorValue(const QString &text, quint32 *value)
{
    for (const NamedColor &named : NamedColors) {
        if (text.compare(QLatin1String(named.name), Qt::CaseInsensitive) == 0) {
            *value = named.value;
            return true;
        }
    }
    bool ok = false;
    const int number = StrToInt(text, &ok);
    if (!ok)
        return false;
    *value = static_cast<quint32>(number);
    return true;
}

QColor ColorValueToQColor(quint32 value)
{
    if (value == ColorNone)
        return QColor(0, 0, 0, 0);
    if (value == ColorDefault)
        return QColor(0, 0, 0);
    if (value & SystemColorFlag) {
        const quint32 index = value & 0xFF;
        if (index < std::size(SystemColorDefaults))
            return QColor::fromRgb(SystemColorDefaults[index]);
        return QColor(0, 0, 0);
    }
    return QColor(int(value & 0xFF), int((value >> 8) & 0xFF), int((value >> 16) & 0xFF));
}

QString ColorToString(const QColor &color)
{
    if (!color.isValid() || color.alpha() == 0)
        return QStringLiteral("clNone");
    const QRgb rgb = color.rgb();
    return ColorValueToString(quint32(qRed(rgb)) | quint32(qGreen(rgb)) << 8 | quint32(qBlue(rgb)) << 16);
}

QColor StringToColor(const QString &text)
{
    quint32 value = 0;
    if (!StringToColorValue(text, &value))
        return QColor();
    return ColorValueToQColor(value);
}

// ---- Text encoding ----------------------------------------------------------

namespace {

// Bytes 0x80..0x9F; the five the code page leaves undefined stand for themselves.
constexpr std::array<char16_t, 32> Windows1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

// The Windows-1252 byte of a character, or -1 when there is none.
int windows1252Byte(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return c;
    switch (c) {
    case 0x0081:
    case 0x008D:
    case 0x008F:
    case 0x0090:
    case 0x009D:
        return c;
    case 0x20AC:
        return 0x80;
    case 0x201A:
        return 0x82;
    case 0x0192:
        return 0x83;
    case 0x201E:
        return 0x84;
    case 0x2026:
        return 0x85;
    case 0x2020:
        return 0x86;
    case 0x2021:
        return 0x87;
    case 0x02C6:
        return 0x88;
    case 0x2030:
        return 0x89;
    case 0x0160:
        return 0x8A;
    case 0x2039:
        return 0x8B;
    case 0x0152:
        return 0x8C;
    case 0x017D:
        return 0x8E;
    case 0x2018:
        return 0x91;
    case 0x2019:
        return 0x92;
    case 0x201C:
        return 0x93;
    case 0x201D:
        return 0x94;
    case 0x2022:
        return 0x95;
    case 0x2013:
        return 0x96;
    case 0x2014:
        return 0x97;
    case 0x02DC:
        return 0x98;
    case 0x2122:
        return 0x99;
    case 0x0161:
        return 0x9A;
    case 0x203A:
        return 0x9B;
    case 0x0153:
        return 0x9C;
    case 0x017E:
        return 0x9E;
    case 0x0178:
        return 0x9F;
    default:
        return -1;
    }
}

// Encodes into out (sized by the caller); false at the first character without a byte
// when stopAtUnknown is set, otherwise such a character becomes "?".
bool encodeWindows1252(const QString &text, QByteArray &out, bool stopAtUnknown)
{
    out.resize(text.size());
    char *o = out.data();
    for (const char16_t c : view16(text)) {
        const int byte = windows1252Byte(c);
        if (byte < 0) {
            if (stopAtUnknown)
                return false;
            *o++ = '?';
        } else {
            *o++ = char(byte);
        }
    }
    return true;
}

struct Utf8Scan
{
    bool valid = true;
    bool nonAscii = false;
};

// Checks for well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
Utf8Scan scanUtf8(QByteArrayView bytes)
{
    Utf8Scan scan;
    const auto *p = reinterpret_cast<const unsigned char *>(bytes.data());
    const auto *const end = p + bytes.size();
    while (p != end) {
        // Most file text is ASCII: step over it eight bytes at a time.
        while (end - p >= 8) {
            std::uint64_t block;
            std::memcpy(&block, p, 8);
            if (block & 0x8080808080808080ull)
                break;
            p += 8;
        }
        if (p == end)
            break;
        const unsigned char lead = *p;
        if (lead < 0x80) {
            ++p;
            continue;
        }
        scan.nonAscii = true;
        int continuation = 0;
        unsigned char low = 0x80;
        unsigned char high = 0xBF;
        if (lead >= 0xC2 && lead <= 0xDF) {
            continuation = 1;
        } else if (lead >= 0xE0 && lead <= 0xEF) {
            continuation = 2;
            if (lead == 0xE0)
                low = 0xA0;
            else if (lead == 0xED)
                high = 0x9F;
        } else if (lead >= 0xF0 && lead <= 0xF4) {
            continuation = 3;
            if (lead == 0xF0)
                low = 0x90;
            else if (lead == 0xF4)
                high = 0x8F;
        } else {
            scan.valid = false;
            return scan;
        }
        if (end - p <= continuation || p[1] < low || p[1] > high) {
            scan.valid = false;
            return scan;
        }
        for (int i = 2; i <= continuation; ++i) {
            if (p[i] < 0x80 || p[i] > 0xBF) {
                scan.valid = false;
                return scan;
            }
        }
        p += continuation + 1;
    }
    return scan;
}

} // namespace

QString DecodeWindows1252(const QByteArray &bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    auto *o = reinterpret_cast<char16_t *>(text.data());
    for (const char b : bytes) {
        const auto byte = static_cast<unsigned char>(b);
        *o++ = (byte & 0xE0) == 0x80 ? Windows1252High[byte - 0x80] : char16_t(byte);
    }
    return text;
}

bool CanEncodeWindows1252(const QString &text)
{
    for (const char16_t c : view16(text))
        if (windows1252Byte(c) < 0)
            return false;
    return true;
}

QByteArray EncodeWindows1252(const QString &text)
{
    QByteArray bytes;
    encodeWindows1252(text, bytes, false);
    return bytes;
}

namespace {

bool startsWithByteOrderMark(QByteArrayView bytes)
{
    return bytes.startsWith("\xEF\xBB\xBF") || bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
}

} // namespace

QString DecodeFileText(const QByteArray &bytes)
{
    // A byte order mark decides first: UTF-8, or UTF-16 as Windows Notepad saves
    // "Unicode" text. The mark itself is not part of the text.
    const QByteArrayView view(bytes);
    if (view.startsWith("\xEF\xBB\xBF")) {
        // Only the file's own mark goes; a second one is a character of the text.
        QStringDecoder decoder(QStringConverter::Utf8,
                               QStringConverter::Flag::ConvertInitialBom | QStringConverter::Flag::Stateless);
        return decoder.decode(view.sliced(3));
    }
    if (view.startsWith("\xFF\xFE") || view.startsWith("\xFE\xFF")) {
        const bool little = view.front() == '\xFF';
        const QByteArrayView body = view.sliced(2);
        QString text(body.size() / 2, Qt::Uninitialized);
        auto *o = reinterpret_cast<char16_t *>(text.data());
        const auto *b = reinterpret_cast<const unsigned char *>(body.data());
        for (qsizetype i = 0; i + 1 < body.size(); i += 2)
            *o++ = little ? char16_t(b[i] | b[i + 1] << 8) : char16_t(b[i] << 8 | b[i + 1]);
        // An odd last byte cannot be a character; it is left out.
        return text;
    }
    // Without a mark: well-formed UTF-8 that is not plain ASCII is UTF-8, anything
    // else is the earlier edition's Windows-1252.
    const Utf8Scan scan = scanUtf8(bytes);
    if (!scan.valid || !scan.nonAscii)
        return DecodeWindows1252(bytes);
    return QString::fromUtf8(view);
}

QByteArray EncodeFileText(const QString &text)
{
    // Windows-1252 keeps files readable by the earlier edition, but only when the bytes
    // read back as the same text: Windows-1252 bytes that happen to form well-formed
    // UTF-8 ("CAFÉ’S" is C3 89 E2 80 99 ...) would be read as UTF-8 and change. Such
    // text, and text Windows-1252 cannot hold, is written as UTF-8, which the reader
    // always recognises: UTF-8 of non-ASCII text never reads as anything else.
    QByteArray bytes;
    if (encodeWindows1252(text, bytes, true) && !startsWithByteOrderMark(bytes)) {
        const Utf8Scan scan = scanUtf8(bytes);
        if (!scan.valid || !scan.nonAscii)
            return bytes;
    }
    // Text that itself begins with a byte order mark character keeps it behind a mark
    // of the file's own, which the reader takes away.
    if (text.startsWith(QChar(0xFEFF)))
        return QByteArray("\xEF\xBB\xBF") + text.toUtf8();
    return text.toUtf8();
}

} // namespace tb::legacy
