// The main window with every area's dialogs, driven through its menu entries as a user would;
// the dialogs' captions are checked here, where the entries open them.

#include "MainWindowTestSupport.h"

#include "app/TfrmMain.h"
#include "document/ScheduleFile.h"
#include "document/Settings.h"
#include "import/ImportCommandSteps.h"
#include "ui/board/BoardView.h"
#include "ui/breakdown/TfrmAddElement.h"
#include "ui/breakdown/TfrmStrip.h"
#include "ui/import/TfrmImportScript.h"
#include "ui/reports/ExportCommands.h"
#include "ui/shell/HelpWindow.h"
#include "ui/shell/MenuActions.h"
#include "ui/shell/PanelStatusBar.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

using namespace tb;
using namespace tb::test;

namespace {

const QString Example = QStringLiteral(TB_SOURCE_DIR "/examples/harbour-lights.tbf");
const QString ImportData = QStringLiteral(TB_IMPORT_DATA);

} // namespace

class TestWholeProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The scene editor's "Add new..." uses the element menu's dialog, and what it remembers.
    void sceneEditorSharesTheElementDialog()
    {
        Harness p("whole.ini");
        QCOMPARE(p.main->findChildren<TfrmAddElement *>().size(), 1);
        QCOMPARE(p.main->findChild<TfrmStrip *>()->elementDialog(), p.main->findChild<TfrmAddElement *>());
    }

    void callSheetAsksForAStartDateFirst()
    {
        Harness p("whole.ini");
        QVERIFY(p.start());
        QVERIFY(OpenDocument(p.doc, Example).ok());
        p.doc.values.StartDate.clear();
        // The start date dialog comes first; cancelled, the call sheet does not open (its
        // dialog would stop the test).
        QCOMPARE(p.dialogOf([&] { p.trigger("Callsheet1"); }), "Start date");
        QCOMPARE(p.prompter.texts(),
                 QStringList{"You need to enter a production start date before you can print call sheets."});
    }

    void entriesOpenTheirDialogs_data()
    {
        // entry: "board:..." a double click on the board asking to edit a scene or a banner
        // kind: the first strip of that kind is selected; element 1 is selected too
        // caption: empty: nothing opens
        // help: the page F1 in the dialog opens; empty: not tried
        Columns<QString, QString, QString, QString>("entry", "kind", "caption", "help");
        Row("edit scene", "Editscene1", "1", "Edit scene breakdown #11", "scene-breakdown.html");
        Row("edit scene, pop-up", "PopEditscene1", "1", "Edit scene breakdown #11", "");
        Row("edit scene on a divider", "PopEditscene1", "2", "", "");
        Row("double click on a scene", "board:scene", "1", "Edit scene breakdown #11", "");
        Row("double click on a banner", "board:banner", "4", "Banner", "");
        Row("banner double click on a scene", "board:banner", "1", "", "");
        Row("add element", "Addelement1", "1", "Add new element", "");
        Row("edit element, pop-up", "PopEditelement1", "1", "Edit element \"", "");
        Row("production details", "Maindetails1", "1", "Production details", "");
        Row("auto pages", "Automaticdaydividers1", "1", "Automatic day dividers", "");
        Row("rest days", "Autorestdays1", "1", "Defualt rest days", "");
        Row("start date", "Startdate1", "1", "Start date", "");
        Row("hold days", "Holddays1", "1", "Hold days", "hold-days.html");
        Row("sort strips", "Sortstrips1", "1", "Sort strips", "");
        Row("conform strip order", "Conformstriporder1", "1", "Conform strip order", "");
        Row("shooting schedule", "Shootingschedule1", "1", "Print schedule", "shooting-schedule.html");
        Row("breakdown sheets", "Breakdownsheets1", "1", "Print script breakdown sheets", "breakdown-sheets.html");
        Row("element summary", "Elementsummary1", "1", "Print element summary", "element-summary.html");
        Row("call sheet", "Callsheet1", "1", "Print Call Sheet", "call-sheet.html");
        Row("end of day", "Endofday1", "1", "End of day", "end-of-day.html");
        Row("day out of days", "Dayoutofdays1", "1", "Day out of days", "day-out-of-days.html");
        Row("production board", "Productionboard1", "1", "Print production board", "print-board.html");
        Row("import script", "Importscript1", "1", "Script import (TXT file)", "import-script.html");
    }

    void entriesOpenTheirDialogs()
    {
        auto [entry, kind, caption, help] =
            Fetch<QString, QString, QString, QString>("entry", "kind", "caption", "help");
        Harness p("whole.ini");
        QVERIFY(p.start());
        QVERIFY(OpenDocument(p.doc, Example).ok());
        int selected = 1;
        while (p.doc.strips[selected].kind() != kind)
            ++selected;
        p.doc.SelStart = p.doc.SelEnd = selected;
        p.doc.SelElement = 1;
        SetModified(p.doc);
        ClearModified(p.doc);
        BoardView *board = p.main->board();
        const QString shown = p.dialogOf(
            [&] {
                if (entry == "board:scene")
                    Q_EMIT board->editSceneRequested();
                else if (entry == "board:banner")
                    Q_EMIT board->editBannerRequested();
                else
                    p.trigger(entry);
            },
            [&](QDialog *dialog) {
                if (help.isEmpty())
                    return;
                dialog->activateWindow();
                QVERIFY(QTest::qWaitForWindowActive(dialog));
                QTest::keyClick(dialog, Qt::Key_F1);
                // A window of the dialog, which a modal dialog
                // does not block, and on the screen.
                HelpWindow *window = p.main->helpWindow();
                QVERIFY(window && window->isVisible());
                QCOMPARE(window->parentWidget(), dialog);
                const QRect screen = window->screen()->availableGeometry();
                QVERIFY(screen.contains(window->frameGeometry()) || window->frameGeometry().width() > screen.width());
            });
        if (caption.endsWith('"'))
            QVERIFY2(shown.startsWith(caption), qPrintable(shown));
        else
            QCOMPARE(shown, caption);
        if (!help.isEmpty()) {
            QCOMPARE(p.main->helpWindow()->currentPage(), help);
            // Help from the menu belongs to no dialog.
            p.trigger("Contents1");
            QVERIFY(!p.main->helpWindow()->parentWidget());
        }
    }

    void entriesRunTheirOperations_data()
    {
        // strips: the scene numbers after, and "k" and the kind of other strips
        // elements: descriptions and board ids after
        Columns<QString, QString, QString>("entry", "strips", "elements");
        const QString strips = "2 1 k2 k4";
        const QString elements = "ANNA=5 LAMP=Prp BEN=6";
        // The scene editor opens for the scene entries; scene 3 is typed and OK clicked.
        Row("add scene", "Addscene1", "2 1 k2 k4 3", elements);
        Row("add scene, pop-up", "PopAddscene1", "2 1 k2 k4 3", elements);
        Row("insert scene, pop-up", "PopInsertscene1", "3 2 1 k2 k4", elements);
        Row("add day divider, pop-up", "PopAdddaydivider1", "2 1 k2 k4 k2", elements);
        Row("remove day dividers", "Removealldaydividers1", "2 1 k4", elements);
        Row("remove banners", "Removeallbanners1", "2 1 k2", elements);
        Row("reset cast numbering", "Reordercastnumbering1", strips, "ANNA=1 LAMP=Prp BEN=2");
        Row("sort elements", "Sortelements1", strips, "ANNA=5 BEN=6 LAMP=Prp");
    }

    void entriesRunTheirOperations()
    {
        QFETCH(QString, entry);
        Harness p("whole.ini");
        AddScene(p.doc, "2", "1");
        AddScene(p.doc, "1", "1");
        AddDivider(p.doc);
        AddBanner(p.doc, "Travel");
        AddElement(p.doc, "ANNA", 1, "5");
        AddElement(p.doc, "LAMP", 5, "Prp");
        AddElement(p.doc, "BEN", 1, "6");
        p.doc.SelStart = p.doc.SelEnd = 1;
        SetModified(p.doc);
        p.dialogOf([&] { p.trigger(entry); }, // questions answered Yes
                   [](QDialog *dialog) {
                       QTest::keyClicks(dialog->findChild<QLineEdit *>("SceneEdit"), "3");
                       dialog->findChild<QPushButton *>("OKBut")->click();
                   });
        QStringList strips;
        for (int i = 1; i <= p.doc.strips.count(); ++i) {
            const StripRecord &strip = p.doc.strips[i];
            strips.append(strip.isScene() ? strip[StripField::SceneNumber] : "k" + strip.kind());
        }
        QTEST(strips.join(u' '), "strips");
        QStringList elements;
        for (int i = 1; i <= p.doc.elements.count(); ++i)
            elements.append(p.doc.elements[i][ElementField::Description] + "=" +
                            p.doc.elements[i][ElementField::BoardId]);
        QTEST(elements.join(u' '), "elements");

        p.trigger("Resetbreakdownnumbering1");
        QCOMPARE(p.doc.undo.levels[1].label, "reset breakdown numbering");
    }

    void finalDraftImport()
    {
        Harness p("whole.ini");
        QVERIFY(p.start());
        AddScene(p.doc, "99", "3");
        const QString file = TempPath("before-final-draft.tbf"); // Save writes here, no dialog
        QVERIFY(SaveDocument(p.doc, file).ok());
        p.doc.FileName = file;
        SetModified(p.doc);
        QSignalSpy save(p.main->findAction("Save1"), &QAction::triggered);
        // Cancel on the question: no dialog, the schedule stays.
        p.prompter.answers = {Answer::Cancel};
        QCOMPARE(p.dialogOf([&] { p.trigger("ImportFinalDraft1"); }), QString());
        QCOMPARE(p.prompter.texts(), QStringList{FinalDraftSaveQuestion});
        QCOMPARE(p.doc.strips.count(), 1);
        // Yes saves first and empties the schedule before the dialog shows.
        p.prompter.answers = {Answer::Yes};
        PanelStatusBar *status = p.main->statusPanels();
        QString statusWhileShown;
        int stripsWhileShown = -1;
        const QString caption = p.dialogOf(
            [&] { p.trigger("ImportFinalDraft1"); },
            [&](QDialog *dialog) {
                statusWhileShown = status->panelText(StatusSink::MessagePanel);
                stripsWhileShown = p.doc.strips.count();
                dialog->findChild<QLineEdit *>("SceneEdit")->setText(QDir(ImportData).filePath("fd-scene-report.txt"));
                dialog->findChild<QLineEdit *>("ScriptEdit")
                    ->setText(QDir(ImportData).filePath("fd-script-report.txt"));
                dialog->findChild<QPushButton *>("ImportBut")->click();
            });
        QVERIFY(!caption.isEmpty());
        QCOMPARE(save.count(), 1);
        // The question again, then the import's summary.
        QCOMPARE(p.prompter.texts().size(), 3);
        QVERIFY(p.prompter.texts().at(2).startsWith("Imported 5 scenes, 3 characters"));
        QCOMPARE(statusWhileShown, "Importing script...");
        QCOMPARE(stripsWhileShown, 0);
        QCOMPARE(status->panelText(StatusSink::MessagePanel), "");
        QCOMPARE(p.doc.strips.count(), 5);
    }

    // The two Export board entries write the file chosen, adding the extension the
    // name lacks; a file that cannot be written is reported and the board stays.
    void exportEntries_data()
    {
        // written: empty: nothing written
        Columns<QString, QString, QString, QByteArray>("entry", "chosen", "written", "start");
        Row("spreadsheet", "AsSpreadsheet1", "board", "board.csv", QByteArray("Kind,Day,"));
        Row("web page", "AsHTML1", "board.htm", "board.htm", QByteArray("<!DOCTYPE html>"));
        Row("no folder", "AsHTML1", "missing/board.html", "", QByteArray());
    }
    void exportEntries()
    {
        auto [entry, chosen, written, start] =
            Fetch<QString, QString, QString, QByteArray>("entry", "chosen", "written", "start");
        QTemporaryDir folder;
        Harness p("whole.ini");
        QVERIFY(p.start());
        QVERIFY(OpenDocument(p.doc, Example).ok());
        auto *exporter = p.main->findChild<BoardExporter *>();
        QString suggested;
        exporter->chooseFile = [&](BoardExportFormat, const QString &name) {
            suggested = name;
            return QDir(folder.path()).filePath(chosen);
        };
        p.trigger(entry);
        QCOMPARE(QFileInfo(suggested).fileName(),
                 entry == "AsHTML1" ? QString("harbour-lights.html") : QString("harbour-lights.csv"));
        if (written.isEmpty()) {
            QCOMPARE(p.prompter.texts().size(), 1);
            QVERIFY(p.prompter.texts().first().startsWith("Could not write"));
            return;
        }
        QVERIFY(ReadFileBytes(QDir(folder.path()).filePath(written)).startsWith(start));
        QCOMPARE(p.main->statusPanels()->panelText(StatusSink::MessagePanel), "Exported to " + written);
        QVERIFY(!p.doc.Modified);
    }

    // The wizard asks about unsaved changes only at Import!, so that cancelling there
    // keeps the open schedule and the wizard.
    void scriptImportAsksAtImport()
    {
        QTemporaryDir folder;
        QVERIFY(WriteBytes(QDir(folder.path()).filePath("kitchen.txt"),
                           "FADE IN:\n\nINT. KITCHEN - NIGHT\n\nSteam rises.\n\n"
                           "EXT. BARN - DAY\n\n          JOHN\n    Later.\n"));
        Harness p("whole.ini");
        QVERIFY(p.start());
        AddScene(p.doc, "99", "3");
        SetModified(p.doc);
        p.prompter.answers = {Answer::Cancel, Answer::No};
        QSignalSpy save(p.main->findAction("Save1"), &QAction::triggered);
        auto *wizard = p.main->findChild<TfrmImportScript *>();
        wizard->setDirectory(folder.path());
        const auto next = [wizard] { wizard->findChild<QPushButton *>("NextBut")->click(); };
        p.dialogOf([&] { p.trigger("Importscript1"); },
                   [&](QDialog *) {
                       next();
                       auto *files = wizard->findChild<QListWidget *>("FileListBox1");
                       files->setCurrentItem(files->findItems("kitchen.txt", Qt::MatchExactly).value(0));
                       QVERIFY(wizard->selectedFile().endsWith("kitchen.txt"));
                       next();
                       next();
                       next();
                       next(); // Import!, Cancel on the question
                       QVERIFY(wizard->isVisible());
                       QCOMPARE(p.doc.strips[1][StripField::SceneNumber], "99");
                       next(); // Import! again, No: imported without saving
                       QCOMPARE(wizard->currentStep(), int(TfrmImportScript::ReviewStep));
                       next(); // Import! on the review: John is kept
                   });
        QCOMPARE(p.prompter.texts().mid(0, 2), (QStringList{ScriptImportSaveQuestion, ScriptImportSaveQuestion}));
        QCOMPARE(p.prompter.texts().value(2).section(u'\r', 0, 0),
                 QStringLiteral("Imported 2 scenes, 1 character, 2/8 page."));
        QCOMPARE(save.count(), 0);
        QCOMPARE(wizard->result(), int(QDialog::Accepted));
        QCOMPARE(p.doc.strips.count(), 2);
        QCOMPARE(p.doc.strips[1][StripField::Location], "KITCHEN");
        // The window keeps its message panel; "Modified" reaches it.
        QCOMPARE(p.main->statusPanels()->panelText(StatusSink::ModifiedPanel), "Modified");
        QVERIFY(!p.main->statusPanels()->panelText(StatusSink::MessagePanel).startsWith("Import progress"));
        QVERIFY(!QApplication::overrideCursor());
    }
};

TB_TEST_MAIN(TestWholeProgram)
#include "tst_wholeprogram.moc"
