// The window as a new user meets it: keys, Find strips, help over dialogs, the title,
// the recent files and the window's place kept between runs.
#include "TestSupport.h"

#include "app/TfrmMain.h"
#include "document/DocumentOperations.h"
#include "document/ScheduleFile.h"
#include "document/Settings.h"
#include "document/ShellCommands.h"
#include "document/StandardColours.h"
#include "document/UndoStore.h"
#include "ui/board/BoardView.h"
#include "ui/board/FindStripsBar.h"
#include "ui/breakdown/TfrmStrip.h"
#include "ui/shell/HelpSearch.h"
#include "ui/shell/HelpWindow.h"
#include "ui/shell/RecentFilesList.h"
#include "ui/shell/TfrmPref.h"
#include "ui/shell/WindowPlacement.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

using namespace tb;
using namespace tb::test;

namespace {

class NoFiles : public FileChooser
{
public:
    QString chooseOpenFile(const FileDialogSetup &) override { return answer; }
    QString chooseSaveFile(const FileDialogSetup &) override { return answer; }
    QString answer;
};

struct Window
{
    explicit Window(const QString &iniName = QStringLiteral("firstday.ini"))
        : settings(TempPath(iniName))
    {
        doc.setPrompter(&prompter);
        main = std::make_unique<TfrmMain>(doc, settings);
        main->setFileChooser(&files);
        main->setFirstShowPause(0);
        main->hasPrinter = [] { return true; };
        main->setAutosavePath(TempPath("autosave-" + iniName + ".tbf"));
    }
    ~Window()
    {
        main.reset();
        doc.setPrompter(nullptr);
    }
    bool start()
    {
        main->show();
        return QTest::qWaitFor([&] { return main->firstShowDone(); }, 5000);
    }
    // Scenes 1, 2, a divider, scenes 3 and 4 ("storm" in the synopsis of 2 and 4).
    void fillBoard()
    {
        AddScene(doc, "1", "1");
        AddScene(doc, "2", "1");
        doc.strips[2].set(StripField::Synopsis, QStringLiteral("The storm breaks"));
        AddDivider(doc);
        AddScene(doc, "3", "1");
        AddScene(doc, "4", "1");
        doc.strips[5].set(StripField::Synopsis, QStringLiteral("After the storm"));
        SetModified(doc);
    }
    QWidget *board() const { return main->board()->paintBox(); }

    ScheduleDocument doc;
    ScriptedPrompter prompter;
    Settings settings;
    NoFiles files;
    std::unique_ptr<TfrmMain> main;
};

// A schedule saved under a name in the temporary folder.
QString savedSchedule(const QString &name, const QString &title, int scenes)
{
    ScheduleDocument doc;
    doc.values.PictureTitle = title;
    for (int i = 1; i <= scenes; ++i)
        AddScene(doc, title + QString::number(i), "1");
    const QString path = TempPath(name);
    return SaveDocument(doc, path).ok() ? path : QString();
}

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool containsText(const QStringList &texts, const QString &part)
{
    for (const QString &text : texts)
        if (text.contains(part))
            return true;
    return false;
}

QString selection(const ScheduleDocument &doc)
{
    return QString::number(doc.SelStart) + "-" + QString::number(doc.SelEnd);
}

} // namespace

