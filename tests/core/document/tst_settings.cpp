#include "TestSupport.h"

#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"
#include "document/Settings.h"
#include "document/StandardColours.h"

using namespace tb;
using namespace tb::test;

namespace {

QString readText(const QString &path)
{
    return legacy::DecodeFileText(ReadFileBytes(path));
}

// Lines joined by "|" become the file's CR LF lines.
QByteArray crlf(const char *lines)
{
    return QByteArray(lines).replace('|', "\r\n");
}

quint32 colour(const char *name)
{
    quint32 value = 0;
    legacy::StringToColorValue(QLatin1String(name), &value);
    return value;
}

} // namespace

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void defaultsWithoutFile()
    {
        Settings s(TempPath("none/Torvanbridge.ini"));
        QVERIFY(s.LoadSettings().isEmpty());
        QCOMPARE(s.autosaveMinutes, 0);
        // A first start: the standard colours, not all white (a departure); an
        // existing file without colour keys still gives white strips.
        QCOMPARE(s.stripBackground, StandardStripColours().background);
        QCOMPARE(s.stripText, StandardStripColours().text);
        QCOMPARE(legacy::ColorValueToString(s.stripBackground[int(StripSlot::DayExt)]), "clYellow");
        QVERIFY(s.scenePopups);
        QVERIFY(s.showShootingDays);
        // The test runner points XDG_CONFIG_HOME at a private folder.
        QCOMPARE(Settings::DefaultPath(), qEnvironmentVariable("XDG_CONFIG_HOME") + "/Torvanbridge.ini");
    }

    void writtenAndReadBack()
    {
        const QString path = TempPath("roundtrip/Torvanbridge.ini");
        Settings s(path);
        ScheduleDocument doc;
        PreferencesInput in = PreferencesFromSettings(s);
        QCOMPARE(in.descLine1Index, 0);
        QCOMPARE(in.descLine2Index, 1);
        in.autosaveMinutes = 15;
        in.stripBackground[3] = colour("clRed");
        in.stripText[3] = colour("clYellow");
        in.stripBackground[7] = 0x00123456;
        in.boardFont = "Times New Roman";
        in.descLine1Index = 4;
        in.descLine2Index = 3;
        in.scenePopups = false;
        in.weatherUrl = "https://example.org/weather";
        in.showShootingDays = false;
        QVERIFY(ApplyPreferences(doc, s, in).ok());
        // A new file, byte for byte as the earlier edition's private-profile functions
        // wrote it: a literal [General] section, booleans as 1 and 0, colour names, CR LF;
        // the colours are the ones chosen in the dialog.
        QString colours;
        for (int slot = 1; slot <= StripSlotCount; ++slot)
            colours += QStringLiteral("CB%1=%2\r\n")
                           .arg(slot)
                           .arg(QLatin1String(slot == 3   ? "clRed"
                                              : slot == 7 ? "$00123456"
                                                          : "clWhite"));
        for (int slot = 1; slot <= StripSlotCount; ++slot)
            colours += QStringLiteral("CT%1=%2\r\n").arg(slot).arg(QLatin1String(slot == 3 ? "clYellow" : "clBlack"));
        QCOMPARE(readText(path),
                 "[Files]\r\nAutosavetime=15\r\n\r\n[Strips]\r\n" + colours +
                     "Font=Times New Roman\r\nDescLine1=19\r\nDescLine2=2\r\n\r\n[General]\r\n"
                     "ScenePopups=0\r\nWeatherURL=https://example.org/weather\r\nShowShootingDays=0\r\n\r\n"
                     "[StripDlg]\r\nSceneChange=0\r\n\r\n[PBDialog]\r\nAutoRestClick=0\r\n\r\n"
                     "[CallSheetDlg]\r\nCallSheetRest=0\r\n");
        s.perfMargin = 6.25;
        s.perfWidth = 12;
        QVERIFY(s.WritePerforatedStock().ok());

        // Reading every key is tested on the earlier edition's file below.
        Settings back(path);
        QVERIFY(back.LoadSettings().isEmpty());
        QCOMPARE(back.stripBackground, s.stripBackground);
        QCOMPARE(back.stripText, s.stripText);
        QCOMPARE(back.perfMargin, 6.25);
        QCOMPARE(back.perfWidth, 12.0);

        // The stock goes in a section of its own at the end.
        QVERIFY(readText(path).contains("CallSheetRest=0\r\n\r\n[Printing]\r\nPerfMargin="));
    }

    void earlierEditionFileRead()
    {
        // Written by the earlier edition: Windows-1252, CR LF, key case as it pleased,
        // blanks around "=", system colour names, a comma as the decimal separator.
        const QString path = TempPath("earlier/Torvanbridge.ini");
        QVERIFY(WriteBytes(path,
                           crlf("[Files]|autosavetime=10||[Strips]|CB1=clSkyBlue|CT1=clNavy|CB4=$0080FFFF|CB7=clBlack|"
                                "CT7=clWhite|CB9=clBtnFace|DescLine1=7|DescLine2=12|Font = Times New Roman ||[GENERAL]|"
                                "ScenePopups=0|WeatherURL=http://m\xe9t\xe9o.example/|ShowShootingDays=0||[Printing]|"
                                "PerfMargin=5,5|PerfWidth=10||[PBDialog]|AutoRestClick=1|")));
        Settings s(path);
        QVERIFY(s.LoadSettings().isEmpty());
        QCOMPARE(s.autosaveMinutes, 10);
        QCOMPARE(legacy::ColorValueToString(s.stripBackground[1]), "clSkyBlue");
        QCOMPARE(legacy::ColorValueToString(s.stripText[1]), "clNavy");
        QCOMPARE(legacy::ColorValueToQColor(s.stripBackground[4]), QColor(255, 255, 128));
        QCOMPARE(legacy::ColorValueToString(s.stripBackground[7]), "clBlack");
        QCOMPARE(legacy::ColorValueToString(s.stripText[7]), "clWhite");
        QCOMPARE(legacy::ColorValueToString(s.stripBackground[9]), "clBtnFace");
        QCOMPARE(legacy::ColorValueToString(s.stripBackground[2]), "clWhite"); // missing: default
        QCOMPARE(s.descLine1, 7);
        QCOMPARE(s.descLine2, 12);
        QCOMPARE(s.boardFont, "Times New Roman");
        QVERIFY(!s.scenePopups);
        QCOMPARE(s.weatherUrl, QString::fromUtf8("http://météo.example/"));
        QVERIFY(!s.showShootingDays);
        QCOMPARE(s.perfMargin, 5.5);
        QCOMPARE(s.perfWidth, 10.0);
        QVERIFY(s.skipWarning(RememberedWarning::AutoRestClick));
        QVERIFY(!s.skipWarning(RememberedWarning::SceneChange));

        // Writing it back changes the keys in place, in their own spelling and section,
        // keeps the system colour name and the other sections, and keeps Windows-1252.
        QVERIFY(s.WritePreferences().ok());
        const QByteArray bytes = ReadFileBytes(path);
        QVERIFY(bytes.contains("[Files]\r\nautosavetime=10\r\n\r\n[Strips]\r\n"));
        QVERIFY(bytes.contains("[GENERAL]\r\nScenePopups=0\r\nWeatherURL=http://m\xe9t\xe9o.example/\r\n"));
        QVERIFY(bytes.contains("CB9=clBtnFace\r\n"));
        QVERIFY(bytes.contains("Font=Times New Roman\r\n"));
        QVERIFY(bytes.contains("[PBDialog]\r\nAutoRestClick=1\r\n"));
        QVERIFY(bytes.contains("PerfMargin=5,5\r\n"));
        QCOMPARE(bytes.count("[GENERAL]"), 1);
        QVERIFY(!bytes.contains("[General]"));
    }

    void booleanForms_data()
    {
        Columns<QByteArray, bool>("value", "expected");
        // A boolean is an integer, true when not 0; text that is no integer gives the
        // default (true for ScenePopups).
        Row("1", QByteArray("1"), true);
        Row("0", QByteArray("0"), false);
        Row("2", QByteArray("2"), true);
        Row("-1", QByteArray("-1"), true);
        Row(" 0 ", QByteArray(" 0 "), false);
        Row("false", QByteArray("false"), true);
        Row("empty", QByteArray(""), true);
    }

    void booleanForms()
    {
        QFETCH(QByteArray, value);
        const QString path = TempPath("bool/Torvanbridge.ini");
        QVERIFY(WriteBytes(path, "[General]\r\nScenePopups=" + value + "\r\n"));
        Settings s(path);
        s.LoadSettings();
        QTEST(s.scenePopups, "expected");
    }

    void unreadableValuesKeepDefaults()
    {
        const QString path = TempPath("bad/Torvanbridge.ini");
        QVERIFY(WriteBytes(path, crlf("[Strips]|CB2=clPurpleHaze|CT5=|CB6=clRed|[Printing]|PerfWidth=wide|")));
        Settings s(path);
        const QStringList problems = s.LoadSettings();
        QCOMPARE(problems.size(), 3);
        QVERIFY(problems.at(0).contains("\"clPurpleHaze\" for CB2 in [Strips], which is not a colour"));
        QVERIFY(problems.at(1).contains("\"\" for CT5"));
        QVERIFY(problems.at(2).contains("\"wide\" for PerfWidth in [Printing], which is not a number"));
        QCOMPARE(legacy::ColorValueToString(s.stripBackground[2]), "clWhite");
        QCOMPARE(legacy::ColorValueToString(s.stripText[5]), "clBlack");
        QCOMPARE(legacy::ColorValueToString(s.stripBackground[6]), "clRed");
        QCOMPARE(s.perfWidth, 9.6);
    }

    void writeKeepsOtherLines()
    {
        const QString path = TempPath("keep/x.ini");
        QVERIFY(WriteBytes(
            path, crlf("; comment|[Other]|Key=\"quoted value\"||[Files]|Autosavetime=3|Extra=1||[Last]|A=b|")));
        IniFile ini(path);
        QVERIFY(ini.load());
        QCOMPARE(ini.readString("other", "key"), "quoted value");
        QCOMPARE(ini.readInteger("Files", "AUTOSAVETIME", 0), 3);
        ini.writeInteger("Files", "Autosavetime", 4);
        ini.writeString("Files", "New", "x");
        ini.writeString("Added", "K", "v");
        QCOMPARE(ini.text(),
                 QString::fromLatin1(
                     crlf("; comment|[Other]|Key=\"quoted value\"||[Files]|Autosavetime=4|Extra=1|New=x||[Last]|A=b||"
                          "[Added]|K=v|")));
        QVERIFY(ini.save().ok());
        QCOMPARE(readText(path), ini.text());
    }

    void descriptionLineItems_data()
    {
        Columns<int, int>("index", "stored");
        // Notes and Scene number(s) are written in writtenAndReadBack.
        Row("Location", 0, 12);
        Row("Synopsis", 1, 7);
        Row("Sequence", 2, 11);
        Row("nothing chosen", -1, 99); // unchanged
        Row("past the list", 5, 99);
    }

    void descriptionLineItems()
    {
        auto [index, stored] = Fetch<int, int>("index", "stored");
        const QString path = TempPath("desc/Torvanbridge.ini");
        Settings s(path);
        s.descLine1 = 99;
        ScheduleDocument doc;
        PreferencesInput in = PreferencesFromSettings(s);
        QCOMPARE(in.descLine1Index, -1); // a code that is none of the five shows no item
        in.descLine1Index = index;
        QVERIFY(ApplyPreferences(doc, s, in).ok());
        QCOMPARE(s.descLine1, stored);
        Settings back(path);
        back.LoadSettings();
        QCOMPARE(back.descLine1, stored);
    }

    void warningAnswers_data()
    {
        // unticked: which "Warn me about" box is cleared
        Columns<int, QString>("unticked", "line");
        Row("scene change", 0, "[StripDlg]\r\nSceneChange=1\r\n");
        Row("auto-rest click", 1, "[PBDialog]\r\nAutoRestClick=1\r\n");
        Row("call sheet rest", 2, "[CallSheetDlg]\r\nCallSheetRest=1\r\n");
    }

    void warningAnswers()
    {
        auto [unticked, line] = Fetch<int, QString>("unticked", "line");
        const QString path = TempPath("warn/Torvanbridge.ini");
        QFile::remove(path);
        Settings s(path);
        ScheduleDocument doc;
        PreferencesInput in = PreferencesFromSettings(s);
        QVERIFY(in.warnSceneChange && in.warnAutoRestClick && in.warnCallSheetRest);
        in.warnSceneChange = unticked != 0;
        in.warnAutoRestClick = unticked != 1;
        in.warnCallSheetRest = unticked != 2;
        QVERIFY(ApplyPreferences(doc, s, in).ok());
        const QString text = readText(path);
        QVERIFY2(text.contains(line), qPrintable(text));
        QCOMPARE(text.count("=1\r\n", Qt::CaseSensitive) - text.count("ScenePopups=1") -
                     text.count("ShowShootingDays=1"),
                 1);
        QCOMPARE(s.skipWarning(RememberedWarning::SceneChange), unticked == 0);
        QCOMPARE(s.skipWarning(RememberedWarning::AutoRestClick), unticked == 1);
        QCOMPARE(s.skipWarning(RememberedWarning::CallSheetRest), unticked == 2);
        // The dialog shows them the same way round next time.
        const PreferencesInput again = PreferencesFromSettings(s);
        QCOMPARE(again.warnAutoRestClick, unticked != 1);
    }

    void unwritableFileReported()
    {
        // A folder where the file should be: it cannot be written.
        const QString path = TempPath("blocked/Torvanbridge.ini");
        QVERIFY(QDir().mkpath(path));
        Settings s(path);
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        PreferencesInput in = PreferencesFromSettings(s);
        in.autosaveMinutes = 9;
        QVERIFY(!ApplyPreferences(doc, s, in).ok());
        QCOMPARE(prompter.prompts.size(), 1);
        QCOMPARE(prompter.prompts.first().kind, MessageKind::Error);
        QVERIFY(prompter.prompts.first().text.startsWith("Torvanbridge could not write its settings file"));
        QCOMPARE(s.autosaveMinutes, 9); // taken for this run all the same
    }

    void rememberedWarning()
    {
        const QString path = TempPath("remember/Torvanbridge.ini");
        Settings s(path);
        ScriptedPrompter prompter;
        Prompt warning{MessageKind::Warning, "Careful", Buttons::Ok, false, {}, false};

        // Not ticked: shown each time.
        auto reply = AskUnlessRemembered(prompter, s, RememberedWarning::AutoRestClick, warning);
        QVERIFY(reply.has_value());
        QCOMPARE(prompter.prompts.last().checkBoxText, QString::fromLatin1(DontShowAgainText));
        QVERIFY(!s.skipWarning(RememberedWarning::AutoRestClick));

        // Ticked: stored at once, and the warning is not shown again.
        struct Ticking : ScriptedPrompter
        {
            PromptReply ask(const Prompt &p) override
            {
                PromptReply r = ScriptedPrompter::ask(p);
                r.checkBoxChecked = true;
                return r;
            }
        } ticking;
        QVERIFY(AskUnlessRemembered(ticking, s, RememberedWarning::AutoRestClick, warning).has_value());
        QVERIFY(s.skipWarning(RememberedWarning::AutoRestClick));
        QVERIFY(readText(path).contains("[PBDialog]\r\nAutoRestClick=1\r\n"));
        QVERIFY(!AskUnlessRemembered(ticking, s, RememberedWarning::AutoRestClick, warning).has_value());
        QCOMPARE(ticking.prompts.size(), 1);
    }
};

TB_TEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
