#include "TestSupport.h"

#include "document/LegacyText.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <limits>

using namespace tb::legacy;

namespace {

// Adds one data row. The tables below list several rows to a line.
template <typename... T>
void row(const char *tag, T... values)
{
    (QTest::newRow(tag) << ... << values);
}

} // namespace

class TestLegacyText : public QObject
{
    Q_OBJECT

private slots:
    // ---- Comma text -------------------------------------------------------------

    void joinCommaText_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<QString>("text");
        row("no items", QStringList(), ""), row("one empty item", QStringList{""}, "\"\""),
            row("two empty items", QStringList{"", ""}, ","), row("plain", QStringList{"a", "b"}, "a,b"),
            row("empty in the middle", QStringList{"a", "", "b"}, "a,,b"),
            row("empty first", QStringList{"", "a"}, ",a"), row("empty last", QStringList{"a", ""}, "a,"),
            row("blank", QStringList{"a b", "c"}, "\"a b\",c"), row("comma", QStringList{"a,b"}, "\"a,b\""),
            row("quotes doubled", QStringList{"say \"hi\""}, "\"say \"\"hi\"\"\""),
            row("lone quote", QStringList{"\""}, "\"\"\"\""), row("control character", QStringList{"a\tb"}, "\"a\tb\""),
            row("non-ASCII unquoted", QStringList{"café", "日本"}, "café,日本");
    }

    void joinCommaText()
    {
        QFETCH(QStringList, items);
        QFETCH(QString, text);
        QCOMPARE(JoinCommaText(items), text);
    }

    void splitCommaText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("items");
        row("empty", "", QStringList()), row("only blanks", " \t ", QStringList()),
            row("quoted empty", "\"\"", QStringList{""}), row("blank separates", "a b", QStringList{"a", "b"}),
            row("text after quote", "\"a\"b,c", QStringList{"a", "b", "c"}),
            row("trailing comma", "a,", QStringList{"a", ""}),
            row("trailing comma then blank", "a, ", QStringList{"a"}), row("leading comma", ",a", QStringList{"", "a"}),
            row("double comma", "a,,b", QStringList{"a", "", "b"}),
            row("blanks around", "  a , b  ", QStringList{"a", "b"}),
            row("doubled quotes", "\"a \"\"q\"\" b\",c", QStringList{"a \"q\" b", "c"}),
            row("quote inside unquoted", "x\"y\"", QStringList{"x\"y\""}),
            row("unclosed quote", "\"open, end", QStringList{"open, end"}),
            row("unclosed after doubled", "\"a\"\"", QStringList{"a\""}),
            row("NUL ends the text", QString::fromLatin1("a,b\0c,d", 7), QStringList{"a", "b"}),
            row("non-ASCII", "Łódź,日本 é", QStringList{"Łódź", "日本", "é"});
    }

    void splitCommaText()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, items);
        QCOMPARE(SplitCommaText(text), items);
    }

    void commaTextRoundTrip_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 8; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void commaTextRoundTrip()
    {
        QFETCH(quint32, seed);
        static const QStringList pieces{"a", "Z", "0", " ", "\t", "\n", ",", "\"", "\"\"", "é", "日", "Ł", ";", ""};
        QRandomGenerator random(seed);
        for (int round = 0; round < 500; ++round) {
            QStringList items;
            const int count = random.bounded(6);
            for (int i = 0; i < count; ++i) {
                QString item;
                const int length = random.bounded(5);
                for (int k = 0; k < length; ++k)
                    item += pieces[random.bounded(int(pieces.size()))];
                items << item;
            }
            const QString text = JoinCommaText(items);
            QCOMPARE(SplitCommaText(text), items);
        }
    }

    // ---- Numbers ----------------------------------------------------------------

    void strToInt_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<int>("value");
        row("leading zeros", "00012", true, 12), row("negative", "-42", true, -42), row("plus", "+7", true, 7),
            row("leading blanks", " \t 12", true, 12), row("trailing blank", "12 ", false, 0),
            row("empty", "", false, 0), row("sign only", "-", false, 0), row("dollar only", "$", false, 0),
            row("0x only", "0x", false, 0), row("hex", "$1F", true, 31), row("hex lower case", "$ff", true, 255),
            row("0x", "0x10", true, 16), row("0X", "0X10", true, 16), row("negative hex", "-$10", true, -16),
            row("int max", "2147483647", true, std::numeric_limits<int>::max()),
            row("int max + 1", "2147483648", false, 0),
            row("int min", "-2147483648", true, std::numeric_limits<int>::min()),
            row("int min - 1", "-2147483649", false, 0), row("hex all bits", "$FFFFFFFF", true, -1),
            row("system colour", "$FF00000F", true, int(0xFF00000Fu - 0x100000000ll)),
            row("hex too long", "$100000000", false, 0), row("fraction", "1.5", false, 0),
            row("letters after", "12a", false, 0), row("bad hex digit", "$1G", false, 0),
            row("non-ASCII digit", "\u0663", false, 0);
    }

    void strToInt()
    {
        QFETCH(QString, text);
        QFETCH(bool, ok);
        QFETCH(int, value);
        bool converted = !ok;
        QCOMPARE(StrToInt(text, &converted), value);
        QCOMPARE(converted, ok);
        QCOMPARE(StrToIntDef(text, -99), ok ? value : -99);
    }

    void floatToText_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        row("0.75", 0.75, "0.75"), row("serial and half day", 46082.5, "46082.5"),
            row("1/3", 1.0 / 3, "0.333333333333333"), row("2/3", 2.0 / 3, "0.666666666666667"),
            row("0.1+0.2", 0.1 + 0.2, "0.3"), row("18 digits", 123456789012345678.0, "1.23456789012346E17"),
            row("1e15", 1e15, "1E15"), row("15 nines", 999999999999999.0, "999999999999999"),
            row("rounds up to 1e15", 999999999999999.9, "1E15"), row("1e-5", 0.00001, "0.00001"),
            row("1e-6", 0.000001, "1E-6"), row("1.5e20", 1.5e20, "1.5E20"), row("negative small", -2.25e-7, "-2.25E-7"),
            row("negative", -12.5, "-12.5"), row("zero", 0.0, "0"), row("negative zero", -0.0, "0"),
            row("tie rounds away from zero", 12345678901234.25, "12345678901234.3"),
            row("largest", std::numeric_limits<double>::max(), "1.79769313486232E308"),
            row("NaN", std::numeric_limits<double>::quiet_NaN(), "NAN"),
            row("infinity", std::numeric_limits<double>::infinity(), "INF"),
            row("minus infinity", -std::numeric_limits<double>::infinity(), "-INF");
    }

    void floatToText()
    {
        QFETCH(double, value);
        QFETCH(QString, text);
        QCOMPARE(FloatToText(value), text);
    }

    void singleToText_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<QString>("text");
        row("3.375", 3.375f, "3.375"), row("0.1", 0.1f, "0.1"), row("1.1", 1.1f, "1.1"),
            row("negative zero", -0.0f, "0"), row("negative", -2.5f, "-2.5"), row("small", 0.001f, "0.001"),
            row("large", 1e10f, "10000000000"), row("2^24", 16777216.0f, "16777216");
    }

    void singleToText()
    {
        QFETCH(float, value);
        QFETCH(QString, text);
        const QString written = SingleToText(value);
        QCOMPARE(written, text);
        bool ok = false;
        QVERIFY(float(FloatFromText(written, &ok)) == value);
        QVERIFY(ok);
    }

    void floatFromText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<double>("value");
        row("comma", "0,5", true, 0.5), row("blanks", " \t1.25 ", true, 1.25), row("integer", "-3", true, -3.0),
            row("plus", "+3", true, 3.0), row("exponent", "1E-2", true, 0.01),
            row("exponent with plus", "1e+3", true, 1000.0), row("comma and exponent", "2,5e1", true, 25.0),
            row("no integer part", ".5", true, 0.5), row("no fraction digits", "5.", true, 5.0),
            row("written back", FloatToText(2.0 / 3), true, 0.666666666666667), row("empty", "", false, 0.0),
            row("blank", "  ", false, 0.0), row("separator only", ",", false, 0.0), row("garbage", "abc", false, 0.0),
            row("two separators", "1.2.3", false, 0.0), row("mixed separators", "1,000.5", false, 0.0),
            row("inner blank", "1 000", false, 0.0), row("exponent without digits", "1e", false, 0.0),
            row("exponent only", "e5", false, 0.0), row("two signs", "--1", false, 0.0), row("hex", "0x10", false, 0.0),
            row("NAN", "NAN", false, 0.0), row("out of range", "1e400", false, 0.0);
    }

    void floatFromText()
    {
        QFETCH(QString, text);
        QFETCH(bool, ok);
        QFETCH(double, value);
        bool converted = !ok;
        QCOMPARE(FloatFromText(text, &converted), value);
        QCOMPARE(converted, ok);
    }

    void pad3_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("text");
        row("one digit", 7, "  7"), row("three digits", 120, "120"), row("four digits", 1234, "1234"),
            row("negative", -5, " -5"), row("zero", 0, "  0");
    }

    void pad3()
    {
        QFETCH(int, value);
        QFETCH(QString, text);
        QCOMPARE(Pad3(value), text);
    }

    // ---- Dates ------------------------------------------------------------------

    void serialDates_data()
    {
        QTest::addColumn<double>("serial");
        QTest::addColumn<QDate>("date");
        row("serial zero", 0.0, QDate(1899, 12, 30)), row("day before", -1.0, QDate(1899, 12, 29)),
            row("1900-01-01", 2.0, QDate(1900, 1, 1)), row("2000-01-01", 36526.0, QDate(2000, 1, 1)),
            row("2026-03-06", 46087.0, QDate(2026, 3, 6)), row("time of day", 46087.75, QDate(2026, 3, 6)),
            row("negative with time", -1.5, QDate(1899, 12, 29)), row("just below zero", -0.25, QDate(1899, 12, 30)),
            row("NaN", std::numeric_limits<double>::quiet_NaN(), QDate()),
            row("infinity", std::numeric_limits<double>::infinity(), QDate()), row("huge", 1e300, QDate());
    }

    void serialDates()
    {
        QFETCH(double, serial);
        QFETCH(QDate, date);
        QCOMPARE(SerialToDate(serial), date);
        if (date.isValid() && serial == std::floor(serial))
            QCOMPARE(DateToSerial(date), serial);
    }

    void formatDate_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("text");
        const QDate friday(2026, 3, 6);
        row("day fields", friday, "d dd ddd dddd", "6 06 Fri Friday"), row("ddddd", friday, "ddddd", "3/6/2026"),
            row("dddddd", friday, "dddddd", "Friday, March 6, 2026"),
            row("eight d", friday, "dddddddd", "Friday, March 6, 2026"),
            row("month fields", friday, "m mm mmm mmmm", "3 03 Mar March"),
            row("year fields", friday, "y yy yyy yyyy", "26 26 2026 2026"),
            row("yy pads", QDate(2005, 11, 23), "yy", "05"),
            row("two-digit day and month", QDate(2005, 11, 23), "d/m", "23/11"),
            row("upper case", friday, "DD/MM/YYYY", "06/03/2026"), row("mixed case are two fields", friday, "dD", "66"),
            row("day and month", friday, DayMonthPattern, "6/3"),
            row("day date", friday, DayDatePattern, "Fri, March 6, 2026"),
            row("double-quoted text", friday, "\"day\" d", "day 6"), row("single-quoted text", friday, "'m' m", "m 3"),
            row("unclosed quote", friday, "d 'my", "6 my"), row("other characters", friday, "[d-m]", "[6-3]"),
            row("invalid date", QDate(), "d/m/yyyy", "");
    }

    void formatDate()
    {
        QFETCH(QDate, date);
        QFETCH(QString, pattern);
        QFETCH(QString, text);
        QCOMPARE(FormatDate(date, pattern, QLocale(QLocale::English, QLocale::UnitedStates)), text);
    }

    void formatDateSeparator()
    {
        // "/" in a pattern is the locale's date separator, as the earlier edition had it.
        const QDate friday(2026, 3, 6);
        QCOMPARE(FormatDate(friday, DayMonthPattern, QLocale(QLocale::German, QLocale::Germany)), "6.3");
        QCOMPARE(FormatDate(friday, DayMonthPattern, QLocale(QLocale::English, QLocale::UnitedKingdom)), "6/3");
        QCOMPARE(FormatDate(friday, "'a/b' d/m", QLocale(QLocale::German, QLocale::Germany)), "a/b 6.3");
    }

    void shortDateFormat_data()
    {
        QTest::addColumn<QString>("format");
        row("en_US", "M/d/yyyy"), row("en_GB", "dd/MM/yyyy"), row("de_DE", "dd.MM.yyyy"), row("ko_KR", "yyyy. M. d.");
    }

    void shortDateFormat()
    {
        QFETCH(QString, format);
        const QLocale locale(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(ShortDateFormat(locale), format);

        // The short date written by FormatDate reads back in the same locale.
        const QDate date(2026, 3, 6);
        const QString text = FormatDate(date, ShortDatePattern, locale);
        QVERIFY2(text.contains(u"2026"), qPrintable(text));
        QCOMPARE(ParseShortDate(text, locale), date);
    }

    void parseShortDate_data()
    {
        QTest::addColumn<QString>("localeName");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("date");
        row("en_US four-digit year", "en_US", "3/6/2026", QDate(2026, 3, 6)),
            row("en_US leading zeros", "en_US", "03/06/2026", QDate(2026, 3, 6)),
            row("en_US two-digit year", "en_US", "3/6/26", QDate(2026, 3, 6)),
            row("en_US year 75", "en_US", "3/6/75", QDate(1975, 3, 6)),
            row("en_US year 49", "en_US", "3/6/49", QDate(2049, 3, 6)),
            row("en_US year 50", "en_US", "3/6/50", QDate(1950, 3, 6)),
            row("en_US leap day 00", "en_US", "2/29/00", QDate(2000, 2, 29)),
            row("en_US blanks around", "en_US", " 3/6/2026 ", QDate(2026, 3, 6)),
            row("en_US month 13", "en_US", "13/6/2026", QDate()), row("en_US no year", "en_US", "3/6", QDate()),
            row("en_US three-digit year", "en_US", "3/6/026", QDate()),
            row("en_US trailing text", "en_US", "3/6/2026x", QDate()), row("en_US empty", "en_US", "", QDate()),
            row("en_GB", "en_GB", "06/03/2026", QDate(2026, 3, 6)),
            row("en_GB two-digit year", "en_GB", "6/3/26", QDate(2026, 3, 6)),
            row("de_DE", "de_DE", "06.03.26", QDate(2026, 3, 6)),
            row("de_DE without zeros", "de_DE", "6.3.2026", QDate(2026, 3, 6)),
            row("de_DE 31 February", "de_DE", "31.02.2026", QDate()),
            row("ko_KR", "ko_KR", "26. 3. 6.", QDate(2026, 3, 6));
    }

    void parseShortDate()
    {
        QFETCH(QString, localeName);
        QFETCH(QString, text);
        QFETCH(QDate, date);
        QCOMPARE(ParseShortDate(text, QLocale(localeName)), date);
    }

    void dayOfWeek_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<int>("day");
        row("Sunday", QDate(2026, 3, 1), 1), row("Monday", QDate(2026, 3, 2), 2), row("Friday", QDate(2026, 3, 6), 6),
            row("Saturday", QDate(2026, 3, 7), 7), row("invalid", QDate(), 0);
    }

    void dayOfWeek()
    {
        QFETCH(QDate, date);
        QFETCH(int, day);
        QCOMPARE(DayOfWeek(date), day);
    }

    // ---- Colours ----------------------------------------------------------------

    void colorValueNames_data()
    {
        QTest::addColumn<quint32>("value");
        QTest::addColumn<QString>("text");
        row("clBlack", 0x000000u, "clBlack"), row("clRed", 0x0000FFu, "clRed"),
            row("clMoneyGreen", 0xC0DCC0u, "clMoneyGreen"), row("clMedGray", 0xA4A0A0u, "clMedGray"),
            row("clScrollBar", 0xFF000000u, "clScrollBar"), row("clBtnFace", 0xFF00000Fu, "clBtnFace"),
            row("clInfoBk", 0xFF000018u, "clInfoBk"), row("clNone", 0x1FFFFFFFu, "clNone"),
            row("clDefault", 0x20000000u, "clDefault"), row("unnamed colour", 0x00123456u, "$00123456"),
            row("unnamed small", 0x0000000Au, "$0000000A"), row("unnamed system colour", 0xFF00001Au, "$FF00001A");
    }

    void colorValueNames()
    {
        QFETCH(quint32, value);
        QFETCH(QString, text);
        QCOMPARE(ColorValueToString(value), text);
        quint32 read = ~value;
        QVERIFY(StringToColorValue(text, &read));
        QCOMPARE(read, value);
    }

    void stringToColorValue_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<quint32>("value");
        row("lower-case name", "clbtnface", true, 0xFF00000Fu), row("upper-case name", "CLRED", true, 0x0000FFu),
            row("hex", "$00FF8000", true, 0x00FF8000u), row("decimal", "255", true, 0x0000FFu),
            row("negative decimal", "-16777201", true, 0xFF00000Fu), row("unknown name", "clBogus", false, 0u),
            row("empty", "", false, 0u), row("HTML form", "#FF0000", false, 0u);
    }

    void stringToColorValue()
    {
        QFETCH(QString, text);
        QFETCH(bool, ok);
        QFETCH(quint32, value);
        quint32 read = 0xDEADBEEF;
        QCOMPARE(StringToColorValue(text, &read), ok);
        QCOMPARE(read, ok ? value : 0xDEADBEEF);
    }

    void colorToString_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("text");
        row("red", QColor(255, 0, 0), "clRed"), row("money green", QColor(192, 220, 192), "clMoneyGreen"),
            row("parts in BGR order", QColor(0x12, 0x34, 0x56), "$00563412"),
            row("button face is no name", QColor(212, 208, 200), "$00C8D0D4"), row("invalid", QColor(), "clNone"),
            row("transparent", QColor(0, 0, 0, 0), "clNone");
    }

    void colorToString()
    {
        QFETCH(QColor, color);
        QFETCH(QString, text);
        QCOMPARE(ColorToString(color), text);
    }

    void stringToColor_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("color");
        row("clRed", "clRed", QColor(255, 0, 0)), row("clSkyBlue", "clSkyBlue", QColor(166, 202, 240)),
            row("hex in BGR order", "$00563412", QColor(0x12, 0x34, 0x56)),
            row("decimal blue", "16711680", QColor(0, 0, 255)), row("clBtnFace", "clBtnFace", QColor(212, 208, 200)),
            row("clHighlight", "clHighlight", QColor(10, 36, 106)), row("clInfoBk", "clInfoBk", QColor(255, 255, 225)),
            row("cl3DDkShadow", "cl3DDkShadow", QColor(64, 64, 64)),
            row("system colour by number", "$FF000001", QColor(58, 110, 165)),
            row("clNone", "clNone", QColor(0, 0, 0, 0)), row("clDefault", "clDefault", QColor(0, 0, 0)),
            row("garbage", "garbage", QColor());
    }

    void stringToColor()
    {
        QFETCH(QString, text);
        QFETCH(QColor, color);
        QCOMPARE(StringToColor(text), color);
    }

    // ---- Text encoding ----------------------------------------------------------

    void windows1252Bytes_data()
    {
        QTest::addColumn<int>("byte");
        QTest::addColumn<int>("character");
        row("euro", 0x80, 0x20AC), row("undefined 0x81", 0x81, 0x81), row("undefined 0x8D", 0x8D, 0x8D),
            row("right single quote", 0x92, 0x2019), row("em dash", 0x97, 0x2014), row("undefined 0x9D", 0x9D, 0x9D),
            row("Y diaeresis", 0x9F, 0x178), row("no-break space", 0xA0, 0xA0), row("e acute", 0xE9, 0xE9),
            row("y diaeresis", 0xFF, 0xFF);
    }

    void windows1252Bytes()
    {
        QFETCH(int, byte);
        QFETCH(int, character);
        const QByteArray bytes(1, char(byte));
        const QString text{QChar(char16_t(character))};
        QCOMPARE(DecodeWindows1252(bytes), text);
        QCOMPARE(EncodeWindows1252(text), bytes);

        // Every byte decodes to its own character and encodes back.
        QByteArray all;
        for (int b = 0; b < 256; ++b)
            all.append(char(b));
        QCOMPARE(DecodeWindows1252(all).size(), 256);
        QVERIFY(CanEncodeWindows1252(DecodeWindows1252(all)));
        QCOMPARE(EncodeWindows1252(DecodeWindows1252(all)), all);
    }

    void canEncodeWindows1252_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("canEncode");
        row("ASCII", "plain text", true), row("Latin-1", "café", true), row("code page specials", "€‚„…“”–—™", true),
            row("undefined byte", QString(QChar(0x81)), true),
            row("C1 control with a byte taken", QString(QChar(0x80)), false), row("Polish", "Łódź", false),
            row("Japanese", "日本", false), row("outside the BMP", "\U0001F3AC", false);
    }

    void canEncodeWindows1252()
    {
        QFETCH(QString, text);
        QFETCH(bool, canEncode);
        QCOMPARE(CanEncodeWindows1252(text), canEncode);
        const QByteArray bytes = EncodeWindows1252(text);
        if (canEncode)
            QCOMPARE(DecodeWindows1252(bytes), text);
        else
            QVERIFY(bytes.contains('?'));
    }

    void decodeFileText_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        row("ASCII", QByteArray("Scene 12, INT."), "Scene 12, INT."),
            row("1252 e acute", QByteArray("caf\xE9"), "café"), row("UTF-8 e acute", QByteArray("caf\xC3\xA9"), "café"),
            row("UTF-8 after a long ASCII run", QByteArray("0123456789abcdef\xC3\xA9"), "0123456789abcdefé"),
            row("1252 after a long ASCII run", QByteArray("0123456789abcdef\xE9"), "0123456789abcdefé"),
            row("UTF-8 Japanese", QByteArray("\xE6\x97\xA5\xE6\x9C\xAC"), "日本"),
            row("byte order mark dropped",
                QByteArray("\xEF\xBB\xBF"
                           "abc"),
                "abc"),
            row("1252 quotes", QByteArray("\x93quoted\x94"), "“quoted”"),
            row("UTF-8 then stray byte", QByteArray("\xC3\xA9\xE9"), "Ã©é"),
            row("overlong form", QByteArray("\xC0\xAF"), "À¯"),
            row("overlong three-byte form", QByteArray("\xE0\x80\xAF"), "à€¯"),
            row("surrogate", QByteArray("\xED\xA0\x80"), "í\u00A0€"),
            row("above U+10FFFF", QByteArray("\xF4\x90\x80\x80"), "ô\u0090€€"),
            row("cut sequence", QByteArray("\xE6\x97"), "æ—");
    }

    void decodeFileText()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(DecodeFileText(bytes), text);
    }

    void encodeFileText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        row("Latin-1 in 1252", "café", QByteArray("caf\xE9")),
            row("specials in 1252", "“x” – €", QByteArray("\x93x\x94 \x96 \x80")),
            row("Polish in UTF-8", "Łódź", QByteArray("\xC5\x81\xC3\xB3\x64\xC5\xBA")),
            row("Japanese in UTF-8", "日本", QByteArray("\xE6\x97\xA5\xE6\x9C\xAC")),
            row("one character decides", "café 日", QByteArray("caf\xC3\xA9 \xE6\x97\xA5"));
    }

    void encodeFileText()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, bytes);
        QCOMPARE(EncodeFileText(text), bytes);
        QCOMPARE(DecodeFileText(bytes), text);
    }
};

TB_TEST_GUILESS_MAIN(TestLegacyText)
#include "tst_legacytext.moc"
