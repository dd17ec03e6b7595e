#include "TestSupport.h"

#include "document/LegacyText.h"

#include <QRandomGenerator>

#include <cmath>
#include <limits>

using namespace tb::legacy;

using tb::test::Columns;
using tb::test::Fetch;
using tb::test::Row;

class TestLegacyText : public QObject
{
    Q_OBJECT

private slots:
    // ---- Comma text -------------------------------------------------------------

    void commaText_data()
    {
        // written: the text JoinCommaText gives for the items
        Columns<QString, QStringList, bool>("text", "items", "written");
        Row("no items", "", QStringList(), true), Row("one empty item", "\"\"", QStringList{""}, true),
            Row("two empty items", ",", QStringList{"", ""}, true), Row("plain", "a,b", QStringList{"a", "b"}, true),
            Row("empty in the middle", "a,,b", QStringList{"a", "", "b"}, true),
            Row("empty first", ",a", QStringList{"", "a"}, true), Row("empty last", "a,", QStringList{"a", ""}, true),
            Row("blank", "\"a b\",c", QStringList{"a b", "c"}, true), Row("comma", "\"a,b\"", QStringList{"a,b"}, true),
            Row("quotes doubled", "\"say \"\"hi\"\"\"", QStringList{"say \"hi\""}, true),
            Row("lone quote", "\"\"\"\"", QStringList{"\""}, true),
            Row("control character", "\"a\tb\"", QStringList{"a\tb"}, true),
            Row("non-ASCII unquoted", "café,日本", QStringList{"café", "日本"}, true),
            Row("only blanks", " \t ", QStringList(), false),
            Row("blank separates", "a b", QStringList{"a", "b"}, false),
            Row("text after quote", "\"a\"b,c", QStringList{"a", "b", "c"}, false),
            Row("trailing comma then blank", "a, ", QStringList{"a"}, false),
            Row("blanks around", "  a , b  ", QStringList{"a", "b"}, false),
            Row("doubled quotes", "\"a \"\"q\"\" b\",c", QStringList{"a \"q\" b", "c"}, false),
            Row("quote inside unquoted", "x\"y\"", QStringList{"x\"y\""}, false),
            Row("unclosed quote", "\"open, end", QStringList{"open, end"}, false),
            Row("unclosed after doubled", "\"a\"\"", QStringList{"a\""}, false),
            Row("NUL ends the text", QString::fromLatin1("a,b\0c,d", 7), QStringList{"a", "b"}, false),
            Row("non-ASCII", "Łódź,日本 é", QStringList{"Łódź", "日本", "é"}, false);
    }

    void commaText()
    {
        auto [text, items, written] = Fetch<QString, QStringList, bool>("text", "items", "written");
        QCOMPARE(SplitCommaText(text), items);
        if (written)
            QCOMPARE(JoinCommaText(items), text);
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
        Columns<QString, bool, int>("text", "ok", "value");
        Row("leading zeros", "00012", true, 12), Row("negative", "-42", true, -42), Row("plus", "+7", true, 7),
            Row("leading blanks", " \t 12", true, 12), Row("trailing blank", "12 ", false, 0),
            Row("empty", "", false, 0), Row("sign only", "-", false, 0), Row("dollar only", "$", false, 0),
            Row("0x only", "0x", false, 0), Row("hex", "$1F", true, 31), Row("hex lower case", "$ff", true, 255),
            Row("0x", "0x10", true, 16), Row("0X", "0X10", true, 16), Row("negative hex", "-$10", true, -16),
            Row("int max", "2147483647", true, std::numeric_limits<int>::max()),
            Row("int max + 1", "2147483648", false, 0),
            Row("int min", "-2147483648", true, std::numeric_limits<int>::min()),
            Row("int min - 1", "-2147483649", false, 0), Row("hex all bits", "$FFFFFFFF", true, -1),
            Row("system colour", "$FF00000F", true, int(0xFF00000Fu - 0x100000000ll)),
            Row("hex too long", "$100000000", false, 0), Row("fraction", "1.5", false, 0),
            Row("letters after", "12a", false, 0), Row("bad hex digit", "$1G", false, 0),
            Row("non-ASCII digit", "\u0663", false, 0);
    }

