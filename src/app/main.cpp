// torvanbridge: the desktop program.

#include "app/TfrmMain.h"
#include "app/TfrmTBSplash.h"
#include "document/ProgramHelp.h"
#include "document/ScheduleDocument.h"
#include "document/Settings.h"
#include "ui/shell/MessageBoxPrompter.h"

#include <QApplication>
#include <QIcon>
#include <QTextStream>

int main(int argc, char **argv)
{
    // Answered before any window is made, so they work without a display. The build
    // makes the manual page with --help-man.
    if (argc == 2) {
        QTextStream out(stdout);
        if (qstrcmp(argv[1], "--help") == 0 || qstrcmp(argv[1], "-h") == 0) {
            out << tb::FormatHelpText(tb::DesktopProgramHelp());
            return 0;
        }
        if (qstrcmp(argv[1], "--version") == 0) {
            out << "torvanbridge " << TB_VERSION << '\n';
            return 0;
        }
        if (qstrcmp(argv[1], "--help-man") == 0) {
            out << tb::FormatManPage(tb::DesktopProgramHelp(), QStringLiteral(TB_VERSION));
            return 0;
        }
    }

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
    // The icon of the window and of every dialog, and the desktop entry the window
    // belongs to (its menu icon and name in the task bar).
    QIcon icon;
    for (int size : {16, 24, 32, 48, 64, 128, 256, 512})
        icon.addFile(QStringLiteral(":/icons/torvanbridge-%1.png").arg(size), QSize(size, size));
    QApplication::setWindowIcon(icon);
    QGuiApplication::setDesktopFileName(QStringLiteral("com.brenholt.Torvanbridge"));

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
