#include "ImportTestSupport.h"

#include "app/CommandHost.h"
#include "app/MenuActions.h"
#include "document/DocumentOperations.h"
#include "import/FinalDraftImport.h"
#include "import/ImportCommandSteps.h"
#include "import/InstallImportCommands.h"
#include "import/TfrmFDImport.h"
#include "import/TfrmImportScript.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

#include <cstdlib>

using namespace tb;
using namespace tb::test;

namespace {

const QString DataDir = QStringLiteral(TB_IMPORT_DATA);

// A folder with two scripts and files the file list must not show.
struct ScriptFolder
{
    QTemporaryDir dir;
    ScriptFolder()
    {
        write("kitchen.txt", "FADE IN:\n\nINT. KITCHEN - NIGHT\n\nSteam rises.\n\n          MARY\n    Tea?\n\n"
                             "EXT. BARN - DAY\n\n          JOHN\n    Later.\n");
        write("B-SIDE.TXT", "EXT. ROAD - DAY\n");
        write("notes.pdf", "%PDF");
        write("report.text", "x");
        QDir(dir.path()).mkdir("drafts");
    }
    void write(const char *name, const QByteArray &bytes)
    {
        QFile f(path(name));
        if (f.open(QIODevice::WriteOnly))
            f.write(bytes);
    }
    QString path(const QString &name) const { return QDir(dir.path()).filePath(name); }
};

template <typename T>
T *child(QWidget *parent, const char *name)
{
    T *w = parent->findChild<T *>(QString::fromLatin1(name));
    if (!w)
        qFatal("no child %s", name);
    return w;
}

QStringList ListTexts(QListWidget *list)
{
    QStringList texts;
    for (int k = 0; k < list->count(); ++k)
        texts.append(list->item(k)->text());
    return texts;
}

void Click(QWidget *parent, const char *button)
{
    QAbstractButton *b = child<QAbstractButton>(parent, button);
    QVERIFY2(b->isEnabled(), button);
    QTest::mouseClick(b, Qt::LeftButton);
}

void SelectFile(TfrmImportScript &wizard, const QString &name)
{
    QListWidget *files = child<QListWidget>(&wizard, "FileListBox1");
    const QList<QListWidgetItem *> found = files->findItems(name, Qt::MatchExactly);
    QVERIFY(!found.isEmpty());
    QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, files->visualItemRect(found.first()).center());
    QCOMPARE(wizard.selectedFile(), QDir(wizard.directory()).filePath(name));
}

// The main window as the import commands see it.
class FakeHost : public CommandHost
{
public:
    FakeHost()
    {
        for (const char *name : {actions::Save1, actions::Importscript1, actions::ImportFinalDraft1}) {
            auto *a = new QAction(&mainWindow);
            a->setObjectName(QString::fromLatin1(name));
            m_actions.insert(QByteArray(name), a);
        }
        QObject::connect(m_actions.value(actions::Save1), &QAction::triggered, [this] { ++saves; });
        doc.setPrompter(&prompter);
        doc.setStatusSink(&status);
    }
    ScheduleDocument &document() override { return doc; }
    QWidget *window() override { return &mainWindow; }
    QAction *action(const char *objectName) override { return m_actions.value(QByteArray(objectName)); }
    Settings &settings() override { std::abort(); } // the import commands read no preferences
    void repaintBoard() override { ++repaints; }
    void showHelp(const QString &page) override { help.append(page); }

    QWidget mainWindow;
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    RecordingStatus status;
    int saves = 0;
    int repaints = 0;
    QStringList help;

private:
    QHash<QByteArray, QAction *> m_actions;
};

} // namespace

class TestImportDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wizardPages();
    void wizardFileList();
    void wizardUnreadableFileAndCancel();
    void wizardFont();
    void wizardWordLists();
    void finalDraftDialog();
    void menuCommandFinalDraft_data();
    void menuCommandFinalDraft();
    void menuCommandScript();
};

