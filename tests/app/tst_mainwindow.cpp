#include "TestSupport.h"

#include "app/MenuActions.h"
#include "app/TfrmAbout.h"
#include "app/TfrmMain.h"
#include "app/TfrmPref.h"
#include "board/BoardView.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/ScheduleFile.h"
#include "document/Settings.h"
#include "scheduling/DayCalculation.h"
#include "widgets/HelpWindow.h"
#include "widgets/PanelStatusBar.h"
#include "widgets/RecentFilesList.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDirIterator>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

using namespace tb;
using namespace tb::test;

namespace {

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
    // Every entry served, as once every subsystem is installed.
    void serveAll()
    {
        for (QAction *a : main->findChildren<QAction *>()) {
            if (!a->objectName().isEmpty())
                main->action(a->objectName().toLatin1().constData());
        }
    }

    ScheduleDocument doc;
    ScriptedPrompter prompter;
    Settings settings;
    ScriptedFiles files;
    std::unique_ptr<TfrmMain> main;
};

QString saved(const QString &name, const QString &title, int scenes = 1)
{
    ScheduleDocument doc;
    doc.values.PictureTitle = title;
    for (int i = 1; i <= scenes; ++i)
        AddScene(doc, QString::number(i), "1");
    const QString path = TempPath(name);
    return SaveDocument(doc, path).ok() ? path : QString();
}

// Menu entries as text: captions, "-" for separators, ">" after a submenu.
QStringList entries(const QMenu *menu)
{
    QStringList list;
    for (const QAction *a : menu->actions()) {
        if (!a->isVisible())
            continue;
        if (a->isSeparator())
            list << "-";
        else
            list << (a->menu() ? a->text() + ">" : a->text());
    }
    return list;
}

template <typename T>
T *child(QObject *parent, const char *name)
{
    T *found = parent->findChild<T *>(QLatin1String(name));
    if (!found)
        qWarning("no %s", name);
    return found;
}

QMenu *topMenu(TfrmMain &main, const QString &caption)
{
    for (QAction *a : main.menuBar()->actions()) {
        if (a->text() == caption)
            return a->menu();
    }
    return nullptr;
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void menus_data();
    void menus();
    void shortcuts_data();
    void shortcuts();
    void doubleShortcutsGoToFirstEntry_data();
    void doubleShortcutsGoToFirstEntry();
    void popupMenu();
    void toolBarAndZoomCombo();
    void statusBarPanels();
    void firstShowSteps();
    void firstShowWithMissingFile();
    void autosaveClearsCloseQuestion();
    void closeQuestion();
    void dropOfThreeFiles();
    void recentFilesMenu();
    void enablingByState_data();
    void enablingByState();
    void laterEntriesDisabledUntilServed();
    void undoAndClipboardEntries();
    void zoom();
    void preferencesDialog();
    void preferencesCancelled();
    void helpPages();
    void aboutDialog();
    void boardRequestsRunEntries();
};

// ---- Menus -----------------------------------------------------------------------

void TestMainWindow::menus_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("File") << "&File"
                          << QStringList{"&New",
                                         "&Open...",
                                         "&Save",
                                         "Save &As...",
                                         "-",
                                         "&Import script...",
                                         "Import &Final Draft reports...",
                                         "&Export board>",
                                         "-",
                                         "&Print>",
                                         "-",
                                         "P&references...",
                                         "-",
                                         "&Exit"};
    QTest::newRow("Export board") << "&File/&Export board" << QStringList{"As &Spreadsheet...", "As &HTML..."};
    QTest::newRow("Print") << "&File/&Print"
                           << QStringList{"&Breakdown sheets...", "&Call sheet...",       "&Day out of days...",
                                          "Element summary...",   "&Production board...", "&Shooting schedule..."};
    QTest::newRow("Edit") << "&Edit" << QStringList{"&Undo", "Redo", "-", "&Cut", "Co&py", "&Paste", "Delete"};
    QTest::newRow("Production") << "&Production"
                                << QStringList{"&Main details...", "&Start date...", "Hold days...", "-",
                                               "&End of day..."};
    QTest::newRow("Strips") << "&Strips"
                            << QStringList{"&Add scene at end...",
                                           "&Insert scene...",
                                           "&Edit scene...",
                                           "Lock / un-lock to date...",
                                           "-",
                                           "Add &day divider at end\tShift+Ins",
                                           "I&nsert day divider",
                                           "&Remove all day dividers...",
                                           "-",
                                           "Add &banner at end...\tCtrl+Ins",
                                           "In&sert banner...",
                                           "Edi&t banner...",
                                           "Re&move all banners...",
                                           "-",
                                           "A&uto pages-per-day...",
                                           "Aut&o rest days...",
                                           "Convert auto-rest days to banners...",
                                           "-",
                                           "Sort stri&ps...",
                                           "Conform strip order...",
                                           "Reset brea&kdown numbering..."};
    QTest::newRow("Elements") << "Ele&ments"
                              << QStringList{"&Add element...\tCtrl+E", "Edit element...", "-",
                                             "Reset cast numbering...", "Sort elements by category..."};
    QTest::newRow("View") << "&View" << QStringList{"Fullscreen", "&Zoom>"};
    QTest::newRow("Zoom") << "&View/&Zoom"
                          << QStringList{"60%", "70%", "80%", "90%", "100%", "110%", "120%", "130%", "140%"};
    QTest::newRow("Help") << "&Help" << QStringList{"&Contents", "&Index", "-", "&About..."};
}

