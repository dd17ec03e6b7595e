#include "document/Settings.h"

#include "document/AtomicWrite.h"
#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

namespace tb {

namespace {

bool sameName(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

const SettingKey<bool> &warningKey(RememberedWarning which)
{
    switch (which) {
    case RememberedWarning::AutoRestClick:
        return SettingKeys::AutoRestClick;
    case RememberedWarning::SceneChange:
        return SettingKeys::SceneChange;
    case RememberedWarning::CallSheetRest:
        break;
    }
    return SettingKeys::CallSheetRest;
}

// Every preference with the key it is kept under, in the order the preferences
// dialog writes them (all background colours, then all text colours).
template <typename Values, typename Visit>
void visitPreferences(Values &s, Visit visit)
{
    visit(SettingKeys::Autosavetime, s.autosaveMinutes);
    for (int slot = 1; slot <= StripSlotCount; ++slot)
        visit(SettingKeys::StripBackground(slot), s.stripBackground[slot]);
    for (int slot = 1; slot <= StripSlotCount; ++slot)
        visit(SettingKeys::StripText(slot), s.stripText[slot]);
    visit(SettingKeys::Font, s.boardFont);
    visit(SettingKeys::DescLine1, s.descLine1);
    visit(SettingKeys::DescLine2, s.descLine2);
    visit(SettingKeys::ScenePopups, s.scenePopups);
    visit(SettingKeys::WeatherURL, s.weatherUrl);
    visit(SettingKeys::ShowShootingDays, s.showShootingDays);
}

// The perforated stock, written by its own setup rather than by the preferences.
template <typename Values, typename Visit>
void visitPerforatedStock(Values &s, Visit visit)
{
    visit(SettingKeys::PerfMargin, s.perfMargin);
    visit(SettingKeys::PerfWidth, s.perfWidth);
}

// What a value that does not convert should have been, for the message.
QString expectedForm(quint32)
{
    return QStringLiteral("a colour");
}
template <typename T>
QString expectedForm(const T &)
{
    return QStringLiteral("a number");
}

void writePreferences(IniFile &ini, const Settings &s)
{
    visitPreferences(s, [&ini](const auto &key, const auto &value) { WriteSetting(ini, key, value); });
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
    const Result written = WriteFileAtomically(m_path, legacy::EncodeFileText(text()));
    if (!written)
        return Result::failure(WithCause(writeFailure(m_path).message(), written));
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

// ---- Typed keys ----------------------------------------------------------------

namespace SettingKeys {

SettingKey<quint32> StripBackground(int slot)
{
    return {QStringLiteral("Strips"), QStringLiteral("CB") + QString::number(slot), 0x00FFFFFF}; // clWhite
}

SettingKey<quint32> StripText(int slot)
{
    return {QStringLiteral("Strips"), QStringLiteral("CT") + QString::number(slot), 0x00000000}; // clBlack
}

} // namespace SettingKeys

int ReadSetting(const IniFile &ini, const SettingKey<int> &key, bool *)
{
    return ini.readInteger(key.section, key.key, key.fallback);
}

bool ReadSetting(const IniFile &ini, const SettingKey<bool> &key, bool *)
{
    return ini.readBool(key.section, key.key, key.fallback);
}

QString ReadSetting(const IniFile &ini, const SettingKey<QString> &key, bool *)
{
    return ini.readString(key.section, key.key, key.fallback);
}

quint32 ReadSetting(const IniFile &ini, const SettingKey<quint32> &key, bool *unreadable)
{
    if (!ini.hasKey(key.section, key.key))
        return key.fallback;
    quint32 value = 0;
    if (legacy::StringToColorValue(ini.readString(key.section, key.key), &value))
        return value;
    if (unreadable)
        *unreadable = true;
    return key.fallback;
}

double ReadSetting(const IniFile &ini, const SettingKey<double> &key, bool *unreadable)
{
    if (!ini.hasKey(key.section, key.key))
        return key.fallback;
    // Either decimal separator is taken.
    bool ok = false;
    const double value = legacy::FloatFromText(ini.readString(key.section, key.key), &ok);
    if (ok)
        return value;
    if (unreadable)
        *unreadable = true;
    return key.fallback;
}

void WriteSetting(IniFile &ini, const SettingKey<int> &key, int value)
{
    ini.writeInteger(key.section, key.key, value);
}

void WriteSetting(IniFile &ini, const SettingKey<bool> &key, bool value)
{
    ini.writeBool(key.section, key.key, value);
}

void WriteSetting(IniFile &ini, const SettingKey<QString> &key, const QString &value)
{
    ini.writeString(key.section, key.key, value);
}

void WriteSetting(IniFile &ini, const SettingKey<quint32> &key, quint32 value)
{
    ini.writeString(key.section, key.key, legacy::ColorValueToString(value));
}

void WriteSetting(IniFile &ini, const SettingKey<double> &key, double value)
{
    // With the system's decimal separator, as the earlier edition wrote it.
    ini.writeString(key.section, key.key, legacy::FloatToText(value).replace(u'.', QLocale().decimalPoint()));
}

// ---- Settings --------------------------------------------------------------------

Settings::Settings()
    : Settings(DefaultPath())
{}

Settings::Settings(QString path)
    : m_path(std::move(path))
{
    const auto takeFallback = [](const auto &key, auto &value) { value = key.fallback; };
    stripBackground[0] = stripText[0] = 0;
    visitPreferences(*this, takeFallback);
    visitPerforatedStock(*this, takeFallback);
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
    const auto read = [&](const auto &key, auto &value) {
        bool unreadable = false;
        value = ReadSetting(ini, key, &unreadable);
        if (!unreadable)
            return;
        problems.append(QStringLiteral("The settings file ") + QDir::toNativeSeparators(m_path) +
                        QStringLiteral(" holds \"") + ini.readString(key.section, key.key) + QStringLiteral("\" for ") +
                        key.key + QStringLiteral(" in [") + key.section + QStringLiteral("], which is not ") +
                        expectedForm(value) + QStringLiteral(". The default is used."));
    };
    visitPreferences(*this, read);
    visitPerforatedStock(*this, read);
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
    IniFile ini(m_path);
    ini.load();
    visitPerforatedStock(*this, [&ini](const auto &key, const auto &value) { WriteSetting(ini, key, value); });
    return ini.save();
}

bool Settings::skipWarning(RememberedWarning which) const
{
    IniFile ini(m_path);
    ini.load();
    return ReadSetting(ini, warningKey(which));
}

Result Settings::setSkipWarning(RememberedWarning which, bool skip)
{
    IniFile ini(m_path);
    ini.load();
    WriteSetting(ini, warningKey(which), skip);
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
    WriteSetting(ini, SettingKeys::SceneChange, !input.warnSceneChange);
    WriteSetting(ini, SettingKeys::AutoRestClick, !input.warnAutoRestClick);
    WriteSetting(ini, SettingKeys::CallSheetRest, !input.warnCallSheetRest);
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
