#pragma once

#include "document/BoardPreferences.h"
#include "document/Prompter.h"
#include "document/Result.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace tb {

class ScheduleDocument;

// ---- The settings file -------------------------------------------------------
// "Torvanbridge.ini" is an INI file in the form the earlier edition's private-profile
// functions read and wrote: "[Section]" lines, "Key=Value" lines, CR LF line ends,
// Windows-1252 text. Section and key names compare without regard to letter case.
// QSettings is not used for it: QSettings keeps its own keys of a section called
// "General" outside any section and writes a section of that name as "[%General]",
// so it can neither read the earlier edition's [General] section nor write one.
class IniFile
{
public:
    explicit IniFile(QString path);

    // Reads the file. A missing file gives an empty one (and false); so does a file
    // that cannot be read.
    bool load();
    // Writes the whole file through a temporary file, so a failed write leaves the
    // earlier file whole. Lines this program does not know (other sections, other
    // keys, comments) are written back as they were read.
    Result save() const;

    bool hasKey(const QString &section, const QString &key) const;
    // The value of a key with blanks around it removed, and a pair of quotes around it
    // removed too, as the private-profile functions read it; the default when missing.
    QString readString(const QString &section, const QString &key, const QString &fallback = {}) const;
    // Integers and booleans as the private-profile functions read them: a value that is
    // not a whole number gives the default; a boolean is true when its number is not 0.
    int readInteger(const QString &section, const QString &key, int fallback) const;
    bool readBool(const QString &section, const QString &key, bool fallback) const;

    // Changes the key in place, or adds it at the end of its section (the section is
    // added at the end of the file when missing).
    void writeString(const QString &section, const QString &key, const QString &value);
    void writeInteger(const QString &section, const QString &key, int value);
    // Booleans are written "1" and "0".
    void writeBool(const QString &section, const QString &key, bool value);

    const QString &path() const { return m_path; }
    // The file's text as save() writes it, with CR LF line ends.
    QString text() const;

private:
    struct Line
    {
        QString raw;   // the line as read or last written
        QString key;   // empty for section headers, comments and blank lines
        QString value; // unprocessed text after "="
    };
    struct Section
    {
        QString name; // empty for the lines before the first section
        QList<Line> lines;
    };

    const Section *findSection(const QString &name) const;
    Section &sectionFor(const QString &name);
    const Line *findLine(const QString &section, const QString &key) const;

    QString m_path;
    QList<Section> m_sections;
};

// ---- Typed keys ------------------------------------------------------------------
// One key of the settings file: its section, its name and the value a missing key
// stands for. The value type says how the value is written:
//   int      a whole number                bool    "1" or "0"
//   QString  the text as it is             quint32 a colour: its name ("clWhite"), or
//                                                  "$00BBGGRR" for one without a name
//   double   the float-to-text form with the system's decimal separator
template <typename T>
struct SettingKey
{
    QString section;
    QString key;
    T fallback;
};

// A key's value in the file, the key's fallback when it is missing. Whole numbers and
// booleans read as the private-profile functions read them (text that is not a whole
// number gives the fallback; a boolean is true when its number is not 0); a colour or
// a decimal that does not convert gives the fallback and sets *unreadable.
int ReadSetting(const IniFile &ini, const SettingKey<int> &key, bool *unreadable = nullptr);
bool ReadSetting(const IniFile &ini, const SettingKey<bool> &key, bool *unreadable = nullptr);
QString ReadSetting(const IniFile &ini, const SettingKey<QString> &key, bool *unreadable = nullptr);
quint32 ReadSetting(const IniFile &ini, const SettingKey<quint32> &key, bool *unreadable = nullptr);
double ReadSetting(const IniFile &ini, const SettingKey<double> &key, bool *unreadable = nullptr);

void WriteSetting(IniFile &ini, const SettingKey<int> &key, int value);
void WriteSetting(IniFile &ini, const SettingKey<bool> &key, bool value);
void WriteSetting(IniFile &ini, const SettingKey<QString> &key, const QString &value);
void WriteSetting(IniFile &ini, const SettingKey<quint32> &key, quint32 value);
void WriteSetting(IniFile &ini, const SettingKey<double> &key, double value);

// The default weather page of the call sheet.
inline constexpr const char *DefaultWeatherUrl = "https://www.bbc.co.uk/weather";

