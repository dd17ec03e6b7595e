#include "TestSupport.h"

#include "breakdown/SceneEditing.h"
#include "document/LegacyText.h"
#include "document/ScheduleFile.h"

using namespace tb;
using namespace tb::test;

namespace {

class ScrollView : public DocumentView
{
public:
    void documentChanged(const ScheduleDocument &, const DocumentChange &change) override
    {
        if (change.firstStrip)
            scrolledTo = *change.firstStrip;
    }
    int scrolledTo = -1;
};

AssignmentFlags Flags(const ScheduleDocument &doc, const QList<int> &on)
{
    AssignmentFlags flags(doc.elements.count() + 1, false);
    for (int e : on)
        flags[e] = true;
    return flags;
}

// Five scenes A..E with values in the fields the editor never writes.
void FiveScenes(ScheduleDocument &doc)
{
    for (const char *scene : {"A", "B", "C", "D", "E"}) {
        const int row = AddScene(doc, scene, "1");
        StripRecord &s = doc.strips[row];
        s.set(StripField::Reserved8, QStringLiteral("r8-") + scene);
        s.set(StripField::Reserved12, QStringLiteral("r12-") + scene);
        s.set(StripField::LockDate, QStringLiteral("lock-") + scene);
        s.set(StripField::StripColour, QStringLiteral("colour-") + scene);
        s.set(StripField::DayCount, QStringLiteral("count-") + scene);
    }
}

QString SceneNumbers(const ScheduleDocument &doc)
{
    QStringList out;
    for (int i = 1; i <= doc.strips.count(); ++i)
        out.append(doc.strips[i].isScene() ? doc.strips[i][StripField::SceneNumber] : doc.strips[i].kind());
    return out.join(u' ');
}

} // namespace

class TestSceneEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lengthToSpins_data()
    {
        Columns<QString, int, int, int>("text", "lines", "whole", "eighths");
        Row("one eighth", "0.125", 56, 0, 1);
        Row("whole pages", "2", 56, 2, 0);
        Row("half", "0.5", 56, 0, 4);
        Row("eight eighths clamp to seven", "1.95", 56, 1, 7);
        // 0.06 of a page is under half an eighth but more than three lines of 56.
        Row("a few lines show one eighth", "2.06", 56, 2, 1);
        // 0.05 of a page is 2.8 lines of 56: under three lines, so no eighth.
        Row("under three lines", "2.05", 56, 2, 0);
        Row("over three lines of 100", "1.04", 100, 1, 1);
        Row("half an eighth rounds to even", "0.0625", 10, 0, 0);
        Row("not a number", "abc", 56, 0, 1);
        Row("comma decimal of old files", "1,375", 56, 1, 3);
        Row("more than the box holds", "12.5", 56, 9, 4);
    }
    void lengthToSpins()
    {
        auto [text, lines] = Fetch<QString, int>("text", "lines");
        int w = -1, e = -1;
        LengthToSpins(text, lines, &w, &e);
        QTEST(w, "whole");
        QTEST(e, "eighths");
    }
    void pageFromStrip()
    {
        ScheduleDocument doc;
        const int row = AddScene(doc, "12A", "1.375", "DSK", "I/E");
        StripRecord &s = doc.strips[row];
        s.set(StripField::Notes, legacy::JoinCommaText({"Rain, heavy", "Crane"}));
        s.set(StripField::Location, "HARBOUR");
        const ScenePage page = ScenePageFromStrip(s);
        QCOMPARE(page.scene, "12A");
        QCOMPARE(QList<int>({page.whole, page.eighths, page.time, page.intExt}), QList<int>({1, 3, 3, 2}));
        QCOMPARE(page.location, "HARBOUR");
        QCOMPARE(page.notes, QStringList({"Rain, heavy", "Crane"}));

        // Codes the editor does not know show its first item.
        s.set(StripField::DayNight, "X");
        s.set(StripField::IntExt, "");
        const ScenePage other = ScenePageFromStrip(s);
        QCOMPARE(other.time, 0);
        QCOMPARE(other.intExt, 0);
    }
    void newSceneIsOneEighth()
    {
        ScheduleDocument doc;
        AddScene(doc, "1", "1");
        doc.values.NextStripId = 7;
        ScenePage page = BlankScenePage();
        page.scene = "2";
        page.notes = {"one line", "two, with comma"};
        const ResultOf<int> row = RecordStrip(doc, SceneMode::Add, 0, page, Flags(doc, {}));
        QVERIFY(row.ok());
        QCOMPARE(row.value(), 2);
        const StripRecord &s = doc.strips[2];
        QCOMPARE(s[StripField::PageLength], "0.125");
        QCOMPARE(s.kind(), "1");
        QCOMPARE(s[StripField::StripId], "8");
        QCOMPARE(doc.values.NextStripId, 8);
        QCOMPARE(s[StripField::IntExt], "I");
        QCOMPARE(s[StripField::DayNight], "D");
        QCOMPARE(legacy::SplitCommaText(s[StripField::Notes]), page.notes);
        QCOMPARE(doc.SelElement, -1);
        QVERIFY(doc.Modified);
    }
    void zeroLengthIsRefused()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        AddScene(doc, "1", "1");
        ScenePage page = BlankScenePage();
        page.eighths = 0;
        const ResultOf<int> row = SaveScene(doc, SceneMode::Add, 0, page, {});
        QVERIFY(!row.ok());
        QCOMPARE(
            prompter.texts(),
            QStringList{"Oops! Scene must be a minimum of 1/8ths of a page long. Please enter the correct number of "
                        "pages / eights of a page."});
        QCOMPARE(prompter.prompts.first().kind, MessageKind::Error);
        QCOMPARE(doc.strips.count(), 1);
        QCOMPARE(doc.values.NextStripId, 1);
        // A refused scene takes no undo step (the earlier edition took one).
        QCOMPARE(doc.undo.UndoDepth, 0);
        QVERIFY(!doc.Modified);
    }
    void insertStartsAsCopyOfThePlace()
    {
        ScheduleDocument doc;
        FiveScenes(doc);
        ScenePage page = BlankScenePage();
        page.scene = "NEW";
        page.location = "PIER";
        const ResultOf<int> row = RecordStrip(doc, SceneMode::Insert, 3, page, Flags(doc, {}));
        QVERIFY(row.ok());
        QCOMPARE(row.value(), 3);
        QCOMPARE(SceneNumbers(doc), "A B NEW C D E");
        const StripRecord &s = doc.strips[3];
        for (StripField kept : {StripField::Reserved8, StripField::Reserved12, StripField::LockDate,
                                StripField::StripColour, StripField::DayCount})
            QCOMPARE(s[kept], doc.strips[4][kept]);
        QCOMPARE(s[StripField::StripId], "6");
        QCOMPARE(s[StripField::Location], "PIER");
        QCOMPARE(doc.strips[4][StripField::StripId], "3");
    }
    void editKeepsTheStripAndRebuildsAssignments()
    {
        ScheduleDocument doc;
        FiveScenes(doc);
        for (int i = 1; i <= 8; ++i)
            AddElement(doc, QStringLiteral("E%1").arg(i));
        doc.strips[2].set(StripField::Assignments, "7,3,3");
        ScenePage page = ScenePageFromStrip(doc.strips[2]);
        page.synopsis = "Changed";
        const ResultOf<int> row = RecordStrip(doc, SceneMode::Edit, 2, page, Flags(doc, {7, 1, 3, 8}));
        QVERIFY(row.ok());
        QCOMPARE(row.value(), 2);
        QCOMPARE(doc.strips.count(), 5);
        QCOMPARE(doc.strips[2][StripField::Assignments], "1,3,7,8");
        QCOMPARE(doc.strips[2][StripField::Synopsis], "Changed");
        QCOMPARE(doc.strips[2][StripField::StripId], "2");
        QCOMPARE(doc.strips[2][StripField::Reserved8], "r8-B");
        QCOMPARE(doc.values.NextStripId, 5);
    }
    void flagsOnlyInEditMode()
    {
        ScheduleDocument doc;
        AddScene(doc, "1", "1");
        for (int i = 1; i <= 4; ++i)
            AddElement(doc, QStringLiteral("E%1").arg(i));
        doc.strips[1].set(StripField::Assignments, "4,2,9");
        const AssignmentFlags edit = SceneAssignmentFlags(doc, SceneMode::Edit, 1);
        QCOMPARE(edit, AssignmentFlags({false, false, true, false, true}));
        QCOMPARE(SceneAssignmentFlags(doc, SceneMode::Add, 1), AssignmentFlags(5, false));
        QCOMPARE(SceneAssignmentFlags(doc, SceneMode::Insert, 1), AssignmentFlags(5, false));
    }
    void scrollAfterAppend()
    {
        // Five strips before the end, or the last strip itself on a short board.
        QCOMPARE(
            QList<int>({ScrollPositionAfterAppend(3), ScrollPositionAfterAppend(6), ScrollPositionAfterAppend(10)}),
            QList<int>({3, 1, 5}));
    }
    void fullTableIsRefused()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        for (int i = 0; i < MaxStrips; ++i)
            AddScene(doc, QString::number(i), "1");
        const int next = doc.values.NextStripId;
        QVERIFY(!RecordStrip(doc, SceneMode::Add, 0, BlankScenePage(), {}).ok());
        QVERIFY(!RecordStrip(doc, SceneMode::Insert, 5, BlankScenePage(), {}).ok());
        QCOMPARE(doc.strips.count(), MaxStrips);
        QCOMPARE(doc.values.NextStripId, next);
        QCOMPARE(prompter.prompts.size(), 2);
    }
    void rowFoundAfterRestDaysMove()
    {
        // The example's rest day rule puts rest days after its last divider as soon as a
        // scene starts a new day there, which moves the appended strip.
        ScheduleDocument doc;
        QVERIFY(OpenDocument(doc, QStringLiteral(TB_SOURCE_DIR) + "/examples/harbour-lights.tbf").ok());
        const int before = doc.strips.count();
        ScenePage page = BlankScenePage();
        page.scene = "61";
        const ResultOf<int> row = SaveScene(doc, SceneMode::Add, 0, page, {});
        QVERIFY(row.ok());
        QVERIFY(doc.strips.count() > before + 1);
        QCOMPARE(doc.strips[row.value()][StripField::SceneNumber], "61");
        QCOMPARE(doc.strips[row.value()][StripField::StripId], QString::number(doc.values.NextStripId));
    }
    void pickListsFromStrips()
    {
        ScheduleDocument doc;
        // A value that is part of a listed one is left out; the test counts letter case,
        // and a value longer than a listed one is an item of its own.
        for (const char *loc : {"BARN", "BAR", "", "ATTIC", "BARN", "barn", "BARNYARD"}) {
            const int row = AddScene(doc, "1", "1");
            doc.strips[row].set(StripField::Location, loc);
        }
        doc.strips[1].set(StripField::SetName, "Kitchen");
        const int banner = AddBanner(doc, "Travel");
        doc.strips[banner].set(StripField::Location, "ROAD"); // every strip counts
        doc.locationPickList = {"stale"};
        RebuildPickLists(doc);
        QCOMPARE(doc.locationPickList, QStringList({"ATTIC", "BARN", "barn", "BARNYARD", "ROAD"}));
        QCOMPARE(doc.setPickList, QStringList({"Kitchen"}));

        // Saving a scene adds its values.
        ScenePage page = BlankScenePage();
        page.location = "CELLAR";
        page.set = "Kit"; // part of Kitchen: not added
        QVERIFY(RecordStrip(doc, SceneMode::Add, 0, page, {}).ok());
        QVERIFY(RecordStrip(doc, SceneMode::Add, 0, BlankScenePage(), {}).ok()); // blank: nothing added
        QCOMPARE(doc.locationPickList, QStringList({"ATTIC", "BARN", "barn", "BARNYARD", "CELLAR", "ROAD"}));
        QCOMPARE(doc.setPickList, QStringList({"Kitchen"}));
    }
    void stepToScene_data()
    {
        // board: S scene, D divider, B banner
        Columns<QString, int, int, int, bool, bool>("board", "from", "direction", "index", "found", "atLimit");
        Row("next scene", "SSDS", 1, 1, 2, true, false);
        Row("over a divider", "SSDS", 2, 1, 4, true, true);
        Row("only dividers follow", "SSDSDD", 4, 1, 6, false, true);
        Row("previous over a banner", "SBSS", 3, -1, 1, true, true);
        Row("previous in the middle", "SSBS", 4, -1, 2, true, false);
        Row("previous runs off", "DBSS", 3, -1, 1, false, true);
    }
    void stepToScene()
    {
        auto [board, from, direction, index, found] =
            Fetch<QString, int, int, int, bool>("board", "from", "direction", "index", "found");
        ScheduleDocument doc;
        ScrollView view;
        doc.setView(&view);
        for (QChar c : board) {
            if (c == u'S')
                AddScene(doc, "1", "1");
            else if (c == u'D')
                AddDivider(doc);
            else
                AddBanner(doc, "b");
        }
        const SceneStep step = StepToScene(doc, from, direction);
        QCOMPARE(step.index, index);
        QCOMPARE(step.found, found);
        QTEST(step.atLimit, "atLimit");
        QCOMPARE(doc.SelStart, index);
        QCOMPARE(doc.SelEnd, index);
        if (found)
            QCOMPARE(view.scrolledTo, index);
    }
    void memoLines_data()
    {
        Columns<QString, QStringList>("text", "lines");
        Row("empty", "", QStringList());
        Row("one", "a b", QStringList{"a b"});
        Row("final break", "a\nb\n", QStringList{"a", "b"});
        Row("inner empty line", "a\n\nb", QStringList{"a", "", "b"});
        Row("carriage returns", "a\r\nb", QStringList{"a", "b"});
    }
    void memoLines()
    {
        auto [text, lines] = Fetch<QString, QStringList>("text", "lines");
        QCOMPARE(MemoLines(text), lines);
    }
};

TB_TEST_GUILESS_MAIN(TestSceneEditing)
#include "tst_sceneediting.moc"
