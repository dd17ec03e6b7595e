// Reports of a schedule at capacity: building the values, laying out, writing the PDF
// and recording the preview pages.

#include "BenchDocuments.h"

#include "reports/AlLayout.h"
#include "reports/AlPrinter.h"
#include "reports/ReportBuilders.h"
#include "reports/ReportOutput.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace tb;

namespace {

ReportBuildContext context(const char *templateName)
{
    ReportBuildContext c;
    c.templatePath = QStringLiteral(TB_SOURCE_DIR "/templates/") + QString::fromLatin1(templateName);
    return c;
}

BuiltReport build(ScheduleDocument &doc, bool oneLine)
{
    ScheduleReportOptions options;
    options.oneLine = oneLine;
    auto built = CreateSchedulePages(doc, options, context(oneLine ? OnelineTemplate : ShootSchTemplate));
    return std::move(built.value());
}

// Filling the template: the day loop and every value of every row.
void BM_ScheduleValues(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    for (auto _ : state) {
        BuiltReport built = build(doc, false);
        benchmark::DoNotOptimize(built.rows);
    }
}
BENCHMARK(BM_ScheduleValues)->Unit(benchmark::kMillisecond);

// The layout alone: pages, places and the text lines of every field.
void BM_ScheduleLayout(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    BuiltReport built = build(doc, state.range(0) != 0);
    const PrinterGeometry a4 = PrinterGeometry::forPaper(tPapersize::alr_A4, TPrinterOrientation::poPortrait);
    LayoutPage page;
    page.pageWidth = a4.printableWidth;
    page.pageHeight = a4.printableHeight;
    int pages = 0;
    for (auto _ : state)
        pages = int(LayOutReport(built.report(), page).pages.size());
    state.counters["pages"] = pages;
}
BENCHMARK(BM_ScheduleLayout)->Arg(0)->Arg(1)->ArgNames({"oneLine"})->Unit(benchmark::kMillisecond);

// The whole shooting schedule to a PDF file: values, layout, painting and writing.
void BM_SchedulePdf(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("schedule.pdf"));
    for (auto _ : state) {
        BuiltReport built = build(doc, state.range(0) != 0);
        if (!WriteReportPdf(built.report(), path))
            state.SkipWithError("writing the PDF failed");
    }
    state.counters["strips"] = doc.strips.count();
}
BENCHMARK(BM_SchedulePdf)->Arg(0)->Arg(1)->ArgNames({"oneLine"})->Unit(benchmark::kMillisecond);

// The preview pages of the same: values, layout and the recorded pictures.
void BM_SchedulePreview(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    const PrinterGeometry a4 = PrinterGeometry::forPaper(tPapersize::alr_A4, TPrinterOrientation::poPortrait);
    int pages = 0;
    for (auto _ : state) {
        BuiltReport built = build(doc, false);
        QList<TDrawMetaFile *> list;
        if (!built.report().PreparePreview(list, a4))
            state.SkipWithError("preview failed");
        pages = int(list.size());
        qDeleteAll(list);
    }
    state.counters["pages"] = pages;
}
BENCHMARK(BM_SchedulePreview)->Unit(benchmark::kMillisecond);

} // namespace

namespace {

// The breakdown sheets of every scene of the capacity schedule to a PDF file: one sheet
// (a page) per scene, values, layout, painting and writing.
void BM_BreakdownPdf(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("breakdown.pdf"));
    int pages = 0;
    for (auto _ : state) {
        auto built = CreateBreakdownPages(doc, BreakdownReportOptions(), context(BreakdownTemplate));
        if (!built || !WriteReportPdf(built->report(), path))
            state.SkipWithError("writing the PDF failed");
        pages = built ? built->rows : 0;
    }
    state.counters["sheets"] = pages;
}
BENCHMARK(BM_BreakdownPdf)->Unit(benchmark::kMillisecond);

} // namespace
