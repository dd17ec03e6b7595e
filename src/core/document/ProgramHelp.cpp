#include "document/ProgramHelp.h"

#include <QDate>
#include <QDateTime>
#include <QTimeZone>

namespace tb {

namespace {

constexpr int HelpWidth = 79;
constexpr int TextIndent = 6;

// The words of one line of text laid out in lines of at most the width (a longer word
// stands alone), each line after the indent.
QString wrapped(const QString &text, int indent)
{
    QString out;
    const QString margin(indent, u' ');
    for (const QString &line : text.split(u'\n')) {
        QString current;
        for (const QString &word : line.split(u' ', Qt::SkipEmptyParts)) {
            if (!current.isEmpty() && indent + current.size() + 1 + word.size() > HelpWidth) {
                out += margin + current + u'\n';
                current.clear();
            }
            current += (current.isEmpty() ? QString() : QStringLiteral(" ")) + word;
        }
        out += margin + current + u'\n';
    }
    return out;
}

// A usage line laid out like text, but never broken inside brackets or parentheses;
// lines after the first are indented two more.
QString wrappedTerm(const QString &term)
{
    QStringList groups;
    int depth = 0;
    for (const QString &word : term.split(u' ', Qt::SkipEmptyParts)) {
        // An option stays with its value: "--max N", "--mode keep|split".
        const bool value = !groups.isEmpty() && groups.last().startsWith(u'-') && !groups.last().contains(u' ') &&
                           !word.startsWith(u'-') && !word.startsWith(u'[') && !word.startsWith(u'(');
        if ((depth > 0 || value) && !groups.isEmpty())
            groups.last() += u' ' + word;
        else
            groups.append(word);
        for (QChar c : word) {
            if (c == u'[' || c == u'(')
                ++depth;
            else if (c == u']' || c == u')')
                depth = std::max(0, depth - 1);
        }
    }
    QString out = QStringLiteral("  ");
    int column = 2;
    bool first = true;
    for (const QString &group : groups) {
        if (!first && column + 1 + group.size() > HelpWidth) {
            out += QStringLiteral("\n    ");
            column = 4;
        } else if (!first) {
            out += u' ';
            ++column;
        }
        out += group;
        column += int(group.size());
        first = false;
    }
    return out + u'\n';
}

// Text for a man page line: backslashes doubled, hyphens in options as minus signs,
// and a line that starts with a dot or a quote kept from being read as a request.
QString roff(const QString &text)
{
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'\\')
            out += QStringLiteral("\\e");
        else if (c == u'-')
            out += QStringLiteral("\\-");
        else
            out += c;
    }
    QStringList lines = out.split(u'\n');
    for (QString &line : lines) {
        if (line.startsWith(u'.') || line.startsWith(u'\''))
            line.prepend(QStringLiteral("\\&"));
    }
    return lines.join(QStringLiteral("\n.br\n"));
}

} // namespace

QString FormatHelpText(const HelpPage &page)
{
    QString out = QStringLiteral("Usage: ") + page.synopsis + QStringLiteral("\n\n");
    if (!page.description.isEmpty())
        out += wrapped(page.description, 0);
    for (const HelpSection &section : page.sections) {
        out += u'\n' + section.title + QStringLiteral(":\n");
        if (!section.text.isEmpty())
            out += wrapped(section.text, 2);
        for (const HelpItem &item : section.items) {
            out += wrappedTerm(item.term);
            if (!item.text.isEmpty())
                out += wrapped(item.text, TextIndent);
        }
    }
    return out;
}

QString FormatManPage(const HelpPage &page, const QString &version)
{
    // The date is the build's, or the one fixed by SOURCE_DATE_EPOCH for repeatable builds.
    QDate date = QDate::currentDate();
    bool ok = false;
    const qint64 epoch = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&ok);
    if (ok)
        date = QDateTime::fromSecsSinceEpoch(epoch, QTimeZone::utc()).date();

    QString out;
    out += QStringLiteral(".TH ") + page.name.toUpper() + QStringLiteral(" 1 \"") + date.toString(Qt::ISODate) +
           QStringLiteral("\" \"Torvanbridge ") + version + QStringLiteral("\" \"User Commands\"\n");
    out += QStringLiteral(".SH NAME\n") + roff(page.name) + QStringLiteral(" \\- ") + roff(page.purpose) + u'\n';
    out += QStringLiteral(".SH SYNOPSIS\n\\fB") + roff(page.synopsis) + QStringLiteral("\\fR\n");
    if (!page.description.isEmpty())
        out += QStringLiteral(".SH DESCRIPTION\n") + roff(page.description) + u'\n';
    for (const HelpSection &section : page.sections) {
        out += QStringLiteral(".SH ") + section.title.toUpper() + u'\n';
        if (!section.text.isEmpty())
            out += roff(section.text) + u'\n';
        for (const HelpItem &item : section.items) {
            out += QStringLiteral(".TP\n\\fB") + roff(item.term) + QStringLiteral("\\fR\n");
            out += (item.text.isEmpty() ? QStringLiteral("\\&") : roff(item.text)) + u'\n';
        }
    }
    return out;
}

HelpPage DesktopProgramHelp()
{
    HelpPage page;
    page.name = QStringLiteral("torvanbridge");
    page.purpose = QStringLiteral("schedule the shooting of a film on a production board");
    page.synopsis = QStringLiteral("torvanbridge [FILE]");
    page.description =
        QStringLiteral("Torvanbridge schedules the shooting of a film or television production. Scenes are "
                       "coloured strips on a production board, cut into shooting days by day dividers; the program "
                       "numbers and dates the days, totals the pages and prints breakdown sheets, call sheets, the "
                       "shooting schedule, the day out of days and the element summary. Schedules are .tbf files. "
                       "The Help menu opens the full manual.");
    page.sections.append({QStringLiteral("Options"),
                          {},
                          {{QStringLiteral("FILE"), QStringLiteral("A schedule (.tbf) to open at start-up.")},
                           {QStringLiteral("--help"), QStringLiteral("Print this text and quit.")},
                           {QStringLiteral("--version"), QStringLiteral("Print the version and quit.")}}});
    page.sections.append(
        {QStringLiteral("Files"),
         {},
         {{QStringLiteral("~/.config/Torvanbridge.ini"),
           QStringLiteral("The preferences: strip colours and fonts, autosave interval, remembered answers.")},
          {QStringLiteral("~/.config/Brenholt/Torvanbridge.conf"),
           QStringLiteral("The recent files of the File menu.")},
          {QStringLiteral("autosave.tbf"),
           QStringLiteral("The autosave, in the program's folder when that is writable, otherwise in "
                          "~/.local/share/Brenholt/Torvanbridge.")},
          {QStringLiteral("/usr/share/torvanbridge/templates"),
           QStringLiteral("The report templates. They are looked for in the program's folder first, then in "
                          "share/torvanbridge/templates beside the program's bin folder, then in the folder of the "
                          "installation the program was built for.")},
          {QStringLiteral("/usr/share/torvanbridge/examples/harbour-lights.tbf"),
           QStringLiteral("An example schedule: torvanbridge /usr/share/torvanbridge/examples/harbour-lights.tbf")}}});
    page.sections.append({QStringLiteral("See also"), QStringLiteral("torvanbridge-cli(1)"), {}});
    return page;
}

} // namespace tb
