// The report commands: a schedule's reports and call sheets as PDF files, and template checks.

#include "CliCommand.h"

#include "board/BoardStyle.h"
#include "document/LegacyText.h"
#include "document/ScheduleFile.h"
#include "document/Settings.h"
#include "reports/CallSheet.h"
#include "reports/CallSheetFile.h"
#include "reports/DayOutOfDays.h"
#include "reports/DayOutOfDaysPrint.h"
#include "reports/ReportBuilders.h"
#include "reports/ReportOutput.h"
#include "reports/TemplateFields.h"
#include "scheduling/Calendar.h"

#include <QDate>
#include <QFileInfo>
#include <QPageLayout>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSet>

namespace tb::cli {

namespace {

const QStringList Kinds = {QStringLiteral("schedule"), QStringLiteral("oneline"), QStringLiteral("breakdown"),
                           QStringLiteral("elements")};

// "1,4,12" as numbers; false for anything else.
bool numberList(const QString &text, QList<int> *numbers)
{
    const QStringList items = text.split(u',', Qt::SkipEmptyParts);
    if (items.isEmpty())
        return false;
    for (const QString &item : items) {
        bool ok = false;
        const int n = item.trimmed().toInt(&ok);
        if (!ok)
            return false;
        numbers->append(n);
    }
    return true;
}

// A trace line on one output line: its line breaks are written as \r and \n.
QString oneLine(QString text)
{
    text.replace(u'\\', QLatin1String("\\\\"));
    text.replace(u'\r', QLatin1String("\\r"));
    text.replace(u'\n', QLatin1String("\\n"));
    return text;
}

int runReport(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    parser.valueOption(QStringLiteral("-o"))
        .valueOption(QStringLiteral("--from"))
        .valueOption(QStringLiteral("--to"))
        .valueOption(QStringLiteral("--sheets"))
        .valueOption(QStringLiteral("--categories"))
        .valueOption(QStringLiteral("--paper"))
        .flag(QStringLiteral("--all-days"))
        .flag(QStringLiteral("--trace"));
    QString error;
    if (!parser.parse(args, &error))
        return UsageError(ctx, self, error);
    if (parser.positional().size() != 2 || !parser.has(QStringLiteral("-o")))
        return UsageError(ctx, self, QStringLiteral("expected KIND, an input file and -o OUT.pdf"));
    const QString kind = parser.positional().at(0);
    if (!Kinds.contains(kind))
        return UsageError(ctx, self,
                          QStringLiteral("unknown report %1 (schedule, oneline, breakdown or elements)").arg(kind));
    const bool isSchedule = kind == QLatin1String("schedule") || kind == QLatin1String("oneline");
    const bool hasRange = parser.has(QStringLiteral("--from")) || parser.has(QStringLiteral("--to"));
    if (!isSchedule && (hasRange || parser.has(QStringLiteral("--all-days"))))
        return UsageError(ctx, self, QStringLiteral("--from, --to and --all-days are for schedule and oneline"));
    if (parser.has(QStringLiteral("--sheets")) && kind != QLatin1String("breakdown"))
        return UsageError(ctx, self, QStringLiteral("--sheets is for breakdown"));
    if (parser.has(QStringLiteral("--categories")) && kind != QLatin1String("elements"))
        return UsageError(ctx, self, QStringLiteral("--categories is for elements"));
    std::optional<tPapersize> paper;
    if (parser.has(QStringLiteral("--paper"))) {
        const QString name = parser.value(QStringLiteral("--paper")).toLower();
        if (name == QLatin1String("a4"))
            paper = tPapersize::alr_A4;
        else if (name == QLatin1String("letter"))
            paper = tPapersize::alr_Letter;
        else
            return UsageError(ctx, self, QStringLiteral("--paper is a4 or letter"));
    }

    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    if (!OpenDocument(doc, parser.positional().at(1)))
        return ExitUserError;

    ReportBuildContext context;
    if (parser.has(QStringLiteral("--trace")))
        context.trace = [&ctx](const QString &line) { ctx.out << oneLine(line) << '\n'; };

    ResultOf<BuiltReport> built = Result::failure(QString());
    if (isSchedule) {
        ScheduleReportOptions options;
        options.oneLine = kind == QLatin1String("oneline");
        options.shootingDaysOnly = !parser.has(QStringLiteral("--all-days"));
        if (hasRange) {
            const int days = ScheduleDayCount(doc);
            bool fromOk = true;
            bool toOk = true;
            options.allDays = false;
            options.fromDay = parser.value(QStringLiteral("--from"), QStringLiteral("1")).toInt(&fromOk);
            options.toDay = parser.value(QStringLiteral("--to"), QString::number(days)).toInt(&toOk);
            if (!fromOk || !toOk)
                return UsageError(ctx, self, QStringLiteral("--from and --to take day numbers"));
            if (options.fromDay < 1 || options.toDay > days || options.fromDay > options.toDay) {
                ctx.err << QStringLiteral(
                               "The day range %1 to %2 is not within the schedule's production days 1 to %3.")
                               .arg(options.fromDay)
                               .arg(options.toDay)
                               .arg(days)
                        << Qt::endl;
                return ExitUserError;
            }
        }
        built = CreateSchedulePages(doc, options, context);
    } else if (kind == QLatin1String("breakdown")) {
        BreakdownReportOptions options;
        // Each sheet's heading takes its strip's colour from the user's board colours, as
        // the board command draws them.
        Settings settings;
        for (const QString &problem : settings.LoadSettings())
            ctx.err << problem << Qt::endl;
        options.style = StyleFromSettings(settings);
        if (parser.has(QStringLiteral("--sheets"))) {
            QList<int> ids;
            if (!numberList(parser.value(QStringLiteral("--sheets")), &ids))
                return UsageError(ctx, self, QStringLiteral("--sheets takes breakdown sheet numbers such as 3,12"));
            const QSet<int> wanted(ids.begin(), ids.end());
            QSet<int> found;
            options.all = false;
            // The chosen sheets print in the order of the list, which is board order.
            for (const BreakdownListItem &item : BreakdownListItems(doc)) {
                const int id = doc.strips[item.row][StripField::StripId].toInt();
                if (wanted.contains(id)) {
                    options.rows.append(item.row);
                    found.insert(id);
                }
            }
            for (int id : ids) {
                if (!found.contains(id)) {
                    ctx.err << QStringLiteral("No scene has the breakdown sheet number %1.").arg(id) << Qt::endl;
                    return ExitUserError;
                }
            }
        }
        built = CreateBreakdownPages(doc, options, context);
    } else {
        ElementSummaryOptions options;
        if (parser.has(QStringLiteral("--categories"))) {
            QList<int> categories;
            if (!numberList(parser.value(QStringLiteral("--categories")), &categories))
                return UsageError(ctx, self, QStringLiteral("--categories takes category numbers such as 1,2,5"));
            options.categories.clear();
            for (int c : categories) {
                if (c < 1 || c > doc.categoryCount()) {
                    ctx.err << QStringLiteral("There is no category %1: categories are numbered 1 to %2.")
                                   .arg(c)
                                   .arg(doc.categoryCount())
                            << Qt::endl;
                    return ExitUserError;
                }
                options.categories.insert(c);
            }
        }
        built = CreateElementSummaryPages(doc, options, context);
    }
    if (!built)
        return ExitUserError; // the prompter has shown the message
    if (context.trace) {
        // After the values: the template's fields that received none.
        const std::optional<TemplateReport> which = TemplateReportNamed(kind);
        if (which)
            for (const QString &name : CheckTemplateFields(*built->form, *which).unfilled)
                context.trace(QStringLiteral("AlField ") + name + QStringLiteral(" = no value pushed by this report"));
    }
    if (built->nothingToPrint) {
        ctx.err << "Nothing to print: no strip falls within the days or sheets chosen." << Qt::endl;
        return ExitUserError;
    }
    Result written = WriteReportPdf(built->report(), parser.value(QStringLiteral("-o")), paper);
    if (!written) {
        ctx.err << written.message() << Qt::endl;
        return ExitUserError;
    }
    return ExitOk;
}

int runCallSheet(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    parser.valueOption(QStringLiteral("-o"))
        .valueOption(QStringLiteral("--date"))
        .valueOption(QStringLiteral("--weather"))
        .valueOption(QStringLiteral("--paper"))
        .valueOption(QStringLiteral("--save-sheet"))
        .valueOption(QStringLiteral("--sheet"))
        .flag(QStringLiteral("--trace"));
    QString error;
    if (!parser.parse(args, &error))
        return UsageError(ctx, self, error);
    if (parser.positional().size() != 1 || !parser.has(QStringLiteral("-o")))
        return UsageError(ctx, self, QStringLiteral("expected an input file and -o OUT.pdf"));
    const bool fromSheet = parser.has(QStringLiteral("--sheet"));
    if (fromSheet == parser.has(QStringLiteral("--date")))
        return UsageError(ctx, self,
                          QStringLiteral("give either --date YYYY-MM-DD or --sheet IN.tbs (which has its own date)"));
    QDate date;
    if (!fromSheet) {
        date = QDate::fromString(parser.value(QStringLiteral("--date")), Qt::ISODate);
        if (!date.isValid())
            return UsageError(ctx, self,
                              QStringLiteral("--date needs a date as YYYY-MM-DD, not \"%1\"")
                                  .arg(parser.value(QStringLiteral("--date"))));
    }
    std::optional<tPapersize> paper;
    if (parser.has(QStringLiteral("--paper"))) {
        const QString name = parser.value(QStringLiteral("--paper")).toLower();
        if (name == QLatin1String("a4"))
            paper = tPapersize::alr_A4;
        else if (name == QLatin1String("letter"))
            paper = tPapersize::alr_Letter;
        else
            return UsageError(ctx, self, QStringLiteral("--paper is a4 or letter"));
    }

    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    if (!OpenDocument(doc, parser.positional().at(0)))
        return ExitUserError;
    if (!HasStartDate(doc)) {
        ctx.err << CallSheetNeedsStartText << Qt::endl;
        return ExitUserError;
    }

    // The sheet as the dialog fills it on show, for the date asked (or the saved sheet's).
    double serial = legacy::DateToSerial(date);
    if (fromSheet) {
        ResultOf<double> saved = CallSheetFileDate(parser.value(QStringLiteral("--sheet")));
        if (!saved) {
            ctx.err << saved.message() << Qt::endl;
            return ExitUserError;
        }
        serial = *saved;
    }
    CallSheet sheet;
    FillCallSheet(doc, sheet, serial);
    sheet.weather = parser.value(QStringLiteral("--weather"));
    if (fromSheet) {
        Result read = ReadCallSheetFile(sheet, parser.value(QStringLiteral("--sheet")));
        if (!read) {
            ctx.err << read.message() << Qt::endl;
            return ExitUserError;
        }
    }
    if (parser.has(QStringLiteral("--save-sheet"))) {
        Result saved = WriteCallSheetFile(sheet, parser.value(QStringLiteral("--save-sheet")));
        if (!saved) {
            ctx.err << saved.message() << Qt::endl;
            return ExitUserError;
        }
    }

    ReportBuildContext context;
    if (parser.has(QStringLiteral("--trace")))
        context.trace = [&ctx](const QString &line) { ctx.out << oneLine(line) << '\n'; };
    ResultOf<BuiltReport> built = CreateCallSheetPages(doc, sheet, context);
    if (!built)
        return ExitUserError; // the prompter has shown the message
    Result written = WriteReportPdf(built->report(), parser.value(QStringLiteral("-o")), paper);
    if (!written) {
        ctx.err << written.message() << Qt::endl;
        return ExitUserError;
    }
    return ExitOk;
}

int runCheckTemplate(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    parser.valueOption(QStringLiteral("--report"));
    QString error;
    if (!parser.parse(args, &error))
        return UsageError(ctx, self, error);
    if (parser.positional().size() != 1)
        return UsageError(ctx, self, QStringLiteral("expected one template file"));
    const QString path = parser.positional().at(0);
    std::optional<TemplateReport> report = parser.has(QStringLiteral("--report"))
                                               ? TemplateReportNamed(parser.value(QStringLiteral("--report")))
                                               : TemplateReportOf(path);
    if (!report)
        return UsageError(ctx, self,
                          parser.has(QStringLiteral("--report"))
                              ? QStringLiteral("--report is schedule, oneline, breakdown or elements")
                              : QStringLiteral("%1 is no report's template name: give --report "
                                               "schedule|oneline|breakdown|elements")
                                    .arg(QFileInfo(path).fileName()));
    ResultOf<std::unique_ptr<ReportForm>> loaded = LoadTemplate(path);
    if (!loaded) {
        ctx.err << loaded.message() << Qt::endl;
        return ExitUserError;
    }
    const TemplateFieldCheck check = CheckTemplateFields(*loaded.value(), *report);
    ctx.out << QFileInfo(path).fileName() << ": loads" << Qt::endl;
    for (const QString &name : check.lacking)
        ctx.out << "lacks " << name << " (the report's values for it are not printed)" << Qt::endl;
    for (const QString &name : check.unfilled)
        ctx.out << "field " << name << " receives no value from the report" << Qt::endl;
    if (check.lacking.isEmpty() && check.unfilled.isEmpty())
        ctx.out << "every field the report fills is there, and every field is filled" << Qt::endl;
    return ExitOk;
}

// The resolution the chart is printed at in a PDF file, as a printer's would be.
constexpr int DoodPdfResolution = 300;

QString writeDoodPdf(const DayOutOfDaysGrid &grid, const DayOutOfDaysPrintOptions &options, const QString &out)
{
    QSaveFile file(out);
    if (!file.open(QIODevice::WriteOnly))
        return QStringLiteral("Cannot write %1: %2").arg(out, file.errorString());
    {
        QPdfWriter writer(&file);
        writer.setResolution(DoodPdfResolution);
        writer.setCreator(QStringLiteral("Torvanbridge"));
        writer.setTitle(QStringLiteral("Day out of days"));
        // A4 landscape with the unprintable edges of a common printer.
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(5, 5, 5, 5),
                                         QPageLayout::Millimeter));
        if (PrintDayOutOfDays(grid, options, writer).pages == 0)
            return QStringLiteral("Cannot start a PDF in %1").arg(out);
    }
    if (!file.commit())
        return QStringLiteral("Cannot write %1: %2").arg(out, file.errorString());
    return {};
}

