// The values the report builders push into their templates, read back through the trace.

#include "TestSupport.h"

#include "document/DayCalculation.h"
#include "document/LegacyText.h"
#include "reports/ReportBuilders.h"
#include "reports/TemplateFields.h"

#include <QRegularExpression>

#include <memory>

using namespace tb;
using namespace tb::test;

namespace {

QString templatePath(const QString &name)
{
    return QStringLiteral(TB_SOURCE_DIR) + QStringLiteral("/templates/") + name;
}

// Every value pushed, found in the template or not, as (name, value) in order.
struct Pushes
{
    QStringList names;
    QStringList pushed;

    // A build context that traces into these lists, with the template of that file name.
    ReportBuildContext context(const QString &file = QStringLiteral("ShootSch1.dfm"))
    {
        static const QRegularExpression line(
            QStringLiteral(R"(^(?:AddNamedValue\((\w+)\) = |AlField (\w+) = not found for value: )(.*)$)"),
            QRegularExpression::DotMatchesEverythingOption);
        auto trace = [this](const QString &text) {
            const QRegularExpressionMatch m = line.match(text);
            if (m.hasMatch()) {
                names.append(m.captured(1) + m.captured(2));
                pushed.append(m.captured(3));
            }
        };
        return {trace, nullptr, file.contains(u'/') ? file : templatePath(file)};
    }
    QStringList values(const QString &name) const
    {
        QStringList list;
        for (int i = 0; i < names.size(); ++i)
            if (names[i] == name)
                list.append(pushed[i]);
        return list;
    }
    // The values of each name, a name's values joined by "|".
    QStringList valuesOf(const QStringList &names) const
    {
        QStringList list;
        for (const QString &name : names)
            list.append(values(name).join(u'|'));
        return list;
    }
};

const QDate Start(2027, 4, 5);

QString longDate(int day)
{
    return legacy::FormatDate(Start.addDays(day), QString::fromLatin1(legacy::LongDatePattern));
}

int scene(ScheduleDocument &doc, const QString &number, const QString &pages = QStringLiteral("1"))
{
    const int row = AddScene(doc, number, pages);
    doc.strips[row].set(StripField::Location, QStringLiteral("HARBOUR"));
    doc.strips[row].set(StripField::ScriptPage, number);
    doc.strips[row].set(StripField::Synopsis, QStringLiteral("Synopsis ") + number);
    return row;
}

// Lays out scenes by number, day dividers as "|" and banners as "B" and their days ("B2" a
// travel day banner of two days, "B0" a note), e.g. "1 | 2 3 |", and counts the days.
void layOut(ScheduleDocument &doc, const QString &plan)
{
    for (const QString &item : plan.split(u' ', Qt::SkipEmptyParts)) {
        if (item == QLatin1String("|"))
            AddDivider(doc);
        else if (item.startsWith(u'B'))
            AddBanner(doc, item == QLatin1String("B0") ? "A NOTE" : "TRAVEL TO ST IVES", item.mid(1).toInt());
        else
            scene(doc, item);
    }
    RecalculateDays(doc);
}

ScheduleReportOptions range(bool allDays, int from, int to, bool shootingDaysOnly = true)
{
    ScheduleReportOptions options;
    options.allDays = allDays;
    options.fromDay = from;
    options.toDay = to;
    options.shootingDaysOnly = shootingDaysOnly;
    return options;
}

} // namespace

Q_DECLARE_METATYPE(tb::ScheduleReportOptions)

