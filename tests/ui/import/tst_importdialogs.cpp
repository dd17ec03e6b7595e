#include "ImportTestSupport.h"

#include "document/DocumentOperations.h"
#include "import/FdxImport.h"
#include "import/FinalDraftImport.h"
#include "ui/import/TfrmFDImport.h"
#include "ui/import/TfrmImportScript.h"

#include <QApplication>
#include <QCheckBox>
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
    void wizardScreenplayFiles_data();
    void wizardScreenplayFiles();
    void wizardNotAnFdx();
    void wizardReview_data();
    void wizardReview();
    void finalDraftDialog();
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
    // Text, Fountain and Final Draft files only, whatever the case of the extension.
    QCOMPARE(ListTexts(child<QListWidget>(&wizard, "FileListBox1")),
             (QStringList{"B-SIDE.TXT", "bad.fdx", "heist.fdx", "heist.fountain", "junk.txt", "kitchen.txt"}));
    QCOMPARE(wizard.selectedFile(), QString());

    // Choosing a folder in the tree lists its files.
    wizard.setDirectory(folder.path("drafts"));
    QCOMPARE(ListTexts(child<QListWidget>(&wizard, "FileListBox1")), QStringList{});
    auto *tree = child<QTreeView>(&wizard, "DirectoryListBox1");
    QCOMPARE(tree->currentIndex().data().toString(), QStringLiteral("drafts"));
    tree->setCurrentIndex(tree->currentIndex().parent());
    QCOMPARE(wizard.directory(), folder.dir.path());
    QCOMPARE(ListTexts(child<QListWidget>(&wizard, "FileListBox1")).size(), 6);
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

void TestImportDialogs::wizardScreenplayFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("markedFountain");
    QTest::newRow("Fountain") << "heist.fountain" << false;
    QTest::newRow("Final Draft") << "heist.fdx" << false;
    QTest::newRow("txt marked as Fountain") << "heist.txt" << true;
}

void TestImportDialogs::wizardScreenplayFiles()
{
    QFETCH(QString, file);
    QFETCH(bool, markedFountain);
    ScriptFolder folder;
    QFile::copy(folder.path("heist.fountain"), folder.path("heist.txt"));
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    TfrmImportScript wizard(doc);
    wizard.setDirectory(folder.dir.path());
    wizard.show();
    auto *next = child<QPushButton>(&wizard, "NextBut");
    Click(&wizard, "NextBut");
    SelectFile(wizard, file);
    child<QCheckBox>(&wizard, "FountainCheck")->setChecked(markedFountain);

    // The line and font pages are skipped both ways.
    Click(&wizard, "NextBut");
    QCOMPARE(wizard.currentStep(), 4);
    QCOMPARE(next->text(), QStringLiteral("Import!"));
    Click(&wizard, "BackBut");
    QCOMPARE(wizard.currentStep(), 1);
    Click(&wizard, "NextBut");
    QCOMPARE(wizard.currentStep(), 4);
    QVERIFY(child<QPlainTextEdit>(&wizard, "ImportEdit")->toPlainText().contains("VAULT"));

    Click(&wizard, "NextBut");
    QCOMPARE(wizard.currentStep(), int(TfrmImportScript::ReviewStep));
    QCOMPARE(doc.strips.count(), 2);
    QCOMPARE(doc.strips[1][StripField::SceneNumber], QStringLiteral("7"));
    QCOMPARE(doc.strips[2][StripField::SceneNumber], QStringLiteral("8"));
    QCOMPARE(Cast(doc), (QStringList{"MARY", "JOHN"}));
    QVERIFY(prompter.prompts.isEmpty());
    Click(&wizard, "NextBut");
    QVERIFY(!wizard.isVisible());
    QCOMPARE(prompter.prompts.size(), 1);
    QCOMPARE(prompter.prompts.first().kind, MessageKind::Information);
    QVERIFY(prompter.texts().first().startsWith("Imported 2 scenes, 2 characters,"));
}

void TestImportDialogs::wizardNotAnFdx()
{
    ScriptFolder folder;
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    TfrmImportScript wizard(doc);
    wizard.setDirectory(folder.dir.path());
    wizard.show();
    Click(&wizard, "NextBut");
    SelectFile(wizard, "bad.fdx");
    Click(&wizard, "NextBut");
    QCOMPARE(wizard.currentStep(), 1);
    QCOMPARE(prompter.prompts.size(), 1);
    QVERIFY(prompter.texts().first().startsWith(QString::fromLatin1(FdxReadErrorText)));
}

