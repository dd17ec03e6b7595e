#include "TestSupport.h"

#include "breakdown/ElementEditing.h"
#include "document/LegacyText.h"

using namespace tb;
using namespace tb::test;

namespace {

QString Column(const ScheduleDocument &doc, ElementField field)
{
    QStringList out;
    for (int i = 1; i <= doc.elements.count(); ++i)
        out.append(doc.elements[i][field]);
    return out.join(u' ');
}

QString Lists(const ScheduleDocument &doc)
{
    QStringList out;
    for (int i = 1; i <= doc.strips.count(); ++i)
        out.append(QLatin1Char('[') + doc.strips[i][StripField::Assignments] + QLatin1Char(']'));
    return out.join(u' ');
}

} // namespace

class TestElementEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void idDefaults_data()
    {
        // The next cast number follows the highest one.
        Columns<QStringList, QStringList, QString>("categories", "ids", "castId");
        Row("empty table", QStringList(), QStringList(), "1");
        Row("gaps", QStringList{"1", "1", "1"}, QStringList{"1", "2", "7"}, "8");
        Row("letters count as 0", QStringList{"1", "1"}, QStringList{"A", "3"}, "4");
        Row("only letters", QStringList{"1"}, QStringList{"A"}, "1");
        Row("other categories ignored", QStringList{"5", "1"}, QStringList{"99", "2"}, "3");
        Row("bad category ignored", QStringList{"x", "1"}, QStringList{"50", "4"}, "5");
    }

    void idDefaults()
    {
        auto [categories, ids] = Fetch<QStringList, QStringList>("categories", "ids");
        ScheduleDocument doc;
        for (int i = 0; i < categories.size(); ++i) {
            const int row = AddElement(doc, QStringLiteral("E%1").arg(i), 1, ids.at(i));
            doc.elements[row].set(ElementField::CategoryNumber, categories.at(i));
        }
        QTEST(DoID(doc, 0).id, "castId");
        QTEST(DoID(doc, -1).id, "castId"); // nothing chosen counts as the cast
        QVERIFY(DoID(doc, 0).printOnBoard);
        const ElementIdDefault prop = DoID(doc, 4);
        QCOMPARE(prop.id, "Prp");
        QVERIFY(!prop.printOnBoard);
        QCOMPARE(DoID(doc, 14).id, "Oth");
    }

    void pageFromRecord()
    {
        ScheduleDocument doc;
        const int row = AddElement(doc, "Anna", 1, "3");
        ElementRecord &e = doc.elements[row];
        e.set(ElementField::PrintOnBoard, "1");
        e.set(ElementField::HoldRule, "SAG");
        e.set(ElementField::PersonName, "Mara Quint");
        e.set(ElementField::OtherInfo, legacy::JoinCommaText({"Agent: Lo, Ltd", "555 0101"}));
        const ElementPage page = ElementPageFromRecord(e);
        QCOMPARE(page.description, "Anna");
        QCOMPARE(page.categoryPosition, 0);
        QVERIFY(page.printOnBoard);
        QVERIFY(page.holdRule);
        QCOMPARE(page.boardId, "3");
        QCOMPARE(page.name, "Mara Quint");
        QCOMPARE(page.otherInfo, QStringList({"Agent: Lo, Ltd", "555 0101"}));
    }

    void assignListLines()
    {
        ScheduleDocument doc;
        int s1 = AddScene(doc, "12", "1");
        doc.strips[s1].set(StripField::Location, "HARBOUR");
        doc.strips[s1].set(StripField::Synopsis, "Anna arrives");
        AddDivider(doc);
        int s2 = AddScene(doc, "13", "1");
        doc.strips[s2].set(StripField::Synopsis, "Night falls");
        int s3 = AddScene(doc, "14", "1");
        doc.strips[s3].set(StripField::Assignments, "2");
        AddElement(doc, "A");
        AddElement(doc, "B");
        const QList<AssignLine> lines = AssignListLines(doc, 2);
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0].text, "12 - HARBOUR - Anna arrives");
        QCOMPARE(lines[1].text, "13 - Night falls");
        QCOMPARE(lines[2].text, "14");
        QCOMPARE(lines[1].strip, 3);
        QVERIFY(!lines[0].assigned);
        QVERIFY(lines[2].assigned);
        QVERIFY(!AssignListLines(doc, -1)[2].assigned);
    }

    void validation_data()
    {
        Columns<QString, QString, QString>("description", "id", "message");
        Row("no description", "", "1",
            "You need to enter a description for the element, or else click Cancel if you "
            "do not wish to change anything.");
        Row("no id", "Anna", "",
            "You need to enter an identifier for the element, or else click Cancel if you do not "
            "wish to change anything.");
    }

    void validation()
    {
        auto [description, id, message] = Fetch<QString, QString, QString>("description", "id", "message");
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        ElementPage page;
        page.description = description;
        page.boardId = id;
        QVERIFY(!RecordElement(doc, -1, page, {}).ok());
        QCOMPARE(prompter.texts(), QStringList{message});
        QCOMPARE(prompter.prompts.first().kind, MessageKind::Error);
        QCOMPARE(doc.elements.count(), 0);
        QVERIFY(!doc.Modified);
    }

    void recordNewElement()
    {
        ScheduleDocument doc;
        AddScene(doc, "1", "1");
        AddScene(doc, "2", "1");
        AddElement(doc, "Old", 5, "Prp");
        ElementPage page;
        page.description = "Anna";
        page.categoryPosition = 0;
        page.printOnBoard = true;
        page.boardId = "1";
        page.name = "Mara";
        page.otherInfo = {"line one", "line, two"};
        QList<AssignLine> lines = AssignListLines(doc, -1);
        lines[1].assigned = true;
        const ResultOf<int> row = RecordElement(doc, -1, page, lines);
        QVERIFY(row.ok());
        QCOMPARE(row.value(), 2);
        const ElementRecord &e = doc.elements[2];
        QCOMPARE(e[ElementField::Description], "Anna");
        QCOMPARE(e[ElementField::CategoryNumber], "1");
        QCOMPARE(e[ElementField::PrintOnBoard], "1");
        QCOMPARE(e[ElementField::BoardId], "1");
        QCOMPARE(e[ElementField::PersonName], "Mara");
        QCOMPARE(e[ElementField::HoldRule], "NONE");
        QCOMPARE(legacy::SplitCommaText(e[ElementField::OtherInfo]), page.otherInfo);
        QCOMPARE(Lists(doc), "[] [2]");
        QVERIFY(doc.Modified);
        QCOMPARE(doc.undo.UndoDepth, 0); // the element editor takes no snapshot of its own
    }

    void recordEditedElementAppliesTheList()
    {
        ScheduleDocument doc;
        for (int i = 0; i < 3; ++i)
            AddScene(doc, QString::number(i + 1), "1");
        AddElement(doc, "A", 1, "1");
        AddElement(doc, "B", 1, "2");
        doc.strips[1].set(StripField::Assignments, "2,1");
        doc.strips[2].set(StripField::Assignments, "2");
        doc.elements[2].set(ElementField::Reserved5, "kept");
        ElementPage page = ElementPageFromRecord(doc.elements[2]);
        page.holdRule = true;
        QList<AssignLine> lines = AssignListLines(doc, 2);
        lines[0].assigned = false;
        lines[1].assigned = true; // already there: not added twice
        lines[2].assigned = true;
        const ResultOf<int> row = RecordElement(doc, 2, page, lines);
        QVERIFY(row.ok());
        QCOMPARE(row.value(), 2);
        QCOMPARE(doc.elements.count(), 2);
        QCOMPARE(Lists(doc), "[1] [2] [2]");
        QCOMPARE(doc.elements[2][ElementField::HoldRule], "SAG");
        QCOMPARE(doc.elements[2][ElementField::Reserved5], "kept");
    }

    void duplicateCastId_data()
    {
        Columns<int, QString, bool>("editIndex", "id", "duplicate");
        Row("new cast with a used number", -1, "3", true);
        Row("the prop itself asks too", 4, "3", true);
        Row("the cast member itself", 2, "3", false);
        Row("a prop code is no cast ID", -1, "Prp", false);
        Row("free number", -1, "9", false);
    }

    // A duplicate is asked about; No keeps the editor open, Yes saves.
    void duplicateCastId()
    {
        auto [editIndex, id, duplicate] = Fetch<int, QString, bool>("editIndex", "id", "duplicate");
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        AddElement(doc, "Anna", 1, "1");
        AddElement(doc, "Ben", 1, "3");
        AddElement(doc, "Lamp", 5, "Prp");
        AddElement(doc, "Vase", 5, "Prp");
        QCOMPARE(IsDuplicateCastId(doc, editIndex, id), duplicate);
        prompter.answers = {Answer::No, Answer::Yes};
        QCOMPARE(ConfirmDuplicateCastId(doc, editIndex, id), !duplicate);
        QVERIFY(ConfirmDuplicateCastId(doc, editIndex, id));
        QCOMPARE(prompter.prompts.size(), duplicate ? 2 : 0);
        if (!duplicate)
            return;
        QCOMPARE(prompter.prompts[0].text, "The element ID you have entered is already being used by another cast "
                                           "element.\r\rAre you sure you want to have duplicate IDs?");
        QCOMPARE(prompter.prompts[0].kind, MessageKind::Warning);
        QCOMPARE(prompter.prompts[0].buttons, Buttons::YesNo);
    }

    void resetCastNumbering()
    {
        ScheduleDocument doc;
        AddElement(doc, "Anna", 1, "1");
        AddElement(doc, "Lamp", 5, "Prp");
        AddElement(doc, "Ben", 1, "2");
        AddElement(doc, "Cora", 1, "7");
        AddElement(doc, "Dov", 1, "A");
        ScriptedPrompter prompter{doc};
        prompter.answers = {Answer::No, Answer::Yes};
        QVERIFY(!ResetCastNumbering(doc));
        QCOMPARE(Column(doc, ElementField::BoardId), "1 Prp 2 7 A");
        QCOMPARE(doc.undo.UndoDepth, 0);
        QCOMPARE(prompter.prompts.first().kind, MessageKind::Confirmation);
        QVERIFY(prompter.prompts.first().text.startsWith("You are about to re-order all Cast numbering"));
        QVERIFY(ResetCastNumbering(doc));
        QCOMPARE(Column(doc, ElementField::BoardId), "1 Prp 2 3 4");
    }

    void sortByCategory()
    {
        ScheduleDocument doc;
        AddElement(doc, "Lamp", 5, "Prp");  // 1 -> 3
        AddElement(doc, "Anna", 1, "1");    // 2 -> 1
        AddElement(doc, "Vase", 5, "Prp");  // 3 -> 4
        AddElement(doc, "Crowd", 2, "Ext"); // 4 -> 2
        AddScene(doc, "1", "1");
        AddScene(doc, "2", "1");
        AddDivider(doc);
        AddScene(doc, "3", "1");
        doc.strips[1].set(StripField::Assignments, "1,2,3,4");
        doc.strips[2].set(StripField::Assignments, "3,3");
        doc.strips[4].set(StripField::Assignments, "4,9");
        ScriptedPrompter prompter{doc};
        prompter.answers = {Answer::No, Answer::Yes};
        QVERIFY(!SortElementsByCategory(doc));
        QCOMPARE(Column(doc, ElementField::Description), "Lamp Anna Vase Crowd");
        QVERIFY(prompter.prompts.first().text.startsWith("You are about to sort the elements by category."));
        QVERIFY(SortElementsByCategory(doc));
        QCOMPARE(Column(doc, ElementField::Description), "Anna Crowd Lamp Vase");
        QCOMPARE(Lists(doc), "[1,2,3,4] [4] [] [2]");
    }

    void sortKeepsUnknownCategoryRows()
    {
        ScheduleDocument doc;
        AddElement(doc, "Odd", 1, "x");
        doc.elements[1].set(ElementField::CategoryNumber, "0");
        AddElement(doc, "Lamp", 5, "Prp");
        AddElement(doc, "Anna", 1, "1");
        AddScene(doc, "1", "1");
        doc.strips[1].set(StripField::Assignments, "1,3");
        SortElementRows(doc);
        // Two rows carried over; row 3 keeps its old content, a copy of the moved Anna.
        QCOMPARE(Column(doc, ElementField::Description), "Anna Lamp Anna");
        QCOMPARE(Lists(doc), "[1]");
    }
};

TB_TEST_GUILESS_MAIN(TestElementEditing)
#include "tst_elementediting.moc"
