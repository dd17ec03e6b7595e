#include "reports/CallSheet.h"

#include "reports/ReportOutput.h"

#include "document/AssignmentList.h"
#include "document/DayCalculation.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "scheduling/EndOfDay.h"

#include <QHash>

#include <cmath>

namespace tb {

using namespace CallSheetColumns;

void CallSheetGrid::append(const QStringList &row)
{
    QStringList full = row;
    while (full.size() < columns)
        full.append(QString());
    if (!m_filled && rows.size() == 1) {
        rows[0] = full;
        m_filled = true;
        return;
    }
    m_filled = true;
    rows.append(full);
}

QDate CallSheet::pickedDate() const
{
    return legacy::SerialToDate(date);
}

QStringList CallSheetSceneTitles()
{
    return {QStringLiteral("Scene"), QStringLiteral("Location"), QStringLiteral("Pages"), QStringLiteral("D/N"),
            QStringLiteral("Synopsis")};
}

QList<int> CallSheetSceneWidths()
{
    return {70, 190, 45, 30, 250};
}

QStringList CallSheetCastTitles()
{
    return {QStringLiteral("Character"), QStringLiteral("Name"),   QStringLiteral("Makeup"),
            QStringLiteral("Costume"),   QStringLiteral("On set"), QStringLiteral("Transport")};
}

QList<int> CallSheetCastWidths()
{
    return {150, 150, 56, 56, 56, 80};
}

namespace {

// The day numbers of the strips, read once, and the date each falls on.
class StripDates
{
public:
    explicit StripDates(const ScheduleDocument &doc)
        : m_start(StartDateSerial(doc))
    {}