void TestImportDialogs::wizardPages()
{
    ScriptFolder folder;
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    TfrmImportScript wizard(doc);
    wizard.setDirectory(folder.dir.path());
    wizard.show();

    auto *next = child<QPushButton>(&wizard, "NextBut");
    auto *back = child<QPushButton>(&wizard, "BackBut");
    QCOMPARE(wizard.windowTitle(), QStringLiteral("Script import (TXT file)"));
    QCOMPARE(wizard.currentStep(), 0);
    QVERIFY(!back->isEnabled());
    QCOMPARE(next->text(), QStringLiteral("Next >"));
    QCOMPARE(child<QPushButton>(&wizard, "CancelBut")->text(), QStringLiteral("&Cancel"));

    Click(&wizard, "NextBut");
    QCOMPARE(wizard.currentStep(), 1);
    QVERIFY(back->isEnabled());

    // No file chosen: the message, and the wizard stays on the file page.
    Click(&wizard, "NextBut");
    QCOMPARE(prompter.texts(), QStringList{"You must select a txt file in the right side box before continuing"});
    QCOMPARE(prompter.prompts.first().kind, MessageKind::Error);
    QCOMPARE(wizard.currentStep(), 1);
    QCOMPARE(next->text(), QStringLiteral("Next >"));

    SelectFile(wizard, "kitchen.txt");
    Click(&wizard, "NextBut");
    QCOMPARE(wizard.currentStep(), 2);
    auto *view = child<QPlainTextEdit>(&wizard, "ImportEdit");
    QVERIFY(view->toPlainText().startsWith("FADE IN:\n\nINT. KITCHEN - NIGHT\n"));
    QCOMPARE(view->textCursor().selectedText().size(), view->toPlainText().size()); // all selected
    QCOMPARE(wizard.scriptLines().size(), 13);
    QCOMPARE(child<QSpinBox>(&wizard, "LinesSpin")->value(), 55);

    Click(&wizard, "NextBut");
    QCOMPARE(wizard.currentStep(), 3);
    QCOMPARE(next->text(), QStringLiteral("Next >"));
    Click(&wizard, "NextBut");
    QCOMPARE(wizard.currentStep(), 4);
    QCOMPARE(next->text(), QStringLiteral("Import!"));

    Click(&wizard, "BackBut");
    QCOMPARE(wizard.currentStep(), 3);
    QCOMPARE(next->text(), QStringLiteral("Next >"));
    for (int step = 2; step >= 0; --step) {
        Click(&wizard, "BackBut");
        QCOMPARE(wizard.currentStep(), step);
    }
    QVERIFY(!back->isEnabled());
    QCOMPARE(prompter.prompts.size(), 1);

    // Showing it again starts over, with an empty script view.
    wizard.hide();
    Click(&wizard, "NextBut"); // clicks reach a hidden widget too; the show resets
    wizard.show();
    QCOMPARE(wizard.currentStep(), 0);
    QVERIFY(view->toPlainText().isEmpty());
    QCOMPARE(child<QProgressBar>(&wizard, "PBar")->value(), 0);
}

void TestImportDialogs::wizardFileList()
{
    ScriptFolder folder;
    ScheduleDocument doc;
    TfrmImportScript wizard(doc);
    wizard.setDirectory(folder.dir.path());
    // Text files only, whatever the case of the extension.
    QCOMPARE(ListTexts(child<QListWidget>(&wizard, "FileListBox1")), (QStringList{"B-SIDE.TXT", "kitchen.txt"}));
    QCOMPARE(wizard.selectedFile(), QString());

    // Choosing a folder in the tree lists its files.
    wizard.setDirectory(folder.path("drafts"));
    QCOMPARE(ListTexts(child<QListWidget>(&wizard, "FileListBox1")), QStringList{});
    auto *tree = child<QTreeView>(&wizard, "DirectoryListBox1");
    QCOMPARE(tree->currentIndex().data().toString(), QStringLiteral("drafts"));
    tree->setCurrentIndex(tree->currentIndex().parent());
    QCOMPARE(wizard.directory(), folder.dir.path());
    QCOMPARE(ListTexts(child<QListWidget>(&wizard, "FileListBox1")).size(), 2);
}

void TestImportDialogs::wizardUnreadableFileAndCancel()
{
    ScriptFolder folder;
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    AddScene(doc, "99", "3");
    TfrmImportScript wizard(doc);
    wizard.setDirectory(folder.dir.path());
    wizard.show();
    Click(&wizard, "NextBut");
    SelectFile(wizard, "B-SIDE.TXT");
    QVERIFY(QFile::remove(folder.path("B-SIDE.TXT")));
    Click(&wizard, "NextBut");
    QCOMPARE(prompter.prompts.size(), 1);
    QVERIFY(prompter.texts().first().startsWith("Error with import procedure.\r\r"));
    QCOMPARE(wizard.currentStep(), 1);

    SelectFile(wizard, "kitchen.txt");
    Click(&wizard, "NextBut");
    Click(&wizard, "CancelBut");
    QVERIFY(!wizard.isVisible());
    QCOMPARE(wizard.result(), int(QDialog::Rejected));
    QCOMPARE(doc.strips.count(), 1);
    QVERIFY(!doc.Modified);
}

