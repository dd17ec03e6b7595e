#pragma once

#include "TestSupport.h"

#include "app/TfrmMain.h"
#include "document/Settings.h"
#include "document/ShellCommands.h"
#include "ui/board/BoardView.h"

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace tb::test {

// Answers the file dialogs from a script, then with a standing answer (empty: cancelled).
class ScriptedFiles : public FileChooser
{
public:
    QString chooseOpenFile(const FileDialogSetup &setup) override { return next(setup); }
    QString chooseSaveFile(const FileDialogSetup &setup) override { return next(setup); }
    QString next(const FileDialogSetup &setup)
    {
        setups.append(setup);
        return answers.isEmpty() ? answer : answers.takeFirst();
    }
    QStringList answers;
    QString answer;
    QList<FileDialogSetup> setups;
};

// A main window on its own document, prompter, settings file and file dialogs.
struct Harness
{
    explicit Harness(const QString &iniName = QStringLiteral("main.ini"))
        : settings(TempPath(iniName))
    {
        doc.setPrompter(&prompter);
        main = std::make_unique<TfrmMain>(doc, settings);
        main->setFileChooser(&files);
        main->setFirstShowPause(0);
        main->hasPrinter = [] { return true; };
        main->setAutosavePath(TempPath("autosave-" + iniName + ".tbf"));
    }
    ~Harness()
    {
        main.reset();
        doc.setPrompter(nullptr);
    }
    // Shows the window and waits for the first-show steps.
    bool start()
    {
        main->show();
        return QTest::qWaitFor([&] { return main->firstShowDone(); }, 5000);
    }
    QAction *entry(const char *name) const { return main->findAction(QLatin1String(name)); }
    void trigger(const QString &name) { main->findAction(name)->trigger(); }
    QWidget *board() const { return main->board()->paintBox(); }

    // Runs the trigger of a modal dialog and returns that dialog's caption (empty when
    // none opened). `step` runs on the dialog, which is then cancelled if still open.
    QString dialogOf(const std::function<void()> &trigger, const std::function<void(QDialog *)> &step = {})
    {
        // Polled: a command may spin the event loop (saving, say) before its dialog shows.
        QString caption;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            poll.stop();
            caption = dialog->windowTitle();
            QCOMPARE(dialog->parentWidget(), main.get());
            if (step)
                step(dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
        poll.start(5);
        trigger();
        return caption;
    }

    ScheduleDocument doc;
    ScriptedPrompter prompter;
    Settings settings;
    ScriptedFiles files;
    std::unique_ptr<TfrmMain> main;
};

} // namespace tb::test
