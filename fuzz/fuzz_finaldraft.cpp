// Final Draft's two reports: the input is the scene report, a form feed, then the
// script report.

#include "FuzzSupport.h"

#include "document/DocumentOperations.h"
#include "document/ScheduleFile.h"
#include "import/FinalDraftImport.h"

using namespace tb;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    size_t split = 0;
    while (split < size && data[split] != '\f')
        ++split;
    const QString scenes = fuzz::WriteScratch("scenes.txt", data, split);
    const size_t rest = split < size ? split + 1 : size;
    const QString script = fuzz::WriteScratch("script.txt", data + rest, size - rest);
    fuzz::QuietDocument quiet;
    ScheduleDocument &doc = quiet.doc;
    NewDocument(doc);
    (void)ImportFinalDraft(doc, scenes, script);
    (void)ScheduleFileLines(doc);
    return 0;
}
