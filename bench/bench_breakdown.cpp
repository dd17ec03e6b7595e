// The whole-table breakdown commands at capacity: sorting strips by three keys and
// sorting elements by category.

#include "BenchDocuments.h"

#include "breakdown/ElementEditing.h"
#include "breakdown/StripOrder.h"
#include "document/DocumentOperations.h"

#include <QRandomGenerator>

#include <benchmark/benchmark.h>

using namespace tb;

namespace {

// 1000 scene strips with 60 locations in mixed case, the four times of day and the
// three interior/exterior codes, in no particular order.
void ThousandScenes(ScheduleDocument &doc)
{
    QRandomGenerator random(1009);
    static const char *dayNight[] = {"D", "N", "DWN", "DSK"};
    static const char *intExt[] = {"I", "E", "I/E"};
    for (int i = 1; i <= MaxStrips; ++i) {
        StripRecord s;
        const int location = int(random.bounded(60));
        s.set(StripField::StripKind, StripKinds::Scene);
        s.set(StripField::SceneNumber, QString::number(random.bounded(400)) + (i % 9 == 0 ? QStringLiteral("A") : ""));
        s.set(StripField::Location,
              (location % 2 ? QStringLiteral("harbour ") : QStringLiteral("HARBOUR ")) + QString::number(location));
        s.set(StripField::DayNight, QString::fromLatin1(dayNight[random.bounded(4)]));
        s.set(StripField::IntExt, QString::fromLatin1(intExt[random.bounded(3)]));
        s.set(StripField::Synopsis, QStringLiteral("A scene description long enough to be realistic %1").arg(i));
        s.set(StripField::PageLength, QStringLiteral("1.375"));
        s.set(StripField::StripId, QString::number(i));
        (void)doc.strips.append(s);
    }
    doc.values.NextStripId = MaxStrips;
    SetModified(doc);
}

// The Sort button: the preview of 1000 strips sorted by location, day / night and
// interior / exterior.
void BM_SortStripsPreview(benchmark::State &state)
{
    ScheduleDocument doc;
    ThousandScenes(doc);
    const QList<SortRow> rows = SortPreviewRows(doc);
    for (auto _ : state) {
        QList<SortRow> sorted = rows;
        SortRowsByKeys(sorted, SortColumn::Location, SortColumn::DayNight, SortColumn::IntExt);
        benchmark::DoNotOptimize(sorted);
    }
}
BENCHMARK(BM_SortStripsPreview)->Unit(benchmark::kMillisecond);

// The whole command: preview, sort, undo snapshot, strip table rebuilt, days recalculated.
void BM_SortStrips(benchmark::State &state)
{
    ScheduleDocument doc;
    ThousandScenes(doc);
    const StripTable original = doc.strips;
    for (auto _ : state) {
        state.PauseTiming();
        doc.strips = original;
        state.ResumeTiming();
        SortStrips(doc, SortColumn::Location, SortColumn::DayNight, SortColumn::IntExt);
    }
}
BENCHMARK(BM_SortStrips)->Unit(benchmark::kMillisecond);

// Runs an element sort on the capacity schedule (500 elements, 1000 strips with 833
// scenes of 8 elements), putting the tables back between runs.
template <typename Sort>
void runElementSort(benchmark::State &state, Sort sort)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    const StripTable strips = doc.strips;
    const ElementTable elements = doc.elements;
    for (auto _ : state) {
        state.PauseTiming();
        doc.strips = strips;
        doc.elements = elements;
        state.ResumeTiming();
        sort(doc);
    }
}

// The whole command: with the undo snapshot and the recalculation that follow.
void BM_SortElements(benchmark::State &state)
{
    runElementSort(state, [](ScheduleDocument &doc) { SortElementsByCategory(doc); });
}
BENCHMARK(BM_SortElements)->Unit(benchmark::kMillisecond);

// The table work of the element sort alone.
void BM_SortElementRows(benchmark::State &state)
{
    runElementSort(state, [](ScheduleDocument &doc) { SortElementRows(doc); });
}
BENCHMARK(BM_SortElementRows)->Unit(benchmark::kMillisecond);

} // namespace