void TestImportDialogs::wizardReview_data()
{
    QTest::addColumn<QString>("finish");
    QTest::addColumn<QStringList>("cast");
    QTest::addColumn<QStringList>("assignments");
    QTest::addColumn<QString>("dropped");
    // The text import's cast: Mary, 2., A river., John, 3.; doubtful names unticked.
    QTest::newRow("Import! removes the unticked") << "NextBut" << QStringList{"Mary", "John"} << QStringList{"1", "2,1"}
                                                  << "Dropped in the review: 2., A river., 3..";
    QTest::newRow("Keep all keeps the text import's result")
        << "KeepAllBut" << QStringList{"Mary", "2.", "A river.", "John", "3."} << QStringList{"1,2,3", "4,1,5"} << "";
    QTest::newRow("closing keeps all too")
        << "close" << QStringList{"Mary", "2.", "A river.", "John", "3."} << QStringList{"1,2,3", "4,1,5"} << "";
    QTest::newRow("Ignore character on a name")
        << "ignore" << QStringList{"John"} << QStringList{"", "1"} << "Dropped in the review: Mary, 2., A river., 3..";
}

void TestImportDialogs::wizardReview()
{
    QFETCH(QString, finish);
    QFETCH(QStringList, cast);
    QFETCH(QStringList, assignments);
    QFETCH(QString, dropped);
    ScriptFolder folder;
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    TfrmImportScript wizard(doc);
    wizard.setDirectory(folder.dir.path());
    wizard.show();
    Click(&wizard, "NextBut");
    SelectFile(wizard, "junk.txt");
    for (int k = 0; k < 4; ++k)
        Click(&wizard, "NextBut");
    QCOMPARE(wizard.currentStep(), int(TfrmImportScript::ReviewStep));
    QVERIFY(!child<QPushButton>(&wizard, "BackBut")->isEnabled());
    QVERIFY(!child<QPushButton>(&wizard, "CancelBut")->isEnabled());

    auto *list = child<QTreeWidget>(&wizard, "CharacterList");
    QStringList shown;
    QList<Qt::CheckState> ticks;
    for (int k = 0; k < list->topLevelItemCount(); ++k) {
        shown << list->topLevelItem(k)->text(0) + u' ' + list->topLevelItem(k)->text(1);
        ticks << list->topLevelItem(k)->checkState(0);
    }
    QCOMPARE(shown, (QStringList{"Mary 2", "2. 1", "A river. 1", "John 1", "3. 1"}));
    QCOMPARE(ticks, (QList<Qt::CheckState>{Qt::Checked, Qt::Unchecked, Qt::Unchecked, Qt::Checked, Qt::Unchecked}));

    if (finish == "ignore") {
        list->setCurrentItem(list->topLevelItem(0));
        Click(&wizard, "IgnoreCharBut");
        list->setCurrentItem(list->topLevelItem(3));
        Click(&wizard, "IgnoreCharBut");
        Click(&wizard, "AcceptCharBut");
        Click(&wizard, "NextBut");
    } else if (finish == "close") {
        wizard.close();
    } else {
        Click(&wizard, qPrintable(finish));
    }
    QVERIFY(!wizard.isVisible());
    QCOMPARE(wizard.result(), int(QDialog::Accepted));
    QCOMPARE(Cast(doc), cast);
    QCOMPARE(doc.strips[1][StripField::Assignments], assignments.at(0));
    QCOMPARE(doc.strips[2][StripField::Assignments], assignments.at(1));
    QCOMPARE(prompter.prompts.size(), 1);
    const QString summary = prompter.texts().first();
    QVERIFY(summary.startsWith(QStringLiteral("Imported 2 scenes, %1 character").arg(cast.size())));
    QCOMPARE(summary.contains("Dropped"), !dropped.isEmpty());
    if (!dropped.isEmpty())
        QVERIFY2(summary.endsWith(dropped), qPrintable(summary));
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
    // The summary of what was imported.
    QCOMPARE(prompter.texts().value(0).section(u'\r', 0, 0),
             QStringLiteral("Imported 5 scenes, 3 characters, 2 5/8 pages."));
    prompter.prompts.clear();

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

TB_TEST_MAIN(TestImportDialogs)
#include "tst_importdialogs.moc"