    void strToInt()
    {
        auto [text, ok, value] = Fetch<QString, bool, int>("text", "ok", "value");
        bool converted = !ok;
        QCOMPARE(StrToInt(text, &converted), value);
        QCOMPARE(converted, ok);
        QCOMPARE(StrToIntDef(text, -99), ok ? value : -99);
    }

    void floatToText_data()
    {
        Columns<double, QString>("value", "text");
        Row("0.75", 0.75, "0.75"), Row("serial and half day", 46082.5, "46082.5"),
            Row("1/3", 1.0 / 3, "0.333333333333333"), Row("2/3", 2.0 / 3, "0.666666666666667"),
            Row("0.1+0.2", 0.1 + 0.2, "0.3"), Row("18 digits", 123456789012345678.0, "1.23456789012346E17"),
            Row("1e15", 1e15, "1E15"), Row("15 nines", 999999999999999.0, "999999999999999"),
            Row("rounds up to 1e15", 999999999999999.9, "1E15"), Row("1e-5", 0.00001, "0.00001"),
            Row("1e-6", 0.000001, "1E-6"), Row("1.5e20", 1.5e20, "1.5E20"), Row("negative small", -2.25e-7, "-2.25E-7"),
            Row("negative", -12.5, "-12.5"), Row("zero", 0.0, "0"), Row("negative zero", -0.0, "0"),
            Row("tie rounds away from zero", 12345678901234.25, "12345678901234.3"),
            Row("largest", std::numeric_limits<double>::max(), "1.79769313486232E308"),
            Row("NaN", std::numeric_limits<double>::quiet_NaN(), "NAN"),
            Row("infinity", std::numeric_limits<double>::infinity(), "INF"),
            Row("minus infinity", -std::numeric_limits<double>::infinity(), "-INF");
    }

    void floatToText()
    {
        QFETCH(double, value);
        QTEST(FloatToText(value), "text");
    }

    void singleToText_data()
    {
        Columns<float, QString>("value", "text");
        Row("3.375", 3.375f, "3.375"), Row("0.1", 0.1f, "0.1"), Row("1.1", 1.1f, "1.1"),
            Row("negative zero", -0.0f, "0"), Row("negative", -2.5f, "-2.5"), Row("small", 0.001f, "0.001"),
            Row("large", 1e10f, "10000000000"), Row("2^24", 16777216.0f, "16777216");
    }

    void singleToText()
    {
        QFETCH(float, value);
        const QString written = SingleToText(value);
        QTEST(written, "text");
        bool ok = false;
        QVERIFY(float(FloatFromText(written, &ok)) == value);
        QVERIFY(ok);
    }

    void floatFromText_data()
    {
        Columns<QString, bool, double>("text", "ok", "value");
        Row("comma", "0,5", true, 0.5), Row("blanks", " \t1.25 ", true, 1.25), Row("integer", "-3", true, -3.0),
            Row("plus", "+3", true, 3.0), Row("exponent", "1E-2", true, 0.01),
            Row("exponent with plus", "1e+3", true, 1000.0), Row("comma and exponent", "2,5e1", true, 25.0),
            Row("no integer part", ".5", true, 0.5), Row("no fraction digits", "5.", true, 5.0),
            Row("written back", FloatToText(2.0 / 3), true, 0.666666666666667), Row("empty", "", false, 0.0),
            Row("blank", "  ", false, 0.0), Row("separator only", ",", false, 0.0), Row("garbage", "abc", false, 0.0),
            Row("two separators", "1.2.3", false, 0.0), Row("mixed separators", "1,000.5", false, 0.0),
            Row("inner blank", "1 000", false, 0.0), Row("exponent without digits", "1e", false, 0.0),
            Row("exponent only", "e5", false, 0.0), Row("two signs", "--1", false, 0.0), Row("hex", "0x10", false, 0.0),
            Row("NAN", "NAN", false, 0.0), Row("out of range", "1e400", false, 0.0);
    }

