#include "SchedulingTestView.h"

#include "document/UndoStore.h"
#include "scheduling/DayDividers.h"

using namespace tb;
using namespace tb::test;

class TestDayDividers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addAtEnd()
    {
        Fixture f;
        Build(f.doc, {"1", "2", "3", "4", "5"});
        QVERIFY(AddDayDivider(f.doc).ok());

        QCOMPARE(Kinds(f.doc), "1 1 1 1 1 2");
        const StripRecord &row = f.doc.strips[6];
        QCOMPARE(row[StripField::StripColour], "clBlack");
        QCOMPARE(row[StripField::DayCount], "1");
        QCOMPARE(row[StripField::PageLength], "15"); // recalculated

        // A full table refuses, and nothing is changed.
        Fixture full;
        for (int i = 0; i < MaxStrips; ++i)
            AddScene(full.doc, QString::number(i), "1");
        const Result r = AddDayDivider(full.doc);
        QVERIFY(!r.ok());
        QVERIFY(r.message().contains("1000"));
        QCOMPARE(full.doc.strips.count(), MaxStrips);
        QCOMPARE(full.doc.undo.UndoDepth, 0);
    }
    void insert()
    {
        Fixture f;
        Build(f.doc, {"1", "2", "3"});
        const Result refused = InsertDayDivider(f.doc);
        QVERIFY(!refused.ok());
        QVERIFY(refused.message().isEmpty()); // already shown
        QCOMPARE(
            f.prompter.texts(),
            QStringList{"Ooops! You need to first select a position to insert the day divider. Please try again."});
        QCOMPARE(f.prompter.prompts.first().kind, MessageKind::Error);
        QCOMPARE(f.doc.undo.UndoDepth, 0);

        f.doc.SelStart = 2;
        f.doc.SelEnd = 3;
        QVERIFY(InsertDayDivider(f.doc).ok());
        QCOMPARE(Kinds(f.doc), "1 2 1 1");
        QCOMPARE(f.doc.strips[3][StripField::SceneNumber], "2");
        // The selection keeps its numbers: it now starts at the new divider.
        QCOMPARE(f.doc.SelStart, 2);
        QCOMPARE(f.doc.SelEnd, 3);

        // On strip 1 the divider goes first and closes an empty day 1.
        f.doc.SelStart = f.doc.SelEnd = 1;
        QVERIFY(InsertDayDivider(f.doc).ok());
        QCOMPARE(Kinds(f.doc), "2 1 2 1 1");
        QCOMPARE(f.doc.strips[1][StripField::PageLength], "0");
    }
    void removeAll_data()
    {
        Columns<Answer, QString>("answer", "expected");
        // With a start-day rule of "S1" a rest day follows each divider that ends day 1
        // modulo 7; removing the dividers removes the rest days that followed them.
        Row("yes", Answer::Yes, "1 4 1 1");
        Row("no", Answer::No, "1 2 3 4 1 2 1");
    }
    void removeAll()
    {
        QFETCH(Answer, answer);
        Fixture f;
        f.doc.values.AutoRestDayRule = "S1";
        Build(f.doc, {"1", "|", "B", "1", "|", "1"});
        QCOMPARE(Kinds(f.doc), "1 2 3 4 1 2 1");
        f.doc.SelStart = 3;
        f.doc.SelEnd = 4;
        f.prompter.answers = {answer};

        QCOMPARE(RemoveAllDayDividers(f.doc), answer == Answer::Yes);
        QCOMPARE(f.prompter.texts(),
                 QStringList{"Are you sure you wish to remove ALL day dividers from the schedule?"});
        QCOMPARE(f.prompter.prompts.first().buttons, Buttons::YesNo);
        QTEST(Kinds(f.doc), "expected");
        if (answer == Answer::No) {
            QCOMPARE(f.doc.undo.UndoDepth, 0);
            QCOMPARE(f.doc.SelStart, 3);
            return;
        }
        QCOMPARE(f.doc.SelStart, 0);
        QCOMPARE(f.doc.SelEnd, 0);
        QVERIFY(!HasDayDividers(f.doc));
        // Removing keeps the rest-day rule: with the dividers back, the rest days come back.
        f.doc.SelStart = f.doc.SelEnd = 2;
        QVERIFY(InsertDayDivider(f.doc).ok());
        QCOMPARE(Kinds(f.doc), "1 2 3 4 1 1");
    }
    void autoPages_data()
    {
        Columns<QStringList, int, AutoPagesMode, bool, QString>("board", "max", "mode", "remove", "expected");

        const auto keep = AutoPagesMode::Keep;
        const auto split = AutoPagesMode::Split;
        using L = QStringList;
        // The scene that overflows a day starts the next one, and the last day is closed.
        Row("overflow by a further scene", L{"2", "2", "2"}, 5, keep, true, "1 1 2 1 2");
        Row("exactly the maximum", L{"2.5", "2.5"}, 5, keep, true, "1 1 2");
        Row("eighths", L{"0.625", "0.375", "0.125"}, 1, keep, true, "1 1 2 1 2");
        // One scene longer than a day: kept whole, the next day starts empty.
        Row("long scene kept", L{"12", "1"}, 5, keep, true, "1 2 1 2");
        // Split: round(12 / 5) = 2 dividers after it, 7 pages carried, so the next scene
        // overflows at once as if alone: round(8 / 5) = 2 more, 3 pages carried and closed.
        Row("long scene split", L{"12", "1"}, 5, split, true, "1 2 2 1 2 2 2");
        // The carry alone exceeds the maximum: the last day stays open.
        Row("carry leaves the day open", L{"12"}, 5, split, true, "1 2 2");
        // Half rounds to even: 12.5 / 5 = 2.5 gives 2 dividers, 17.5 / 5 = 3.5 gives 4.
        Row("half to even, down", L{"12.5"}, 5, split, true, "1 2 2");
        Row("half to even, up", L{"17.5"}, 5, split, true, "1 2 2 2 2");
        // Split applies only to a scene alone; a day of several scenes gets one divider.
        Row("split of a full day", L{"3", "3"}, 5, split, true, "1 2 1 2");
        // Existing dividers go, banners stay where they were.
        Row("dividers removed", L{"1", "|", "B", "1", "|"}, 5, keep, true, "1 4 1 2");
        // Kept dividers do not end the page count: days are counted across them.
        Row("dividers kept", L{"3", "|", "3"}, 5, keep, false, "1 2 2 1 2");
        Row("no scenes", L{"B"}, 5, keep, true, "4");
        Row("empty scenes", L{"0", "0"}, 5, keep, true, "1 1");
    }
    void autoPages()
    {
        auto [board, max, mode, remove] =
            Fetch<QStringList, int, AutoPagesMode, bool>("board", "max", "mode", "remove");

        Fixture f;
        Build(f.doc, board);
        const QString before = Kinds(f.doc);
        f.doc.SelStart = f.doc.SelEnd = 1;
        const Result r = AutoDayDividers(f.doc, {max, mode, remove});
        QVERIFY2(r.ok(), qPrintable(r.message()));
        QTEST(Kinds(f.doc), "expected");
        QVERIFY(f.prompter.prompts.isEmpty());
        QCOMPARE(f.doc.SelStart, 0);

        // Dividers placed automatically carry nothing but their kind (and what the day
        // calculation writes).
        for (int i = 1; i <= f.doc.strips.count(); ++i) {
            if (f.doc.strips[i].isDayDivider() && remove)
                QCOMPARE(f.doc.strips[i][StripField::StripColour], "");
        }
        Undo(f.doc);
        QCOMPARE(Kinds(f.doc), before);
    }
    void autoPagesAsks()
    {
        Fixture f;
        Build(f.doc, {"1", "7", "6", "2"});
        f.doc.strips[3].set(StripField::SceneNumber, "12A");
        f.prompter.answers = {Answer::Yes, Answer::No};
        f.view.selectionAtRepaint.clear();
        QVERIFY(AutoDayDividers(f.doc, {5, AutoPagesMode::Ask, true}).ok());

        // Scene 2 (7 pages) overflows with scene 1: one divider before it. Alone it is
        // longer than a day: asked, split (round(1.4) = 1 divider), 2 pages carried.
        // Scene 12A: 2 + 6 = 8 pages alone: asked again, kept, one divider. Scene 4 closes.
        QCOMPARE(Kinds(f.doc), "1 2 1 2 1 2 1 2");
        const QStringList texts = f.prompter.texts();
        QCOMPARE(texts.size(), 2);
        QCOMPARE(texts.at(0),
                 "Scene 2 is longer than 5 pages. \r\rWould you like Torvanbridge to add dividers and / or "
                 "allow for the additional pages in the next day?\r\r");
        QVERIFY(texts.at(1).startsWith("Scene 12A is longer than 5 pages. "));
        QCOMPARE(f.prompter.prompts.at(0).kind, MessageKind::Confirmation);
        QCOMPARE(f.prompter.prompts.at(0).buttons, Buttons::YesNo);

        // Before each question the scene was scrolled to and selected; at the end the
        // selection is cleared and the board is back at the start.
        QCOMPARE(f.view.scrolls, (QList<int>{3, 5, 1}));
        QCOMPARE(f.view.selectionAtRepaint, (QList<int>{3, 5, 0}));
        QCOMPARE(f.doc.SelStart, 0);
    }
    void autoPagesAtCapacity_data()
    {
        Columns<int, bool>("scenes", "fits");
        // One-page scenes with a maximum of 1: a divider between every two scenes and one
        // at the end, so 500 scenes fill the table to exactly 1000 strips.
        Row("fits exactly", 500, true);
        Row("one strip too many", 501, false);
    }
    void autoPagesAtCapacity()
    {
        auto [scenes, fits] = Fetch<int, bool>("scenes", "fits");
        Fixture f;
        f.doc.values.AutoRestDayRule = "S";            // a rule without digits: no rest days
        Build(f.doc, QStringList(scenes, "1") << "|"); // the divider is removed first
        f.doc.SelStart = f.doc.SelEnd = 7;
        const StripTable before = f.doc.strips;

        const Result r = AutoDayDividers(f.doc, {1, AutoPagesMode::Keep, true});
        QCOMPARE(r.ok(), fits);
        if (fits) {
            QCOMPARE(f.doc.strips.count(), MaxStrips);
            QCOMPARE(f.doc.days.dividers, scenes);
            return;
        }
        QVERIFY(r.message().contains("1000"));
        // The table is as it was, row for row, and so is the selection.
        QCOMPARE(f.doc.strips.count(), before.count());
        for (int i = 1; i <= before.count(); ++i)
            QVERIFY(f.doc.strips[i] == before[i]);
        QCOMPARE(f.doc.SelStart, 7);
    }
};

TB_TEST_GUILESS_MAIN(TestDayDividers)
#include "tst_daydividers.moc"
