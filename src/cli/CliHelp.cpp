// The command-line tool's help, manual page and bash completion, all made from the
// command list: each command's usage line names its options and what they take.

#include "CliCommand.h"

#include <QRegularExpression>

namespace tb::cli {

namespace {

// What a value or a positional argument of a usage line takes, for completion.
struct ArgumentKind
{
    QStringList words;      // fixed choices
    QStringList extensions; // file name extensions; empty with files = any file
    bool files = false;
};

ArgumentKind kindOf(const QString &placeholder)
{
    ArgumentKind kind;
    static const QRegularExpression fileForms(QStringLiteral("^[A-Z_]+\\.[a-z]+(\\|[A-Z_]+\\.[a-z]+)*$"));
    static const QRegularExpression choices(QStringLiteral("^[A-Za-z0-9/]+(\\|[A-Za-z0-9/]+)+$"));
    if (fileForms.match(placeholder).hasMatch()) {
        kind.files = true;
        for (const QString &form : placeholder.split(u'|'))
            kind.extensions.append(form.section(u'.', 1));
    } else if (choices.match(placeholder).hasMatch()) {
        kind.words = placeholder.split(u'|');
    } else if (placeholder == QLatin1String("IN") || placeholder == QLatin1String("OUT")) {
        kind.files = true;
        kind.extensions = {QStringLiteral("tbf")};
    } else if (placeholder == QLatin1String("SCRIPT") || placeholder.endsWith(QLatin1String("_REPORT"))) {
        kind.files = true;
        kind.extensions = {QStringLiteral("txt")};
    } else if (placeholder == QLatin1String("PICTURE")) {
        kind.files = true;
        kind.extensions = {QStringLiteral("png"), QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("bmp"),
                           QStringLiteral("gif")};
    } else if (placeholder == QLatin1String("FILE")) {
        kind.files = true;
    }
    return kind;
}

// A usage line taken apart: the options with the placeholder of their value (empty
// for a flag), and the positional placeholders in order.
struct Usage
{
    QList<std::pair<QString, QString>> options;
    QStringList positionals;
};

Usage parseUsage(const QString &usage)
{
    QString text = usage;
    for (QChar bracket : {u'[', u']', u'(', u')'})
        text.replace(bracket, u' ');
    const QStringList tokens = text.split(u' ', Qt::SkipEmptyParts).mid(1); // the command name goes
    Usage parsed;
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        const QString &token = tokens.at(i);
        if (token == QLatin1String("|") || token == QLatin1String("--") || token.startsWith(u',') ||
            token.startsWith(u'=') || token.endsWith(QLatin1String("...")))
            continue;
        if (token.startsWith(u'-')) {
            QString value;
            if (i + 1 < tokens.size() && !tokens.at(i + 1).startsWith(u'-') && tokens.at(i + 1) != QLatin1String("|"))
                value = tokens.at(++i);
            bool known = false;
            for (const auto &option : std::as_const(parsed.options))
                known = known || option.first == token;
            if (!known)
                parsed.options.append({token, value});
            continue;
        }
        parsed.positionals.append(token);
    }
    return parsed;
}

// The shell words that complete one kind of argument.
QString completionOf(const ArgumentKind &kind)
{
    if (!kind.words.isEmpty())
        return QStringLiteral("_tbcli_words '") + kind.words.join(u' ') + u'\'';
    if (kind.files)
        return QStringLiteral("_tbcli_files ") + kind.extensions.join(u' ');
    return QStringLiteral("return 0");
}

} // namespace

HelpPage CliHelpPage(const CommandList &commands)
{
    HelpPage page;
    page.name = QStringLiteral("torvanbridge-cli");
    page.purpose = QStringLiteral("read, change and print Torvanbridge schedules without a window");
    page.synopsis = QStringLiteral("torvanbridge-cli [--locale NAME] COMMAND [ARGS...]");
    page.description = QStringLiteral(
        "Reads and writes Torvanbridge schedules (.tbf) without a window or a display. Questions a command would "
        "ask are answered Yes; messages go to stderr. A command that writes a schedule reads IN and writes OUT, "
        "which may be the same file.");
    page.sections.append({QStringLiteral("Global options"),
                          {},
                          {{QStringLiteral("--locale NAME"),
                            QStringLiteral("Dates and names in this locale (default: the environment's).")},
                           {QStringLiteral("--help"), QStringLiteral("Print this text.")},
                           {QStringLiteral("--version"), QStringLiteral("Print the program version.")}}});
    HelpSection list{QStringLiteral("Commands"), {}, {}};
    for (const CliCommand &command : commands)
        list.items.append(
            {command.usage, command.details.isEmpty() ? command.summary : command.summary + u'\n' + command.details});
    page.sections.append(list);
    page.sections.append(
        {QStringLiteral("Exit status"),
         QStringLiteral("0 success, 1 an error the program reported (nothing is written), 2 a usage error. The two "
                        "import commands are the exception: an import that fails part-way still writes what it had "
                        "read before the failure, as the desktop program keeps it, and exits with 1."),
         {}});
    page.sections.append({QStringLiteral("See also"), QStringLiteral("torvanbridge(1)"), {}});
    return page;
}

