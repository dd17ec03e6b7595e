#include "FuzzSupport.h"

#include <QGuiApplication>

// One application for every target, made before the first input. A GUI application on
// the offscreen platform, because the report layout measures text with real fonts.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication app(*argc, *argv);
    return 0;
}