    // The strip's date counted as a scene's (start + day), or invalid.
    QDate sceneDate(const StripRecord &strip, int offset = 0) const
    {
        bool ok = false;
        const int day = legacy::StrToInt(strip[StripField::DayNumber], &ok);
        return ok ? legacy::SerialToDate(m_start + day + offset) : QDate();
    }

private:
    double m_start;
};

QStringList sceneRow(const StripRecord &strip)
{
    return {strip[StripField::SceneNumber], strip[StripField::Location], FormatPageLength(PageLengthOf(strip)),
            strip[StripField::DayNight], strip[StripField::Synopsis]};
}

// The first strip (of any kind) with the scene number; 0 when none.
int firstStripWithScene(const ScheduleDocument &doc, const QString &scene)
{
    for (int i = 1; i <= doc.strips.count(); ++i) {
        if (doc.strips[i][StripField::SceneNumber] == scene)
            return i;
    }
    return 0;
}

// The first strip of every scene number, for the sheets that look up many rows.
QHash<QString, int> firstStrips(const ScheduleDocument &doc)
{
    QHash<QString, int> first;
    first.reserve(doc.strips.count());
    for (int i = doc.strips.count(); i >= 1; --i)
        first.insert(doc.strips[i][StripField::SceneNumber], i);
    return first;
}

int categoryOf(const ElementRecord &element)
{
    return legacy::StrToIntDef(element[ElementField::CategoryNumber], 0);
}

QString categoryName(const ScheduleDocument &doc, int category)
{
    return category >= 1 && category <= doc.categoryCount() ? doc.categories.at(category - 1).name : QString();
}

} // namespace

void FillCallSheet(ScheduleDocument &doc, CallSheet &sheet, double date)
{
    sheet.costumeCall = doc.values.CostumeCall;
    sheet.makeupCall = doc.values.MakeupCall;
    sheet.wrap = doc.values.WrapTime;
    sheet.unitCall = doc.values.UnitCall;
    sheet.notes.clear();
    RecalculateDays(doc);
    sheet.weather.clear();
    sheet.date = date;
    UpdateSheet(doc, sheet);
    UpdateElementLists(doc, sheet);
}

void UpdateSheet(const ScheduleDocument &doc, CallSheet &sheet)
{
    sheet.unitCall = doc.values.UnitCall;
    sheet.notes.clear();
    sheet.scenes.clear();
    const StripDates dates(doc);
    const QDate picked = sheet.pickedDate();
    for (int i = 1; i <= doc.strips.count(); ++i) {
        const StripRecord &strip = doc.strips[i];
        if (!strip.isScene() || dates.sceneDate(strip) != picked)
            continue;
        sheet.scenes.append(sceneRow(strip));
        const QString &notes = strip[StripField::Notes];
        if (!notes.isEmpty()) {
            // The notes join the memo as comma text, so each comma-separated item becomes
            // a line of its own, and an unquoted item with blanks is split at the blanks
            // too. The sheet has always read scene notes this way; it is kept.
            sheet.notes = legacy::SplitCommaText(legacy::JoinCommaText(sheet.notes) + u',' + notes);
        }
    }
}

void UpdateElementLists(ScheduleDocument &doc, CallSheet &sheet)
{
    sheet.cast.clear();
    sheet.extras.clear();
    sheet.crew.clear();
    sheet.other.clear();

    for (int r = 1; r < doc.crew.size(); ++r) {
        const CrewRow &row = doc.crew.at(r);
        const QString &position = row[CrewField::Position];
        const QString &name = row[CrewField::Name];
        if (position.isEmpty() && name.isEmpty())
            continue;
        sheet.crew.append({position + QStringLiteral(" (") + name + u')', sheet.unitCall});
    }

    const int elementCount = doc.elements.count();
    QList<bool> seen(elementCount + 1, false);
    const QHash<QString, int> first = firstStrips(doc);
    for (const QStringList &sceneRow : std::as_const(sheet.scenes.rows)) {
        const int strip = first.value(sceneRow.value(SceneNumber), 0);
        if (strip == 0)
            break; // later rows are not looked at: the sheet has always stopped here
        const QList<bool> assigned = AssignedElementFlags(doc, strip);
        for (int e = 1; e <= elementCount; ++e) {
            if (!assigned.at(e) || seen.at(e))
                continue;
            seen[e] = true;
            const ElementRecord &element = doc.elements[e];
            const int category = categoryOf(element);
            if (category == 1) {
                sheet.cast.append(
                    {element[ElementField::BoardId] + QStringLiteral(" - ") + element[ElementField::Description],
                     element[ElementField::PersonName], sheet.makeupCall, sheet.costumeCall, sheet.unitCall,
                     QString()});
            } else if (category == 2) {
                sheet.extras.append({element[ElementField::Description], sheet.unitCall});
            } else {
                sheet.other.append({categoryName(doc, category), element[ElementField::Description]});
            }
        }
    }
}

double CallSheetPages(const ScheduleDocument &doc, const CallSheet &sheet)
{
    QHash<QString, double> pagesByScene;
    pagesByScene.reserve(doc.strips.count());
    for (int i = 1; i <= doc.strips.count(); ++i) {
        const StripRecord &strip = doc.strips[i];
        pagesByScene[strip[StripField::SceneNumber]] += PageLengthOf(strip);
    }
    double total = 0;
    for (const QStringList &row : sheet.scenes.rows)
        total += pagesByScene.value(row.value(SceneNumber), 0);
    return total;
}

QString DoTotalPages(const ScheduleDocument &doc, const CallSheet &sheet)
{
    return QStringLiteral("Total pages: ") + FormatPageLength(CallSheetPages(doc, sheet));
}

QList<QStringList> ScenePopupRows(const ScheduleDocument &doc, bool unshotOnly)
{
    QList<QStringList> rows;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        const StripRecord &strip = doc.strips[i];
        if (!strip.isScene() || (unshotOnly && IsShot(strip)))
            continue;
        rows.append(sceneRow(strip));
    }
    if (rows.isEmpty())
        rows.append({QStringLiteral("- NO SCENES -"), QString(), QString(), QString(), QString()});
    return rows;
}

QList<QStringList> CastPopupRows(const ScheduleDocument &doc)
{
    QList<QStringList> rows;
    for (int e = 1; e <= doc.elements.count(); ++e) {
        const ElementRecord &element = doc.elements[e];
        if (element[ElementField::CategoryNumber] == QLatin1String("1"))
            rows.append({element[ElementField::BoardId], element[ElementField::Description],
                         element[ElementField::PersonName]});
    }
    return rows;
}

QStringList CategoryPopupNames(const ScheduleDocument &doc)
{
    QStringList names;
    for (int c = 2; c < doc.categoryCount(); ++c)
        names.append(doc.categories.at(c).name);
    return names;
}

QStringList ChosenSceneRow(ScheduleDocument &doc, const QString &sceneNumber)
{
    int strip = firstStripWithScene(doc, sceneNumber);
    if (strip == 0) {
        doc.prompter().error(QStringLiteral("Error finding the specified scene."));
        strip = doc.strips.count(); // the last record looked at
        if (strip == 0)
            return QStringList(5);
    }
    return sceneRow(doc.strips[strip]);
}

