#pragma once

// Where templates are found, and reports written as PDF files.

#include "reports/AlReport.h"

#include "document/Result.h"

#include <QPageSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace tb {

// Template file names of the reports.
inline constexpr char CallSheetTemplate[] = "CallSheet1.dfm";
inline constexpr char ShootSchTemplate[] = "ShootSch1.dfm";
inline constexpr char OnelineTemplate[] = "Oneline1.dfm";
inline constexpr char BreakdownTemplate[] = "Breakdown1.dfm";
inline constexpr char ElementSummaryTemplate[] = "ElementSummary1.dfm";

// The folders searched for templates, in order: the user's own template folder (the
// data folder of the desktop, Torvanbridge/templates), the program's folder, then the
// installed data folder (<prefix>/share/torvanbridge/templates, beside the program's bin
// folder and where the build installs them).
QStringList TemplateFolders();
QString UserTemplateFolder();

// The first existing file of that name in the template folders; when there is none, the
// path in the program's folder (which is what the messages name).
QString TemplatePath(const QString &fileName);

// The page size of the engine's paper sizes for a PDF file or a printer.
QPageSize PageSizeFor(tPapersize paper);

// Lays the report out on the paper (the template's unless given) and writes it as a PDF
// file. The file is written whole or not at all: an earlier file at the path stays
// untouched when anything fails.
Result WriteReportPdf(TAlReport &report, const QString &path, std::optional<tPapersize> paper = std::nullopt);

} // namespace tb
