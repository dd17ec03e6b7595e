// The document at capacity: opening, saving, the day recalculation and table copies.

#include "BenchDocuments.h"

#include "document/DocumentOperations.h"
#include "document/ScheduleFile.h"
#include "scheduling/DayCalculation.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace tb;

namespace {

void BM_SaveDocument(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("capacity.tbf"));
    for (auto _ : state) {
        if (!SaveDocument(doc, path))
            state.SkipWithError("save failed");
    }
}
BENCHMARK(BM_SaveDocument)->Unit(benchmark::kMillisecond);

void BM_OpenDocument(benchmark::State &state)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("capacity.tbf"));
    {
        ScheduleDocument doc;
        bench::FillToCapacity(doc);
        (void)SaveDocument(doc, path);
    }
    ScheduleDocument doc;
    for (auto _ : state) {
        if (!OpenDocument(doc, path))
            state.SkipWithError("open failed");
    }
}
BENCHMARK(BM_OpenDocument)->Unit(benchmark::kMillisecond);

void BM_RecalculateDays(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc, state.range(0) != 0);
    for (auto _ : state)
        RecalculateDays(doc);
    state.counters["strips"] = doc.strips.count();
}
BENCHMARK(BM_RecalculateDays)->Arg(0)->Arg(1)->ArgNames({"restDays"})->Unit(benchmark::kMicrosecond);

// What the undo store does on every edit: copy both tables.
void BM_CopyTables(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    for (auto _ : state) {
        StripTable strips = doc.strips;
        ElementTable elements = doc.elements;
        benchmark::DoNotOptimize(strips);
        benchmark::DoNotOptimize(elements);
    }
}
BENCHMARK(BM_CopyTables)->Unit(benchmark::kMicrosecond);

// A copy followed by the first write to the document's tables: the write detaches
// the row pointers (the field texts stay shared).
void BM_CopyTablesThenEdit(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    for (auto _ : state) {
        StripTable strips = doc.strips;
        ElementTable elements = doc.elements;
        doc.strips[1].set(StripField::Synopsis, QStringLiteral("edited"));
        doc.elements[1].set(ElementField::Description, QStringLiteral("edited"));
        benchmark::DoNotOptimize(strips);
        benchmark::DoNotOptimize(elements);
    }
}
BENCHMARK(BM_CopyTablesThenEdit)->Unit(benchmark::kMicrosecond);

} // namespace
