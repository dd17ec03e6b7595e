// The call sheet: filling it for a date, the values it prints, and call sheet files.

#include "TestSupport.h"

#include "document/DayCalculation.h"
#include "document/LegacyText.h"
#include "reports/CallSheet.h"
#include "reports/CallSheetFile.h"
#include "scheduling/EndOfDay.h"

#include <memory>

using namespace tb;
using namespace tb::test;

namespace {

const QDate Start(2027, 4, 5); // a Monday

double serial(const QDate &date)
{
    return legacy::DateToSerial(date);
}

int scene(ScheduleDocument &doc, const QString &number, const QString &pages, const QList<int> &elements = {})
{
    const int row = AddScene(doc, number, pages);
    doc.strips[row].set(StripField::Location, QStringLiteral("QUAY ") + number);
    doc.strips[row].set(StripField::SetName, QStringLiteral("SET ") + number);
    doc.strips[row].set(StripField::Synopsis, QStringLiteral("Synopsis ") + number);
    QStringList list;
    for (int e : elements)
        list.append(QString::number(e));
    doc.strips[row].set(StripField::Assignments, list.join(u','));
    return row;
}

QStringList values(const BuiltReport &built, const char *field)
{
    auto *f = dynamic_cast<TAlField *>(built.form->find(QString::fromLatin1(field)));
    return f ? f->values : QStringList{QStringLiteral("<no field>")};
}

ReportBuildContext templateContext()
{
    return {{}, nullptr, QStringLiteral(TB_SOURCE_DIR "/templates/CallSheet1.dfm")};
}

QStringList column(const CallSheetGrid &grid, int c)
{
    QStringList texts;
    for (const QStringList &row : grid.rows)
        texts.append(row.value(c));
    return texts;
}

} // namespace

class TestCallSheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    // Day 1 (Monday): scenes 1 and 2; day 2: scene 3 and a second strip of scene 1; day 3: 4.
    // Elements: 1 Ann (cast), 2 Bob (cast), 3 crowd (extras), 4 boat (category 5).
    void init()
    {
        m_doc = std::make_unique<ScheduleDocument>();
        m_prompter.prompts.clear();
        m_doc->setPrompter(&m_prompter);
        ScheduleDocument &doc = *m_doc;
        doc.values.StartDate = legacy::FloatToText(serial(Start));
        AddElement(doc, QStringLiteral("ANN"), 1, QStringLiteral("1"));
        doc.elements[1].set(ElementField::PersonName, QStringLiteral("Ann Actor"));
        AddElement(doc, QStringLiteral("BOB"), 1, QStringLiteral("2"));
        AddElement(doc, QStringLiteral("CROWD"), 2);
        AddElement(doc, QStringLiteral("BOAT"), 5);
        scene(doc, QStringLiteral("1"), QStringLiteral("1.5"), {1, 3});
        scene(doc, QStringLiteral("2"), QStringLiteral("0.25"), {4, 1});
        AddDivider(doc);
        scene(doc, QStringLiteral("3"), QStringLiteral("2"), {2});
        scene(doc, QStringLiteral("1"), QStringLiteral("0.5"), {2, 4});
        AddDivider(doc);
        scene(doc, QStringLiteral("4"), QStringLiteral("1"), {1, 2});
        doc.crew[1].set(CrewField::Position, QStringLiteral("Gaffer"));
        doc.crew[1].set(CrewField::Name, QStringLiteral("Gil"));
        doc.crew[3].set(CrewField::Name, QStringLiteral("Nameless"));
        RecalculateDays(doc);
    }
    void fillsTheDay_data()
    {
        // firstPages: of the first scene row
        Columns<int, QStringList, QString, QString>("day", "scenes", "pages", "firstPages");

        Row("first day", 0, QStringList{"1", "2"}, "Total pages: 2 2/8", "1 4/8");
        Row("second day", 1, QStringList{"3", "1"}, "Total pages: 4", "2");
        Row("no scenes", 9, QStringList{""}, "Total pages: ", "");
    }
    void fillsTheDay()
    {
        auto [day, scenes, pages] = Fetch<int, QStringList, QString>("day", "scenes", "pages");
        CallSheet sheet;
        FillCallSheet(*m_doc, sheet, serial(Start.addDays(day)) + 0.25);
        QCOMPARE(column(sheet.scenes, CallSheetColumns::SceneNumber), scenes);
        // Both strips of scene 1 count toward the pages wherever scene 1 is listed.
        QCOMPARE(DoTotalPages(*m_doc, sheet), pages);
        QVERIFY(sheet.weather.isEmpty());
        QTEST(sheet.scenes.rows.first().value(CallSheetColumns::ScenePages), "firstPages");
    }
    void elementsAndNotesOfTheListedScenes()
    {
        m_doc->strips[1].set(StripField::Notes, QStringLiteral("\"Bring rain, bars\",quiet set"));
        m_doc->strips[2].set(StripField::Notes, QStringLiteral("tide"));
        CallSheet sheet;
        FillCallSheet(*m_doc, sheet, serial(Start));
        // Each item a line, an unquoted item split at its blanks, after the empty first item
        // that joining to an empty memo gives.
        QCOMPARE(sheet.notes, (QStringList{"", "Bring rain, bars", "quiet", "set", "tide"}));
        // Ann is on both listed scenes and appears once; scene 1's first strip supplies them.
        QCOMPARE(sheet.cast.rows, (QList<QStringList>{{"1 - ANN", "Ann Actor", "7:00 am", "7:45 am", "8:00 am", ""}}));
        QCOMPARE(sheet.extras.rows, (QList<QStringList>{{"CROWD", "8:00 am"}}));
        QCOMPARE(sheet.other.rows, (QList<QStringList>{{m_doc->categories.at(4).name, "BOAT"}}));
        // Crew rows with a position or a name, the unit call as their call.
        QCOMPARE(sheet.crew.rows, (QList<QStringList>{{"Gaffer (Gil)", "8:00 am"}, {" (Nameless)", "8:00 am"}}));

        // Day 2 lists scene 3 and scene 1, whose elements come from its first strip (Ann,
        // crowd), not from the day-2 strip (Bob, boat).
        FillCallSheet(*m_doc, sheet, serial(Start.addDays(1)));
        QCOMPARE(column(sheet.cast, 0), (QStringList{"2 - BOB", "1 - ANN"}));
        QCOMPARE(column(sheet.extras, 0), QStringList{"CROWD"});
        QCOMPARE(column(sheet.other, 0), QStringList{""});
    }
    void printedValues()
    {
        ScheduleDocument &doc = *m_doc;
        doc.values.PictureTitle = QStringLiteral("Harbour");
        doc.values.CompanyAddress = QStringLiteral("\"1 Quay St\",Town");
        CallSheet sheet;
        FillCallSheet(doc, sheet, serial(Start));
        sheet.scenes.rows = {{"1"}, {"99"}, {"4"}};
        for (QStringList &row : sheet.scenes.rows)
            row.resize(5);
        UpdateElementLists(doc, sheet);
        // Scene 4 (Ann, Bob) is not looked at: the listing stopped at 99.
        QCOMPARE(column(sheet.cast, 0), QStringList{"1 - ANN"});
        sheet.weather = QStringLiteral("Fog");
        sheet.other.rows = {{"Props", "Net"}, {"Props", "Rope"}, {"Vehicles", "Van"}};
        ResultOf<BuiltReport> built = CreateCallSheetPages(doc, sheet, templateContext());
        QVERIFY(built.ok());
        // 99 gets no set or int/ext, so scene 4's move up a row.
        QCOMPARE(values(*built, "SceneField"), (QStringList{"1", "99", "4"}));
        QCOMPARE(values(*built, "SetField"), (QStringList{"SET 1", "SET 4"}));
        QCOMPARE(values(*built, "PictureField"), QStringList{"Harbour"});
        QCOMPARE(values(*built, "AddressField"), QStringList{"1 Quay St\r\nTown\r\n"});
        QCOMPARE(values(*built, "DateField"), QStringList{"Monday, April 5, 2027"});
        QCOMPARE(values(*built, "WeatherField"), QStringList{"Fog"});
        QCOMPARE(values(*built, "IEField"), (QStringList{"I", "I"}));
        // Extras are padded to the length of the other column, so the two stay level.
        QCOMPARE(values(*built, "ExtraField"), (QStringList{"CROWD", "", ""}));
        QCOMPARE(values(*built, "OtherDescriptionField"), (QStringList{"Net", "Rope", "Van"}));
        QCOMPARE(values(*built, "ShootDayField"), QStringList{"Day 1 of 2"});
        // The advance schedule: the next shooting day, then none after the last.
        QCOMPARE(values(*built, "AdvanceDayField"), QStringList{"Tuesday, April 6, 2027"});
        QCOMPARE(values(*built, "AdvSceneField"), (QStringList{"3", "1"}));
        QCOMPARE(values(*built, "AdvSetField"), (QStringList{"INT. SET 3", "INT. SET 1"}));
        QCOMPARE(values(*built, "AdvCastField"), (QStringList{"2", "2"}));
        FillCallSheet(doc, sheet, serial(Start.addDays(2)));
        built = CreateCallSheetPages(doc, sheet, templateContext());
        QCOMPARE(values(*built, "AdvanceDayField"), QStringList{"No further shooting days scheduled"});
        QVERIFY(values(*built, "AdvSceneField").isEmpty());

        // A template that does not load is reported with its path.
        ResultOf<BuiltReport> missing =
            CreateCallSheetPages(doc, sheet, {{}, nullptr, QStringLiteral("/nowhere/CallSheet1.dfm")});
        QVERIFY(!missing.ok());
        QCOMPARE(m_prompter.texts().last(),
                 QStringLiteral("Could not load call sheet template file (/nowhere/CallSheet1.dfm). "
                                "Please try re-installing Torvanbridge."));
    }
    void crewHalves_data()
    {
        Columns<int, QStringList, QStringList>("rows", "first", "second");
        Row("one row", 1, QStringList{"c1"}, QStringList{});
        Row("two rows", 2, QStringList{"c1"}, QStringList{"c2"});
        Row("five rows", 5, QStringList{"c1", "c2", "c3"}, QStringList{"c4", "c5"});
    }
    void crewHalves()
    {
        QFETCH(int, rows);
        CallSheet sheet;
        FillCallSheet(*m_doc, sheet, serial(Start));
        sheet.crew.rows.clear();
        for (int r = 1; r <= rows; ++r)
            sheet.crew.rows.append({QStringLiteral("c%1").arg(r), QStringLiteral("8")});
        ResultOf<BuiltReport> built = CreateCallSheetPages(*m_doc, sheet, templateContext());
        QVERIFY(built.ok());
        QTEST(values(*built, "CrewField1"), "first");
        QTEST(values(*built, "CrewField2"), "second");
    }
    void popupLists()
    {
        QCOMPARE(ScenePopupRows(*m_doc, true).size(), 5);
        QVERIFY(ApplyEndOfDay(*m_doc, Start, {{1, true}, {2, true}}).ok());
        QCOMPARE(ScenePopupRows(*m_doc, true).first().first(), QStringLiteral("3"));
        QCOMPARE(ScenePopupRows(*m_doc, false).size(), 5);
        for (int row : {4, 5, 7})
            m_doc->strips[row].set(StripField::Reserved12, QStringLiteral("46483"));
        QCOMPARE(ScenePopupRows(*m_doc, true), (QList<QStringList>{{"- NO SCENES -", "", "", "", ""}}));

        QCOMPARE(CastPopupRows(*m_doc), (QList<QStringList>{{"1", "ANN", "Ann Actor"}, {"2", "BOB", ""}}));
        const QStringList categories = CategoryPopupNames(*m_doc);
        QCOMPARE(categories.size(), m_doc->categoryCount() - 2);
        QCOMPARE(categories.first(), m_doc->categories.at(2).name);

        QCOMPARE(ChosenSceneRow(*m_doc, QStringLiteral("1")).value(1), QStringLiteral("QUAY 1"));
        QVERIFY(m_prompter.prompts.isEmpty());
        // No match: the message, and the row of the last strip of the table.
        QCOMPARE(ChosenSceneRow(*m_doc, QStringLiteral("77")).value(0), QStringLiteral("4"));
        // A cast member with no match: the message, and the last element of the table (the boat).
        QCOMPARE(ChosenCastRow(*m_doc, CallSheet(), QStringLiteral("9"), QStringLiteral("X"), QStringList(6)).first(),
                 QStringLiteral(" - BOAT"));
        QCOMPARE(m_prompter.texts(), (QStringList{"Error finding the specified scene.",
                                                  "Internal error finding the specified cast member."}));
    }
    void fileRoundTrip()
    {
        CallSheet sheet;
        FillCallSheet(*m_doc, sheet, serial(Start) + 0.5);
        sheet.weather = QStringLiteral("Rain, then sun \"later\"");
        sheet.notes = {QStringLiteral("Bring coats"), QStringLiteral("Café at 10")};
        sheet.cast.rows[0][CallSheetColumns::CastTransport] = QStringLiteral("Pick-up 6:15");
        const QString path = TempPath(QStringLiteral("day1.tbs"));
        QVERIFY(WriteCallSheetFile(sheet, path).ok());
        const QByteArray bytes = ReadFileBytes(path);
        QVERIFY(bytes.startsWith("Torvanbridge call sheet file V1\r\n46482.5\r\nRain, then sun \"later\"\r\n"));
        QVERIFY(bytes.contains("Caf\xe9")); // written like a schedule: Windows-1252 when it fits
        QCOMPARE(bytes.count("\r\n"), 7 + 5 * 2 + 6 * 1 + 2 * 1 + 2 * 2 + 2 * 1 + 1);

        CallSheet read;
        FillCallSheet(*m_doc, read, serial(Start.addDays(1)));
        read.cast.rows.removeLast(); // the same row counts as the sheet saved
        QVERIFY(ReadCallSheetFile(read, path).ok());
        QCOMPARE(read.date, sheet.date);
        QCOMPARE(CallSheetFileLines(read), CallSheetFileLines(sheet));
        QCOMPARE(CallSheetFileDate(path).value(), serial(Start) + 0.5);
        // One more scene row than saved: the row takes the first cast row's cells, and every
        // later line moves along by five.
        sheet.scenes.rows.append(QStringList(5));
        QVERIFY(ReadCallSheetFile(sheet, path).ok());
        QCOMPARE(sheet.scenes.rows.last().first(), QStringLiteral("1 - ANN"));
        QCOMPARE(sheet.cast.rows.first(),
                 (QStringList{"Pick-up 6:15", "CROWD", "8:00 am", "Gaffer (Gil)", "8:00 am", " (Nameless)"}));
        QCOMPARE(WriteCallSheetFile(sheet, QStringLiteral("/nonexistent-folder/x.tbs")).message(),
                 QString::fromLatin1(CallSheetFileError) + QStringLiteral("\r\rNo such file or directory."));
    }
    void fileBadInput_data()
    {
        Columns<QByteArray, QString, QString, QString>("bytes", "message", "weather", "wrap");

        Row("other header", QByteArray("Torvanbridge data file\r\n46482\r\n"), CallSheetFileBadHeader, "keep",
            "6:00 pm");
        Row("empty file", QByteArray(), CallSheetFileBadHeader, "keep", "6:00 pm");
        Row("date no number", QByteArray("Torvanbridge call sheet file V1\r\nsoon\r\nSun\r\n"), CallSheetFileError,
            "keep", "6:00 pm");
        // A file that ends early is no error: the lines past its end read as empty texts.
        Row("ends early", QByteArray("Torvanbridge call sheet file V1\n46482\nSun\n8 am"), QString(), "Sun", "");
        Row("missing file", QByteArray("<none>"), CallSheetFileError, "keep", "6:00 pm");
    }
    void fileBadInput()
    {
        auto [bytes, message, weather, wrap] =
            Fetch<QByteArray, QString, QString, QString>("bytes", "message", "weather", "wrap");
        const QString path = TempPath(QStringLiteral("bad-%1.tbc").arg(QTest::currentDataTag()).replace(u' ', u'-'));
        QVERIFY(bytes == "<none>" || WriteBytes(path, bytes));
        CallSheet sheet;
        FillCallSheet(*m_doc, sheet, serial(Start));
        sheet.weather = QStringLiteral("keep");
        const Result read = ReadCallSheetFile(sheet, path);
        QCOMPARE(read.ok(), message.isEmpty());
        QCOMPARE(read.message(), message);
        QCOMPARE(sheet.weather, weather);
        QCOMPARE(sheet.wrap, wrap);
        if (message.isEmpty())
            QCOMPARE(sheet.scenes.rows.first(), QStringList(5));
    }

private:
    std::unique_ptr<ScheduleDocument> m_doc;
    ScriptedPrompter m_prompter;
};

TB_TEST_MAIN(TestCallSheet)
#include "tst_callsheet.moc"
