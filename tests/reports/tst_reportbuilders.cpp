// The values the report builders push into their templates, read back through the trace.

#include "TestSupport.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "reports/ReportBuilders.h"
#include "scheduling/DayCalculation.h"

#include <QFile>
#include <QTest>

using namespace tb;
using namespace tb::test;

namespace {

QString templatePath(const char *name)
{
    return qEnvironmentVariable("TB_SOURCE_DIR") + QStringLiteral("/templates/") + QString::fromLatin1(name);
}

// Every value pushed, found in the template or not, as (name, value) in order.
struct Pushes
{
    QList<std::pair<QString, QString>> items;
    TraceCallback callback()
    {
        return [this](const QString &line) {
            static const QString added = QStringLiteral("AddNamedValue(");
            static const QString missing = QStringLiteral("AlField ");
            if (line.startsWith(added)) {
                const qsizetype close = line.indexOf(QStringLiteral(") = "));
                items.append({line.mid(added.size(), close - added.size()), line.mid(close + 4)});
            } else if (line.startsWith(missing)) {
                const qsizetype eq = line.indexOf(QStringLiteral(" = not found for value: "));
                items.append({line.mid(missing.size(), eq - missing.size()), line.mid(eq + 24)});
            }
        };
    }
    QStringList values(const QString &name) const
    {
        QStringList list;
        for (const auto &[n, v] : items)
            if (n == name)
                list.append(v);
        return list;
    }
    QStringList names() const
    {
        QStringList list;
        for (const auto &item : items)
            list.append(item.first);
        return list;
    }
};

void setStart(ScheduleDocument &doc, QDate date)
{
    doc.values.StartDate = legacy::FloatToText(legacy::DateToSerial(date));
}

int scene(ScheduleDocument &doc, const QString &number, const QString &pages = QStringLiteral("1"))
{
    const int row = AddScene(doc, number, pages);
    doc.strips[row].set(StripField::Location, QStringLiteral("HARBOUR"));
    doc.strips[row].set(StripField::ScriptPage, number);
    doc.strips[row].set(StripField::Synopsis, QStringLiteral("Synopsis ") + number);
    return row;
}

QString longDate(QDate date)
{
    return legacy::FormatDate(date, QString::fromLatin1(legacy::LongDatePattern));
}

const QDate Start(2027, 4, 5);

} // namespace

class TestReportBuilders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void dayRangeTwoToTwo();
    void shootingDaysOnlyHidesRestDays();
    void bannerDaysGetRowsOfTheirOwn();
    void sceneWithoutElements();
    void twelveElementLinesInThreeColumns();
    void rowValuesInOrder();
    void locationLine_data();
    void locationLine();
    void allStartsAtTheFromDay();
    void noStripOnTheFirstDay();
    void dayFieldThatIsNoNumber();
    void missingScheduleTemplate();
    void breakdownCategoryFieldsByTag();
    void breakdownSpecificSheets();
    void breakdownMissingTemplate();
    void elementSummaryDaysUsed();
    void elementSummaryLeavesOutUnusedAndUnticked();
    void elementSummaryMissingTemplate();
};

void TestReportBuilders::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestReportBuilders::dayRangeTwoToTwo()
{
    ScheduleDocument doc;
    setStart(doc, Start);
    scene(doc, "1");
    AddDivider(doc);
    scene(doc, "2");
    scene(doc, "3");
    AddDivider(doc);
    scene(doc, "4");
    AddDivider(doc);
    RecalculateDays(doc);
    Pushes pushes;
    ScheduleReportOptions options;
    options.allDays = false;
    options.fromDay = 2;
    options.toDay = 2;
    auto built = CreateSchedulePages(doc, options, {pushes.callback(), nullptr, templatePath("ShootSch1.dfm")});
    QVERIFY2(built.ok(), qPrintable(built.message()));
    QCOMPARE(pushes.values("SceneField"), QStringList({"Scene: 2", "Scene: 3"}));
    QCOMPARE(pushes.values("DayField").first(), "SHOOTING DAY 2 : " + longDate(Start.addDays(1)));
    QCOMPARE(pushes.values("GrandTotal"), QStringList{"End (Days 2 to 2)"});
    QCOMPARE(built->rows, 2);
}

