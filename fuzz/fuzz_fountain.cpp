// The Fountain screenplay import, on decoded bytes as the import reads them.

#include "FuzzSupport.h"

#include "document/LegacyText.h"
#include "document/ScheduleFile.h"
#include "import/FountainImport.h"
#include "import/ImportText.h"

#include <QCoreApplication>

using namespace tb;

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    ScheduleDocument doc;
    fuzz::SilentPrompter prompter;
    doc.setPrompter(&prompter);
    (void)ImportFountain(doc, SplitImportLines(legacy::DecodeFileText(bytes)), ScriptImportSettings());
    (void)ScheduleFileLines(doc);
    return 0;
}
