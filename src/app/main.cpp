// torvanbridge: the desktop program.

#include "app/TfrmMain.h"
#include "app/TfrmTBSplash.h"
#include "document/ScheduleDocument.h"
#include "document/Settings.h"
#include "ui/shell/MessageBoxPrompter.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);

    // 1. The splash window, painted before anything else is made.
    tb::TfrmTBSplash splash;
    splash.show();
    app.processEvents();

    // 2. The application and its title.
    QApplication::setApplicationName(QStringLiteral("Torvanbridge"));
    QApplication::setApplicationDisplayName(QStringLiteral("Torvanbridge"));
    QApplication::setOrganizationName(QStringLiteral("Brenholt"));
    QApplication::setApplicationVersion(QStringLiteral(TB_VERSION));

    // 3. The forms, the main window first; it makes every area's dialogs, which are
    //    kept until the program ends.
    tb::ScheduleDocument doc;
    tb::Settings settings;
    tb::TfrmMain main(doc, settings);
    tb::MessageBoxPrompter prompter(&main);
    doc.setPrompter(&prompter);
    const QStringList args = QApplication::arguments();
    if (args.size() > 1)
        main.setCommandLineFile(args.at(1));

    // 4. The splash goes; the main window shows and the message loop runs.
    splash.close();
    main.show();
    const int code = app.exec();
    doc.setPrompter(nullptr);
    return code;
}