void TestImportDialogs::wizardFont()
{
    ScheduleDocument doc;
    TfrmImportScript wizard(doc);
    auto *button = child<QPushButton>(&wizard, "FontBut");
    QCOMPARE(button->text(), QStringLiteral("Courier 12pt"));
    QCOMPARE(child<QPlainTextEdit>(&wizard, "ImportEdit")->font().family(), QStringLiteral("Courier New"));

    QFont offered;
    wizard.chooseFont = [&offered](const QFont &current) -> std::optional<QFont> {
        offered = current;
        return QFont(QStringLiteral("Liberation Mono"), 14, QFont::Bold);
    };
    wizard.show();
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(button->text(), QStringLiteral("Liberation Mono 14pt"));
    QVERIFY(button->font().bold());
    const QFont view = child<QPlainTextEdit>(&wizard, "ImportEdit")->font();
    QCOMPARE(view.family(), QStringLiteral("Liberation Mono"));
    QCOMPARE(view.pointSize(), 14);
    QVERIFY(!view.bold()); // name and size only

    // Cancelling the font dialog changes nothing.
    wizard.chooseFont = [](const QFont &) -> std::optional<QFont> { return std::nullopt; };
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(button->text(), QStringLiteral("Liberation Mono 14pt"));
}

void TestImportDialogs::wizardWordLists()
{
    ScheduleDocument doc;
    TfrmImportScript wizard(doc);
    wizard.show();
    child<QStackedWidget>(&wizard, "Notebook")->setCurrentIndex(TfrmImportScript::LastStep);
    auto *day = child<QListWidget>(&wizard, "DayList");
    auto *night = child<QListWidget>(&wizard, "NightList");
    auto *bad = child<QListWidget>(&wizard, "BadList");
    QCOMPARE(ListTexts(day), DefaultDayWords());
    QCOMPARE(ListTexts(night), DefaultNightWords());
    QCOMPARE(ListTexts(bad), DefaultIgnoreWords());
    QCOMPARE(child<QLabel>(&wizard, "DayLab")->text(), QStringLiteral(" Words that mean DAY"));
    QCOMPARE(child<QLabel>(&wizard, "NightLab")->text(), QStringLiteral(" Words that mean NIGHT"));
    QCOMPARE(child<QLabel>(&wizard, "BadLab")->text(), QStringLiteral(" Words in CAPS to ignore"));

    QStringList captions;
    std::optional<QString> answer = QStringLiteral("  twilight ");
    wizard.askWord = [&](const QString &caption, const QString &) {
        captions.append(caption);
        return answer;
    };
    QTest::mouseClick(child<QToolButton>(&wizard, "NightAddBut"), Qt::LeftButton);
    QCOMPARE(ListTexts(night).last(), QStringLiteral("twilight"));
    answer = QStringLiteral("MONTAGE");
    QTest::mouseClick(child<QToolButton>(&wizard, "BadAddBut"), Qt::LeftButton);
    answer = QStringLiteral("NOON");
    QTest::mouseClick(child<QToolButton>(&wizard, "DayAddBut"), Qt::LeftButton);
    answer = std::nullopt; // cancelled
    QTest::mouseClick(child<QToolButton>(&wizard, "DayAddBut"), Qt::LeftButton);
    answer = QStringLiteral("   "); // nothing typed
    QTest::mouseClick(child<QToolButton>(&wizard, "DayAddBut"), Qt::LeftButton);
    QCOMPARE(captions, (QStringList{"Add new NIGHT word", "Add new word to ignore", "Add new DAY word",
                                    "Add new DAY word", "Add new DAY word"}));
    QCOMPARE(ListTexts(day).size(), DefaultDayWords().size() + 1);

    // Double-click edits a word; - removes the selected one.
    QListWidgetItem *late = night->findItems("LATE", Qt::MatchExactly).first();
    answer = QStringLiteral("LATE NIGHT");
    QVERIFY(QTest::qWaitFor([&] { return night->visualItemRect(late).isValid(); }));
    QTest::mouseClick(night->viewport(), Qt::LeftButton, {}, night->visualItemRect(late).center());
    QTest::mouseDClick(night->viewport(), Qt::LeftButton, {}, night->visualItemRect(late).center());
    QCOMPARE(captions.last(), QStringLiteral("Edit word"));
    QCOMPARE(late->text(), QStringLiteral("LATE NIGHT"));
    night->setCurrentItem(night->findItems("DUSK", Qt::MatchExactly).first());
    QTest::mouseClick(child<QToolButton>(&wizard, "NightDelBut"), Qt::LeftButton);
    QVERIFY(night->findItems("DUSK", Qt::MatchExactly).isEmpty());
    night->clearSelection();
    const int left = night->count();
    QTest::mouseClick(child<QToolButton>(&wizard, "NightDelBut"), Qt::LeftButton); // nothing selected
    QCOMPARE(night->count(), left);

    const ScriptImportSettings s = wizard.settings();
    QCOMPARE(s.nightWords, ListTexts(night));
    QVERIFY(s.ignoreWords.contains("MONTAGE"));
    QVERIFY(s.dayWords.contains("NOON"));

    // The lists are kept while the program runs.
    wizard.hide();
    wizard.show();
    QCOMPARE(wizard.settings().nightWords, s.nightWords);
}

