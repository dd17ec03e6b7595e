#include "TestSupport.h"

#include "breakdown/StripOrder.h"

using namespace tb;
using namespace tb::test;

namespace {

// Scene numbers in board order; dividers "|", banners "B:" + text.
QString Board(const ScheduleDocument &doc)
{
    QStringList out;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        const StripRecord &s = doc.strips[i];
        if (s.isScene())
            out.append(s[StripField::SceneNumber]);
        else if (s.isDayDivider())
            out.append("|");
        else if (s.isBanner())
            out.append("B:" + s[StripField::Synopsis]);
        else
            out.append("?" + s.kind());
    }
    return out.join(u' ');
}

int Scene(ScheduleDocument &doc, const QString &scene, const QString &location, const QString &dayNight = "D",
          const QString &intExt = "I")
{
    const int row = AddScene(doc, scene, "1", dayNight, intExt);
    doc.strips[row].set(StripField::Location, location);
    return row;
}

// Scenes "1".."n" at locations "A", "B", ... with a prompter and a conform list made for them.
struct ConformBoard
{
    explicit ConformBoard(int scenes = 3)
    {
        doc.setPrompter(&prompter);
        for (int i = 1; i <= scenes; ++i)
            Scene(doc, QString::number(i), QString(QChar(u'A' + i - 1)));
        list.reset(doc);
    }
    bool enter(std::initializer_list<const char *> entries)
    {
        bool all = true;
        for (const char *entry : entries)
            all = list.enter(prompter, entry) && all;
        return all;
    }
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    ConformList list;
};

// The conform lines as "code:description", "_" for an empty line.
QString Entries(const ConformList &list)
{
    QStringList out;
    for (const ConformEntry &e : list.entries())
        out.append(e.isEmpty() ? QStringLiteral("_") : e.code + u':' + e.description);
    return out.join(u'|');
}

QString Column(const QList<SortRow> &rows, int column)
{
    QStringList out;
    for (const SortRow &row : rows)
        out.append(row.at(column));
    return out.join(u' ');
}

} // namespace

class TestStripOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void previewRows()
    {
        ScheduleDocument doc;
        Scene(doc, "1", "BARN", "N", "E");
        doc.strips[1].set(StripField::Synopsis, "Owls");
        AddDivider(doc);
        Scene(doc, "2", "PIER");
        const QList<SortRow> rows = SortPreviewRows(doc);
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[0], SortRow({"1", "1", "BARN", "N", "E", "Owls"}));
        QCOMPARE(rows[1].first(), "3");
    }

    void sortByColumn_data()
    {
        Columns<int, QStringList, QString>("column", "values", "sorted");
        Row("scene numbers are numbers", SortColumn::Scene, QStringList{"10", "2", "1"}, "1 2 10");
        Row("12A sorts with 12, board order kept", SortColumn::Scene, QStringList{"12A", "3", "12", "A"}, "A 3 12A 12");
        Row("locale order of text", SortColumn::Location, QStringList{"Zoo", "bar", "Apple"}, "Apple bar Zoo");
        Row("case counts", SortColumn::Location, QStringList{"Bar", "bar"}, "bar Bar");
        Row("equal text keeps order", SortColumn::Synopsis, QStringList{"x", "", "x"}, " x x");
    }

    void sortByColumn()
    {
        auto [column, values] = Fetch<int, QStringList>("column", "values");
        QList<SortRow> rows;
        for (int i = 0; i < values.size(); ++i) {
            SortRow row(SortColumn::Count);
            row[SortColumn::Strip] = QString::number(i + 1);
            row[column] = values.at(i);
            rows.append(row);
        }
        SortRowsByColumn(rows, column);
        QTEST(Column(rows, column), "sorted");
    }

    void threeKeysKeepBoardOrderInTies()
    {
        ScheduleDocument doc;
        Scene(doc, "1", "PIER", "N", "E");
        Scene(doc, "2", "BARN", "D", "I");
        Scene(doc, "3", "PIER", "D", "E");
        Scene(doc, "4", "BARN", "D", "I");
        Scene(doc, "5", "PIER", "D", "E");
        Scene(doc, "6", "BARN", "D", "E");
        QList<SortRow> rows = SortPreviewRows(doc);
        SortRowsByKeys(rows, SortColumn::Location, SortColumn::DayNight, SortColumn::IntExt);
        QCOMPARE(Column(rows, SortColumn::Scene), "6 2 4 3 5 1");
        // One key only.
        rows = SortPreviewRows(doc);
        SortRowsByKeys(rows, SortColumn::DayNight, SortColumn::None, SortColumn::None);
        QCOMPARE(Column(rows, SortColumn::Scene), "2 3 4 5 6 1");
    }

    void sortAsksAboutDividers_data()
    {
        Columns<bool, Answer>("dividers", "answer");
        Row("no dividers: no question", false, Answer::Yes);
        Row("Yes", true, Answer::Yes);
        Row("Abort", true, Answer::Abort);
    }

    // Either answer sorts, and the dividers and banners are deleted.
    void sortAsksAboutDividers()
    {
        auto [dividers, answer] = Fetch<bool, Answer>("dividers", "answer");
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        Scene(doc, "1", "PIER");
        if (dividers)
            AddDivider(doc);
        Scene(doc, "2", "BARN");
        if (dividers)
            AddBanner(doc, "Travel", 1);
        Scene(doc, "3", "ATTIC");
        prompter.answers = {answer, answer};
        if (dividers)
            QCOMPARE(WarnSortDeletesDividers(doc), answer == Answer::Yes);
        SortStrips(doc, SortColumn::Location, SortColumn::None, SortColumn::None);
        QCOMPARE(Board(doc), "3 2 1");
        QCOMPARE(prompter.prompts.size(), dividers ? 2 : 0);
        if (!dividers)
            return;
        QCOMPARE(prompter.prompts[1].buttons, Buttons::YesAbort);
        QVERIFY(prompter.prompts[1].text.contains("the dividers will be deleted if you continue. \r\rAre you sure"));
    }

    void conformEntries()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        for (int i = 1; i <= 4; ++i)
            doc.strips[Scene(doc, QStringLiteral("S%1").arg(i), "LOC")].set(StripField::Synopsis, QString::number(i));
        AddDivider(doc);
        ConformList list;
        list.reset(doc);
        QCOMPARE(Entries(list), "_");
        for (const char *entry : {"3", "+", "1", "*Travel", "-"})
            QVERIFY(list.enter(prompter, entry));
        QCOMPARE(Entries(list), "3:LOC, 3|D:--- Divider ---|1:LOC, 1|B:Travel|R:--- Rest Day --- ");

        QVERIFY(list.apply(doc)); // 5 lines for 5 strips: no question
        QVERIFY(prompter.prompts.isEmpty());
        QCOMPARE(Board(doc), "S3 | S1 B:Travel B:REST DAY");
        QCOMPARE(doc.strips[4][StripField::DayCount], "0");
        QCOMPARE(doc.strips[5][StripField::DayCount], "1");

        // A banner text is cut at 99 characters; a lone star gives an empty banner.
        list.reset(doc);
        QVERIFY(list.enter(prompter, "*" + QString(120, u'x')));
        QVERIFY(list.enter(prompter, "*"));
        QCOMPARE(Entries(list), "B:" + QString(99, u'x') + "|B:");
    }

    void conformRefusals()
    {
        ConformBoard b;
        QVERIFY(b.list.enter(b.prompter, "2"));
        QVERIFY(!b.list.enter(b.prompter, "2"));
        QVERIFY(!b.list.enter(b.prompter, "02")); // matched as text
        QVERIFY(!b.list.enter(b.prompter, "9"));
        QVERIFY(!b.list.enter(b.prompter, ""));
        const QString notFound = "No strip was found with that number. Please try again.";
        QCOMPARE(
            b.prompter.texts(),
            QStringList({"That breakdown number has already been entered. The numbers need to be unique to each and "
                         "every strip.",
                         notFound, notFound, notFound}));
        // The refusals left one empty line, which the next entry fills.
        QCOMPARE(Entries(b.list), "2:B, |_");
        QVERIFY(b.list.enter(b.prompter, "1"));
        QCOMPARE(Entries(b.list), "2:B, |1:A, ");

        // An empty line left at the end becomes an empty strip.
        QVERIFY(!b.list.enter(b.prompter, "9"));
        b.prompter.answers = {Answer::Yes};
        QVERIFY(b.list.apply(b.doc));
        QCOMPARE(b.doc.strips.count(), 3);
        QCOMPARE(Board(b.doc), "2 1 ?");
    }

    void conformDeleteFreesTheSheet()
    {
        ConformBoard b(2);
        QVERIFY(b.enter({"1", "+", "2"}));
        b.list.remove(0);
        QCOMPARE(Entries(b.list), "D:--- Divider ---|2:B, ");
        b.list.remove(0); // a divider line: nothing to free
        QCOMPARE(Entries(b.list), "2:B, ");
        b.list.remove(0); // the last line is emptied, not removed
        QCOMPARE(Entries(b.list), "_");
        // Both sheets are free again.
        QVERIFY(b.enter({"2", "1"}));
        QVERIFY(b.prompter.prompts.isEmpty());
    }

    void conformDeclined()
    {
        ConformBoard b;
        QVERIFY(b.enter({"3"}));
        b.prompter.answers = {Answer::No};
        QVERIFY(!b.list.apply(b.doc));
        QCOMPARE(Board(b.doc), "1 2 3");
        QCOMPARE(b.doc.undo.UndoDepth, 0);
        QCOMPARE(b.prompter.texts(),
                 QStringList{"You have entered less strips than exist in the current schedule. Any "
                             "strips you have not entered will be removed.\r\rAre you sure this is OK?"});
        QCOMPARE(b.prompter.prompts[0].kind, MessageKind::Warning);
        // Asked also when more lines than strips were entered.
        QVERIFY(b.enter({"+", "+", "+"}));
        b.prompter.answers = {Answer::Yes};
        QVERIFY(b.list.apply(b.doc));
        QCOMPARE(b.prompter.prompts.size(), 2);
        QCOMPARE(Board(b.doc), "3 | | |");
    }

    void renumber()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        Scene(doc, "a", "A");
        const int divider = AddDivider(doc);
        doc.strips[divider].set(StripField::StripId, "77");
        Scene(doc, "b", "B");
        doc.strips[1].set(StripField::StripId, "40");
        doc.strips[3].set(StripField::StripId, "12");
        doc.values.NextStripId = 40;
        prompter.answers = {Answer::No};
        QVERIFY(!ResetBreakdownNumbering(doc));
        QCOMPARE(doc.strips[1][StripField::StripId], "40");
        QCOMPARE(prompter.texts(),
                 QStringList{"Are you sure you wish to reset all breakdown sheet numbers to match the "
                             "current strip order on the board?"});
        QCOMPARE(prompter.prompts[0].kind, MessageKind::Confirmation);

        prompter.answers = {Answer::Yes};
        QVERIFY(ResetBreakdownNumbering(doc));
        QCOMPARE(doc.strips[1][StripField::StripId], "1");
        QCOMPARE(doc.strips[2][StripField::StripId], "77");
        QCOMPARE(doc.strips[3][StripField::StripId], "2");
        QCOMPARE(doc.values.NextStripId, 2);
        // Without scenes the next number starts again from nothing.
        ScheduleDocument dividers;
        AddDivider(dividers);
        dividers.values.NextStripId = 9;
        QVERIFY(ResetBreakdownNumbering(dividers));
        QCOMPARE(dividers.values.NextStripId, 0);
    }
};

TB_TEST_GUILESS_MAIN(TestStripOrder)
#include "tst_striporder.moc"
