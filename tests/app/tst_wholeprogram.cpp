// The main window with every subsystem installed, as the program runs it.

#include "TestSupport.h"

#include "app/MenuActions.h"
#include "app/TfrmMain.h"
#include "board/BoardView.h"
#include "document/DocumentOperations.h"
#include "document/ScheduleFile.h"
#include "document/Settings.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace tb;
using namespace tb::test;

namespace {

const QString Example = QStringLiteral(TB_SOURCE_DIR "/examples/harbour-lights.tbf");

// Entries of the reports that come with the call sheet, the day out of days and the
// board printing: no subsystem serves them yet.
const QStringList Unserved = {"Callsheet1", "Dayoutofdays1", "Productionboard1"};

struct Program
{
    Program()
        : settings(TempPath("whole.ini"))
    {
        doc.setPrompter(&prompter);
        main = std::make_unique<TfrmMain>(doc, settings);
        main->installSubsystemCommands();
        main->setFirstShowPause(0);
        main->hasPrinter = [] { return true; };
        main->setAutosavePath(TempPath("whole-autosave.tbf"));
    }
    ~Program()
    {
        main.reset();
        doc.setPrompter(nullptr);
    }
    bool start()
    {
        main->show();
        return QTest::qWaitFor([&] { return main->firstShowDone(); }, 5000);
    }
    // Runs the trigger of a modal dialog and returns that dialog's caption; the dialog
    // is cancelled.
    QString dialogOf(const std::function<void()> &trigger)
    {
        QString caption;
        QTimer::singleShot(0, [&] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                caption = dialog->windowTitle();
                dialog->reject();
            }
        });
        trigger();
        return caption;
    }

    ScheduleDocument doc;
    ScriptedPrompter prompter;
    Settings settings;
    std::unique_ptr<TfrmMain> main;
};

} // namespace

class TestWholeProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyEntryIsServed()
    {
        Program p;
        QVERIFY(p.start());
        QVERIFY(OpenDocument(p.doc, Example).ok());
        p.doc.SelStart = p.doc.SelEnd = 1;
        p.doc.SelElement = -1;
        SetModified(p.doc);
        QStringList disabled;
        for (QAction *a : p.main->findChildren<QAction *>()) {
            const QString name = a->objectName();
            if (name.isEmpty() || name.startsWith("N") || a->menu())
                continue;
            if (!a->isEnabled())
                disabled.append(name);
        }
        disabled.sort();
        // With a scene selected, only the entries nobody serves, the element entries that
        // need an element, the edit-banner entry, paste with an empty clipboard, undo with
        // nothing to undo and the inert redo are off.
        QStringList expected = Unserved + QStringList{"EditBanner1", "Editelement1", "Paste1", "PopEditelement1",
                                                      "PopPaste1",   "Redo1",        "Undo1"};
        expected.sort();
        QCOMPARE(disabled, expected);
    }

    void entriesOpenTheirDialogs_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("caption");
        QTest::newRow("edit scene") << "Editscene1" << QString("Edit scene breakdown #11");
        QTest::newRow("add element") << "Addelement1" << QString("Add new element");
        QTest::newRow("production details") << "Maindetails1" << QString("Production details");
        QTest::newRow("auto pages") << "Automaticdaydividers1" << QString("Automatic day dividers");
        QTest::newRow("rest days") << "Autorestdays1" << QString("Defualt rest days");
        QTest::newRow("start date") << "Startdate1" << QString("Start date");
        QTest::newRow("sort strips") << "Sortstrips1" << QString("Sort strips");
        QTest::newRow("shooting schedule") << "Shootingschedule1" << QString("Print schedule");
        QTest::newRow("import script") << "Importscript1" << QString("Script import (TXT file)");
    }

    void entriesOpenTheirDialogs()
    {
        QFETCH(QString, entry);
        QFETCH(QString, caption);
        Program p;
        QVERIFY(p.start());
        QVERIFY(OpenDocument(p.doc, Example).ok());
        p.doc.SelStart = p.doc.SelEnd = 1;
        SetModified(p.doc);
        ClearModified(p.doc);
        QCOMPARE(p.dialogOf([&] { p.main->findAction(entry)->trigger(); }), caption);
    }

    void doubleClickOnABannerEditsIt()
    {
        Program p;
        QVERIFY(p.start());
        QVERIFY(OpenDocument(p.doc, Example).ok());
        int banner = 0;
        for (int i = 1; i <= p.doc.strips.count() && !banner; ++i)
            if (p.doc.strips[i].isBanner())
                banner = i;
        QVERIFY(banner > 0);
        p.doc.SelStart = p.doc.SelEnd = banner;
        SetModified(p.doc);
        QCOMPARE(p.dialogOf([&] { Q_EMIT p.main->board()->editBannerRequested(); }), "Banner");
    }
};

QTEST_MAIN(TestWholeProgram)
#include "tst_wholeprogram.moc"