// Every key of Torvanbridge.ini.
namespace SettingKeys {
// Autosave interval in minutes; 0 = no autosave.
inline const SettingKey<int> Autosavetime{QStringLiteral("Files"), QStringLiteral("Autosavetime"), 0};
// Strip background ("CB1".."CB10", white) and text colours ("CT1".."CT10", black) per
// slot 1..10.
SettingKey<quint32> StripBackground(int slot);
SettingKey<quint32> StripText(int slot);
// The strip fields of the two description lines (see DescLineCodes).
inline const SettingKey<int> DescLine1{QStringLiteral("Strips"), QStringLiteral("DescLine1"), DescLineCodes::Location};
inline const SettingKey<int> DescLine2{QStringLiteral("Strips"), QStringLiteral("DescLine2"), DescLineCodes::Synopsis};
// The board's font face.
inline const SettingKey<QString> Font{QStringLiteral("Strips"), QStringLiteral("Font"), QStringLiteral("Arial")};
// The scene description pop-up over strip headings.
inline const SettingKey<bool> ScenePopups{QStringLiteral("General"), QStringLiteral("ScenePopups"), true};
// The call sheet's weather page.
inline const SettingKey<QString> WeatherURL{QStringLiteral("General"), QStringLiteral("WeatherURL"),
                                            QString::fromLatin1(DefaultWeatherUrl)};
// Day numbers on the board count shooting days.
inline const SettingKey<bool> ShowShootingDays{QStringLiteral("General"), QStringLiteral("ShowShootingDays"), true};
// Perforated strip stock, millimetres.
inline const SettingKey<double> PerfMargin{QStringLiteral("Printing"), QStringLiteral("PerfMargin"), 5.4};
inline const SettingKey<double> PerfWidth{QStringLiteral("Printing"), QStringLiteral("PerfWidth"), 9.6};
// The answers of the three warnings a user can switch off: true = do not warn.
inline const SettingKey<bool> AutoRestClick{QStringLiteral("PBDialog"), QStringLiteral("AutoRestClick"), false};
inline const SettingKey<bool> SceneChange{QStringLiteral("StripDlg"), QStringLiteral("SceneChange"), false};
inline const SettingKey<bool> CallSheetRest{QStringLiteral("CallSheetDlg"), QStringLiteral("CallSheetRest"), false};
} // namespace SettingKeys

// ---- The preferences ---------------------------------------------------------

// The three warnings a user can switch off with the message's check box, and the
// preferences' "Warn me about" boxes.
enum class RememberedWarning {
    AutoRestClick, // [PBDialog] AutoRestClick: clicking an auto rest day on the board
    SceneChange,   // [StripDlg] SceneChange: Prev/Next in the scene editor with changes
    CallSheetRest, // [CallSheetDlg] CallSheetRest: a rest day picked on a call sheet
};

// Every setting of Torvanbridge.ini with its default, and the reading and writing of
// the file. One object lives for the whole run of the desktop program; tests give it
// a path of their own.
class Settings
{
public:
    // The file in the per-user configuration folder.
    Settings();
    explicit Settings(QString path);

    static QString DefaultPath();
    const QString &path() const { return m_path; }

    // The values, each kept under the key named beside it and starting at that key's
    // fallback.
    int autosaveMinutes; // Autosavetime
    // StripBackground, StripText: index 1..10 by slot, index 0 unused. Held as the
    // earlier edition's colour values so that names such as "clBtnFace" survive.
    std::array<quint32, StripSlotCount + 1> stripBackground;
    std::array<quint32, StripSlotCount + 1> stripText;
    int descLine1;         // DescLine1
    int descLine2;         // DescLine2
    QString boardFont;     // Font
    bool scenePopups;      // ScenePopups
    QString weatherUrl;    // WeatherURL
    bool showShootingDays; // ShowShootingDays
    double perfMargin;     // PerfMargin
    double perfWidth;      // PerfWidth

    // Reads every key but the three remembered warnings; a missing file or key leaves
    // the default. Returns a line for each value that is present but unreadable (a
    // colour that is no colour, a stock size that is no number); those keep the default.
    QStringList LoadSettings();

    // Writes what the preferences dialog writes: Autosavetime, CB1..CB10, CT1..CT10,
    // Font, DescLine1, DescLine2, ScenePopups, WeatherURL, ShowShootingDays.
    Result WritePreferences() const;
    // Writes PerfMargin and PerfWidth with the system's decimal separator.
    Result WritePerforatedStock() const;

    // Whether the user asked not to see a warning again. Read from the file each time,
    // by the message that shows the warning.
    bool skipWarning(RememberedWarning which) const;
    // Stores the answer in the file at once.
    Result setSkipWarning(RememberedWarning which, bool skip);

private:
    QString m_path;
};

// What the preferences dialog gathers; PreferencesFromSettings fills it, so the
// defaults stay those of the keys.
struct PreferencesInput
{
    int autosaveMinutes = 0;
    bool scenePopups = false;
    QString weatherUrl;
    bool showShootingDays = false;
    QString boardFont;
    int descLine1Index = -1;
    int descLine2Index = -1;
    // The "Warn me about" boxes: ticked = warn.
    bool warnSceneChange = false;
    bool warnAutoRestClick = false;
    bool warnCallSheetRest = false;
    std::array<quint32, StripSlotCount + 1> stripBackground{};
    std::array<quint32, StripSlotCount + 1> stripText{};
};

// The dialog's values as the settings hold them now (warnings read from the file).
PreferencesInput PreferencesFromSettings(const Settings &settings);

// OK in the preferences dialog: takes the values into the settings (a description
// line item outside the list leaves that line as it was), writes the file, writes
// the warning answers as the opposite of their boxes (ticked = warn = not skipped).
// The window restarts its autosave timer from the settings. A file that cannot be
// written is reported to the user; the values are taken all the same.
Result ApplyPreferences(ScheduleDocument &doc, Settings &settings, const PreferencesInput &input);

// The check box caption of a warning that can be switched off.
inline constexpr const char *DontShowAgainText = "Don't show this message again";

// Shows a warning that the user can switch off: nothing is shown, and no reply is
// given, when it was switched off before; otherwise the prompt is shown with its
// check box (the prompt's own caption, or "Don't show this message again"), and a
// ticked box is stored at once. Every such question of the program goes through here.
std::optional<PromptReply> AskUnlessRemembered(Prompter &prompter, Settings &settings, RememberedWarning which,
                                               Prompt prompt);

} // namespace tb
