#include "MainWindowTestSupport.h"

#include "app/TfrmMain.h"
#include "document/LegacyText.h"
#include "document/ScheduleFile.h"
#include "document/Settings.h"
#include "document/ShellCommands.h"
#include "document/StandardColours.h"
#include "document/UndoStore.h"
#include "ui/board/BoardView.h"
#include "ui/board/FindStripsBar.h"
#include "ui/shell/HelpSearch.h"
#include "ui/shell/HelpWindow.h"
#include "ui/shell/MenuActions.h"
#include "ui/shell/MenuCommands.h"
#include "ui/shell/PanelStatusBar.h"
#include "ui/shell/RecentFilesList.h"
#include "ui/shell/TfrmPref.h"
#include "ui/shell/WindowPlacement.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDirIterator>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>

using namespace tb;
using namespace tb::test;

namespace {

// Scenes 1, 2, a divider, scenes 3 and 4 ("storm" in the synopsis of 2 and 4).
void fillBoard(ScheduleDocument &doc)
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
QStringList entries(const QWidget *menu)
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

QString selection(const ScheduleDocument &doc)
{
    return QString::number(doc.SelStart) + "-" + QString::number(doc.SelEnd);
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    // ---- Menus -----------------------------------------------------------------------

    void menus_data()
    {
        // expected: captions joined by "|"
        Columns<QString, QString>("menu", "expected");
        Row("menu bar", "", QString("&File>|&Edit>|&Production>|&Strips>|Ele&ments>|&View>|&Help>"));
        Row("File", "&File",
            "&New|&Open...|&Save|Save &As...|-|&Import script...|Import &Final Draft reports...|"
            "&Export board>|-|&Print>|-|P&references...|-|&Exit");
        Row("Export board", "&File/&Export board", QString("As &Spreadsheet...|As &HTML..."));
        Row("Print", "&File/&Print",
            "&Breakdown sheets...|&Call sheet...|&Day out of days...|Element summary...|"
            "&Production board...|&Shooting schedule...");
        Row("Edit", "&Edit", QString("&Undo|Redo|-|&Cut|Co&py|&Paste|Delete|-|&Find strips..."));
        Row("Production", "&Production", QString("&Main details...|&Start date...|Hold days...|-|&End of day..."));
        Row("Strips", "&Strips",
            "&Add scene at end...|&Insert scene...|&Edit scene...|Lock / un-lock to date...|-|"
            "Add &day divider at end\tShift+Ins|I&nsert day divider|&Remove all day dividers...|-|"
            "Add &banner at end...\tCtrl+Ins|In&sert banner...|Edi&t banner...|"
            "Re&move all banners...|-|A&uto pages-per-day...|Aut&o rest days...|"
            "Convert auto-rest days to banners...|-|Sort stri&ps...|Conform strip order...|"
            "Reset brea&kdown numbering...");
        Row("Elements", "Ele&ments",
            "&Add element...\tCtrl+E|Edit element...|-|Reset cast numbering...|"
            "Sort elements by category...");
        Row("View", "&View", QString("Fullscreen|&Zoom>|-|Zoom &in|Zoom &out|&Actual size"));
        Row("Zoom", "&View/&Zoom", QString("60%|70%|80%|90%|100%|110%|120%|130%|140%"));
        Row("Help", "&Help", QString("&Contents|&Index|-|&About..."));
        Row("board pop-up", "PBPopup",
            "Cut\tCtrl+X|Copy\tCtrl+C|Paste (insert)\tCtrl+V|Delete selection\tDel|-|"
            "Add scene at end...\tIns|Insert scene...\tShift+Ins|Edit scene...|"
            "Lock / un-lock to date...|-|Add day divider at end...\tShift+Ins|"
            "Insert day divider...|-|Add element at end...\tCtrl+E|Edit element...");
    }

    void menus()
    {
        auto [menu, expected] = Fetch<QString, QString>("menu", "expected");
        Harness h;
        QWidget *m = h.main->menuBar();
        if (menu == "PBPopup")
            m = h.main->boardPopup();
        for (const QString &sub : menu == "PBPopup" ? QStringList() : menu.split('/', Qt::SkipEmptyParts)) {
            QWidget *next = nullptr;
            for (QAction *a : m->actions()) {
                if (a->menu() && a->text() == sub)
                    next = a->menu();
            }
            QVERIFY(next);
            m = next;
        }
        QCOMPARE(entries(m).join('|'), expected);
    }

    void shortcuts()
    {
        Harness h;
        // The earlier edition's keys, then the added ones; the second holders of a key
        // (and Redo) show no key of their own.
        const QString expected =
            "Save1=F12,Ctrl+S Exit1=Ctrl+Q Undo1=Ctrl+Z Cut1=Ctrl+X Copy1=Ctrl+C Paste1=Ctrl+V Delete1=Del "
            "Endofday1=Ctrl+E Addscene1=Ins Insertscene1=Shift+Ins Editscene1=Ctrl+Ins Contents1=F1 Adddaydivider1= "
            "Addbanner1= Addelement1= New1=Ctrl+N Redo1= Openfile1=Ctrl+O SaveAs1=Ctrl+Shift+S "
            "Shootingschedule1=Ctrl+P FindStrips1=Ctrl+F ZoomIn1=Ctrl++,Ctrl+= ZoomOut1=Ctrl+- ZoomReset1=Ctrl+0";
        QStringList actual;
        for (const QString &pair : expected.split(' ')) {
            const QString name = pair.section('=', 0, 0);
            QAction *a = h.main->findAction(name);
            QVERIFY2(a, qPrintable(name));
            QStringList keys;
            for (const QKeySequence &key : a->shortcuts())
                keys << key.toString();
            actual << name + "=" + keys.join(',');
        }
        QCOMPARE(actual, expected.split(' '));
        // No key is held twice: it would fire neither entry.
        QMap<QString, QString> holders;
        for (QAction *each : h.main->findChildren<QAction *>()) {
            for (const QKeySequence &key : each->shortcuts()) {
                const QString k = key.toString();
                QVERIFY2(!holders.contains(k),
                         qPrintable(k + " on " + holders.value(k) + " and " + each->objectName()));
                holders.insert(k, each->objectName());
            }
        }
    }

    void statusBarPanels()
    {
        Harness h;
        PanelStatusBar *bar = h.main->statusPanels();
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
        QVERIFY(WriteBytes(ini, "[Files]\r\nAutosavetime=5\r\n[Strips]\r\nCB1=clRed\r\nFont=Courier\r\n"));
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

    // ---- Document commands -----------------------------------------------------------

    // New, Open, a recent file, a drop and closing the window first ask about unsaved
    // changes. Yes saves (to the schedule's own file, or through Save As); when that
    // Save As is cancelled the command still goes on and the changes are lost.
    void unsavedChangesQuestion_data()
    {
        // saveTo: "own": the schedule has a file; otherwise untitled, and the Save As
        // answer (empty: cancelled). goesOn: the schedule is replaced or the window closes.
        Columns<QString, Answer, QString, bool>("command", "answer", "saveTo", "goesOn");
        Row("New, yes, saved as", "New", Answer::Yes, "q-new.tbf", true);
        Row("New, yes, save as cancelled", "New", Answer::Yes, "", true);
        Row("New, no", "New", Answer::No, "", true);
        Row("New, cancel", "New", Answer::Cancel, "", false);
        Row("Open, no", "Open", Answer::No, "own", true);
        Row("Open, cancel", "Open", Answer::Cancel, "own", false);
        Row("recent file, yes", "Recent", Answer::Yes, "own", true);
        Row("recent file, cancel", "Recent", Answer::Cancel, "", false);
        Row("drop, yes, save as cancelled", "Drop", Answer::Yes, "", true);
        Row("drop, no", "Drop", Answer::No, "own", true);
        Row("drop, cancel", "Drop", Answer::Cancel, "", false);
        Row("close, yes", "Close", Answer::Yes, "own", true);
        Row("close, no", "Close", Answer::No, "", true);
        Row("close, cancel", "Close", Answer::Cancel, "own", false);
    }

    void unsavedChangesQuestion()
    {
        auto [command, answer, saveTo, goesOn] =
            Fetch<QString, Answer, QString, bool>("command", "answer", "saveTo", "goesOn");
        const QString own = saved("q-own.tbf", "Own");
        const QString other = saved("q-other.tbf", "Other");
        Harness h;
        QVERIFY(h.start());
        RecentFilesList *recent = h.main->recentFiles();
        recent->clear();
        recent->add(other);
        if (saveTo == "own")
            QVERIFY(OpenDocument(h.doc, own).ok());
        AddScene(h.doc, "7", "2");
        SetModified(h.doc);
        const int strips = h.doc.strips.count();
        const QString saveAs = saveTo.isEmpty() || saveTo == "own" ? QString() : TempPath(saveTo);
        if (answer == Answer::Yes && saveTo != "own")
            h.files.answers << saveAs;
        h.files.answers << other; // the open dialog's answer
        h.prompter.answers = {answer};
        // The recent files are listed at the end of the File menu, after Exit.
        const QStringList shown = entries(h.main->menuBar()->actions().first()->menu());
        QCOMPARE(shown.mid(shown.indexOf("&Exit") + 1, 2),
                 (QStringList{"-", "&1 " + QDir::toNativeSeparators(recent->paths().first())}));
        QSettings registry(QSettings::NativeFormat, QSettings::UserScope, "Brenholt", "Torvanbridge");
        registry.remove("MRUList");

        const auto run = [&] {
            if (command == "Recent") {
                recent->actions().at(recent->paths().indexOf(other))->trigger();
            } else if (command == "Drop") {
                QMimeData mime;
                mime.setUrls({QUrl::fromLocalFile(other), QUrl::fromLocalFile(saved("q-second.tbf", "Second")),
                              QUrl::fromLocalFile(TempPath("q-missing.tbf"))});
                QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
                QApplication::sendEvent(h.main.get(), &enter);
                QVERIFY(enter.isAccepted());
                QDropEvent drop(QPointF(300, 300), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
                QApplication::sendEvent(h.main.get(), &drop);
            } else {
                h.trigger(command == "New" ? "New1" : command == "Open" ? "Openfile1" : "Exit1");
            }
        };
        if (command == "Drop") {
            QMimeData text;
            text.setText("not a file");
            QDragEnterEvent refused(QPoint(300, 300), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
            refused.setAccepted(false);
            QApplication::sendEvent(h.main.get(), &refused);
            QVERIFY(!refused.isAccepted());
        }
        run();

        QCOMPARE(h.prompter.prompts.size(), 1);
        const Prompt &asked = h.prompter.prompts.first();
        QCOMPARE(asked.text, command == "Recent" ? "The current schedule has not been saved since the last change. "
                                                   "Do you wish to save it before opening " +
                                                       other + " ?"
                                                 : QString(SaveChangesQuestion));
        QCOMPARE(asked.kind, MessageKind::Confirmation);
        QCOMPARE(asked.buttons, Buttons::YesNoCancel);
        QCOMPARE(asked.beep, command != "Close"); // closing does not beep
        // The file dialogs, each set up anew.
        QStringList dialogs;
        for (const FileDialogSetup &setup : h.files.setups) {
            dialogs << setup.title;
            QVERIFY(setup.filter.startsWith("Torvanbridge file (*.tbf)"));
            QCOMPARE(setup.defaultSuffix, "tbf");
            QCOMPARE(setup.fileName, "*.tbf");
        }
        QStringList expected;
        if (answer == Answer::Yes && saveTo != "own")
            expected << "Save file";
        if (command == "Open" && goesOn)
            expected << "Open file";
        QCOMPARE(dialogs, expected);
        // Yes wrote the changes to where they belong; otherwise the own file is untouched.
        if (saveTo == "own" || !saveAs.isEmpty()) {
            ScheduleDocument reopened;
            QVERIFY(OpenDocument(reopened, saveTo == "own" ? own : saveAs).ok());
            QCOMPARE(reopened.strips.count(), answer == Answer::Yes ? strips : strips - 1);
        }

        if (command == "Close") {
            QCOMPARE(h.main->isVisible(), !goesOn);
            // Whatever the answer, the recent-files list is written; the next window reads it.
            Harness again("again.ini");
            QCOMPARE(again.main->recentFiles()->paths(), recent->paths());
        } else if (!goesOn) {
            QCOMPARE(h.doc.strips.count(), strips);
            QVERIFY(h.doc.Modified);
        } else {
            // Of the files dropped only the first is opened.
            QCOMPARE(h.doc.values.PictureTitle, command == "New" ? "" : "Other");
            QCOMPARE(h.doc.FileName, command == "New" ? "" : other);
            QCOMPARE(h.doc.strips.count(), command == "New" ? 0 : 1);
            if (command != "New")
                QCOMPARE(recent->paths(), (QStringList{other, own}).mid(0, saveTo == "own" ? 2 : 1));
            QVERIFY(!h.doc.Modified);
            run(); // unchanged now: no question
            QCOMPARE(h.prompter.prompts.size(), 1);
        }
    }

    // ---- Enabling ----------------------------------------------------------------------

    void enablingByState_data()
    {
        // disabled: every entry off
        Columns<QString, QString>("state", "disabled");
        const QString empty = "Cut1 Copy1 Paste1 Delete1 PopCut1 PopCopy1 PopPaste1 PopDelete1 Undo1 Redo1 "
                              "Insertscene1 Editscene1 PopInsertscene1 PopEditscene1 Lockstriptodate1 PopLockstrip1 "
                              "Insertdaydivider1 PopInsertdaydivider1 Insertbanner1 EditBanner1 Editelement1 "
                              "PopEditelement1 Removealldaydividers1 Removeallbanners1 "
                              "Convertautorestdaystobanners1 Automaticdaydividers1 Sortstrips1 Conformstriporder1 "
                              "Resetbreakdownnumbering1 Reordercastnumbering1 Sortelements1";
        Row("empty board", "empty", empty);
        Row("banner selected", "banner",
            "Paste1 PopPaste1 Undo1 Redo1 Editscene1 PopEditscene1 Editelement1 "
            "PopEditelement1 Convertautorestdaystobanners1");
        Row("element selected, strips copied", "element",
            "Paste1 PopPaste1 Undo1 Redo1 Insertscene1 Editscene1 PopInsertscene1 PopEditscene1 "
            "Lockstriptodate1 PopLockstrip1 Insertdaydivider1 PopInsertdaydivider1 Insertbanner1 EditBanner1 "
            "Convertautorestdaystobanners1");
        Row("scene selected, strips copied, rest days", "paste",
            "Undo1 Redo1 EditBanner1 Editelement1 PopEditelement1");
    }

    void enablingByState()
    {
        auto [state, disabled] = Fetch<QString, QString>("state", "disabled");
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
            if (!h.main->findAction(name)->isEnabled())
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

        h.doc.SelStart = h.doc.SelEnd = 1;
        h.main->documentChanged(h.doc, {});
        h.entry(actions::PopPaste1)->trigger();
        QCOMPARE(h.doc.strips[1][StripField::SceneNumber], "2");
        h.entry(actions::Undo1)->trigger();
        QCOMPARE(h.doc.strips.count(), 1);
        QCOMPARE(h.entry(actions::Redo1)->text(), "Redo ");
        h.entry(actions::Undo1)->trigger();
        QCOMPARE(undo->text(), "Undo");
        QVERIFY(!undoButton->isEnabled());
    }

    void zoom()
    {
        Harness h;
        QVERIFY(h.start());
        h.entry("N1401")->trigger();
        QCOMPARE(h.main->board()->boardScale(), 1.4);
        QCOMPARE(h.doc.values.BoardZoom, 1.4);
        QCOMPARE(h.main->zoomCombo()->currentText(), "140%");
        QVERIFY(h.entry("N1401")->isChecked());
        // A zoom counts as a change.
        QVERIFY(h.doc.Modified);

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

        // The keys step through the same zooms, up to 140%.
        h.main->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(h.main.get()));
        QTest::keySequence(h.main.get(), QKeySequence(QStringLiteral("Ctrl++")));
        QCOMPARE(h.main->board()->boardScale(), 1.1);
        QVERIFY(h.doc.Modified);
        QTest::keySequence(h.main.get(), QKeySequence(QStringLiteral("Ctrl+-")));
        QTest::keySequence(h.main.get(), QKeySequence(QStringLiteral("Ctrl+-")));
        QCOMPARE(h.main->board()->boardScale(), 0.9);
        QTest::keySequence(h.main.get(), QKeySequence(QStringLiteral("Ctrl+0")));
        QCOMPARE(h.main->board()->boardScale(), 1.0);
        for (int i = 0; i < 12; ++i)
            h.main->ZoomStepClick(+1);
        QCOMPARE(h.main->board()->boardScale(), 1.4);
    }

    // ---- Dialogs and help ----------------------------------------------------------------

    void preferencesDialog()
    {
        // A settings file of an earlier start, without colour keys but one.
        const QString ini = TempPath("pref.ini");
        QVERIFY(WriteBytes(ini, "[Strips]\r\nCB1=clRed\r\n"));
        Harness h("pref.ini");
        QVERIFY(h.start());
        const QByteArray before = ReadFileBytes(ini);
        // Cancel keeps everything; the dialog says where the autosave goes.
        h.dialogOf([&] { h.entry(actions::Preferences1)->trigger(); },
                   [&](QDialog *pref) {
                       Child<QSpinBox>(pref, "AutoSaveSpin")->setValue(30);
                       QVERIFY(Child<QLabel>(pref, "AutosaveWhereLabel")
                                   ->text()
                                   .contains(QDir::toNativeSeparators(h.main->autosavePath())));
                       QTest::mouseClick(Child<QPushButton>(pref, "CancelBut"), Qt::LeftButton);
                   });
        QCOMPARE(h.settings.autosaveMinutes, 0);
        QVERIFY(!h.main->autosaveTimer().isActive());
        QCOMPARE(ReadFileBytes(ini), before);

        h.dialogOf([&] { h.entry(actions::Preferences1)->trigger(); },
                   [&](QDialog *dialog) {
                       auto *pref = qobject_cast<TfrmPref *>(dialog);
                       QVERIFY(pref);
                       QCOMPARE(Child<QSpinBox>(pref, "AutoSaveSpin")->value(), 0);
                       QVERIFY(Child<QCheckBox>(pref, "AutoRestCheck")->isChecked());
                       QCOMPARE(Child<QComboBox>(pref, "DescLine1Combo")->currentText(), "Location");
                       Child<QSpinBox>(pref, "AutoSaveSpin")->setValue(2);
                       Child<QCheckBox>(pref, "AutoRestCheck")->setChecked(false);
                       Child<QComboBox>(pref, "DescLine1Combo")->setCurrentIndex(4); // Notes
                       Child<QCheckBox>(pref, "ScHintsCheck")->setChecked(false);
                       Child<QPushButton>(pref, "ResetColoursBut")->click();
                       pref->chooseColour = [](const QColor &, const QString &) { return QColor(Qt::green); };
                       Child<QPushButton>(pref, "SlotBut7")->click();
                       Child<QPushButton>(pref, "BackColorBut")->click();
                       pref->chooseFont = [](const QString &) { return std::optional<QString>("Courier"); };
                       Child<QPushButton>(pref, "FontBut")->click();
                       QCOMPARE(Child<QLabel>(pref, "FontLabel")->text(), "Courier");
                       QTest::mouseClick(Child<QPushButton>(pref, "OKBut"), Qt::LeftButton);
                   });
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
        // "Reset to standard colours" gave the other slots the standard colours.
        Settings fromFile(ini);
        fromFile.LoadSettings();
        QCOMPARE(legacy::ColorValueToString(fromFile.stripBackground[7]), "clLime");
        QCOMPARE(fromFile.stripBackground[1], StandardStripColours().background[1]);
        QCOMPARE(fromFile.stripText, StandardStripColours().text);
    }

    void help()
    {
        Harness h;
        h.entry(actions::Contents1)->trigger();
        HelpWindow *help = h.main->helpWindow();
        QVERIFY(help);
        QVERIFY(help->isVisible());
        QCOMPARE(help->currentPage(), "contents.html");
        h.entry(actions::Index1)->trigger();
        QCOMPARE(help->currentPage(), "index.html");
        h.main->showHelp("no-such-dialog.html");
        QVERIFY(help->browser()->toPlainText().contains("no-such-dialog.html"));
        // The search box finds pages by any of the words, in any case.
        help->searchBox()->setText("find STRIPS ctrl+f");
        QTest::keyClick(help->searchBox(), Qt::Key_Return);
        QVERIFY(help->browser()->toHtml().contains("menus.html"));
        QVERIFY(SearchHelpPages(QStringLiteral("zzqqx")).isEmpty());
        QVERIFY(SearchHelpPages(QStringLiteral("  ")).isEmpty());
        DeleteProgramHelpWindow();

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
            const QString html = QString::fromUtf8(ReadFileBytes(":/help/" + page));
            auto matches = link.globalMatch(html);
            while (matches.hasNext()) {
                const QString target = matches.next().captured(1);
                QVERIFY2(HelpWindow::pageExists(target), qPrintable(page + " links to " + target));
            }
        }
        const QByteArray html = ReadFileBytes(":/help/contents.html");
        for (const char *page : {"getting-started.html", "board.html", "menus.html", "index.html"})
            QVERIFY2(html.contains(page), page);
    }

    void aboutDialog()
    {
        Harness h;
        QString version;
        h.dialogOf([&] { h.entry(actions::About1)->trigger(); },
                   [&](QDialog *about) { version = Child<QLabel>(about, "VersionLabel")->text(); });
        QCOMPARE(version, "Version " TB_VERSION);
    }

    // ---- The first day of a new user ---------------------------------------------------

    void boardKeys_data()
    {
        // after: the selection after the key, or "pop-up" when the board's pop-up opens
        Columns<int, int, int, bool, QString>("selStart", "selEnd", "key", "shift", "after");
        Row("Right from nothing", 0, 0, int(Qt::Key_Right), false, "1-1");
        Row("Right", 2, 2, int(Qt::Key_Right), false, "3-3");
        Row("Right after a range", 1, 3, int(Qt::Key_Right), false, "4-4");
        Row("Right at the end stays", 80, 80, int(Qt::Key_Right), false, "80-80");
        Row("Left", 4, 4, int(Qt::Key_Left), false, "3-3");
        Row("Left at the start stays", 1, 1, int(Qt::Key_Left), false, "1-1");
        Row("Shift+Right widens", 2, 3, int(Qt::Key_Right), true, "2-4");
        Row("Shift+Left widens", 2, 3, int(Qt::Key_Left), true, "1-3");
        Row("Home", 80, 80, int(Qt::Key_Home), false, "1-1");
        Row("End", 2, 2, int(Qt::Key_End), false, "80-80");
        Row("Shift+End", 2, 2, int(Qt::Key_End), true, "2-80");
        Row("Shift+F10", 2, 2, int(Qt::Key_F10), true, "pop-up");
        Row("the menu key", 2, 2, int(Qt::Key_Menu), false, "pop-up");
    }
    void boardKeys()
    {
        auto [selStart, selEnd, key, shift, after] =
            Fetch<int, int, int, bool, QString>("selStart", "selEnd", "key", "shift", "after");
        Harness w;
        QVERIFY(w.start());
        fillBoard(w.doc);
        for (int i = 5; w.doc.strips.count() < 80; ++i)
            AddScene(w.doc, QString::number(i), "1");
        SetModified(w.doc);
        w.doc.SelStart = selStart;
        w.doc.SelEnd = selEnd;
        w.doc.SelElement = 3;
        BoardView *board = w.main->board();
        board->scrollToStrip(qMax(selStart, 1));
        QTest::keyClick(w.board(), Qt::Key(key), shift ? Qt::ShiftModifier : Qt::NoModifier);
        if (after == "pop-up") {
            QVERIFY(w.main->boardPopup()->isVisible());
            w.main->boardPopup()->close();
            return;
        }
        QCOMPARE(selection(w.doc), after);
        if (after == QString::number(selStart) + "-" + QString::number(selEnd))
            return; // nothing to select there
        QCOMPARE(w.doc.SelElement, -1);
        // The strip the key moved to is scrolled into view.
        const int moved = key == Qt::Key_Left || key == Qt::Key_Home ? w.doc.SelStart : w.doc.SelEnd;
        QVERIFY(board->horizontalScroll() <= moved);
        QVERIFY(moved <= board->GetStripNum(w.board()->width() - 1));
        // The commands follow the selection: Edit scene for a scene, not a divider.
        QCOMPARE(w.main->findAction("Editscene1")->isEnabled(), w.doc.strips[w.doc.SelStart].isScene());
    }

    void findStrips()
    {
        Harness w;
        QVERIFY(w.start());
        fillBoard(w.doc);
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
        QTest::keyClick(bar->searchBox(), Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(selection(w.doc), QString("2-2"));
        bar->searchBox()->setText("desert");
        QTest::keyClick(bar->searchBox(), Qt::Key_Return);
        QCOMPARE(selection(w.doc), QString("2-2")); // kept
        QCOMPARE(bar->resultLabel()->text(), QString("No strip matches."));
        QTest::keyClick(bar->searchBox(), Qt::Key_Escape);
        QVERIFY(!bar->isVisible());
        QVERIFY(w.board()->hasFocus());
    }

    void titleShowsUnsavedChanges()
    {
        Harness w;
        QVERIFY(w.start());
        QCOMPARE(w.main->windowTitle(), QString("Torvanbridge - Untitled"));
        // With a title but no file, two blanks before the parenthesis, one after.
        w.doc.values.PictureTitle = "Rain";
        w.doc.view().setTitle(UpdateTitle(w.doc));
        QCOMPARE(w.main->windowTitle(), "Torvanbridge - Rain  () ");
        w.doc.values.PictureTitle.clear();
        w.doc.view().setTitle(UpdateTitle(w.doc));
        AddScene(w.doc, "1", "1");
        SetModified(w.doc);
        QCOMPARE(w.main->windowTitle(), QString("Torvanbridge - Untitled *"));
        const QString path = TempPath("title.tbf");
        w.files.answer = path;
        w.main->Save1Click();
        QCOMPARE(w.main->windowTitle(), "Torvanbridge -   (" + path + ") ");
        SetModified(w.doc);
        QCOMPARE(w.main->windowTitle(), "Torvanbridge -   (" + path + ") *");
        // A file deleted meanwhile is not written again under its name: Save asks for one.
        QVERIFY(QFile::remove(path));
        const QString other = TempPath("title-elsewhere.tbf");
        w.files.answer = other;
        w.main->Save1Click();
        QCOMPARE(w.files.setups.size(), 2);
        QCOMPARE(w.main->windowTitle(), "Torvanbridge -   (" + other + ") ");
        QVERIFY(!QFile::exists(path));
    }

    // ---- No lost work

    void autosaveLeavesTheDocumentUnsaved()
    {
        const QString own = saved("autosave-own.tbf", "Harbour", 2);
        const QByteArray before = ReadFileBytes(own);
        Harness w("autosave.ini");
        const QString autosave = TempPath("autosave-unsaved.tbf");
        w.main->setAutosavePath(autosave);
        QVERIFY(w.start());
        w.files.answer = own;
        w.main->Openfile1Click();
        w.main->recentFiles()->clear();
        AddScene(w.doc, "new", "1");
        SetModified(w.doc);
        w.main->setAutosaveInterval(50);
        QVERIFY(QTest::qWaitFor([&] { return QFile::exists(autosave); }, 3000));
        w.main->setAutosaveInterval(0);
        QVERIFY(!w.main->autosaveTimer().isActive());
        QCOMPARE(w.main->statusPanels()->panelText(StatusSink::MessagePanel), "");
        QCOMPARE(QString::fromUtf8(ReadFileBytes(AutosaveOwnerPath(autosave))), own);
        QVERIFY(w.doc.Modified);
        QCOMPARE(w.doc.FileName, own);
        QVERIFY(w.main->windowTitle().endsWith('*'));
        QVERIFY(w.main->recentFiles()->paths().isEmpty());
        QCOMPARE(ReadFileBytes(own), before); // the user's own file is not written
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

    void autosaveOfferedAtStart_data()
    {
        Columns<bool, bool, bool, bool>("ownerSavedLater", "untitled", "ownerLost", "offered");
        Row("changes after the last save", false, false, false, true);
        Row("saved after the autosave", true, false, false, false);
        Row("untitled schedule", false, true, false, true);
        Row("which schedule is not known", true, false, true, true);
    }
    void autosaveOfferedAtStart()
    {
        auto [ownerSavedLater, untitled, ownerLost, offered] =
            Fetch<bool, bool, bool, bool>("ownerSavedLater", "untitled", "ownerLost", "offered");
        const QString own = saved("offer-own.tbf", "Harbour", 1);
        const QString autosave = TempPath("offer-autosave.tbf");
        {
            ScheduleDocument lost;
            lost.values.PictureTitle = "Harbour";
            for (int i = 1; i <= 4; ++i)
                AddScene(lost, QString::number(i), "1");
            lost.FileName = untitled ? QString() : own;
            QVERIFY(AutosaveCommand(lost, autosave).ok());
            if (ownerLost)
                QVERIFY(QFile::remove(AutosaveOwnerPath(autosave)));
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
        Harness w("offer.ini");
        w.main->setAutosavePath(autosave);
        w.prompter.answers = {Answer::Yes};
        QVERIFY(w.start());
        QCOMPARE(w.prompter.texts().join('\n').contains("Do you wish to restore it?"), offered);
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

    void failedOpenLeavesNothing_data()
    {
        // content: empty: the path is a folder; "-": there is no file
        // atStart: named on the command line; otherwise chosen from the recent files
        Columns<QByteArray, QString, bool>("content", "cause", "atStart");
        const QByteArray good = ReadFileBytes(saved("failed-source.tbf", "Good", 3));
        // The other causes leave the same empty schedule behind (checked with the file reader).
        Row("cut short", good.left(good.size() / 2), "The file is cut short: it ends at line", false);
        Row("cannot be read", QByteArray(), "The file cannot be read: it is a folder.", false);
        Row("missing, on the command line", QByteArray("-"), "there is no such file", true);
    }
    void failedOpenLeavesNothing()
    {
        auto [content, cause, atStart] = Fetch<QByteArray, QString, bool>("content", "cause", "atStart");
        const QString path = TempPath(QStringLiteral("failed-%1.tbf").arg(QTest::currentDataTag()));
        if (content != "-")
            QVERIFY(content.isEmpty() ? QDir().mkpath(path) : WriteBytes(path, content));
        Harness w;
        if (atStart)
            w.main->setCommandLineFile(path);
        QVERIFY(w.start());
        if (!atStart) {
            w.files.answer = saved("failed-before.tbf", "Before", 2);
            w.main->Openfile1Click();
            w.prompter.prompts.clear();
            w.main->MRUClick(path);
        }
        // The program goes on with an empty, untitled, unmodified schedule; the message
        // names the file and why.
        QVERIFY(w.main->isVisible());
        QCOMPARE(w.prompter.prompts.size(), 1);
        QVERIFY2(w.prompter.texts().first().contains(QDir::toNativeSeparators(path)),
                 qPrintable(w.prompter.texts().first()));
        QVERIFY2(w.prompter.texts().first().contains(cause), qPrintable(w.prompter.texts().first()));
        QCOMPARE(w.doc.strips.count(), 0);
        QVERIFY(w.doc.FileName.isEmpty());
        QVERIFY(!w.doc.Modified);
        QVERIFY(!w.main->recentFiles()->paths().contains(path));
        QCOMPARE(w.main->windowTitle(), QString("Torvanbridge - Untitled"));
        // Save cannot reach the damaged file: it asks for a name.
        w.files.answer.clear();
        w.main->Save1Click();
        QCOMPARE(w.files.setups.last().title, "Save file");
        if (content != "-" && !content.isEmpty())
            QCOMPARE(ReadFileBytes(path), content);
    }

    void undoAfterOpenNeverKeepsTheName()
    {
        const QString first = saved("undo-first.tbf", "First", 2);
        const QString second = saved("undo-second.tbf", "Second", 5);
        const QByteArray secondBytes = ReadFileBytes(second);
        Harness w;
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
        QCOMPARE(ReadFileBytes(second), secondBytes);
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

    // ---- A first start

    void windowIsRemembered()
    {
        const QString ini = TempPath("window.ini");
        QFile::remove(ini);
        {
            Harness w("window.ini");
            QVERIFY(w.start());
            w.main->resize(700, 500);
            w.main->move(40, 30);
            w.main->N1001Click(w.main->findAction("N1201"));
            w.prompter.answers = {Answer::No};
            QVERIFY(w.main->close());
        }
        Harness again("window.ini");
        QCOMPARE(again.main->size(), QSize(700, 500));
        QVERIFY(again.start());
        QCOMPARE(again.main->board()->boardScale(), 1.2);
        QVERIFY(!again.doc.Modified);
        // The window made the settings file, with the standard colours of the first start.
        QCOMPARE(again.settings.stripBackground, StandardStripColours().background);
    }

    void fitToScreen_data()
    {
        Columns<QRect, QRect>("wanted", "placed");
        const QRect screen(0, 0, 1280, 800);
        Row("fits", QRect(100, 50, 800, 600), QRect(100, 50, 800, 600));
        Row("from a larger screen", QRect(200, 100, 1900, 1100), QRect(0, 0, 1280, 800));
        Row("off the right", QRect(1000, 50, 800, 600), QRect(480, 50, 800, 600));
        Row("off the top left", QRect(-300, -40, 800, 600), QRect(0, 0, 800, 600));
    }
    void fitToScreen()
    {
        QFETCH(QRect, wanted);
        QTEST(FitToScreen(wanted, QRect(0, 0, 1280, 800)), "placed");
    }
};

TB_TEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
