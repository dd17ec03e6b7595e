// Importing screenplays: a feature-length plain-text, Fountain and Final Draft (.fdx)
// script, and Final Draft reports.

#include "document/ScheduleDocument.h"
#include "import/FdxImport.h"
#include "import/FinalDraftImport.h"
#include "import/FountainImport.h"
#include "import/ImportSummary.h"
#include "import/ImportText.h"
#include "import/ScriptImport.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace tb;

namespace {

// About 120 pages: a real screenplay repeated until it reaches 6,600 lines.
QStringList FeatureScript()
{
    const ResultOf<QStringList> one =
        ReadScriptFile(QDir(QStringLiteral(TB_SCREENPLAYS_DIR)).filePath(QStringLiteral("trelby-test.txt")));
    QStringList lines;
    if (!one || one->isEmpty())
        return lines;
    while (lines.size() < 6600)
        lines += *one;
    return lines;
}

void CountStrips(benchmark::State &state, const ScheduleDocument &doc, qsizetype lines)
{
    state.counters["lines"] = double(lines);
    state.counters["strips"] = doc.strips.count();
    state.counters["elements"] = doc.elements.count();
}

void BM_ImportScript(benchmark::State &state)
{
    const QStringList lines = FeatureScript();
    if (lines.isEmpty()) {
        state.SkipWithError("the sample screenplay is missing");
        return;
    }
    ScheduleDocument doc;
    for (auto _ : state) {
        if (!DoImport(doc, lines, ScriptImportSettings()))
            state.SkipWithError("import failed");
    }
    CountStrips(state, doc, lines.size());
}
BENCHMARK(BM_ImportScript)->Unit(benchmark::kMillisecond);

// The same from the file: reading, decoding and splitting included.
void BM_ReadAndImportScript(benchmark::State &state)
{
    const QStringList lines = FeatureScript();
    if (lines.isEmpty()) {
        state.SkipWithError("the sample screenplay is missing");
        return;
    }
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("feature.txt"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        state.SkipWithError("cannot write the script");
        return;
    }
    file.write(lines.join(u'\n').toUtf8() + '\n');
    file.close();
    ScheduleDocument doc;
    for (auto _ : state) {
        const ResultOf<QStringList> read = ReadScriptFile(path);
        if (!read || !DoImport(doc, *read, ScriptImportSettings()))
            state.SkipWithError("import failed");
    }
    CountStrips(state, doc, lines.size());
}
BENCHMARK(BM_ReadAndImportScript)->Unit(benchmark::kMillisecond);

// Final Draft reports of 900 scenes, each with a heading and (in the first scene) the
// characters the reader accepts.
void BM_ImportFinalDraft(benchmark::State &state)
{
    QTemporaryDir dir;
    QStringList script{QStringLiteral("Script Report"), QString()};
    QStringList scenes;
    for (int k = 1; k <= 900; ++k) {
        script << QStringLiteral("## Page: %1, Scene: %2").arg(k / 8 + 1).arg(k)
               << QStringLiteral("%1. HARBOUR WALL %2 - NIGHT").arg(k % 2 ? "EXT" : "INT").arg(k);
        if (k == 1)
            script << QStringLiteral("MARY") << QStringLiteral("JOHN (V.O.)") << QStringLiteral("PETE");
        script << QString();
        scenes << QStringLiteral("%1\tEXT. HARBOUR WALL - NIGHT\t%2\t1 3/8 Pgs").arg(k).arg(k / 8 + 1);
    }
    auto write = [&dir](const QString &name, const QStringList &lines) {
        QFile f(dir.filePath(name));
        if (f.open(QIODevice::WriteOnly))
            f.write(lines.join(QStringLiteral("\r\n")).toUtf8() + "\r\n");
        return f.fileName();
    };
    const QString scriptPath = write(QStringLiteral("script.txt"), script);
    const QString scenePath = write(QStringLiteral("scenes.txt"), scenes);
    ScheduleDocument doc;
    for (auto _ : state) {
        state.PauseTiming();
        doc.strips.setCount(0);
        doc.elements.setCount(0);
        doc.locationPickList.clear();
        doc.values.NextStripId = 0;
        state.ResumeTiming();
        if (!ImportFinalDraft(doc, scenePath, scriptPath))
            state.SkipWithError("import failed");
    }
    CountStrips(state, doc, script.size());
}
BENCHMARK(BM_ImportFinalDraft)->Unit(benchmark::kMillisecond);

// About 120 pages of Fountain: the bodies of the sample scripts (without their title
// pages) one after the other until the script reaches 120 standard pages.
QStringList FeatureFountain()
{
    QList<QStringList> bodies;
    for (const char *name : {"my_living_memory.fountain", "printing_trouble.fountain", "brick_and_steel.fountain"}) {
        const ResultOf<QStringList> lines =
            ReadImportText(QDir(QStringLiteral(TB_IMPORT_DATA)).filePath(QString::fromLatin1(name)));
        if (!lines)
            return {};
        QStringList body = *lines;
        while (!body.isEmpty() && !body.first().trimmed().isEmpty())
            body.removeFirst(); // the title page
        bodies.append(body);
    }
    QStringList script{QStringLiteral("Title: Feature"), QString()};
    for (int k = 0;; ++k) {
        script += bodies.at(k % bodies.size());
        const QList<double> at = PaginateScreenplay(ParseFountain(script).paragraphs);
        if (at.last() >= 120.0)
            return script;
    }
}

// The same script as .fdx, paragraph by paragraph, without scene lengths and pages so
// that the import counts them.
QByteArray FeatureFdx(const QStringList &fountain)
{
    static const char *const types[] = {"Scene Heading", "Action",     "Character", "Parenthetical",
                                        "Dialogue",      "Transition", "Action",    "Action"};
    QString xml = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<FinalDraft DocumentType=\"Script\" "
                                 "Version=\"5\">\n<Content>\n");
    int scene = 0;
    for (const ScreenplayParagraph &p : ParseFountain(fountain).paragraphs) {
        xml += QStringLiteral("<Paragraph Type=\"%1\"").arg(QString::fromLatin1(types[int(p.kind)]));
        if (p.kind == ScreenplayElement::Heading)
            xml += QStringLiteral(" Number=\"%1\"").arg(++scene);
        xml += QStringLiteral("><Text>") + p.text.toHtmlEscaped() + QStringLiteral("</Text></Paragraph>\n");
    }
    xml += QStringLiteral("</Content>\n</FinalDraft>\n");
    return xml.toUtf8();
}