void TestReportBuilders::shootingDaysOnlyHidesRestDays()
{
    ScheduleDocument doc;
    setStart(doc, Start);
    doc.values.AutoRestDayRule = QStringLiteral("S2"); // a rest day after the second day
    scene(doc, "1");
    AddDivider(doc);
    scene(doc, "2");
    AddDivider(doc);
    scene(doc, "3");
    AddDivider(doc);
    RecalculateDays(doc);
    QCOMPARE(Kinds(doc), QStringLiteral("1 2 1 2 3 1 2"));

    Pushes shooting;
    QVERIFY(CreateSchedulePages(doc, {}, {shooting.callback(), nullptr, templatePath("ShootSch1.dfm")}).ok());
    QCOMPARE(shooting.values("DayField"),
             QStringList({"SHOOTING DAY 1 : " + longDate(Start), "SHOOTING DAY 2 : " + longDate(Start.addDays(1)),
                          "SHOOTING DAY 3 : " + longDate(Start.addDays(3))}));
    QCOMPARE(shooting.values("GroupEndField"), QStringList({"END OF DAY 1", "END OF DAY 2", "END OF DAY 3"}));

    Pushes production;
    ScheduleReportOptions all;
    all.shootingDaysOnly = false;
    QVERIFY(CreateSchedulePages(doc, all, {production.callback(), nullptr, templatePath("ShootSch1.dfm")}).ok());
    QCOMPARE(production.values("DayField"),
             QStringList({"PRODUCTION DAY 1 : " + longDate(Start), "PRODUCTION DAY 2 : " + longDate(Start.addDays(1)),
                          "PRODUCTION DAY 3 : " + longDate(Start.addDays(2)) + "        REST DAY",
                          "PRODUCTION DAY 4 : " + longDate(Start.addDays(3))}));
    QCOMPARE(production.values("SceneField"), QStringList({"Scene: 1", "Scene: 2", "REST DAY", "Scene: 3"}));
    QCOMPARE(production.values("GroupEndField").at(2), QStringLiteral("END OF DAY 3"));
    // The rest-day row is blank elsewhere, each field a single blank.
    for (const char *name : {"PageField", "PagesField", "LocationField", "SynopsisField", "CatagoryField1",
                             "CatagoryField2", "CatagoryField3", "CastField"})
        QCOMPARE(production.values(QString::fromLatin1(name)).at(2), QStringLiteral(" "));
}

void TestReportBuilders::bannerDaysGetRowsOfTheirOwn()
{
    ScheduleDocument doc;
    setStart(doc, Start);
    scene(doc, "1");
    AddDivider(doc);
    AddBanner(doc, QStringLiteral("TRAVEL TO ST IVES"), 2);
    AddBanner(doc, QStringLiteral("A NOTE"), 0);
    scene(doc, "2");
    AddDivider(doc);
    RecalculateDays(doc);
    Pushes pushes;
    ScheduleReportOptions options;
    options.shootingDaysOnly = false;
    QVERIFY(CreateSchedulePages(doc, options, {pushes.callback(), nullptr, templatePath("ShootSch1.dfm")}).ok());
    QCOMPARE(pushes.values("DayField"),
             QStringList({"PRODUCTION DAY 1 : " + longDate(Start),
                          "PRODUCTION DAY 2 : " + longDate(Start.addDays(1)) + "        TRAVEL TO ST IVES",
                          "PRODUCTION DAY 3 : " + longDate(Start.addDays(2)) + "        TRAVEL TO ST IVES",
                          "PRODUCTION DAY 4 : " + longDate(Start.addDays(3))}));
    QCOMPARE(pushes.values("SceneField"),
             QStringList({"Scene: 1", "TRAVEL TO ST IVES", "TRAVEL TO ST IVES", "Scene: 2"}));
    // Shooting days only: the banner days print nothing; the banner took one day number.
    Pushes shooting;
    QVERIFY(CreateSchedulePages(doc, {}, {shooting.callback(), nullptr, templatePath("ShootSch1.dfm")}).ok());
    QCOMPARE(shooting.values("DayField"),
             QStringList({"SHOOTING DAY 1 : " + longDate(Start), "SHOOTING DAY 3 : " + longDate(Start.addDays(3))}));
}

