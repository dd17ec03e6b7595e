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

        const BannerContent banner{QStringLiteral("Move"), {QStringLiteral("clRed"), QStringLiteral("clWhite")}, 0};
        Row("add scene", Operation([](auto &d) { (void)SaveScene(d, SceneMode::Add, 0, BlankScenePage(), {}); }),
            QString("add new scene"), 2);
        Row("edit scene", Operation([](auto &d) { (void)SaveScene(d, SceneMode::Edit, 1, BlankScenePage(), {}); }),
            QString("edit scene"), 0);
        Row("apply scene", Operation([](auto &d) { (void)ApplyScene(d, SceneMode::Insert, 2, BlankScenePage(), {}); }),
            QString("add / edit scene"), 0);
        Row("add divider", Operation([](auto &d) { (void)AddDayDivider(d); }), QString("Add day divider"), 4);
        Row("insert divider", strip(2, 2, [](auto &d) { (void)InsertDayDivider(d); }), QString("Insert day divider"),
            0);
        Row("remove dividers", Operation([](auto &d) { RemoveAllDayDividers(d); }), QString("Remove all day dividers"),
            1);
        Row("auto dividers", Operation([](auto &d) { (void)AutoDayDividers(d, {}); }), QString("auto day dividers"), 1);
        Row("add banner", Operation([=](auto &d) { (void)WriteBanner(d, BannerAddAtEnd, banner); }),
            QString("Add banner"), 3);
        Row("insert banner", strip(1, 1, [=](auto &d) { (void)WriteBanner(d, BannerInsert, banner); }),
            QString("Insert banner"), 0);
        Row("edit banner", strip(5, 5, [=](auto &d) { (void)WriteBanner(d, BannerEdit, banner); }),
            QString("Edit banner"), 0);
        Row("remove banners", Operation([](auto &d) { RemoveAllBanners(d); }), QString("Remove all banners"), 1);
        Row("move strip", strip(1, 1, [](auto &d) { MoveStrips(d, 4); }), QString("Move strip"), 0);
        Row("move strips", strip(1, 2, [](auto &d) { MoveStrips(d, 6); }), QString("Move strips"), 0);
        Row("cut strips", strip(1, 2, [](auto &d) { Cut(d); }), QString("Cut strip(s)"), 0);
        Row("cut element", element(2, [](auto &d) { Cut(d); }), QString("Cut element"), 0);
        Row("paste strips",
            strip(1, 1,
                  [](auto &d) {
                      CopySelection(d);
                      Paste(d);
                  }),
            QString("Paste strip(s)"), 0);
        Row("paste element",
            element(1,
                    [](auto &d) {
                        CopySelection(d);
                        Paste(d);
                    }),
            QString("Paste element"), 0);
        Row("delete strips", strip(2, 3, [](auto &d) { Delete(d); }), QString("Delete strip(s)"), 0);
        Row("delete element", element(1, [](auto &d) { Delete(d); }), QString("Delete element"), 0);
        Row("sort strips", Operation([](auto &d) { UpdateStrips(d, SortPreviewRows(d)); }), QString("sort strips"), 1);
        Row("sort elements", Operation([](auto &d) { SortElementsByCategory(d); }), QString("sort elements"), 0);
        Row("cast numbering", Operation([](auto &d) { ResetCastNumbering(d); }), QString("re-order elements"), 0);
        Row("sheet numbering", Operation([](auto &d) { ResetBreakdownNumbering(d); }),
            QString("reset breakdown numbering"), 0);
        Row("conform", Operation([](auto &d) {
                ConformList list;
                list.reset(d);
                list.enter(d.prompter(), "2");
                list.apply(d);
            }),
            QString("conform strips"), 0);
        Row("end of day", Operation([](auto &d) {
                (void)ApplyEndOfDay(d, QDate(2026, 3, 6), {{1, true}});
            }),
            QString("end of day"), 0);
        // Changes without undo.
        Row("start date", Operation([](auto &d) { ApplyStartDate(d, QDate(2026, 4, 1), QDate(2026, 1, 1)); }),
            QString(), 0);
        Row("rest days", Operation([](auto &d) { (void)ApplyRestDayRule(d, "D17"); }), QString(), 0);
        Row("lock strips", strip(1, 2, [](auto &d) { (void)LockStrips(d, QDate(2026, 3, 9)); }), QString(), 0);
        Row("production details", Operation([](auto &d) { WriteProductionDetails(d, ReadProductionDetails(d)); }),
            QString(), 0);
        Row("element", Operation([](auto &d) { (void)RecordElement(d, 1, ElementPageFromRecord(d.elements[1]), {}); }),
            QString(), 0);
        Row("rest days to banners", Operation([](auto &d) { ConvertAutoRestDaysToBanners(d, {}); }), QString(), 0);
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