class TestReportBuilders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void init()
    {
        m_doc = std::make_unique<ScheduleDocument>();
        m_doc->values.StartDate = legacy::FloatToText(legacy::DateToSerial(Start));
        m_prompter.prompts.clear();
        m_doc->setPrompter(&m_prompter);
        m_doc->setStatusSink(&m_status);
    }
    void days_data()
    {
        // plan: the board, as layOut() reads it
        // values: "FIELD=V1|V2...;..." the values pushed to each field named
        Columns<QString, QString, ScheduleReportOptions, QString>("plan", "rule", "options", "values");
        const QString shooting = "SHOOTING DAY %1 : %2";
        const QString production = "PRODUCTION DAY %1 : %2";
        const QString board = "1 | 2 3 | 4 |";
        Row("all", board, "", range(true, 1, 1),
            "SceneField=Scene: 1|Scene: 2|Scene: 3|Scene: 4;GrandTotal=End;DayField=" +
                shooting.arg(1).arg(longDate(0)) + "|" + shooting.arg(2).arg(longDate(1)) + "|" +
                shooting.arg(2).arg(longDate(1)) + "|" + shooting.arg(3).arg(longDate(2)));
        Row("day 2 to 2", board, "", range(false, 2, 2),
            "SceneField=Scene: 2|Scene: 3;GrandTotal=End (Days 2 to 2);DayField=" + shooting.arg(2).arg(longDate(1)) +
                "|" + shooting.arg(2).arg(longDate(1)));
        // "All" with a From of 3 still finds its start strip from the From box (kept so).
        Row("all, from 3", board, "", range(true, 3, 3),
            "SceneField=Scene: 4;GrandTotal=End;DayField=" + shooting.arg(3).arg(longDate(2)));
        // No strip on the first day asked for: no row is pushed, nothing printed.
        Row("no strip on day 5", board, "", range(false, 5, 6), "SceneField=;GrandTotal=;DayField=");

        // S2: a rest day after the second day, left out of shooting days only.
        Row("rest day, shooting days", "1 | 2 | 3 |", "S2", ScheduleReportOptions(),
            "GroupEndField=END OF DAY 1|END OF DAY 2|END OF DAY 3;DayField=" + shooting.arg(1).arg(longDate(0)) + "|" +
                shooting.arg(2).arg(longDate(1)) + "|" + shooting.arg(3).arg(longDate(3)));
        Row("rest day, production days", "1 | 2 | 3 |", "S2", range(true, 1, 1, false),
            "SceneField=Scene: 1|Scene: 2|REST DAY|Scene: 3;GroupEndField=END OF DAY 1|END OF DAY 2|END OF DAY 3|"
            "END OF DAY 4;DayField=" +
                production.arg(1).arg(longDate(0)) + "|" + production.arg(2).arg(longDate(1)) + "|" +
                production.arg(3).arg(longDate(2)) + "        REST DAY|" + production.arg(4).arg(longDate(3)));
        // A banner's days get rows of their own; with shooting days only they print nothing,
        // and the banner took one day number.
        Row("banner, production days", "1 | B2 B0 2 |", "", range(true, 1, 1, false),
            "SceneField=Scene: 1|TRAVEL TO ST IVES|TRAVEL TO ST IVES|Scene: 2;DayField=" +
                production.arg(1).arg(longDate(0)) + "|" + production.arg(2).arg(longDate(1)) +
                "        TRAVEL TO ST IVES|" + production.arg(3).arg(longDate(2)) + "        TRAVEL TO ST IVES|" +
                production.arg(4).arg(longDate(3)));
        Row("banner, shooting days", "1 | B2 B0 2 |", "", ScheduleReportOptions(),
            "DayField=" + shooting.arg(1).arg(longDate(0)) + "|" + shooting.arg(3).arg(longDate(3)));
    }
    void days()
    {
        auto [plan, rule, options, values] =
            Fetch<QString, QString, ScheduleReportOptions, QString>("plan", "rule", "options", "values");
        m_doc->values.AutoRestDayRule = rule;
        layOut(*m_doc, plan);
        Pushes pushes;
        auto built = CreateSchedulePages(*m_doc, options, pushes.context());
        QVERIFY2(built.ok(), qPrintable(built.message()));
        for (const QString &field : values.split(u';'))
            QCOMPARE(field.section(u'=', 0, 0) + u'=' + pushes.values(field.section(u'=', 0, 0)).join(u'|'), field);
        QCOMPARE(built->rows, pushes.values("SceneField").size());
        QCOMPARE(built->nothingToPrint, built->rows == 0);
        // A rest-day row is blank elsewhere, each field a single blank.
        const qsizetype rest = pushes.values("SceneField").indexOf("REST DAY");
        for (const char *name : {"PageField", "PagesField", "LocationField", "SynopsisField", "CatagoryField1",
                                 "CatagoryField2", "CatagoryField3", "CastField", "DayPagesField"})
            QVERIFY(rest < 0 || pushes.values(QString::fromLatin1(name)).at(rest) == " ");
    }
    void breakdownBoxesContinueBelowTheSheet()
    {
        // 25 cast members and a location of 200 characters: more than the cast box and the
        // synopsis box hold. Nothing may be lost: what the box cannot show continues below.
        const int row = scene(*m_doc, "112A-112C");
        m_doc->strips[row].set(StripField::Location, QString(QStringLiteral("THE LONG QUAY ")).repeated(14).trimmed());
        m_doc->strips[row].set(StripField::IntExt, QStringLiteral("I/E"));
        for (int i = 1; i <= 25; ++i)
            AddAssignment(*m_doc, row,
                          AddElement(*m_doc, QStringLiteral("CAST MEMBER %1").arg(i), 1, QString::number(i)));
        scene(*m_doc, "2");
        RecalculateDays(*m_doc);
        Pushes pushes;
        QVERIFY(CreateBreakdownPages(*m_doc, {}, pushes.context("Breakdown1.dfm")).ok());
        QCOMPARE(pushes.values("IntExtField").first(), QStringLiteral("INT/EXT"));
        const QStringList cast = pushes.values("CastListField").first().split(u'\r');
        QCOMPARE(cast.size(), 25);
        QCOMPARE(cast.first(), QStringLiteral("1 - CAST MEMBER 1"));
        const QStringList continued = pushes.values("ContinuedField");
        QCOMPARE(continued.size(), 2);
        QVERIFY(continued.at(1).isEmpty()); // the short scene fits
        QVERIFY(continued.at(0).startsWith(QStringLiteral("SHEET 1 CONTINUED")));
        QVERIFY(continued.at(0).contains(QStringLiteral("CAST (continued)")));
        QVERIFY(continued.at(0).contains(QStringLiteral("25 - CAST MEMBER 25")));
        QVERIFY(continued.at(0).contains(QStringLiteral("LOCATION  /  SYNOPSIS (continued)")));
    }
    void rowValues()
    {
        // Five scenes of one day, each with its own INT/EXT and time of day.
        const QStringList intExt{"I", "E", "I/E", "", "X"};
        const QStringList dayNight{"D", "N", "DWN", "DSK", "Y"};
        const QStringList numbers{"12A", "13", "14", "15", "16"};
        for (int i = 0; i < 5; ++i) {
            const int row = scene(*m_doc, numbers[i], i == 0 ? "1.375" : i == 1 ? "0.5" : "1");
            m_doc->strips[row].set(StripField::IntExt, intExt[i]);
            m_doc->strips[row].set(StripField::DayNight, dayNight[i]);
        }
        // Scene 13's elements, assigned out of order: each list follows the element table.
        QList<int> elements;
        elements << AddElement(*m_doc, "ANN", 1, "1") << AddElement(*m_doc, "BOB", 1, "4")
                 << AddElement(*m_doc, "CY", 1, "12") << AddElement(*m_doc, "VAN", 4) << AddElement(*m_doc, "LAMP", 5)
                 << AddElement(*m_doc, "MAP", 5) << AddElement(*m_doc, "ROPE", 5) << AddElement(*m_doc, "RAIN", 10)
                 << AddElement(*m_doc, "UNUSED", 2);
        for (int e : {8, 3, 7, 1, 6, 4, 5, 2})
            AddAssignment(*m_doc, 2, elements[e - 1]);
        layOut(*m_doc, "|");
        Pushes pushes;
        QVERIFY(CreateSchedulePages(*m_doc, {}, pushes.context()).ok());
        // A scene without elements has a blank cast text and three blank columns. Scene 13 has
        // 12 lines: a third is 4. A list is never split; the test comes before each list.
        QCOMPARE(pushes.valuesOf({"CastField", "CatagoryField1", "CatagoryField2", "CatagoryField3"}),
                 QStringList({" |Cast:  1  4  12| | | ", " |CAST\r\n    1 ANN\r\n    4 BOB\r\n    12 CY\r\n \r\n| | | ",
                              " |VEHICLES\r\n    VAN\r\n \r\nPROPS\r\n    LAMP\r\n    MAP\r\n    ROPE\r\n \r\n| | | ",
                              " |SPECIAL FX\r\n    RAIN\r\n \r\n| | | "}));
        // Every field the report is known to fill gets its values; the closing line last.
        for (const QString &name : ReportFieldNames(TemplateReport::Schedule))
            QVERIFY2(pushes.names.contains(name), qPrintable(name));
        QCOMPARE(pushes.names.mid(pushes.names.size() - 3), QStringList({"GrandTotal", "TotalsField", "TitleField"}));
        QCOMPARE(pushes.valuesOf({"TotalsField", "LengthField", "SceneField", "PageField", "PagesField"}),
                 QStringList({"1 shooting day, 5 scenes, 4 7/8 pages", "1 3/8|4/8|1|1|1",
                              "Scene: 12A|Scene: 13|Scene: 14|Scene: 15|Scene: 16",
                              "Page: 12A|Page: 13|Page: 14|Page: 15|Page: 16",
                              "Pages: 1 3/8|Pages: 4/8|Pages: 1|Pages: 1|Pages: 1"}));
        QCOMPARE(pushes.values("DayPagesField"), QStringList(5, "Total pages: 4 7/8"));
        QCOMPARE(pushes.values("LocationField"),
                 QStringList({"INT - HARBOUR - DAY", "EXT - HARBOUR - NIGHT", "INT/EXT - HARBOUR - DAWN",
                              "HARBOUR - DUSK", "HARBOUR"}));
    }
    void dayFieldThatIsNoNumber()
    {
        layOut(*m_doc, "1 2");
        m_doc->strips[2].set(StripField::DayNumber, QStringLiteral("x"));
        Pushes pushes;
        QVERIFY(!CreateSchedulePages(*m_doc, {}, pushes.context()).ok());
        QCOMPARE(m_prompter.texts(), QStringList{"'x' is not a valid integer value"});
        QVERIFY(!m_status.busy);
    }
    void missingTemplate_data()
    {
        // content: of the template file; none: no file at all
        // message: %1 = the template path
        Columns<int, QByteArray, QString>("report", "content", "message");
        Row("schedule", 0, QByteArray(),
            "Could not load schedule template file (%1). Please try re-installing Torvanbridge.");
        Row("breakdown", 1, QByteArray(),
            "Could not load breakdown sheet template file (%1). Please try re-installing "
            "Torvanbridge.");
        // This message names no file.
        Row("element summary", 2, QByteArray(),
            "Could not load element summary sheet template file. Please try re-installing Torvanbridge.");
        // The message every user has always seen, then where and why.
        Row("broken schedule template", 0,
            QByteArray("object F: TForm\n  object R: TAlReport\n    Papersize = alr_A3\n  end\nend\n"),
            "Could not load schedule template file (%1). Please try re-installing Torvanbridge.\r\r"
            "ShootSch1.dfm, line 3: expected one of alr_A4, alr_A5, alr_Legal, alr_Letter for \"Papersize\", "
            "found \"alr_A3\"");
    }
    void missingTemplate()
    {
        auto [report, content, message] = Fetch<int, QByteArray, QString>("report", "content", "message");
        QStringList trace;
        const QString path = TempPath(QString::fromLatin1(QTest::currentDataTag()) + "/ShootSch1.dfm");
        QVERIFY(content.isNull() || WriteBytes(path, content));
        const ReportBuildContext context{[&](const QString &l) { trace.append(l); }, nullptr, path};
        layOut(*m_doc, "1");
        ScheduleReportOptions oneLine;
        oneLine.oneLine = true;
        const bool ok = report == 0   ? CreateSchedulePages(*m_doc, oneLine, context).ok()
                        : report == 1 ? CreateBreakdownPages(*m_doc, {}, context).ok()
                                      : CreateElementSummaryPages(*m_doc, {}, context).ok();
        QVERIFY(!ok);
        QCOMPARE(m_prompter.texts(), QStringList{message.contains("%1") ? message.arg(path) : message});
        QCOMPARE(trace.size(), 1); // the loader's own detail
        QVERIFY(!m_status.busy);   // the hourglass is restored
    }
    void breakdownCategoryFieldsByTag()
    {
        const QString path = TempPath("TaggedBreakdown.dfm");
        QVERIFY(WriteBytes(
            path, "object F: TForm\n  object R: TAlReport\n  end\n  object D: tAlBand\n    BandType = alr_Detail\n"
                  "    object BSField: TAlField\n    end\n"
                  "    object CastName: TAlField\n      Tag = 1\n    end\n"
                  "    object Ordinary: TAlField\n      Tag = 100\n    end\n"
                  "    object CastList: TAlField\n      Tag = 101\n    end\n"
                  "    object PropList: TAlField\n      Tag = 105\n    end\n"
                  "  end\nend\n"));
        const int row = scene(*m_doc, "7");
        m_doc->strips[row].set(StripField::Location, QStringLiteral("QUAY"));
        m_doc->strips[row].set(StripField::Notes, QStringLiteral("\"Rain at dusk\",Boats"));
        m_doc->strips[row].set(StripField::DayNight, QStringLiteral("N"));
        const int ann = AddElement(*m_doc, "ANN", 1, "1");
        const int bob = AddElement(*m_doc, "BOB", 1, "2");
        AddElement(*m_doc, "LAMP", 5);
        AddAssignment(*m_doc, row, bob);
        AddAssignment(*m_doc, row, ann);
        Pushes pushes;
        auto built = CreateBreakdownPages(*m_doc, {}, pushes.context(path));
        QVERIFY2(built.ok(), qPrintable(built.message()));
        // The cast in element order, not assignment order; tag 100 is an ordinary field.
        QCOMPARE(pushes.valuesOf({"BSField", "CastName", "CastList", "PropList", "SynopsisField", "NotesField",
                                  "DNField", "NotesCat"}),
                 QStringList(
                     {"1", "CAST", "ANN\rBOB\r", "", "QUAY\rSynopsis 7", "Rain at dusk\r\nBoats\r\n", "N", "NOTES"}));
        QVERIFY(pushes.values("Ordinary").isEmpty());
    }
    void breakdownSpecificSheets()
    {
        m_doc->values.CompanyAddress = QStringLiteral("\"1 Quay Street\",Penzance");
        layOut(*m_doc, "1 | 2 3");
        const QList<BreakdownListItem> items = BreakdownListItems(*m_doc);
        QCOMPARE(items.size(), 3);
        QCOMPARE(items[1].row, 3);
        QCOMPARE(items[1].text, QStringLiteral("2 - HARBOUR  Synopsis 2"));

        Pushes none;
        BreakdownReportOptions chosen;
        chosen.all = false;
        auto empty = CreateBreakdownPages(*m_doc, chosen, none.context("Breakdown1.dfm"));
        QVERIFY(empty.ok());
        QVERIFY(empty->nothingToPrint);
        QVERIFY(none.values("BSField").isEmpty());
        QCOMPARE(none.values("AddressField"), QStringList{"1 Quay Street\r\nPenzance\r\n"});

        Pushes some;
        chosen.rows = {4, 2, 1}; // the divider in the middle is passed over
        auto built = CreateBreakdownPages(*m_doc, chosen, some.context("Breakdown1.dfm"));
        QVERIFY(built.ok());
        QCOMPARE(built->rows, 2);
        QCOMPARE(some.values("SceneField"), QStringList({"3", "1"}));
        QCOMPARE(some.values("CatName1"), QStringList({"CAST", "CAST"}));
    }
    void elementSummaryDaysUsed()
    {
        m_doc->values.PictureTitle = QStringLiteral("Harbour Lights");
        const int boat = AddElement(*m_doc, "BOAT", 4, "B1");
        const int ann = AddElement(*m_doc, "ANN", 1, "1");
        AddElement(*m_doc, "NOBODY", 1, "2");
        m_doc->elements[boat].set(ElementField::PersonName, QStringLiteral("Mary Ellen"));
        m_doc->elements[boat].set(ElementField::PrintOnBoard, QStringLiteral("1"));
        m_doc->elements[boat].set(ElementField::OtherInfo, QStringLiteral("\"Needs a skipper\",Insured"));
        for (int day = 1; day <= 7; ++day) {
            const int row = scene(*m_doc, QString::number(day));
            if (day == 1)
                AddAssignment(*m_doc, row, ann);
            if (day == 2 || day == 3 || day == 7)
                AddAssignment(*m_doc, row, boat);
            if (day == 3) // a second scene the same day is no second day used
                AddAssignment(*m_doc, scene(*m_doc, "3B"), boat);
            AddDivider(*m_doc);
        }
        RecalculateDays(*m_doc);
        Pushes pushes;
        ElementSummaryOptions options;
        options.categories = {4};
        auto built = CreateElementSummaryPages(*m_doc, options, pushes.context("ElementSummary1.dfm"));
        QVERIFY2(built.ok(), qPrintable(built.message()));
        const auto shortDate = [](int d) {
            return legacy::FormatDate(Start.addDays(d), QString::fromLatin1(legacy::ShortDatePattern));
        };
        QCOMPARE(pushes.valuesOf({"FirstField", "LastField", "TotalField", "UsedField", "NameField", "DescField",
                                  "TypeField", "NotesField", "PBField", "HoldField"}),
                 QStringList({shortDate(1), shortDate(6), "6", "3", "B1  BOAT", "Mary Ellen", "Vehicles",
                              "Needs a skipper\r\nInsured\r\n", "Yes", "No"}));
        QCOMPARE(pushes.names.mid(0, 7), QStringList({"PictureField", "AddressField", "CompanyField", "RefField",
                                                      "DirField", "ProdField", "HeaderField"}));
        // By default the cast only, and only who is used.
        Pushes cast;
        built = CreateElementSummaryPages(*m_doc, {}, cast.context("ElementSummary1.dfm"));
        QVERIFY(built.ok());
        QCOMPARE(cast.valuesOf({"NameField", "HeaderField"}),
                 QStringList({"1  ANN", "Element summary - \"Harbour Lights\""}));
        QCOMPARE(built->rows, 1);
    }

private:
    std::unique_ptr<ScheduleDocument> m_doc;
    ScriptedPrompter m_prompter;
    RecordingStatus m_status;
};

TB_TEST_MAIN(TestReportBuilders)
#include "tst_reportbuilders.moc"