int runDood(CliContext &ctx, const CliCommand &self, const QStringList &args)
{
    ArgParser parser;
    parser.valueOption(QStringLiteral("-o"))
        .valueOption(QStringLiteral("--category"))
        .flag(QStringLiteral("--no-holds"))
        .flag(QStringLiteral("--totals"))
        .flag(QStringLiteral("--color"));
    QString error;
    if (!parser.parse(args, &error))
        return UsageError(ctx, self, error);
    if (parser.positional().size() != 1)
        return UsageError(ctx, self, QStringLiteral("needs one schedule file"));
    const QString out = parser.value(QStringLiteral("-o"));
    const QString suffix = QFileInfo(out).suffix().toLower();
    if (parser.has(QStringLiteral("-o")) && suffix != QLatin1String("csv") && suffix != QLatin1String("pdf"))
        return UsageError(ctx, self, QStringLiteral("the output must end in .csv or .pdf"));
    if (parser.has(QStringLiteral("--color")) && suffix != QLatin1String("pdf"))
        return UsageError(ctx, self, QStringLiteral("--color is for a .pdf output"));

    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    if (!OpenDocument(doc, parser.positional().first()))
        return ExitUserError;

    DayOutOfDaysOptions options;
    options.showHolds = !parser.has(QStringLiteral("--no-holds"));
    options.totals = parser.has(QStringLiteral("--totals"));
    if (parser.has(QStringLiteral("--category"))) {
        bool ok = false;
        options.category = parser.value(QStringLiteral("--category")).toInt(&ok);
        if (!ok)
            return UsageError(ctx, self, QStringLiteral("--category takes a category number such as 2"));
        if (options.category < 1 || options.category > doc.categoryCount()) {
            ctx.err << QStringLiteral("There is no category %1: categories are numbered 1 to %2.")
                           .arg(parser.value(QStringLiteral("--category")))
                           .arg(doc.categoryCount())
                    << Qt::endl;
            return ExitUserError;
        }
    }
    const DayOutOfDaysGrid grid = BuildDayOutOfDays(doc, options);

    if (suffix == QLatin1String("pdf")) {
        DayOutOfDaysPrintOptions print;
        print.title = doc.values.PictureTitle;
        print.inColour = parser.has(QStringLiteral("--color"));
        print.printed = PrintingTime().date();
        const QString failed = writeDoodPdf(grid, print, out);
        if (!failed.isEmpty()) {
            ctx.err << failed << Qt::endl;
            return ExitUserError;
        }
        return ExitOk;
    }
    const QString text = DayOutOfDaysCsv(grid);
    if (out.isEmpty()) {
        ctx.out << text; // the stream writes UTF-8
        return ExitOk;
    }
    const QByteArray csv = text.toUtf8();
    QSaveFile file(out);
    if (!file.open(QIODevice::WriteOnly) || file.write(csv) != csv.size() || !file.commit()) {
        ctx.err << QStringLiteral("Cannot write %1: %2").arg(out, file.errorString()) << Qt::endl;
        return ExitUserError;
    }
    return ExitOk;
}

} // namespace

