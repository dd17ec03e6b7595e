#include "TestSupport.h"

#include "document/AssignmentList.h"
#include "document/DayCalculation.h"
#include "document/ScheduleDocument.h"
#include "document/ScheduleFile.h"

using namespace tb;
using namespace tb::test;

class TestDocumentOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void assignments_data()
    {
        // op: add, is or remove
        // expected: the list after, or whether assigned
        Columns<QString, QString, QList<int>, QString>("op", "list", "elements", "expected");
        Row("add to blank", "add", "", QList<int>{7}, "7");
        Row("add appends in order", "add", "3,12", QList<int>{7}, "3,12,7");
        // Only three-digit numbers are found by the padded duplicate test.
        Row("add small twice duplicates", "add", "3", QList<int>{7, 7}, "3,7,7");
        Row("add three digits twice once", "add", "3", QList<int>{120, 120}, "3,120");
        Row("add padded match inside longer", "add", "1120", QList<int>{120}, "1120");
        Row("is in blank", "is", "", QList<int>{1}, "false");
        Row("is whole numbers not digits", "is", "3,12", QList<int>{1}, "false");
        Row("is found last", "is", "3,12", QList<int>{12}, "true");
        Row("is quoted item", "is", "\"5\",6", QList<int>{5}, "true");
        Row("remove every entry", "remove", "7,3,7", QList<int>{7}, "3");
        Row("remove neighbours of the same number", "remove", "7,7,7", QList<int>{7}, "");
        Row("remove absent", "remove", "1,2", QList<int>{9}, "1,2");
        Row("remove from blank", "remove", "", QList<int>{9}, "");
    }

    void assignments()
    {
        auto [op, list, elements, expected] =
            Fetch<QString, QString, QList<int>, QString>("op", "list", "elements", "expected");
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        const int row = AddScene(doc, "1", "1");
        doc.strips[row].set(StripField::Assignments, list);
        for (int element : elements) {
            if (op == "add")
                AddAssignment(doc, row, element);
            else if (op == "remove")
                RemoveAssignment(doc, row, element);
            else
                QCOMPARE(QString(IsAssigned(doc, row, element) ? "true" : "false"), expected);
        }
        if (op != "is")
            QCOMPARE(doc.strips[row][StripField::Assignments], expected);
        QVERIFY(prompter.prompts.isEmpty());
    }

    void badAssignmentItems()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        const int row = AddScene(doc, "1", "1");
        doc.strips[row].set(StripField::Assignments, "3,x,7");

        QVERIFY(IsAssigned(doc, row, 3)); // found before the bad item: no message
        QVERIFY(prompter.prompts.isEmpty());
        QVERIFY(!IsAssigned(doc, row, 7));
        QCOMPARE(prompter.texts(), QStringList{"Error reading stip assignments!"});
        QCOMPARE(prompter.prompts.last().kind, MessageKind::Error);
        // The editors and reports read up to the bad item and say so once.
        QCOMPARE(ReadStripAssignments(doc, row), QList<int>{3});
        QCOMPARE(prompter.prompts.size(), 2);
        QCOMPARE(AssignedElements(doc, row), (QList<int>{3, 7})); // the clipboard passes over it

        RemoveAssignment(doc, row, 3);
        QCOMPARE(prompter.texts().last(), "Error removing assignment!");
        QCOMPARE(doc.strips[row][StripField::Assignments], "3,x,7");
    }

    void readAssignmentList_data()
    {
        // atCommas: the board's reading
        // skip: unreadable items skipped, not ending the list
        Columns<QString, bool, bool, QList<int>, bool>("list", "atCommas", "skip", "numbers", "unreadable");
        using N = QList<int>;
        Row("blank", "", false, false, N{}, false);
        Row("ends at a bad item", "3,x,7", false, false, N{3}, true);
        Row("skips a bad item", "3,x,7", false, true, N{3, 7}, true);
        Row("empty item", "3,,7", false, false, N{3}, true);
        Row("trailing comma", "7,", false, false, N{7}, true);
        Row("blank separates", "3 7", false, false, N{3, 7}, false);
        Row("quoted item", "\"5\",6", false, false, N{5, 6}, false);
        Row("board: blank inside", "3 7,8", true, true, N{8}, true);
        Row("board: leading blank", " 7,8", true, true, N{7, 8}, false);
        Row("board: quoted item", "\"5\",6", true, true, N{6}, true);
        Row("duplicates kept", "7,7", true, true, N{7, 7}, false);
    }

    void readAssignmentList()
    {
        auto [list, atCommas, skip] = Fetch<QString, bool, bool>("list", "atCommas", "skip");
        const AssignmentRead read =
            ReadAssignmentList(list, skip ? UnreadableItem::Skipped : UnreadableItem::EndsList,
                               atCommas ? AssignmentItems::AtCommas : AssignmentItems::CommaText);
        QTEST(QList<int>(read.numbers.cbegin(), read.numbers.cend()), "numbers");
        QTEST(read.unreadable, "unreadable");
    }

    void formatPageLength_data()
    {
        Columns<double, QString>("pages", "expected");
        Row("zero", 0.0, "");
        Row("half is 4/8", 0.5, "4/8");
        Row("whole and eighths", 1.375, "1 3/8");
        Row("whole", 2.0, "2");
        Row("almost one", 0.9999, "1");
        Row("half an eighth rounds to even 0", 0.0625, "");
        Row("one and a half eighths rounds to 2", 0.1875, "2/8");
        Row("many pages", 123.875, "123 7/8");
        Row("7 and a half eighths carries", 3.9375, "4");
    }

    void formatPageLength()
    {
        QFETCH(double, pages);
        QTEST(FormatPageLength(pages), "expected");
    }

    void modifiedAndNew()
    {
        ScheduleDocument doc;
        RecordingStatus status{doc};
        RecordingView view{doc};

        AddScene(doc, "1", "1.5");
        AddDivider(doc);
        SetModified(doc);
        QVERIFY(doc.Modified);
        QCOMPARE(status.panels.value(StatusSink::ModifiedPanel), "Modified");
        QCOMPARE(doc.strips[2][StripField::PageLength], "1.5"); // the days were recalculated
        ClearModified(doc);
        QVERIFY(!doc.Modified);
        QCOMPARE(status.panels.value(StatusSink::ModifiedPanel), "");

        AddElement(doc, "ANNA");
        doc.values.PictureTitle = "Rain";
        doc.values.StartDate = "46087";
        doc.values.HoldDays = 3;
        doc.values.BoardZoom = 1.4;
        doc.values.UnitCall = "9:00 am";
        doc.crew[1].set(CrewField::Name, "Sam");
        doc.SelStart = doc.SelEnd = 1;
        doc.SelElement = 1;
        doc.marks[1] = true;
        doc.categories.removeLast();
        doc.FileName = "/tmp/x.tbf";
        SetModified(doc);

        NewDocument(doc);
        // Everything the file holds is as in a new program's document.
        QCOMPARE(ScheduleFileLines(doc), ScheduleFileLines(ScheduleDocument()));
        QCOMPARE(doc.categoryCount(), 15);
        QVERIFY(!doc.marks[1]);
        QVERIFY(doc.strips[1].isBlank());
        QCOMPARE(doc.SelStart, 0);
        QCOMPARE(doc.SelElement, -1);
        QVERIFY(!doc.Modified);
        QVERIFY(doc.FileName.isEmpty());
        QCOMPARE(status.panels.value(StatusSink::MessagePanel), "New file.");
        QCOMPARE(status.panels.value(StatusSink::ModifiedPanel), "");
        QCOMPARE(status.panels.value(StatusSink::DaysPanel), "");
        QCOMPARE(view.autosaveRestarts, 1);
        QCOMPARE(view.title, "Torvanbridge -   () ");
    }

    void newDocumentKeepsHighElementRows()
    {
        ScheduleDocument doc;
        for (int i = 1; i <= 250; ++i)
            AddElement(doc, QStringLiteral("E%1").arg(i));
        NewDocument(doc);
        // Only the first 200 rows are cleared; the rest are out of reach behind the count.
        QVERIFY(doc.elements[200].isBlank());
        QCOMPARE(doc.elements[201][ElementField::Description], "E201");
    }

    void capacityRefusesGrowth()
    {
        ScheduleDocument doc;
        for (int i = 1; i <= MaxStrips; ++i)
            QVERIFY(AddScene(doc, QString::number(i), "1") > 0);
        const StripRecord last = doc.strips[MaxStrips];

        Result full = doc.strips.insertRows(1, 1);
        QVERIFY(!full.ok());
        QVERIFY(full.message().contains("1000"));
        QCOMPARE(doc.strips.count(), MaxStrips);
        QCOMPARE(doc.strips[1][StripField::SceneNumber], "1");
        QVERIFY(doc.strips[MaxStrips] == last);

        doc.strips.removeRows(10, 5);
        QCOMPARE(doc.strips.count(), MaxStrips - 5);
        QCOMPARE(doc.strips[10][StripField::SceneNumber], "15");
        QVERIFY(!doc.strips.insertRows(1, 6).ok());
        QVERIFY(doc.strips.insertRows(1, 5).ok());
        QVERIFY(doc.strips[5].isBlank());
        QCOMPARE(doc.strips[6][StripField::SceneNumber], "1");

        for (int j = 1; j <= MaxElements; ++j)
            QVERIFY(AddElement(doc, "x") > 0);
        QCOMPARE(AddElement(doc, "one too many"), 0);
        QCOMPARE(doc.elements.count(), MaxElements);
    }
};

TB_TEST_GUILESS_MAIN(TestDocumentOperations)
#include "tst_documentoperations.moc"
