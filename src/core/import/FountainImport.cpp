#include "import/FountainImport.h"

#include "import/ImportText.h"

#include <QRegularExpression>

namespace tb {

namespace {

// Notes and the boneyard may run over several lines. They are cut out, line breaks
// kept; a line that held nothing but them is left out altogether rather than read as
// a blank line, so that a note between a cue and its speech does not end the speech.
struct CleanLine
{
    QString text;
    bool dropped = false;
};

QList<CleanLine> WithoutNotes(const QStringList &lines)
{
    QList<CleanLine> out;
    out.reserve(lines.size());
    bool inBoneyard = false;
    bool inNote = false;
    for (const QString &line : lines) {
        // A note does not run over an empty line: one left open ends there, so that a
        // stray "[[" cannot swallow the rest of the script.
        if (inNote && line.isEmpty())
            inNote = false;
        if (!inBoneyard && !inNote && !line.contains(u'/') && !line.contains(u'[')) {
            out.append({line, false});
            continue;
        }
        QString kept;
        bool removed = inBoneyard || inNote;
        const qsizetype n = line.size();
        for (qsizetype i = 0; i < n; ++i) {
            const QChar c = line.at(i);
            const QChar next = i + 1 < n ? line.at(i + 1) : QChar();
            if (inBoneyard) {
                if (c == u'*' && next == u'/') {
                    inBoneyard = false;
                    ++i;
                }
            } else if (inNote) {
                if (c == u']' && next == u']') {
                    inNote = false;
                    ++i;
                }
            } else if (c == u'/' && next == u'*') {
                inBoneyard = true;
                removed = true;
                ++i;
            } else if (c == u'[' && next == u'[') {
                inNote = true;
                removed = true;
                ++i;
            } else {
                kept.append(c);
            }
        }
        out.append({kept, removed && TrimImportLine(kept).isEmpty()});
    }
    return out;
}

QString WithoutMarkup(QString text)
{
    if (!text.contains(u'*') && !text.contains(u'_') && !text.contains(u'\\'))
        return text;
    static const QRegularExpression emphasis(
        QStringLiteral("\\*{1,3}(?=\\S)|(?<=\\S)\\*{1,3}|(?<![\\w\\\\])_|_(?!\\w)"));
    text.remove(emphasis);
    text.remove(u'\\');
    return text;
}

bool HasLowerCase(const QString &text)
{
    for (const QChar c : text) {
        if (c.isLower())
            return true;
    }
    return false;
}

bool HasLetter(const QString &text)
{
    for (const QChar c : text) {
        if (c.isLetter())
            return true;
    }
    return false;
}

const QRegularExpression &HeadingStart()
{
    static const QRegularExpression re(QStringLiteral("^(INT|EXT|EST|INT\\.?/EXT|EXT\\.?/INT|I/E|E/I)[. ]"),
                                       QRegularExpression::CaseInsensitiveOption);
    return re;
}

// The title page: "Key: value" lines at the top, values possibly on indented lines
// below the key. Returns the first body line.
qsizetype ReadTitlePage(const QList<CleanLine> &lines, QString *title)
{
    static const QRegularExpression keyLine(QStringLiteral("^([A-Za-z][A-Za-z ]*):\\s*(.*)$"));
    qsizetype i = 0;
    while (i < lines.size() && (lines.at(i).dropped || TrimImportLine(lines.at(i).text).isEmpty()))
        ++i;
    if (i >= lines.size() || !keyLine.match(lines.at(i).text).hasMatch())
        return 0;
    QString key;
    QStringList titleLines;
    for (; i < lines.size(); ++i) {
        const QString &line = lines.at(i).text;
        if (lines.at(i).dropped)
            continue;
        if (TrimImportLine(line).isEmpty())
            break;
        const QRegularExpressionMatch m = keyLine.match(line);
        if (m.hasMatch() && !line.front().isSpace()) {
            key = m.captured(1).trimmed().toLower();
            if (key == QLatin1String("title") && !TrimImportLine(m.captured(2)).isEmpty())
                titleLines.append(TrimImportLine(m.captured(2)));
        } else if (key == QLatin1String("title")) {
            titleLines.append(TrimImportLine(line));
        }
    }
    *title = WithoutMarkup(titleLines.join(u' ')).simplified();
    return i;
}

class FountainReader
{
public:
    explicit FountainReader(const QStringList &source)
        : m_lines(WithoutNotes(source))
    {}

    ScreenplayText read();

private:
    bool blankAt(qsizetype i) const
    {
        return i < 0 || i >= m_lines.size() || TrimImportLine(m_lines.at(i).text).isEmpty();
    }
    // The next line that was not a note, from i on.
    qsizetype nextKept(qsizetype i) const
    {
        while (i < m_lines.size() && m_lines.at(i).dropped)
            ++i;
        return i;
    }
    void add(ScreenplayElement kind, const QString &text, qsizetype line);