QStringList ChosenCastRow(ScheduleDocument &doc, const CallSheet &sheet, const QString &boardId,
                          const QString &description, const QStringList &current)
{
    int found = 0;
    for (int e = 1; e <= doc.elements.count(); ++e) {
        const ElementRecord &element = doc.elements[e];
        if (element[ElementField::BoardId] == boardId && element[ElementField::Description] == description) {
            found = e;
            break;
        }
    }
    if (found == 0) {
        doc.prompter().error(QStringLiteral("Internal error finding the specified cast member."));
        found = doc.elements.count(); // the last record looked at
    }
    QStringList row = current;
    while (row.size() < 6)
        row.append(QString());
    if (found >= 1) {
        const ElementRecord &element = doc.elements[found];
        row[CastCharacter] =
            element[ElementField::BoardId] + QStringLiteral(" - ") + element[ElementField::Description];
        row[CastName] = element[ElementField::PersonName];
    }
    // One column to the right of where a filled sheet puts these calls; the dialog has
    // always placed a chosen cast member's calls so, and it is kept as it stands.
    if (row[CastCostume].isEmpty())
        row[CastCostume] = sheet.makeupCall;
    if (row[CastOnSet].isEmpty())
        row[CastOnSet] = sheet.costumeCall;
    return row;
}

bool IsAutoRestDay(const ScheduleDocument &doc, const QDate &date)
{
    const StripDates dates(doc);
    for (int i = 1; i <= doc.strips.count(); ++i) {
        const StripRecord &strip = doc.strips[i];
        // A rest day's date is counted one day earlier than a scene's: the rest day strip
        // carries the number of the day after it. The check has always counted so.
        if (strip.isAutoRestDay() && dates.sceneDate(strip, -1) == date)
            return true;
    }
    return false;
}

QDate NextShootingDay(const ScheduleDocument &doc, const QDate &after, QList<int> *rows)
{
    const StripDates dates(doc);
    QDate next;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        const StripRecord &strip = doc.strips[i];
        if (!strip.isScene())
            continue;
        const QDate date = dates.sceneDate(strip);
        if (date.isValid() && date > after && (!next.isValid() || date < next))
            next = date;
    }
    if (rows) {
        rows->clear();
        if (next.isValid()) {
            for (int i = 1; i <= doc.strips.count(); ++i) {
                if (doc.strips[i].isScene() && dates.sceneDate(doc.strips[i]) == next)
                    rows->append(i);
            }
        }
    }
    return next;
}

// ---- Printing ----

namespace {

QString setHeading(const StripRecord &strip)
{
    const QString &ie = strip[StripField::IntExt];
    QString prefix;
    if (ie == QLatin1String("I"))
        prefix = QStringLiteral("INT. ");
    else if (ie == QLatin1String("E"))
        prefix = QStringLiteral("EXT. ");
    else if (ie == QLatin1String("I/E"))
        prefix = QStringLiteral("INT./EXT. ");
    else if (!ie.isEmpty())
        prefix = ie + u' ';
    return prefix + strip[StripField::SetName];
}

// Pushes the advance schedule: the scenes of the next shooting day in brief.
void pushAdvanceSchedule(ScheduleDocument &doc, const CallSheet &sheet, TAlReport &report)
{
    QList<int> rows;
    const QDate next = NextShootingDay(doc, sheet.pickedDate(), &rows);
    auto push = [&report](const char *name, const QString &value) {
        report.AddNamedValue(QString::fromLatin1(name), value);
    };
    if (!next.isValid()) {
        push("AdvanceDayField", QStringLiteral("No further shooting days scheduled"));
        return;
    }
    push("AdvanceDayField", legacy::FormatDate(next, QString::fromLatin1(legacy::LongDatePattern)));
    for (int row : std::as_const(rows)) {
        const StripRecord &strip = doc.strips[row];
        QStringList cast;
        for (int e : AssignedElements(doc, row)) {
            if (e >= 1 && e <= doc.elements.count() && categoryOf(doc.elements[e]) == 1)
                cast.append(doc.elements[e][ElementField::BoardId]);
        }
        push("AdvSceneField", strip[StripField::SceneNumber]);
        push("AdvSetField", setHeading(strip));
        push("AdvDNField", strip[StripField::DayNight]);
        push("AdvPagesField", FormatPageLength(PageLengthOf(strip)));
        push("AdvCastField", cast.join(QStringLiteral(", ")));
    }
}

} // namespace

