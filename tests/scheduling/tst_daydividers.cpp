#include "SchedulingTestView.h"
#include "TestSupport.h"

#include "document/DocumentOperations.h"
#include "document/UndoStore.h"
#include "scheduling/DayDividers.h"

#include <QTest>

using namespace tb;
using namespace tb::test;

namespace {

struct Fixture
{
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    SchedulingTestView view{doc};
    Fixture()
    {
        doc.setPrompter(&prompter);
        doc.setView(&view);
    }
};

// Scenes of the given page lengths ("12", "0.5"), a banner for "B" and a divider for "|".
void Build(ScheduleDocument &doc, const QStringList &strips)
{
    int scene = 0;
    for (const QString &s : strips) {
        if (s == "|")
            AddDivider(doc);
        else if (s == "B")
            AddBanner(doc, "Travel", 0);
        else
            AddScene(doc, QString::number(++scene), s);
    }
    SetModified(doc);
}

} // namespace

class TestDayDividers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addAtEnd();
    void addToAFullTableIsRefused();
    void insertNeedsASelection();
    void insertBeforeTheSelection();
    void removeAll_data();
    void removeAll();
    void autoPages_data();
    void autoPages();
    void autoPagesAsks();
    void autoPagesUndoes();
    void autoPagesAtCapacity_data();
    void autoPagesAtCapacity();
};

void TestDayDividers::addAtEnd()
{
    Fixture f;
    Build(f.doc, {"1", "2", "3", "4", "5"});
    f.doc.Modified = false;
    QVERIFY(AddDayDivider(f.doc).ok());

    QCOMPARE(Kinds(f.doc), "1 1 1 1 1 2");
    const StripRecord &row = f.doc.strips[6];
    QCOMPARE(row[StripField::StripColour], "clBlack");
    QCOMPARE(row[StripField::DayCount], "1");
    QCOMPARE(row[StripField::StripKind], "2");
    QCOMPARE(row[StripField::DayNumber], "1"); // recalculated
    QCOMPARE(row[StripField::PageLength], "15");
    QVERIFY(f.doc.Modified);
    QCOMPARE(f.doc.undoCaption, "Undo Add day divider");
    QCOMPARE(f.view.scrolls, QList<int>{3});
    QCOMPARE(f.view.selectionAtRepaint.size(), 1);
    QCOMPARE(f.doc.days.dividers, 1);
    QVERIFY(HasDayDividers(f.doc));
}

void TestDayDividers::addToAFullTableIsRefused()
{
    Fixture f;
    for (int i = 0; i < MaxStrips; ++i)
        AddScene(f.doc, QString::number(i), "1");
    const Result r = AddDayDivider(f.doc);
    QVERIFY(!r.ok());
    QVERIFY(r.message().contains("1000"));
    QCOMPARE(f.doc.strips.count(), MaxStrips);
    QCOMPARE(f.doc.undo.UndoDepth, 0);
}

void TestDayDividers::insertNeedsASelection()
{
    Fixture f;
    Build(f.doc, {"1", "2"});
    const Result r = InsertDayDivider(f.doc);
    QVERIFY(!r.ok());
    QVERIFY(r.message().isEmpty()); // already shown
    QCOMPARE(f.prompter.texts(),
             QStringList{"Ooops! You need to first select a position to insert the day divider. Please try again."});
    QCOMPARE(f.prompter.prompts.first().kind, MessageKind::Error);
    QCOMPARE(Kinds(f.doc), "1 1");
    QCOMPARE(f.doc.undo.UndoDepth, 0);
}

void TestDayDividers::insertBeforeTheSelection()
{
    Fixture f;
    Build(f.doc, {"1", "2", "3"});
    f.doc.SelStart = 2;
    f.doc.SelEnd = 3;
    QVERIFY(InsertDayDivider(f.doc).ok());
    QCOMPARE(Kinds(f.doc), "1 2 1 1");
    QCOMPARE(f.doc.strips[3][StripField::SceneNumber], "2");
    // The selection keeps its numbers: it now starts at the new divider.
    QCOMPARE(f.doc.SelStart, 2);
    QCOMPARE(f.doc.SelEnd, 3);
    QCOMPARE(f.doc.undoCaption, "Undo Insert day divider");

    // On strip 1 the divider goes first and closes an empty day 1.
    f.doc.SelStart = f.doc.SelEnd = 1;
    QVERIFY(InsertDayDivider(f.doc).ok());
    QCOMPARE(Kinds(f.doc), "2 1 2 1 1");
    QCOMPARE(f.doc.strips[1][StripField::PageLength], "0");
}