void TestReportBuilders::sceneWithoutElements()
{
    ScheduleDocument doc;
    setStart(doc, Start);
    scene(doc, "1");
    RecalculateDays(doc);
    Pushes pushes;
    QVERIFY(CreateSchedulePages(doc, {}, {pushes.callback(), nullptr, templatePath("Oneline1.dfm")}).ok());
    QCOMPARE(pushes.values("CastField"), QStringList{" "});
    QCOMPARE(pushes.values("CatagoryField1"), QStringList{" "});
    QCOMPARE(pushes.values("CatagoryField2"), QStringList{" "});
    QCOMPARE(pushes.values("CatagoryField3"), QStringList{" "});
}

void TestReportBuilders::twelveElementLinesInThreeColumns()
{
    ScheduleDocument doc;
    setStart(doc, Start);
    const int row = scene(doc, "1");
    QList<int> elements;
    elements << AddElement(doc, "ANN", 1, "1") << AddElement(doc, "BOB", 1, "4") << AddElement(doc, "CY", 1, "12")
             << AddElement(doc, "VAN", 4) << AddElement(doc, "LAMP", 5) << AddElement(doc, "MAP", 5)
             << AddElement(doc, "ROPE", 5) << AddElement(doc, "RAIN", 10) << AddElement(doc, "UNUSED", 2);
    // Assigned out of order: each list follows the element table.
    for (int e : {8, 3, 7, 1, 6, 4, 5, 2})
        AddAssignment(doc, row, elements[e - 1]);
    RecalculateDays(doc);
    Pushes pushes;
    QVERIFY(CreateSchedulePages(doc, {}, {pushes.callback(), nullptr, templatePath("ShootSch1.dfm")}).ok());
    QCOMPARE(pushes.values("CastField"), QStringList{"Cast:  1  4  12"});
    // 12 lines: a third is 4. A list is never split; the test comes before each list.
    QCOMPARE(pushes.values("CatagoryField1"), QStringList{"CAST\r\n    1 ANN\r\n    4 BOB\r\n    12 CY\r\n \r\n"});
    QCOMPARE(pushes.values("CatagoryField2"),
             QStringList{"VEHICLES\r\n    VAN\r\n \r\nPROPS\r\n    LAMP\r\n    MAP\r\n    ROPE\r\n \r\n"});
    QCOMPARE(pushes.values("CatagoryField3"), QStringList{"SPECIAL FX\r\n    RAIN\r\n \r\n"});
}

void TestReportBuilders::rowValuesInOrder()
{
    ScheduleDocument doc;
    setStart(doc, Start);
    const int row = scene(doc, "12A", "1.375");
    scene(doc, "13", "0.5");
    AddDivider(doc);
    RecalculateDays(doc);
    (void)row;
    Pushes pushes;
    QVERIFY(CreateSchedulePages(doc, {}, {pushes.callback(), nullptr, templatePath("ShootSch1.dfm")}).ok());
    QCOMPARE(pushes.names().mid(0, 14),
             QStringList({"PictureField", "CompanyField", "DayField", "GroupEndField", "SceneField", "PageField",
                          "PagesField", "LocationField", "SynopsisField", "CastField", "CatagoryField1",
                          "CatagoryField2", "CatagoryField3", "DayPagesField"}));
    QCOMPARE(pushes.names().last(), QStringLiteral("GrandTotal"));
    QCOMPARE(pushes.values("SceneField").first(), QStringLiteral("Scene: 12A"));
    QCOMPARE(pushes.values("PageField").first(), QStringLiteral("Page: 12A"));
    QCOMPARE(pushes.values("PagesField"), QStringList({"Pages: 1 3/8", "Pages: 4/8"}));
    QCOMPARE(pushes.values("DayPagesField"), QStringList({"Total pages: 1 7/8", "Total pages: 1 7/8"}));
    QCOMPARE(pushes.values("GrandTotal"), QStringList{"End"});
}

