#include "reports/TemplateFields.h"

#include "reports/ReportOutput.h"

#include <QFileInfo>

namespace tb {

std::optional<TemplateReport> TemplateReportOf(const QString &fileName)
{
    const QString name = QFileInfo(fileName).fileName();
    auto is = [&name](const char *templateName) {
        return name.compare(QLatin1String(templateName), Qt::CaseInsensitive) == 0;
    };
    if (is(ShootSchTemplate))
        return TemplateReport::Schedule;
    if (is(OnelineTemplate))
        return TemplateReport::Oneline;
    if (is(BreakdownTemplate))
        return TemplateReport::Breakdown;
    if (is(ElementSummaryTemplate))
        return TemplateReport::ElementSummary;
    return std::nullopt;
}

std::optional<TemplateReport> TemplateReportNamed(const QString &name)
{
    if (name == QLatin1String("schedule"))
        return TemplateReport::Schedule;
    if (name == QLatin1String("oneline"))
        return TemplateReport::Oneline;
    if (name == QLatin1String("breakdown"))
        return TemplateReport::Breakdown;
    if (name == QLatin1String("elements"))
        return TemplateReport::ElementSummary;
    return std::nullopt;
}

QStringList ReportFieldNames(TemplateReport report)
{
    QStringList names;
    switch (report) {
    case TemplateReport::Schedule:
    case TemplateReport::Oneline:
        names << "PictureField"
              << "CompanyField"
              << "DayField"
              << "GroupEndField"
              << "SceneField"
              << "PageField"
              << "PagesField"
              << "LocationField"
              << "SynopsisField"
              << "CastField"
              << "CatagoryField1"
              << "CatagoryField2"
              << "CatagoryField3"
              << "GrandTotal"
              // this program's
              << "DayPagesField"
              << "SceneNoField"
              << "IntExtField"
              << "SetLocField"
              << "DNField"
              << "LengthField"
              << "ScriptPageField"
              << "CastIdsField"
              << "SetNameField"
              << "NotesField"
              << "TotalsField"
              << "TitleField";
        break;
    case TemplateReport::Breakdown:
        names << "PictureField"
              << "AddressField"
              << "CompanyField"
              << "RefField"
              << "DirField"
              << "ProdField"
              << "BSField"
              << "SceneField"
              << "PageField"
              << "PagesField"
              << "DNField"
              << "SetField"
              << "SynopsisField"
              << "NotesField"
              << "NotesCat"
              // this program's
              << "IntExtField"
              << "CastListField"
              << "StripColourField"
              << "ContinuedField";
        break;
    case TemplateReport::ElementSummary:
        names << "PictureField"
              << "AddressField"
              << "CompanyField"
              << "RefField"
              << "DirField"
              << "ProdField"
              << "HeaderField"
              << "FirstField"
              << "LastField"
              << "TotalField"
              << "UsedField"
              << "NameField"
              << "DescField"
              << "TypeField"
              << "NotesField"
              << "PBField"
              << "HoldField";
        break;
    }
    return names;
}

TemplateFieldCheck CheckTemplateFields(const ReportForm &form, TemplateReport report)
{
    TemplateFieldCheck check;
    const QStringList names = ReportFieldNames(report);
    for (const QString &name : names) {
        const AlComponent *found = form.find(name);
        if (!found || found->kind() != AlComponent::Kind::Field)
            check.lacking.append(name);
    }
    for (const TAlField *field : form.fields()) {
        if (report == TemplateReport::Breakdown && field->Tag != 0 && field->Tag != 100)
            continue; // filled by its tag
        if (!names.contains(field->Name, Qt::CaseInsensitive))
            check.unfilled.append(field->Name);
    }
    return check;
}

} // namespace tb
