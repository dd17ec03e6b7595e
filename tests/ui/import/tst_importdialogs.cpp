#include "ImportTestSupport.h"

#include "import/FdxImport.h"
#include "import/FinalDraftImport.h"
#include "ui/import/TfrmFDImport.h"
#include "ui/import/TfrmImportScript.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

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
        // Page numbers and a line of action in capitals: junk for the review.
        write("junk.txt", "INT. KITCHEN - NIGHT\n\n          MARY\n    Tea?\n\n2.\n\nA RIVER.\n\n"
                          "EXT. BARN - DAY\n\n          JOHN\n    Later.\n\n          MARY\n    Now.\n\n3.\n");
        write("heist.fountain", "Title: The Heist\n\nINT. VAULT - NIGHT #7#\n\nAlarms.\n\nMARY\nGo.\n\n"
                                "EXT. ROOF - DAY #8#\n\nJOHN\nJump.\n");
        write("heist.fdx", "<?xml version=\"1.0\"?><FinalDraft DocumentType=\"Script\"><Content>"
                           "<Paragraph Type=\"Scene Heading\" Number=\"7\"><Text>INT. VAULT - NIGHT</Text></Paragraph>"
                           "<Paragraph Type=\"Character\"><Text>MARY</Text></Paragraph>"
                           "<Paragraph Type=\"Dialogue\"><Text>Go.</Text></Paragraph>"
                           "<Paragraph Type=\"Scene Heading\" Number=\"8\"><Text>EXT. ROOF - DAY</Text></Paragraph>"
                           "<Paragraph Type=\"Character\"><Text>JOHN</Text></Paragraph>"
                           "<Paragraph Type=\"Dialogue\"><Text>Jump.</Text></Paragraph></Content></FinalDraft>");
        write("bad.fdx", "INT. VAULT - NIGHT\n");
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

QStringList ListTexts(QListWidget *list)
{
    QStringList texts;
    for (int k = 0; k < list->count(); ++k)
        texts.append(list->item(k)->text());
    return texts;
}

void Click(QWidget *parent, const char *button)
{
    QAbstractButton *b = Child<QAbstractButton>(parent, button);
    QVERIFY2(b->isEnabled(), button);
    QTest::mouseClick(b, Qt::LeftButton);
}

void SelectFile(TfrmImportScript &wizard, const QString &name)
{
    QListWidget *files = Child<QListWidget>(&wizard, "FileListBox1");
    const QList<QListWidgetItem *> found = files->findItems(name, Qt::MatchExactly);
    QVERIFY(!found.isEmpty());
    QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, files->visualItemRect(found.first()).center());
    QCOMPARE(wizard.selectedFile(), QDir(wizard.directory()).filePath(name));
}

// The script import wizard on a schedule with a prompter, showing the script folder.
struct Wizard
{
    ScriptFolder folder;
    ScheduleDocument doc;
    ScriptedPrompter prompter{doc};
    TfrmImportScript wizard{doc};
    Wizard()
    {
        wizard.setDirectory(folder.dir.path());
        wizard.show();
    }
    // Goes to the file page and chooses the file.
    void choose(const QString &file)
    {
        Click(&wizard, "NextBut");
        SelectFile(wizard, file);
    }
};

} // namespace

class TestImportDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wizardPages()
    {
        Wizard w;
        TfrmImportScript &wizard = w.wizard;
        auto *next = Child<QPushButton>(&wizard, "NextBut");
        auto *back = Child<QPushButton>(&wizard, "BackBut");
        QVERIFY(!back->isEnabled());
        Click(&wizard, "NextBut");
        QCOMPARE(wizard.currentStep(), 1);

        // No file chosen: the message, and the wizard stays on the file page.
        Click(&wizard, "NextBut");
        QCOMPARE(w.prompter.texts(), QStringList{"You must select a txt file in the right side box before continuing"});
        QCOMPARE(w.prompter.prompts.first().kind, MessageKind::Error);
        QCOMPARE(wizard.currentStep(), 1);

        SelectFile(wizard, "kitchen.txt");
        Click(&wizard, "NextBut");
        QCOMPARE(wizard.currentStep(), 2);
        auto *view = Child<QPlainTextEdit>(&wizard, "ImportEdit");
        QVERIFY(view->toPlainText().startsWith("FADE IN:\n\nINT. KITCHEN - NIGHT\n"));
        QCOMPARE(view->textCursor().selectedText().size(), view->toPlainText().size()); // all selected

        // Next becomes Import! on the last page only.
        for (const char *button : {"NextBut", "NextBut", "BackBut"}) {
            Click(&wizard, button);
            QCOMPARE(next->text(), wizard.currentStep() == 4 ? "Import!" : "Next >");
        }
        QCOMPARE(wizard.currentStep(), 3);
        for (int step = 2; step >= 0; --step) {
            Click(&wizard, "BackBut");
            QCOMPARE(wizard.currentStep(), step);
        }
        QVERIFY(!back->isEnabled());

        // Showing it again starts over, with an empty script view.
        wizard.hide();
        Click(&wizard, "NextBut"); // clicks reach a hidden widget too; the show resets
        wizard.show();
        QCOMPARE(wizard.currentStep(), 0);
        QVERIFY(view->toPlainText().isEmpty());
        QCOMPARE(Child<QProgressBar>(&wizard, "PBar")->value(), 0);
    }

    void wizardFileList()
    {
        Wizard w;
        auto *files = Child<QListWidget>(&w.wizard, "FileListBox1");
        // Text, Fountain and Final Draft files only, whatever the case of the extension.
        QCOMPARE(ListTexts(files),
                 (QStringList{"B-SIDE.TXT", "bad.fdx", "heist.fdx", "heist.fountain", "junk.txt", "kitchen.txt"}));
        QCOMPARE(w.wizard.selectedFile(), QString());

        // Choosing a folder in the tree lists its files.
        w.wizard.setDirectory(w.folder.path("drafts"));
        QCOMPARE(ListTexts(files), QStringList{});
        auto *tree = Child<QTreeView>(&w.wizard, "DirectoryListBox1");
        QCOMPARE(tree->currentIndex().data().toString(), "drafts");
        tree->setCurrentIndex(tree->currentIndex().parent());
        QCOMPARE(w.wizard.directory(), w.folder.dir.path());
        QCOMPARE(ListTexts(files).size(), 6);
    }

    // A file that cannot be read or is no script: the message, and the wizard stays on
    // the file page; Cancel later leaves the open schedule as it was.
    void wizardRefusesFile_data()
    {
        Columns<QString, QString>("file", "message");
        Row("unreadable", "B-SIDE.TXT", "Error with import procedure.\r\r");
        Row("not an fdx", "bad.fdx", QString::fromLatin1(FdxReadErrorText));
    }
    void wizardRefusesFile()
    {
        auto [file, message] = Fetch<QString, QString>("file", "message");
        Wizard w;
        AddScene(w.doc, "99", "3");
        w.choose(file);
        if (file == "B-SIDE.TXT")
            QVERIFY(QFile::remove(w.folder.path(file)));
        Click(&w.wizard, "NextBut");
        QCOMPARE(w.prompter.prompts.size(), 1);
        QVERIFY(w.prompter.texts().first().startsWith(message));
        QCOMPARE(w.wizard.currentStep(), 1);

        SelectFile(w.wizard, "kitchen.txt");
        Click(&w.wizard, "NextBut");
        Click(&w.wizard, "CancelBut");
        QVERIFY(!w.wizard.isVisible());
        QCOMPARE(w.wizard.result(), int(QDialog::Rejected));
        QCOMPARE(w.doc.strips.count(), 1);
        QVERIFY(!w.doc.Modified);
    }

    void wizardFont()
    {
        ScheduleDocument doc;
        TfrmImportScript wizard(doc);
        auto *button = Child<QPushButton>(&wizard, "FontBut");
        auto *edit = Child<QPlainTextEdit>(&wizard, "ImportEdit");
        QCOMPARE(button->text(), "Courier 12pt");
        wizard.chooseFont = [](const QFont &) -> std::optional<QFont> {
            return QFont("Liberation Mono", 14, QFont::Bold);
        };
        wizard.show();
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(button->text(), "Liberation Mono 14pt");
        QCOMPARE(edit->font().family(), "Liberation Mono");
        QCOMPARE(edit->font().pointSize(), 14);
        QVERIFY(!edit->font().bold()); // name and size only

        // Cancelling the font dialog changes nothing.
        wizard.chooseFont = [](const QFont &) -> std::optional<QFont> { return std::nullopt; };
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(button->text(), "Liberation Mono 14pt");
    }

    void wizardWordLists()
    {
        ScheduleDocument doc;
        TfrmImportScript wizard(doc);
        wizard.show();
        Child<QStackedWidget>(&wizard, "Notebook")->setCurrentIndex(TfrmImportScript::LastStep);
        auto *night = Child<QListWidget>(&wizard, "NightList");
        QCOMPARE(ListTexts(night), DefaultNightWords());

        QStringList captions;
        std::optional<QString> answer;
        wizard.askWord = [&](const QString &caption, const QString &) {
            captions.append(caption);
            return answer;
        };
        auto click = [&](const char *button, std::optional<QString> typed) {
            answer = typed;
            QTest::mouseClick(Child<QToolButton>(&wizard, button), Qt::LeftButton);
        };
        click("NightAddBut", "  twilight ");
        click("BadAddBut", "MONTAGE");
        click("DayAddBut", "NOON");
        click("DayAddBut", std::nullopt); // cancelled
        click("DayAddBut", "   ");        // nothing typed
        QCOMPARE(captions, (QStringList{"Add new NIGHT word", "Add new word to ignore", "Add new DAY word",
                                        "Add new DAY word", "Add new DAY word"}));

        // Double-click edits a word; - removes the selected one.
        QListWidgetItem *late = night->findItems("LATE", Qt::MatchExactly).first();
        answer = "LATE NIGHT";
        QVERIFY(QTest::qWaitFor([&] { return night->visualItemRect(late).isValid(); }));
        QTest::mouseClick(night->viewport(), Qt::LeftButton, {}, night->visualItemRect(late).center());
        QTest::mouseDClick(night->viewport(), Qt::LeftButton, {}, night->visualItemRect(late).center());
        QCOMPARE(captions.last(), "Edit word");
        night->setCurrentItem(night->findItems("DUSK", Qt::MatchExactly).first());
        click("NightDelBut", answer);
        night->clearSelection();
        click("NightDelBut", answer); // nothing selected

        // The import reads the lists as they stand.
        const ScriptImportSettings s = wizard.settings();
        QCOMPARE(s.nightWords,
                 (QStringList{"NIGHT", "EVENING", "LATE NIGHT", "SUNSET", "SUNDOWN", "SUN-DOWN", "twilight"}));
        QCOMPARE(s.dayWords, DefaultDayWords() << "NOON");
        QCOMPARE(s.ignoreWords.last(), "MONTAGE");

        // The lists are kept while the program runs.
        wizard.hide();
        wizard.show();
        QCOMPARE(wizard.settings().nightWords, s.nightWords);
    }

    void wizardScreenplayFiles_data()
    {
        Columns<QString, bool>("file", "markedFountain");
        Row("Fountain", "heist.fountain", false);
        Row("Final Draft", "heist.fdx", false);
        Row("txt marked as Fountain", "heist.txt", true);
    }
    void wizardScreenplayFiles()
    {
        auto [file, markedFountain] = Fetch<QString, bool>("file", "markedFountain");
        Wizard w;
        QFile::copy(w.folder.path("heist.fountain"), w.folder.path("heist.txt"));
        w.wizard.setDirectory(w.folder.path("drafts")); // and back: the list is read again
        w.wizard.setDirectory(w.folder.dir.path());
        w.choose(file);
        Child<QCheckBox>(&w.wizard, "FountainCheck")->setChecked(markedFountain);

        // The line and font pages are skipped both ways.
        for (const char *button : {"NextBut", "BackBut", "NextBut"}) {
            Click(&w.wizard, button);
            QCOMPARE(w.wizard.currentStep(), *button == 'N' ? 4 : 1);
        }
        QCOMPARE(Child<QPushButton>(&w.wizard, "NextBut")->text(), "Import!");
        QVERIFY(Child<QPlainTextEdit>(&w.wizard, "ImportEdit")->toPlainText().contains("VAULT"));

        Click(&w.wizard, "NextBut");
        QCOMPARE(w.wizard.currentStep(), int(TfrmImportScript::ReviewStep));
        QCOMPARE(Cast(w.doc), (QStringList{"MARY", "JOHN"}));
        QVERIFY(w.prompter.prompts.isEmpty());
        Click(&w.wizard, "NextBut");
        QVERIFY(!w.wizard.isVisible());
        QCOMPARE(w.prompter.prompts.size(), 1);
        QVERIFY(w.prompter.texts().first().startsWith("Imported 2 scenes, 2 characters,"));
    }

    void wizardReview_data()
    {
        Columns<QString, QStringList, QString>("finish", "cast", "dropped");
        // The text import's cast: Mary, 2., A river., John, 3.; doubtful names unticked.
        const QStringList all{"Mary", "2.", "A river.", "John", "3."};
        Row("Import! removes the unticked", "NextBut", QStringList{"Mary", "John"},
            "Dropped in the review: 2., A river., 3..");
        Row("Keep all keeps the text import's result", "KeepAllBut", all, "");
        Row("closing keeps all too", "close", all, "");
        Row("Ignore character on a name", "ignore", QStringList{"John"},
            "Dropped in the review: Mary, 2., A river., 3..");
    }
    void wizardReview()
    {
        auto [finish, cast, dropped] = Fetch<QString, QStringList, QString>("finish", "cast", "dropped");
        Wizard w;
        w.choose("junk.txt");
        for (int k = 0; k < 4; ++k)
            Click(&w.wizard, "NextBut");
        QCOMPARE(w.wizard.currentStep(), int(TfrmImportScript::ReviewStep));
        QVERIFY(!Child<QPushButton>(&w.wizard, "BackBut")->isEnabled());
        QVERIFY(!Child<QPushButton>(&w.wizard, "CancelBut")->isEnabled());

        auto *list = Child<QTreeWidget>(&w.wizard, "CharacterList");
        QStringList shown;
        for (int k = 0; k < list->topLevelItemCount(); ++k) {
            const QTreeWidgetItem *item = list->topLevelItem(k);
            shown << item->text(0) + u' ' + item->text(1) + (item->checkState(0) == Qt::Checked ? " ticked" : "");
        }
        QCOMPARE(shown, (QStringList{"Mary 2 ticked", "2. 1", "A river. 1", "John 1 ticked", "3. 1"}));

        if (finish == "ignore") {
            for (int row : {0, 3}) {
                list->setCurrentItem(list->topLevelItem(row));
                Click(&w.wizard, "IgnoreCharBut");
            }
            Click(&w.wizard, "AcceptCharBut");
            Click(&w.wizard, "NextBut");
        } else if (finish == "close") {
            w.wizard.close();
        } else {
            Click(&w.wizard, qPrintable(finish));
        }
        QVERIFY(!w.wizard.isVisible());
        QCOMPARE(w.wizard.result(), int(QDialog::Accepted));
        QCOMPARE(Cast(w.doc), cast);
        QCOMPARE(w.prompter.prompts.size(), 1);
        const QString summary = w.prompter.texts().first();
        QCOMPARE(summary.contains("Dropped"), !dropped.isEmpty());
        QVERIFY2(summary.endsWith(dropped), qPrintable(summary));
    }

    void finalDraftDialog()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        TfrmFDImport dialog(doc);
        auto *scene = Child<QLineEdit>(&dialog, "SceneEdit");
        auto *script = Child<QLineEdit>(&dialog, "ScriptEdit");
        auto *import = Child<QPushButton>(&dialog, "ImportBut");
        scene->setText("left over");
        dialog.show();
        QCOMPARE(dialog.windowTitle(), "Final Draft import");
        QCOMPARE(scene->text(), QString());

        // Import is enabled only while both names are filled in.
        QTest::keyClicks(scene, "x");
        QVERIFY(!import->isEnabled());
        QTest::keyClicks(script, "y");
        QVERIFY(import->isEnabled());

        scene->setText(QDir(DataDir).filePath("fd-scene-report.txt"));
        script->setText(QDir(DataDir).filePath("fd-script-report.txt"));
        QTest::mouseClick(import, Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(doc.strips.count(), 5);
        QCOMPARE(prompter.texts().value(0).section(u'\r', 0, 0), "Imported 5 scenes, 3 characters, 2 5/8 pages.");

        // Shown again: both names empty; the browse buttons fill them.
        dialog.show();
        QCOMPARE(scene->text(), QString());
        QVERIFY(!import->isEnabled());
        QStringList titles;
        QString answer;
        dialog.chooseFile = [&](const QString &title, const QString &) {
            titles.append(title);
            return answer;
        };
        auto browse = [&](const char *button, const QString &chosen) {
            answer = chosen;
            QTest::mouseClick(Child<QPushButton>(&dialog, button), Qt::LeftButton);
        };
        browse("SceneBrowse", "/reports/scenes.txt");
        browse("ScriptBrowse", "/reports/script.txt");
        browse("SceneBrowse", QString()); // cancelled
        QCOMPARE(titles, (QStringList{"Open Scene Report file", "Open Script Report file", "Open Scene Report file"}));
        QCOMPARE(scene->text(), "/reports/scenes.txt");
        QCOMPARE(script->text(), "/reports/script.txt");
        QTest::mouseClick(Child<QPushButton>(&dialog, "CancelBut"), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
    }
};

TB_TEST_MAIN(TestImportDialogs)
#include "tst_importdialogs.moc"
