#include "TestSupport.h"

#include "app/ShellCommands.h"
#include "document/DocumentOperations.h"
#include "document/ScheduleFile.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTest>

using namespace tb;
using namespace tb::test;

namespace {

// Answers the file dialogs from a script and records how they were set up.
class ScriptedFiles : public FileChooser
{
public:
    QString chooseOpenFile(const FileDialogSetup &setup) override
    {
        setups.append(setup);
        return answers.isEmpty() ? QString() : answers.takeFirst();
    }
    QString chooseSaveFile(const FileDialogSetup &setup) override
    {
        setups.append(setup);
        return answers.isEmpty() ? QString() : answers.takeFirst();
    }
    QStringList answers;
    QList<FileDialogSetup> setups;
};

QString saved(const QString &name, const QString &title)
{
    ScheduleDocument doc;
    doc.values.PictureTitle = title;
    AddScene(doc, "1", "1");
    const QString path = TempPath(name);
    if (!SaveDocument(doc, path).ok())
        return {};
    return path;
}

// A changed document with one scene.
void changed(ScheduleDocument &doc)
{
    AddScene(doc, "7", "2");
    SetModified(doc);
}

} // namespace

class TestShellCommands : public QObject
{
    Q_OBJECT

private slots:
    void newWithChanges_data();
    void newWithChanges();
    void newUnchangedAsksNothing();
    void openDialogSetUp();
    void saveUntitledGoesThroughSaveAs();
    void saveToMissingFileGoesThroughSaveAs();
    void recentFileQuestion();
    void droppedFilesOpenFirstOnly();
    void closeQuery_data();
    void closeQuery();
    void autosaveClearsCloseQuestion();
    void autosaveFolder();
};

void TestShellCommands::newWithChanges_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("savePath"); // the Save As dialog's answer; empty = cancelled
    QTest::addColumn<bool>("emptied");
    QTest::addColumn<bool>("written");
    QTest::newRow("yes, saved") << Answer::Yes << "new-yes.tbf" << true << true;
    QTest::newRow("yes, save cancelled: changes lost") << Answer::Yes << "" << true << false;
    QTest::newRow("no") << Answer::No << "" << true << false;
    QTest::newRow("cancel") << Answer::Cancel << "" << false << false;
}

void TestShellCommands::newWithChanges()
{
    QFETCH(Answer, answer);
    QFETCH(QString, savePath);
    QFETCH(bool, emptied);
    QFETCH(bool, written);
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    changed(doc);
    prompter.answers = {answer};
    ScriptedFiles files;
    const QString path = savePath.isEmpty() ? QString() : TempPath(savePath);
    files.answers = {path};

    NewCommand(doc, files);

    QCOMPARE(prompter.prompts.size(), 1);
    const Prompt &asked = prompter.prompts.first();
    QCOMPARE(asked.text, "You have made changes to the schedule which have not been saved. Do you wish to save "
                         "them now?");
    QCOMPARE(asked.kind, MessageKind::Confirmation);
    QCOMPARE(asked.buttons, Buttons::YesNoCancel);
    QVERIFY(asked.beep);
    QCOMPARE(doc.strips.count(), emptied ? 0 : 1);
    QCOMPARE(doc.Modified, !emptied);
    QCOMPARE(files.setups.size(), answer == Answer::Yes ? 1 : 0);
    if (answer == Answer::Yes)
        QCOMPARE(files.setups.first().title, "Save file");
    QCOMPARE(!path.isEmpty() && QFile::exists(path), written);
    if (written) {
        ScheduleDocument reopened;
        QVERIFY(OpenDocument(reopened, path).ok());
        QCOMPARE(reopened.strips[1][StripField::SceneNumber], "7");
    }
}

void TestShellCommands::newUnchangedAsksNothing()
{
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    AddScene(doc, "1", "1");
    ClearModified(doc);
    ScriptedFiles files;
    NewCommand(doc, files);
    QVERIFY(prompter.prompts.isEmpty());
    QCOMPARE(doc.strips.count(), 0);
}

void TestShellCommands::openDialogSetUp()
{
    const QString path = saved("open-me.tbf", "Rain");
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    changed(doc);
    prompter.answers = {Answer::No};
    ScriptedFiles files;
    files.answers = {path};
    OpenCommand(doc, files);

    QCOMPARE(prompter.prompts.size(), 1);
    QVERIFY(prompter.prompts.first().beep);
    QCOMPARE(files.setups.size(), 1);
    const FileDialogSetup setup = files.setups.first();
    QCOMPARE(setup.title, "Open file");
    QCOMPARE(setup.defaultSuffix, "tbf");
    QCOMPARE(setup.fileName, "*.tbf");
    QVERIFY(setup.filter.startsWith("Torvanbridge file (*.tbf)"));
    QCOMPARE(SaveFileSetup().title, "Save file");
    QCOMPARE(SaveFileSetup().filter, setup.filter);
    QCOMPARE(doc.values.PictureTitle, "Rain");
    QCOMPARE(doc.FileName, path);
}

void TestShellCommands::saveUntitledGoesThroughSaveAs()
{
    ScheduleDocument doc;
    changed(doc);
    ScriptedFiles files; // cancels
    QVERIFY(!SaveCommand(doc, files));
    QCOMPARE(files.setups.size(), 1);
    QCOMPARE(files.setups.first().title, "Save file");
    QVERIFY(doc.Modified);
    QVERIFY(doc.FileName.isEmpty());

    const QString path = TempPath("untitled.tbf");
    files.answers = {path};
    QVERIFY(SaveCommand(doc, files));
    QCOMPARE(doc.FileName, path);
    QVERIFY(!doc.Modified);
    QVERIFY(QFile::exists(path));
}