    void floatFromText()
    {
        auto [text, ok] = Fetch<QString, bool>("text", "ok");
        bool converted = !ok;
        QTEST(FloatFromText(text, &converted), "value");
        QCOMPARE(converted, ok);
    }

    void pad3_data()
    {
        Columns<int, QString>("value", "text");
        Row("one digit", 7, "  7"), Row("three digits", 120, "120"), Row("four digits", 1234, "1234"),
            Row("negative", -5, " -5"), Row("zero", 0, "  0");
    }

    void pad3()
    {
        QFETCH(int, value);
        QTEST(Pad3(value), "text");
    }

    // ---- Dates ------------------------------------------------------------------

    void serialDates_data()
    {
        Columns<double, QDate>("serial", "date");
        Row("serial zero", 0.0, QDate(1899, 12, 30)), Row("day before", -1.0, QDate(1899, 12, 29)),
            Row("1900-01-01", 2.0, QDate(1900, 1, 1)), Row("2000-01-01", 36526.0, QDate(2000, 1, 1)),
            Row("2026-03-06", 46087.0, QDate(2026, 3, 6)), Row("time of day", 46087.75, QDate(2026, 3, 6)),
            Row("negative with time", -1.5, QDate(1899, 12, 29)), Row("just below zero", -0.25, QDate(1899, 12, 30)),
            Row("NaN", std::numeric_limits<double>::quiet_NaN(), QDate()),
            Row("infinity", std::numeric_limits<double>::infinity(), QDate()), Row("huge", 1e300, QDate());
    }

    void serialDates()
    {
        auto [serial, date] = Fetch<double, QDate>("serial", "date");
        QCOMPARE(SerialToDate(serial), date);
        if (date.isValid() && serial == std::floor(serial))
            QCOMPARE(DateToSerial(date), serial);
    }

    void formatDate_data()
    {
        Columns<QDate, QString, QString>("date", "pattern", "text");
        const QDate friday(2026, 3, 6);
        Row("day fields", friday, "d dd ddd dddd", "6 06 Fri Friday"), Row("ddddd", friday, "ddddd", "3/6/2026"),
            Row("dddddd", friday, "dddddd", "Friday, March 6, 2026"),
            Row("eight d", friday, "dddddddd", "Friday, March 6, 2026"),
            Row("month fields", friday, "m mm mmm mmmm", "3 03 Mar March"),
            Row("year fields", friday, "y yy yyy yyyy", "26 26 2026 2026"),
            Row("yy pads", QDate(2005, 11, 23), "yy", "05"),
            Row("two-digit day and month", QDate(2005, 11, 23), "d/m", "23/11"),
            Row("upper case", friday, "DD/MM/YYYY", "06/03/2026"), Row("mixed case are two fields", friday, "dD", "66"),
            Row("day and month", friday, DayMonthPattern, "6/3"),
            Row("day date", friday, DayDatePattern, "Fri, March 6, 2026"),
            Row("double-quoted text", friday, "\"day\" d", "day 6"), Row("single-quoted text", friday, "'m' m", "m 3"),
            Row("unclosed quote", friday, "d 'my", "6 my"), Row("other characters", friday, "[d-m]", "[6-3]"),
            Row("invalid date", QDate(), "d/m/yyyy", "");
    }

    void formatDate()
    {
        auto [date, pattern] = Fetch<QDate, QString>("date", "pattern");
        QTEST(FormatDate(date, pattern, QLocale(QLocale::English, QLocale::UnitedStates)), "text");
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
        Row("en_US", "M/d/yyyy"), Row("en_GB", "dd/MM/yyyy"), Row("de_DE", "dd.MM.yyyy"), Row("ko_KR", "yyyy. M. d.");
    }

