// Breakdown commands: sorting, conforming and renumbering strips, sorting and
// renumbering elements, and adding scenes and elements from scripts.

#include "CliCommand.h"

#include "breakdown/ElementEditing.h"
#include "breakdown/ProductionDetails.h"
#include "breakdown/SceneEditing.h"
#include "breakdown/StripOrder.h"
#include "document/LegacyText.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace tb::cli {

namespace {

using Runner = int (*)(CliContext &, const CliCommand &, const QStringList &);

void addCommand(CommandList &commands, const QString &name, const QString &usage, const QString &summary, Runner runner,
                const QString &details = {})
{
    CliCommand command{name, usage, summary, {}, details};
    command.run = [command, runner](CliContext &ctx, const QStringList &args) { return runner(ctx, command, args); };
    commands.append(command);
}

// Parses "IN -o OUT" plus the given options; false after reporting a usage error.
bool parseInOut(CliContext &ctx, const CliCommand &self, const QStringList &args, ArgParser &parser, int *code)
{
    parser.valueOption(QStringLiteral("-o"));
    QString error;
    if (!parser.parse(args, &error)) {
        *code = UsageError(ctx, self, error);
        return false;
    }
    if (parser.positional().size() != 1 || !parser.has(QStringLiteral("-o"))) {
        *code = UsageError(ctx, self, QStringLiteral("expected an input file and -o OUT"));
        return false;
    }
    return true;
}

QString in(const ArgParser &parser)
{
    return parser.positional().first();
}

QString out(const ArgParser &parser)
{
    return parser.value(QStringLiteral("-o"));
}

// ---- sort -------------------------------------------------------------------

int runSort(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    parser.valueOption(QStringLiteral("--keys"));
    int code = ExitOk;
    if (!parseInOut(ctx, self, args, parser, &code))
        return code;
    static const QStringList names = {QStringLiteral("strip"),    QStringLiteral("scene"),  QStringLiteral("location"),
                                      QStringLiteral("daynight"), QStringLiteral("intext"), QStringLiteral("synopsis")};
    const QStringList keys =
        parser.value(QStringLiteral("--keys"), QStringLiteral("location,daynight,intext")).split(u',');
    if (keys.isEmpty() || keys.size() > 3)
        return UsageError(ctx, self, QStringLiteral("--keys takes one to three keys"));
    int columns[3] = {SortColumn::None, SortColumn::None, SortColumn::None};
    for (int i = 0; i < keys.size(); ++i) {
        const int column = int(names.indexOf(keys.at(i).trimmed().toLower()));
        if (column < 0)
            return UsageError(ctx, self,
                              QStringLiteral("unknown sort key \"%1\" (keys: %2)").arg(keys.at(i), names.join(u',')));
        columns[i] = column;
    }
    return ApplyToSchedule(ctx, in(parser), out(parser), [&columns](ScheduleDocument &doc) {
        SortStrips(doc, columns[0], columns[1], columns[2]);
        return Result::success();
    });
}

// ---- conform ----------------------------------------------------------------

int runConform(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    int code = ExitOk;
    if (!parseInOut(ctx, self, args, parser, &code))
        return code;
    const QStringList entries = parser.afterDashes();
    if (entries.isEmpty())
        return UsageError(ctx, self, QStringLiteral("expected the entries after --"));
    return ApplyToSchedule(ctx, in(parser), out(parser), [&entries](ScheduleDocument &doc) {
        ConformList list;
        list.reset(doc);
        for (const QString &entry : entries)
            list.enter(doc.prompter(), entry); // a refused entry has printed its message
        // A refusal leaves an empty line for the next entry; none follows the last.
        const int last = int(list.entries().size()) - 1;
        if (last > 0 && list.entries().at(last).isEmpty())
            list.remove(last);
        if (list.entries().size() == 1 && list.entries().first().isEmpty())
            return Result::failure(QStringLiteral("No entry was accepted; nothing was written."));
        if (!list.apply(doc))
            return Result::failure(QStringLiteral("Nothing was written."));
        return Result::success();
    });
}

// ---- renumber, sort-elements, reset-cast ------------------------------------

int runRenumber(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    int code = ExitOk;
    if (!parseInOut(ctx, self, args, parser, &code))
        return code;
    return ApplyToSchedule(ctx, in(parser), out(parser), [](ScheduleDocument &doc) {
        ResetBreakdownNumbering(doc);
        return Result::success();
    });
}

int runSortElements(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    int code = ExitOk;
    if (!parseInOut(ctx, self, args, parser, &code))
        return code;
    return ApplyToSchedule(ctx, in(parser), out(parser), [](ScheduleDocument &doc) {
        SortElementsByCategory(doc);
        return Result::success();
    });
}

int runResetCast(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    int code = ExitOk;
    if (!parseInOut(ctx, self, args, parser, &code))
        return code;
    return ApplyToSchedule(ctx, in(parser), out(parser), [](ScheduleDocument &doc) {
        ResetCastNumbering(doc);
        return Result::success();
    });
}

// ---- add-scene --------------------------------------------------------------

// "1 3/8", "3/8", "2" or a decimal such as 1.375, as the editor's two boxes.
bool parsePages(const QString &text, int *whole, int *eighths)
{
    static const QRegularExpression mixed(QStringLiteral("^\\s*(?:(\\d+)\\s+)?(\\d+)/8\\s*$"));
    const QRegularExpressionMatch match = mixed.match(text);
    if (match.hasMatch()) {
        *whole = match.captured(1).isEmpty() ? 0 : match.captured(1).toInt();
        *eighths = match.captured(2).toInt();
        return *whole <= 9 && *eighths <= 7;
    }
    bool ok = false;
    const double value = legacy::FloatFromText(text, &ok);
    if (!ok || value < 0.0 || value >= 10.0)
        return false;
    LengthToSpins(text, DefaultLinesPerPage, whole, eighths);
    return true;
}

int runAddScene(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    for (const char *option : {"--scene", "--pages", "--int-ext", "--day-night", "--location", "--set", "--sequence",
                               "--synopsis", "--page", "--elements"})
        parser.valueOption(QString::fromLatin1(option));
    int code = ExitOk;
    if (!parseInOut(ctx, self, args, parser, &code))
        return code;
    for (const char *required : {"--scene", "--pages", "--int-ext", "--day-night"}) {
        if (!parser.has(QString::fromLatin1(required)))
            return UsageError(ctx, self, QStringLiteral("%1 is required").arg(QString::fromLatin1(required)));
    }

    ScenePage page = BlankScenePage();
    page.scene = parser.value(QStringLiteral("--scene"));
    if (!parsePages(parser.value(QStringLiteral("--pages")), &page.whole, &page.eighths))
        return UsageError(ctx, self,
                          QStringLiteral("--pages takes a length such as 1 3/8, 3/8, 2 or 1.375, under 10 pages"));
    page.intExt = int(QStringList({"I", "E", "I/E"}).indexOf(parser.value(QStringLiteral("--int-ext")).toUpper()));
    if (page.intExt < 0)
        return UsageError(ctx, self, QStringLiteral("--int-ext takes I, E or I/E"));
    page.time =
        int(QStringList({"D", "N", "DWN", "DSK"}).indexOf(parser.value(QStringLiteral("--day-night")).toUpper()));
    if (page.time < 0)
        return UsageError(ctx, self, QStringLiteral("--day-night takes D, N, DWN or DSK"));
    page.location = parser.value(QStringLiteral("--location"));
    page.set = parser.value(QStringLiteral("--set"));
    page.sequence = parser.value(QStringLiteral("--sequence"));
    page.synopsis = parser.value(QStringLiteral("--synopsis"));
    page.scriptPage = parser.value(QStringLiteral("--page"));

    QList<int> elements;
    const QString elementText = parser.value(QStringLiteral("--elements"));
    if (!elementText.isEmpty()) {
        for (const QString &item : elementText.split(u',')) {
            bool ok = false;
            const int number = item.trimmed().toInt(&ok);
            if (!ok || number < 1)
                return UsageError(ctx, self, QStringLiteral("--elements takes element numbers such as 1,4,7"));
            elements.append(number);
        }
    }

    QTextStream &report = ctx.out;
    return ApplyToSchedule(ctx, in(parser), out(parser), [&](ScheduleDocument &doc) {
        AssignmentFlags flags(doc.elements.count() + 1, false);
        for (int number : elements) {
            if (number > doc.elements.count())
                return Result::failure(QStringLiteral("There is no element %1 in this schedule (it has %2).")
                                           .arg(number)
                                           .arg(doc.elements.count()));
            flags[number] = true;
        }
        const ResultOf<int> row = SaveScene(doc, SceneMode::Add, 0, page, flags);
        if (!row)
            return Result::failure(QStringLiteral("The scene was not added; nothing was written."));
        report << "Added scene " << page.scene << " as strip " << row.value() << ", breakdown sheet "
               << doc.strips[row.value()][StripField::StripId] << '\n';
        return Result::success();
    });
}

// ---- add-element ------------------------------------------------------------

int runAddElement(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    for (const char *option : {"--description", "--category", "--name", "--id"})
        parser.valueOption(QString::fromLatin1(option));
    parser.flag(QStringLiteral("--hold"));
    int code = ExitOk;
    if (!parseInOut(ctx, self, args, parser, &code))
        return code;
    for (const char *required : {"--description", "--category"}) {
        if (!parser.has(QString::fromLatin1(required)))
            return UsageError(ctx, self, QStringLiteral("%1 is required").arg(QString::fromLatin1(required)));
    }
    bool ok = false;
    const int category = parser.value(QStringLiteral("--category")).toInt(&ok);
    if (!ok || category < 1 || category > DefaultCategories().size())
        return UsageError(ctx, self, QStringLiteral("--category takes a category number, 1 (Cast) to 15 (Other)"));
    // The editor's boxes hold 25 characters for the names and 4 for the ID.
    const QString description = parser.value(QStringLiteral("--description"));
    const QString name = parser.value(QStringLiteral("--name"));
    if (description.size() > 25 || name.size() > 25)
        return UsageError(ctx, self, QStringLiteral("--description and --name hold at most 25 characters"));
    const bool hasId = parser.has(QStringLiteral("--id"));
    const QString id = parser.value(QStringLiteral("--id"));
    if (id.size() > 4)
        return UsageError(ctx, self, QStringLiteral("--id holds at most 4 characters"));
    const bool hold = parser.has(QStringLiteral("--hold"));

    QTextStream &report = ctx.out;
    return ApplyToSchedule(ctx, in(parser), out(parser), [&](ScheduleDocument &doc) {
        ElementPage page;
        page.description = description;
        page.categoryPosition = category - 1;
        const ElementIdDefault defaults = DoID(doc, page.categoryPosition);
        page.boardId = hasId ? id : defaults.id;
        page.printOnBoard = defaults.printOnBoard;
        page.name = name;
        page.holdRule = hold;
        if (!ConfirmDuplicateCastId(doc, -1, page.boardId))
            return Result::failure(QStringLiteral("Nothing was written."));
        const ResultOf<int> row = RecordElement(doc, -1, page, {});
        if (!row)
            return Result::failure(QStringLiteral("The element was not added; nothing was written."));
        report << "Added element " << row.value() << ": " << description << " (" << doc.categories.at(category - 1).name
               << ", board ID " << page.boardId << ")\n";
        return Result::success();
    });
}

// ---- details ------------------------------------------------------------------

struct DetailOption
{
    const char *option;
    QString ProductionDetails::*field;
};

const DetailOption DetailOptions[] = {
    {"--title", &ProductionDetails::title},
    {"--company", &ProductionDetails::company},
    {"--producer", &ProductionDetails::producer},
    {"--director", &ProductionDetails::director},
    {"--ad", &ProductionDetails::firstAD},
    {"--upm", &ProductionDetails::productionManager},
    {"--script", &ProductionDetails::script},
    {"--reference", &ProductionDetails::reference},
    {"--prepared-by", &ProductionDetails::preparedBy},
};

// The call times the dialog shows are not part of the schedule file, so a command that
// writes a file cannot set them; these options are refused rather than dropped.
const char *const CallTimeOptions[] = {"--unit-call", "--costume-call", "--makeup-call", "--wrap-time"};

int runDetails(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    for (const DetailOption &d : DetailOptions)
        parser.valueOption(QLatin1String(d.option));
    for (const char *option : CallTimeOptions)
        parser.valueOption(QLatin1String(option));
    parser.repeatedOption(QStringLiteral("--address"))
        .repeatedOption(QStringLiteral("--crew"))
        .valueOption(QStringLiteral("--logo"));
    int code = ExitOk;
    if (!parseInOut(ctx, self, args, parser, &code))
        return code;
    for (const char *option : CallTimeOptions) {
        if (parser.has(QLatin1String(option))) {
            ctx.err << "Call times are not kept in schedule files: every schedule opens with unit call 8:00 am, "
                       "costume call 7:45 am, makeup call 7:00 am and wrap time 6:00 pm, and the call sheet sets "
                       "them for each day. Nothing was written."
                    << Qt::endl;
            return ExitUserError;
        }
    }
    QList<CrewLine> crew;
    for (const QString &entry : parser.values(QStringLiteral("--crew"))) {
        const qsizetype eq = entry.indexOf(u'=');
        if (eq < 0)
            return UsageError(ctx, self, QStringLiteral("--crew takes POSITION=NAME or POSITION=NAME=CONTACT"));
        const QString rest = entry.mid(eq + 1);
        const qsizetype eq2 = rest.indexOf(u'=');
        crew.append({entry.left(eq), eq2 < 0 ? rest : rest.left(eq2), eq2 < 0 ? QString() : rest.mid(eq2 + 1)});
    }

    return ApplyToSchedule(ctx, in(parser), out(parser), [&](ScheduleDocument &doc) {
        ProductionDetails d = ReadProductionDetails(doc);
        for (const DetailOption &option : DetailOptions) {
            if (parser.has(QLatin1String(option.option)))
                d.*option.field = parser.value(QLatin1String(option.option));
        }
        if (parser.has(QStringLiteral("--address"))) {
            d.address = parser.values(QStringLiteral("--address"));
            if (d.address.join(QString()).isEmpty())
                d.address.clear(); // --address "" clears it
        }
        if (parser.has(QStringLiteral("--crew")))
            d.crew = crew;
        // As in the dialog, the logo is kept as a full path, and a file that is no
        // picture is reported but still taken.
        const QString logo = parser.value(QStringLiteral("--logo"));
        if (parser.has(QStringLiteral("--logo")))
            d.logoFile = logo.isEmpty() ? QString() : QFileInfo(logo).absoluteFilePath();
        const QString problem = ProductionDetailsProblem(d);
        if (!problem.isEmpty())
            return Result::failure(problem);
        if (!logo.isEmpty())
            (void)LoadLogo(doc, d.logoFile, LogoSource::Chosen);
        d.crew.resize(CrewRowCount);
        WriteProductionDetails(doc, d);
        return Result::success();
    });
}

} // namespace