void TestShellCommands::saveToMissingFileGoesThroughSaveAs()
{
    ScheduleDocument doc;
    changed(doc);
    doc.FileName = TempPath("deleted-meanwhile.tbf");
    ScriptedFiles files;
    const QString other = TempPath("saved-elsewhere.tbf");
    files.answers = {other};
    QVERIFY(SaveCommand(doc, files));
    QCOMPARE(files.setups.size(), 1);
    QCOMPARE(doc.FileName, other);
    QVERIFY(!QFile::exists(TempPath("deleted-meanwhile.tbf")));
}

void TestShellCommands::recentFileQuestion()
{
    const QString path = saved("recent.tbf", "Recent");
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    changed(doc);
    ScriptedFiles files;
    prompter.answers = {Answer::Cancel};
    OpenRecentCommand(doc, files, path);
    QCOMPARE(prompter.prompts.size(), 1);
    QCOMPARE(prompter.prompts.first().text, "The current schedule has not been saved since the last change. Do you "
                                            "wish to save it before opening " +
                                                path + " ?");
    QVERIFY(prompter.prompts.first().beep);
    QCOMPARE(prompter.prompts.first().buttons, Buttons::YesNoCancel);
    QCOMPARE(doc.values.PictureTitle, "");

    prompter.answers = {Answer::No};
    OpenRecentCommand(doc, files, path);
    QCOMPARE(doc.values.PictureTitle, "Recent");

    // Unchanged: no question.
    OpenRecentCommand(doc, files, path);
    QCOMPARE(prompter.prompts.size(), 2);
}

void TestShellCommands::droppedFilesOpenFirstOnly()
{
    const QString first = saved("drop1.tbf", "First");
    const QString second = saved("drop2.tbf", "Second");
    const QString third = saved("drop3.tbf", "Third");
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    RecordingView view;
    doc.setView(&view);
    changed(doc);
    DropFilesCommand(doc, {first, second, third});
    // Replaced without a question.
    QVERIFY(prompter.prompts.isEmpty());
    QCOMPARE(doc.values.PictureTitle, "First");
    QCOMPARE(doc.FileName, first);
    QVERIFY(!doc.Modified);
    QVERIFY(!view.recent.contains(second));
    DropFilesCommand(doc, {});
    QCOMPARE(doc.FileName, first);
}

void TestShellCommands::closeQuery_data()
{
    QTest::addColumn<bool>("modified");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<bool>("mayClose");
    QTest::addColumn<int>("dialogs");
    QTest::newRow("unchanged") << false << Answer::Yes << true << 0;
    QTest::newRow("yes") << true << Answer::Yes << true << 1;
    QTest::newRow("no") << true << Answer::No << true << 0;
    QTest::newRow("cancel") << true << Answer::Cancel << false << 0;
}

void TestShellCommands::closeQuery()
{
    QFETCH(bool, modified);
    QFETCH(Answer, answer);
    QFETCH(bool, mayClose);
    QFETCH(int, dialogs);
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    if (modified)
        changed(doc);
    prompter.answers = {answer};
    ScriptedFiles files;
    QCOMPARE(CloseQuery(doc, files), mayClose);
    QCOMPARE(prompter.prompts.size(), modified ? 1 : 0);
    if (modified)
        QVERIFY(!prompter.prompts.first().beep); // closing does not beep
    QCOMPARE(files.setups.size(), dialogs);
}

void TestShellCommands::autosaveClearsCloseQuestion()
{
    const QString own = saved("own.tbf", "Own");
    const QByteArray before = [&] {
        QFile f(own);
        f.open(QIODevice::ReadOnly);
        return f.readAll();
    }();
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    RecordingStatus status;
    doc.setStatusSink(&status);
    RecordingView view;
    doc.setView(&view);
    QVERIFY(OpenDocument(doc, own).ok());
    changed(doc);
    view.recent.clear();

    const QString autosave = TempPath("autosave.tbf");
    QVERIFY(AutosaveCommand(doc, autosave).ok());
    QVERIFY(QFile::exists(autosave));
    QVERIFY(!doc.Modified);
    QCOMPARE(doc.FileName, own); // the document keeps its own name ...
    QFile ownFile(own);
    QVERIFY(ownFile.open(QIODevice::ReadOnly));
    QCOMPARE(ownFile.readAll(), before); // ... and its own file is not written
    QCOMPARE(status.panels.value(StatusSink::MessagePanel), "");
    QVERIFY(!view.recent.contains(autosave)); // the autosave file is no recent file
    ScheduleDocument copy;
    QVERIFY(OpenDocument(copy, autosave).ok());
    QCOMPARE(copy.strips.count(), 2);

    // Required behaviour: closing now asks nothing, and the change is not in the own file.
    ScriptedFiles files;
    QVERIFY(CloseQuery(doc, files));
    QVERIFY(prompter.prompts.isEmpty());
}

void TestShellCommands::autosaveFolder()
{
    const QString writable = QFileInfo(TempPath("x")).absolutePath();
    QCOMPARE(AutosavePath(writable), QDir(writable).filePath("autosave.tbf"));
    QCOMPARE(AutosavePath(writable + "/"), QDir(writable).filePath("autosave.tbf"));
    // A folder that cannot be written to (here: one that is not there) sends the
    // file to the per-user data folder, which is made if needed.
    const QString path = AutosavePath("/nonexistent/program/folder/");
    QCOMPARE(QFileInfo(path).fileName(), "autosave.tbf");
    QCOMPARE(QFileInfo(path).absolutePath(), QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    QVERIFY(QFileInfo(QFileInfo(path).absolutePath()).isDir());
}

QTEST_GUILESS_MAIN(TestShellCommands)
#include "tst_shellcommands.moc"
