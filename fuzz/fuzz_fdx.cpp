// The Final Draft (.fdx) screenplay import.

#include "FuzzSupport.h"

#include "document/ScheduleFile.h"
#include "import/FdxImport.h"

#include <QCoreApplication>

using namespace tb;

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = fuzz::WriteScratch("in.fdx", data, size);
    ScheduleDocument doc;
    fuzz::SilentPrompter prompter;
    doc.setPrompter(&prompter);
    (void)ImportFdxFile(doc, path, ScriptImportSettings());
    (void)ScheduleFileLines(doc);
    return 0;
}
