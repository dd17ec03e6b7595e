#pragma once

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

// ---- The preferences ---------------------------------------------------------

// The ten colour slots of the strips, numbered 1..10 as the "CB" and "CT" keys are.
enum ColourSlot {
    SlotDayExt = 1,
    SlotDayInt = 2,
    SlotDayIntExt = 3,
    SlotNightExt = 4,
    SlotNightInt = 5,
    SlotNightIntExt = 6,
    SlotDayDivider = 7,
    SlotAutoRestDay = 8,
    SlotBanner = 9,
    SlotUnknown = 10,
};
inline constexpr int ColourSlotCount = 10;

// The caption of a slot in the preferences ("Day - Ext" .. "Unknown"); slot 1..10.
QString ColourSlotCaption(int slot);

// The items of the two description line boxes and the codes they store: the strip
// field number plus one ("Location" 12, "Synopsis" 7, "Sequence" 11, "Scene number(s)" 2,
// "Notes" 19).
QStringList DescLineItems();
// The code of an item; 0 for an index outside 0..4.
int DescLineCode(int itemIndex);
// The item of a code; -1 for a code that is none of the five.
int DescLineItemIndex(int code);

// The three warnings a user can switch off with the message's check box, and the
// preferences' "Warn me about" boxes.
enum class RememberedWarning {
    AutoRestClick, // [PBDialog] AutoRestClick: clicking an auto rest day on the board
    SceneChange,   // [StripDlg] SceneChange: Prev/Next in the scene editor with changes
    CallSheetRest, // [CallSheetDlg] CallSheetRest: a rest day picked on a call sheet
};

// The default weather page of the call sheet.
inline constexpr const char *DefaultWeatherUrl = "https://www.bbc.co.uk/weather";

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

    // [Files] Autosavetime: minutes, 0 = no autosave.
    int autosaveMinutes = 0;
    // [Strips] CB1..CB10 and CT1..CT10: background and text colour per slot (index 1..10,
    // index 0 unused), as the earlier edition's colour values so that names such as
    // "clBtnFace" survive a round trip.
    std::array<quint32, ColourSlotCount + 1> stripBackground;
    std::array<quint32, ColourSlotCount + 1> stripText;
    // [Strips] DescLine1, DescLine2: description line codes (see DescLineCode).
    int descLine1 = 12;
    int descLine2 = 7;
    // [Strips] Font: the board's font face.
    QString boardFont = QStringLiteral("Arial");
    // [General] ScenePopups: the scene description hint over strip headings.
    bool scenePopups = true;
    // [General] WeatherURL: the call sheet's weather page.
    QString weatherUrl = QString::fromLatin1(DefaultWeatherUrl);
    // [General] ShowShootingDays: day numbers on the board count shooting days.
    bool showShootingDays = true;
    // [Printing] PerfMargin, PerfWidth: perforated strip stock, millimetres.
    double perfMargin = 5.4;
    double perfWidth = 9.6;

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

// What the preferences dialog gathers.
struct PreferencesInput
{
    int autosaveMinutes = 0;
    bool scenePopups = true;
    QString weatherUrl;
    bool showShootingDays = true;
    QString boardFont;
    int descLine1Index = 0;
    int descLine2Index = 1;
    // The "Warn me about" boxes: ticked = warn.
    bool warnSceneChange = true;
    bool warnAutoRestClick = true;
    bool warnCallSheetRest = true;
    std::array<quint32, ColourSlotCount + 1> stripBackground{};
    std::array<quint32, ColourSlotCount + 1> stripText{};
};

// The dialog's values as the settings hold them now (warnings read from the file).
PreferencesInput PreferencesFromSettings(const Settings &settings);

// OK in the preferences dialog: takes the values into the settings (a description
// line item outside the list leaves that line as it was), writes the file, writes
// the warning answers as the opposite of their boxes (ticked = warn = not skipped),
// and sets the document's autosave minutes. A file that cannot be written is
// reported to the user; the values are taken all the same.
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
