#include "SchedulingTestView.h"

#include "board/BoardMoves.h"
#include "breakdown/ElementEditing.h"
#include "breakdown/ProductionDetails.h"
#include "breakdown/SceneEditing.h"
#include "breakdown/StripOrder.h"
#include "document/Clipboard.h"
#include "scheduling/Banners.h"
#include "scheduling/Calendar.h"
#include "scheduling/DayDividers.h"
#include "scheduling/EndOfDay.h"
#include "scheduling/StripLocking.h"

#include <functional>

using namespace tb;
using namespace tb::test;

namespace {

using Operation = std::function<void(ScheduleDocument &)>;

// RecalculateDays writes the days panel once per run, so counting those writes
// counts the recalculations.
class CountingStatus : public NullStatusSink
{
public:
    void setPanelText(int panel, const QString &) override { recalculations += panel == DaysPanel; }
    int recalculations = 0;
};

class CountingView : public DocumentView
{
public:
    void documentChanged(const ScheduleDocument &, const DocumentChange &change) override
    {
        ++notifications;
        firstStrip = change.firstStrip.value_or(0);
    }
    int notifications = 0;
    int firstStrip = 0;
};

// Scenes 1..3, a divider, a banner, scene 4; two elements, the first cast.
void Board(ScheduleDocument &doc)
{
    AddScene(doc, "1", "2");
    AddScene(doc, "2", "3");
    AddScene(doc, "3", "1");
    AddDivider(doc);
    AddBanner(doc, "Travel", 1);
    AddScene(doc, "4", "1");
    AddElement(doc, "ANNA", 1, "1");
    AddElement(doc, "CAR", 4, "V");
    AddAssignment(doc, 1, 1);
    doc.values.StartDate = FridayMarch6;
    SetModified(doc);
}

Operation op(const Operation &operation)
{
    return operation;
}

Operation strip(int first, int last, const Operation &op)
{
    return [=](ScheduleDocument &doc) {
        doc.SelStart = first;
        doc.SelEnd = last;
        op(doc);
    };
}

Operation element(int row, const Operation &op)
{
    return [=](ScheduleDocument &doc) {
        doc.SelElement = row;
        op(doc);
    };
}

} // namespace