void TestMainWindow::menus()
{
    QFETCH(QString, menu);
    QFETCH(QStringList, expected);
    Harness h;
    const QStringList path = menu.split('/');
    QMenu *m = topMenu(*h.main, path.first());
    QVERIFY(m);
    for (const QString &sub : path.mid(1)) {
        QMenu *next = nullptr;
        for (QAction *a : m->actions()) {
            if (a->menu() && a->text() == sub)
                next = a->menu();
        }
        QVERIFY(next);
        m = next;
    }
    QCOMPARE(entries(m), expected);
    const QStringList order{"&File", "&Edit", "&Production", "&Strips", "Ele&ments", "&View", "&Help"};
    QStringList bar;
    for (QAction *a : h.main->menuBar()->actions())
        bar << a->text();
    QCOMPARE(bar, order);
}

void TestMainWindow::shortcuts_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    QTest::newRow("Save") << "Save1"
                          << "F12";
    QTest::newRow("Exit") << "Exit1"
                          << "Ctrl+Q";
    QTest::newRow("Undo") << "Undo1"
                          << "Ctrl+Z";
    QTest::newRow("Cut") << "Cut1"
                         << "Ctrl+X";
    QTest::newRow("Copy") << "Copy1"
                          << "Ctrl+C";
    QTest::newRow("Paste") << "Paste1"
                           << "Ctrl+V";
    QTest::newRow("Delete") << "Delete1"
                            << "Del";
    QTest::newRow("End of day") << "Endofday1"
                                << "Ctrl+E";
    QTest::newRow("Add scene") << "Addscene1"
                               << "Ins";
    QTest::newRow("Insert scene") << "Insertscene1"
                                  << "Shift+Ins";
    QTest::newRow("Edit scene") << "Editscene1"
                                << "Ctrl+Ins";
    QTest::newRow("Contents") << "Contents1"
                              << "F1";
    // The second holders of a key show it but do not take it.
    QTest::newRow("Add day divider") << "Adddaydivider1"
                                     << "";
    QTest::newRow("Add banner") << "Addbanner1"
                                << "";
    QTest::newRow("Add element") << "Addelement1"
                                 << "";
    QTest::newRow("New") << "New1"
                         << "";
    QTest::newRow("Redo") << "Redo1"
                          << "";
}

void TestMainWindow::shortcuts()
{
    QFETCH(QString, name);
    QFETCH(QString, key);
    Harness h;
    QAction *a = h.main->findAction(name);
    QVERIFY(a);
    QCOMPARE(a->shortcut().toString(), key);
    // No two entries hold the same key.
    QMap<QString, QString> holders;
    for (QAction *each : h.main->findChildren<QAction *>()) {
        const QString k = each->shortcut().toString();
        if (k.isEmpty())
            continue;
        QVERIFY2(!holders.contains(k), qPrintable(k + " on " + holders.value(k) + " and " + each->objectName()));
        holders.insert(k, each->objectName());
    }
}

void TestMainWindow::doubleShortcutsGoToFirstEntry_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("Shift+Ins") << int(Qt::Key_Insert) << int(Qt::ShiftModifier) << "Insertscene1"
                               << "Adddaydivider1";
    QTest::newRow("Ctrl+Ins") << int(Qt::Key_Insert) << int(Qt::ControlModifier) << "Editscene1"
                              << "Addbanner1";
    QTest::newRow("Ctrl+E") << int(Qt::Key_E) << int(Qt::ControlModifier) << "Endofday1"
                            << "Addelement1";
    QTest::newRow("Ctrl+X, not the pop-up") << int(Qt::Key_X) << int(Qt::ControlModifier) << "Cut1"
                                            << "PopCut1";
}

