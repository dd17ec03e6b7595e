// The shooting schedule and the one-line schedule: one detail row per scene strip, and
// rows of their own for rest days and for banners that stand for days. The template
// groups the rows into days through a detail link on the day field.

#include "reports/ReportBuilders.h"

#include "reports/ReportOutput.h"

#include "document/AssignmentList.h"
#include "document/DayCalculation.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/StripWords.h"

#include <QHash>
#include <QSet>

#include <array>
#include <cmath>

namespace tb {

using reportdetail::FieldNumber;
using reportdetail::LinesText;

int ScheduleDayCount(const ScheduleDocument &doc)
{
    return std::max(1, doc.days.productionDays);
}

namespace {

constexpr int CategoryLists = 15;

class ScheduleBuilder
{
public:
    ScheduleBuilder(ScheduleDocument &doc, const ScheduleReportOptions &options, TAlReport &report)
        : m_doc(doc)
        , m_options(options)
        , m_report(report)
        , m_start(StartDateSerial(doc))
    {
        // Elements by category, in element order, so that each strip needs one pass.
        for (int e = 1; e <= doc.elements.count(); ++e) {
            bool ok = false;
            const int category = legacy::StrToInt(doc.elements[e][ElementField::CategoryNumber], &ok);
            if (ok && category >= 1 && category <= CategoryLists)
                m_byCategory[category].append(e);
        }
        for (int c = 1; c <= CategoryLists; ++c)
            m_categoryNames[c] = c <= doc.categoryCount() ? doc.categories.at(c - 1).name.toUpper() : QString();
    }

    // Returns a failure for a day field that is no number.
    Result build(reportdetail::BuilderRun &run, bool *nothingToPrint, int *rows)
    {
        const StripTable &strips = m_doc.strips;
        const int count = strips.count();
        // 3. The start strip: the first whose day field is From - 1. The From box is read
        //    with "All" as well, so "All" after a From of 3 starts at day 3 (kept so).
        const QString startKey = QString::number(m_options.fromDay - 1);
        int i = 1;
        while (i <= count && strips[i][StripField::DayNumber] != startKey)
            ++i;
        if (i > count) {
            // No strip falls on that day: nothing is printed.
            *nothingToPrint = true;
            return Result::success();
        }
        precomputeDayPages();
        int d = 0;
        const int lastDay = m_options.allDays ? 999 : m_options.toDay - 1;
        // 4. The day loop.
        while (i <= count && d <= lastDay) {
            run.step(i);
            while (i <= count) {
                ResultOf<int> day = FieldNumber(strips[i][StripField::DayNumber]);
                if (!day)
                    return Result::failure(day.message());
                if (*day != d)
                    break;
                const StripRecord &strip = strips[i];
                if (strip.isScene()) {
                    Result pushed = pushScene(i, d);
                    if (!pushed)
                        return pushed;
                    ++*rows;
                } else if (strip.isAutoRestDay()) {
                    --d;
                    if (!m_options.shootingDaysOnly) {
                        pushDayRow(d, QStringLiteral("        REST DAY"), QStringLiteral("REST DAY"));
                        ++*rows;
                    }
                } else if (strip.isBanner()) {
                    const int days = BannerDayCount(strip[StripField::DayCount]);
                    if (days > 0) {
                        d -= days;
                        const QString &text = strip[StripField::Synopsis];
                        for (int k = 0; k < days; ++k) {
                            if (!m_options.shootingDaysOnly) {
                                pushDayRow(d, QStringLiteral("        ") + text, text);
                                ++*rows;
                            }
                            ++d;
                        }
                    }
                }
                ++i;
            }
            if (i > count)
                break;
            ResultOf<int> day = FieldNumber(strips[i][StripField::DayNumber]);
            if (!day)
                return Result::failure(day.message());
            d = *day;
        }
        // 5. The closing line of the report.
        m_report.AddNamedValue(QStringLiteral("GrandTotal"),
                               m_options.allDays
                                   ? QStringLiteral("End")
                                   : QStringLiteral("End (Days %1 to %2)").arg(m_options.fromDay).arg(m_options.toDay));
        return Result::success();
    }

private:
    QString dateText(int d)
    {
        auto it = m_dates.constFind(d);
        if (it == m_dates.cend())
            it = m_dates.insert(
                d, legacy::FormatDate(legacy::SerialToDate(m_start + d), QString::fromLatin1(legacy::LongDatePattern)));
        return *it;
    }

    // The page total of every day, by day field, for the day footers.
    void precomputeDayPages()
    {
        for (int i = 1; i <= m_doc.strips.count(); ++i) {
            const StripRecord &strip = m_doc.strips[i];
            if (strip.isScene())
                m_dayPages[strip[StripField::DayNumber]] += PageLengthOf(strip);
        }
    }

