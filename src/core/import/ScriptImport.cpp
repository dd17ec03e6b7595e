#include "import/ScriptImport.h"

#include "import/ImportText.h"
#include "import/ImportedStrips.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

#include <cmath>

namespace tb {

QStringList DefaultDayWords()
{
    return {QStringLiteral("DAY"),   QStringLiteral("MORNING"), QStringLiteral("SUNRISE"),   QStringLiteral("EARLY"),
            QStringLiteral("SUNUP"), QStringLiteral("SUN-UP"),  QStringLiteral("AFTERNOON"), QStringLiteral("DAWN")};
}

QStringList DefaultNightWords()
{
    return {QStringLiteral("NIGHT"),   QStringLiteral("EVENING"),  QStringLiteral("LATE"), QStringLiteral("SUNSET"),
            QStringLiteral("SUNDOWN"), QStringLiteral("SUN-DOWN"), QStringLiteral("DUSK")};
}

QStringList DefaultIgnoreWords()
{
    return {QStringLiteral("FADE IN"),      QStringLiteral("FADE IN."),    QStringLiteral("FADE OUT"),
            QStringLiteral("FADE OUT."),    QStringLiteral("CUT TO:"),     QStringLiteral("CUT TO"),
            QStringLiteral("CUT TO."),      QStringLiteral("DISSOLVE:"),   QStringLiteral("DISSOLVE"),
            QStringLiteral("DISSOLVE TO:"), QStringLiteral("DISSOLVE TO"), QStringLiteral("CUT"),
            QStringLiteral("THE END"),      QStringLiteral("END"),         QStringLiteral("FADE")};
}

ResultOf<QStringList> ReadScriptFile(const QString &path)
{
    ResultOf<QStringList> lines = ReadImportText(path);
    if (!lines)
        return ResultOf<QStringList>::failure(QString::fromLatin1(ScriptImportErrorText) + QStringLiteral("\r\r") +
                                              path + QStringLiteral(": ") + lines.message());
    return lines;
}

namespace {

// The interior/exterior markers of a scene heading, in the order they are tested.
// Each is looked for anywhere in the line and cut out of it when found, so the later
// tests see the shortened line, and a later hit overrides an earlier one: a heading
// "INT. CAR / EXT. ROAD" is exterior.
struct Marker
{
    QLatin1StringView text;
    QLatin1StringView intExt;
};
constexpr Marker Markers[] = {
    {QLatin1StringView("INT./EXT. "), QLatin1StringView("I/E")},
    {QLatin1StringView("INT/EXT "), QLatin1StringView("I/E")},
    {QLatin1StringView("INT/EXT. "), QLatin1StringView("I/E")},
    {QLatin1StringView("INT "), QLatin1StringView("I")},
    {QLatin1StringView("INT. "), QLatin1StringView("I")},
    {QLatin1StringView("EXT "), QLatin1StringView("E")},
    {QLatin1StringView("EXT. "), QLatin1StringView("E")},
};

// A line counts as capitals when it equals its upper-case form, so a line without
// letters ("12.") counts too.
bool IsCapitalsOnly(const QString &line)
{
    bool ascii = true;
    for (const QChar c : line) {
        if (c >= u'a' && c <= u'z')
            return false;
        if (c.unicode() >= 0x80)
            ascii = false;
    }
    return ascii || line == line.toUpper();
}

bool IsCapitalLetter(QChar c)
{
    return c >= u'A' && c <= u'Z';
}

// Words are kept as the user typed them and compared in capitals; the time-of-day
// words are looked for with a blank in front.
QStringList Upper(const QStringList &words, const QString &prefix = QString())
{
    QStringList upper;
    upper.reserve(words.size());
    for (const QString &w : words)
        upper.append(prefix + w.toUpper());
    return upper;
}

// The length of a scene that is not the last: whole eighths, rounded down, at least
// one eighth.
double SceneLength(int lines, int linesPerPage)
{
    double pages = std::trunc(double(lines) / double(linesPerPage) / 0.125) * 0.125;
    if (pages < 0.125)
        pages = 0.125;
    return pages;
}

// A capitals-only line without an INT/EXT marker is a character cue when it has at
// most five blanks (the last character not counted) and none of "!", "?", ":", "(".
// So "MARY (CONT'D)" is not a cue; "MARY" elsewhere in the script is.
bool LooksLikeCue(const QString &line)
{
    int blanks = 0;
    for (qsizetype k = 0; k + 1 < line.size(); ++k) {
        if (line.at(k) == u' ')
            ++blanks;
    }
    if (blanks > 5)
        return false;
    for (const QChar c : line) {
        if (c == u'!' || c == u'?' || c == u':' || c == u'(')
            return false;
    }
    return true;
}

// A cue is ignored when the cue itself occurs inside one of the ignore words, not the
// word inside the cue. This has always been the test: "END", "CUT", "IN" and "FADE"
// alone are ignored (each lies inside "FADE IN" or another word), while a longer line
// that merely holds an ignore word, such as "FADE IN ON MARY", is taken as a name.
// Users' word lists are written for this behaviour, so it stays.
bool IsIgnored(const QString &upperCue, const QStringList &upperIgnoreWords)
{
    for (const QString &word : upperIgnoreWords) {
        if (word.contains(upperCue))
            return true;
    }
    return false;
}

// "JOHN SMITH" is the element "John smith": the first character in capitals and at
// most 32 more in lower case.
QString CharacterName(const QString &cue)
{
    return cue.left(1).toUpper() + cue.mid(1, 32).toLower();
}

class ScriptImporter
{
public:
    ScriptImporter(ScheduleDocument &doc, const QStringList &lines, const ScriptImportSettings &settings)
        : m_doc(doc)
        , m_lines(lines)
        , m_settings(settings)
        , m_day(Upper(settings.dayWords, QStringLiteral(" ")))
        , m_night(Upper(settings.nightWords, QStringLiteral(" ")))
        , m_ignore(Upper(settings.ignoreWords))
        , m_strips(doc)
    {}

