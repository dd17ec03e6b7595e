#include "TestSupport.h"

#include "app/TfrmAbout.h"
#include "app/TfrmMain.h"
#include "document/DayCalculation.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/ScheduleFile.h"
#include "document/Settings.h"
#include "document/ShellCommands.h"
#include "ui/board/BoardView.h"
#include "ui/shell/HelpWindow.h"
#include "ui/shell/MenuActions.h"
#include "ui/shell/MenuCommands.h"
#include "ui/shell/PanelStatusBar.h"
#include "ui/shell/RecentFilesList.h"
#include "ui/shell/TfrmPref.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDirIterator>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardPaths>
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

// A changed document with one scene.
void changed(ScheduleDocument &doc)
{
    AddScene(doc, "7", "2");
    SetModified(doc);
}

QMenu *topMenu(TfrmMain &main, const QString &caption)
{
    for (QAction *a : main.menuBar()->actions()) {
        if (a->text() == caption)
            return a->menu();
    }
    return nullptr;
}

// Every entry is built: none stands in its menu without a handler.
const QStringList NotBuilt = {};

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    // ---- Menus -----------------------------------------------------------------------

    void menus_data()
    {
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("expected"); // captions joined by "|"
        QTest::newRow("menu bar") << "" << QString("&File|&Edit|&Production|&Strips|Ele&ments|&View|&Help");
        QTest::newRow("File") << "&File"
                              << "&New|&Open...|&Save|Save &As...|-|&Import script...|Import &Final Draft reports...|"
                                 "&Export board>|-|&Print>|-|P&references...|-|&Exit";
        QTest::newRow("Export board") << "&File/&Export board" << QString("As &Spreadsheet...|As &HTML...");
        QTest::newRow("Print") << "&File/&Print"
                               << "&Breakdown sheets...|&Call sheet...|&Day out of days...|Element summary...|"
                                  "&Production board...|&Shooting schedule...";
        QTest::newRow("Edit") << "&Edit" << QString("&Undo|Redo|-|&Cut|Co&py|&Paste|Delete|-|&Find strips...");
        QTest::newRow("Production") << "&Production"
                                    << QString("&Main details...|&Start date...|Hold days...|-|&End of day...");
        QTest::newRow("Strips")
            << "&Strips"
            << "&Add scene at end...|&Insert scene...|&Edit scene...|Lock / un-lock to date...|-|"
               "Add &day divider at end\tShift+Ins|I&nsert day divider|&Remove all day dividers...|-|"
               "Add &banner at end...\tCtrl+Ins|In&sert banner...|Edi&t banner...|"
               "Re&move all banners...|-|A&uto pages-per-day...|Aut&o rest days...|"
               "Convert auto-rest days to banners...|-|Sort stri&ps...|Conform strip order...|"
               "Reset brea&kdown numbering...";
        QTest::newRow("Elements") << "Ele&ments"
                                  << "&Add element...\tCtrl+E|Edit element...|-|Reset cast numbering...|"
                                     "Sort elements by category...";
        QTest::newRow("View") << "&View" << QString("Fullscreen|&Zoom>|-|Zoom &in|Zoom &out|&Actual size");
        QTest::newRow("Zoom") << "&View/&Zoom" << QString("60%|70%|80%|90%|100%|110%|120%|130%|140%");
        QTest::newRow("Help") << "&Help" << QString("&Contents|&Index|-|&About...");
        QTest::newRow("board pop-up") << "PBPopup"
                                      << "Cut\tCtrl+X|Copy\tCtrl+C|Paste (insert)\tCtrl+V|Delete selection\tDel|-|"
                                         "Add scene at end...\tIns|Insert scene...\tShift+Ins|Edit scene...|"
                                         "Lock / un-lock to date...|-|Add day divider at end...\tShift+Ins|"
                                         "Insert day divider...|-|Add element at end...\tCtrl+E|Edit element...";
    }

    void menus()
    {
        QFETCH(QString, menu);
        QFETCH(QString, expected);
        Harness h;
        if (menu.isEmpty()) {
            QStringList bar;
            for (QAction *a : h.main->menuBar()->actions())
                bar << a->text();
            QCOMPARE(bar.join('|'), expected);
            return;
        }
        const QStringList path = menu.split('/');
        QMenu *m = menu == "PBPopup" ? h.main->boardPopup() : topMenu(*h.main, path.first());
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
        QCOMPARE(entries(m).join('|'), expected);
        // Each entry is a row of an area's table, with a handler unless not built yet.
        for (QAction *a : m->actions()) {
            if (a->isSeparator() || a->menu())
                continue;
            const MenuEntry *row = h.main->menuCommands().entry(a->objectName());
            QVERIFY2(row, qPrintable(a->text()));
            QVERIFY(!row->caption.isEmpty());
            QVERIFY2(bool(row->handler) != NotBuilt.contains(a->objectName()), row->name);
            if (menu == "PBPopup")
                QVERIFY(a->shortcut().isEmpty()); // the main menu holds the keys
        }
    }

    // Every row of every table stands in exactly one menu, under a name of its own.
    void everyEntryIsPlacedOnce()
    {
        Harness h;
        QSet<QString> names;
        QStringList withoutHandler;
        for (const MenuEntry &row : h.main->menuCommands().entries()) {
            const QString name = QLatin1String(row.name);
            QVERIFY2(!names.contains(name), row.name);
            names.insert(name);
            int menus = 0;
            for (QObject *where : h.main->findAction(name)->associatedObjects())
                menus += qobject_cast<QMenu *>(where) ? 1 : 0;
            QVERIFY2(menus == 1, row.name);
            if (!row.handler)
                withoutHandler << name;
        }
        QCOMPARE(withoutHandler, NotBuilt);
    }

    void shortcuts()
    {
        Harness h;
        // The second holders of a key (and New, Redo) show no key of their own.
        const QString expected =
            "Save1=F12 Exit1=Ctrl+Q Undo1=Ctrl+Z Cut1=Ctrl+X Copy1=Ctrl+C Paste1=Ctrl+V "
            "Delete1=Del Endofday1=Ctrl+E Addscene1=Ins Insertscene1=Shift+Ins "
            "Editscene1=Ctrl+Ins Contents1=F1 Adddaydivider1= Addbanner1= Addelement1= New1=Ctrl+N "
            "Redo1=";
        QStringList actual;
        for (const QString &pair : expected.split(' ')) {
            const QString name = pair.section('=', 0, 0);
            QAction *a = h.main->findAction(name);
            QVERIFY2(a, qPrintable(name));
            actual << name + "=" + a->shortcut().toString();
        }
        QCOMPARE(actual.join(' '), expected);
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

    void doubleShortcutsGoToFirstEntry_data()
    {
        QTest::addColumn<QString>("first"); // takes the key in the tag
        QTest::addColumn<QString>("second");
        QTest::newRow("Shift+Ins") << "Insertscene1" << QString("Adddaydivider1");
        QTest::newRow("Ctrl+Ins") << "Editscene1" << QString("Addbanner1");
        QTest::newRow("Ctrl+E") << "Endofday1" << QString("Addelement1");
        QTest::newRow("Ctrl+X") << "Cut1" << QString("PopCut1"); // not the pop-up
    }

    void doubleShortcutsGoToFirstEntry()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        Harness h;
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
        // The entry's dialog, if it opens one, is cancelled.
        QTimer cancel;
        QObject::connect(&cancel, &QTimer::timeout, [] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                dialog->reject();
        });
        cancel.start(5);
        QTest::keySequence(h.main.get(), QKeySequence(QString::fromLatin1(QTest::currentDataTag())));
        QCOMPARE(firstSpy.count(), 1);
        QCOMPARE(secondSpy.count(), 0);
    }

    void toolBarAndZoomCombo()
    {
        Harness h;
        const QList<std::pair<QString, QString>> buttons{{"OpenBut", "Open"}, {"SaveBut", "Save"},
                                                         {"UndoBut", "Undo"}, {"CutBut", "Cut"},
                                                         {"CopyBut", "Copy"}, {"PasteBut", "Paste"}};
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
        QMenu *steps = nullptr; // the combo offers the steps of View/Zoom
        for (QAction *a : topMenu(*h.main, "&View")->actions())
            if (a->menu())
                steps = a->menu();
        QVERIFY(steps);
        QCOMPARE(items, entries(steps));
        QCOMPARE(zoom->currentText(), "100%");
        QVERIFY(h.main->findAction("N1001")->isChecked());
    }

    void statusBarPanels()
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

    void firstShowSteps()
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
        // No printer: no message box, one line in the status bar (reports go to PDF).
        QVERIFY(h.prompter.prompts.isEmpty());
        QCOMPARE(h.main->statusPanels()->panelText(StatusSink::MessagePanel), QString(NoPrinterStatusText));
        QCOMPARE(h.main->recentFiles()->paths().value(0), path);
    }

    void firstShowWithMissingFile()
    {
        Harness h;
        h.main->setCommandLineFile(TempPath("not-there.tbf"));
        QVERIFY(h.start());
        // The open error, and the program goes on with an empty document.
        QCOMPARE(h.prompter.prompts.size(), 1);
        QVERIFY(h.prompter.prompts.first().text.startsWith("Error opening file"));
        QVERIFY(h.main->isVisible());
        QCOMPARE(h.doc.strips.count(), 0);
        QVERIFY(!h.main->autosaveTimer().isActive()); // no settings file: no autosave
    }

    // ---- Document commands -----------------------------------------------------------

    void autosaveTimerSaves()
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
        QVERIFY(h.doc.Modified); // the autosave leaves the changes unsaved
        h.main->setAutosaveInterval(0);
        QVERIFY(!h.main->autosaveTimer().isActive());
    }

    void closeQuestion()
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

    void dropOfThreeFiles()
    {
        Harness h;
        QVERIFY(h.start());
        h.main->recentFiles()->clear(); // the list an earlier test kept
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

        // The unsaved-changes question comes first (Yes: the untitled schedule's Save As
        // is cancelled here, and the drop goes on).
        QCOMPARE(h.prompter.texts(), QStringList{SaveChangesQuestion});
        QCOMPARE(h.doc.values.PictureTitle, "One");
        QCOMPARE(h.doc.FileName, paths.first());
        QVERIFY(!h.doc.Modified);
        QCOMPARE(h.main->recentFiles()->paths(), QStringList{paths.first()});

        QMimeData text;
        text.setText("not a file");
        QDragEnterEvent refused(QPoint(300, 300), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        refused.setAccepted(false);
        QApplication::sendEvent(h.main.get(), &refused);
        QVERIFY(!refused.isAccepted());
    }

    void recentFilesMenu()
    {
        Harness h;
        QVERIFY(h.start());
        QStringList paths;
        for (int i = 1; i <= 7; ++i) {
            paths << saved(QString("recent%1.tbf").arg(i), QString("R%1").arg(i));
            QVERIFY(OpenDocument(h.doc, paths.last()).ok());
        }
        RecentFilesList *recent = h.main->recentFiles();
        // Listed at the end of the File menu, after Exit.
        QMenu *file = topMenu(*h.main, "&File");
        const QStringList shown = entries(file);
        QCOMPARE(shown.indexOf("&Exit") + 2, shown.indexOf("&1 " + QDir::toNativeSeparators(paths.last())));
        QCOMPARE(shown.size(), shown.indexOf("&Exit") + 2 + 6);

        AddScene(h.doc, "9", "1");
        SetModified(h.doc);
        h.prompter.answers = {Answer::No};
        recent->actions().at(3)->trigger();
        QCOMPARE(h.prompter.prompts.size(), 1); // the recent-file question
        QCOMPARE(h.doc.values.PictureTitle, "R4");
        QCOMPARE(recent->paths().first(), paths.at(3));
    }

    // ---- Enabling ----------------------------------------------------------------------

    void enablingByState_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("disabled"); // every entry off, besides those not built yet
        const QString empty = "Cut1 Copy1 Paste1 Delete1 PopCut1 PopCopy1 PopPaste1 PopDelete1 Undo1 Redo1 "
                              "Insertscene1 Editscene1 PopInsertscene1 PopEditscene1 Lockstriptodate1 PopLockstrip1 "
                              "Insertdaydivider1 PopInsertdaydivider1 Insertbanner1 EditBanner1 Editelement1 "
                              "PopEditelement1 Removealldaydividers1 Removeallbanners1 "
                              "Convertautorestdaystobanners1 Automaticdaydividers1 Sortstrips1 Conformstriporder1 "
                              "Resetbreakdownnumbering1 Reordercastnumbering1 Sortelements1";
        QTest::newRow("empty board") << "empty" << empty;
        QTest::newRow("banner selected") << "banner"
                                         << "Paste1 PopPaste1 Undo1 Redo1 Editscene1 PopEditscene1 Editelement1 "
                                            "PopEditelement1 Convertautorestdaystobanners1";
        QTest::newRow("element selected, strips copied")
            << "element"
            << "Paste1 PopPaste1 Undo1 Redo1 Insertscene1 Editscene1 PopInsertscene1 PopEditscene1 "
               "Lockstriptodate1 PopLockstrip1 Insertdaydivider1 PopInsertdaydivider1 Insertbanner1 EditBanner1 "
               "Convertautorestdaystobanners1";
        QTest::newRow("scene selected, strips copied, rest days")
            << "paste"
            << "Undo1 Redo1 EditBanner1 Editelement1 PopEditelement1";
    }

    void enablingByState()
    {
        QFETCH(QString, state);
        QFETCH(QString, disabled);
        Harness h;
        if (state != "empty") {
            AddScene(h.doc, "1", "1");
            AddDivider(h.doc);
            AddBanner(h.doc, "Travel", 1);
            AddScene(h.doc, "2", "1");
            AddElement(h.doc, "Anna");
        }
        if (state == "paste") {
            h.doc.SelStart = h.doc.SelEnd = 1;
            h.doc.values.AutoRestDayRule = "S0123456"; // a rest day after every day
        } else if (state == "banner") {
            h.doc.SelStart = h.doc.SelEnd = 3;
        } else if (state == "element") {
            h.doc.SelElement = 1;
        }
        if (state == "paste" || state == "element")
            h.doc.clipboard.ClipKind = StripClipboard::Strips;
        SetModified(h.doc);

        QStringList off;
        for (const MenuEntry &row : h.main->menuCommands().entries()) {
            const QString name = QLatin1String(row.name);
            if (!h.main->findAction(name)->isEnabled() && !NotBuilt.contains(name))
                off << name;
        }
        QStringList expected = disabled.split(' ');
        expected.sort();
        off.sort();
        QCOMPARE(off, expected);
        // The tool buttons go with their entries.
        QCOMPARE(h.main->toolBar()->findChild<QToolButton *>("CutBut")->isEnabled(), !expected.contains("Cut1"));
        QCOMPARE(h.main->toolBar()->findChild<QToolButton *>("PasteBut")->isEnabled(), !expected.contains("Paste1"));
    }

    // The Undo entry and button show the document's undo caption; Redo stays inert.
    void undoAndClipboardEntries()
    {
        Harness h;
        QVERIFY(h.start());
        AddScene(h.doc, "1", "1");
        AddScene(h.doc, "2", "1");
        h.doc.SelStart = h.doc.SelEnd = 2;
        SetModified(h.doc);
        QAction *undo = h.entry(actions::Undo1);
        QToolButton *undoButton = h.main->toolBar()->findChild<QToolButton *>("UndoBut");
        QCOMPARE(undo->text(), "&Undo");
        QVERIFY(!undo->isEnabled());

        h.entry(actions::Cut1)->trigger();
        QCOMPARE(Kinds(h.doc), "1");
        QCOMPARE(undo->text(), "Undo Cut strip(s)");
        QVERIFY(undoButton->isEnabled());
        QCOMPARE(undoButton->toolTip(), "Undo");
        QVERIFY(!h.entry(actions::Paste1)->isEnabled()); // the cut cleared the selection

        h.doc.SelStart = h.doc.SelEnd = 1;
        h.main->documentChanged(h.doc, {});
        h.entry(actions::PopPaste1)->trigger();
        QCOMPARE(h.doc.strips[1][StripField::SceneNumber], "2");
        h.entry(actions::Undo1)->trigger();
        QCOMPARE(h.entry(actions::Redo1)->text(), "Redo ");
        h.entry(actions::Redo1)->trigger(); // does nothing
        QCOMPARE(h.doc.strips.count(), 1);
        h.entry(actions::Undo1)->trigger();
        QCOMPARE(undo->text(), "Undo");
        QVERIFY(!undoButton->isEnabled());
    }

    void zoom()
    {
        Harness h;
        QVERIFY(h.start());
        QVERIFY(!h.doc.Modified);
        // The title of a schedule with neither title nor file; with a title but no file,
        // two blanks before the parenthesis, one after.
        QCOMPARE(h.main->windowTitle(), "Torvanbridge - Untitled");
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

    void preferencesDialog()
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
        QCOMPARE(h.settings.descLine1, 19);
        const BoardStyle &style = h.main->board()->style();
        QCOMPARE(style.DescLine1, 19);
        QCOMPARE(style.background[7], QColor(Qt::green));
        QCOMPARE(style.fontName, "Courier");
        QVERIFY(!style.ScenePopups);
        // The warning answer is stored reversed, and the board reads it from there.
        QVERIFY(h.settings.skipWarning(RememberedWarning::AutoRestClick));
        Settings fromFile(h.settings.path());
        fromFile.LoadSettings();
        QCOMPARE(legacy::ColorValueToString(fromFile.stripBackground[7]), "clLime");
    }

    void preferencesCancelled()
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

    void helpPages()
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

        // No link of a bundled page leads nowhere, and the contents reach the first pages.
        QStringList pages;
        QDirIterator it(":/help");
        while (it.hasNext()) {
            it.next();
            pages << it.fileName();
        }
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

    void aboutDialog()
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

    // ---- Shell commands without the window ------------------------------------------------

    void newWithChanges_data()
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

    void newWithChanges()
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

    void openDialogSetUp()
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

    void saveGoesThroughSaveAs()
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

        // A file deleted meanwhile is not written again under its old name.
        QVERIFY(QFile::remove(path));
        const QString other = TempPath("saved-elsewhere.tbf");
        files.answers = {other};
        QVERIFY(SaveCommand(doc, files));
        QCOMPARE(files.setups.size(), 3);
        QCOMPARE(doc.FileName, other);
        QVERIFY(!QFile::exists(path));
    }

    void recentFileQuestion()
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

    void closeQuery_data()
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

    void closeQuery()
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

    void autosaveKeepsCloseQuestionInCore()
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
        QVERIFY(doc.Modified);
        QCOMPARE(doc.FileName, own); // the document keeps its own name ...
        QFile ownFile(own);
        QVERIFY(ownFile.open(QIODevice::ReadOnly));
        QCOMPARE(ownFile.readAll(), before); // ... and its own file is not written
        QCOMPARE(status.panels.value(StatusSink::MessagePanel), "");
        QVERIFY(!view.recent.contains(autosave)); // the autosave file is no recent file
        ScheduleDocument copy;
        QVERIFY(OpenDocument(copy, autosave).ok());
        QCOMPARE(copy.strips.count(), 2);

        // Closing still asks about the changes, which are not in the own file yet.
        ScriptedFiles files;
        prompter.answers = {Answer::Cancel};
        QVERIFY(!CloseQuery(doc, files));
        QCOMPARE(prompter.texts(), QStringList{SaveChangesQuestion});
    }

    void autosaveFolder()
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
};

TB_TEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
