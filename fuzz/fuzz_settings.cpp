// The settings file: the INI reader, every setting read from it, and writing it back.

#include "FuzzSupport.h"

#include "document/Settings.h"

using namespace tb;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString path = fuzz::WriteScratch("Torvanbridge.ini", data, size);
    Settings settings(path);
    (void)settings.LoadSettings();
    IniFile ini(path);
    ini.load();
    ini.writeString(QStringLiteral("Strips"), QStringLiteral("Font"), QStringLiteral("Arial"));
    (void)ini.text();
    return 0;
}
