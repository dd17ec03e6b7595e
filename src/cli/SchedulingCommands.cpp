// Scheduling commands: day dividers, pages per day, banners, the calendar, strip
// locks and hold days, each applied as the desktop program applies it.

#include "CliCommand.h"

#include "scheduling/Banners.h"
#include "scheduling/Calendar.h"
#include "scheduling/DayDividers.h"
#include "scheduling/EndOfDay.h"
#include "scheduling/StripLocking.h"

#include <QDate>

namespace tb::cli {

namespace {

using Change = std::function<Result(ScheduleDocument &)>;
// Reads the command's own options once IN and OUT are known; returns the change, or
// sets *error for a usage error.
using Build = std::function<Change(const ArgParser &, QString *error)>;

// A refusal the prompter has already printed comes back without a message of its own.
Result Reported(const Result &result)
{
    if (result.ok() || !result.message().isEmpty())
        return result;
    return Result::failure(QStringLiteral("The schedule was not changed; nothing was written."));
}

int RunChange(CliContext &ctx, const CliCommand &self, const QStringList &args, ArgParser parser, const Build &build)
{
    parser.valueOption(QStringLiteral("-o"));
    QString error;
    if (!parser.parse(args, &error))
        return UsageError(ctx, self, error);
    if (parser.positional().size() != 1 || !parser.has(QStringLiteral("-o")))
        return UsageError(ctx, self, QStringLiteral("expected an input file and -o OUT"));
    const Change change = build(parser, &error);
    if (!error.isEmpty())
        return UsageError(ctx, self, error);
    return ApplyToSchedule(ctx, parser.positional().first(), parser.value(QStringLiteral("-o")),
                           [&change](ScheduleDocument &doc) { return Reported(change(doc)); });
}

// A whole number option; *error is set when it is given and is no number.
int IntOption(const ArgParser &parser, const QString &name, int fallback, QString *error)
{
    if (!parser.has(name))
        return fallback;
    bool ok = false;
    const int value = parser.value(name).toInt(&ok);
    if (!ok)
        *error = QStringLiteral("%1 needs a whole number, not \"%2\"").arg(name, parser.value(name));
    return ok ? value : fallback;
}

QDate DateOption(const ArgParser &parser, const QString &name, QString *error)
{
    const QDate date = QDate::fromString(parser.value(name), Qt::ISODate);
    if (!date.isValid())
        *error = QStringLiteral("%1 needs a date as YYYY-MM-DD, not \"%2\"").arg(name, parser.value(name));
    return date;
}

Result CheckRow(const ScheduleDocument &doc, int row, const QString &option)
{
    if (row >= 1 && row <= doc.strips.count())
        return Result::success();
    return Result::failure(
        QStringLiteral("%1 %2: the schedule has strips 1 to %3.").arg(option).arg(row).arg(doc.strips.count()));
}

void Add(CommandList &commands, const QString &name, const QString &usage, const QString &summary,
         std::function<ArgParser()> options, Build build)
{
    CliCommand command{name, usage, summary, {}};
    command.run = [command, options, build](CliContext &ctx, const QStringList &args) {
        return RunChange(ctx, command, args, options ? options() : ArgParser(), build);
    };
    commands.append(command);
}

Change AddDivider(const ArgParser &parser, QString *error)
{
    const bool before = parser.has(QStringLiteral("--before"));
    const int row = IntOption(parser, QStringLiteral("--before"), 0, error);
    return [before, row](ScheduleDocument &doc) -> Result {
        if (!before)
            return AddDayDivider(doc);
        if (Result r = CheckRow(doc, row, QStringLiteral("--before")); !r)
            return r;
        doc.SelStart = doc.SelEnd = row;
        return InsertDayDivider(doc);
    };
}

Change AutoPages(const ArgParser &parser, QString *error)
{
    AutoPagesOptions options;
    if (!parser.has(QStringLiteral("--max"))) {
        *error = QStringLiteral("--max N is required");
        return {};
    }
    options.maxPages = IntOption(parser, QStringLiteral("--max"), 0, error);
    if (error->isEmpty() && (options.maxPages < MinPagesPerDay || options.maxPages > MaxPagesPerDay))
        *error = QStringLiteral("--max must be between %1 and %2").arg(MinPagesPerDay).arg(MaxPagesPerDay);
    const QString mode = parser.value(QStringLiteral("--mode"), QStringLiteral("keep"));
    if (mode == QLatin1String("keep"))
        options.mode = AutoPagesMode::Keep;
    else if (mode == QLatin1String("split"))
        options.mode = AutoPagesMode::Split;
    else
        *error = QStringLiteral("--mode is keep or split, not \"%1\"").arg(mode);
    options.removeDividers = !parser.has(QStringLiteral("--keep-dividers"));
    return [options](ScheduleDocument &doc) { return AutoDayDividers(doc, options); };
}

Change StartDateChange(const ArgParser &parser, QString *error)
{
    const bool clear = parser.has(QStringLiteral("--clear"));
    if (clear == parser.has(QStringLiteral("--date"))) {
        *error = QStringLiteral("give either --date YYYY-MM-DD or --clear");
        return {};
    }
    std::optional<QDate> date;
    if (!clear)
        date = DateOption(parser, QStringLiteral("--date"), error);
    return [date](ScheduleDocument &doc) {
        // Every question is answered Yes, so the date is always taken.
        ApplyStartDate(doc, date, QDate::currentDate());
        return Result::success();
    };
}

Change LockChange(const ArgParser &parser, QString *error)
{
    if (!parser.has(QStringLiteral("--from")) || !parser.has(QStringLiteral("--to"))) {
        *error = QStringLiteral("--from ROW and --to ROW are required");
        return {};
    }
    const bool unlock = parser.has(QStringLiteral("--unlock"));
    if (unlock == parser.has(QStringLiteral("--date"))) {
        *error = QStringLiteral("give either --date YYYY-MM-DD or --unlock");
        return {};
    }
    const int from = IntOption(parser, QStringLiteral("--from"), 0, error);
    const int to = IntOption(parser, QStringLiteral("--to"), 0, error);
    const QDate date = unlock ? QDate() : DateOption(parser, QStringLiteral("--date"), error);
    return [from, to, unlock, date](ScheduleDocument &doc) -> Result {
        if (Result r = CheckRow(doc, from, QStringLiteral("--from")); !r)
            return r;
        if (Result r = CheckRow(doc, to, QStringLiteral("--to")); !r)
            return r;
        doc.SelStart = from;
        doc.SelEnd = to;
        if (!unlock)
            return LockStrips(doc, date);
        UnlockStrips(doc);
        return Result::success();
    };
}

Change EndOfDayChange(const ArgParser &parser, QString *error)
{
    if (!parser.has(QStringLiteral("--date")) || !parser.has(QStringLiteral("--shot"))) {
        *error = QStringLiteral("--date YYYY-MM-DD and --shot SCENE,... are required");
        return {};
    }
    const QDate date = DateOption(parser, QStringLiteral("--date"), error);
    QStringList shot;
    for (const QString &scene : parser.value(QStringLiteral("--shot")).split(u',', Qt::SkipEmptyParts))
        shot.append(scene.trimmed());
    return [date, shot](ScheduleDocument &doc) -> Result {
        if (!HasStartDate(doc))
            return Result::failure(QStringLiteral("The schedule has no start date, so no scene falls on a date."));
        const QList<int> rows = SceneStripsOn(doc, date);
        QList<EndOfDayMark> marks;
        QStringList found;
        for (int row : rows) {
            const QString &scene = doc.strips[row][StripField::SceneNumber];
            const bool isShot = shot.contains(scene);
            if (isShot)
                found.append(scene);
            marks.append({row, isShot});
        }
        for (const QString &scene : shot) {
            if (!found.contains(scene))
                return Result::failure(
                    QStringLiteral("Scene %1 is not scheduled on %2.").arg(scene, date.toString(Qt::ISODate)));
        }
        return ApplyEndOfDay(doc, date, marks);
    };
}

} // namespace

void AddSchedulingCommands(CommandList &commands)
{
    Add(
        commands, QStringLiteral("add-divider"), QStringLiteral("add-divider IN -o OUT [--before ROW]"),
        QStringLiteral("Add a day divider at the end, or insert one before strip ROW."),
        [] { return ArgParser().valueOption(QStringLiteral("--before")); }, AddDivider);

    Add(commands, QStringLiteral("remove-dividers"), QStringLiteral("remove-dividers IN -o OUT"),
        QStringLiteral("Remove every day divider (banners and rest days stay)."), {},
        [](const ArgParser &, QString *) -> Change {
            return [](ScheduleDocument &doc) {
                RemoveAllDayDividers(doc);
                return Result::success();
            };
        });

    Add(commands, QStringLiteral("remove-banners"), QStringLiteral("remove-banners IN -o OUT"),
        QStringLiteral("Remove every banner."), {}, [](const ArgParser &, QString *) -> Change {
            return [](ScheduleDocument &doc) {
                RemoveAllBanners(doc);
                return Result::success();
            };
        });

    Add(
        commands, QStringLiteral("auto-pages"),
        QStringLiteral("auto-pages IN -o OUT --max N [--mode keep|split] [--keep-dividers]"),
        QStringLiteral("Place day dividers by at most N pages a day (1-20); existing dividers are removed first "
                       "unless --keep-dividers."),
        [] {
            return ArgParser()
                .valueOption(QStringLiteral("--max"))
                .valueOption(QStringLiteral("--mode"))
                .flag(QStringLiteral("--keep-dividers"));
        },
        AutoPages);

    Add(
        commands, QStringLiteral("start-date"), QStringLiteral("start-date IN -o OUT (--date YYYY-MM-DD | --clear)"),
        QStringLiteral("Set the first day of shooting, or remove it together with the rest day rule."),
        [] { return ArgParser().valueOption(QStringLiteral("--date")).flag(QStringLiteral("--clear")); },
        StartDateChange);

    Add(
        commands, QStringLiteral("rest-days"), QStringLiteral("rest-days IN -o OUT --rule RULE"),
        QStringLiteral("Set the rest day rule: D and weekdays 1-7 (Mon-Sun), S and days 1-6 of each week from the "
                       "start, or \"\" for none."),
        [] { return ArgParser().valueOption(QStringLiteral("--rule")); },
        [](const ArgParser &parser, QString *error) -> Change {
            if (!parser.has(QStringLiteral("--rule"))) {
                *error = QStringLiteral("--rule RULE is required (\"\" for none)");
                return {};
            }
            const QString rule = parser.value(QStringLiteral("--rule"));
            return [rule](ScheduleDocument &doc) { return ApplyRestDayRule(doc, rule); };
        });

    Add(commands, QStringLiteral("convert-rest-days"), QStringLiteral("convert-rest-days IN -o OUT"),
        QStringLiteral("Turn the automatic rest days into one-day banners and clear the rest day rule."), {},
        [](const ArgParser &, QString *) -> Change {
            return [](ScheduleDocument &doc) {
                // Without the preferences, new banners take the default banner colours.
                ConvertAutoRestDaysToBanners(doc, BannerColours());
                return Result::success();
            };
        });

    Add(
        commands, QStringLiteral("lock"),
        QStringLiteral("lock IN -o OUT --from ROW --to ROW (--date YYYY-MM-DD | --unlock)"),
        QStringLiteral("Lock strips ROW to ROW to a date (a start date must be set), or free them."),
        [] {
            return ArgParser()
                .valueOption(QStringLiteral("--from"))
                .valueOption(QStringLiteral("--to"))
                .valueOption(QStringLiteral("--date"))
                .flag(QStringLiteral("--unlock"));
        },
        LockChange);

    Add(
        commands, QStringLiteral("hold-days"), QStringLiteral("hold-days IN -o OUT --days N"),
        QStringLiteral("Set the hold-day threshold of the day out of days (1-999)."),
        [] { return ArgParser().valueOption(QStringLiteral("--days")); },
        [](const ArgParser &parser, QString *error) -> Change {
            if (!parser.has(QStringLiteral("--days"))) {
                *error = QStringLiteral("--days N is required");
                return {};
            }
            const int days = IntOption(parser, QStringLiteral("--days"), 0, error);
            return [days](ScheduleDocument &doc) { return SetHoldDays(doc, days); };
        });
    Add(
        commands, QStringLiteral("end-of-day"),
        QStringLiteral("end-of-day IN -o OUT --date YYYY-MM-DD --shot SCENE,..."),
        QStringLiteral("Mark scenes shot as End of day does: of the scenes scheduled on the date, those listed "
                       "are marked shot and the others not shot (--shot \"\" marks none)."),
        [] { return ArgParser().valueOption(QStringLiteral("--date")).valueOption(QStringLiteral("--shot")); },
        EndOfDayChange);
}

} // namespace tb::cli