void TestDayDividers::removeAll_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("expected");
    // With a start-day rule of "S1" a rest day follows each divider that ends day 1
    // modulo 7; removing the dividers removes the rest days that followed them.
    QTest::newRow("yes") << Answer::Yes << "1 4 1 1";
    QTest::newRow("no") << Answer::No << "1 2 3 4 1 2 1";
}

void TestDayDividers::removeAll()
{
    QFETCH(Answer, answer);
    QFETCH(QString, expected);
    Fixture f;
    f.doc.values.AutoRestDayRule = "S1";
    Build(f.doc, {"1", "|", "B", "1", "|", "1"});
    QCOMPARE(Kinds(f.doc), "1 2 3 4 1 2 1");
    f.doc.SelStart = 3;
    f.doc.SelEnd = 4;
    f.prompter.answers = {answer};

    QCOMPARE(RemoveAllDayDividers(f.doc), answer == Answer::Yes);
    QCOMPARE(f.prompter.texts(), QStringList{"Are you sure you wish to remove ALL day dividers from the schedule?"});
    QCOMPARE(f.prompter.prompts.first().buttons, Buttons::YesNo);
    QCOMPARE(Kinds(f.doc), expected);
    if (answer == Answer::Yes) {
        QCOMPARE(f.doc.undoCaption, "Undo Remove all day dividers");
        QCOMPARE(f.doc.SelStart, 0);
        QCOMPARE(f.doc.SelEnd, 0);
        QCOMPARE(f.view.scrolls, QList<int>{1});
        QVERIFY(!HasDayDividers(f.doc));
        QCOMPARE(f.doc.days.banners, 1);
    } else {
        QCOMPARE(f.doc.undo.UndoDepth, 0);
        QCOMPARE(f.doc.SelStart, 3);
    }

    // Removing keeps the rest days: with the dividers back, they come back at once.
    if (answer == Answer::Yes) {
        f.doc.SelStart = f.doc.SelEnd = 2;
        QVERIFY(InsertDayDivider(f.doc).ok());
        QCOMPARE(Kinds(f.doc), "1 2 3 4 1 1");
    }
}

void TestDayDividers::autoPages_data()
{
    QTest::addColumn<QStringList>("board");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("remove");
    QTest::addColumn<QString>("expected");

    const int keep = int(AutoPagesMode::Keep);
    const int split = int(AutoPagesMode::Split);
    // The scene that overflows a day starts the next one, and the last day is closed.
    QTest::newRow("overflow by a further scene") << QStringList{"2", "2", "2"} << 5 << keep << true << "1 1 2 1 2";
    QTest::newRow("exactly the maximum") << QStringList{"2.5", "2.5"} << 5 << keep << true << "1 1 2";
    QTest::newRow("eighths") << QStringList{"0.625", "0.375", "0.125"} << 1 << keep << true << "1 1 2 1 2";
    // One scene longer than a day: kept whole, the next day starts empty.
    QTest::newRow("long scene kept") << QStringList{"12", "1"} << 5 << keep << true << "1 2 1 2";
    // Split: round(12 / 5) = 2 dividers after it, 7 pages carried, so the next scene
    // overflows at once as if alone: round(8 / 5) = 2 more, 3 pages carried and closed.
    QTest::newRow("long scene split") << QStringList{"12", "1"} << 5 << split << true << "1 2 2 1 2 2 2";
    // The carry alone exceeds the maximum: the last day stays open.
    QTest::newRow("carry leaves the day open") << QStringList{"12"} << 5 << split << true << "1 2 2";
    // Half rounds to even: 12.5 / 5 = 2.5 gives 2 dividers, 17.5 / 5 = 3.5 gives 4.
    QTest::newRow("half to even, down") << QStringList{"12.5"} << 5 << split << true << "1 2 2";
    QTest::newRow("half to even, up") << QStringList{"17.5"} << 5 << split << true << "1 2 2 2 2";
    // Split applies only to a scene alone; a day of several scenes gets one divider.
    QTest::newRow("split of a full day") << QStringList{"3", "3"} << 5 << split << true << "1 2 1 2";
    // Existing dividers go, banners stay where they were.
    QTest::newRow("dividers removed") << QStringList{"1", "|", "B", "1", "|"} << 5 << keep << true << "1 4 1 2";
    // Kept dividers do not end the page count: days are counted across them.
    QTest::newRow("dividers kept") << QStringList{"3", "|", "3"} << 5 << keep << false << "1 2 2 1 2";
    QTest::newRow("no scenes") << QStringList{"B"} << 5 << keep << true << "4";
    QTest::newRow("empty scenes") << QStringList{"0", "0"} << 5 << keep << true << "1 1";
}