    void shortDateFormat()
    {
        const QLocale locale(QString::fromLatin1(QTest::currentDataTag()));
        QTEST(ShortDateFormat(locale), "format");

        // The short date written by FormatDate reads back in the same locale.
        const QDate date(2026, 3, 6);
        const QString text = FormatDate(date, ShortDatePattern, locale);
        QVERIFY2(text.contains(u"2026"), qPrintable(text));
        QCOMPARE(ParseShortDate(text, locale), date);
    }

    void parseShortDate_data()
    {
        Columns<QString, QString, QDate>("localeName", "text", "date");
        Row("en_US four-digit year", "en_US", "3/6/2026", QDate(2026, 3, 6)),
            Row("en_US leading zeros", "en_US", "03/06/2026", QDate(2026, 3, 6)),
            Row("en_US two-digit year", "en_US", "3/6/26", QDate(2026, 3, 6)),
            Row("en_US year 75", "en_US", "3/6/75", QDate(1975, 3, 6)),
            Row("en_US year 49", "en_US", "3/6/49", QDate(2049, 3, 6)),
            Row("en_US year 50", "en_US", "3/6/50", QDate(1950, 3, 6)),
            Row("en_US leap day 00", "en_US", "2/29/00", QDate(2000, 2, 29)),
            Row("en_US blanks around", "en_US", " 3/6/2026 ", QDate(2026, 3, 6)),
            Row("en_US month 13", "en_US", "13/6/2026", QDate()), Row("en_US no year", "en_US", "3/6", QDate()),
            Row("en_US three-digit year", "en_US", "3/6/026", QDate()),
            Row("en_US trailing text", "en_US", "3/6/2026x", QDate()), Row("en_US empty", "en_US", "", QDate()),
            Row("en_GB", "en_GB", "06/03/2026", QDate(2026, 3, 6)),
            Row("en_GB two-digit year", "en_GB", "6/3/26", QDate(2026, 3, 6)),
            Row("de_DE", "de_DE", "06.03.26", QDate(2026, 3, 6)),
            Row("de_DE without zeros", "de_DE", "6.3.2026", QDate(2026, 3, 6)),
            Row("de_DE 31 February", "de_DE", "31.02.2026", QDate()),
            Row("ko_KR", "ko_KR", "26. 3. 6.", QDate(2026, 3, 6));
    }

    void parseShortDate()
    {
        auto [localeName, text] = Fetch<QString, QString>("localeName", "text");
        QTEST(ParseShortDate(text, QLocale(localeName)), "date");
    }

    void dayOfWeek_data()
    {
        Columns<QDate, int>("date", "day");
        Row("Sunday", QDate(2026, 3, 1), 1), Row("Monday", QDate(2026, 3, 2), 2), Row("Friday", QDate(2026, 3, 6), 6),
            Row("Saturday", QDate(2026, 3, 7), 7), Row("invalid", QDate(), 0);
    }

    void dayOfWeek()
    {
        QFETCH(QDate, date);
        QTEST(DayOfWeek(date), "day");
    }

    // ---- Colours ----------------------------------------------------------------

    void colorValues_data()
    {
        // written: the text ColorValueToString gives for the value
        Columns<QString, bool, quint32, bool>("text", "ok", "value", "written");
        Row("clBlack", "clBlack", true, 0x000000u, true), Row("clRed", "clRed", true, 0x0000FFu, true),
            Row("clBtnFace", "clBtnFace", true, 0xFF00000Fu, true), Row("clNone", "clNone", true, 0x1FFFFFFFu, true),
            Row("clDefault", "clDefault", true, 0x20000000u, true),
            Row("unnamed colour", "$00123456", true, 0x00123456u, true),
            Row("unnamed small", "$0000000A", true, 0x0000000Au, true),
            Row("unnamed system colour", "$FF00001A", true, 0xFF00001Au, true),
            Row("lower-case name", "clbtnface", true, 0xFF00000Fu, false),
            Row("upper-case name", "CLRED", true, 0x0000FFu, false), Row("hex", "$00FF8000", true, 0x00FF8000u, false),
            Row("decimal", "255", true, 0x0000FFu, false),
            Row("negative decimal", "-16777201", true, 0xFF00000Fu, false),
            Row("unknown name", "clBogus", false, 0u, false), Row("empty", "", false, 0u, false),
            Row("HTML form", "#FF0000", false, 0u, false);
    }

