#include "CliCommand.h"

#include "document/DocumentOperations.h"
#include "document/Records.h"
#include "document/ScheduleFile.h"

#include <cstdio>

namespace tb::cli {

namespace {

QString plainText(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    return text;
}

QString answerName(Answer answer)
{
    switch (answer) {
    case Answer::Yes:
        return QStringLiteral("Yes");
    case Answer::No:
        return QStringLiteral("No");
    case Answer::Cancel:
        return QStringLiteral("Cancel");
    case Answer::Abort:
        return QStringLiteral("Abort");
    case Answer::Ok:
        break;
    }
    return QStringLiteral("OK");
}

} // namespace

PromptReply CliPrompter::ask(const Prompt &prompt)
{
    QTextStream err(stderr);
    const QString text = plainText(prompt.text);
    if (prompt.buttons == Buttons::Ok) {
        if (prompt.kind == MessageKind::Error)
            ++errorCount;
        err << text << Qt::endl;
        return {Answer::Ok, prompt.checkBoxChecked};
    }
    Answer reply = answer;
    if (prompt.buttons == Buttons::YesAbort && reply != Answer::Yes)
        reply = Answer::Abort;
    err << text << QStringLiteral(" [answered ") << answerName(reply) << ']' << Qt::endl;
    return {reply, prompt.checkBoxChecked};
}

bool ArgParser::parse(const QStringList &args, QString *error)
{
    // Every value a command stores is one line of the schedule file; a line break in
    // one is refused here rather than silently made a blank.
    for (const QString &arg : args) {
        if (HasLineBreak(arg)) {
            *error = QStringLiteral("a value cannot hold a line break (\"%1\"); join the lines with commas "
                                    "or blanks")
                         .arg(plainText(arg).replace(u'\n', QLatin1String("\\n")));
            return false;
        }
    }
    for (int i = 0; i < args.size(); ++i) {
        const QString &arg = args.at(i);
        if (arg == QLatin1String("--")) {
            m_afterDashes = args.mid(i + 1);
            return true;
        }
        if (arg.startsWith(u'-') && arg.size() > 1) {
            QString name = arg;
            QString inlineValue;
            bool hasInline = false;
            const qsizetype eq = arg.indexOf(u'=');
            if (arg.startsWith(QLatin1String("--")) && eq > 0) {
                name = arg.left(eq);
                inlineValue = arg.mid(eq + 1);
                hasInline = true;
            }
            if (m_valueOptions.contains(name)) {
                if (hasInline) {
                    m_values.insert(name, inlineValue);
                } else if (i + 1 < args.size()) {
                    m_values.insert(name, args.at(++i));
                } else {
                    *error = QStringLiteral("option %1 needs a value").arg(name);
                    return false;
                }
                if (m_repeated.contains(name))
                    m_lists[name].append(m_values.value(name));
                continue;
            }
            if (m_flags.contains(name) && !hasInline) {
                m_setFlags.append(name);
                continue;
            }
            *error = QStringLiteral("unknown option %1").arg(arg);
            return false;
        }
        m_positional.append(arg);
    }
    return true;
}

int UsageError(CliContext &ctx, const CliCommand &command, const QString &error)
{
    ctx.err << "torvanbridge-cli " << command.name << ": " << error << '\n'
            << "usage: torvanbridge-cli " << command.usage << Qt::endl;
    return ExitUsageError;
}

int ApplyToSchedule(CliContext &ctx, const QString &in, const QString &out,
                    const std::function<Result(ScheduleDocument &)> &change)
{
    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    if (!OpenDocument(doc, in))
        return ExitUserError; // the prompter has printed the message; nothing is written
    if (change) {
        Result changed = change(doc);
        if (!changed) {
            ctx.err << plainText(changed.message()) << Qt::endl;
            return ExitUserError;
        }
    }
    if (!SaveDocument(doc, out))
        return ExitUserError;
    return ExitOk;
}

QDateTime PrintingTime()
{
    bool ok = false;
    const qint64 epoch = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&ok);
    if (ok)
        return QDateTime::fromSecsSinceEpoch(epoch, Qt::UTC);
    return QDateTime::currentDateTime();
}

} // namespace tb::cli
