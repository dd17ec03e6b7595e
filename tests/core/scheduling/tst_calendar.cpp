#include "SchedulingTestView.h"

#include "board/DrawBoard.h"
#include "document/ScheduleFile.h"
#include "document/UndoStore.h"
#include "scheduling/Calendar.h"
#include "scheduling/EndOfDay.h"
#include "scheduling/StripLocking.h"

#include <QImage>
#include <QPainter>

using namespace tb;
using namespace tb::test;

namespace {
const QDate Friday(2026, 3, 6);
const QDate Earlier(2026, 1, 1);
const QStringList ThreeDays{"1", "|", "1", "|", "1", "|"};
} // namespace

class TestCalendar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void fridayStartWithWeekendsOff()
    {
        Fixture f;
        Build(f.doc, ThreeDays);
        QVERIFY(ApplyStartDate(f.doc, Friday, Friday));
        QCOMPARE(f.doc.values.StartDate, "46087");
        QVERIFY(f.prompter.prompts.isEmpty()); // today is not later than the date
        QVERIFY(ApplyRestDayRule(f.doc, "D76").ok());
        QCOMPARE(f.doc.values.AutoRestDayRule, "D67"); // digits in order

        // Day 1 Friday, then Saturday and Sunday off, and day 4 is Monday.
        QCOMPARE(Kinds(f.doc), "1 2 3 3 1 2 1 2");
        QCOMPARE(f.doc.strips[6][StripField::SceneNumber], "Mon, March 9, 2026");
        QCOMPARE(FirstProductionDayText(f.doc), "First day of production is currently a Friday.");
    }
    void startDateBeforeToday_data()
    {
        QTest::addColumn<Answer>("answer");
        Row("yes", Answer::Yes);
        Row("no", Answer::No);
    }
    void startDateBeforeToday()
    {
        QFETCH(Answer, answer);
        Fixture f;
        f.doc.values.StartDate = FridayMarch6;
        f.prompter.answers = {answer};
        QCOMPARE(ApplyStartDate(f.doc, Earlier, Friday), answer == Answer::Yes);
        QCOMPARE(
            f.prompter.texts(),
            QStringList{"Errr? The date you have selected is before todays date! Have you discovered the secret of "
                        "time travel?\r\rAre you sure you want to use a start date of Thu, January 1, 2026?"});
        QCOMPARE(f.prompter.prompts.first().buttons, Buttons::YesNo);
        QCOMPARE(f.doc.values.StartDate, answer == Answer::Yes ? "46023" : "46087");
        QCOMPARE(f.doc.Modified, answer == Answer::Yes);
    }
    void clearingTheStartDate_data()
    {
        Columns<QString, Answer, bool, bool, QString>("rule", "answer", "asked", "cleared", "kinds");

        // Only the weekday rule needs the start date, so only it is asked about; a
        // start-day rule goes silently, and its rest days with it.
        Row("no rule", "", Answer::Yes, false, true, "1 2 1 2 1 2");
        Row("S1", "S1", Answer::Yes, false, true, "1 2 1 2 1 2");
        Row("D67, yes", "D67", Answer::Yes, true, true, "1 2 1 2 1 2");
        Row("D67, no", "D67", Answer::No, true, false, "1 2 3 3 1 2 1 2");
    }
    void clearingTheStartDate()
    {
        auto [rule, answer, asked, cleared] = Fetch<QString, Answer, bool, bool>("rule", "answer", "asked", "cleared");
        Fixture f;
        f.doc.values.StartDate = FridayMarch6;
        f.doc.values.AutoRestDayRule = rule;
        Build(f.doc, ThreeDays);
        f.prompter.answers = {answer};

        QCOMPARE(ApplyStartDate(f.doc, std::nullopt, Friday), cleared);
        QCOMPARE(f.prompter.prompts.size(), asked ? 1 : 0);
        if (asked) {
            QCOMPARE(f.prompter.prompts.first().kind, MessageKind::Warning);
            QVERIFY(f.prompter.texts().first().startsWith("You are removing the start date from the schedule, but you "
                                                          "have previously set certain days of the week "
                                                          "as rest days."));
            QVERIFY(f.prompter.texts().first().endsWith(
                "\r\rClick Yes to continue (removing the auto rest days) or No to cancel this operation."));
        }
        QCOMPARE(f.doc.values.StartDate.isEmpty(), cleared);
        QCOMPARE(f.doc.values.AutoRestDayRule, cleared ? QString() : rule);
        QTEST(Kinds(f.doc), "kinds");
        QCOMPARE(f.doc.strips[2][StripField::SceneNumber].isEmpty(), cleared); // dividers lose their dates
    }
    void ruleShownByTheDialog_data()
    {
        // ticked: "1" for each ticked box 1..7
        // written: the rule the dialog writes back unchanged
        Columns<QString, QString, bool, QString, QString>("start", "rule", "byWeekday", "ticked", "written");

        Row("none", FridayMarch6, "", false, "0000000", "S");
        Row("S6", FridayMarch6, "S6", false, "0000010", "S6");
        Row("D67", FridayMarch6, "D67", true, "0000011", "D67");
        // Without a start date the weekday basis cannot be shown.
        Row("D67 without start", "", "D67", false, "0000011", "S67");
        // The seventh box is hidden from the start day, but a tick in it still counts.
        Row("S167", FridayMarch6, "S167", false, "1000011", "S167");
    }
    void ruleShownByTheDialog()
    {
        auto [start, rule, ticked] = Fetch<QString, QString, QString>("start", "rule", "ticked");
        Fixture f;
        f.doc.values.StartDate = start;
        f.doc.values.AutoRestDayRule = rule;
        const RestDayChoice choice = ReadRestDayRule(f.doc);
        QTEST(choice.basis == RestDayBasis::DayOfWeek, "byWeekday");
        QString boxes;
        for (bool b : choice.ticked)
            boxes += b ? u'1' : u'0';
        QCOMPARE(boxes, ticked);
        QTEST(RestDayRuleText(choice), "written");
    }
    void ruleRefused_data()
    {
        Columns<QString, QString>("start", "rule");
        Row("other letter", FridayMarch6, "W6");
        Row("digit 8", FridayMarch6, "S8");
        Row("digit 0", FridayMarch6, "S0");
        Row("lower case", FridayMarch6, "d6");
        Row("weekday without start", "", "D6");
    }
    void ruleRefused()
    {
        auto [start, rule] = Fetch<QString, QString>("start", "rule");
        Fixture f;
        f.doc.values.StartDate = start;
        f.doc.values.AutoRestDayRule = "S6";
        const Result r = ApplyRestDayRule(f.doc, rule);
        QVERIFY(!r.ok());
        QVERIFY(!r.message().isEmpty());
        QCOMPARE(f.doc.values.AutoRestDayRule, "S6");
        QVERIFY(!f.doc.Modified);
    }
    void lockAndUnlock()
    {
        Fixture f;
        f.doc.values.StartDate = FridayMarch6;
        Build(f.doc, ThreeDays);
        f.doc.SelStart = 4;
        f.doc.SelEnd = 2; // a selection made leftwards
        QVERIFY(LockStrips(f.doc, Earlier).ok());
        QCOMPARE(f.prompter.texts(), QStringList{"Errr? The date you have selected is before the production start "
                                                 "date!\r\rYou must enter a date that is on or after 3/6/2026."});
        QCOMPARE(f.prompter.prompts.first().kind, MessageKind::Error);
        // Locked all the same.
        QStringList locks;
        for (int i = 1; i <= f.doc.strips.count(); ++i)
            locks.append(f.doc.strips[i][StripField::LockDate]);
        QCOMPARE(locks, (QStringList{"", "1/1/2026", "1/1/2026", "1/1/2026", "", ""}));
        QCOMPARE(LockDateOf(f.doc, 3), Earlier);

        // On the start date itself: no warning.
        f.prompter.prompts.clear();
        QVERIFY(LockStrips(f.doc, Friday).ok());
        QVERIFY(f.prompter.prompts.isEmpty());
        QCOMPARE(f.doc.strips[2][StripField::LockDate], "3/6/2026");

        // Unlocking clears the selected strips only, and marks the document modified even
        // when there is nothing left to clear.
        f.doc.SelStart = 3;
        f.doc.SelEnd = 4;
        UnlockStrips(f.doc);
        QCOMPARE(f.doc.strips[2][StripField::LockDate], "3/6/2026");
        QCOMPARE(f.doc.strips[3][StripField::LockDate], "");
        f.doc.Modified = false;
        UnlockStrips(f.doc);
        QVERIFY(f.doc.Modified);
    }
    void lockNeedsAStartDate()
    {
        Fixture f;
        Build(f.doc, ThreeDays);
        f.doc.Modified = false;
        f.doc.SelStart = f.doc.SelEnd = 1;
        QVERIFY(!CanLockStrips(f.doc));
        QVERIFY(!LockStrips(f.doc, Friday).ok());
        QCOMPARE(f.prompter.prompts.size(), 2);
        QCOMPARE(f.prompter.prompts.first().kind, MessageKind::Information);
        QCOMPARE(f.prompter.texts().first(),
                 "You cannot lock strip(s) to a specific date yet, because you have not set a start date for the "
                 "production.\r\rPlease select Production | Start date... from the menu first.");
        QCOMPARE(f.doc.strips[1][StripField::LockDate], "");
        QVERIFY(!f.doc.Modified);
    }
    void holdDays()
    {
        Fixture f;
        QVERIFY(SetHoldDays(f.doc, 999).ok());
        QCOMPARE(f.doc.values.HoldDays, 999);
        QVERIFY(!f.doc.Modified);
        QVERIFY(!SetHoldDays(f.doc, 0).ok());
        QVERIFY(!SetHoldDays(f.doc, 1000).ok());
        QCOMPARE(f.doc.values.HoldDays, 999);
    }
    // End of day: day 1 holds scenes 1 and 2, day 2 scene 3.
    void endOfDay_data()
    {
        // before, after: the shot dates of scenes 1 and 2
        Columns<QString, bool, bool, QString>("before", "tick1", "tick2", "after");
        Row("tick both", ",", true, true, "46087,46087");
        Row("untick clears", "46087,46087", true, false, "46087,");
        // A scene already marked keeps the day it was first marked shot.
        Row("earlier mark kept", "46000,", true, true, "46000,46087");
    }
    void endOfDay()
    {
        auto [before, tick1, tick2, after] = Fetch<QString, bool, bool, QString>("before", "tick1", "tick2", "after");
        Fixture f;
        f.doc.values.StartDate = FridayMarch6;
        Build(f.doc, {"1", "1", "|", "1"});
        f.doc.strips[1].set(StripField::Reserved12, before.section(u',', 0, 0));
        f.doc.strips[2].set(StripField::Reserved12, before.section(u',', 1, 1));
        QCOMPARE(SceneStripsOn(f.doc, Friday), (QList<int>{1, 2}));
        QVERIFY(ApplyEndOfDay(f.doc, Friday, {{1, tick1}, {2, tick2}}).ok());
        QCOMPARE(f.doc.strips[1][StripField::Reserved12] + u',' + f.doc.strips[2][StripField::Reserved12], after);
        QCOMPARE(IsShot(f.doc.strips[2]), tick2);
        QVERIFY(!IsShot(f.doc.strips[4]));
        Undo(f.doc);
        QCOMPARE(f.doc.strips[1][StripField::Reserved12] + u',' + f.doc.strips[2][StripField::Reserved12], before);

        // Only scenes, and only on a date.
        QVERIFY(!ApplyEndOfDay(f.doc, Friday, {{1, true}, {3, true}}).ok());
        QVERIFY(!ApplyEndOfDay(f.doc, QDate(), {{1, true}}).ok());
        QCOMPARE(f.doc.strips[1][StripField::Reserved12] + u',' + f.doc.strips[2][StripField::Reserved12], before);
    }
    void shotScenesKeptThroughSaveAndOpen()
    {
        Fixture f;
        f.doc.values.StartDate = FridayMarch6;
        Build(f.doc, {"1", "1", "|", "1"});
        QVERIFY(ApplyEndOfDay(f.doc, Friday.addDays(1), {{4, true}}).ok());
        const QString path = TempPath(QStringLiteral("shot.tbf"));
        QVERIFY(SaveDocument(f.doc, path).ok());
        ScheduleDocument reopened;
        QVERIFY(OpenDocument(reopened, path).ok());
        QCOMPARE(ShotDate(reopened.strips[4]), Friday.addDays(1));
        QVERIFY(!IsShot(reopened.strips[1]));

        // The board marks the shot scene in its header, and only there.
        QImage plain(400, 300, QImage::Format_RGB32), marked(400, 300, QImage::Format_RGB32);
        {
            QPainter p(&marked);
            DrawBoard(reopened, ClassicBoardStyle(), BoardDrawOptions(), p);
        }
        reopened.strips[4].set(StripField::Reserved12, QString());
        {
            QPainter p(&plain);
            DrawBoard(reopened, ClassicBoardStyle(), BoardDrawOptions(), p);
        }
        QVERIFY(plain != marked);
    }
};

TB_TEST_MAIN(TestCalendar)
#include "tst_calendar.moc"
