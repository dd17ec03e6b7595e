// The document at capacity: opening, saving, the day recalculation and table copies.

#include "BenchDocuments.h"

#include "document/DayCalculation.h"
#include "document/DocumentEdit.h"
#include "document/DocumentOperations.h"
#include "document/ScheduleFile.h"
#include "document/UndoStore.h"

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

namespace {

// One undo snapshot of a capacity schedule with all ten levels filled, after an edit
// of one strip (what every command does).
void BM_TakeUndoSnapshot(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    for (int i = 0; i < MaxUndoLevels; ++i)
        TakeUndoSnapshot(doc, QStringLiteral("fill"));
    int edit = 0;
    for (auto _ : state) {
        state.PauseTiming();
        ++edit;
        doc.strips[1 + edit % 900].set(StripField::Synopsis, QString::number(edit));
        state.ResumeTiming();
        // The edit path: the snapshot, then the document marked modified.
        DocumentEdit(doc, QStringLiteral("edit scene")).finish();
    }
}
BENCHMARK(BM_TakeUndoSnapshot)->Unit(benchmark::kMicrosecond);

// The snapshot's own work, without the recalculation of the edit that follows it.
void BM_UndoLevelShift(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    for (int i = 0; i < MaxUndoLevels; ++i)
        TakeUndoSnapshot(doc, QStringLiteral("fill"));
    QList<UndoLevel> levels = doc.undo.levels;
    int edit = 0;
    for (auto _ : state) {
        ++edit;
        doc.strips[1 + edit % 900].set(StripField::Synopsis, QString::number(edit));
        for (int k = MaxUndoLevels - 1; k >= 1; --k) {
            levels[k + 1].strips.assignRows(levels[k].strips, doc.strips.count());
            levels[k + 1].elements.assignRows(levels[k].elements, doc.elements.count());
        }
        levels[1].strips.assignRows(doc.strips, doc.strips.count());
        levels[1].elements.assignRows(doc.elements, doc.elements.count());
    }
}
BENCHMARK(BM_UndoLevelShift)->Unit(benchmark::kMicrosecond);

} // namespace
