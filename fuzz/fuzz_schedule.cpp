// The schedule file reader, then the day recalculation and the writer on whatever it read.

#include "FuzzSupport.h"

#include "document/ScheduleFile.h"

#include <QCoreApplication>

using namespace tb;

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication app(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = fuzz::WriteScratch("in.tbf", data, size);
    ScheduleDocument doc;
    fuzz::SilentPrompter prompter;
    doc.setPrompter(&prompter);
    (void)OpenDocument(doc, path);
    (void)ScheduleFileLines(doc);
    return 0;
}
