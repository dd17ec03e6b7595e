#include "import/ScreenplayText.h"

#include "import/ImportText.h"
#include "import/ImportedStrips.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

#include <QRegularExpression>
#include <QSet>

#include <cmath>

namespace tb {

namespace {

// Parts of a heading are separated by a dash between blanks ("KITCHEN - NIGHT") or two
// dashes ("PARK--DAY").
const QRegularExpression &PartSeparator()
{
    static const QRegularExpression re(QStringLiteral("\\s+[-\u2013\u2014]+\\s+|\\s*--+\\s*"));
    return re;
}

// The leading interior/exterior of a heading, with what follows it up to the location.
const QRegularExpression &IntExtPrefix()
{
    static const QRegularExpression re(QStringLiteral(
        "^(INT\\.?\\s*/\\s*EXT|EXT\\.?\\s*/\\s*INT|I\\s*/\\s*E|E\\s*/\\s*I|INTERIOR|EXTERIOR|INT|EXT|EST)"
        "(\\.|\\s|$)[\\s.]*"));
    return re;
}

bool HasWord(const QString &text, const QStringList &words)
{
    for (const QString &word : words) {
        const QString upper = word.toUpper();
        qsizetype at = text.indexOf(upper);
        while (at >= 0) {
            const qsizetype end = at + upper.size();
            const bool startsWord = at == 0 || !text.at(at - 1).isLetter();
            const bool endsWord = end >= text.size() || !text.at(end).isLetter();
            if (startsWord && endsWord)
                return true;
            at = text.indexOf(upper, at + 1);
        }
    }
    return false;
}

// The time of day a part of a heading names, or "" when it names none.
QString TimeOfDay(const QString &part, const ScriptImportSettings &words)
{
    // As in the text import, a day word wins over a night word ("LATE AFTERNOON").
    if (HasWord(part, words.dayWords))
        return QStringLiteral("D");
    if (HasWord(part, words.nightWords))
        return QStringLiteral("N");
    return QString();
}

bool IsContinuity(const QString &part)
{
    static const QStringList notes = {QStringLiteral("CONTINUOUS"),    QStringLiteral("CONT"),
                                      QStringLiteral("CONT'D"),        QStringLiteral("LATER"),
                                      QStringLiteral("MOMENTS LATER"), QStringLiteral("SAME"),
                                      QStringLiteral("SAME TIME"),     QStringLiteral("MOMENTS BEFORE")};
    QString bare = part;
    bare.remove(u'(').remove(u')');
    return notes.contains(bare.trimmed());
}

QString TrimLocation(QString text)
{
    static const QString edge = QStringLiteral(" -.,:;\u2013\u2014");
    while (!text.isEmpty() && edge.contains(text.back()))
        text.chop(1);
    while (!text.isEmpty() && edge.contains(text.front()))
        text.remove(0, 1);
    return text;
}

// Whole eighths nearest to a position in pages.
double Eighths(double pages)
{
    return std::round(pages * 8.0) / 8.0;
}

// "1 3/8", "4/8", "2": pages; -1 when the text is none of these.
double ReadLength(const QString &text)
{
    static const QRegularExpression re(QStringLiteral("^\\s*(\\d+)?\\s*(?:(\\d+)\\s*/\\s*8)?\\s*$"));
    const QRegularExpressionMatch m = re.match(text);
    if (!m.hasMatch() || (m.captured(1).isEmpty() && m.captured(2).isEmpty()))
        return -1.0;
    return m.captured(1).toInt() + m.captured(2).toInt() / 8.0;
}

} // namespace

void ReadSceneHeading(const QString &heading, const ScriptImportSettings &words, QString *intExt, QString *dayNight,
                      QString *location)
{
    QString text = heading.simplified().toUpper();
    *intExt = QStringLiteral("?");
    const QRegularExpressionMatch prefix = IntExtPrefix().match(text);
    if (prefix.hasMatch()) {
        const QString marker = prefix.captured(1);
        if (marker.contains(u'/'))
            *intExt = QStringLiteral("I/E");
        else if (marker.startsWith(u'I'))
            *intExt = QStringLiteral("I");
        else
            *intExt = QStringLiteral("E");
        text = text.mid(prefix.capturedLength());
    }

    *dayNight = QStringLiteral("?");
    QStringList parts = text.split(PartSeparator(), Qt::SkipEmptyParts);
    // The time of day is the last part, or the last part but a continuity note
    // ("NIGHT - CONTINUOUS"); without separators, the last word ("KITCHEN NIGHT").
    while (parts.size() > 1) {
        const QString last = parts.last().trimmed();
        const QString time = TimeOfDay(last, words);
        if (!time.isEmpty()) {
            if (*dayNight == u'?')
                *dayNight = time;
            parts.removeLast();
            break;
        }
        if (!IsContinuity(last))
            break;
        parts.removeLast();
    }
    if (parts.size() == 1 && *dayNight == u'?') {
        const qsizetype blank = parts.first().lastIndexOf(u' ');
        if (blank > 0) {
            const QString time = TimeOfDay(parts.first().mid(blank + 1), words);
            if (!time.isEmpty()) {
                *dayNight = time;
                parts.first().truncate(blank);
            }
        }
    }
    QStringList kept;
    for (const QString &part : parts) {
        const QString trimmed = TrimLocation(part.trimmed());
        if (!trimmed.isEmpty())
            kept.append(trimmed);
    }
    *location = kept.join(QStringLiteral(" - "));
}

QString CueName(const QString &cue)
{
    QString name = cue.trimmed();
    if (name.startsWith(u'@'))
        name.remove(0, 1);
    if (name.endsWith(u'^'))
        name.chop(1);
    static const QRegularExpression extension(QStringLiteral("\\([^)]*\\)?"));
    name.remove(extension);
    // "MIKE CONT'D" written without the parentheses.
    static const QRegularExpression contd(QStringLiteral("\\s+CONT['\u2019]?D\\.?$|\\s+CONT\\.$"),
                                          QRegularExpression::CaseInsensitiveOption);
    name.remove(contd);
    return name.simplified();
}

QString SynopsisFrom(const QString &action)
{
    constexpr int Longest = 60;
    QString line = action.section(u'\n', 0, 0);
    static const QRegularExpression markup(QStringLiteral("\\*+|(?<!\\w)_|_(?!\\w)|\\\\"));
    line.remove(markup);
    line = line.simplified();
    if (line.size() <= Longest)
        return line;
    static const QRegularExpression sentenceEnd(QStringLiteral("[.!?](?=\\s)"));
    const QRegularExpressionMatch end = sentenceEnd.match(line);
    if (end.hasMatch() && end.capturedStart() >= 10 && end.capturedStart() < Longest)
        return line.left(end.capturedStart() + 1);
    qsizetype cut = line.lastIndexOf(u' ', Longest);
    if (cut < 20)
        cut = Longest;
    return line.left(cut) + QStringLiteral("...");
}

Result BuildScheduleFromScreenplay(ScheduleDocument &doc, const ScreenplayText &script,
                                   const ScriptImportSettings &words)
{
    const QList<ScreenplayParagraph> &paragraphs = script.paragraphs;
    const QList<double> at = PaginateScreenplay(paragraphs);

    ImportedStrips::begin(doc);
    doc.status().setBusy(true);
    if (!script.title.isEmpty())
        doc.values.PictureTitle = script.title;

    ImportedStrips strips(doc);
    bool ok = true;
    // Where each scene starts and, for files that give it, its own length.
    QList<double> starts;
    QList<double> givenLengths;
    bool synopsisOpen = false;
    QSet<int> assigned;
    const qsizetype count = paragraphs.size();
    int percent = -1;

    for (qsizetype k = 0; k < count && ok; ++k) {
        const ScreenplayParagraph &p = paragraphs.at(k);
        if (p.kind == ScreenplayElement::Heading) {
            ImportedScene scene;
            ReadSceneHeading(p.text, words, &scene.intExt, &scene.dayNight, &scene.location);
            scene.sceneNumber = p.sceneNumber.isEmpty() ? QString::number(strips.lastScene() + 1) : p.sceneNumber;
            scene.scriptPage = p.page.isEmpty() ? QString::number(int(std::floor(at.at(k))) + 1) : p.page;
            scene.headingLine = p.line;
            ok = strips.addScene(scene);
            starts.append(at.at(k));
            givenLengths.append(p.length.isEmpty() ? -1.0 : ReadLength(p.length));
            synopsisOpen = strips.scenesLeftOut() == 0;
            assigned.clear();
        } else if (p.kind == ScreenplayElement::Action && synopsisOpen) {
            const QString synopsis = SynopsisFrom(p.text);
            if (!synopsis.isEmpty()) {
                doc.strips[strips.lastScene()].set(StripField::Synopsis, synopsis);
                synopsisOpen = false;
            }
        } else if (p.kind == ScreenplayElement::Character) {
            synopsisOpen = false;
            const QString name = CueName(p.text);
            if (name.isEmpty())
                continue;
            const int element = strips.castElement(name);
            if (element < 0)
                continue; // left out: the tables are full
            ok = element > 0;
            // One assignment per character and scene; a cue before the first heading
            // makes the element and assigns it nowhere.
            if (ok && strips.lastScene() > 0 && !assigned.contains(element)) {
                assigned.insert(element);
                AddAssignment(doc, strips.lastScene(), element);
            }
        }
        const int now = int((k + 1) * 100 / count);
        if (now != percent) {
            percent = now;
            doc.status().setProgress(percent);
            doc.status().keepAlive();
        }
    }

    if (ok) {
        // Lengths from the page positions: each scene ends where the next begins,
        // rounded to the nearest eighth, so that the scenes add up to the script. A
        // scene is never shorter than an eighth; a run of very short scenes pushes the
        // next boundaries on until a longer scene takes the difference back.
        const double end = at.isEmpty() ? 0.0 : at.last();
        double boundary = starts.isEmpty() ? 0.0 : Eighths(starts.first());
        for (int s = 0; s < starts.size(); ++s) {
            const double next = qMax(Eighths(s + 1 < starts.size() ? starts.at(s + 1) : end), boundary + 0.125);
            double pages = givenLengths.at(s);
            if (pages < 0.0)
                pages = next - boundary;
            boundary = next;
            strips.setLength(s + 1, qMax(pages, 0.125));
        }
        strips.finish();
    }
    doc.status().setBusy(false);
    if (!ok)
        doc.prompter().error(QString::fromLatin1(ScriptImportErrorText));
    EndScriptImport(doc, ok);
    return ok ? Result::success() : Result::failure(QString::fromLatin1(ScriptImportErrorText));
}

} // namespace tb