void TestReportBuilders::locationLine_data()
{
    QTest::addColumn<QString>("intExt");
    QTest::addColumn<QString>("dayNight");
    QTest::addColumn<QString>("line");
    QTest::newRow("int day") << "I"
                             << "D"
                             << "INT - HARBOUR - DAY";
    QTest::newRow("ext night") << "E"
                               << "N"
                               << "EXT - HARBOUR - NIGHT";
    QTest::newRow("int/ext dawn") << "I/E"
                                  << "DWN"
                                  << "INT/EXT - HARBOUR - DAWN";
    QTest::newRow("dusk only") << ""
                               << "DSK"
                               << "HARBOUR - DUSK";
    QTest::newRow("neither") << "X"
                             << "Y"
                             << "HARBOUR";
}

void TestReportBuilders::locationLine()
{
    QFETCH(QString, intExt);
    QFETCH(QString, dayNight);
    QFETCH(QString, line);
    ScheduleDocument doc;
    const int row = scene(doc, "1");
    doc.strips[row].set(StripField::IntExt, intExt);
    doc.strips[row].set(StripField::DayNight, dayNight);
    RecalculateDays(doc);
    Pushes pushes;
    QVERIFY(CreateSchedulePages(doc, {}, {pushes.callback(), nullptr, templatePath("ShootSch1.dfm")}).ok());
    QCOMPARE(pushes.values("LocationField"), QStringList{line});
}

void TestReportBuilders::allStartsAtTheFromDay()
{
    ScheduleDocument doc;
    setStart(doc, Start);
    for (int day = 1; day <= 4; ++day) {
        scene(doc, QString::number(day));
        AddDivider(doc);
    }
    RecalculateDays(doc);
    Pushes pushes;
    ScheduleReportOptions options; // "All", but From says 3: the start strip is still found from it
    options.fromDay = 3;
    options.toDay = 3;
    QVERIFY(CreateSchedulePages(doc, options, {pushes.callback(), nullptr, templatePath("ShootSch1.dfm")}).ok());
    QCOMPARE(pushes.values("SceneField"), QStringList({"Scene: 3", "Scene: 4"}));
    QCOMPARE(pushes.values("GrandTotal"), QStringList{"End"});
}

void TestReportBuilders::noStripOnTheFirstDay()
{
    ScheduleDocument doc;
    scene(doc, "1");
    AddDivider(doc);
    RecalculateDays(doc);
    Pushes pushes;
    ScheduleReportOptions options;
    options.allDays = false;
    options.fromDay = 5;
    options.toDay = 6;
    auto built = CreateSchedulePages(doc, options, {pushes.callback(), nullptr, templatePath("ShootSch1.dfm")});
    QVERIFY(built.ok());
    QVERIFY(built->nothingToPrint);
    QVERIFY(pushes.values("SceneField").isEmpty());
}

void TestReportBuilders::dayFieldThatIsNoNumber()
{
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    scene(doc, "1");
    scene(doc, "2");
    RecalculateDays(doc);
    doc.strips[2].set(StripField::DayNumber, QStringLiteral("x"));
    auto built = CreateSchedulePages(doc, {}, {{}, nullptr, templatePath("ShootSch1.dfm")});
    QVERIFY(!built.ok());
    QCOMPARE(prompter.texts(), QStringList{"'x' is not a valid integer value"});
}

void TestReportBuilders::missingScheduleTemplate()
{
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    RecordingStatus status;
    doc.setStatusSink(&status);
    QStringList trace;
    const QString path = TempPath("ShootSch1.dfm");
    ScheduleReportOptions options;
    options.oneLine = true;
    auto built = CreateSchedulePages(doc, options, {[&](const QString &l) { trace.append(l); }, nullptr, path});
    QVERIFY(!built.ok());
    QCOMPARE(prompter.texts(), QStringList{"Could not load schedule template file (" + path +
                                           "). Please try re-installing Torvanbridge."});
    QCOMPARE(trace.size(), 1); // the loader's own detail
    QVERIFY(!status.busy);     // the hourglass is restored
}

