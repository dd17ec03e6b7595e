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
    // Triggers an entry whose dialog is modal and returns that dialog's caption; the
    // dialog is cancelled.
    QString dialogOf(const char *name)
    {
        QString caption;
        QTimer::singleShot(0, [&] {
            if (QWidget *modal = QApplication::activeModalWidget()) {
                caption = modal->windowTitle();
                if (auto *dialog = qobject_cast<QDialog *>(modal))
                    dialog->reject();
                else
                    modal->close();
            }
        });
        main->findAction(QLatin1String(name))->trigger();
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
    void everyEntryIsServed();
    void entriesOpenTheirDialogs_data();
    void entriesOpenTheirDialogs();
    void doubleClickOnABannerEditsIt();
};

void TestWholeProgram::everyEntryIsServed()
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

void TestWholeProgram::entriesOpenTheirDialogs_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("caption");
    QTest::newRow("edit scene") << "Editscene1"
                                << "Edit scene breakdown #11";
    QTest::newRow("add element") << "Addelement1"
                                 << "Add new element";
    QTest::newRow("production details") << "Maindetails1"
                                        << "Production details";
    QTest::newRow("auto pages") << "Automaticdaydividers1"
                                << "Automatic day dividers";
    QTest::newRow("rest days") << "Autorestdays1"
                               << "Defualt rest days";
    QTest::newRow("start date") << "Startdate1"
                                << "Start date";
    QTest::newRow("sort strips") << "Sortstrips1"
                                 << "Sort strips";
    QTest::newRow("shooting schedule") << "Shootingschedule1"
                                       << "Print schedule";
    QTest::newRow("import script") << "Importscript1"
                                   << "Script import (TXT file)";
}

void TestWholeProgram::entriesOpenTheirDialogs()
{
    QFETCH(QString, entry);
    QFETCH(QString, caption);
    Program p;
    QVERIFY(p.start());
    QVERIFY(OpenDocument(p.doc, Example).ok());
    p.doc.SelStart = p.doc.SelEnd = 1;
    SetModified(p.doc);
    ClearModified(p.doc);
    QCOMPARE(p.dialogOf(entry.toLatin1().constData()), caption);
}

void TestWholeProgram::doubleClickOnABannerEditsIt()
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
    QString caption;
    QTimer::singleShot(0, [&] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            caption = dialog->windowTitle();
            dialog->reject();
        }
    });
    Q_EMIT p.main->board()->editBannerRequested();
    QCOMPARE(caption, "Banner");
}

QTEST_MAIN(TestWholeProgram)
#include "tst_wholeprogram.moc"