QString BashCompletion(const CommandList &commands)
{
    QStringList names;
    for (const CliCommand &command : commands)
        names.append(command.name);

    QString out;
    out += QStringLiteral(
        "# bash completion for torvanbridge-cli; made by torvanbridge-cli --help-completion\n\n"
        "_tbcli_words()\n{\n    COMPREPLY=($(compgen -W \"$1\" -- \"$cur\"))\n}\n\n"
        "_tbcli_files()\n{\n    local ext\n    compopt -o filenames 2>/dev/null\n"
        "    if [ $# -eq 0 ]; then\n        COMPREPLY=($(compgen -f -- \"$cur\"))\n        return\n    fi\n"
        "    COMPREPLY=($(compgen -d -- \"$cur\"))\n"
        "    for ext in \"$@\"; do\n"
        "        COMPREPLY+=($(compgen -f -X \"!*.$ext\" -- \"$cur\") $(compgen -f -X \"!*.${ext^^}\" -- \"$cur\"))\n"
        "    done\n}\n\n"
        "_torvanbridge_cli()\n{\n"
        "    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]}\n"
        "    local i command= first=0 positional=0\n"
        "    COMPREPLY=()\n"
        "    for ((i = 1; i < COMP_CWORD; i++)); do\n"
        "        case ${COMP_WORDS[i]} in\n"
        "        --locale) ((i++)) ;;\n"
        "        -*) ;;\n"
        "        *) command=${COMP_WORDS[i]}; first=$i; break ;;\n"
        "        esac\n"
        "    done\n"
        "    if [ -z \"$command\" ]; then\n"
        "        if [ \"$prev\" = --locale ]; then\n"
        "            _tbcli_words \"$(locale -a 2>/dev/null)\"\n"
        "        else\n"
        "            _tbcli_words '");
    out += names.join(u' ');
    out += QStringLiteral(" --locale --help --version'\n        fi\n        return 0\n    fi\n"
                          "    # The positional argument being typed: words after the command that are\n"
                          "    # neither options nor their values.\n"
                          "    for ((i = first + 1; i < COMP_CWORD; i++)); do\n"
                          "        case ${COMP_WORDS[i]} in\n"
                          "        --) break ;;\n"
                          "        -*) _tbcli_takes_value \"$command\" \"${COMP_WORDS[i]}\" && ((i++)) ;;\n"
                          "        *) ((positional++)) ;;\n"
                          "        esac\n"
                          "    done\n"
                          "    case $command in\n");
    QString takesValue;
    for (const CliCommand &command : commands) {
        const Usage usage = parseUsage(command.usage);
        QStringList optionNames;
        QStringList valued;
        QString valueCases;
        for (const auto &[option, value] : usage.options) {
            optionNames.append(option);
            if (value.isEmpty())
                continue;
            valued.append(option);
            const QString completion = completionOf(kindOf(value));
            valueCases += QStringLiteral("        ") + option + QStringLiteral(") ") + completion +
                          (completion.startsWith(QLatin1String("return")) ? QString() : QStringLiteral("; return 0")) +
                          QStringLiteral(" ;;\n");
        }
        out += QStringLiteral("    ") + command.name + QStringLiteral(")\n");
        if (!valueCases.isEmpty())
            out += QStringLiteral("        case $prev in\n") + valueCases + QStringLiteral("        esac\n");
        out += QStringLiteral("        if [[ $cur == -* ]]; then _tbcli_words '") + optionNames.join(u' ') +
               QStringLiteral("'; return 0; fi\n");
        out += QStringLiteral("        case $positional in\n");
        for (qsizetype p = 0; p < usage.positionals.size(); ++p)
            out += QStringLiteral("        ") + QString::number(p) + QStringLiteral(") ") +
                   completionOf(kindOf(usage.positionals.at(p))) + QStringLiteral(" ;;\n");
        out += QStringLiteral("        esac\n        ;;\n");
        if (!valued.isEmpty())
            takesValue += QStringLiteral("    ") + command.name + QStringLiteral(") case $2 in ") + valued.join(u'|') +
                          QStringLiteral(") return 0 ;; esac ;;\n");
    }
    out += QStringLiteral("    esac\n    return 0\n}\n\n");
    out +=
        QStringLiteral("# Whether an option of a command takes a value.\n_tbcli_takes_value()\n{\n    case $1 in\n") +
        takesValue + QStringLiteral("    esac\n    return 1\n}\n\n") +
        QStringLiteral("complete -F _torvanbridge_cli torvanbridge-cli\n");
    return out;
}

} // namespace tb::cli