void TestReportBuilders::breakdownCategoryFieldsByTag()
{
    const QString path = TempPath("TaggedBreakdown.dfm");
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("object F: TForm\n  object R: TAlReport\n  end\n  object D: tAlBand\n    BandType = alr_Detail\n"
            "    object BSField: TAlField\n    end\n"
            "    object CastName: TAlField\n      Tag = 1\n    end\n"
            "    object Ordinary: TAlField\n      Tag = 100\n    end\n"
            "    object CastList: TAlField\n      Tag = 101\n    end\n"
            "    object PropList: TAlField\n      Tag = 105\n    end\n"
            "  end\nend\n");
    f.close();
    ScheduleDocument doc;
    const int row = scene(doc, "7");
    doc.strips[row].set(StripField::Location, QStringLiteral("QUAY"));
    doc.strips[row].set(StripField::Notes, QStringLiteral("\"Rain at dusk\",Boats"));
    doc.strips[row].set(StripField::DayNight, QStringLiteral("N"));
    const int ann = AddElement(doc, "ANN", 1, "1");
    const int bob = AddElement(doc, "BOB", 1, "2");
    AddElement(doc, "LAMP", 5);
    AddAssignment(doc, row, bob);
    AddAssignment(doc, row, ann);
    Pushes pushes;
    auto built = CreateBreakdownPages(doc, {}, {pushes.callback(), nullptr, path});
    QVERIFY2(built.ok(), qPrintable(built.message()));
    QCOMPARE(pushes.values("BSField"), QStringList{"1"});
    QCOMPARE(pushes.values("CastName"), QStringList{"CAST"});
    QCOMPARE(pushes.values("CastList"), QStringList{"ANN\rBOB\r"}); // element order, not assignment order
    QCOMPARE(pushes.values("PropList"), QStringList{""});
    QVERIFY(pushes.values("Ordinary").isEmpty()); // tag 100 is an ordinary field
    QCOMPARE(pushes.values("SynopsisField"), QStringList{"QUAY\rSynopsis 7"});
    QCOMPARE(pushes.values("NotesField"), QStringList{"Rain at dusk\r\nBoats\r\n"});
    QCOMPARE(pushes.values("DNField"), QStringList{"N"});
    QCOMPARE(pushes.values("NotesCat"), QStringList{"NOTES"});
}

void TestReportBuilders::breakdownSpecificSheets()
{
    ScheduleDocument doc;
    doc.values.CompanyAddress = QStringLiteral("\"1 Quay Street\",Penzance");
    const int a = scene(doc, "1");
    const int divider = AddDivider(doc);
    const int b = scene(doc, "2");
    const int c = scene(doc, "3");
    RecalculateDays(doc);
    const QList<BreakdownListItem> items = BreakdownListItems(doc);
    QCOMPARE(items.size(), 3);
    QCOMPARE(items[1].row, b);
    QCOMPARE(items[1].text, QStringLiteral("2 - HARBOUR  Synopsis 2"));

    Pushes none;
    BreakdownReportOptions nothing;
    nothing.all = false;
    auto empty = CreateBreakdownPages(doc, nothing, {none.callback(), nullptr, templatePath("Breakdown1.dfm")});
    QVERIFY(empty.ok());
    QVERIFY(empty->nothingToPrint);
    QVERIFY(none.values("BSField").isEmpty());
    QCOMPARE(none.values("AddressField"), QStringList{"1 Quay Street\r\nPenzance\r\n"});

    Pushes some;
    BreakdownReportOptions chosen;
    chosen.all = false;
    chosen.rows = {c, divider, a};
    auto built = CreateBreakdownPages(doc, chosen, {some.callback(), nullptr, templatePath("Breakdown1.dfm")});
    QVERIFY(built.ok());
    QCOMPARE(built->rows, 2);
    QCOMPARE(some.values("SceneField"), QStringList({"3", "1"}));
    QCOMPARE(some.values("CatName1"), QStringList({"CAST", "CAST"}));
}

void TestReportBuilders::breakdownMissingTemplate()
{
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    const QString path = TempPath("nothing-here.dfm");
    QVERIFY(!CreateBreakdownPages(doc, {}, {{}, nullptr, path}).ok());
    QCOMPARE(prompter.texts(), QStringList{"Could not load breakdown sheet template file (" + path +
                                           "). Please try re-installing Torvanbridge."});
}

