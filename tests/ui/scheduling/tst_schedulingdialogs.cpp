#include "DialogTestSupport.h"
#include "SchedulingTestView.h"

#include "document/LegacyText.h"
#include "scheduling/EndOfDay.h"
#include "ui/scheduling/TfrmAutoPages.h"
#include "ui/scheduling/TfrmBanner.h"
#include "ui/scheduling/TfrmCalender.h"
#include "ui/scheduling/TfrmDate.h"
#include "ui/scheduling/TfrmEOD.h"
#include "ui/scheduling/TfrmHold.h"
#include "ui/scheduling/TfrmLockStrip.h"
#include "ui/scheduling/TfrmStartDate1.h"
#include "ui/shell/ColourButton.h"

#include <QAction>
#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>

using namespace tb;
using namespace tb::test;

class TestSchedulingDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void autoPages()
    {
        ScheduleDocument doc;
        Build(doc, {"12", "|"});
        TfrmAutoPages dialog(doc);
        dialog.show();
        auto *spin = Child<QSpinBox>(&dialog, "PagesSpin");
        auto *heading = Child<QLabel>(&dialog, "Label4");
        QCOMPARE(spin->value(), 5);
        QCOMPARE(heading->text(), "If a scene is longer than X pages...");
        QVERIFY(Child<QRadioButton>(&dialog, "KeepCheck")->isChecked());
        QVERIFY(Child<QCheckBox>(&dialog, "RemoveCheck")->isChecked());
        spin->setFocus();
        QTest::keyClick(spin, Qt::Key_Up);
        QCOMPARE(heading->text(), "If a single scene is longer than 6 pages...");
        QTest::keyClick(spin, Qt::Key_Down);
        Child<QRadioButton>(&dialog, "SplitCheck")->click();
        Child<QPushButton>(&dialog, "OKBut")->click();
        QCOMPARE(Kinds(doc), "1 2 2");

        // Cancel changes nothing.
        dialog.show();
        Child<QCheckBox>(&dialog, "RemoveCheck")->click();
        Child<QPushButton>(&dialog, "CancelBut")->click();
        QCOMPARE(Kinds(doc), "1 2 2");
    }
    void banner()
    {
        ScheduleDocument doc;
        AddScene(doc, "1", "1");
        TfrmBanner dialog(doc);
        dialog.setDefaultColours({"clYellow", "clNavy"});
        dialog.setMode(BannerAddAtEnd);
        dialog.show();
        auto *text = Child<QLineEdit>(&dialog, "BannerTextEdit");
        auto *dayCheck = Child<QCheckBox>(&dialog, "DayCheck");
        auto *daySpin = Child<QSpinBox>(&dialog, "DaySpin");
        auto *background = Child<ColourButton>(&dialog, "StripColorBut");
        QVERIFY(!daySpin->isEnabled());
        QCOMPARE(background->colourName(), "clYellow");
        dayCheck->click();
        QVERIFY(daySpin->isEnabled());
        daySpin->setValue(2);
        QTest::keyClicks(text, "Travel day");
        Child<QPushButton>(&dialog, "OKBut")->click();
        QCOMPARE(Kinds(doc), "1 4");
        QCOMPARE(doc.strips[2][StripField::Synopsis], "Travel day");
        QCOMPARE(doc.strips[2][StripField::StripColour], "clYellow,clNavy");
        QCOMPARE(doc.strips[2][StripField::DayCount], "2");

        // Shown again: the text is empty and the day change unticked, whatever was typed before.
        dialog.show();
        QCOMPARE(text->text(), "");
        QVERIFY(!dayCheck->isChecked());
        dialog.hide();

        // Edited, the banner shows what it holds; unticking the day change writes no days.
        doc.strips[2].set(StripField::StripColour, "clRed,$00C0FFEE");
        doc.SelStart = doc.SelEnd = 2;
        dialog.setMode(BannerEdit);
        dialog.show();
        QCOMPARE(text->text(), "Travel day");
        QCOMPARE(background->colourName(), "clRed");
        QCOMPARE(Child<ColourButton>(&dialog, "TextColorBut")->colourName(), "$00C0FFEE");
        QVERIFY(dayCheck->isChecked());
        QCOMPARE(daySpin->value(), 2);
        dayCheck->click();
        Child<QPushButton>(&dialog, "OKBut")->click();
        QCOMPARE(Kinds(doc), "1 4");
        QCOMPARE(doc.strips[2][StripField::StripColour], "clRed,$00C0FFEE"); // names kept as stored
        QCOMPARE(doc.strips[2][StripField::DayCount], "0");
    }
    void bannerPalette()
    {
        ColourButton button;
        QSignalSpy changed(&button, &ColourButton::colourChanged);
        button.palette()->actions().at(10)->trigger(); // Lime
        QCOMPARE(button.colourName(), "clLime");
        QCOMPARE(changed.count(), 1);
    }
    void startDate()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        doc.values.StartDate = FridayMarch6;
        doc.values.AutoRestDayRule = "D67";
        TfrmStartDate1 dialog(doc);
        dialog.show();
        auto *picker = Child<QDateEdit>(&dialog, "StartPicker");
        auto *tick = Child<QCheckBox>(&dialog, "StartCheck");
        auto *ok = Child<QPushButton>(&dialog, "OKBut");
        QCOMPARE(picker->date(), QDate(2026, 3, 6));
        QVERIFY(tick->isChecked());

        // Unticked: the rest-day question; No keeps the dialog open and the schedule as it was.
        tick->click();
        QVERIFY(!picker->isEnabled());
        prompter.answers = {Answer::No};
        ok->click();
        QVERIFY(dialog.isVisible());
        QCOMPARE(prompter.prompts.size(), 1);
        QCOMPARE(doc.values.StartDate, "46087");
        ok->click(); // Yes this time
        QVERIFY(!dialog.isVisible());
        QCOMPARE(doc.values.StartDate, "");

        // Without a start date the picker offers today, ticked.
        dialog.show();
        QCOMPARE(picker->date(), QDate::currentDate());
        QVERIFY(tick->isChecked());
        QVERIFY(picker->isEnabled());

        // A date before today: asked, and No keeps the dialog open.
        dialog.setToday(QDate(2026, 3, 7));
        picker->setDate(QDate(2026, 3, 6));
        prompter.answers = {Answer::No};
        ok->click();
        QVERIFY(dialog.isVisible());
        QVERIFY(prompter.texts().last().endsWith("Are you sure you want to use a start date of Fri, March 6, 2026?"));
        ok->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(doc.values.StartDate, "46087");
    }
    void calenderCaptions()
    {
        ScheduleDocument doc;
        doc.values.StartDate = FridayMarch6;
        doc.values.AutoRestDayRule = "D67";
        TfrmCalender dialog(doc);
        dialog.show();
        auto *dayRadio = Child<QRadioButton>(&dialog, "DayRadio");
        auto *firstRadio = Child<QRadioButton>(&dialog, "FirstRadio");
        auto *hint = Child<QLabel>(&dialog, "HintLab");
        auto *check7 = Child<QCheckBox>(&dialog, "Check7");
        QVERIFY(dayRadio->isChecked());
        QCOMPARE(Child<QCheckBox>(&dialog, "Check1")->text(), "Mon");
        QCOMPARE(check7->text(), "Sun");
        QVERIFY(check7->isVisible());
        QCOMPARE(hint->text(), "Eg; Selecting \"Sun\" will designate all Sundays to be rest days. ");
        QCOMPARE(Child<QLabel>(&dialog, "DayLab")->text(), "First day of production is currently a Friday.");

        firstRadio->click();
        for (int k = 1; k <= 6; ++k)
            QCOMPARE(Child<QCheckBox>(&dialog, qPrintable(QString("Check%1").arg(k)))->text(), QString::number(k + 1));
        QVERIFY(!check7->isVisible());
        QCOMPARE(hint->text(),
                 "Eg; Selecting \" 7 \" will make every 7th day a rest day, begining from the first day of production");

        // From the start day, the hidden but ticked seventh box still writes its digit.
        Child<QPushButton>(&dialog, "OKBut")->click();
        QCOMPARE(doc.values.AutoRestDayRule, "S67");

        // Without a start date the weekday basis is not offered.
        doc.values.StartDate.clear();
        dialog.show();
        QVERIFY(!dayRadio->isEnabled());
        QCOMPARE(Child<QCheckBox>(&dialog, "Check1")->text(), "2");
        Child<QCheckBox>(&dialog, "Check5")->click();
        Child<QPushButton>(&dialog, "OKBut")->click();
        QCOMPARE(doc.values.AutoRestDayRule, "S567");
    }
    void holdDays()
    {
        ScheduleDocument doc;
        doc.values.HoldDays = 25;
        TfrmHold dialog(doc);
        dialog.show();
        auto *spin = Child<QSpinBox>(&dialog, "DropSpin");
        QCOMPARE(spin->value(), 25);
        spin->setValue(40);
        Child<QPushButton>(&dialog, "OKBut")->click();
        QCOMPARE(doc.values.HoldDays, 40);

        // Cancel keeps the threshold.
        dialog.show();
        spin->setValue(3);
        Child<QPushButton>(&dialog, "CancelBut")->click();
        QCOMPARE(doc.values.HoldDays, 40);
    }
    void lock()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        Build(doc, {"1", "1"});
        doc.SelStart = doc.SelEnd = 2;
        TfrmLockStrip dialog(doc);
        // Without a start date it refuses before it opens.
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        QCOMPARE(prompter.prompts.size(), 1);

        doc.values.StartDate = FridayMarch6;
        doc.strips[2].set(StripField::LockDate, "3/20/2026");
        clickInModal("OKBut", [](QWidget *modal) {
            auto *picker = Child<QDateEdit>(modal, "DTPick");
            // The picker starts at the selected strip's lock date.
            QCOMPARE(picker->date(), QDate(2026, 3, 20));
            Child<QRadioButton>(modal, "Unlockradio")->click();
            QVERIFY(!picker->isEnabled());
            Child<QRadioButton>(modal, "LockRadio")->click();
            QVERIFY(picker->isEnabled());
            picker->setDate(QDate(2026, 3, 1)); // before the start date
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QCOMPARE(dialog.windowTitle(), "Lock / un-lock to date");
        QCOMPARE(doc.strips[2][StripField::LockDate], "3/1/2026");
        QCOMPARE(prompter.prompts.size(), 2); // the warning; locked all the same

        clickInModal("OKBut", [](QWidget *modal) { Child<QRadioButton>(modal, "Unlockradio")->click(); });
        dialog.exec();
        QCOMPARE(doc.strips[2][StripField::LockDate], "");
    }
    void inertDialogs()
    {
        ScheduleDocument doc;
        TfrmDate dates(doc);
        dates.show();
        QVERIFY(Child<QRadioButton>(&dates, "AddDatesRadio")->isChecked());
        Child<QPushButton>(&dates, "Button1")->click();
        QVERIFY(dates.isVisible()); // does nothing
        Child<QPushButton>(&dates, "Button2")->click();
        QVERIFY(!dates.isVisible());
    }
    void endOfDay()
    {
        const QDate start(2027, 4, 5);
        ScheduleDocument doc;
        doc.values.StartDate = legacy::FloatToText(legacy::DateToSerial(start));
        Build(doc, {"1", "1", "|", "1"});
        doc.strips[2].set(StripField::Reserved12, "46482");
        ClearModified(doc);
        TfrmEOD eod(doc);
        eod.today = [start] { return start; };
        eod.show();
        auto *list = Child<QListWidget>(&eod, "CheckListBox1");
        auto *picker = Child<QDateEdit>(&eod, "DatePicker");
        QCOMPARE(picker->date(), start);
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(1)->checkState(), Qt::Checked); // already marked
        picker->setDate(start.addDays(1));                  // another day lists its own scenes
        QCOMPARE(list->count(), 1);
        picker->setDate(start);

        list->item(0)->setCheckState(Qt::Checked);
        list->item(1)->setCheckState(Qt::Unchecked);
        Child<QPushButton>(&eod, "CancelBut")->click();
        QVERIFY(!doc.Modified);
        eod.show();
        list->item(0)->setCheckState(Qt::Checked);
        list->item(1)->setCheckState(Qt::Unchecked);
        Child<QPushButton>(&eod, "OKBut")->click();
        QVERIFY(!eod.isVisible());
        QCOMPARE(ShotDate(doc.strips[1]), start);
        QVERIFY(!IsShot(doc.strips[2]));
    }
};

TB_TEST_MAIN(TestSchedulingDialogs)
#include "tst_schedulingdialogs.moc"
