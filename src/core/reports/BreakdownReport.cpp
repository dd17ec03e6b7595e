// Breakdown sheets (one sheet per scene strip, its elements by category) and the element
// summary (one row per element of the chosen categories with the days it is used).

#include "reports/ReportBuilders.h"

#include "reports/AlLayout.h"
#include "reports/ReportOutput.h"

#include "board/DrawBoard.h"

#include "document/AssignmentList.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/StripWords.h"

namespace tb {

using reportdetail::FieldNumber;
using reportdetail::LinesText;

namespace {

QString addressText(const ScheduleDocument &doc)
{
    // The address is kept as comma text and printed as lines.
    return LinesText(legacy::SplitCommaText(doc.values.CompanyAddress));
}

int categoryOf(const ElementRecord &element)
{
    return legacy::StrToIntDef(element[ElementField::CategoryNumber], 0);
}

QString categoryName(const ScheduleDocument &doc, int category)
{
    return category >= 1 && category <= doc.categoryCount() ? doc.categories.at(category - 1).name : QString();
}

// The production's header fields, the same on the breakdown sheet and the element summary.
void pushProductionHeader(TAlReport &report, const ScheduleDocument &doc)
{
    const ProductionValues &v = doc.values;
    report.AddNamedValue(QStringLiteral("PictureField"), v.PictureTitle);
    report.AddNamedValue(QStringLiteral("AddressField"), addressText(doc));
    report.AddNamedValue(QStringLiteral("CompanyField"), v.Company);
    report.AddNamedValue(QStringLiteral("RefField"), v.Reference);
    report.AddNamedValue(QStringLiteral("DirField"), v.Director);
    report.AddNamedValue(QStringLiteral("ProdField"), v.Producer);
}

// The colour of a sheet's heading: its strip's colour on the board.
QString SheetHeadingColour(const StripRecord &strip, const BoardStyle &style)
{
    return StripColour(strip, style).name();
}

// The boxes of a sheet keep their size; what does not fit in one is shown in part, ending
// in an ellipsis, and continues below the sheet (on a page of its own when it must) under
// the box's heading. The heading of a box is its category's name (tag rule and the cast
// list), or else the caption of the label named like the field ("SetField": "SetCaption").
class SheetOverflow
{
public:
    SheetOverflow(const ScheduleDocument &doc, const ReportForm &form)
        : m_doc(doc)
        , m_form(form)
    {
        for (TAlField *field : form.fields()) {
            if (!field->visible || !field->band || field->band->BandType != tAlBandType::alr_Detail ||
                field->band->ClipMode != tClipMode::cm_Clip || !field->WordWrap)
                continue;
            m_boxes.append(field);
        }
    }

    // The continuation of the sheet whose values were pushed last: blank when all fits.
    QString continuation(const QString &sheet) const
    {
        QStringList lines;
        for (const TAlField *field : m_boxes) {
            if (field->values.isEmpty())
                continue;
            const LabelFit fit = FitLabelText(*field, field->values.last(), m_form.PixelsPerInch);
            if (fit.fits())
                continue;
            if (!lines.isEmpty())
                lines.append(QString());
            lines.append(heading(*field) + QStringLiteral(" (continued)"));
            // From the first line cut short by the ellipsis, given again whole.
            qsizetype from = fit.lines.size() > fit.room ? fit.room - 1 : fit.lines.size();
            for (qsizetype i = 0; i < from; ++i) {
                if (fit.lines.at(i).width > fit.width) {
                    from = i;
                    break;
                }
            }
            for (qsizetype i = from; i < fit.lines.size(); ++i)
                lines.append(fit.lines.at(i).text);
        }
        if (lines.isEmpty())
            return QString();
        lines.prepend(QStringLiteral("SHEET %1 CONTINUED").arg(sheet));
        return lines.join(u'\r');
    }

private:
    QString heading(const TAlField &field) const
    {
        int category = field.Tag > 100 ? field.Tag - 100 : 0;
        if (field.Name.compare(QLatin1String("CastListField"), Qt::CaseInsensitive) == 0)
            category = 1;
        if (category > 0)
            return categoryName(m_doc, category).toUpper();
        QString base = field.Name;
        if (base.endsWith(QLatin1String("Field"), Qt::CaseInsensitive))
            base.chop(5);
        const AlComponent *caption = m_form.find(base + QStringLiteral("Caption"));
        if (caption && caption->kind() == AlComponent::Kind::Label)
            return static_cast<const TAlLabel *>(caption)->Caption;
        return base.toUpper();
    }