void TestDayDividers::autoPages()
{
    QFETCH(QStringList, board);
    QFETCH(int, max);
    QFETCH(int, mode);
    QFETCH(bool, remove);
    QFETCH(QString, expected);

    Fixture f;
    Build(f.doc, board);
    f.doc.SelStart = f.doc.SelEnd = 1;
    const Result r = AutoDayDividers(f.doc, {max, AutoPagesMode(mode), remove});
    QVERIFY2(r.ok(), qPrintable(r.message()));
    QCOMPARE(Kinds(f.doc), expected);
    QVERIFY(f.prompter.prompts.isEmpty());
    QCOMPARE(f.doc.undoCaption, "Undo auto day dividers");
    QCOMPARE(f.doc.SelStart, 0);
    QCOMPARE(f.view.scrolls, QList<int>{1});

    // Dividers placed automatically carry nothing but their kind (and what the day
    // calculation writes).
    for (int i = 1; i <= f.doc.strips.count(); ++i) {
        if (f.doc.strips[i].isDayDivider() && remove)
            QCOMPARE(f.doc.strips[i][StripField::StripColour], "");
    }
}

void TestDayDividers::autoPagesAsks()
{
    Fixture f;
    Build(f.doc, {"1", "7", "6", "2"});
    f.doc.strips[3].set(StripField::SceneNumber, "12A");
    f.prompter.answers = {Answer::Yes, Answer::No};
    QVERIFY(AutoDayDividers(f.doc, {5, AutoPagesMode::Ask, true}).ok());

    // Scene 2 (7 pages) overflows with scene 1: one divider before it. Alone it is
    // longer than a day: asked, split (round(1.4) = 1 divider), 2 pages carried.
    // Scene 12A: 2 + 6 = 8 pages alone: asked again, kept, one divider. Scene 4 closes.
    QCOMPARE(Kinds(f.doc), "1 2 1 2 1 2 1 2");
    const QStringList texts = f.prompter.texts();
    QCOMPARE(texts.size(), 2);
    QCOMPARE(texts.at(0), "Scene 2 is longer than 5 pages. \r\rWould you like Torvanbridge to add dividers and / or "
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

void TestDayDividers::autoPagesUndoes()
{
    Fixture f;
    Build(f.doc, {"3", "|", "3", "4"});
    const QString before = Kinds(f.doc);
    QVERIFY(AutoDayDividers(f.doc, {5, AutoPagesMode::Keep, true}).ok());
    QCOMPARE(Kinds(f.doc), "1 2 1 2 1 2");
    Undo(f.doc);
    QCOMPARE(Kinds(f.doc), before);
}

void TestDayDividers::autoPagesAtCapacity_data()
{
    QTest::addColumn<int>("scenes");
    QTest::addColumn<bool>("fits");
    // One-page scenes with a maximum of 1: a divider between every two scenes and one
    // at the end, so 500 scenes fill the table to exactly 1000 strips.
    QTest::newRow("fits exactly") << 500 << true;
    QTest::newRow("one strip too many") << 501 << false;
}

void TestDayDividers::autoPagesAtCapacity()
{
    QFETCH(int, scenes);
    QFETCH(bool, fits);
    Fixture f;
    f.doc.values.AutoRestDayRule = "S"; // a rule without digits: no rest days
    for (int i = 0; i < scenes; ++i)
        AddScene(f.doc, QString::number(i + 1), "1");
    AddDivider(f.doc); // removed first
    SetModified(f.doc);
    f.doc.SelStart = f.doc.SelEnd = 7;
    const StripTable before = f.doc.strips;

    const Result r = AutoDayDividers(f.doc, {1, AutoPagesMode::Keep, true});
    QCOMPARE(r.ok(), fits);
    if (fits) {
        QCOMPARE(f.doc.strips.count(), MaxStrips);
        QCOMPARE(f.doc.days.dividers, scenes);
    } else {
        QVERIFY(r.message().contains("1000"));
        // The table is as it was, row for row, and so is the selection.
        QCOMPARE(f.doc.strips.count(), before.count());
        for (int i = 1; i <= before.count(); ++i)
            QVERIFY(f.doc.strips[i] == before[i]);
        QCOMPARE(f.doc.SelStart, 7);
    }
}

QTEST_GUILESS_MAIN(TestDayDividers)
#include "tst_daydividers.moc"