void TestReportBuilders::elementSummaryDaysUsed()
{
    ScheduleDocument doc;
    setStart(doc, Start);
    const int boat = AddElement(doc, "BOAT", 4, "B1");
    doc.elements[boat].set(ElementField::PersonName, QStringLiteral("Mary Ellen"));
    doc.elements[boat].set(ElementField::PrintOnBoard, QStringLiteral("1"));
    doc.elements[boat].set(ElementField::OtherInfo, QStringLiteral("\"Needs a skipper\",Insured"));
    for (int day = 1; day <= 7; ++day) {
        const int row = scene(doc, QString::number(day));
        if (day == 2 || day == 3 || day == 7)
            AddAssignment(doc, row, boat);
        if (day == 3) { // a second scene the same day is no second day used
            AddAssignment(doc, scene(doc, "3B"), boat);
        }
        AddDivider(doc);
    }
    RecalculateDays(doc);
    Pushes pushes;
    ElementSummaryOptions options;
    options.categories = {4};
    auto built =
        CreateElementSummaryPages(doc, options, {pushes.callback(), nullptr, templatePath("ElementSummary1.dfm")});
    QVERIFY2(built.ok(), qPrintable(built.message()));
    const auto shortDate = [](QDate d) { return legacy::FormatDate(d, QString::fromLatin1(legacy::ShortDatePattern)); };
    QCOMPARE(pushes.values("FirstField"), QStringList{shortDate(Start.addDays(1))});
    QCOMPARE(pushes.values("LastField"), QStringList{shortDate(Start.addDays(6))});
    QCOMPARE(pushes.values("TotalField"), QStringList{"6"});
    QCOMPARE(pushes.values("UsedField"), QStringList{"3"});
    QCOMPARE(pushes.values("NameField"), QStringList{"B1  BOAT"});
    QCOMPARE(pushes.values("DescField"), QStringList{"Mary Ellen"});
    QCOMPARE(pushes.values("TypeField"), QStringList{"Vehicles"});
    QCOMPARE(pushes.values("NotesField"), QStringList{"Needs a skipper\r\nInsured\r\n"});
    QCOMPARE(pushes.values("PBField"), QStringList{"Yes"});
    QCOMPARE(pushes.values("HoldField"), QStringList{"No"});
    QCOMPARE(pushes.names().mid(0, 7), QStringList({"PictureField", "AddressField", "CompanyField", "RefField",
                                                    "DirField", "ProdField", "HeaderField"}));
}

void TestReportBuilders::elementSummaryLeavesOutUnusedAndUnticked()
{
    ScheduleDocument doc;
    doc.values.PictureTitle = QStringLiteral("Harbour Lights");
    const int row = scene(doc, "1");
    const int ann = AddElement(doc, "ANN", 1, "1");
    AddElement(doc, "NOBODY", 1, "2");
    const int lamp = AddElement(doc, "LAMP", 5);
    AddAssignment(doc, row, ann);
    AddAssignment(doc, row, lamp);
    RecalculateDays(doc);
    Pushes pushes;
    auto built = CreateElementSummaryPages(doc, {}, {pushes.callback(), nullptr, templatePath("ElementSummary1.dfm")});
    QVERIFY(built.ok());
    QCOMPARE(pushes.values("NameField"), QStringList{"1  ANN"}); // cast only, and only who is used
    QCOMPARE(pushes.values("HeaderField"), QStringList{"Element summary - \"Harbour Lights\""});
    QCOMPARE(built->rows, 1);
}

void TestReportBuilders::elementSummaryMissingTemplate()
{
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    QVERIFY(!CreateElementSummaryPages(doc, {}, {{}, nullptr, TempPath("gone.dfm")}).ok());
    // This message names no file.
    QCOMPARE(prompter.texts(), QStringList{"Could not load element summary sheet template file. Please try "
                                           "re-installing Torvanbridge."});
}

QTEST_MAIN(TestReportBuilders)
#include "tst_reportbuilders.moc"
