// The Final Draft (.fdx) screenplay import.

#include "FuzzSupport.h"

#include "document/ScheduleFile.h"
#include "import/FdxImport.h"

using namespace tb;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = fuzz::WriteScratch("in.fdx", data, size);
    fuzz::QuietDocument quiet;
    ScheduleDocument &doc = quiet.doc;
    (void)ImportFdxFile(doc, path, ScriptImportSettings());
    (void)ScheduleFileLines(doc);
    return 0;
}