    QString dayPagesText(const QString &dayField) const
    {
        const QString pages = FormatPageLength(m_dayPages.value(dayField));
        return pages.isEmpty() ? QStringLiteral(" ") : QStringLiteral("Total pages: ") + pages;
    }

    void push(const char *name, const QString &value) { m_report.AddNamedValue(QString::fromLatin1(name), value); }

    // A rest day or a day of a banner: the day heading and the text, blanks elsewhere.
    void pushDayRow(int d, const QString &headingText, const QString &sceneText)
    {
        const QString day = QString::number(d + 1);
        push("DayField", QStringLiteral("PRODUCTION DAY ") + day + QStringLiteral(" : ") + dateText(d) + headingText);
        push("GroupEndField", QStringLiteral("END OF DAY ") + day);
        push("SceneField", sceneText);
        const QString blank = QStringLiteral(" ");
        for (const char *name : {"PageField", "PagesField", "LocationField", "SynopsisField", "CatagoryField1",
                                 "CatagoryField2", "CatagoryField3", "CastField", "DayPagesField"})
            push(name, blank);
        // The columns this program's templates add, so that every row has each of them.
        push("SceneNoField", QString());
        push("IntExtField", QString());
        push("SetLocField", sceneText);
        for (const char *name :
             {"DNField", "LengthField", "ScriptPageField", "CastIdsField", "SetNameField", "NotesField"})
            push(name, QString());
    }

    static QString locationPrefix(const QString &intExt)
    {
        const QString word = IntExtWord(intExt);
        return word.isEmpty() ? QString() : word + QStringLiteral(" - ");
    }

    static QString locationSuffix(const QString &dayNight)
    {
        const QString word = DayNightWord(dayNight);
        return word.isEmpty() ? QString() : QStringLiteral(" - ") + word;
    }

    Result pushScene(int row, int d)
    {
        const StripRecord &strip = m_doc.strips[row];
        // 1. The day heading.
        if (m_options.shootingDaysOnly) {
            ResultOf<int> shootDay = FieldNumber(strip[StripField::ShootDayNumber]);
            if (!shootDay)
                return Result::failure(shootDay.message());
            const QString day = QString::number(*shootDay + 1);
            push("DayField", QStringLiteral("SHOOTING DAY ") + day + QStringLiteral(" : ") + dateText(d));
            push("GroupEndField", QStringLiteral("END OF DAY ") + day);
        } else {
            const QString day = QString::number(d + 1);
            push("DayField", QStringLiteral("PRODUCTION DAY ") + day + QStringLiteral(" : ") + dateText(d));
            push("GroupEndField", QStringLiteral("END OF DAY ") + day);
        }
        // 2.-4. Scene, page, length, location line, synopsis.
        push("SceneField", QStringLiteral("Scene: ") + strip[StripField::SceneNumber]);
        push("PageField", QStringLiteral("Page: ") + strip[StripField::ScriptPage]);
        push("PagesField", QStringLiteral("Pages: ") + FormatPageLength(PageLengthOf(strip)));
        push("LocationField", locationPrefix(strip[StripField::IntExt]) + strip[StripField::Location] +
                                  locationSuffix(strip[StripField::DayNight]));
        push("SynopsisField", strip[StripField::Synopsis]);
        // 5. The elements by category, and the cast text.
        const QList<bool> assigned = AssignedElementFlags(m_doc, row);
        std::array<QStringList, CategoryLists + 1> lists;
        QString cast = QStringLiteral(" ");
        QStringList castIds;
        for (int c = 1; c <= CategoryLists; ++c) {
            for (int e : m_byCategory[c]) {
                if (!assigned.at(e))
                    continue;
                const ElementRecord &element = m_doc.elements[e];
                if (lists[c].isEmpty()) {
                    lists[c].append(m_categoryNames[c]);
                    if (c == 1)
                        cast = QStringLiteral("Cast:");
                }
                if (c == 1) {
                    lists[c].append(QStringLiteral("    ") + element[ElementField::BoardId] + u' ' +
                                    element[ElementField::Description]);
                    cast += QStringLiteral("  ") + element[ElementField::BoardId];
                    castIds.append(element[ElementField::BoardId]);
                } else {
                    lists[c].append(QStringLiteral("    ") + element[ElementField::Description]);
                }
            }
        }
        push("CastField", cast);
        // 6. Three element columns of about a third of the lines each; a list is never
        //    split, and the test comes before each list, so a column may run past a third.
        qsizetype total = 0;
        for (int c = 1; c <= CategoryLists; ++c)
            total += lists[c].size();
        const double third = std::nearbyint(double(total) / 3.0);
        int next = 1;
        auto column = [&](bool takeRest) {
            QStringList work;
            while (next <= CategoryLists && (takeRest || work.size() < third)) {
                work += lists[next];
                if (!lists[next].isEmpty())
                    work.append(QStringLiteral(" "));
                ++next;
            }
            return work.isEmpty() ? QStringLiteral(" ") : LinesText(work);
        };
        push("CatagoryField1", column(false));
        push("CatagoryField2", column(false));
        push("CatagoryField3", column(true));
        // The day's page total for the "END OF DAY" footer.
        push("DayPagesField", dayPagesText(strip[StripField::DayNumber]));
        // The columns of this program's templates: each value on its own, so a template
        // can give it a column, and no label where there is no value.
        push("SceneNoField", strip[StripField::SceneNumber]);
        push("IntExtField", IntExtWordOrCode(strip[StripField::IntExt]));
        push("SetLocField", strip[StripField::Location].trimmed().isEmpty() ? strip[StripField::SetName]
                                                                            : strip[StripField::Location]);
        push("DNField", dayNightWord(strip[StripField::DayNight]));
        push("LengthField", FormatPageLength(PageLengthOf(strip)));
        push("ScriptPageField", strip[StripField::ScriptPage]);
        push("CastIdsField", castIds.join(QStringLiteral(", ")));
        const QString set = strip[StripField::SetName].trimmed();
        push("SetNameField", set.isEmpty() ? QString() : QStringLiteral("Set: ") + set);
        const QStringList notes = legacy::SplitCommaText(strip[StripField::Notes]);
        push("NotesField",
             notes.join(u' ').trimmed().isEmpty() ? QString() : QStringLiteral("Notes: ") + notes.join(u'\r'));
        // What was printed, for the closing totals.
        ++m_totalScenes;
        m_totalPages += PageLengthOf(strip);
        m_totalDays.insert(m_options.shootingDaysOnly ? strip[StripField::ShootDayNumber] : QString::number(d));
        return Result::success();
    }