    QList<CleanLine> m_lines;
    ScreenplayText m_script;
};

void FountainReader::add(ScreenplayElement kind, const QString &text, qsizetype line)
{
    ScreenplayParagraph p;
    p.kind = kind;
    p.text = WithoutMarkup(text);
    p.line = int(line);
    m_script.paragraphs.append(p);
}

ScreenplayText FountainReader::read()
{
    qsizetype i = ReadTitlePage(m_lines, &m_script.title);
    bool afterBlank = true;
    const qsizetype count = m_lines.size();
    while (i < count) {
        if (m_lines.at(i).dropped) {
            ++i;
            continue;
        }
        const QString raw = m_lines.at(i).text;
        const QString line = TrimImportLine(raw);
        if (line.isEmpty()) {
            afterBlank = true;
            ++i;
            continue;
        }
        const bool blankBefore = afterBlank;
        afterBlank = false;
        const bool blankAfter = blankAt(nextKept(i + 1));

        // Page breaks, sections and synopses.
        if (line.startsWith(QLatin1String("==="))) {
            add(ScreenplayElement::PageBreak, QString(), i);
            ++i;
            continue;
        }
        if (line.startsWith(u'#') || (line.startsWith(u'=') && !line.startsWith(QLatin1String("==")))) {
            ++i;
            continue;
        }

        // Scene headings: a known start, or a forced "." (not "..."), on a line of its own.
        const bool forcedHeading = line.size() > 1 && line.front() == u'.' && line.at(1) != u'.';
        if (blankBefore && (forcedHeading || HeadingStart().match(line).hasMatch())) {
            QString heading = forcedHeading ? line.mid(1) : line;
            ScreenplayParagraph p;
            static const QRegularExpression number(QStringLiteral("\\s*#([^#]*)#\\s*$"));
            const QRegularExpressionMatch m = number.match(heading);
            if (m.hasMatch()) {
                p.sceneNumber = m.captured(1).trimmed();
                heading.truncate(m.capturedStart());
            }
            p.kind = ScreenplayElement::Heading;
            p.text = WithoutMarkup(heading).trimmed();
            p.line = int(i);
            m_script.paragraphs.append(p);
            ++i;
            continue;
        }

        // Centered text and transitions.
        if (line.startsWith(u'>') && line.endsWith(u'<')) {
            add(ScreenplayElement::Centered, line.mid(1, line.size() - 2).trimmed(), i);
            ++i;
            continue;
        }
        if (line.startsWith(u'>') ||
            (blankBefore && blankAfter && !HasLowerCase(line) && line.endsWith(QLatin1String("TO:")))) {
            add(ScreenplayElement::Transition, line.startsWith(u'>') ? line.mid(1).trimmed() : line, i);
            ++i;
            continue;
        }

        // A character cue: a line in capitals (the extension may be in any case)
        // after a blank line, with speech on the next line; or forced with "@".
        const bool forcedCue = line.startsWith(u'@');
        bool cue = blankBefore && !blankAfter && !line.startsWith(u'!');
        if (cue && !forcedCue) {
            const QString bare = CueName(line);
            cue = HasLetter(bare) && !HasLowerCase(bare);
        }
        if (cue) {
            ScreenplayParagraph p;
            p.kind = ScreenplayElement::Character;
            p.text = forcedCue ? line.mid(1).trimmed() : line;
            p.line = int(i);
            const bool dual = line.endsWith(u'^');
            p.dualSecond = dual;
            m_script.paragraphs.append(p);
            ++i;
            // The speech: parentheticals and dialogue up to a blank line. A line of
            // two blanks keeps the speech going.
            while (i < count) {
                if (m_lines.at(i).dropped) {
                    ++i;
                    continue;
                }
                const QString speechRaw = m_lines.at(i).text;
                const QString speech = TrimImportLine(speechRaw);
                if (speech.isEmpty() && speechRaw != QLatin1String("  "))
                    break;
                const bool paren = speech.startsWith(u'(') && speech.endsWith(u')');
                ScreenplayParagraph s;
                s.kind = paren ? ScreenplayElement::Parenthetical : ScreenplayElement::Dialogue;
                s.text = WithoutMarkup(speech);
                s.line = int(i);
                s.dualSecond = dual;
                // Lines of one speech are one paragraph.
                if (!paren && !m_script.paragraphs.isEmpty() &&
                    m_script.paragraphs.last().kind == ScreenplayElement::Dialogue)
                    m_script.paragraphs.last().text += u'\n' + s.text;
                else
                    m_script.paragraphs.append(s);
                ++i;
            }
            continue;
        }

        // Action: up to the next blank line; "!" forces it. Lines keep their breaks.
        QStringList action;
        const qsizetype first = i;
        while (i < count) {
            if (m_lines.at(i).dropped) {
                ++i;
                continue;
            }
            QString text = TrimImportLine(m_lines.at(i).text);
            if (text.isEmpty())
                break;
            if (text.startsWith(u'!'))
                text.remove(0, 1);
            if (text.startsWith(u'~'))
                text.remove(0, 1); // lyrics print like action
            action.append(text);
            ++i;
        }
        add(ScreenplayElement::Action, action.join(u'\n'), first);
    }
    return m_script;
}

} // namespace

ScreenplayText ParseFountain(const QStringList &lines)
{
    return FountainReader(lines).read();
}

Result ImportFountain(ScheduleDocument &doc, const QStringList &lines, const ScriptImportSettings &words)
{
    return BuildScheduleFromScreenplay(doc, ParseFountain(lines), words);
}

} // namespace tb