    const ScheduleDocument &m_doc;
    const ReportForm &m_form;
    QList<const TAlField *> m_boxes;
};

} // namespace

// ---- Breakdown sheets ----

QList<BreakdownListItem> BreakdownListItems(const ScheduleDocument &doc)
{
    QList<BreakdownListItem> items;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        const StripRecord &strip = doc.strips[i];
        if (!strip.isScene())
            continue;
        items.append({i, strip[StripField::StripId] + QStringLiteral(" - ") + strip[StripField::Location] +
                             QStringLiteral("  ") + strip[StripField::Synopsis]});
    }
    return items;
}

ResultOf<BuiltReport> CreateBreakdownPages(ScheduleDocument &doc, const BreakdownReportOptions &options,
                                           const ReportBuildContext &context)
{
    reportdetail::BuilderRun run(doc, context, QStringLiteral("Creating breakdown sheets..."), doc.strips.count());
    ResultOf<BuiltReport> loaded = run.load(BreakdownTemplate, [](const QString &path) -> QString {
        return QStringLiteral("Could not load breakdown sheet template file (") + path +
               QStringLiteral("). Please try re-installing Torvanbridge.");
    });
    if (!loaded)
        return loaded;
    BuiltReport built = std::move(loaded.value());
    TAlReport &report = built.report();
    pushProductionHeader(report, doc);

    QList<int> rows;
    if (options.all) {
        for (int i = 1; i <= doc.strips.count(); ++i)
            rows.append(i);
    } else {
        rows = options.rows;
    }
    // Fields with a category tag, in component order: 1..99 the category's name, above
    // 100 the elements of category tag - 100. Tags 0 and 100 mark ordinary fields.
    const QList<TAlField *> fields = built.form->fields();
    const SheetOverflow overflow(doc, *built.form);
    for (int row : rows) {
        if (row < 1 || row > doc.strips.count())
            continue;
        run.step(row);
        const StripRecord &strip = doc.strips[row];
        if (!strip.isScene())
            continue;
        ++built.rows;
        report.AddNamedValue(QStringLiteral("BSField"), strip[StripField::StripId]);
        report.AddNamedValue(QStringLiteral("SceneField"), strip[StripField::SceneNumber]);
        report.AddNamedValue(QStringLiteral("PageField"), strip[StripField::ScriptPage]);
        report.AddNamedValue(QStringLiteral("PagesField"), FormatPageLength(PageLengthOf(strip)));
        report.AddNamedValue(QStringLiteral("DNField"), strip[StripField::DayNight]);
        report.AddNamedValue(QStringLiteral("SetField"), strip[StripField::SetName]);
        report.AddNamedValue(QStringLiteral("SynopsisField"),
                             strip[StripField::Location] + u'\r' + strip[StripField::Synopsis]);
        // The notes are kept as comma text; the sheet shows them as lines.
        report.AddNamedValue(QStringLiteral("NotesField"), LinesText(legacy::SplitCommaText(strip[StripField::Notes])));
        report.AddNamedValue(QStringLiteral("NotesCat"), QStringLiteral("NOTES"));
        QList<bool> assigned;
        bool assignedRead = false;
        for (TAlField *field : fields) {
            if (field->Tag >= 1 && field->Tag <= 99) {
                report.AddFieldValue(*field, categoryName(doc, field->Tag).toUpper());
            } else if (field->Tag > 100) {
                if (!assignedRead) {
                    assigned = AssignedElementFlags(doc, row);
                    assignedRead = true;
                }
                const int category = field->Tag - 100;
                QString text;
                for (int e = 1; e <= doc.elements.count(); ++e)
                    if (assigned.at(e) && categoryOf(doc.elements[e]) == category)
                        text += doc.elements[e][ElementField::Description] + u'\r';
                report.AddFieldValue(*field, text);
            }
        }
        // After the values above, those of this program's sheet: INT/EXT, the cast as
        // "id - name", the heading's colour and what continues below the sheet.
        report.AddNamedValue(QStringLiteral("IntExtField"), IntExtWordOrCode(strip[StripField::IntExt]));
        if (!assignedRead)
            assigned = AssignedElementFlags(doc, row);
        QStringList cast;
        for (int e = 1; e <= doc.elements.count(); ++e)
            if (assigned.at(e) && categoryOf(doc.elements[e]) == 1)
                cast.append(doc.elements[e][ElementField::BoardId] + QStringLiteral(" - ") +
                            doc.elements[e][ElementField::Description]);
        report.AddNamedValue(QStringLiteral("CastListField"), cast.join(u'\r'));
        report.AddNamedValue(QStringLiteral("StripColourField"), SheetHeadingColour(strip, options.style));
        report.AddNamedValue(QStringLiteral("ContinuedField"), overflow.continuation(strip[StripField::StripId]));
    }
    run.finish();
    built.nothingToPrint = built.rows == 0;
    return built;
}

