// The production board: a full repaint of a large window, and a drop of many strips.

#include "BenchDocuments.h"

#include "board/BoardBuffer.h"
#include "board/BoardMoves.h"
#include "board/DrawBoard.h"

#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

using namespace tb;

namespace {

// What the paint box does on every paint: the board into the display buffer, then the
// buffer onto the window (here an image of the same size standing in for the window).
void BM_RepaintBoard(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    doc.SelStart = 3;
    doc.SelEnd = 5;
    const double scale = double(state.range(0)) / 100.0;
    const BoardStyle style = ClassicBoardStyle();
    BoardBuffer buffer;
    (void)buffer.SetBufferSize(1920, 1080);
    QImage window(1920, 1080, QImage::Format_RGB32);
    BoardTextCache texts;
    for (auto _ : state) {
        const BoardDrawResult last = buffer.paint(doc, style, 1, 1, scale, &texts);
        QPainter p(&window);
        p.setCompositionMode(QPainter::CompositionMode_Source);
        p.drawImage(0, 0, buffer.image());
        benchmark::DoNotOptimize(last);
    }
}
BENCHMARK(BM_RepaintBoard)->Arg(60)->Arg(100)->Arg(140)->ArgNames({"zoom%"})->Unit(benchmark::kMillisecond);

// The drawing alone, without the copy to the window: what the board itself costs.
void BM_DrawBoard(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    const BoardStyle style = ClassicBoardStyle();
    QImage image(1920, 1080, QImage::Format_RGB32);
    BoardTextCache texts;
    BoardDrawOptions options;
    options.texts = &texts;
    for (auto _ : state) {
        QPainter p(&image);
        const BoardDrawResult last = DrawBoard(doc, style, options, p);
        benchmark::DoNotOptimize(last);
    }
}
BENCHMARK(BM_DrawBoard)->Unit(benchmark::kMillisecond);

// A drop of 100 strips, alternately far right and back: undo snapshot, the move itself
// and the day recalculation that marking the document modified runs.
void BM_MoveStrips(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    const int count = int(state.range(0));
    bool forth = true;
    for (auto _ : state) {
        doc.SelStart = forth ? 101 : 701 - count;
        doc.SelEnd = doc.SelStart + count - 1;
        const int target = forth ? 701 : 101;
        if (!MoveStrips(doc, target))
            state.SkipWithError("nothing moved");
        forth = !forth;
    }
}
BENCHMARK(BM_MoveStrips)->Arg(100)->ArgNames({"strips"})->Unit(benchmark::kMicrosecond);

} // namespace
