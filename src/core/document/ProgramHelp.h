#pragma once

// The help of the two programs, written once and given three ways: the --help text,
// the manual page and (for the command-line tool) the README's command list, which
// is the --help text itself. A change to a command changes all of them.

#include <QList>
#include <QString>
#include <QStringList>

namespace tb {

struct HelpItem
{
    QString term; // "--locale NAME", "info FILE [--details]"
    QString text; // sentences; "\n" starts a new line
};

struct HelpSection
{
    QString title; // "Commands"
    QString text;  // an opening paragraph, may be empty
    QList<HelpItem> items;
};

struct HelpPage
{
    QString name;     // "torvanbridge-cli"
    QString purpose;  // the manual's one-line description
    QString synopsis; // "torvanbridge-cli [--locale NAME] COMMAND [ARGS...]"
    QString description;
    QList<HelpSection> sections;
};

// The --help text: "Usage: " and the synopsis, the description, then each section
// with its items, the text of each item wrapped under its term.
QString FormatHelpText(const HelpPage &page);

// The page as a manual page in man(7) form, section 1.
QString FormatManPage(const HelpPage &page, const QString &version);

// The desktop program's help: how to start it, its options and the files it uses.
HelpPage DesktopProgramHelp();

} // namespace tb
