// The end of day dialog: the scenes of a day with check boxes, marked shot on OK.

#include "TestSupport.h"

#include "document/DayCalculation.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "scheduling/EndOfDay.h"
#include "ui/scheduling/TfrmEOD.h"
#include "ui_TfrmEOD.h"

#include <QTest>

using namespace tb;
using namespace tb::test;

class TestEndOfDayDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheDayAndMarksTicked();
};

void TestEndOfDayDialog::listsTheDayAndMarksTicked()
{
    const QDate start(2027, 4, 5);
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    doc.values.StartDate = legacy::FloatToText(legacy::DateToSerial(start));
    AddScene(doc, QStringLiteral("1"), QStringLiteral("1"));
    AddScene(doc, QStringLiteral("2"), QStringLiteral("1"));
    AddDivider(doc);
    AddScene(doc, QStringLiteral("3"), QStringLiteral("1"));
    doc.strips[2].set(StripField::Reserved12, QStringLiteral("46482"));
    RecalculateDays(doc);

    TfrmEOD dialog(doc);
    dialog.today = [start] { return start; };
    dialog.show();
    Ui::TfrmEOD &ui = dialog.form();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("End of day"));
    QCOMPARE(ui.Label1->text(), QStringLiteral("Scenes completed today :"));
    QCOMPARE(ui.DatePicker->date(), start);
    QCOMPARE(ui.CheckListBox1->count(), 2);
    QCOMPARE(ui.CheckListBox1->item(1)->checkState(), Qt::Checked);

    // Another day lists its own scenes.
    ui.DatePicker->setDate(start.addDays(1));
    QCOMPARE(ui.CheckListBox1->count(), 1);
    QCOMPARE(ui.CheckListBox1->item(0)->text(), QStringLiteral("3"));
    ui.DatePicker->setDate(start);

    // Cancel changes nothing; OK marks the ticked scene and unmarks the unticked one.
    ui.CheckListBox1->item(0)->setCheckState(Qt::Checked);
    ui.CheckListBox1->item(1)->setCheckState(Qt::Unchecked);
    QTest::mouseClick(ui.CancelBut, Qt::LeftButton);
    QVERIFY(!doc.Modified);
    dialog.show();
    ui.CheckListBox1->item(0)->setCheckState(Qt::Checked);
    ui.CheckListBox1->item(1)->setCheckState(Qt::Unchecked);
    QTest::mouseClick(ui.OKBut, Qt::LeftButton);
    QCOMPARE(ShotDate(doc.strips[1]), start);
    QVERIFY(!IsShot(doc.strips[2]));
    QCOMPARE(doc.undoCaption, QStringLiteral("Undo end of day"));
    QVERIFY(!dialog.isVisible());
}

TB_TEST_MAIN(TestEndOfDayDialog)
#include "tst_endofdaydialog.moc"
