// The Fountain screenplay import, on decoded bytes as the import reads them.

#include "FuzzSupport.h"

#include "document/LegacyText.h"
#include "document/ScheduleFile.h"
#include "import/FountainImport.h"
#include "import/ImportText.h"

using namespace tb;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    fuzz::QuietDocument quiet;
    ScheduleDocument &doc = quiet.doc;
    (void)ImportFountain(doc, SplitImportLines(legacy::DecodeFileText(bytes)), ScriptImportSettings());
    (void)ScheduleFileLines(doc);
    return 0;
}
