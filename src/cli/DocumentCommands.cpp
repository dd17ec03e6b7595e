// Commands on whole schedule files: a summary, and open-then-save.

#include "CliCommand.h"

#include "breakdown/ProductionDetails.h"
#include "document/DocumentSummary.h"
#include "document/ScheduleFile.h"

namespace tb::cli {

namespace {

// The production details as info --details prints them: one value a line, the
// address and the crew's filled lines indented under their heading.
QString detailsText(const ProductionDetails &d)
{
    QString text;
    QTextStream out(&text);
    const std::pair<const char *, QString> values[] = {
        {"Producer:", d.producer},      {"Director:", d.director}, {"1st AD:", d.firstAD},
        {"PM:", d.productionManager},   {"Script:", d.script},     {"Reference:", d.reference},
        {"Prepared by:", d.preparedBy}, {"Logo:", d.logoFile},
    };
    for (const auto &[label, value] : values)
        out << qSetFieldWidth(13) << Qt::left << label << qSetFieldWidth(0) << value << '\n';
    out << "Address:\n";
    for (const QString &line : d.address)
        out << "  " << line << '\n';
    out << "Crew:\n";
    for (const CrewLine &line : d.crew) {
        if (line[0].isEmpty() && line[1].isEmpty() && line[2].isEmpty())
            continue;
        out << "  " << line[0] << " = " << line[1];
        if (!line[2].isEmpty())
            out << " = " << line[2];
        out << '\n';
    }
    out.flush();
    return text;
}

int runInfo(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    parser.flag(QStringLiteral("--details"));
    QString error;
    if (!parser.parse(args, &error))
        return UsageError(ctx, self, error);
    if (parser.positional().size() != 1)
        return UsageError(ctx, self, QStringLiteral("expected one schedule file"));
    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    if (!OpenDocument(doc, parser.positional().first()))
        return ExitUserError;
    ctx.out << DocumentSummary(doc);
    if (parser.has(QStringLiteral("--details")))
        ctx.out << detailsText(ReadProductionDetails(doc));
    ctx.out.flush();
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
                    QStringLiteral("info IN [--details]"),
                    QStringLiteral("Print titles, start date, strips by kind, elements by category and day totals; "
                                   "with --details the rest of the production details and the crew as well."),
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