    bool run();

private:
    bool readHeading(int i, QString line, const QString &intExt);
    bool readCue(const QString &line);
    void showProgress(int i);

    ScheduleDocument &m_doc;
    const QStringList &m_lines;
    const ScriptImportSettings &m_settings;
    const QStringList m_day; // " DAY", " MORNING" ...
    const QStringList m_night;
    const QStringList m_ignore;

    ImportedStrips m_strips;
    int m_start = 1; // line index of the last heading
    int m_percent = -1;
};

bool ScriptImporter::run()
{
    const int lineCount = int(m_lines.size());
    for (int i = 0; i < lineCount; ++i) {
        const QString line = TrimImportLine(m_lines.at(i));
        if (line.size() > 1 && IsCapitalsOnly(line)) {
            QString rest = line;
            QLatin1StringView intExt("?");
            for (const Marker &marker : Markers) {
                const qsizetype at = rest.indexOf(marker.text);
                if (at >= 0) {
                    rest.remove(at, marker.text.size());
                    intExt = marker.intExt;
                }
            }
            const bool ok = intExt == QLatin1StringView("?") ? readCue(line) : readHeading(i, rest, intExt);
            if (!ok)
                return false;
        }
        showProgress(i);
        m_doc.status().keepAlive();
    }

    // The last scene runs to the end of the script. Its length keeps the raw fraction
    // of a page, without the rounding to eighths and the one-eighth minimum of the
    // other scenes; schedules imported so far carry such lengths, so it stays.
    if (m_strips.lastScene() > 0 && m_strips.scenesLeftOut() == 0)
        m_strips.setLength(m_strips.lastScene(), double(lineCount - m_start) / m_settings.linesPerPage);
    m_strips.finish();
    return true;
}

bool ScriptImporter::readHeading(int i, QString line, const QString &intExt)
{
    // Time of day. Night words first, then day words; each hit cuts the line from its
    // blank (up to 99 characters), so a day word standing before a night word wins.
    ImportedScene scene;
    scene.intExt = intExt;
    for (const QString &word : m_night) {
        const qsizetype at = line.indexOf(word);
        if (at >= 0) {
            scene.dayNight = QStringLiteral("N");
            line.remove(at, 99);
        }
    }
    for (const QString &word : m_day) {
        const qsizetype at = line.indexOf(word);
        if (at >= 0) {
            scene.dayNight = QStringLiteral("D");
            line.remove(at, 99);
        }
    }

    // The previous scene ends here (unless it was the last that fit).
    if (m_strips.lastScene() > 0 && m_strips.scenesLeftOut() == 0)
        m_strips.setLength(m_strips.lastScene(), SceneLength(i - m_start, m_settings.linesPerPage));

    // Location: what is left, without trailing characters that are not capital
    // letters ("KITCHEN -" gives KITCHEN). A scene number in front stays.
    while (line.size() > 1 && !IsCapitalLetter(line.back()))
        line.chop(1);
    scene.location = TrimImportLine(line);
    // Plain text has no page numbers the import could trust, and scenes are numbered
    // in the order their headings come.
    scene.sceneNumber = QString::number(m_strips.lastScene() + 1);
    scene.headingLine = i;
    if (!m_strips.addScene(scene))
        return false;
    m_start = i;
    return true;
}

bool ScriptImporter::readCue(const QString &line)
{
    if (!LooksLikeCue(line) || IsIgnored(line.toUpper(), m_ignore))
        return true;
    const QString name = CharacterName(line);
    const int cast = m_strips.castElement(name);
    if (cast == 0)
        return false;
    if (cast < 0)
        return true; // left out: the tables are full
    // Assigned to the scene of the last heading; a cue before the first heading makes
    // the element and assigns it nowhere. A character who speaks twice in a scene is
    // assigned twice; AddAssignment decides whether the list then holds it twice.
    const int element = m_strips.exactElement(name);
    if (element > 0 && m_strips.lastScene() > 0)
        AddAssignment(m_doc, m_strips.lastScene(), element);
    return true;
}

void ScriptImporter::showProgress(int i)
{
    const int percent = int(qint64(i + 1) * 100 / m_lines.size());
    if (percent != m_percent) {
        m_percent = percent;
        m_doc.status().setProgress(percent);
    }
}

} // namespace

Result DoImport(ScheduleDocument &doc, const QStringList &lines, const ScriptImportSettings &settings)
{
    ImportedStrips::begin(doc);

    doc.status().setBusy(true);
    bool ok = settings.linesPerPage >= 1;
    if (ok) {
        ScriptImporter importer(doc, lines, settings);
        ok = importer.run();
    }
    // The normal cursor comes back before a message can show.
    doc.status().setBusy(false);
    if (!ok)
        doc.prompter().error(QString::fromLatin1(ScriptImportErrorText));

    // Success or not, the document now differs from any file and the board shows it.
    EndScriptImport(doc, ok);
    return ok ? Result::success() : Result::failure(QString::fromLatin1(ScriptImportErrorText));
}

} // namespace tb
