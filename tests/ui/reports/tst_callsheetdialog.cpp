// The call sheet dialog driven through its widgets.

#include "DialogTestSupport.h"

#include "document/DayCalculation.h"
#include "document/LegacyText.h"
#include "document/Settings.h"
#include "reports/CallSheetFile.h"
#include "ui/reports/TfrmCallSheet.h"
#include "ui_TfrmCallSheet.h"

#include <QCalendarWidget>
#include <QListWidget>
#include <QPrinter>

using namespace tb;
using namespace tb::test;

namespace {

// Right-clicks (or clicks) the cell of a grid.
void clickCell(QTableWidget *grid, int row, Qt::MouseButton button = Qt::LeftButton)
{
    const QRect cell = grid->visualRect(grid->model()->index(row, 0));
    QTest::mouseClick(grid->viewport(), button, {}, cell.center());
}

QStringList rowOf(QTableWidget *grid, int row)
{
    QStringList texts;
    for (int c = 0; c < grid->columnCount(); ++c)
        texts.append(grid->item(row, c) ? grid->item(row, c)->text() : QString());
    return texts;
}

} // namespace

class TestCallSheetDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        m_doc.setPrompter(&m_prompter);
    }
    // Tomorrow: scenes 1 and 2 (Ann, the boat); the day after: scene 3 (Bob).
    void init()
    {
        NewDocument(m_doc);
        m_prompter.prompts.clear();
        m_prompter.answers.clear();
        m_tomorrow = QDate::currentDate().addDays(1);
        m_doc.values.StartDate = legacy::FloatToText(legacy::DateToSerial(m_tomorrow));
        AddElement(m_doc, QStringLiteral("ANN"), 1, QStringLiteral("1"));
        AddElement(m_doc, QStringLiteral("BOB"), 1, QStringLiteral("2"));
        AddElement(m_doc, QStringLiteral("BOAT"), 5);
        const int s1 = AddScene(m_doc, QStringLiteral("1"), QStringLiteral("1"));
        m_doc.strips[s1].set(StripField::Assignments, QStringLiteral("1,3"));
        AddScene(m_doc, QStringLiteral("2"), QStringLiteral("0.5"));
        AddDivider(m_doc);
        const int s3 = AddScene(m_doc, QStringLiteral("3"), QStringLiteral("2"));
        m_doc.strips[s3].set(StripField::Assignments, QStringLiteral("2"));
        RecalculateDays(m_doc);
        m_dialog = std::make_unique<TfrmCallSheet>(m_doc);
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    }
    void cleanup() { m_dialog.reset(); }
    void showFillsTomorrow()
    {
        Ui::TfrmCallSheet &ui = m_dialog->form();
        QCOMPARE(ui.DatePicker->date(), m_tomorrow);
        QCOMPARE(ui.SceneGrid->rowCount(), 2);
        QCOMPARE(ui.PagesLab->text(), QStringLiteral("Total pages: 1 4/8"));
        QCOMPARE(rowOf(ui.CastGrid, 0).first(), "1 - ANN");
        QVERIFY(ui.SceneUnshotCheck->isChecked() && !ui.SceneUnshotCheck->isVisible());
        QVERIFY(!m_dialog->manualChange());
        keepScreenshot(*m_dialog, QStringLiteral("callsheet"));

        // Dragging the second scene onto the first moves it up.
        QTest::mousePress(ui.SceneGrid->viewport(), Qt::LeftButton, {},
                          ui.SceneGrid->visualRect(ui.SceneGrid->model()->index(1, 0)).center());
        QTest::mouseRelease(ui.SceneGrid->viewport(), Qt::LeftButton, {},
                            ui.SceneGrid->visualRect(ui.SceneGrid->model()->index(0, 0)).center());
        QCOMPARE(rowOf(ui.SceneGrid, 0).first(), QStringLiteral("2"));
        QVERIFY(m_dialog->manualChange());
    }
    void scenePopupAndKeys()
    {
        Ui::TfrmCallSheet &ui = m_dialog->form();
        QTableWidget *grid = ui.SceneGrid;
        clickCell(grid, 1, Qt::RightButton);
        QTableWidget *popup = m_dialog->scenePopup();
        QVERIFY(popup->isVisible());
        QCOMPARE(popup->rowCount(), 3);
        keepScreenshot(*m_dialog, QStringLiteral("callsheet-scene-list"));
        // Choosing scene 3 fills the selected row; the element grids stay as they are.
        clickCell(popup, 2);
        QVERIFY(!popup->isVisible());
        QCOMPARE(rowOf(grid, 1).first(), QStringLiteral("3"));
        QCOMPARE(ui.PagesLab->text(), QStringLiteral("Total pages: 3"));
        QCOMPARE(ui.CastGrid->rowCount(), 1);
        QVERIFY(m_dialog->manualChange());

        // Insert adds an empty row at the selection and opens the list; Escape hides it.
        grid->setCurrentCell(1, 0);
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Insert);
        QCOMPARE(grid->rowCount(), 3);
        QCOMPARE(rowOf(grid, 1), QStringList(5));
        QCOMPARE(rowOf(grid, 2).first(), QStringLiteral("3"));
        QVERIFY(popup->isVisible());
        QTest::keyClick(grid, Qt::Key_Escape);
        QVERIFY(!popup->isVisible());
        // Delete removes the selected rows; the last row left is emptied instead.
        grid->selectRow(2);
        QTest::keyClick(grid, Qt::Key_Delete);
        QCOMPARE(grid->rowCount(), 2);
        grid->selectAll();
        QTest::keyClick(grid, Qt::Key_Delete);
        QCOMPARE(grid->rowCount(), 1);
        QTest::keyClick(grid, Qt::Key_Delete);
        QCOMPARE(rowOf(grid, 0), QStringList(5));
        QCOMPARE(ui.PagesLab->text(), QStringLiteral("Total pages: "));
    }
    void castPopupAndCategories()
    {
        Ui::TfrmCallSheet &ui = m_dialog->form();
        clickCell(ui.CastGrid, 0, Qt::RightButton);
        QTableWidget *cast = m_dialog->castPopup();
        QVERIFY(cast->isVisible());
        QCOMPARE(cast->rowCount(), 2);
        ui.CastGrid->item(0, 2)->setText(QString()); // an empty "Makeup" stays empty
        clickCell(cast, 1);
        QVERIFY(!cast->isVisible());
        // The calls land one column to the right of a filled row's.
        QCOMPARE(rowOf(ui.CastGrid, 0), (QStringList{"2 - BOB", "", "", "7:45 am", "8:00 am", ""}));

        clickCell(ui.OtherGrid, 0, Qt::RightButton);
        QListWidget *categories = m_dialog->categoryPopup();
        QVERIFY(categories->isVisible());
        QTest::mouseClick(categories->viewport(), Qt::LeftButton, {},
                          categories->visualItemRect(categories->item(1)).center());
        QCOMPARE(rowOf(ui.OtherGrid, 0).first(), m_doc.categories.at(3).name);
        QVERIFY(!categories->isVisible());
    }
    void dateChangeQuestion_data()
    {
        Columns<bool, int, bool, QString>("edited", "answer", "asked", "firstScene");
        Row("no hand edit", false, int(Answer::Yes), false, "3");
        Row("edited, Yes refills", true, int(Answer::Yes), true, "3");
        Row("edited, No keeps", true, int(Answer::No), true, "1");
    }
    void dateChangeQuestion()
    {
        auto [edited, answer, asked] = Fetch<bool, int, bool>("edited", "answer", "asked");
        Ui::TfrmCallSheet &ui = m_dialog->form();
        if (edited)
            QTest::mouseClick(ui.UnitEdit, Qt::LeftButton);
        QCOMPARE(m_dialog->manualChange(), edited);
        m_prompter.answers = {Answer(answer)};
        ui.DatePicker->setDate(m_tomorrow.addDays(1));
        QCOMPARE(m_prompter.prompts.size(), asked ? 1 : 0);
        if (asked) {
            QCOMPARE(m_prompter.prompts.first().kind, MessageKind::Warning);
            QCOMPARE(m_prompter.prompts.first().text, QString::fromLatin1(CallSheetDateChangeText));
        }
        QTEST(rowOf(ui.SceneGrid, 0).first(), "firstScene");
        QVERIFY(!m_dialog->manualChange());
        QCOMPARE(m_dialog->sheet().pickedDate(), m_tomorrow.addDays(1));
    }
    void saveOpenAndPrint()
    {
        Ui::TfrmCallSheet &ui = m_dialog->form();
        const QString path = TempPath(QStringLiteral("dialog.tbs"));
        QString offered;
        m_dialog->chooseSaveFile = [&](QWidget *, const QString &current) {
            offered = current;
            return path;
        };
        ui.WeatherEdit->setText(QStringLiteral("Showers"));
        QTest::mouseClick(ui.SaveBut, Qt::LeftButton);
        QCOMPARE(offered, QStringLiteral("*.tbs"));
        QVERIFY(ReadFileBytes(path).startsWith("Torvanbridge call sheet file V1\r\n"));

        // Open reads the file last saved, whichever file the open dialog gave.
        ui.WeatherEdit->setText(QStringLiteral("Changed"));
        m_dialog->chooseOpenFile = [](QWidget *) { return QStringLiteral("/somewhere/else.tbc"); };
        QTest::mouseClick(ui.OpenBut, Qt::LeftButton);
        QCOMPARE(ui.WeatherEdit->text(), QStringLiteral("Showers"));
        QVERIFY(m_prompter.prompts.isEmpty());

        // Print: the print dialog's copies; a PDF file holds one.
        const QString pdf = TempPath(QStringLiteral("dialog.pdf"));
        m_dialog->runPrintDialog = [&](QPrinter &printer, int *copies) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(pdf);
            *copies = 2;
            return true;
        };
        QTest::mouseClick(ui.PrintBut, Qt::LeftButton);
        QVERIFY(ReadFileBytes(pdf).startsWith("%PDF"));
        QVERIFY(!m_dialog->isVisible());
    }
    void restDayWarningRemembered()
    {
        Settings settings(TempPath(QStringLiteral("Torvanbridge.ini")));
        m_dialog->setSettings(&settings);
        m_doc.values.AutoRestDayRule = QStringLiteral("S1"); // the second day of every week rests
        RecalculateDays(m_doc);
        int rest = 0;
        for (int i = 1; i <= m_doc.strips.count(); ++i)
            if (m_doc.strips[i].isAutoRestDay())
                rest = i;
        QVERIFY(rest > 0);
        const QDate warned = m_tomorrow.addDays(legacy::StrToIntDef(m_doc.strips[rest][StripField::DayNumber], 0) - 1);
        m_dialog->form().DatePicker->setDate(warned);
        emit m_dialog->form().DatePicker->calendarWidget()->clicked(warned);
        QCOMPARE(m_prompter.texts(), QStringList{QString::fromLatin1(CallSheetRestText)});
        QVERIFY(!m_prompter.prompts.first().checkBoxText.isEmpty());
    }

private:
    ScheduleDocument m_doc;
    ScriptedPrompter m_prompter;
    std::unique_ptr<TfrmCallSheet> m_dialog;
    QDate m_tomorrow;
};

TB_TEST_MAIN(TestCallSheetDialog)
#include "tst_callsheetdialog.moc"
