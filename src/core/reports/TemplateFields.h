#pragma once

// The fields each report fills, by name, for checking a template against its report: the
// names a template lacks (their values go nowhere) and the fields of a template that no
// report fills (they print blank).

#include "reports/AlReport.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace tb {

enum class TemplateReport { Schedule, Oneline, Breakdown, ElementSummary };

// The report a template file is for, by its file name ("ShootSch1.dfm" and so on).
std::optional<TemplateReport> TemplateReportOf(const QString &fileName);
// "schedule", "oneline", "breakdown", "elements" as the command line names them.
std::optional<TemplateReport> TemplateReportNamed(const QString &name);

// Every field name the report pushes, in the order it pushes them: first the values each
// report has always filled, then those this program's templates add.
QStringList ReportFieldNames(TemplateReport report);

struct TemplateFieldCheck
{
    QStringList lacking;  // pushed by the report, held by no field of the template
    QStringList unfilled; // fields of the template that the report does not fill
};

// Breakdown sheets fill fields by their tag as well (1..99 a category's name, above 100
// its elements); such fields count as filled.
TemplateFieldCheck CheckTemplateFields(const ReportForm &form, TemplateReport report);

} // namespace tb
