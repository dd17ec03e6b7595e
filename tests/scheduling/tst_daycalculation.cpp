#include "TestSupport.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "scheduling/DayCalculation.h"

#include <QTest>

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

const QString FridayMarch6 = QStringLiteral("46087"); // Fri, March 6, 2026

} // namespace

class TestDayCalculation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void numbersAndTotals();
    void bannersCountDays();
    void datesNeedAStartDate();
    void restDays_data();
    void restDays();
    void restDaysAreRecreatedNotDuplicated();
    void weekdayRuleWithoutStartDate();
    void fullBoardReportsOnce();
    void removeStripsOfKind();
    void selectedPages();
};

void TestDayCalculation::numbersAndTotals()
{
    ScheduleDocument doc;
    RecordingStatus status;
    doc.setStatusSink(&status);
    AddScene(doc, "1", "1.375");
    AddScene(doc, "2", "0.5");
    AddDivider(doc);
    AddScene(doc, "3", "2");
    AddDivider(doc);
    AddScene(doc, "4", "7"); // after the last divider: no total anywhere
    RecalculateDays(doc);

    QCOMPARE(Days(doc), "1:0 1:0 2:1 1:1 2:2 1:2");
    QCOMPARE(field(doc, 3, StripField::PageLength), "1.875");
    QCOMPARE(field(doc, 5, StripField::PageLength), "2");
    QCOMPARE(field(doc, 5, StripField::ShootDayNumber), "2");
    QCOMPARE(field(doc, 3, StripField::SceneNumber), "");
    QCOMPARE(doc.days.dividers, 2);
    QCOMPARE(doc.days.productionDays, 2);
    QCOMPARE(status.panels.value(StatusSink::DaysPanel), " Production: 2 days.  Shoot: 2 days");

    // An empty day has a total of "0"; single precision sums read back exactly.
    ScheduleDocument tenths;
    for (int i = 0; i < 10; ++i)
        AddScene(tenths, QString::number(i), "0.1");
    AddDivider(tenths);
    AddDivider(tenths);
    RecalculateDays(tenths);
    QCOMPARE(field(tenths, 11, StripField::PageLength), legacy::SingleToText(1.0000001f));
    QCOMPARE(field(tenths, 12, StripField::PageLength), "0");
}

void TestDayCalculation::bannersCountDays()
{
    ScheduleDocument doc;
    doc.values.StartDate = FridayMarch6;
    AddScene(doc, "1", "1");
    AddDivider(doc);
    const int travel = AddBanner(doc, "TRAVEL", 3);
    const int note = AddBanner(doc, "Note", 0);
    AddScene(doc, "2", "1");
    const int last = AddDivider(doc);
    RecalculateDays(doc);

    // A banner of n days adds n production days but one shooting-day number.
    QCOMPARE(field(doc, travel, StripField::DayNumber), "4");
    QCOMPARE(field(doc, travel, StripField::ShootDayNumber), "2");
    QCOMPARE(field(doc, travel, StripField::PageLength), "0");
    QCOMPARE(field(doc, travel, StripField::SceneNumber), "Mon, March 9, 2026");
    QCOMPARE(field(doc, note, StripField::DayNumber), "4");
    QCOMPARE(field(doc, last, StripField::DayNumber), "5");
    QCOMPARE(field(doc, last, StripField::ShootDayNumber), "3");
    QCOMPARE(field(doc, last, StripField::SceneNumber), "Tue, March 10, 2026");
    QCOMPARE(doc.days.banners, 2);
    QCOMPARE(doc.days.shootingDays, 3);
}

void TestDayCalculation::datesNeedAStartDate()
{
    ScheduleDocument doc;
    AddScene(doc, "1", "1");
    const int divider = AddDivider(doc);
    doc.values.StartDate = FridayMarch6;
    RecalculateDays(doc);
    QCOMPARE(field(doc, divider, StripField::SceneNumber), "Fri, March 6, 2026");
    doc.values.StartDate.clear();
    RecalculateDays(doc);
    QCOMPARE(field(doc, divider, StripField::SceneNumber), "");
}

void TestDayCalculation::restDays_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("days");          // shooting days on the board, one divider each
    QTest::addColumn<QString>("expected");  // kind:day of every strip
    QTest::addColumn<QStringList>("dates"); // dates of the rest days, in order

    // Friday start, Saturday and Sunday off: day 1 Friday, rest on 2 and 3, day 4 Monday.
    QTest::newRow("D67 from a Friday") << FridayMarch6 << "D67" << 3 << "1:0 2:1 3:2 3:3 1:3 2:4 1:4 2:5"
                                       << QStringList{"Sat, March 7, 2026", "Sun, March 8, 2026"};
    // Every seventh day from the start is a rest day.
    QTest::newRow("S6") << ""
                        << "S6" << 14
                        << "1:0 2:1 1:1 2:2 1:2 2:3 1:3 2:4 1:4 2:5 1:5 2:6 3:7 1:7 2:8 1:8 2:9 1:9 2:10 1:10 2:11 "
                           "1:11 2:12 1:12 2:13 3:14 1:14 2:15 1:15 2:16"
                        << QStringList{"", ""};
    QTest::newRow("S6 dated") << FridayMarch6 << "S6" << 7
                              << "1:0 2:1 1:1 2:2 1:2 2:3 1:3 2:4 1:4 2:5 1:5 2:6 3:7 1:7 2:8"
                              << QStringList{"Thu, March 12, 2026"};
    // Never after the last strip of the board, even a divider.
    QTest::newRow("not after the last strip") << FridayMarch6 << "D6" << 1 << "1:0 2:1" << QStringList{};
    QTest::newRow("no rule") << FridayMarch6 << "" << 3 << "1:0 2:1 1:1 2:2 1:2 2:3" << QStringList{};
}