    void colorValues()
    {
        auto [text, ok, value, written] = Fetch<QString, bool, quint32, bool>("text", "ok", "value", "written");
        quint32 read = 0xDEADBEEF;
        QCOMPARE(StringToColorValue(text, &read), ok);
        QCOMPARE(read, ok ? value : 0xDEADBEEF);
        if (written)
            QCOMPARE(ColorValueToString(value), text);
    }

    void colors_data()
    {
        // ways: 1 colour to text, 2 text to colour, 3 both
        Columns<QColor, QString, int>("color", "text", "ways");
        Row("red", QColor(255, 0, 0), "clRed", 3), Row("money green", QColor(192, 220, 192), "clMoneyGreen", 1),
            Row("parts in BGR order", QColor(0x12, 0x34, 0x56), "$00563412", 3),
            Row("button face is no name", QColor(212, 208, 200), "$00C8D0D4", 1), Row("invalid", QColor(), "clNone", 1),
            Row("transparent", QColor(0, 0, 0, 0), "clNone", 3), Row("decimal blue", QColor(0, 0, 255), "16711680", 2),
            Row("clBtnFace", QColor(212, 208, 200), "clBtnFace", 2),
            Row("system colour by number", QColor(58, 110, 165), "$FF000001", 2),
            Row("clDefault", QColor(0, 0, 0), "clDefault", 2), Row("garbage", QColor(), "garbage", 2);
    }

    void colors()
    {
        auto [color, text, ways] = Fetch<QColor, QString, int>("color", "text", "ways");
        if (ways & 1)
            QCOMPARE(ColorToString(color), text);
        if (ways & 2)
            QCOMPARE(StringToColor(text), color);
    }

    // ---- Text encoding ----------------------------------------------------------

    void windows1252_data()
    {
        // bytes: empty when the code page cannot hold the text
        Columns<QString, QByteArray>("text", "bytes");
        Row("euro", "€", QByteArray("\x80")), Row("undefined byte", QString(QChar(0x81)), QByteArray("\x81")),
            Row("right single quote", "’", QByteArray("\x92")), Row("no-break space", "\u00A0", QByteArray("\xA0")),
            Row("y diaeresis", "ÿ", QByteArray("\xFF")), Row("ASCII", "plain text", QByteArray("plain text")),
            Row("code page specials", "‚„…“”–—™", QByteArray("\x82\x84\x85\x93\x94\x96\x97\x99")),
            Row("C1 control with a byte taken", QString(QChar(0x80)), QByteArray()),
            Row("Polish", "Łódź", QByteArray()), Row("Japanese", "日本", QByteArray()),
            Row("outside the BMP", "\U0001F3AC", QByteArray());
    }

    void windows1252()
    {
        auto [text, bytes] = Fetch<QString, QByteArray>("text", "bytes");
        QCOMPARE(CanEncodeWindows1252(text), !bytes.isEmpty());
        if (bytes.isEmpty()) {
            QVERIFY(EncodeWindows1252(text).contains('?'));
            return;
        }
        QCOMPARE(EncodeWindows1252(text), bytes);
        QCOMPARE(DecodeWindows1252(bytes), text);
    }