void TestImportDialogs::finalDraftDialog()
{
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    TfrmFDImport dialog(doc);
    auto *scene = child<QLineEdit>(&dialog, "SceneEdit");
    auto *script = child<QLineEdit>(&dialog, "ScriptEdit");
    auto *import = child<QPushButton>(&dialog, "ImportBut");
    scene->setText("left over");
    dialog.show();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Final Draft import"));
    QCOMPARE(scene->text(), QString());
    QCOMPARE(script->text(), QString());
    QVERIFY(!import->isEnabled());

    QTest::keyClicks(scene, "x");
    QVERIFY(!import->isEnabled());
    QTest::keyClicks(script, "y");
    QVERIFY(import->isEnabled());
    scene->clear();
    QVERIFY(!import->isEnabled());

    scene->setText(QDir(DataDir).filePath("fd-scene-report.txt"));
    script->setText(QDir(DataDir).filePath("fd-script-report.txt"));
    QTest::mouseClick(import, Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(doc.strips.count(), 5);
    QVERIFY(doc.Modified);
    QVERIFY(prompter.prompts.isEmpty());

    // Shown again: both names empty; the browse buttons fill them.
    dialog.show();
    QCOMPARE(scene->text(), QString());
    QVERIFY(!import->isEnabled());
    QStringList titles;
    QString answer = "/reports/scenes.txt";
    dialog.chooseFile = [&](const QString &title, const QString &) {
        titles.append(title);
        return answer;
    };
    QTest::mouseClick(child<QPushButton>(&dialog, "SceneBrowse"), Qt::LeftButton);
    answer = "/reports/script.txt";
    QTest::mouseClick(child<QPushButton>(&dialog, "ScriptBrowse"), Qt::LeftButton);
    answer.clear(); // cancelled
    QTest::mouseClick(child<QPushButton>(&dialog, "SceneBrowse"), Qt::LeftButton);
    QCOMPARE(titles, (QStringList{"Open Scene Report file", "Open Script Report file", "Open Scene Report file"}));
    QCOMPARE(scene->text(), "/reports/scenes.txt");
    QCOMPARE(script->text(), "/reports/script.txt");
    QVERIFY(import->isEnabled());
    QTest::mouseClick(child<QPushButton>(&dialog, "CancelBut"), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
}

void TestImportDialogs::menuCommandFinalDraft_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<bool>("imports");
    QTest::addColumn<int>("saves");
    QTest::newRow("Yes saves first") << Answer::Yes << true << 1;
    QTest::newRow("No") << Answer::No << true << 0;
    QTest::newRow("Cancel") << Answer::Cancel << false << 0;
}

void TestImportDialogs::menuCommandFinalDraft()
{
    QFETCH(Answer, answer);
    QFETCH(bool, imports);
    QFETCH(int, saves);

    FakeHost host;
    InstallImportCommands(host);
    AddScene(host.doc, QStringLiteral("99"), QStringLiteral("3"));
    SetModified(host.doc);
    host.prompter.answers = {answer};

    bool shown = false;
    QString statusWhileShown;
    QTimer::singleShot(0, &host.mainWindow, [&] {
        auto *dialog = host.mainWindow.findChild<TfrmFDImport *>();
        if (!dialog || !dialog->isVisible())
            return;
        shown = true;
        statusWhileShown = host.status.panels.value(StatusSink::MessagePanel);
        QCOMPARE(host.doc.strips.count(), 0); // emptied before the dialog
        child<QLineEdit>(dialog, "SceneEdit")->setText(QDir(DataDir).filePath("fd-scene-report.txt"));
        child<QLineEdit>(dialog, "ScriptEdit")->setText(QDir(DataDir).filePath("fd-script-report.txt"));
        QTest::mouseClick(child<QPushButton>(dialog, "ImportBut"), Qt::LeftButton);
    });
    host.action(actions::ImportFinalDraft1)->trigger();
    if (!imports) // the timer is still pending: let it find no dialog
        QTest::qWait(10);

    QCOMPARE(host.prompter.texts(), QStringList{FinalDraftSaveQuestion});
    QCOMPARE(host.saves, saves);
    QCOMPARE(shown, imports);
    if (imports) {
        QCOMPARE(statusWhileShown, QStringLiteral("Importing script..."));
        QCOMPARE(host.status.panels.value(StatusSink::MessagePanel), QString());
        QCOMPARE(host.doc.strips.count(), 5);
        QCOMPARE(host.repaints, 1);
    } else {
        QCOMPARE(host.doc.strips.count(), 1);
        QCOMPARE(host.repaints, 0);
    }
}

void TestImportDialogs::menuCommandScript()
{
    ScriptFolder folder;
    FakeHost host;
    InstallImportCommands(host);
    AddScene(host.doc, "99", "3");
    SetModified(host.doc);
    host.prompter.answers = {Answer::Cancel, Answer::No};

    TfrmImportScript *wizard = nullptr;
    QTimer::singleShot(0, &host.mainWindow, [&] {
        wizard = host.mainWindow.findChild<TfrmImportScript *>();
        QVERIFY(wizard && wizard->isVisible());
        wizard->setDirectory(folder.dir.path());
        Click(wizard, "NextBut");
        SelectFile(*wizard, "kitchen.txt");
        Click(wizard, "NextBut");
        child<QSpinBox>(wizard, "LinesSpin")->setValue(7);
        Click(wizard, "NextBut");
        Click(wizard, "NextBut");
        // Import!, Cancel on the question: the wizard stays, the schedule too.
        Click(wizard, "NextBut");
        QVERIFY(wizard->isVisible());
        QCOMPARE(host.doc.strips[1][StripField::SceneNumber], "99");
        // Import! again, No: the import goes ahead without saving.
        Click(wizard, "NextBut");
    });
    host.action(actions::Importscript1)->trigger();

    QCOMPARE(host.prompter.texts(), (QStringList{ScriptImportSaveQuestion, ScriptImportSaveQuestion}));
    QCOMPARE(host.saves, 0);
    QVERIFY(!wizard->isVisible());
    QCOMPARE(wizard->result(), int(QDialog::Accepted));
    QCOMPARE(host.doc.strips.count(), 2);
    QCOMPARE(host.doc.strips[1][StripField::Location], "KITCHEN");
    QCOMPARE(host.doc.strips[2][StripField::Location], "BARN");
    // Seven lines a page: the kitchen scene runs 7 lines, one page.
    QCOMPARE(host.doc.strips[1][StripField::PageLength], "1");
    QCOMPARE(host.doc.elements.count(), 2);
    QCOMPARE(host.repaints, 1);
    QCOMPARE(child<QLabel>(wizard, "ImportLab")->text(), "Import progress : 3 - BARN");
    QCOMPARE(child<QProgressBar>(wizard, "PBar")->value(), 100);
    // The main window keeps its message panel; "Modified" reaches it.
    QCOMPARE(host.status.panels.value(StatusSink::ModifiedPanel), "Modified");
    QVERIFY(!host.status.panels.value(StatusSink::MessagePanel).startsWith("Import progress"));
    QVERIFY(&host.doc.status() == &host.status);
    QVERIFY(QApplication::overrideCursor() == nullptr);
    QCOMPARE(host.prompter.prompts.size(), 2);

    // F1 in either dialog asks the window for its help page.
    wizard->show();
    QTest::keyClick(wizard, Qt::Key_F1);
    auto *finalDraft = host.mainWindow.findChild<TfrmFDImport *>();
    finalDraft->show();
    QTest::keyClick(finalDraft, Qt::Key_F1);
    QCOMPARE(host.help, (QStringList{"import-script.html", "final-draft-import.html"}));
}

QTEST_MAIN(TestImportDialogs)
#include "tst_importdialogs.moc"