void AddReportCommands(CommandList &commands)
{
    CliCommand report{
        QStringLiteral("report"),
        QStringLiteral("report schedule|oneline|breakdown|elements IN -o OUT.pdf [--paper a4|letter] [--trace] "
                       "[--from N --to N] [--all-days] [--sheets ID,...] [--categories N,...]"),
        QStringLiteral("Write a report as PDF: the shooting schedule, the one-line schedule, breakdown sheets or "
                       "the element summary."),
        {},
        QStringLiteral("schedule, oneline: --from N --to N production days (default all), --all-days rest days "
                       "too.\nbreakdown: --sheets breakdown sheet numbers (default every scene).\nelements: "
                       "--categories category numbers (default 1, the cast).\n--trace prints every value pushed "
                       "into the template, one line each.")};
    report.run = [report](CliContext &ctx, const QStringList &args) { return runReport(ctx, report, args); };
    commands.append(report);

    CliCommand callSheet{
        QStringLiteral("callsheet"),
        QStringLiteral("callsheet IN (--date YYYY-MM-DD | --sheet IN.tbs) -o OUT.pdf [--weather TEXT] [--trace] "
                       "[--paper a4|letter] [--save-sheet OUT.tbs]"),
        QStringLiteral("Write the call sheet of a day as PDF, filled as the call sheet dialog fills it for that "
                       "date."),
        {}};
    callSheet.details = QStringLiteral(
        "--weather fills the weather line. --save-sheet also writes the call sheet file of the sheet; --sheet "
        "prints a saved call sheet file instead, read into the sheet filled for the file's own date. --trace "
        "prints every value pushed into the template, one line each.");
    callSheet.run = [callSheet](CliContext &ctx, const QStringList &args) {
        return runCallSheet(ctx, callSheet, args);
    };
    commands.append(callSheet);

    CliCommand check{
        QStringLiteral("check-template"),
        QStringLiteral("check-template FILE [--report schedule|oneline|breakdown|elements]"),
        QStringLiteral("Check a report template: where it fails to load, and its fields against the report's."),
        {},
        QStringLiteral("A template that does not load is reported with its file, line and cause. One that loads "
                       "is listed with the fields the report fills that it lacks and the fields of its own that "
                       "no report fills. The report is known from the file name (ShootSch1.dfm, Oneline1.dfm, "
                       "Breakdown1.dfm, ElementSummary1.dfm) unless --report names it.")};
    check.run = [check](CliContext &ctx, const QStringList &args) { return runCheckTemplate(ctx, check, args); };
    commands.append(check);

    CliCommand dood{QStringLiteral("dood"),
                    QStringLiteral("dood IN [--no-holds] [--category N] [--totals] [-o OUT.csv|OUT.pdf] [--color]"),
                    QStringLiteral("The day out of days of the cast (or of category N) as comma-separated text "
                                   "(to stdout, or a .csv file) or printed to a .pdf file (--color for coloured "
                                   "work and hold days). --no-holds leaves hold days out; --totals adds work, "
                                   "hold and total days at the right of every row."),
                    {}};
    dood.run = [dood](CliContext &ctx, const QStringList &args) { return runDood(ctx, dood, args); };
    commands.append(dood);
}

} // namespace tb::cli
