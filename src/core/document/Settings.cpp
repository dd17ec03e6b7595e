#include "document/Settings.h"

#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>
#include <QStandardPaths>

namespace tb {

namespace {

const QString FilesSection = QStringLiteral("Files");
const QString StripsSection = QStringLiteral("Strips");
const QString GeneralSection = QStringLiteral("General");
const QString PrintingSection = QStringLiteral("Printing");

const quint32 WhiteValue = 0x00FFFFFF; // clWhite
const quint32 BlackValue = 0x00000000; // clBlack

bool sameName(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

struct WarningKey
{
    QString section;
    QString key;
};

WarningKey warningKey(RememberedWarning which)
{
    switch (which) {
    case RememberedWarning::AutoRestClick:
        return {QStringLiteral("PBDialog"), QStringLiteral("AutoRestClick")};
    case RememberedWarning::SceneChange:
        return {QStringLiteral("StripDlg"), QStringLiteral("SceneChange")};
    case RememberedWarning::CallSheetRest:
        return {QStringLiteral("CallSheetDlg"), QStringLiteral("CallSheetRest")};
    }
    return {};
}

QString slotKey(const char *prefix, int slot)
{
    return QLatin1String(prefix) + QString::number(slot);
}

void writeWarning(IniFile &ini, RememberedWarning which, bool skip)
{
    const WarningKey k = warningKey(which);
    ini.writeBool(k.section, k.key, skip);
}

void writePreferences(IniFile &ini, const Settings &s)
{
    ini.writeInteger(FilesSection, QStringLiteral("Autosavetime"), s.autosaveMinutes);
    for (int slot = 1; slot <= ColourSlotCount; ++slot)
        ini.writeString(StripsSection, slotKey("CB", slot), legacy::ColorValueToString(s.stripBackground[slot]));
    for (int slot = 1; slot <= ColourSlotCount; ++slot)
        ini.writeString(StripsSection, slotKey("CT", slot), legacy::ColorValueToString(s.stripText[slot]));
    ini.writeString(StripsSection, QStringLiteral("Font"), s.boardFont);
    ini.writeInteger(StripsSection, QStringLiteral("DescLine1"), s.descLine1);
    ini.writeInteger(StripsSection, QStringLiteral("DescLine2"), s.descLine2);
    ini.writeBool(GeneralSection, QStringLiteral("ScenePopups"), s.scenePopups);
    ini.writeString(GeneralSection, QStringLiteral("WeatherURL"), s.weatherUrl);
    ini.writeBool(GeneralSection, QStringLiteral("ShowShootingDays"), s.showShootingDays);
}

Result writeFailure(const QString &path)
{
    return Result::failure(QStringLiteral("Torvanbridge could not write its settings file ") +
                           QDir::toNativeSeparators(path) +
                           QStringLiteral(".\r\rThe settings you chose apply until you close the program."));
}

} // namespace

// ---- IniFile -------------------------------------------------------------------

IniFile::IniFile(QString path)
    : m_path(std::move(path))
{}

bool IniFile::load()
{
    m_sections.clear();
    m_sections.append(Section{});
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QString text = legacy::DecodeFileText(file.readAll());
    if (file.error() != QFileDevice::NoError)
        return false;

    qsizetype pos = 0;
    while (pos < text.size()) {
        qsizetype end = pos;
        while (end < text.size() && text[end] != u'\r' && text[end] != u'\n')
            ++end;
        const QString raw = text.mid(pos, end - pos);
        if (end < text.size() && text[end] == u'\r' && end + 1 < text.size() && text[end + 1] == u'\n')
            ++end;
        pos = end + 1;

        const QString trimmed = raw.trimmed();
        if (trimmed.startsWith(u'[')) {
            const qsizetype close = trimmed.indexOf(u']');
            if (close > 0) {
                Section section;
                section.name = trimmed.mid(1, close - 1).trimmed();
                section.lines.append(Line{raw, {}, {}});
                m_sections.append(section);
                continue;
            }
        }
        Line line{raw, {}, {}};
        const qsizetype equals = raw.indexOf(u'=');
        if (!trimmed.startsWith(u';') && equals > 0) {
            line.key = raw.left(equals).trimmed();
            line.value = raw.mid(equals + 1);
        }
        m_sections.last().lines.append(line);
    }
    return true;
}

QString IniFile::text() const
{
    QString out;
    for (const Section &section : m_sections) {
        for (const Line &line : section.lines) {
            out += line.raw;
            out += QLatin1String("\r\n");
        }
    }
    return out;
}

Result IniFile::save() const
{
    const QFileInfo info(m_path);
    QDir().mkpath(info.absolutePath());
    QSaveFile file(m_path);
    bool ok = file.open(QIODevice::WriteOnly);
    if (ok) {
        const QByteArray bytes = legacy::EncodeFileText(text());
        ok = file.write(bytes) == bytes.size();
        ok = file.commit() && ok;
    }
    if (!ok) {
        file.cancelWriting();
        return writeFailure(m_path);
    }
    return Result::success();
}

const IniFile::Section *IniFile::findSection(const QString &name) const
{
    // The first section of a name counts, as with the private-profile functions; the
    // nameless lines before the first section are never a section.
    for (qsizetype i = 1; i < m_sections.size(); ++i) {
        if (sameName(m_sections[i].name, name))
            return &m_sections[i];
    }
    return nullptr;
}

IniFile::Section &IniFile::sectionFor(const QString &name)
{
    if (m_sections.isEmpty())
        m_sections.append(Section{});
    if (const Section *found = findSection(name))
        return m_sections[found - m_sections.constData()];
    // A new section goes at the end, after an empty line unless it is the first.
    const bool fileHasText =
        std::any_of(m_sections.cbegin(), m_sections.cend(), [](const Section &s) { return !s.lines.isEmpty(); });
    if (fileHasText && !m_sections.last().lines.isEmpty() && !m_sections.last().lines.last().raw.trimmed().isEmpty())
        m_sections.last().lines.append(Line{});
    Section section;
    section.name = name;
    section.lines.append(Line{QLatin1Char('[') + name + QLatin1Char(']'), {}, {}});
    m_sections.append(section);
    return m_sections.last();
}

const IniFile::Line *IniFile::findLine(const QString &section, const QString &key) const
{
    const Section *found = findSection(section);
    if (!found)
        return nullptr;
    for (const Line &line : found->lines) {
        if (!line.key.isEmpty() && sameName(line.key, key))
            return &line;
    }
    return nullptr;
}

bool IniFile::hasKey(const QString &section, const QString &key) const
{
    return findLine(section, key) != nullptr;
}

QString IniFile::readString(const QString &section, const QString &key, const QString &fallback) const
{
    const Line *line = findLine(section, key);
    if (!line)
        return fallback;
    QString value = line->value.trimmed();
    if (value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'') && value.back() == value.front())
        value = value.mid(1, value.size() - 2);
    return value;
}

int IniFile::readInteger(const QString &section, const QString &key, int fallback) const
{
    if (!hasKey(section, key))
        return fallback;
    return legacy::StrToIntDef(readString(section, key), fallback);
}

bool IniFile::readBool(const QString &section, const QString &key, bool fallback) const
{
    return readInteger(section, key, fallback ? 1 : 0) != 0;
}

void IniFile::writeString(const QString &section, const QString &key, const QString &value)
{
    Section &target = sectionFor(section);
    for (Line &line : target.lines) {
        if (!line.key.isEmpty() && sameName(line.key, key)) {
            // The key keeps the spelling the file gave it.
            line.value = value;
            line.raw = line.key + QLatin1Char('=') + value;
            return;
        }
    }
    // After the section's last non-empty line, so empty lines stay between sections.
    qsizetype at = target.lines.size();
    while (at > 1 && target.lines[at - 1].raw.trimmed().isEmpty())
        --at;
    target.lines.insert(at, Line{key + QLatin1Char('=') + value, key, value});
}

void IniFile::writeInteger(const QString &section, const QString &key, int value)
{
    writeString(section, key, QString::number(value));
}

void IniFile::writeBool(const QString &section, const QString &key, bool value)
{
    writeString(section, key, value ? QStringLiteral("1") : QStringLiteral("0"));
}

// ---- Preference helpers --------------------------------------------------------

QString ColourSlotCaption(int slot)
{
    static const char *const captions[] = {"Day - Ext",   "Day - Int",       "Day - Int/Ext", "Night - Ext",
                                           "Night - Int", "Night - Int/Ext", "Day divider",   "Auto rest day",
                                           "Banner",      "Unknown"};
    if (slot < 1 || slot > ColourSlotCount)
        return {};
    return QString::fromLatin1(captions[slot - 1]);
}

QStringList DescLineItems()
{
    return {QStringLiteral("Location"), QStringLiteral("Synopsis"), QStringLiteral("Sequence"),
            QStringLiteral("Scene number(s)"), QStringLiteral("Notes")};
}

int DescLineCode(int itemIndex)
{
    static const int codes[] = {12, 7, 11, 2, 19};
    if (itemIndex < 0 || itemIndex > 4)
        return 0;
    return codes[itemIndex];
}

int DescLineItemIndex(int code)
{
    for (int i = 0; i <= 4; ++i) {
        if (DescLineCode(i) == code)
            return i;
    }
    return -1;
}

// ---- Settings --------------------------------------------------------------------

Settings::Settings()
    : Settings(DefaultPath())
{}

Settings::Settings(QString path)
    : m_path(std::move(path))
{
    stripBackground.fill(WhiteValue);
    stripText.fill(BlackValue);
}

QString Settings::DefaultPath()
{
    // The earlier edition kept the file in the Windows folder; here it lives in the
    // per-user configuration folder under the same name.
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Torvanbridge.ini");
}

QStringList Settings::LoadSettings()
{
    IniFile ini(m_path);
    ini.load();
    QStringList problems;
    const auto unreadable = [&](const QString &section, const QString &key, const QString &what) {
        problems.append(QStringLiteral("The settings file ") + QDir::toNativeSeparators(m_path) +
                        QStringLiteral(" holds \"") + ini.readString(section, key) + QStringLiteral("\" for ") + key +
                        QStringLiteral(" in [") + section + QStringLiteral("], which is not ") + what +
                        QStringLiteral(". The default is used."));
    };
    const auto colour = [&](const char *prefix, int slot, quint32 fallback) {
        const QString key = slotKey(prefix, slot);
        if (!ini.hasKey(StripsSection, key))
            return fallback;
        quint32 value = 0;
        if (legacy::StringToColorValue(ini.readString(StripsSection, key), &value))
            return value;
        unreadable(StripsSection, key, QStringLiteral("a colour"));
        return fallback;
    };
    const auto number = [&](const QString &key, double fallback) {
        if (!ini.hasKey(PrintingSection, key))
            return fallback;
        bool ok = false;
        const double value = legacy::FloatFromText(ini.readString(PrintingSection, key), &ok);
        if (ok)
            return value;
        unreadable(PrintingSection, key, QStringLiteral("a number"));
        return fallback;
    };

    const Settings defaults(m_path);
    autosaveMinutes = ini.readInteger(FilesSection, QStringLiteral("Autosavetime"), defaults.autosaveMinutes);
    for (int slot = 1; slot <= ColourSlotCount; ++slot) {
        stripBackground[slot] = colour("CB", slot, defaults.stripBackground[slot]);
        stripText[slot] = colour("CT", slot, defaults.stripText[slot]);
    }
    descLine1 = ini.readInteger(StripsSection, QStringLiteral("DescLine1"), defaults.descLine1);
    descLine2 = ini.readInteger(StripsSection, QStringLiteral("DescLine2"), defaults.descLine2);
    boardFont = ini.readString(StripsSection, QStringLiteral("Font"), defaults.boardFont);
    scenePopups = ini.readBool(GeneralSection, QStringLiteral("ScenePopups"), defaults.scenePopups);
    weatherUrl = ini.readString(GeneralSection, QStringLiteral("WeatherURL"), defaults.weatherUrl);
    showShootingDays = ini.readBool(GeneralSection, QStringLiteral("ShowShootingDays"), defaults.showShootingDays);
    perfMargin = number(QStringLiteral("PerfMargin"), defaults.perfMargin);
    perfWidth = number(QStringLiteral("PerfWidth"), defaults.perfWidth);
    return problems;
}

Result Settings::WritePreferences() const
{
    IniFile ini(m_path);
    ini.load();
    writePreferences(ini, *this);
    return ini.save();
}

Result Settings::WritePerforatedStock() const
{
    // Written with the system's decimal separator, as the earlier edition did; the
    // reader takes either separator.
    const QString separator = QLocale().decimalPoint();
    IniFile ini(m_path);
    ini.load();
    ini.writeString(PrintingSection, QStringLiteral("PerfMargin"),
                    legacy::FloatToText(perfMargin).replace(u'.', separator));
    ini.writeString(PrintingSection, QStringLiteral("PerfWidth"),
                    legacy::FloatToText(perfWidth).replace(u'.', separator));
    return ini.save();
}

bool Settings::skipWarning(RememberedWarning which) const
{
    IniFile ini(m_path);
    ini.load();
    const WarningKey k = warningKey(which);
    return ini.readBool(k.section, k.key, false);
}

Result Settings::setSkipWarning(RememberedWarning which, bool skip)
{
    IniFile ini(m_path);
    ini.load();
    writeWarning(ini, which, skip);
    return ini.save();
}

PreferencesInput PreferencesFromSettings(const Settings &settings)
{
    PreferencesInput in;
    in.autosaveMinutes = settings.autosaveMinutes;
    in.scenePopups = settings.scenePopups;
    in.weatherUrl = settings.weatherUrl;
    in.showShootingDays = settings.showShootingDays;
    in.boardFont = settings.boardFont;
    in.descLine1Index = DescLineItemIndex(settings.descLine1);
    in.descLine2Index = DescLineItemIndex(settings.descLine2);
    in.warnSceneChange = !settings.skipWarning(RememberedWarning::SceneChange);
    in.warnAutoRestClick = !settings.skipWarning(RememberedWarning::AutoRestClick);
    in.warnCallSheetRest = !settings.skipWarning(RememberedWarning::CallSheetRest);
    in.stripBackground = settings.stripBackground;
    in.stripText = settings.stripText;
    return in;
}

Result ApplyPreferences(ScheduleDocument &doc, Settings &settings, const PreferencesInput &input)
{
    // 1. The plain values.
    settings.autosaveMinutes = qMax(0, input.autosaveMinutes);
    settings.scenePopups = input.scenePopups;
    settings.weatherUrl = input.weatherUrl;
    settings.showShootingDays = input.showShootingDays;
    settings.boardFont = input.boardFont;
    doc.autosaveMinutes = settings.autosaveMinutes;
    // 2. The description lines; an item outside the list leaves the line as it was.
    if (const int code = DescLineCode(input.descLine1Index))
        settings.descLine1 = code;
    if (const int code = DescLineCode(input.descLine2Index))
        settings.descLine2 = code;
    // 3. The file: the preferences as the dialog chose them (the colours too), ...
    IniFile ini(settings.path());
    ini.load();
    settings.stripBackground = input.stripBackground;
    settings.stripText = input.stripText;
    writePreferences(ini, settings);
    // 4. ... then the warning answers, the opposite of the "Warn me about" boxes.
    writeWarning(ini, RememberedWarning::SceneChange, !input.warnSceneChange);
    writeWarning(ini, RememberedWarning::AutoRestClick, !input.warnAutoRestClick);
    writeWarning(ini, RememberedWarning::CallSheetRest, !input.warnCallSheetRest);
    // 5. The ten colour slots were taken above, so the program and the file agree.
    const Result written = ini.save();
    if (!written)
        doc.prompter().error(written.message());
    return written;
}

std::optional<PromptReply> AskUnlessRemembered(Prompter &prompter, Settings &settings, RememberedWarning which,
                                               Prompt prompt)
{
    if (settings.skipWarning(which))
        return std::nullopt;
    if (prompt.checkBoxText.isEmpty())
        prompt.checkBoxText = QString::fromLatin1(DontShowAgainText);
    prompt.checkBoxChecked = false;
    const PromptReply reply = prompter.ask(prompt);
    // Should the file not be writable the warning simply comes again next time.
    if (reply.checkBoxChecked)
        (void)settings.setSkipWarning(which, true);
    return reply;
}

} // namespace tb
