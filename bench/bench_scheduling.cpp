// Scheduling commands on a schedule at capacity.

#include "BenchDocuments.h"

#include "document/DocumentOperations.h"
#include "scheduling/DayDividers.h"

#include <benchmark/benchmark.h>

using namespace tb;

namespace {

// Automatic day dividers over a full board of 1000 strips: the old dividers are
// removed and about 150 new ones placed, with the undo snapshot and the two day
// recalculations the command runs. Each run starts from the same board; putting it
// back is part of the measured time (a table copy and the first write's detach).
void BM_AutoDayDividers(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    SetModified(doc);
    const StripTable board = doc.strips;
    AutoPagesOptions options;
    options.maxPages = 5;
    options.mode = state.range(0) != 0 ? AutoPagesMode::Split : AutoPagesMode::Keep;
    for (auto _ : state) {
        doc.strips = board;
        if (!AutoDayDividers(doc, options))
            state.SkipWithError("the dividers did not fit");
    }
    state.counters["strips"] = board.count();
    state.counters["after"] = doc.strips.count();
}
BENCHMARK(BM_AutoDayDividers)->Arg(0)->Arg(1)->ArgNames({"split"})->Unit(benchmark::kMicrosecond);

} // namespace
