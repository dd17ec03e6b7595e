#include "TestSupport.h"

#include "board/BoardMoves.h"
#include "document/UndoStore.h"

using namespace tb;
using namespace tb::test;

namespace {

// Scene numbers in board order, "|" for a divider.
QString Order(const ScheduleDocument &doc)
{
    QStringList out;
    for (int i = 1; i <= doc.strips.count(); ++i)
        out.append(doc.strips[i].isScene() ? doc.strips[i][StripField::SceneNumber] : QStringLiteral("|"));
    return out.join(u' ');
}

} // namespace

class TestBoardMoves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void moveStrips_data()
    {
        // label: blank: nothing moved, no undo level
        Columns<int, int, int, QString, int, int, QString>("selStart", "selEnd", "target", "order", "newStart",
                                                           "newEnd", "label");

        Row("3..5 before 9", 3, 5, 9, "1 2 6 7 8 3 4 5 9 10 11 12", 6, 8, "Move strips");
        Row("3..5 past the end", 3, 5, 13, "1 2 6 7 8 9 10 11 12 3 4 5", 10, 12, "Move strips");
        Row("8..9 before 2", 8, 9, 2, "1 8 9 2 3 4 5 6 7 10 11 12", 2, 3, "Move strips");
        Row("one strip to the front", 7, 7, 1, "7 1 2 3 4 5 6 8 9 10 11 12", 1, 1, "Move strip");
        Row("drop inside", 3, 5, 4, "1 2 3 4 5 6 7 8 9 10 11 12", 3, 5, "");
        Row("drop on the first", 3, 5, 3, "1 2 3 4 5 6 7 8 9 10 11 12", 3, 5, "");
        // Right after the selection is outside it: the strips go back where they were,
        // and the move is still a move (with its undo level).
        Row("drop just after", 3, 5, 6, "1 2 3 4 5 6 7 8 9 10 11 12", 3, 5, "Move strips");
        Row("nothing on the board selected", 14, 14, 2, "1 2 3 4 5 6 7 8 9 10 11 12", 14, 14, "");
        Row("selection runs past the end", 11, 15, 1, "11 12 1 2 3 4 5 6 7 8 9 10", 1, 2, "Move strips");
    }
    void moveStrips()
    {
        auto [selStart, selEnd, target, label] = Fetch<int, int, int, QString>("selStart", "selEnd", "target", "label");
        ScheduleDocument doc;
        for (int i = 1; i <= 12; ++i)
            AddScene(doc, QString::number(i), "1");
        doc.SelStart = selStart;
        doc.SelEnd = selEnd;
        doc.SelElement = -1;
        const bool moved = MoveStrips(doc, target);
        QCOMPARE(moved, !label.isEmpty());
        QTEST(Order(doc), "order");
        QTEST(doc.SelStart, "newStart");
        QTEST(doc.SelEnd, "newEnd");
        QCOMPARE(doc.undo.UndoDepth, label.isEmpty() ? 0 : 1);
        if (!label.isEmpty()) {
            QCOMPARE(doc.undo.levels[1].label, label);
            Undo(doc);
            QCOMPARE(Order(doc), "1 2 3 4 5 6 7 8 9 10 11 12");
        }
    }
    void dropTarget()
    {
        ScheduleDocument doc;
        for (int i = 1; i <= 5; ++i)
            AddScene(doc, QString::number(i), "1");
        QCOMPARE(DropTarget(doc, 3), 3);
        QCOMPARE(DropTarget(doc, 5), 5);
        QCOMPARE(DropTarget(doc, 6), 6);
        QCOMPARE(DropTarget(doc, 40), 6);
        QCOMPARE(DropTarget(doc, 0), 1);
    }
    void fieldsTravelWhole()
    {
        // Every field goes with the strip, and the day numbers are derived again at the
        // new place.
        ScheduleDocument doc;
        AddScene(doc, "1", "1");
        AddScene(doc, "2", "2.5", "N", "E");
        AddDivider(doc);
        AddScene(doc, "3", "1");
        doc.strips[2].set(StripField::Synopsis, "The storm breaks");
        doc.strips[2].set(StripField::Assignments, "1,4");
        doc.strips[2].set(StripField::Notes, "\"Rain\",\"Wind\"");
        const StripRecord before = doc.strips[2];
        doc.SelStart = doc.SelEnd = 2;
        QVERIFY(MoveStrips(doc, 5));
        QCOMPARE(Order(doc), "1 | 3 2");
        for (int f = 0; f < StripFieldCount; ++f) {
            if (f == int(StripField::DayNumber) || f == int(StripField::ShootDayNumber))
                continue;
            QCOMPARE(doc.strips[4].at(f), before.at(f));
        }
        QCOMPARE(doc.strips[4][StripField::DayNumber], "1");
        QCOMPARE(doc.strips[2][StripField::PageLength], "1");
    }
};

TB_TEST_MAIN(TestBoardMoves)
#include "tst_boardmoves.moc"