    void everyWindows1252ByteReadsBack()
    {
        QByteArray all;
        for (int b = 0; b < 256; ++b)
            all.append(char(b));
        QCOMPARE(DecodeWindows1252(all).size(), 256);
        QVERIFY(CanEncodeWindows1252(DecodeWindows1252(all)));
        QCOMPARE(EncodeWindows1252(DecodeWindows1252(all)), all);
    }

    void fileText_data()
    {
        // written: the bytes EncodeFileText gives for the text
        Columns<QByteArray, QString, bool>("bytes", "text", "written");
        Row("ASCII", QByteArray("Scene 12, INT."), "Scene 12, INT.", true),
            Row("1252 e acute", QByteArray("caf\xE9"), "café", true),
            Row("UTF-8 e acute", QByteArray("caf\xC3\xA9"), "café", false),
            Row("UTF-8 after a long ASCII run", QByteArray("0123456789abcdef\xC3\xA9"), "0123456789abcdefé", false),
            Row("1252 after a long ASCII run", QByteArray("0123456789abcdef\xE9"), "0123456789abcdefé", true),
            Row("UTF-8 Japanese", QByteArray("\xE6\x97\xA5\xE6\x9C\xAC"), "日本", true),
            Row("byte order mark dropped",
                QByteArray("\xEF\xBB\xBF"
                           "abc"),
                "abc", false),
            Row("1252 quotes", QByteArray("\x93quoted\x94"), "“quoted”", true),
            Row("UTF-8 then stray byte", QByteArray("\xC3\xA9\xE9"), "Ã©é", false),
            Row("overlong form", QByteArray("\xC0\xAF"), "À¯", false),
            Row("overlong three-byte form", QByteArray("\xE0\x80\xAF"), "à€¯", false),
            Row("surrogate", QByteArray("\xED\xA0\x80"), "í\u00A0€", false),
            Row("above U+10FFFF", QByteArray("\xF4\x90\x80\x80"), "ô\u0090€€", false),
            Row("cut sequence", QByteArray("\xE6\x97"), "æ—", false),
            Row("UTF-8 mark, stray byte", QByteArray("\xEF\xBB\xBF[Files]\r\nx=\xE9"), "[Files]\r\nx=\uFFFD", false),
            Row("UTF-16 LE", QByteArray("\xFF\xFEI\0N\0T\0.\0 \0\xE9\0", 14), "INT. é", false),
            Row("UTF-16 BE", QByteArray("\xFE\xFF\0I\0N\0T\x65\xE5", 10), "INT日", false),
            Row("UTF-16, odd byte left out", QByteArray("\xFF\xFEI\0N", 5), "I", false),
            Row("specials in 1252", QByteArray("\x93x\x94 \x96 \x80"), "“x” – €", true),
            Row("Polish in UTF-8", QByteArray("\xC5\x81\xC3\xB3\x64\xC5\xBA"), "Łódź", true),
            Row("one character decides", QByteArray("caf\xC3\xA9 \xE6\x97\xA5"), "café 日", true),
            // Text whose Windows-1252 bytes would read back as other text goes in UTF-8.
            Row("1252 bytes that read as UTF-8", QByteArray("CAF\xC3\x89\xE2\x80\x99S"), "CAFÉ’S", true),
            Row("mojibake-looking text",
                QByteArray("\xC3\x83\xC2\xA9 and \xC3\x82\xC2\xA3"
                           "5"),
                "Ã© and Â£5", true),
            Row("looks like a mark", QByteArray("\xC3\xBF\xC3\xBEx"), "ÿþx", true),
            Row("begins with a mark", QByteArray("\xEF\xBB\xBF\xEF\xBB\xBFx"), QStringLiteral("\uFEFFx"), true);
    }

    void fileText()
    {
        auto [bytes, text, written] = Fetch<QByteArray, QString, bool>("bytes", "text", "written");
        QCOMPARE(DecodeFileText(bytes), text);
        if (written)
            QCOMPARE(EncodeFileText(text), bytes);
    }
};

TB_TEST_GUILESS_MAIN(TestLegacyText)
#include "tst_legacytext.moc"