void TestMainWindow::doubleShortcutsGoToFirstEntry()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, first);
    QFETCH(QString, second);
    Harness h;
    h.serveAll();
    QVERIFY(h.start());
    AddScene(h.doc, "1", "1");
    AddScene(h.doc, "2", "1");
    h.doc.SelStart = h.doc.SelEnd = 1;
    SetModified(h.doc);
    QVERIFY(h.main->findAction(first)->isEnabled());
    QVERIFY(h.main->findAction(second)->isEnabled());
    h.main->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(h.main.get()));
    QSignalSpy firstSpy(h.main->findAction(first), &QAction::triggered);
    QSignalSpy secondSpy(h.main->findAction(second), &QAction::triggered);
    QTest::keyClick(h.main.get(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(firstSpy.count(), 1);
    QCOMPARE(secondSpy.count(), 0);
}

void TestMainWindow::popupMenu()
{
    Harness h;
    QCOMPARE(h.main->boardPopup()->objectName(), "PBPopup");
    QCOMPARE(entries(h.main->boardPopup()),
             (QStringList{"Cut\tCtrl+X", "Copy\tCtrl+C", "Paste (insert)\tCtrl+V", "Delete selection\tDel", "-",
                          "Add scene at end...\tIns", "Insert scene...\tShift+Ins", "Edit scene...",
                          "Lock / un-lock to date...", "-", "Add day divider at end...\tShift+Ins",
                          "Insert day divider...", "-", "Add element at end...\tCtrl+E", "Edit element..."}));
    for (QAction *a : h.main->boardPopup()->actions())
        QVERIFY(a->shortcut().isEmpty());
}

void TestMainWindow::toolBarAndZoomCombo()
{
    Harness h;
    const QList<std::pair<QString, QString>> buttons{{"OpenBut", "Open"}, {"SaveBut", "Save"}, {"UndoBut", "Undo"},
                                                     {"CutBut", "Cut"},   {"CopyBut", "Copy"}, {"PasteBut", "Paste"}};
    for (const auto &[name, hint] : buttons) {
        auto *button = h.main->toolBar()->findChild<QToolButton *>(name);
        QVERIFY2(button, qPrintable(name));
        QCOMPARE(button->toolTip(), hint);
        QVERIFY(!button->icon().isNull());
    }
    // The Undo button follows the Undo entry, whose caption changes.
    auto *undo = h.main->toolBar()->findChild<QToolButton *>("UndoBut");
    QCOMPARE(undo->defaultAction(), h.main->findAction("Undo1"));
    QComboBox *zoom = h.main->zoomCombo();
    QCOMPARE(zoom->objectName(), "ZoomCombo");
    QCOMPARE(zoom->toolTip(), "Zoom");
    QStringList items;
    for (int i = 0; i < zoom->count(); ++i)
        items << zoom->itemText(i);
    QCOMPARE(items, (QStringList{"60%", "70%", "80%", "90%", "100%", "110%", "120%", "130%", "140%"}));
    QCOMPARE(zoom->currentText(), "100%");
    QVERIFY(h.main->findAction("N1001")->isChecked());
}

void TestMainWindow::statusBarPanels()
{
    Harness h;
    PanelStatusBar *bar = h.main->statusPanels();
    QCOMPARE(&h.doc.status(), static_cast<StatusSink *>(bar));
    QCOMPARE(bar->panel(0)->width(), 300);
    QCOMPARE(bar->panel(1)->width(), 75);
    QCOMPARE(bar->panel(2)->width(), 100);
    QCOMPARE(bar->panel(3)->width(), 60);
    QCOMPARE(qobject_cast<QLabel *>(bar->panel(1))->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
    QCOMPARE(qobject_cast<QLabel *>(bar->panel(3))->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
    AddScene(h.doc, "1", "1.375");
    h.doc.SelStart = h.doc.SelEnd = 1;
    SetModified(h.doc);
    QCOMPARE(bar->panelText(StatusSink::ModifiedPanel), "Modified");
    QCOMPARE(bar->panelText(StatusSink::PagesPanel), "1 3/8 pages");
    h.doc.status().setProgress(42);
    QCOMPARE(bar->progress(), 42);
    h.doc.status().setProgress(140);
    QCOMPARE(bar->progress(), 100);
    h.doc.status().setBusy(true);
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    h.doc.status().setBusy(false);
    QVERIFY(!QApplication::overrideCursor());
}

// ---- Start-up --------------------------------------------------------------------

void TestMainWindow::firstShowSteps()
{
    const QString ini = TempPath("first-show.ini");
    {
        QFile file(ini);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[Files]\r\nAutosavetime=5\r\n[Strips]\r\nCB1=clRed\r\nFont=Courier\r\n");
    }
    const QString path = saved("command-line.tbf", "Rain", 3);
    Harness h("first-show.ini");
    h.main->setFirstShowPause(1200); // the real pause
    h.main->setCommandLineFile(path);
    h.main->hasPrinter = [] { return false; };
    h.doc.clipboard.ClipKind = StripClipboard::Strips;
    h.doc.clipboard.ClipCount = 4;
    QCOMPARE(h.main->windowTitle(), "Torvanbridge");

    QElapsedTimer clock;
    clock.start();
    h.main->show();
    QTest::qWait(800);
    QVERIFY(!h.main->firstShowDone()); // nothing before the pause is over
    QVERIFY(h.prompter.prompts.isEmpty());
    QVERIFY(QTest::qWaitFor([&] { return h.main->firstShowDone(); }, 5000));
    QVERIFY(clock.elapsed() >= 1200);

    // The settings were read before the document was emptied (New starts the autosave).
    QCOMPARE(h.main->autosaveTimer().interval(), 5 * 60000);
    QVERIFY(h.main->autosaveTimer().isActive());
    QCOMPARE(h.main->board()->style().background[1], QColor(Qt::red));
    QCOMPARE(h.main->board()->style().fontName, "Courier");
    // The command-line file, then the clipboard, then the printer message.
    QCOMPARE(h.doc.FileName, path);
    QCOMPARE(h.doc.strips.count(), 3);
    QCOMPARE(h.main->windowTitle(), "Torvanbridge - Rain  (" + path + ") ");
    QCOMPARE(h.doc.clipboard.ClipKind, 0);
    QCOMPARE(h.doc.clipboard.ClipCount, 0);
    QCOMPARE(h.prompter.prompts.size(), 1);
    QCOMPARE(h.prompter.prompts.first().kind, MessageKind::Error);
    QCOMPARE(h.prompter.prompts.first().text,
             "Torvanbridge cannot find any printers installed on this computer. You can continue to use the "
             "software, but all Print features will be disabled.\r\rSee Windows Help if you require assistance on "
             "installing printers.");
    QCOMPARE(h.main->recentFiles()->paths().value(0), path);
}

void TestMainWindow::firstShowWithMissingFile()
{
    Harness h;
    h.main->setCommandLineFile(TempPath("not-there.tbf"));
    QVERIFY(h.start());
    // The open error, and the program goes on with an empty document.
    QCOMPARE(h.prompter.prompts.size(), 1);
    QVERIFY(h.prompter.prompts.first().text.startsWith("Error opening file"));
    QVERIFY(h.main->isVisible());
    QCOMPARE(h.doc.strips.count(), 0);
    // No settings file: white strips, black text, Arial, no autosave.
    QCOMPARE(h.main->board()->style().background[4], QColor(Qt::white));
    QCOMPARE(h.main->board()->style().text[4], QColor(Qt::black));
    QCOMPARE(h.main->board()->style().fontName, "Arial");
    QVERIFY(!h.main->autosaveTimer().isActive());
}

// ---- Document commands -----------------------------------------------------------

void TestMainWindow::autosaveClearsCloseQuestion()
{
    Harness h;
    QVERIFY(h.start());
    const QString own = saved("autosave-own.tbf", "Own");
    QVERIFY(OpenDocument(h.doc, own).ok());
    AddScene(h.doc, "9", "1");
    SetModified(h.doc);
    const QString autosave = TempPath("gui-autosave.tbf");
    h.main->setAutosavePath(autosave);
    h.main->setAutosaveInterval(50);
    QVERIFY(QTest::qWaitFor([&] { return QFile::exists(autosave); }, 3000));
    QVERIFY(QTest::qWaitFor([&] { return !h.doc.Modified; }, 1000));
    QCOMPARE(h.doc.FileName, own);
    QCOMPARE(h.main->statusPanels()->panelText(0), "");
    QVERIFY(!h.main->recentFiles()->paths().contains(autosave));
    h.main->setAutosaveInterval(0);
    QVERIFY(!h.main->autosaveTimer().isActive());
    // The required behaviour: the close question does not come.
    QVERIFY(h.main->close());
    QVERIFY(h.prompter.prompts.isEmpty());
}

void TestMainWindow::closeQuestion()
{
    Harness h;
    QVERIFY(h.start());
    const QString path = saved("close.tbf", "Close");
    QVERIFY(OpenDocument(h.doc, path).ok());
    AddScene(h.doc, "2", "1");
    SetModified(h.doc);

    h.prompter.answers = {Answer::Cancel};
    QVERIFY(!h.main->close());
    QVERIFY(h.main->isVisible());
    QCOMPARE(h.prompter.prompts.size(), 1);
    QVERIFY(!h.prompter.prompts.first().beep);
    // The recent-files list is written in every case.
    QSettings registry(QSettings::NativeFormat, QSettings::UserScope, "Brenholt", "Torvanbridge");
    QCOMPARE(registry.value("MRUList/File1").toString(), path);

    h.prompter.answers = {Answer::Yes}; // saves to its own file
    h.entry(actions::Exit1)->trigger();
    QVERIFY(!h.main->isVisible());
    ScheduleDocument reopened;
    QVERIFY(OpenDocument(reopened, path).ok());
    QCOMPARE(reopened.strips.count(), 2);
}

void TestMainWindow::dropOfThreeFiles()
{
    Harness h;
    QVERIFY(h.start());
    const QStringList paths{saved("gui-drop1.tbf", "One"), saved("gui-drop2.tbf", "Two"),
                            saved("gui-drop3.tbf", "Three")};
    AddScene(h.doc, "x", "1");
    SetModified(h.doc);
    QMimeData mime;
    QList<QUrl> urls;
    for (const QString &p : paths)
        urls << QUrl::fromLocalFile(p);
    mime.setUrls(urls);

    QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(h.main.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(300, 300), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(h.main.get(), &drop);

    QVERIFY(h.prompter.prompts.isEmpty()); // no unsaved-changes question
    QCOMPARE(h.doc.values.PictureTitle, "One");
    QCOMPARE(h.doc.FileName, paths.first());
    QCOMPARE(h.main->recentFiles()->paths(), QStringList{paths.first()});

    QMimeData text;
    text.setText("not a file");
    QDragEnterEvent refused(QPoint(300, 300), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    refused.setAccepted(false);
    QApplication::sendEvent(h.main.get(), &refused);
    QVERIFY(!refused.isAccepted());
}

void TestMainWindow::recentFilesMenu()
{
    Harness h;
    QVERIFY(h.start());
    QStringList paths;
    for (int i = 1; i <= 7; ++i) {
        paths << saved(QString("recent%1.tbf").arg(i), QString("R%1").arg(i));
        QVERIFY(OpenDocument(h.doc, paths.last()).ok());
    }
    RecentFilesList *recent = h.main->recentFiles();
    QCOMPARE(recent->paths().size(), 6);
    QCOMPARE(recent->paths().first(), paths.last());
    QVERIFY(!recent->paths().contains(paths.first()));
    // Listed at the end of the File menu, after Exit.
    QMenu *file = topMenu(*h.main, "&File");
    const QStringList shown = entries(file);
    QCOMPARE(shown.indexOf("&Exit") + 2, shown.indexOf("&1 " + QDir::toNativeSeparators(paths.last())));
    QCOMPARE(shown.size(), shown.indexOf("&Exit") + 2 + 6);

    AddScene(h.doc, "9", "1");
    SetModified(h.doc);
    h.prompter.answers = {Answer::No};
    recent->actions().at(3)->trigger();
    QCOMPARE(h.prompter.prompts.size(), 1);
    QVERIFY(h.prompter.prompts.first().text.startsWith("The current schedule has not been saved"));
    QCOMPARE(h.doc.values.PictureTitle, "R4");
    QCOMPARE(recent->paths().first(), paths.at(3));
}

// ---- Enabling ----------------------------------------------------------------------

void TestMainWindow::enablingByState_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QStringList>("enabled"); // of the names below
    QTest::newRow("empty board") << "empty" << QStringList{"New1", "Addscene1", "PopAddscene1", "Adddaydivider1"};
    QTest::newRow("scene selected") << "scene"
                                    << QStringList{"New1",
                                                   "Addscene1",
                                                   "PopAddscene1",
                                                   "Adddaydivider1",
                                                   "Cut1",
                                                   "Copy1",
                                                   "Delete1",
                                                   "PopCut1",
                                                   "Insertscene1",
                                                   "Editscene1",
                                                   "PopEditscene1",
                                                   "Lockstriptodate1",
                                                   "Insertbanner1",
                                                   "Sortstrips1",
                                                   "Removealldaydividers1",
                                                   "Removeallbanners1",
                                                   "Reordercastnumbering1"};
    QTest::newRow("banner selected") << "banner"
                                     << QStringList{"New1",
                                                    "Addscene1",
                                                    "PopAddscene1",
                                                    "Adddaydivider1",
                                                    "Cut1",
                                                    "Copy1",
                                                    "Delete1",
                                                    "PopCut1",
                                                    "Insertscene1",
                                                    "EditBanner1",
                                                    "Lockstriptodate1",
                                                    "Insertbanner1",
                                                    "Sortstrips1",
                                                    "Removealldaydividers1",
                                                    "Removeallbanners1",
                                                    "Reordercastnumbering1"};
    QTest::newRow("element selected, strips copied") << "element"
                                                     << QStringList{"New1",
                                                                    "Addscene1",
                                                                    "PopAddscene1",
                                                                    "Adddaydivider1",
                                                                    "Cut1",
                                                                    "Copy1",
                                                                    "Delete1",
                                                                    "PopCut1",
                                                                    "Editelement1",
                                                                    "PopEditelement1",
                                                                    "Sortstrips1",
                                                                    "Removealldaydividers1",
                                                                    "Removeallbanners1",
                                                                    "Reordercastnumbering1"};
    QTest::newRow("scene selected, strips copied") << "paste"
                                                   << QStringList{"New1",
                                                                  "Addscene1",
                                                                  "PopAddscene1",
                                                                  "Adddaydivider1",
                                                                  "Cut1",
                                                                  "Copy1",
                                                                  "Delete1",
                                                                  "PopCut1",
                                                                  "Paste1",
                                                                  "PopPaste1",
                                                                  "Insertscene1",
                                                                  "Editscene1",
                                                                  "PopEditscene1",
                                                                  "Lockstriptodate1",
                                                                  "Insertbanner1",
                                                                  "Sortstrips1",
                                                                  "Removealldaydividers1",
                                                                  "Removeallbanners1",
                                                                  "Reordercastnumbering1"};
}

void TestMainWindow::enablingByState()
{
    QFETCH(QString, state);
    QFETCH(QStringList, enabled);
    Harness h;
    h.serveAll();
    if (state != "empty") {
        AddScene(h.doc, "1", "1");
        AddDivider(h.doc);
        AddBanner(h.doc, "Travel", 1);
        AddScene(h.doc, "2", "1");
        AddElement(h.doc, "Anna");
    }
    if (state == "scene" || state == "paste") {
        h.doc.SelStart = h.doc.SelEnd = 1;
    } else if (state == "banner") {
        h.doc.SelStart = h.doc.SelEnd = 3;
    } else if (state == "element") {
        h.doc.SelElement = 1;
    }
    if (state == "paste" || state == "element")
        h.doc.clipboard.ClipKind = StripClipboard::Strips;
    SetModified(h.doc);

    const QStringList checked{"New1",
                              "Addscene1",
                              "PopAddscene1",
                              "Adddaydivider1",
                              "Cut1",
                              "Copy1",
                              "Delete1",
                              "PopCut1",
                              "Paste1",
                              "PopPaste1",
                              "Insertscene1",
                              "Editscene1",
                              "PopEditscene1",
                              "EditBanner1",
                              "Lockstriptodate1",
                              "Insertbanner1",
                              "Editelement1",
                              "PopEditelement1",
                              "Sortstrips1",
                              "Removealldaydividers1",
                              "Removeallbanners1",
                              "Convertautorestdaystobanners1",
                              "Reordercastnumbering1",
                              "Undo1",
                              "Redo1"};
    QStringList actual;
    for (const QString &name : checked) {
        QAction *a = h.main->findAction(name);
        QVERIFY2(a, qPrintable(name));
        if (a->isEnabled())
            actual << name;
    }
    QCOMPARE(actual, enabled);
    // The tool buttons go with their entries.
    QCOMPARE(h.main->toolBar()->findChild<QToolButton *>("CutBut")->isEnabled(), enabled.contains("Cut1"));
    QCOMPARE(h.main->toolBar()->findChild<QToolButton *>("PasteBut")->isEnabled(), enabled.contains("Paste1"));
}

void TestMainWindow::laterEntriesDisabledUntilServed()
{
    Harness h;
    QAction *add = h.entry(actions::Addscene1);
    QAction *popAdd = h.entry(actions::PopAddscene1);
    QVERIFY(!add->isEnabled());
    QVERIFY(!popAdd->isEnabled());
    QVERIFY(h.entry(actions::New1)->isEnabled());
    QVERIFY(h.entry(actions::AsHTML1)->isEnabled()); // stands there and does nothing
    QVERIFY(!h.main->isServed(add));

    // A subsystem asks for its entry: from then on it is enabled by state.
    QCOMPARE(h.main->action(actions::Addscene1), add);
    QVERIFY(add->isEnabled());
    QVERIFY(popAdd->isEnabled());
    // The pop-up entry runs the main entry until it is served itself.
    QSignalSpy spy(add, &QAction::triggered);
    popAdd->trigger();
    QCOMPARE(spy.count(), 1);
    h.main->action(actions::PopAddscene1);
    popAdd->trigger();
    QCOMPARE(spy.count(), 1);
    QVERIFY(!h.main->action("NoSuchEntry"));
}

void TestMainWindow::undoAndClipboardEntries()
{
    Harness h;
    QVERIFY(h.start());
    AddScene(h.doc, "1", "1");
    AddScene(h.doc, "2", "1");
    AddScene(h.doc, "3", "1");
    h.doc.SelStart = h.doc.SelEnd = 2;
    SetModified(h.doc);
    QAction *undo = h.entry(actions::Undo1);
    QAction *redo = h.entry(actions::Redo1);
    QCOMPARE(undo->text(), "&Undo");
    QVERIFY(!undo->isEnabled());

    h.entry(actions::Cut1)->trigger();
    QCOMPARE(Kinds(h.doc), "1 1");
    QCOMPARE(undo->text(), "Undo Cut strip(s)");
    QVERIFY(undo->isEnabled());
    QVERIFY(h.main->toolBar()->findChild<QToolButton *>("UndoBut")->isEnabled());
    QCOMPARE(h.main->toolBar()->findChild<QToolButton *>("UndoBut")->toolTip(), "Undo");
    QVERIFY(!h.entry(actions::Paste1)->isEnabled()); // the cut cleared the selection

    h.doc.SelStart = h.doc.SelEnd = 1;
    UpdateCommandsAndStatus(h.doc);
    QVERIFY(h.entry(actions::Paste1)->isEnabled());
    h.entry(actions::PopPaste1)->trigger();
    QCOMPARE(h.doc.strips.count(), 3);
    QCOMPARE(h.doc.strips[1][StripField::SceneNumber], "2");
    QCOMPARE(undo->text(), "Undo Paste strip(s)");

    h.entry(actions::Undo1)->trigger();
    QCOMPARE(h.doc.strips.count(), 2);
    QCOMPARE(undo->text(), "Undo Cut strip(s)");
    QVERIFY(redo->isEnabled());
    QCOMPARE(redo->text(), "Redo ");
    h.entry(actions::Redo1)->trigger(); // does nothing
    QCOMPARE(h.doc.strips.count(), 2);
    h.entry(actions::Undo1)->trigger();
    QCOMPARE(h.doc.strips.count(), 3);
    QCOMPARE(undo->text(), "Undo");
    QVERIFY(!undo->isEnabled());
    QVERIFY(!h.main->toolBar()->findChild<QToolButton *>("UndoBut")->isEnabled());
}

void TestMainWindow::zoom()
{
    Harness h;
    QVERIFY(h.start());
    QVERIFY(!h.doc.Modified);
    // The title of an untitled schedule: two blanks before the parenthesis, one after.
    QCOMPARE(h.main->windowTitle(), "Torvanbridge -   () ");
    h.doc.values.PictureTitle = "Rain";
    h.doc.view().setTitle(UpdateTitle(h.doc));
    QCOMPARE(h.main->windowTitle(), "Torvanbridge - Rain  () ");
    h.entry("N1401")->trigger();
    QCOMPARE(h.main->board()->boardScale(), 1.4);
    QCOMPARE(h.doc.values.BoardZoom, 1.4);
    QCOMPARE(h.main->zoomCombo()->currentText(), "140%");
    QVERIFY(h.entry("N1401")->isChecked());
    // A zoom counts as a change.
    QVERIFY(h.doc.Modified);
    QCOMPARE(h.main->statusPanels()->panelText(3), "Modified");

    ClearModified(h.doc);
    h.main->zoomCombo()->setCurrentIndex(0);
    QCOMPARE(h.main->board()->boardScale(), 0.6);
    QVERIFY(h.entry("N601")->isChecked());
    QVERIFY(!h.entry("N1401")->isChecked());
    QVERIFY(h.doc.Modified);

    // A zoom read from a file that is not one of the steps snaps back to 100%.
    ClearModified(h.doc);
    h.main->zoomChanged(0.75);
    QCOMPARE(h.main->board()->boardScale(), 1.0);
    QCOMPARE(h.main->zoomCombo()->currentText(), "100%");
    QVERIFY(h.entry("N1001")->isChecked());
    QVERIFY(!h.doc.Modified);

    // Opening a schedule saved at 120% shows it at 120%; New goes back to 100%.
    ScheduleDocument zoomed;
    zoomed.values.BoardZoom = 1.2;
    const QString path = TempPath("zoomed.tbf");
    QVERIFY(SaveDocument(zoomed, path).ok());
    QVERIFY(OpenDocument(h.doc, path).ok());
    QCOMPARE(h.main->zoomCombo()->currentText(), "120%");
    QVERIFY(h.entry("N1201")->isChecked());
    NewDocument(h.doc);
    QCOMPARE(h.main->zoomCombo()->currentText(), "100%");
}

// ---- Dialogs and help ----------------------------------------------------------------

void TestMainWindow::preferencesDialog()
{
    Harness h;
    QVERIFY(h.start());
    bool seen = false;
    QTimer::singleShot(0, [&] {
        auto *pref = qobject_cast<TfrmPref *>(QApplication::activeModalWidget());
        QVERIFY(pref);
        seen = true;
        QCOMPARE(child<QSpinBox>(pref, "AutoSaveSpin")->value(), 0);
        QVERIFY(child<QCheckBox>(pref, "AutoRestCheck")->isChecked());
        QCOMPARE(child<QComboBox>(pref, "DescLine1Combo")->currentText(), "Location");
        child<QSpinBox>(pref, "AutoSaveSpin")->setValue(2);
        child<QCheckBox>(pref, "AutoRestCheck")->setChecked(false);
        child<QComboBox>(pref, "DescLine1Combo")->setCurrentIndex(4); // Notes
        child<QCheckBox>(pref, "ScHintsCheck")->setChecked(false);
        pref->chooseColour = [](const QColor &, const QString &) { return QColor(Qt::green); };
        child<QPushButton>(pref, "SlotBut7")->click();
        QCOMPARE(pref->selectedSlot(), 7);
        child<QPushButton>(pref, "BackColorBut")->click();
        pref->chooseFont = [](const QString &) { return std::optional<QString>("Courier"); };
        child<QPushButton>(pref, "FontBut")->click();
        QCOMPARE(child<QLabel>(pref, "FontLabel")->text(), "Courier");
        QTest::mouseClick(child<QPushButton>(pref, "OKBut"), Qt::LeftButton);
    });
    h.entry(actions::Preferences1)->trigger();
    QVERIFY(seen);
    QCOMPARE(h.main->autosaveTimer().interval(), 2 * 60000);
    QVERIFY(h.main->autosaveTimer().isActive());
    QCOMPARE(h.doc.autosaveMinutes, 2);
    QCOMPARE(h.settings.descLine1, 19);
    const BoardStyle &style = h.main->board()->style();
    QCOMPARE(style.DescLine1, 19);
    QCOMPARE(style.background[7], QColor(Qt::green));
    QCOMPARE(style.fontName, "Courier");
    QVERIFY(!style.ScenePopups);
    // The warning answer is stored reversed, and the board reads it from there.
    QVERIFY(h.settings.skipWarning(RememberedWarning::AutoRestClick));
    QVERIFY(h.main->board()->skipAutoRestWarning());
    h.main->board()->setSkipAutoRestWarning(false);
    QVERIFY(!h.settings.skipWarning(RememberedWarning::AutoRestClick));
    Settings fromFile(h.settings.path());
    fromFile.LoadSettings();
    QCOMPARE(legacy::ColorValueToString(fromFile.stripBackground[7]), "clLime");
}

void TestMainWindow::preferencesCancelled()
{
    Harness h("pref-cancel.ini");
    QVERIFY(h.start());
    QTimer::singleShot(0, [&] {
        auto *pref = qobject_cast<TfrmPref *>(QApplication::activeModalWidget());
        QVERIFY(pref);
        child<QSpinBox>(pref, "AutoSaveSpin")->setValue(30);
        QVERIFY(child<QLabel>(pref, "AutosaveWhereLabel")
                    ->text()
                    .contains(QDir::toNativeSeparators(h.main->autosavePath())));
        QTest::mouseClick(child<QPushButton>(pref, "CancelBut"), Qt::LeftButton);
    });
    h.entry(actions::Preferences1)->trigger();
    QCOMPARE(h.settings.autosaveMinutes, 0);
    QVERIFY(!h.main->autosaveTimer().isActive());
    QVERIFY(!QFile::exists(h.settings.path()));
}

void TestMainWindow::helpPages()
{
    Harness h;
    h.entry(actions::Contents1)->trigger();
    QVERIFY(h.main->helpWindow());
    QVERIFY(h.main->helpWindow()->isVisible());
    QCOMPARE(h.main->helpWindow()->currentPage(), "contents.html");
    QVERIFY(!h.main->helpWindow()->parentWidget()); // no owner window
    h.entry(actions::Index1)->trigger();
    QCOMPARE(h.main->helpWindow()->currentPage(), "index.html");
    h.main->showHelp("board.html");
    QCOMPARE(h.main->helpWindow()->currentPage(), "board.html");
    h.main->showHelp("no-such-dialog.html");
    QVERIFY(h.main->helpWindow()->browser()->toPlainText().contains("no-such-dialog.html"));

    // Every page is bundled, the first pages are there, and no link leads nowhere.
    QStringList pages;
    QDirIterator it(":/help");
    while (it.hasNext()) {
        it.next();
        pages << it.fileName();
    }
    for (const char *page : {"contents.html", "index.html", "getting-started.html", "board.html", "menus.html"})
        QVERIFY2(pages.contains(page), page);
    const QRegularExpression link("href=\"([^\"#:]+)(#[^\"]*)?\"");
    for (const QString &page : pages) {
        if (!page.endsWith(".html"))
            continue;
        QFile file(":/help/" + page);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(file.readAll());
        auto matches = link.globalMatch(html);
        while (matches.hasNext()) {
            const QString target = matches.next().captured(1);
            QVERIFY2(HelpWindow::pageExists(target), qPrintable(page + " links to " + target));
        }
    }
    QFile contents(":/help/contents.html");
    QVERIFY(contents.open(QIODevice::ReadOnly));
    const QByteArray html = contents.readAll();
    for (const char *page : {"getting-started.html", "board.html", "menus.html", "index.html"})
        QVERIFY2(html.contains(page), page);
}

void TestMainWindow::aboutDialog()
{
    Harness h;
    bool seen = false;
    QTimer::singleShot(0, [&] {
        auto *about = qobject_cast<TfrmAbout *>(QApplication::activeModalWidget());
        QVERIFY(about);
        seen = true;
        QCOMPARE(child<QLabel>(about, "ProductLabel")->text(), "Torvanbridge");
        QCOMPARE(child<QLabel>(about, "VersionLabel")->text(), "Version " TB_VERSION);
        QVERIFY(!child<QLabel>(about, "DescriptionLabel")->text().isEmpty());
        QTest::mouseClick(child<QPushButton>(about, "OKBut"), Qt::LeftButton);
    });
    h.entry(actions::About1)->trigger();
    QVERIFY(seen);
}

void TestMainWindow::boardRequestsRunEntries()
{
    Harness h;
    h.serveAll();
    AddScene(h.doc, "1", "1");
    AddBanner(h.doc, "Travel", 1);
    h.doc.SelStart = h.doc.SelEnd = 1;
    SetModified(h.doc);
    QSignalSpy scene(h.entry(actions::Editscene1), &QAction::triggered);
    QSignalSpy banner(h.entry(actions::EditBanner1), &QAction::triggered);
    emit h.main->board()->editSceneRequested();
    QCOMPARE(scene.count(), 1);
    // A banner is edited only when a banner is the selection.
    emit h.main->board()->editBannerRequested();
    QCOMPARE(banner.count(), 0);
    h.doc.SelStart = h.doc.SelEnd = 2;
    UpdateCommandsAndStatus(h.doc);
    emit h.main->board()->editBannerRequested();
    QCOMPARE(banner.count(), 1);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
