#pragma once

// Shared by the fuzz targets: a quiet document, and a scratch file for the readers
// that take a path. FuzzSupport.cpp starts the Qt application for all of them.

#include "document/DocumentView.h"
#include "document/Prompter.h"
#include "document/ScheduleDocument.h"
#include "document/StatusSink.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <unistd.h>

namespace tb::fuzz {

class SilentPrompter : public Prompter
{
public:
    PromptReply ask(const Prompt &prompt) override { return {Answer::Yes, prompt.checkBoxChecked}; }
};

// A document whose every question is answered Yes, with no window.
struct QuietDocument
{
    SilentPrompter prompter; // declared first: it outlives the document
    ScheduleDocument doc;
    QuietDocument() { doc.setPrompter(&prompter); }
};

// A path private to this process on a memory file system when there is one.
inline QString ScratchPath(const char *name)
{
    const char *folder = access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp";
    return QString::fromLatin1("%1/tbfuzz-%2-%3").arg(QLatin1String(folder)).arg(getpid()).arg(QLatin1String(name));
}

inline QString WriteScratch(const char *name, const uint8_t *data, size_t size)
{
    const QString path = ScratchPath(name);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(reinterpret_cast<const char *>(data), qint64(size));
    return path;
}

} // namespace tb::fuzz
