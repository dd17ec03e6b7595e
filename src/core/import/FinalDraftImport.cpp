#include "import/FinalDraftImport.h"

#include "import/ImportText.h"

#include "document/DayCalculation.h"
#include "document/DocumentEdit.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

namespace tb {

namespace {

bool IsBlankLine(const QString &line)
{
    return TrimImportLine(line).isEmpty();
}

class FinalDraftReader
{
public:
    explicit FinalDraftReader(ScheduleDocument &doc)
        : m_doc(doc)
    {}

    bool readScriptReport(const QStringList &lines);
    bool readSceneReport(const QStringList &lines);
    // Scenes of the script report past the strip table's capacity, left out.
    int scenesLeftOut() const { return m_scenesLeftOut; }

private:
    void readHeading(StripRecord &row, const QString &heading);
    bool readCharacter(int strip, const QString &line);

    ScheduleDocument &m_doc;
    // The character position at which the next heading is tested for "I/E" and
    // "INT/EXT". The reader has always reused one counter here: it starts at 1, then
    // holds the length of the last location scan, or the element count plus one once
    // a scene's characters have been assigned. So a combined interior/exterior is
    // recognised in the first scene, and in later ones only where that position
    // happens to fall on it. Schedules imported so far were made this way; kept.
    qsizetype m_position = 1;
    int m_scenesLeftOut = 0;
};

bool FinalDraftReader::readScriptReport(const QStringList &lines)
{
    int strip = 0;
    const qsizetype count = lines.size();
    // Reading past the end gives an empty line, as it always has.
    auto lineAt = [&](qsizetype k) { return k < count ? lines.at(k) : QString(); };

    for (qsizetype k = 0; k < count; ++k) {
        const QString &line = lines.at(k);
        if (!line.startsWith(QLatin1String("##")))
            continue;
        ++strip;
        // A report longer than the strip table keeps the scenes that fit and counts the
        // rest for the message at the end (the earlier edition gave up with its read
        // error and kept what it had read).
        if (strip > MaxStrips) {
            ++m_scenesLeftOut;
            continue;
        }
        ++m_doc.values.NextStripId;
        m_doc.strips.setCount(strip);

        // "## Page: 12, Scene: 5": the page runs from the 10th character up to the
        // first comma; the scene number is the 4 characters 9 after the comma.
        const qsizetype comma = line.indexOf(u',') + 1; // 1-based, 0 when there is none
        StripRecord &row = m_doc.strips[strip];
        row.clear();
        row.set(StripField::ScriptPage, CopyChars(line, 10, comma - 10));
        row.set(StripField::SceneNumber, CopyChars(line, comma + 9, 4));
        row.set(StripField::StripKind, StripKinds::Scene);
        row.set(StripField::StripId, QString::number(strip));

        ++k;
        readHeading(row, lineAt(k));

        while (k + 1 < count && !IsBlankLine(lines.at(k + 1))) {
            ++k;
            if (!readCharacter(strip, lines.at(k)))
                return false;
        }
    }
    return true;
}

void FinalDraftReader::readHeading(StripRecord &row, const QString &heading)
{
    QString intExt;
    const QString first = heading.left(3);
    if (first == QLatin1String("EXT"))
        intExt = QStringLiteral("E");
    else if (first == QLatin1String("INT"))
        intExt = QStringLiteral("I");
    const QString three = CopyChars(heading, m_position, 3);
    const QString seven = CopyChars(heading, m_position, 7);
    if (three == QLatin1String("I/E") || three == QLatin1String("E/I") || seven == QLatin1String("INT/EXT") ||
        seven == QLatin1String("EXT/INT"))
        intExt = QStringLiteral("I/E");
    row.set(StripField::IntExt, intExt);

    if (intExt.isEmpty()) {
        row.set(StripField::DayNight, QStringLiteral("D"));
        return;
    }

    // Time of day: later tests override earlier ones.
    static const QLatin1StringView dayWords[] = {QLatin1StringView(" DAY"),     QLatin1StringView(" MORNING"),
                                                 QLatin1StringView(" NOON"),    QLatin1StringView(" AFTERNOON"),
                                                 QLatin1StringView(" SUNRISE"), QLatin1StringView(" MIDDAY")};
    static const QLatin1StringView nightWords[] = {QLatin1StringView(" NIGHT"), QLatin1StringView(" EVENING"),
                                                   QLatin1StringView(" MIDNIGHT"), QLatin1StringView(" SUNSET"),
                                                   QLatin1StringView(" DARK")};
    QString dayNight;
    for (const QLatin1StringView word : dayWords) {
        if (heading.contains(word))
            dayNight = QStringLiteral("D");
    }
    for (const QLatin1StringView word : nightWords) {
        if (heading.contains(word))
            dayNight = QStringLiteral("N");
    }
    if (heading.contains(QLatin1StringView(" DUSK")))
        dayNight = QStringLiteral("DSK");
    if (heading.contains(QLatin1StringView(" DAWN")))
        dayNight = QStringLiteral("DWN");
    row.set(StripField::DayNight, dayNight);

    // Location: the heading in capitals from the character after its first blank,
    // while the characters are capital letters or blanks.
    const QString upper = heading.toUpper();
    const qsizetype start = upper.indexOf(u' ') + 2; // 1-based; 1 when there is no blank
    auto isLocationChar = [](QChar c) { return (c >= u'A' && c <= u'Z') || c == u' '; };
    qsizetype taken = 0;
    while (start + taken < upper.size()) {
        if (!isLocationChar(upper.at(start + taken - 1)))
            break;
        ++taken;
    }
    m_position = taken;
    // The earlier edition's scan took a character only while another followed it, so
    // a location that ran to the end of the heading lost its last letter ("EXT. BARN"
    // gave BAR). This program keeps the whole word: the last character is taken too
    // when the scan reached it. The carried-over position above stays as it was.
    qsizetype length = taken;
    if (start >= 1 && start + taken == upper.size() && isLocationChar(upper.back()))
        ++length;
    const QString location = TrimImportLine(CopyChars(upper, start, length));
    row.set(StripField::Location, location);
    // The scene editor's list: not when the location is part of one already listed.
    if (!m_doc.locationPickList.join(QStringLiteral("\r\n")).contains(location))
        m_doc.locationPickList.append(location);
}

bool FinalDraftReader::readCharacter(int strip, const QString &line)
{
    const qsizetype paren = line.indexOf(u'(');
    const QString name = TrimImportLine(paren >= 0 ? line.left(paren) : line);
    const QString upperName = name.toUpper();

    // A name is new when no cast element has it yet, compared in capitals. The earlier
    // edition compared the name with the first character of one field of element row
    // 1 per existing element, so nearly every name counted as new and, from five
    // elements on, the import stopped with the read error: no script with five or more
    // characters could be imported. This program compares with the cast elements'
    // names instead.
    bool isNew = true;
    for (int j = 1; j <= m_doc.elements.count(); ++j) {
        const ElementRecord &element = m_doc.elements[j];
        if (element[ElementField::CategoryNumber] == QLatin1String("1") &&
            element[ElementField::Description].toUpper() == upperName) {
            isNew = false;
            break;
        }
    }
    if (isNew) {
        ElementRecord element;
        element.set(ElementField::Description, name);
        element.set(ElementField::CategoryNumber, QStringLiteral("1"));
        element.set(ElementField::PrintOnBoard, QStringLiteral("1"));
        element.set(ElementField::BoardId, QString::number(m_doc.elements.count() + 1));
        if (!m_doc.elements.append(element))
            return false;
    }
    for (int j = 1; j <= m_doc.elements.count(); ++j) {
        if (m_doc.elements[j][ElementField::Description].toUpper() == upperName)
            AddAssignment(m_doc, strip, j);
    }
    m_position = m_doc.elements.count() + 1;
    return true;
}

bool FinalDraftReader::readSceneReport(const QStringList &lines)
{
    int strip = 0;
    for (const QString &line : lines) {
        if (IsBlankLine(line))
            continue;
        ++strip;
        if (strip > MaxStrips)
            break; // scenes left out of the script report

        QString rest = line;
        for (int field = 0; field < 3; ++field)
            rest.remove(0, rest.indexOf(u'\t') + 1);
        qsizetype marker = rest.indexOf(QLatin1String("Pg"));
        if (marker < 0)
            marker = rest.indexOf(QLatin1String("Pgs"));
        if (marker < 0)
            marker = rest.indexOf(QLatin1String("..."));
        if (marker < 0) {
            m_doc.prompter().error(QString::fromLatin1(FinalDraftNoLengthText));
            break;
        }

        // "1 3/8" is one page and three eighths. Without a blank only the first
        // character is read, as eighths: "2 Pgs" gives 2/8. Final Draft writes
        // fractions such as "3/8 Pg" that way, and whole pages were always misread;
        // kept so that imports come out as they always have.
        const QString length = TrimImportLine(rest.left(marker));
        const qsizetype blank = length.indexOf(u' ');
        bool ok = false;
        double pages = 0.0;
        if (blank < 0) {
            const int eighths = legacy::StrToInt(length.left(1), &ok);
            pages = eighths / 8.0;
        } else {
            bool wholeOk = false;
            const int whole = legacy::StrToInt(length.left(blank), &wholeOk);
            const int eighths = legacy::StrToInt(length.mid(blank + 1, 1), &ok);
            ok = ok && wholeOk;
            pages = whole + eighths / 8.0;
        }
        QString text = QStringLiteral("0.125");
        if (ok)
            text = legacy::FloatToText(pages);
        else
            m_doc.prompter().error(QString::fromLatin1(FinalDraftLengthErrorText));
        m_doc.strips[strip].set(StripField::PageLength, text);
    }
    return true;
}

} // namespace

Result ImportFinalDraft(ScheduleDocument &doc, const QString &sceneReportPath, const QString &scriptReportPath)
{
    auto readError = [&doc] {
        doc.prompter().error(QString::fromLatin1(FinalDraftReadErrorText));
        return Result::failure(QString::fromLatin1(FinalDraftReadErrorText));
    };

    FinalDraftReader reader(doc);
    const ResultOf<QStringList> script = ReadImportText(scriptReportPath);
    if (!script || !reader.readScriptReport(*script))
        return readError();
    const ResultOf<QStringList> scenes = ReadImportText(sceneReportPath);
    if (!scenes || !reader.readSceneReport(*scenes))
        return readError();

    if (reader.scenesLeftOut() > 0)
        doc.prompter().warning(QStringLiteral("The schedule can hold at most %1 strips: the first %1 scenes were "
                                              "imported and the last %2 scenes were left out.")
                                   .arg(MaxStrips)
                                   .arg(reader.scenesLeftOut()));
    // An import takes no undo snapshot.
    DocumentEdit edit(doc);
    edit.scrollToStrip(1);
    // The first strip is selected; the commands and the pages panel follow it.
    if (doc.strips.count() >= 1) {
        doc.SelStart = 1;
        doc.SelEnd = 1;
    }
    return Result::success();
}

} // namespace tb
