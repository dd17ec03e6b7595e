// The schedule file reader, then the day recalculation and the writer on whatever it read.

#include "FuzzSupport.h"

#include "document/ScheduleFile.h"

using namespace tb;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = fuzz::WriteScratch("in.tbf", data, size);
    fuzz::QuietDocument quiet;
    ScheduleDocument &doc = quiet.doc;
    (void)OpenDocument(doc, path);
    (void)ScheduleFileLines(doc);
    return 0;
}