    static QString dayNightWord(const QString &dayNight)
    {
        const QString suffix = locationSuffix(dayNight);
        return suffix.isEmpty() ? dayNight : suffix.mid(3);
    }

public:
    // The closing line under "End": shooting days, scenes and pages of what was printed.
    QString totalsText() const
    {
        auto counted = [](qsizetype n, const char *one, const char *many) -> QString {
            return QString::number(n) + u' ' + QString::fromLatin1(n == 1 ? one : many);
        };
        const QString pages = FormatPageLength(m_totalPages);
        return counted(m_totalDays.size(), "shooting day", "shooting days") + QStringLiteral(", ") +
               counted(m_totalScenes, "scene", "scenes") + QStringLiteral(", ") +
               (pages.isEmpty() ? QStringLiteral("0") : pages) +
               (m_totalPages > 0 && m_totalPages <= 1 ? QStringLiteral(" page") : QStringLiteral(" pages"));
    }

private:
    ScheduleDocument &m_doc;
    const ScheduleReportOptions &m_options;
    TAlReport &m_report;
    double m_start;
    std::array<QList<int>, CategoryLists + 1> m_byCategory;
    std::array<QString, CategoryLists + 1> m_categoryNames;
    QHash<int, QString> m_dates;
    QHash<QString, double> m_dayPages;
    int m_totalScenes = 0;
    double m_totalPages = 0.0;
    QSet<QString> m_totalDays;
};

} // namespace

ResultOf<BuiltReport> CreateSchedulePages(ScheduleDocument &doc, const ScheduleReportOptions &options,
                                          const ReportBuildContext &context)
{
    reportdetail::BuilderRun run(doc, context,
                                 options.oneLine ? QStringLiteral("Creating one-line schedule...")
                                                 : QStringLiteral("Creating shooting schedule..."),
                                 doc.strips.count());
    ResultOf<BuiltReport> loaded =
        run.load(options.oneLine ? OnelineTemplate : ShootSchTemplate, [](const QString &path) -> QString {
            return QStringLiteral("Could not load schedule template file (") + path +
                   QStringLiteral("). Please try re-installing Torvanbridge.");
        });
    if (!loaded)
        return loaded;
    BuiltReport built = std::move(loaded.value());
    TAlReport &report = built.report();
    // 2. The titles (the frame has set the logo).
    report.AddNamedValue(QStringLiteral("PictureField"), u'"' + doc.values.PictureTitle + u'"');
    report.AddNamedValue(QStringLiteral("CompanyField"), doc.values.Company);
    ScheduleBuilder builder(doc, options, report);
    Result result = builder.build(run, &built.nothingToPrint, &built.rows);
    if (result && !built.nothingToPrint) {
        // After the closing line: the totals, and the title without quotes (an empty title
        // then prints nothing rather than "").
        report.AddNamedValue(QStringLiteral("TotalsField"), builder.totalsText());
        report.AddNamedValue(QStringLiteral("TitleField"), doc.values.PictureTitle);
    }
    run.finish();
    if (!result) {
        doc.prompter().error(result.message());
        return result;
    }
    return built;
}

} // namespace tb