void CountScreenplay(benchmark::State &state, const ScheduleDocument &doc)
{
    state.counters["strips"] = doc.strips.count();
    state.counters["elements"] = doc.elements.count();
    state.counters["pages"] = SummarizeImport(doc).pages;
}

// Reading a 120-page Fountain file and building its schedule.
void BM_ImportFountain(benchmark::State &state)
{
    const QStringList script = FeatureFountain();
    if (script.isEmpty()) {
        state.SkipWithError("the sample scripts are missing");
        return;
    }
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("feature.fountain")));
    if (!file.open(QIODevice::WriteOnly)) {
        state.SkipWithError("cannot write the script");
        return;
    }
    file.write(script.join(QStringLiteral("\r\n")).toUtf8());
    file.close();
    ScheduleDocument doc;
    for (auto _ : state) {
        const ResultOf<QStringList> lines = ReadScriptFile(file.fileName());
        if (!lines || !ImportFountain(doc, *lines, ScriptImportSettings()))
            state.SkipWithError("import failed");
    }
    CountScreenplay(state, doc);
}
BENCHMARK(BM_ImportFountain)->Unit(benchmark::kMillisecond);

// The same script as a Final Draft file.
void BM_ImportFdx(benchmark::State &state)
{
    const QStringList script = FeatureFountain();
    if (script.isEmpty()) {
        state.SkipWithError("the sample scripts are missing");
        return;
    }
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("feature.fdx")));
    if (!file.open(QIODevice::WriteOnly)) {
        state.SkipWithError("cannot write the script");
        return;
    }
    file.write(FeatureFdx(script));
    file.close();
    state.counters["bytes"] = double(file.size());
    ScheduleDocument doc;
    for (auto _ : state) {
        if (!ImportFdxFile(doc, file.fileName(), ScriptImportSettings()))
            state.SkipWithError("import failed");
    }
    CountScreenplay(state, doc);
}
BENCHMARK(BM_ImportFdx)->Unit(benchmark::kMillisecond);

} // namespace
