// Commands on whole schedule files: a summary, and open-then-save.

#include "CliCommand.h"

#include "document/DocumentSummary.h"
#include "document/ScheduleFile.h"

namespace tb::cli {

namespace {

int runInfo(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    QString error;
    if (!parser.parse(args, &error))
        return UsageError(ctx, self, error);
    if (parser.positional().size() != 1)
        return UsageError(ctx, self, QStringLiteral("expected one schedule file"));
    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    if (!OpenDocument(doc, parser.positional().first()))
        return ExitUserError;
    ctx.out << DocumentSummary(doc) << Qt::flush;
    return ExitOk;
}

int runResave(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    parser.valueOption(QStringLiteral("-o"));
    QString error;
    if (!parser.parse(args, &error))
        return UsageError(ctx, self, error);
    if (parser.positional().size() != 1 || !parser.has(QStringLiteral("-o")))
        return UsageError(ctx, self, QStringLiteral("expected an input file and -o OUT"));
    return ApplyToSchedule(ctx, parser.positional().first(), parser.value(QStringLiteral("-o")), {});
}

} // namespace

void AddDocumentCommands(CommandList &commands)
{
    CliCommand info{QStringLiteral("info"),
                    QStringLiteral("info FILE"),
                    QStringLiteral("Print titles, start date, strips by kind, elements by category and day totals."),
                    {}};
    info.run = [info](CliContext &ctx, const QStringList &args) { return runInfo(ctx, info, args); };
    commands.append(info);

    CliCommand resave{QStringLiteral("resave"),
                      QStringLiteral("resave IN -o OUT"),
                      QStringLiteral("Open a schedule (recalculating its days) and save it to OUT."),
                      {}};
    resave.run = [resave](CliContext &ctx, const QStringList &args) { return runResave(ctx, resave, args); };
    commands.append(resave);
}

} // namespace tb::cli
