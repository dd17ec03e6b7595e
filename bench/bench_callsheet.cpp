// The call sheet of one day of a schedule at capacity: filling the sheet, and the sheet
// to a PDF file.

#include "BenchDocuments.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "reports/CallSheet.h"
#include "reports/ReportOutput.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace tb;

namespace {

// The date of the tenth shooting day's first scene.
double busyDay(ScheduleDocument &doc)
{
    CallSheet sheet;
    FillCallSheet(doc, sheet, 0); // the day numbers
    int day = -1;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        if (doc.strips[i].isScene() && doc.strips[i][StripField::ShootDayNumber] == QLatin1String("9")) {
            day = legacy::StrToIntDef(doc.strips[i][StripField::DayNumber], 0);
            break;
        }
    }
    return StartDateSerial(doc) + day;
}

// What the dialog does for a date: the day recalculation, the scenes, the element lists.
void BM_CallSheetFill(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    const double date = busyDay(doc);
    CallSheet sheet;
    for (auto _ : state) {
        FillCallSheet(doc, sheet, date);
        benchmark::DoNotOptimize(sheet.cast.rows.size());
    }
    state.counters["scenes"] = sheet.scenes.rowCount();
    state.counters["cast"] = sheet.cast.rowCount();
    state.counters["other"] = sheet.other.rowCount();
}
BENCHMARK(BM_CallSheetFill)->Unit(benchmark::kMicrosecond);

// The same without the day recalculation (a date change in the dialog).
void BM_CallSheetUpdate(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    CallSheet sheet;
    FillCallSheet(doc, sheet, busyDay(doc));
    for (auto _ : state) {
        UpdateSheet(doc, sheet);
        UpdateElementLists(doc, sheet);
        benchmark::DoNotOptimize(sheet.cast.rows.size());
    }
}
BENCHMARK(BM_CallSheetUpdate)->Unit(benchmark::kMicrosecond);

// The sheet to a PDF file: the template, the values, layout, painting and writing.
void BM_CallSheetPdf(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    CallSheet sheet;
    FillCallSheet(doc, sheet, busyDay(doc));
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("callsheet.pdf"));
    ReportBuildContext context;
    context.templatePath = QStringLiteral(TB_SOURCE_DIR "/templates/") + QString::fromLatin1(CallSheetTemplate);
    for (auto _ : state) {
        ResultOf<BuiltReport> built = CreateCallSheetPages(doc, sheet, context);
        if (!built || !WriteReportPdf(built->report(), path))
            state.SkipWithError("writing the PDF failed");
    }
}
BENCHMARK(BM_CallSheetPdf)->Unit(benchmark::kMillisecond);

} // namespace