class TestFirstDay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addedKeys_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::newRow("Ctrl+N") << "New1";
        QTest::newRow("Ctrl+O") << "Openfile1";
        QTest::newRow("F12") << "Save1";
        QTest::newRow("Ctrl+S") << "Save1";
        QTest::newRow("Ctrl+Shift+S") << "SaveAs1";
        QTest::newRow("Ctrl+P") << "Shootingschedule1";
        QTest::newRow("Ctrl+F") << "FindStrips1";
        QTest::newRow("Ctrl++") << "ZoomIn1";
        QTest::newRow("Ctrl+-") << "ZoomOut1";
        QTest::newRow("Ctrl+0") << "ZoomReset1";
        QTest::newRow("Ctrl+E") << "Endofday1"; // the earlier edition's keys still win
        QTest::newRow("Ctrl+Q") << "Exit1";
    }
    void addedKeys()
    {
        QFETCH(QString, entry);
        Window w;
        const QKeySequence key(QString::fromLatin1(QTest::currentDataTag()));
        QStringList holders;
        for (QAction *each : w.main->findChildren<QAction *>())
            if (each->shortcuts().contains(key))
                holders << each->objectName();
        // Exactly one holder: a key held twice would fire neither entry.
        QCOMPARE(holders, QStringList{entry});
    }

    void noKeyIsHeldTwice()
    {
        Window w;
        QMap<QString, QString> holders;
        for (QAction *each : w.main->findChildren<QAction *>()) {
            for (const QKeySequence &key : each->shortcuts()) {
                const QString k = key.toString();
                QVERIFY2(!holders.contains(k),
                         qPrintable(k + " on " + holders.value(k) + " and " + each->objectName()));
                holders.insert(k, each->objectName());
            }
        }
    }

    void boardKeys_data()
    {
        QTest::addColumn<int>("selStart");
        QTest::addColumn<int>("selEnd");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("shift");
        QTest::addColumn<QString>("after");
        QTest::newRow("Right from nothing") << 0 << 0 << int(Qt::Key_Right) << false << "1-1";
        QTest::newRow("Right") << 2 << 2 << int(Qt::Key_Right) << false << "3-3";
        QTest::newRow("Right after a range") << 1 << 3 << int(Qt::Key_Right) << false << "4-4";
        QTest::newRow("Right at the end stays") << 5 << 5 << int(Qt::Key_Right) << false << "5-5";
        QTest::newRow("Left") << 4 << 4 << int(Qt::Key_Left) << false << "3-3";
        QTest::newRow("Left at the start stays") << 1 << 1 << int(Qt::Key_Left) << false << "1-1";
        QTest::newRow("Shift+Right widens") << 2 << 3 << int(Qt::Key_Right) << true << "2-4";
        QTest::newRow("Shift+Left widens") << 2 << 3 << int(Qt::Key_Left) << true << "1-3";
        QTest::newRow("Home") << 4 << 4 << int(Qt::Key_Home) << false << "1-1";
        QTest::newRow("End") << 2 << 2 << int(Qt::Key_End) << false << "5-5";
        QTest::newRow("Shift+End") << 2 << 2 << int(Qt::Key_End) << true << "2-5";
    }
    void boardKeys()
    {
        QFETCH(int, selStart);
        QFETCH(int, selEnd);
        QFETCH(int, key);
        QFETCH(bool, shift);
        QFETCH(QString, after);
        Window w;
        QVERIFY(w.start());
        w.fillBoard();
        w.doc.SelStart = selStart;
        w.doc.SelEnd = selEnd;
        w.doc.SelElement = 3;
        QTest::keyClick(w.board(), Qt::Key(key), shift ? Qt::ShiftModifier : Qt::NoModifier);
        QCOMPARE(selection(w.doc), after);
        if (after == QString::number(selStart) + "-" + QString::number(selEnd))
            return; // nothing to select there
        QCOMPARE(w.doc.SelElement, -1);
        // The commands follow the selection: Edit scene for a scene, not a divider.
        QCOMPARE(w.main->findAction("Editscene1")->isEnabled(), w.doc.strips[w.doc.SelStart].isScene());
    }

    void keyScrollsTheSelectionIntoView()
    {
        Window w;
        QVERIFY(w.start());
        for (int i = 1; i <= 80; ++i)
            AddScene(w.doc, QString::number(i), "1");
        SetModified(w.doc);
        QTest::keyClick(w.board(), Qt::Key_End);
        QCOMPARE(selection(w.doc), QString("80-80"));
        const int first = w.main->board()->horizontalScroll();
        QVERIFY(first > 1);
        QCOMPARE(w.main->board()->GetStripNum(w.board()->width() - 1) >= 80, true);
        QTest::keyClick(w.board(), Qt::Key_Home);
        QCOMPARE(w.main->board()->horizontalScroll(), 1);
    }

    void menuKeyOpensThePopup()
    {
        Window w;
        QVERIFY(w.start());
        w.fillBoard();
        w.doc.SelStart = w.doc.SelEnd = 2;
        QTest::keyClick(w.board(), Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(w.main->boardPopup()->isVisible());
        w.main->boardPopup()->close();
        QTest::keyClick(w.board(), Qt::Key_Menu);
        QVERIFY(w.main->boardPopup()->isVisible());
        w.main->boardPopup()->close();
    }

    void findStrips()
    {
        Window w;
        QVERIFY(w.start());
        w.fillBoard();
        w.main->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(w.main.get()));
        QTest::keySequence(w.main.get(), QKeySequence(QStringLiteral("Ctrl+F")));
        FindStripsBar *bar = w.main->findBar();
        QVERIFY(bar->isVisible());
        QVERIFY(bar->searchBox()->hasFocus());
        QTest::keyClicks(bar->searchBox(), "STORM");
        QTest::keyClick(bar->searchBox(), Qt::Key_Return);
        QCOMPARE(selection(w.doc), QString("2-2"));
        QCOMPARE(bar->resultLabel()->text(), QString("2 strips match."));
        QTest::keyClick(bar->searchBox(), Qt::Key_F3);
        QCOMPARE(selection(w.doc), QString("5-5"));
        QTest::keyClick(bar->searchBox(), Qt::Key_F3); // round the end
        QCOMPARE(selection(w.doc), QString("2-2"));
        QTest::keyClick(bar->searchBox(), Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(selection(w.doc), QString("5-5"));
        bar->searchBox()->setText("desert");
        QTest::keyClick(bar->searchBox(), Qt::Key_Return);
        QCOMPARE(selection(w.doc), QString("5-5")); // kept
        QCOMPARE(bar->resultLabel()->text(), QString("No strip matches."));
        QTest::keyClick(bar->searchBox(), Qt::Key_Escape);
        QVERIFY(!bar->isVisible());
        QVERIFY(w.board()->hasFocus());
    }

    void zoomKeys()
    {
        Window w;
        QVERIFY(w.start());
        w.main->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(w.main.get()));
        QTest::keySequence(w.main.get(), QKeySequence(QStringLiteral("Ctrl++")));
        QCOMPARE(w.main->board()->boardScale(), 1.1);
        QCOMPARE(w.main->zoomCombo()->currentText(), QString("110%"));
        QVERIFY(w.doc.Modified); // a zoom counts as a change, as the zoom items do
        QTest::keySequence(w.main.get(), QKeySequence(QStringLiteral("Ctrl+-")));
        QTest::keySequence(w.main.get(), QKeySequence(QStringLiteral("Ctrl+-")));
        QCOMPARE(w.main->board()->boardScale(), 0.9);
        QTest::keySequence(w.main.get(), QKeySequence(QStringLiteral("Ctrl+0")));
        QCOMPARE(w.main->board()->boardScale(), 1.0);
        for (int i = 0; i < 12; ++i)
            w.main->ZoomStepClick(+1);
        QCOMPARE(w.main->board()->boardScale(), 1.4);
    }

    void titleShowsUnsavedChanges()
    {
        Window w;
        QVERIFY(w.start());
        QCOMPARE(w.main->windowTitle(), QString("Torvanbridge - Untitled"));
        AddScene(w.doc, "1", "1");
        SetModified(w.doc);
        QCOMPARE(w.main->windowTitle(), QString("Torvanbridge - Untitled *"));
        const QString path = TempPath("title.tbf");
        w.files.answer = path;
        w.main->Save1Click();
        QCOMPARE(w.main->windowTitle(), "Torvanbridge -   (" + path + ") ");
        SetModified(w.doc);
        QCOMPARE(w.main->windowTitle(), "Torvanbridge -   (" + path + ") *");
    }

    void recentFilesAreReadBack()
    {
        const QString path = TempPath("recent-kept.tbf");
        {
            Window w;
            QVERIFY(w.start());
            w.main->recentFiles()->clear();
            AddScene(w.doc, "1", "1");
            w.files.answer = path;
            w.main->SaveAs1Click();
            w.main->close();
        }
        Window again;
        QCOMPARE(again.main->recentFiles()->paths().value(0), path);
    }

    void helpSearch()
    {
        const QList<HelpSearchHit> hits = SearchHelpPages(QStringLiteral("find STRIPS ctrl+f"));
        QVERIFY(!hits.isEmpty());
        QStringList pages;
        for (const HelpSearchHit &hit : hits)
            pages << hit.page;
        QVERIFY2(pages.contains("menus.html"), qPrintable(pages.join(' ')));
        QVERIFY(SearchHelpPages(QStringLiteral("zzqqx")).isEmpty());
        QVERIFY(SearchHelpPages(QStringLiteral("  ")).isEmpty());

        Window w;
        w.main->Contents1Click();
        HelpWindow *help = w.main->helpWindow();
        QVERIFY(help);
        help->searchBox()->setText("Find strips");
        QTest::keyClick(help->searchBox(), Qt::Key_Return);
        QVERIFY(help->browser()->toHtml().contains("menus.html"));
        DeleteProgramHelpWindow();
    }

    void helpFromAModalDialog()
    {
        Window w;
        QVERIFY(w.start());
        w.fillBoard();
        bool usable = false;
        bool onScreen = false;
        QTimer::singleShot(0, [&] {
            QWidget *dialog = QApplication::activeModalWidget();
            QVERIFY(dialog);
            QTest::keyClick(dialog, Qt::Key_F1);
            HelpWindow *help = ProgramHelpWindow();
            // Shown, and a window of the dialog, which a modal dialog does not block.
            usable = help && help->isVisible() && help->parentWidget() == dialog;
            const QRect screen = help->screen()->availableGeometry();
            onScreen = screen.contains(help->frameGeometry()) || help->frameGeometry().size().width() > screen.width();
            dialog->close();
        });
        w.main->findAction("Sortstrips1")->trigger();
        QVERIFY(usable);
        QVERIFY(onScreen);
        QCOMPARE(ProgramHelpWindow()->currentPage(), QString("sort-strips.html"));
        // Help from the menu again belongs to no dialog.
        w.main->Contents1Click();
        QVERIFY(!ProgramHelpWindow()->parentWidget());
        DeleteProgramHelpWindow();
    }

    // ---- No lost work

    void autosaveLeavesTheDocumentUnsaved()
    {
        const QString own = savedSchedule("autosave-own.tbf", "Harbour", 2);
        const QByteArray before = fileBytes(own);
        Window w("autosave.ini");
        const QString autosave = TempPath("autosave-unsaved.tbf");
        w.main->setAutosavePath(autosave);
        QVERIFY(w.start());
        w.files.answer = own;
        w.main->Openfile1Click();
        w.main->recentFiles()->clear();
        AddScene(w.doc, "new", "1");
        SetModified(w.doc);
        // The timer's slot, driven directly.
        w.main->AutoSaveTimerTimer();
        QVERIFY(QFileInfo(autosave).isFile());
        QCOMPARE(QString::fromUtf8(fileBytes(AutosaveOwnerPath(autosave))), own);
        QVERIFY(w.doc.Modified);
        QCOMPARE(w.doc.FileName, own);
        QVERIFY(w.main->windowTitle().endsWith('*'));
        QVERIFY(w.main->recentFiles()->paths().isEmpty());
        QCOMPARE(fileBytes(own), before); // the user's own file is not written
        // The autosave holds the new scene.
        ScheduleDocument copy;
        QVERIFY(OpenDocument(copy, autosave).ok());
        QCOMPARE(copy.strips.count(), 3);
        // Closing still asks; No closes, and the autosave goes with the answer.
        w.prompter.prompts.clear();
        w.prompter.answers = {Answer::No};
        QVERIFY(w.main->close());
        QCOMPARE(w.prompter.texts(), QStringList{SaveChangesQuestion});
        QVERIFY(!QFileInfo::exists(autosave));
        QVERIFY(!QFileInfo::exists(AutosaveOwnerPath(autosave)));
    }

    void autosaveOfferedAtStart_data()
    {
        QTest::addColumn<bool>("ownerSavedLater");
        QTest::addColumn<bool>("untitled");
        QTest::addColumn<bool>("offered");
        QTest::newRow("changes after the last save") << false << false << true;
        QTest::newRow("saved after the autosave") << true << false << false;
        QTest::newRow("untitled schedule") << false << true << true;
    }
    void autosaveOfferedAtStart()
    {
        QFETCH(bool, ownerSavedLater);
        QFETCH(bool, untitled);
        QFETCH(bool, offered);
        const QString own = savedSchedule("offer-own.tbf", "Harbour", 1);
        const QString autosave = TempPath("offer-autosave.tbf");
        {
            ScheduleDocument lost;
            lost.values.PictureTitle = "Harbour";
            for (int i = 1; i <= 4; ++i)
                AddScene(lost, QString::number(i), "1");
            lost.FileName = untitled ? QString() : own;
            QVERIFY(AutosaveCommand(lost, autosave).ok());
        }
        const QDateTime autosaved = QDateTime::currentDateTime().addSecs(-60);
        {
            QFile file(autosave);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(autosaved, QFileDevice::FileModificationTime));
            QFile ownFile(own);
            QVERIFY(ownFile.open(QIODevice::ReadWrite));
            QVERIFY(
                ownFile.setFileTime(autosaved.addSecs(ownerSavedLater ? 30 : -30), QFileDevice::FileModificationTime));
        }
        Window w("offer.ini");
        w.main->setAutosavePath(autosave);
        w.prompter.answers = {Answer::Yes};
        QVERIFY(w.start());
        QCOMPARE(containsText(w.prompter.texts(), "Do you wish to restore it?"), offered);
        if (!offered) {
            QCOMPARE(w.doc.strips.count(), 0);
            return;
        }
        // Restored: the four scenes, untitled and modified, not a recent file.
        QCOMPARE(w.doc.strips.count(), 4);
        QVERIFY(w.doc.FileName.isEmpty());
        QVERIFY(w.doc.Modified);
        QVERIFY(!w.main->recentFiles()->paths().contains(autosave));
        QVERIFY(w.main->windowTitle().endsWith('*'));
        w.prompter.answers = {Answer::No};
        w.main->close();
    }

    void dropAsksFirst_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("titleAfter");
        QTest::newRow("Cancel keeps the schedule") << int(Answer::Cancel) << "";
        QTest::newRow("No opens the dropped file") << int(Answer::No) << "One";
    }
    void dropAsksFirst()
    {
        QFETCH(int, answer);
        QFETCH(QString, titleAfter);
        const QString one = savedSchedule("drop-one.tbf", "One", 1);
        Window w;
        QVERIFY(w.start());
        AddScene(w.doc, "typed", "1");
        SetModified(w.doc);
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(one), QUrl::fromLocalFile(TempPath("drop-two.tbf"))});
        QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(w.main.get(), &enter);
        QDropEvent drop(QPointF(300, 300), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        w.prompter.answers = {Answer(answer)};
        QApplication::sendEvent(w.main.get(), &drop);
        QCOMPARE(w.prompter.texts(), QStringList{SaveChangesQuestion});
        QCOMPARE(w.doc.values.PictureTitle, titleAfter);
        QCOMPARE(w.doc.Modified, titleAfter.isEmpty());
    }

    void failedOpenLeavesNothing_data()
    {
        QTest::addColumn<QByteArray>("content"); // empty: the path is a folder
        QTest::addColumn<QString>("cause");
        const QByteArray good = fileBytes(savedSchedule("failed-source.tbf", "Good", 3));
        QTest::newRow("cut short") << good.left(good.size() / 2) << "The file is cut short: it ends at line";
        QTest::newRow("not a schedule") << QByteArray("Dear diary,\r\nrain again.\r\n")
                                        << "is not a Torvanbridge schedule";
        QByteArray count = good;
        count.replace("\r\n3\r\n", "\r\nthree\r\n");
        QTest::newRow("damaged count") << count << "should hold a number";
        QTest::newRow("cannot be read") << QByteArray() << "The file cannot be read: it is a folder.";
    }
    void failedOpenLeavesNothing()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, cause);
        const QString path = TempPath(QStringLiteral("failed-%1.tbf").arg(QTest::currentDataTag()));
        if (content.isEmpty()) {
            QVERIFY(QDir().mkpath(path));
        } else {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        Window w;
        QVERIFY(w.start());
        w.files.answer = savedSchedule("failed-before.tbf", "Before", 2);
        w.main->Openfile1Click();
        w.main->recentFiles()->clear();
        w.prompter.prompts.clear();
        w.main->MRUClick(path);
        // An empty, untitled, unmodified schedule; the message names the file and why.
        QCOMPARE(w.prompter.prompts.size(), 1);
        QVERIFY2(w.prompter.texts().first().contains(QDir::toNativeSeparators(path)),
                 qPrintable(w.prompter.texts().first()));
        QVERIFY2(w.prompter.texts().first().contains(cause), qPrintable(w.prompter.texts().first()));
        QCOMPARE(w.doc.strips.count(), 0);
        QVERIFY(w.doc.FileName.isEmpty());
        QVERIFY(!w.doc.Modified);
        QVERIFY(w.main->recentFiles()->paths().isEmpty());
        QCOMPARE(w.main->windowTitle(), QString("Torvanbridge - Untitled"));
        // Save cannot reach the damaged file: it asks for a name.
        w.files.answer.clear();
        w.main->Save1Click();
        if (!content.isEmpty())
            QCOMPARE(fileBytes(path), content);
    }

    void undoAfterOpenNeverKeepsTheName()
    {
        const QString first = savedSchedule("undo-first.tbf", "First", 2);
        const QString second = savedSchedule("undo-second.tbf", "Second", 5);
        const QByteArray secondBytes = fileBytes(second);
        Window w;
        QVERIFY(w.start());
        w.files.answer = first;
        w.main->Openfile1Click();
        TakeUndoSnapshot(w.doc, QStringLiteral("add new scene"));
        AddScene(w.doc, "3", "1");
        SetModified(w.doc);
        w.prompter.answers = {Answer::No};
        w.files.answer = second;
        w.main->Openfile1Click();
        QCOMPARE(w.doc.FileName, second);
        // Undo brings the first schedule's two scenes back, but not under "second".
        w.main->Undo1Click();
        QCOMPARE(w.doc.strips.count(), 2);
        QVERIFY(w.doc.FileName.isEmpty());
        QVERIFY(w.doc.Modified);
        QVERIFY(!w.main->windowTitle().contains(second));
        // Save asks for a name; cancelled, the second file is untouched.
        w.files.answer.clear();
        w.main->Save1Click();
        QCOMPARE(fileBytes(second), secondBytes);
        QVERIFY(w.doc.Modified);
        // Undo within one schedule keeps its name.
        w.files.answer = second;
        w.prompter.answers = {Answer::No};
        w.main->Openfile1Click();
        TakeUndoSnapshot(w.doc, QStringLiteral("add new scene"));
        AddScene(w.doc, "6", "1");
        w.main->Undo1Click();
        QCOMPARE(w.doc.FileName, second);
    }

    void sceneEditorKeepsWhatWasTyped()
    {
        Window w;
        QVERIFY(w.start());
        AddScene(w.doc, "1", "1");
        SetModified(w.doc);
        const int depth = w.doc.undo.UndoDepth;
        bool stayedOpen = false;
        QString kept;
        QTimer::singleShot(0, [&] {
            auto *dialog = qobject_cast<TfrmStrip *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->findChild<QLineEdit *>("SceneEdit")->setText("42A");
            dialog->findChild<QSpinBox *>("WholeSpin")->setValue(0);
            dialog->findChild<QSpinBox *>("EightsSpin")->setValue(0);
            QTest::mouseClick(dialog->findChild<QPushButton *>("OKBut"), Qt::LeftButton);
            stayedOpen = dialog->isVisible();
            kept = dialog->findChild<QLineEdit *>("SceneEdit")->text();
            dialog->findChild<QSpinBox *>("EightsSpin")->setValue(3);
            QTest::mouseClick(dialog->findChild<QPushButton *>("OKBut"), Qt::LeftButton);
        });
        w.main->findAction("Addscene1")->trigger();
        QVERIFY(stayedOpen);
        QCOMPARE(kept, QString("42A"));
        QVERIFY(containsText(w.prompter.texts(), "Oops! Scene must be a minimum"));
        // One undo step, for the accepted scene only.
        QCOMPARE(w.doc.undo.UndoDepth, depth + 1);
        QCOMPARE(w.doc.strips.count(), 2);
        QCOMPARE(w.doc.strips[2][StripField::SceneNumber], QString("42A"));
    }

    // ---- A first start

    void firstRunColours()
    {
        const StripColours standard = StandardStripColours();
        Settings none(TempPath("no-such-settings.ini"));
        QVERIFY(none.LoadSettings().isEmpty());
        QCOMPARE(none.stripBackground, standard.background);
        QCOMPARE(none.stripText, standard.text);
        QVERIFY(standard.background[int(StripSlot::DayExt)] != standard.background[int(StripSlot::DayInt)]);
        QCOMPARE(standard.background[int(StripSlot::DayDivider)], 0u); // black
        // An existing file is read as it is: no colour keys, white strips.
        const QString path = TempPath("existing-settings.ini");
        {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("[Files]\r\nAutosavetime=0\r\n");
        }
        Settings existing(path);
        existing.LoadSettings();
        QCOMPARE(existing.stripBackground[int(StripSlot::DayExt)], 0x00FFFFFFu);
        // "Reset to standard colours", then OK.
        ScheduleDocument doc;
        ScriptedPrompter prompter;
        doc.setPrompter(&prompter);
        TfrmPref pref(doc, existing, TempPath("pref-autosave.tbf"));
        QTimer::singleShot(0, [&] {
            QTest::mouseClick(pref.findChild<QPushButton *>("ResetColoursBut"), Qt::LeftButton);
            QTest::mouseClick(pref.findChild<QPushButton *>("OKBut"), Qt::LeftButton);
        });
        pref.exec();
        QCOMPARE(existing.stripBackground, standard.background);
        Settings reread(path);
        reread.LoadSettings();
        QCOMPARE(reread.stripText, standard.text);
        doc.setPrompter(nullptr);
    }

    void windowIsRemembered()
    {
        const QString ini = TempPath("window.ini");
        QFile::remove(ini);
        {
            Window w("window.ini");
            QVERIFY(w.start());
            w.main->resize(700, 500);
            w.main->move(40, 30);
            w.main->N1001Click(w.main->findAction("N1201"));
            w.prompter.answers = {Answer::No};
            QVERIFY(w.main->close());
        }
        Window again("window.ini");
        QCOMPARE(again.main->size(), QSize(700, 500));
        QVERIFY(again.start());
        QCOMPARE(again.main->board()->boardScale(), 1.2);
        QVERIFY(!again.doc.Modified);
        // The window made the settings file, with the standard colours of the first start.
        QCOMPARE(again.settings.stripBackground, StandardStripColours().background);
    }

    void fitToScreen_data()
    {
        QTest::addColumn<QRect>("wanted");
        QTest::addColumn<QRect>("placed");
        const QRect screen(0, 0, 1280, 800);
        QTest::newRow("fits") << QRect(100, 50, 800, 600) << QRect(100, 50, 800, 600);
        QTest::newRow("from a larger screen") << QRect(200, 100, 1900, 1100) << QRect(0, 0, 1280, 800);
        QTest::newRow("off the right") << QRect(1000, 50, 800, 600) << QRect(480, 50, 800, 600);
        QTest::newRow("off the top left") << QRect(-300, -40, 800, 600) << QRect(0, 0, 800, 600);
    }
    void fitToScreen()
    {
        QFETCH(QRect, wanted);
        QFETCH(QRect, placed);
        QCOMPARE(FitToScreen(wanted, QRect(0, 0, 1280, 800)), placed);
    }
};

TB_TEST_MAIN(TestFirstDay)
#include "tst_firstday.moc"
