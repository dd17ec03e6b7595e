// The day out of days and the printed board of large schedules: building the chart,
// printing it to PDF, and printing a board of 1000 strips to PDF.

#include "BenchDocuments.h"

#include "board/BoardPrinting.h"
#include "document/DayCalculation.h"
#include "document/DocumentOperations.h"
#include "reports/DayOutOfDays.h"
#include "reports/DayOutOfDaysPrint.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPdfWriter>

#include <benchmark/benchmark.h>

using namespace tb;

namespace {

// 1000 strips over 200 production days (four scenes and a divider a day) and 300
// cast members, each scene with eight of them, half the cast under the hold rule.
void FillCastHeavy(ScheduleDocument &doc)
{
    for (int e = 1; e <= 300; ++e) {
        ElementRecord element;
        element.set(ElementField::Description, QStringLiteral("CAST MEMBER %1").arg(e));
        element.set(ElementField::CategoryNumber, QStringLiteral("1"));
        element.set(ElementField::BoardId, QString::number(e));
        element.set(ElementField::HoldRule, e % 2 ? QStringLiteral("SAG") : QStringLiteral("NONE"));
        (void)doc.elements.append(element); // far below capacity
    }
    quint32 seed = 12345;
    auto next = [&seed](int n) {
        seed = seed * 1103515245u + 12345u;
        return int((seed >> 16) % quint32(n));
    };
    for (int day = 0; day < 200; ++day) {
        for (int s = 0; s < 4; ++s) {
            StripRecord scene;
            scene.set(StripField::StripKind, StripKinds::Scene);
            scene.set(StripField::SceneNumber, QString::number(day * 4 + s + 1));
            scene.set(StripField::PageLength, QStringLiteral("1"));
            QStringList cast;
            for (int c = 0; c < 8; ++c)
                cast.append(QString::number(1 + next(300)));
            scene.set(StripField::Assignments, cast.join(u','));
            (void)doc.strips.append(scene);
        }
        StripRecord divider;
        divider.set(StripField::StripKind, StripKinds::DayDivider);
        divider.set(StripField::DayCount, QStringLiteral("1"));
        (void)doc.strips.append(divider);
    }
    doc.values.StartDate = QStringLiteral("46087");
    doc.values.HoldDays = 10;
    RecalculateDays(doc);
}

void BM_DayOutOfDaysBuild(benchmark::State &state)
{
    ScheduleDocument doc;
    FillCastHeavy(doc);
    for (auto _ : state) {
        DayOutOfDaysGrid grid = BuildDayOutOfDays(doc);
        benchmark::DoNotOptimize(grid.cells);
    }
}
BENCHMARK(BM_DayOutOfDaysBuild)->Unit(benchmark::kMillisecond);

QPageLayout landscapeA4()
{
    return QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(5, 5, 5, 5),
                       QPageLayout::Millimeter);
}

void BM_DayOutOfDaysPdf(benchmark::State &state)
{
    ScheduleDocument doc;
    FillCastHeavy(doc);
    const DayOutOfDaysGrid grid = BuildDayOutOfDays(doc);
    DayOutOfDaysPrintOptions options;
    options.inColour = true;
    for (auto _ : state) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        {
            QPdfWriter writer(&buffer);
            writer.setResolution(300);
            writer.setPageLayout(landscapeA4());
            const DayOutOfDaysPrintResult printed = PrintDayOutOfDays(grid, options, writer);
            state.counters["pages"] = printed.pages;
            state.counters["slices"] = printed.slices;
        }
    }
}
BENCHMARK(BM_DayOutOfDaysPdf)->Unit(benchmark::kMillisecond);

void BM_PrintBoardPdf(benchmark::State &state)
{
    ScheduleDocument doc;
    bench::FillToCapacity(doc);
    const BoardStyle style = ClassicBoardStyle();
    for (auto _ : state) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        int pages = 0;
        {
            QPdfWriter writer(&buffer);
            writer.setResolution(300);
            writer.setPageLayout(landscapeA4());
            pages = int(PrintBoard(doc, style, BoardPrintOptions(), writer).pages.size());
        }
        state.counters["pages"] = pages;
    }
}
BENCHMARK(BM_PrintBoardPdf)->Unit(benchmark::kMillisecond);

} // namespace
