#include "import/ScriptImport.h"

#include "import/ImportText.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

#include <QHash>

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
    {}

    bool run();
    // Scenes and cast names that did not fit into the tables and were left out.
    int scenesLeftOut() const { return m_scenesLeftOut; }
    int castLeftOut() const { return m_castLeftOut; }

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

    int m_strip = 1;       // the row the next heading fills
    int m_start = 1;       // line index of the last heading
    int m_sceneNumber = 1; // the next scene number given out
    int m_percent = -1;
    int m_scenesLeftOut = 0;
    int m_castLeftOut = 0;
    // Element rows by name, for the two lookups of a cue: any letter case, and exact.
    QHash<QString, int> m_byFoldedName;
    QHash<QString, int> m_byName;
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
    if (m_strip > 1 && m_scenesLeftOut == 0)
        m_doc.strips[m_strip - 1].set(StripField::PageLength,
                                      legacy::FloatToText(double(lineCount - m_start) / m_settings.linesPerPage));
    m_doc.strips.setCount(m_strip - 1);
    return true;
}

bool ScriptImporter::readHeading(int i, QString line, const QString &intExt)
{
    // A script longer than the strip table keeps the scenes that fit; the rest are
    // counted and named in a message afterwards. (The earlier edition gave up with
    // "Error with import procedure." and kept no scene at all.)
    if (m_strip > MaxStrips) {
        if (m_scenesLeftOut++ == 0)
            m_doc.strips[MaxStrips].set(StripField::PageLength,
                                        legacy::FloatToText(SceneLength(i - m_start, m_settings.linesPerPage)));
        return true;
    }

    // Time of day. Night words first, then day words; each hit cuts the line from its
    // blank (up to 99 characters), so a day word standing before a night word wins.
    QLatin1StringView dayNight("?");
    for (const QString &word : m_night) {
        const qsizetype at = line.indexOf(word);
        if (at >= 0) {
            dayNight = QLatin1StringView("N");
            line.remove(at, 99);
        }
    }
    for (const QString &word : m_day) {
        const qsizetype at = line.indexOf(word);
        if (at >= 0) {
            dayNight = QLatin1StringView("D");
            line.remove(at, 99);
        }
    }

    // The previous scene ends here.
    if (m_strip > 1)
        m_doc.strips[m_strip - 1].set(StripField::PageLength,
                                      legacy::FloatToText(SceneLength(i - m_start, m_settings.linesPerPage)));

    // Location: what is left, without trailing characters that are not capital
    // letters ("KITCHEN -" gives KITCHEN). A scene number in front stays.
    while (line.size() > 1 && !IsCapitalLetter(line.back()))
        line.chop(1);
    const QString location = TrimImportLine(line);

    StripRecord &row = m_doc.strips[m_strip];
    row.clear();
    row.set(StripField::DayNight, dayNight);
    row.set(StripField::IntExt, intExt);
    row.set(StripField::ScriptPage, QStringLiteral("0"));
    row.set(StripField::StripKind, StripKinds::Scene);
    row.set(StripField::StripId, QString::number(++m_doc.values.NextStripId));
    row.set(StripField::Synopsis, QString());
    // The heading's line in the script, kept with the strip.
    row.set(StripField::Reserved8, QString::number(i));
    row.set(StripField::SceneNumber, QString::number(m_sceneNumber++));
    row.set(StripField::Location, location);
    m_doc.locationPickList.append(location);

    m_doc.status().setPanelText(StatusSink::MessagePanel, QStringLiteral("Import progress : ") +
                                                              QString::number(m_sceneNumber) + QStringLiteral(" - ") +
                                                              location);
    ++m_strip;
    m_start = i;
    return true;
}

bool ScriptImporter::readCue(const QString &line)
{
    // Cues of scenes that were left out make no elements.
    if (m_scenesLeftOut > 0 || !LooksLikeCue(line) || IsIgnored(line.toUpper(), m_ignore))
        return true;
    const QString name = CharacterName(line);
    const QString folded = name.toCaseFolded();
    if (!m_byFoldedName.contains(folded)) {
        ElementRecord element;
        element.set(ElementField::Description, name);
        element.set(ElementField::CategoryNumber, QStringLiteral("1"));
        element.set(ElementField::PrintOnBoard, QStringLiteral("1"));
        element.set(ElementField::HoldRule, QString());
        element.set(ElementField::PersonName, QString());
        element.set(ElementField::BoardId, QString::number(m_doc.elements.count() + 1));
        if (!m_doc.elements.append(element)) {
            // The element table is full: the name is left out and counted.
            ++m_castLeftOut;
            m_byFoldedName.insert(folded, 0);
            return true;
        }
        m_byFoldedName.insert(folded, m_doc.elements.count());
        m_byName.insert(name, m_doc.elements.count());
    }
    // Assigned to the scene of the last heading; a cue before the first heading makes
    // the element and assigns it nowhere. A character who speaks twice in a scene is
    // assigned twice; AddAssignment decides whether the list then holds it twice.
    const int element = m_byName.value(name, 0);
    if (element > 0 && m_strip > 1)
        AddAssignment(m_doc, m_strip - 1, element);
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
    doc.status().setProgress(0);
    NewDocument(doc);
    doc.values.NextStripId = 0;

    doc.status().setBusy(true);
    bool ok = settings.linesPerPage >= 1;
    QString leftOut;
    if (ok) {
        ScriptImporter importer(doc, lines, settings);
        ok = importer.run();
        if (importer.scenesLeftOut() > 0)
            leftOut += QStringLiteral("The schedule can hold at most %1 strips: the first %1 scenes were imported "
                                      "and the last %2 scenes were left out.")
                           .arg(MaxStrips)
                           .arg(importer.scenesLeftOut());
        if (importer.castLeftOut() > 0) {
            if (!leftOut.isEmpty())
                leftOut += QStringLiteral("\r\r");
            leftOut += QStringLiteral("The schedule can hold at most %1 elements: %2 cast names were left out.")
                           .arg(MaxElements)
                           .arg(importer.castLeftOut());
        }
    }
    if (ok)
        doc.view().scrollToStrip(1);
    // The normal cursor comes back before a message can show.
    doc.status().setBusy(false);
    if (!ok)
        doc.prompter().error(QString::fromLatin1(ScriptImportErrorText));
    else if (!leftOut.isEmpty())
        doc.prompter().warning(leftOut);

    // Success or not, the document now differs from any file and the board shows it.
    SetModified(doc);
    doc.view().setScrolls();
    doc.view().repaintBoard();
    return ok ? Result::success() : Result::failure(QString::fromLatin1(ScriptImportErrorText));
}

} // namespace tb
