// The window as a new user meets it: keys, Find strips, help over dialogs, the title,
// the recent files and the window's place kept between runs.
#include "TestSupport.h"

#include "app/TfrmMain.h"
#include "document/DocumentOperations.h"
#include "document/ScheduleFile.h"
#include "document/Settings.h"
#include "document/ShellCommands.h"
#include "ui/board/BoardView.h"
#include "ui/board/FindStripsBar.h"
#include "ui/shell/HelpSearch.h"
#include "ui/shell/HelpWindow.h"
#include "ui/shell/RecentFilesList.h"
#include "ui/shell/WindowPlacement.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
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