// ---- Element summary ----

ResultOf<BuiltReport> CreateElementSummaryPages(ScheduleDocument &doc, const ElementSummaryOptions &options,
                                                const ReportBuildContext &context)
{
    reportdetail::BuilderRun run(doc, context, QStringLiteral("Creating element summary..."), doc.elements.count());
    ResultOf<BuiltReport> loaded = run.load(ElementSummaryTemplate, [](const QString &) -> QString {
        // This message names no file, unlike the other reports' messages.
        return QStringLiteral("Could not load element summary sheet template file. Please try re-installing "
                              "Torvanbridge.");
    });
    if (!loaded)
        return loaded;
    BuiltReport built = std::move(loaded.value());
    TAlReport &report = built.report();
    pushProductionHeader(report, doc);
    report.AddNamedValue(QStringLiteral("HeaderField"),
                         QStringLiteral("Element summary - \"") + doc.values.PictureTitle + u'"');

    // Each strip's assignments and day number, read once.
    const int count = doc.strips.count();
    QList<QList<bool>> assigned(count + 1);
    for (int i = 1; i <= count; ++i) {
        const StripRecord &strip = doc.strips[i];
        if (!strip[StripField::Assignments].isEmpty())
            assigned[i] = AssignedElementFlags(doc, i);
    }
    auto isAssigned = [&](int strip, int element) {
        return element < assigned.at(strip).size() && assigned.at(strip).at(element);
    };
    auto dayOf = [&](int strip) { return FieldNumber(doc.strips[strip][StripField::DayNumber]); };
    const double start = StartDateSerial(doc);
    auto dateText = [&](int day) {
        return legacy::FormatDate(legacy::SerialToDate(start + day), QString::fromLatin1(legacy::ShortDatePattern));
    };

    for (int e = 1; e <= doc.elements.count(); ++e) {
        run.step(e);
        const ElementRecord &element = doc.elements[e];
        const int category = categoryOf(element);
        if (!options.categories.contains(category))
            continue;
        int first = 1;
        while (first <= count && !isAssigned(first, e))
            ++first;
        if (first > count)
            continue; // used in no scene: left out
        int last = count;
        while (last > first && !isAssigned(last, e))
            --last;
        ResultOf<int> firstDay = dayOf(first);
        ResultOf<int> lastDay = dayOf(last);
        if (!firstDay || !lastDay) {
            run.finish();
            const QString message = firstDay ? lastDay.message() : firstDay.message();
            doc.prompter().error(message);
            return Result::failure(message);
        }
        // Runs of days: an assigned strip whose day differs from the previous assigned one.
        int used = 0;
        int previous = 0;
        for (int i = first; i <= last; ++i) {
            if (!isAssigned(i, e))
                continue;
            ResultOf<int> day = dayOf(i);
            if (!day) {
                run.finish();
                doc.prompter().error(day.message());
                return Result::failure(day.message());
            }
            if (used == 0 || *day != previous)
                ++used;
            previous = *day;
        }
        ++built.rows;
        report.AddNamedValue(QStringLiteral("FirstField"), dateText(*firstDay));
        report.AddNamedValue(QStringLiteral("LastField"), dateText(*lastDay));
        report.AddNamedValue(QStringLiteral("TotalField"), QString::number(*lastDay - *firstDay + 1));
        report.AddNamedValue(QStringLiteral("UsedField"), QString::number(used));
        report.AddNamedValue(QStringLiteral("NameField"), element[ElementField::BoardId] + QStringLiteral("  ") +
                                                              element[ElementField::Description]);
        report.AddNamedValue(QStringLiteral("DescField"), element[ElementField::PersonName]);
        report.AddNamedValue(QStringLiteral("TypeField"), categoryName(doc, category));
        report.AddNamedValue(QStringLiteral("NotesField"),
                             LinesText(legacy::SplitCommaText(element[ElementField::OtherInfo])));
        report.AddNamedValue(QStringLiteral("PBField"), element[ElementField::PrintOnBoard] == QLatin1String("1")
                                                            ? QStringLiteral("Yes")
                                                            : QStringLiteral("No"));
        report.AddNamedValue(QStringLiteral("HoldField"), element[ElementField::HoldRule] == QLatin1String("SAG")
                                                              ? QStringLiteral("Yes")
                                                              : QStringLiteral("No"));
    }
    run.finish();
    return built;
}

} // namespace tb
