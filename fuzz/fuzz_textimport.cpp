// The plain-text screenplay import, on decoded bytes as the wizard reads them.

#include "FuzzSupport.h"

#include "document/LegacyText.h"
#include "document/ScheduleFile.h"
#include "import/ImportText.h"
#include "import/ScriptImport.h"

using namespace tb;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    fuzz::QuietDocument quiet;
    ScheduleDocument &doc = quiet.doc;
    ScriptImportSettings settings;
    // The first byte picks the lines per page, as the wizard's box allows 1..99.
    if (size > 0)
        settings.linesPerPage = 1 + data[0] % 99;
    (void)DoImport(doc, SplitImportLines(legacy::DecodeFileText(bytes)), settings);
    (void)ScheduleFileLines(doc);
    return 0;
}
