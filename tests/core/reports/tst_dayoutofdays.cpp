#include "TestSupport.h"

#include "document/DayCalculation.h"
#include "reports/DayOutOfDays.h"
#include "reports/DayOutOfDaysPrint.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPdfWriter>

using namespace tb;
using namespace tb::test;

namespace {

// A board of `days` production days, each one scene and a divider; element 1 (cast,
// "AB - Anna Bell") is in the scenes of the days listed (counted from 1).
void buildBoard(ScheduleDocument &doc, int days, const QList<int> &workDays, bool holdRule)
{
    AddElement(doc, QStringLiteral("Anna Bell"), 1, QStringLiteral("AB"));
    if (holdRule)
        doc.elements[1].set(ElementField::HoldRule, QStringLiteral("SAG"));
    for (int day = 1; day <= days; ++day) {
        const int scene = AddScene(doc, QString::number(day), QStringLiteral("1"));
        if (workDays.contains(day))
            AddAssignment(doc, scene, 1);
        AddDivider(doc);
    }
    RecalculateDays(doc);
}

QList<int> numbers(const QString &text)
{
    QList<int> list;
    for (const QString &item : text.split(u',', Qt::SkipEmptyParts))
        list.append(item.toInt());
    return list;
}

} // namespace

class TestDayOutOfDays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void statusCodes_data()
    {
        // expected: day cells joined by "|"
        Columns<int, QString, int, bool, bool, QString>("days", "work", "threshold", "holdRule", "showHolds",
                                                        "expected");

        Row("single day", 1, "1", 10, false, true, "SWF");
        Row("single day among others", 3, "2", 10, false, true, "|SWF|");
        Row("three empty days are not fewer than 3", 6, "1,2,6", 3, true, true, "SW|WD||||PWF");
        Row("two empty days held", 5, "1,2,5", 3, true, true, "SW|W|H|H|WF");
        Row("held gap without the hold rule stays blank", 5, "1,2,5", 3, false, true, "SW|W|||WF");
        Row("hold days hidden", 5, "1,2,5", 3, true, false, "SW|W|||WF");
        Row("gap equal to threshold drops", 5, "1,2,5", 2, true, true, "SW|WD|||PWF");
        Row("two drops, last becomes F", 7, "1,4,7", 1, false, true, "SWD|||PWD|||PWF");
        Row("on no scene", 3, "", 10, true, true, "||");
    }
    void statusCodes()
    {
        auto [days, work, threshold, holdRule, showHolds, expected] = Fetch<int, QString, int, bool, bool, QString>(
            "days", "work", "threshold", "holdRule", "showHolds", "expected");

        ScheduleDocument doc;
        doc.values.HoldDays = threshold;
        buildBoard(doc, days, numbers(work), holdRule);
        DayOutOfDaysOptions options;
        options.showHolds = showHolds;
        const DayOutOfDaysGrid grid = BuildDayOutOfDays(doc, options);

        QCOMPARE(grid.dayColumns, days);
        QCOMPARE(grid.cells.at(3).join(u'|'), "AB - Anna Bell|" + expected);
        QCOMPARE(grid.workDays.at(0), int(numbers(work).size()));
        QCOMPARE(grid.holdDays.at(0), int(expected.count(u'H')));
    }
    void titleRowsDaysAndSpreadsheet()
    {
        ScheduleDocument doc;
        doc.values.StartDate = QStringLiteral("46087"); // Friday 6 March 2026
        buildBoard(doc, 3, {1}, false);
        doc.elements[1].set(ElementField::Description, QStringLiteral("Bell, \"Annie\""));
        const DayOutOfDaysGrid grid = BuildDayOutOfDays(doc);
        QCOMPARE(grid.cells.at(0), (QStringList{" Shooting day:", "1", "2", "3"}));
        QCOMPARE(grid.cells.at(1), (QStringList{" Date:", "6/3", "7/3", "8/3"}));
        QCOMPARE(grid.cell(2, 0), QStringLiteral(" Day of week:"));
        QCOMPARE(grid.cell(2, 1), QLocale().dayName(5, QLocale::ShortFormat));
        // The spreadsheet quotes what needs it; each row ends in a line break.
        const QString csv = DayOutOfDaysCsv(grid);
        QCOMPARE(csv.split(u'\n').at(3), QStringLiteral("\"AB - Bell, \"\"Annie\"\"\",SWF,,"));
        QVERIFY(csv.endsWith(u'\n'));
        QCOMPARE(csv.count(u'\n'), 4);

        // A board that does not end with a divider: its last day has no column.
        ScheduleDocument open;
        buildBoard(open, 2, {1, 2}, false);
        open.strips.setCount(open.strips.count() - 1);
        QCOMPARE(BuildDayOutOfDays(open).dayColumns, 1);
    }
    void totalsAndCategory()
    {
        ScheduleDocument doc;
        doc.values.HoldDays = 3;
        buildBoard(doc, 5, {1, 2, 5}, true);
        AddElement(doc, QStringLiteral("Red van"), 5, QStringLiteral("V1"));
        AddAssignment(doc, 3, 2); // the scene of day 2

        DayOutOfDaysOptions options;
        options.totals = true;
        DayOutOfDaysGrid grid = BuildDayOutOfDays(doc, options);
        QCOMPARE(grid.rowCount(), 4); // the van is no cast member
        QCOMPARE(grid.columnCount(), 1 + 5 + 3);
        QCOMPARE(grid.cells.at(0).mid(6), (QStringList{"Work", "Hold", "Total"}));
        QCOMPARE(grid.cells.at(3).mid(6), (QStringList{"3", "2", "5"}));

        options.category = 5;
        grid = BuildDayOutOfDays(doc, options);
        QCOMPARE(grid.rowCount(), 4);
        QCOMPARE(grid.cell(3, 0), QStringLiteral("V1 - Red van"));
        QCOMPARE(grid.cells.at(3).mid(1), (QStringList{"", "SWF", "", "", "", "1", "0", "1"}));
    }
    void printedSlices()
    {
        // 60 days and 70 cast rows on A4 landscape at 300 dpi: 12-dot millimetres, so a
        // page is 3390 dots wide and 2362 high; the first slice holds the name column and
        // 20 days, later slices 23 days; 70 rows and the titles need two pages a slice.
        ScheduleDocument doc;
        buildBoard(doc, 60, {1, 30, 60}, false);
        for (int i = 0; i < 69; ++i)
            AddElement(doc, QStringLiteral("Extra %1").arg(i), 1, QStringLiteral("X"));
        const DayOutOfDaysGrid grid = BuildDayOutOfDays(doc);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setResolution(300);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, QMarginsF(5, 5, 5, 5),
                                         QPageLayout::Millimeter));
        const DayOutOfDaysPrintResult printed = PrintDayOutOfDays(grid, {}, writer);
        QCOMPARE(printed.slices, 3); // 20 + 23 + 17 days
        QCOMPARE(printed.pages, 6);
    }
};

TB_TEST_MAIN(TestDayOutOfDays)
#include "tst_dayoutofdays.moc"