class TestEditPath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Every changing command takes one snapshot under its label (none where it has no
    // undo), derives the days once and tells the views once.
    void oneSnapshotOneRecalculationOneNotification_data()
    {
        // label: empty: no snapshot
        // firstStrip: the scroll asked of the board, 0 none
        Columns<Operation, QString, int>("operation", "label", "firstStrip");

        const Operation copyPaste = [](ScheduleDocument &d) {
            CopySelection(d);
            Paste(d);
        };
        const BannerContent banner{QStringLiteral("Move"), {QStringLiteral("clRed"), QStringLiteral("clWhite")}, 0};
        Row("add scene", op([](auto &d) { (void)SaveScene(d, SceneMode::Add, 0, BlankScenePage(), {}); }),
            "add new scene", 2);
        Row("edit scene", op([](auto &d) { (void)SaveScene(d, SceneMode::Edit, 1, BlankScenePage(), {}); }),
            "edit scene", 0);
        Row("insert scene", op([](auto &d) { (void)SaveScene(d, SceneMode::Insert, 2, BlankScenePage(), {}); }),
            "add new scene", 0);
        Row("apply scene", op([](auto &d) { (void)ApplyScene(d, SceneMode::Insert, 2, BlankScenePage(), {}); }),
            "add / edit scene", 0);
        Row("add divider", op([](auto &d) { (void)AddDayDivider(d); }), "Add day divider", 4);
        Row("insert divider", strip(2, 2, [](auto &d) { (void)InsertDayDivider(d); }), "Insert day divider", 0);
        Row("remove dividers", op([](auto &d) { RemoveAllDayDividers(d); }), "Remove all day dividers", 1);
        Row("auto dividers", op([](auto &d) { (void)AutoDayDividers(d, {}); }), "auto day dividers", 1);
        Row("add banner", op([=](auto &d) { (void)WriteBanner(d, BannerAddAtEnd, banner); }), "Add banner", 3);
        Row("insert banner", strip(1, 1, [=](auto &d) { (void)WriteBanner(d, BannerInsert, banner); }), "Insert banner",
            0);
        Row("edit banner", strip(5, 5, [=](auto &d) { (void)WriteBanner(d, BannerEdit, banner); }), "Edit banner", 0);
        Row("remove banners", op([](auto &d) { RemoveAllBanners(d); }), "Remove all banners", 1);
        Row("move strip", strip(1, 1, [](auto &d) { MoveStrips(d, 4); }), "Move strip", 0);
        Row("move strips", strip(1, 2, [](auto &d) { MoveStrips(d, 6); }), "Move strips", 0);
        Row("cut strips", strip(1, 2, [](auto &d) { Cut(d); }), "Cut strip(s)", 0);
        Row("cut element", element(2, [](auto &d) { Cut(d); }), "Cut element", 0);
        Row("paste strips", strip(1, 1, copyPaste), "Paste strip(s)", 0);
        Row("paste element", element(1, copyPaste), "Paste element", 0);
        Row("delete strips", strip(2, 3, [](auto &d) { Delete(d); }), "Delete strip(s)", 0);
        Row("delete element", element(1, [](auto &d) { Delete(d); }), "Delete element", 0);
        Row("sort strips", op([](auto &d) { UpdateStrips(d, SortPreviewRows(d)); }), "sort strips", 1);
        Row("sort elements", op([](auto &d) { SortElementsByCategory(d); }), "sort elements", 0);
        Row("cast numbering", op([](auto &d) { ResetCastNumbering(d); }), "re-order elements", 0);
        Row("sheet numbering", op([](auto &d) { ResetBreakdownNumbering(d); }), "reset breakdown numbering", 0);
        Row("conform", op([](auto &d) {
                ConformList list;
                list.reset(d);
                list.enter(d.prompter(), "2");
                list.apply(d);
            }),
            "conform strips", 0);
        Row("end of day", op([](auto &d) { (void)ApplyEndOfDay(d, QDate(2026, 3, 6), {{1, true}}); }), "end of day", 0);
        // Changes without undo.
        Row("start date", op([](auto &d) { ApplyStartDate(d, QDate(2026, 4, 1), QDate(2026, 1, 1)); }), "", 0);
        Row("rest days", op([](auto &d) { (void)ApplyRestDayRule(d, "D17"); }), "", 0);
        Row("lock strips", strip(1, 2, [](auto &d) { (void)LockStrips(d, QDate(2026, 3, 9)); }), "", 0);
        Row("production details", op([](auto &d) { WriteProductionDetails(d, ReadProductionDetails(d)); }), "", 0);
        Row("element", op([](auto &d) { (void)RecordElement(d, 1, ElementPageFromRecord(d.elements[1]), {}); }), "", 0);
        Row("rest days to banners", op([](auto &d) { ConvertAutoRestDaysToBanners(d, {}); }), "", 0);
    }

    void oneSnapshotOneRecalculationOneNotification()
    {
        auto [operation, label] = Fetch<Operation, QString>("operation", "label");
        ScheduleDocument doc;
        Board(doc);
        doc.undo.levels[1].label = QStringLiteral("before");
        const int depth = doc.undo.UndoDepth;
        CountingStatus status;
        CountingView view;
        doc.setStatusSink(&status);
        doc.setView(&view);

        operation(doc);

        QVERIFY(doc.Modified);
        QCOMPARE(doc.undo.UndoDepth, depth + (label.isEmpty() ? 0 : 1));
        QCOMPARE(doc.undo.levels[1].label, label.isEmpty() ? QStringLiteral("before") : label);
        QCOMPARE(status.recalculations, 1);
        QCOMPARE(view.notifications, 1);
        QTEST(view.firstStrip, "firstStrip");
    }
};

TB_TEST_GUILESS_MAIN(TestEditPath)
#include "tst_editpath.moc"
