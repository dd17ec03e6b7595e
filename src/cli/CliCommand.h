#pragma once

#include "document/ProgramHelp.h"
#include "document/Prompter.h"
#include "document/Result.h"
#include "document/ScheduleDocument.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTextStream>

#include <functional>

namespace tb::cli {

enum ExitCode { ExitOk = 0, ExitUserError = 1, ExitUsageError = 2 };

// The command-line tool's prompter: messages go to stderr; every question is answered
// with a fixed answer (Yes unless a command says otherwise) and reported on stderr.
class CliPrompter : public Prompter
{
public:
    PromptReply ask(const Prompt &prompt) override;
    Answer answer = Answer::Yes;
    int errorCount = 0;
};

// Options of one subcommand: "-o FILE", "--name VALUE", "--flag", positionals, and
// everything after "--" as extra positionals.
class ArgParser
{
public:
    ArgParser &valueOption(const QString &name)
    {
        m_valueOptions.append(name);
        return *this;
    }
    // An option that may be given more than once; values() lists them in order.
    ArgParser &repeatedOption(const QString &name)
    {
        m_valueOptions.append(name);
        m_repeated.append(name);
        return *this;
    }
    ArgParser &flag(const QString &name)
    {
        m_flags.append(name);
        return *this;
    }

    // False with a message for an unknown option or a missing value.
    bool parse(const QStringList &args, QString *error);

    bool has(const QString &name) const { return m_values.contains(name) || m_setFlags.contains(name); }
    QString value(const QString &name, const QString &fallback = {}) const { return m_values.value(name, fallback); }
    QStringList values(const QString &name) const { return m_lists.value(name); }
    const QStringList &positional() const { return m_positional; }
    const QStringList &afterDashes() const { return m_afterDashes; }

private:
    QStringList m_valueOptions;
    QStringList m_flags;
    QStringList m_repeated;
    QHash<QString, QStringList> m_lists;
    QHash<QString, QString> m_values;
    QStringList m_setFlags;
    QStringList m_positional;
    QStringList m_afterDashes;
};

struct CliContext
{
    QTextStream &out;
    QTextStream &err;
    CliPrompter &prompter;
};

struct CliCommand
{
    QString name;
    QString usage;   // "resave IN -o OUT"
    QString summary; // one line for --help
    std::function<int(CliContext &, const QStringList &args)> run;
    QString details = {}; // more about the options, for --help and the manual; may be empty
};

using CommandList = QList<CliCommand>;

// Each subsystem adds its commands in one function of its own.
void AddDocumentCommands(CommandList &commands);
void AddImportCommands(CommandList &commands);
void AddSchedulingCommands(CommandList &commands);
void AddBreakdownCommands(CommandList &commands);
void AddBoardCommands(CommandList &commands);
void AddReportCommands(CommandList &commands);

// The tool's help (for --help, the manual page and the README) and its bash
// completion, made from the command list: the options a usage line names are the
// ones completed, with the files or words their placeholders stand for.
HelpPage CliHelpPage(const CommandList &commands);
QString BashCompletion(const CommandList &commands);

// Shared by commands that read a schedule, change it and write it elsewhere.
// Opens IN (exit 1 on failure, nothing written), runs the change with questions
// answered Yes, and saves to OUT.
int ApplyToSchedule(CliContext &ctx, const QString &in, const QString &out,
                    const std::function<Result(ScheduleDocument &)> &change);

// The time printouts say they were made: SOURCE_DATE_EPOCH (seconds since 1970) when
// set, so that the same command prints the same pages at any hour; else now.
QDateTime PrintingTime();

// Prints "usage: torvanbridge-cli USAGE" and the error; returns ExitUsageError.
int UsageError(CliContext &ctx, const CliCommand &command, const QString &error);

} // namespace tb::cli