ResultOf<BuiltReport> CreateCallSheetPages(ScheduleDocument &doc, const CallSheet &sheet,
                                           const ReportBuildContext &context)
{
    reportdetail::BuilderRun run(doc, context, QString(), 0);
    ResultOf<BuiltReport> loaded = run.load(CallSheetTemplate, [](const QString &path) -> QString {
        return QStringLiteral("Could not load call sheet template file (") + path +
               QStringLiteral("). Please try re-installing Torvanbridge.");
    });
    if (!loaded)
        return loaded;
    BuiltReport built = std::move(loaded.value());
    TAlReport &report = built.report();
    auto push = [&report](const char *name, const QString &value) {
        report.AddNamedValue(QString::fromLatin1(name), value);
    };
    const ProductionValues &v = doc.values;
    // The field named for the picture carries the title; the logo goes to the images.
    push("PictureField", v.PictureTitle);
    push("AddressField", reportdetail::LinesText(legacy::SplitCommaText(v.CompanyAddress)));
    push("CompanyField", v.Company);
    push("DateField", legacy::FormatDate(sheet.pickedDate(), QString::fromLatin1(legacy::LongDatePattern)));
    push("DirField", v.Director);
    push("ProdField", v.Producer);
    push("ADField", v.FirstAD);
    push("UPMField", v.ProductionManager);
    push("UnitField", sheet.unitCall);
    push("MakeupField", sheet.makeupCall);
    push("CostumeField", sheet.costumeCall);
    push("WeatherField", sheet.weather);
    push("WrapField", sheet.wrap);

    const QHash<QString, int> first = firstStrips(doc);
    for (const QStringList &row : sheet.scenes.rows) {
        push("SceneField", row.value(SceneNumber));
        push("LocationField", row.value(SceneLocation));
        push("PagesField", row.value(ScenePages));
        push("DNField", row.value(SceneDayNight));
        // A row that matches no strip gives these two fields no value, so the values of
        // later rows move up a row. The sheet has always printed so; it is kept.
        if (const int strip = first.value(row.value(SceneNumber), 0)) {
            push("IEField", doc.strips[strip][StripField::IntExt]);
            push("SetField", doc.strips[strip][StripField::SetName]);
        }
        push("SynopsisField", row.value(SceneSynopsis));
        ++built.rows;
    }
    for (const QStringList &row : sheet.cast.rows) {
        push("ACharacterField", row.value(CastCharacter));
        push("ANameField", row.value(CastName));
        push("AMakeupField", row.value(CastMakeup));
        push("ACostumeField", row.value(CastCostume));
        push("AOnsetField", row.value(CastOnSet));
        push("ATransportField", row.value(CastTransport));
    }
    for (const QStringList &row : sheet.extras.rows) {
        push("ExtraField", row.value(Description));
        push("ExtraCallField", row.value(Call));
    }
    // Extras and other elements share a band: the extras column is padded to the
    // other column's length so that the two stay level.
    for (int k = sheet.extras.rowCount(); k < sheet.other.rowCount(); ++k) {
        push("ExtraField", QString());
        push("ExtraCallField", QString());
    }
    for (const QStringList &row : sheet.other.rows) {
        push("OtherField", row.value(OtherType));
        push("OtherDescriptionField", row.value(OtherDescription));
    }
    // Crew in two halves: n = the grid's row count with its title row, halved.
    const int half = (sheet.crew.rowCount() + 1) / 2;
    for (int r = 0; r < sheet.crew.rowCount(); ++r) {
        const QStringList &row = sheet.crew.rows.at(r);
        const bool firstHalf = r + 1 <= half;
        push(firstHalf ? "CrewField1" : "CrewField2", row.value(Description));
        push(firstHalf ? "CrewCallField1" : "CrewCallField2", row.value(Call));
    }
    push("NotesField", reportdetail::LinesText(sheet.notes));

    // Beyond the sheet's own values: the shooting day and the advance schedule.
    QString shootDay;
    if (const int strip = first.value(sheet.scenes.cell(0, SceneNumber), 0)) {
        bool ok = false;
        const int s = legacy::StrToInt(doc.strips[strip][StripField::ShootDayNumber], &ok);
        if (ok && doc.strips[strip].isScene())
            shootDay = QStringLiteral("Day %1 of %2").arg(s + 1).arg(std::max(s + 1, doc.days.shootingDays));
    }
    push("ShootDayField", shootDay);
    pushAdvanceSchedule(doc, sheet, report);
    run.finish();
    return built;
}

} // namespace tb