void TestDayCalculation::restDays()
{
    QFETCH(QString, start);
    QFETCH(QString, rule);
    QFETCH(int, days);
    QFETCH(QString, expected);
    QFETCH(QStringList, dates);

    ScheduleDocument doc;
    doc.values.StartDate = start;
    doc.values.AutoRestDayRule = rule;
    for (int d = 1; d <= days; ++d) {
        AddScene(doc, QString::number(d), "1");
        AddDivider(doc);
    }
    RecalculateDays(doc);
    QCOMPARE(Days(doc), expected);

    QStringList restDates;
    for (int i = 1; i <= doc.strips.count(); ++i)
        if (doc.strips[i].isAutoRestDay())
            restDates.append(field(doc, i, StripField::SceneNumber));
    QCOMPARE(restDates, dates);
}

void TestDayCalculation::restDaysAreRecreatedNotDuplicated()
{
    ScheduleDocument doc;
    doc.values.StartDate = FridayMarch6;
    doc.values.AutoRestDayRule = "D71"; // Sunday and Monday off: two rest days in a row
    for (int d = 1; d <= 3; ++d) {
        AddScene(doc, QString::number(d), "1");
        AddDivider(doc);
    }
    AddScene(doc, "4", "1");
    RecalculateDays(doc);
    const QString once = Kinds(doc);
    RecalculateDays(doc);
    QCOMPARE(Kinds(doc), once);
    // Fri 1, Sat 2, then Sun and Mon are rest days 3 and 4, Tue is day 5.
    QCOMPARE(Days(doc), "1:0 2:1 1:1 2:2 3:3 3:4 1:4 2:5 1:5");
    QCOMPARE(field(doc, 6, StripField::SceneNumber), "Mon, March 9, 2026");
    QCOMPARE(field(doc, 8, StripField::SceneNumber), "Tue, March 10, 2026");
}

void TestDayCalculation::weekdayRuleWithoutStartDate()
{
    // Without a start date the weekday comes from date value 0 (a Saturday) and the
    // day number alone: day 1 ends on serial 0, a Saturday (7).
    ScheduleDocument doc;
    doc.values.AutoRestDayRule = "D7";
    AddScene(doc, "1", "1");
    AddDivider(doc);
    AddScene(doc, "2", "1");
    RecalculateDays(doc);
    QCOMPARE(Kinds(doc), "1 2 3 1");
    QCOMPARE(field(doc, 2, StripField::SceneNumber), "");
    QCOMPARE(field(doc, 3, StripField::SceneNumber), "Sun, December 31, 1899");
}

void TestDayCalculation::fullBoardReportsOnce()
{
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    doc.values.AutoRestDayRule = "S1234567";
    while (doc.strips.count() < MaxStrips) {
        AddScene(doc, "x", "1");
        AddDivider(doc);
    }
    RecalculateDays(doc);
    QCOMPARE(doc.strips.count(), MaxStrips);
    QCOMPARE(prompter.texts(), QStringList{"Error inserting rest day divider!"});
}

void TestDayCalculation::removeStripsOfKind()
{
    ScheduleDocument doc;
    AddScene(doc, "1", "1");
    AddDivider(doc);
    AddBanner(doc, "b", 1);
    AddScene(doc, "2", "1");
    AddDivider(doc);
    RemoveStripsOfKind(doc, StripKinds::DayDivider);
    QCOMPARE(Kinds(doc), "1 4 1");
    QCOMPARE(field(doc, 3, StripField::SceneNumber), "2");
    RemoveStripsOfKind(doc, StripKinds::Scene);
    QCOMPARE(Kinds(doc), "4");
    RemoveStripsOfKind(doc, StripKinds::Banner);
    QCOMPARE(doc.strips.count(), 0);
}

void TestDayCalculation::selectedPages()
{
    ScheduleDocument doc;
    RecordingStatus status;
    doc.setStatusSink(&status);
    AddScene(doc, "1", "1.375");
    AddDivider(doc);
    AddScene(doc, "2", "0.25");
    doc.SelStart = 3;
    doc.SelEnd = 1; // either end may come first
    UpdateCommandsAndStatus(doc);
    QCOMPARE(status.panels.value(StatusSink::PagesPanel), "1 5/8 pages");
    doc.SelStart = 2;
    doc.SelEnd = 2;
    UpdateCommandsAndStatus(doc);
    QCOMPARE(status.panels.value(StatusSink::PagesPanel), "");
}

QTEST_GUILESS_MAIN(TestDayCalculation)
#include "tst_daycalculation.moc"
