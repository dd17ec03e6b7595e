#include "SchedulingTestView.h"

#include "document/DayCalculation.h"
#include "document/LegacyText.h"

using namespace tb;
using namespace tb::test;

namespace {

QString field(const ScheduleDocument &doc, int row, StripField f)
{
    return doc.strips[row][f];
}

// "kind:day" for every strip, e.g. "1:0 2:1 3:2".
QString Days(const ScheduleDocument &doc)
{
    QStringList out;
    for (int i = 1; i <= doc.strips.count(); ++i)
        out.append(doc.strips[i].kind() + u':' + doc.strips[i][StripField::DayNumber]);
    return out.join(u' ');
}

} // namespace

class TestDayCalculation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void numbersAndTotals()
    {
        ScheduleDocument doc;
        RecordingStatus status{doc};
        Build(doc, {"1.375", "0.5", "|", "2", "|", "7"}); // the last scene lies after the last divider: no total
        RecalculateDays(doc);

        QCOMPARE(Days(doc), "1:0 1:0 2:1 1:1 2:2 1:2");
        QCOMPARE(field(doc, 3, StripField::PageLength), "1.875");
        QCOMPARE(field(doc, 5, StripField::PageLength), "2");
        QCOMPARE(field(doc, 5, StripField::ShootDayNumber), "2");
        QCOMPARE(doc.days.dividers, 2);
        QCOMPARE(status.panels.value(StatusSink::DaysPanel), " Production: 2 days.  Shoot: 2 days");

        // An empty day has a total of "0"; single precision sums read back exactly.
        ScheduleDocument tenths;
        Build(tenths, QStringList(10, "0.1") << "|"
                                             << "|");
        RecalculateDays(tenths);
        QCOMPARE(field(tenths, 11, StripField::PageLength), legacy::SingleToText(1.0000001f));
        QCOMPARE(field(tenths, 12, StripField::PageLength), "0");
    }
    void bannersCountDays()
    {
        ScheduleDocument doc;
        doc.values.StartDate = FridayMarch6;
        AddScene(doc, "1", "1");
        AddDivider(doc);
        const int travel = AddBanner(doc, "TRAVEL", 3);
        const int note = AddBanner(doc, "Note", 0);
        const int one = AddBanner(doc, "Move", 1);
        AddScene(doc, "2", "1");
        const int last = AddDivider(doc);
        RecalculateDays(doc);

        // A banner of n days adds n production days but one shooting-day number, and is
        // dated with the last of its days; a banner of 0 days changes nothing.
        QCOMPARE(field(doc, travel, StripField::DayNumber), "4");
        QCOMPARE(field(doc, travel, StripField::ShootDayNumber), "2");
        QCOMPARE(field(doc, travel, StripField::PageLength), "0");
        QCOMPARE(field(doc, travel, StripField::SceneNumber), "Mon, March 9, 2026");
        QCOMPARE(field(doc, note, StripField::DayNumber), "4");
        QCOMPARE(field(doc, note, StripField::SceneNumber), "Mon, March 9, 2026");
        QCOMPARE(field(doc, one, StripField::DayNumber), "5");
        QCOMPARE(field(doc, one, StripField::ShootDayNumber), "3");
        QCOMPARE(field(doc, last, StripField::DayNumber), "6");
        QCOMPARE(field(doc, last, StripField::ShootDayNumber), "4");
        QCOMPARE(field(doc, last, StripField::SceneNumber), "Wed, March 11, 2026");
        QCOMPARE(doc.days.banners, 3);
        QCOMPARE(doc.days.shootingDays, 4);
    }
    void restDays_data()
    {
        // days: shooting days on the board, one divider each
        // tail: a scene after the last divider
        // expected: kind:day of every strip
        // dates: dates of the rest days, in order
        Columns<QString, QString, int, bool, QString, QStringList>("start", "rule", "days", "tail", "expected",
                                                                   "dates");

        // Friday start, Saturday and Sunday off: day 1 Friday, rest on 2 and 3, day 4 Monday.
        Row("D67 from a Friday", FridayMarch6, "D67", 3, false, "1:0 2:1 3:2 3:3 1:3 2:4 1:4 2:5",
            QStringList{"Sat, March 7, 2026", "Sun, March 8, 2026"});
        // Sunday and Monday off: two rest days in a row, Tuesday is day 5.
        Row("D71", FridayMarch6, "D71", 3, true, "1:0 2:1 1:1 2:2 3:3 3:4 1:4 2:5 1:5",
            QStringList{"Sun, March 8, 2026", "Mon, March 9, 2026"});
        // Every seventh day from the start is a rest day.
        Row("S6", "", "S6", 14, false,
            "1:0 2:1 1:1 2:2 1:2 2:3 1:3 2:4 1:4 2:5 1:5 2:6 3:7 1:7 2:8 1:8 2:9 1:9 2:10 1:10 2:11 1:11 2:12 1:12 "
            "2:13 "
            "3:14 1:14 2:15 1:15 2:16",
            QStringList{"", ""});
        Row("S6 dated", FridayMarch6, "S6", 7, false, "1:0 2:1 1:1 2:2 1:2 2:3 1:3 2:4 1:4 2:5 1:5 2:6 3:7 1:7 2:8",
            QStringList{"Thu, March 12, 2026"});
        // Without a start date the weekday comes from date value 0 (a Saturday) and the day
        // number alone: day 1 ends on serial 0, a Saturday, so day 2 is a Sunday.
        Row("D7 without a start date", "", "D7", 1, true, "1:0 2:1 3:2 1:2", QStringList{"Sun, December 31, 1899"});
        // Never after the last strip of the board, even a divider.
        Row("not after the last strip", FridayMarch6, "D6", 1, false, "1:0 2:1", QStringList{});
        Row("no rule", FridayMarch6, "", 3, false, "1:0 2:1 1:1 2:2 1:2 2:3", QStringList{});
    }
    void restDays()
    {
        auto [start, rule, days, tail] = Fetch<QString, QString, int, bool>("start", "rule", "days", "tail");

        ScheduleDocument doc;
        doc.values.StartDate = start;
        doc.values.AutoRestDayRule = rule;
        for (int d = 1; d <= days; ++d) {
            AddScene(doc, QString::number(d), "1");
            AddDivider(doc);
        }
        if (tail)
            AddScene(doc, "last", "1");
        RecalculateDays(doc);
        RecalculateDays(doc); // rest days are recreated, not duplicated
        QTEST(Days(doc), "expected");

        QStringList restDates;
        for (int i = 1; i <= doc.strips.count(); ++i)
            if (doc.strips[i].isAutoRestDay())
                restDates.append(field(doc, i, StripField::SceneNumber));
        QTEST(restDates, "dates");
        // Dividers are dated only with a start date.
        QCOMPARE(field(doc, 2, StripField::SceneNumber).isEmpty(), start.isEmpty());
    }
    void fullBoardReportsOnce()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        doc.values.AutoRestDayRule = "S1234567";
        while (doc.strips.count() < MaxStrips) {
            AddScene(doc, "x", "1");
            AddDivider(doc);
        }
        RecalculateDays(doc);
        QCOMPARE(doc.strips.count(), MaxStrips);
        QCOMPARE(prompter.texts(),
                 QStringList{"Error inserting rest day divider!\r\rThe schedule can hold at most 1000 "
                             "strips; the rest days that do not fit are left out."});
    }
    void selectedPages()
    {
        ScheduleDocument doc;
        Build(doc, {"1.375", "|", "0.25"});
        doc.SelStart = 3;
        doc.SelEnd = 1; // either end may come first
        QCOMPARE(SelectedPagesText(doc), "1 5/8 pages");
        doc.SelStart = doc.SelEnd = 2;
        QCOMPARE(SelectedPagesText(doc), "");
    }
};

TB_TEST_GUILESS_MAIN(TestDayCalculation)
#include "tst_daycalculation.moc"