void AddBreakdownCommands(CommandList &commands)
{
    addCommand(commands, QStringLiteral("sort"), QStringLiteral("sort IN -o OUT [--keys K1[,K2[,K3]]]"),
               QStringLiteral("Sort the scene strips by up to three keys, highest first (strip, scene, location, "
                              "daynight, intext, synopsis; default location,daynight,intext). Dividers and banners "
                              "are removed."),
               runSort);
    addCommand(commands, QStringLiteral("conform"), QStringLiteral("conform IN -o OUT -- ENTRY..."),
               QStringLiteral("Rebuild the board in the order typed: sheet numbers, + a divider, - a rest day, "
                              "*text a banner. Strips not entered are removed."),
               runConform, QStringLiteral("Example: conform in.tbf -o out.tbf -- 3 1 + 2 - '*TRAVEL DAY' 4"));
    addCommand(commands, QStringLiteral("renumber"), QStringLiteral("renumber IN -o OUT"),
               QStringLiteral("Number the breakdown sheets 1, 2, 3 ... in board order."), runRenumber);
    addCommand(commands, QStringLiteral("sort-elements"), QStringLiteral("sort-elements IN -o OUT"),
               QStringLiteral("Order the elements by category and renumber every scene's elements to match."),
               runSortElements);
    addCommand(commands, QStringLiteral("reset-cast"), QStringLiteral("reset-cast IN -o OUT"),
               QStringLiteral("Number the cast 1, 2, 3 ... in element order."), runResetCast);
    addCommand(commands, QStringLiteral("add-scene"),
               QStringLiteral("add-scene IN -o OUT --scene S --pages P --int-ext I|E|I/E --day-night D|N|DWN|DSK "
                              "[--location L] [--set S] [--sequence S] [--synopsis S] [--page N] [--elements 1,4,7]"),
               QStringLiteral("Append a scene strip (pages as 1 3/8 or 1.375) with the elements numbered."),
               runAddScene);
    addCommand(commands, QStringLiteral("add-element"),
               QStringLiteral("add-element IN -o OUT --description D --category N [--name N] [--id ID] [--hold]"),
               QStringLiteral("Append an element in category N (1 Cast .. 15 Other); the ID defaults to the next cast "
                              "number or the category's code."),
               runAddElement);
    addCommand(commands, QStringLiteral("details"),
               QStringLiteral("details IN -o OUT [--title T] [--company C] [--address LINE]... [--producer P] "
                              "[--director D] [--ad A] [--upm U] [--script S] [--reference R] [--prepared-by P] "
                              "[--logo PICTURE] [--crew POSITION=NAME[=CONTACT]]..."),
               QStringLiteral("Set the production details printed on reports and call sheets; values not given stay "
                              "as they are."),
               runDetails,
               QStringLiteral("Each --address is one line of the address (--address \"\" clears it); the --crew "
                              "lines replace the crew list (at most 50). --logo takes a picture file, kept as a full "
                              "path (\"\" for none). Call times are not kept in schedule files, so --unit-call, "
                              "--costume-call, --makeup-call and --wrap-time are refused. info --details shows the "
                              "details."));
}

} // namespace tb::cli
