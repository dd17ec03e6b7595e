#include "TestSupport.h"

#include "document/Clipboard.h"
#include "document/DayCalculation.h"
#include "document/UndoStore.h"

#include <QRandomGenerator>

using namespace tb;
using namespace tb::test;

namespace {

QString Scenes(const ScheduleDocument &doc)
{
    QStringList out;
    for (int i = 1; i <= doc.strips.count(); ++i)
        out.append(doc.strips[i].isScene()       ? doc.strips[i][StripField::SceneNumber]
                   : doc.strips[i].kind() == "2" ? "|"
                                                 : doc.strips[i].kind());
    return out.join(u' ');
}

QString Assigned(const ScheduleDocument &doc, int strip)
{
    return doc.strips[strip][StripField::Assignments];
}

// Shows the Undo and Redo entries as the window does, from the store at each notification.
class UndoView : public DocumentView
{
public:
    void documentChanged(const ScheduleDocument &doc, const DocumentChange &change) override
    {
        const UndoCommandState state = UndoCommands(doc.undo);
        undoEnabled = state.undoEnabled;
        undoCaption = state.undoCaption;
        redoEnabled = state.redoEnabled;
        redoCaption = state.redoCaption;
        if (change.scrollPositions)
            h = change.scrollPositions->first;
    }
    int horizontalScroll() const override { return h; }
    bool undoEnabled = false, redoEnabled = false;
    QString undoCaption, redoCaption;
    int h = 0;
};

} // namespace

class TestUndoClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tenLevels()
    {
        ScheduleDocument doc;
        UndoView view;
        doc.setView(&view);
        for (int i = 1; i <= 11; ++i) {
            DocumentEdit edit(doc, QStringLiteral("step %1").arg(i));
            AddScene(doc, QString::number(i), "1");
        }
        QCOMPARE(doc.undo.UndoDepth, 10);
        QCOMPARE(view.undoCaption, "Undo step 11");
        QVERIFY(!view.redoEnabled);
        Undo(doc);
        QCOMPARE(doc.strips.count(), 10);
        QVERIFY(view.redoEnabled);
        QCOMPARE(view.redoCaption, "Redo step 2"); // the label left at level 9
        QCOMPARE(view.undoCaption, "Undo step 10");
        Redo(doc); // exists, and does nothing
        QCOMPARE(doc.strips.count(), 10);
        for (int i = 2; i <= 10; ++i)
            Undo(doc);
        QCOMPARE(doc.strips.count(), 1);
        QCOMPARE(doc.undo.UndoDepth, 0);
        QVERIFY(!view.undoEnabled);
        QCOMPARE(view.undoCaption, "Undo");
    }

    void undoRestoresTablesAndScroll()
    {
        ScheduleDocument doc;
        UndoView view;
        doc.setView(&view);
        AddScene(doc, "1", "1");
        AddElement(doc, "ANNA");
        view.h = 7;
        {
            DocumentEdit edit(doc, "edit scene");
            doc.strips[1].set(StripField::SceneNumber, "1A");
            doc.values.NextStripId = 42;
            AddElement(doc, "BEN");
        }
        QVERIFY(doc.Modified);
        view.h = 1;
        Undo(doc);
        QCOMPARE(doc.strips[1][StripField::SceneNumber], "1");
        QCOMPARE(doc.elements.count(), 1);
        QCOMPARE(doc.values.NextStripId, 1);
        QCOMPARE(view.h, 7);

        // New takes no snapshot: Undo after it brings back the tables of the last one.
        TakeUndoSnapshot(doc, "add new scene");
        AddScene(doc, "2", "1");
        NewDocument(doc);
        Undo(doc);
        QCOMPARE(Scenes(doc), "1");
    }

    void shiftedLevelsCopyOnlyCurrentRows()
    {
        // Levels move by the current document's counts: rows above that count keep what
        // the level held before, stale or not. Compare with a literal model of the store:
        // plain arrays of all 1000 rows, copied row by row, under random edits.
        struct Model
        {
            QList<QStringList> levels = QList<QStringList>(MaxUndoLevels + 1, QStringList(MaxStrips + 1));
            QList<int> counts = QList<int>(MaxUndoLevels + 1, 0);
            QStringList doc = QStringList(MaxStrips + 1);
            int count = 0;
            void shift(int from, int to, int n)
            {
                for (int r = 1; r <= n; ++r)
                    levels[to][r] = levels[from][r];
                counts[to] = counts[from];
            }
        } model;

        ScheduleDocument doc;
        QRandomGenerator rng(5);
        int serial = 0;
        for (int step = 0; step < 400; ++step) {
            const int op = rng.bounded(4);
            if (op == 0 || doc.strips.count() < 3) { // snapshot, then add a scene
                TakeUndoSnapshot(doc, "add");
                for (int k = MaxUndoLevels - 1; k >= 1; --k)
                    model.shift(k, k + 1, model.count);
                for (int r = 1; r <= model.count; ++r)
                    model.levels[1][r] = model.doc[r];
                model.counts[1] = model.count;
                const QString name = QString::number(++serial);
                AddScene(doc, name, "1");
                model.doc[++model.count] = name;
            } else if (op == 1) { // delete some rows (no snapshot: the stale rows stay behind)
                const int first = 1 + rng.bounded(doc.strips.count());
                const int n = qMin(1 + int(rng.bounded(3)), doc.strips.count() - first + 1);
                doc.strips.removeRows(first, n);
                for (int r = first; r + n <= model.count; ++r)
                    model.doc[r] = model.doc[r + n];
                model.count -= n;
            } else if (op == 2) { // rename a row
                const int row = 1 + rng.bounded(doc.strips.count());
                const QString name = QString::number(++serial);
                doc.strips[row].set(StripField::SceneNumber, name);
                model.doc[row] = name;
            } else { // undo
                Undo(doc);
                model.count = model.counts[1];
                for (int r = 1; r <= model.count; ++r)
                    model.doc[r] = model.levels[1][r];
                for (int k = 2; k <= MaxUndoLevels; ++k)
                    model.shift(k, k - 1, model.count);
            }
            QCOMPARE(doc.strips.count(), model.count);
            for (int r = 1; r <= model.count; ++r)
                QCOMPARE(doc.strips[r][StripField::SceneNumber], model.doc[r]);
        }
    }

    void copyPasteStrips()
    {
        ScheduleDocument doc;
        for (int i = 1; i <= 4; ++i)
            AddScene(doc, QString::number(i), "1");
        doc.strips[2].set(StripField::Assignments, "3,12");
        doc.SelStart = 2;
        doc.SelEnd = 3;
        Copy(doc);
        doc.SelStart = doc.SelEnd = 1;
        Paste(doc);
        QCOMPARE(Scenes(doc), "2 3 1 2 3 4");
        QCOMPARE(doc.strips[1][StripField::StripId], "5"); // new serials for pasted scenes
        QCOMPARE(doc.strips[2][StripField::StripId], "6");
        QCOMPARE(Assigned(doc, 1), "3,12"); // assignments pasted unchanged
    }

    void restDaysAreNotCopiedOrDeleted()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        doc.values.AutoRestDayRule = "S1";
        AddScene(doc, "1", "1");
        AddDivider(doc);
        AddScene(doc, "2", "1");
        RecalculateDays(doc);
        QCOMPARE(Kinds(doc), "1 2 3 1");
        // Copying only a rest day copies nothing, and pasting that adds nothing.
        doc.SelStart = doc.SelEnd = 3;
        CopySelection(doc);
        Delete(doc);
        QCOMPARE(Kinds(doc), "1 2 3 1");
        QVERIFY(prompter.texts().value(0).startsWith("You cannot manually delete auto-rest day banners."));
        doc.SelStart = doc.SelEnd = 1;
        Paste(doc);
        QCOMPARE(Kinds(doc), "1 2 3 1");
        // Deleting the run before a rest day steps over the rest day once per step, so
        // the scene after it moves up and the divider's row is left standing.
        doc.SelStart = 1;
        doc.SelEnd = 2;
        Delete(doc);
        QCOMPARE(Scenes(doc), "2 |");
    }

    void cutAndDeleteStrips()
    {
        ScheduleDocument doc;
        for (int i = 1; i <= 5; ++i)
            AddScene(doc, QString::number(i), "1");
        doc.SelStart = 2;
        doc.SelEnd = 3;
        Cut(doc);
        QCOMPARE(Scenes(doc), "1 4 5");
        QCOMPARE(doc.SelStart, 0);
        QCOMPARE(doc.SelElement, -1);
        doc.SelStart = doc.SelEnd = 3;
        Paste(doc);
        QCOMPARE(Scenes(doc), "1 4 2 3 5");
        doc.SelStart = 1;
        doc.SelEnd = 2;
        Delete(doc);
        QCOMPARE(Scenes(doc), "2 3 5");
        Undo(doc);
        QCOMPARE(Scenes(doc), "1 4 2 3 5");
    }

    void pasteAndDeleteElementRenumber()
    {
        ScheduleDocument doc;
        for (int j = 1; j <= 5; ++j)
            AddElement(doc, QStringLiteral("E%1").arg(j));
        for (int i = 1; i <= 3; ++i)
            AddScene(doc, QString::number(i), "1");
        doc.strips[1].set(StripField::Assignments, "1,3,5");
        doc.strips[2].set(StripField::Assignments, "2,4");
        doc.strips[3].set(StripField::Assignments, "4");
        doc.SelElement = 4; // E4: on strips 2 and 3
        Copy(doc);
        doc.SelElement = 3;
        Paste(doc);
        QCOMPARE(doc.elements.count(), 6);
        QCOMPARE(doc.elements[3][ElementField::Description], "E4");
        QCOMPARE(doc.elements[4][ElementField::Description], "E3");
        QCOMPARE(Assigned(doc, 1), "1,6,4"); // 5 -> 6, then 3 -> 4
        QCOMPARE(Assigned(doc, 2), "2,5,3");
        QCOMPARE(Assigned(doc, 3), "5,3");

        // Deleting an element takes it out of the lists and moves the later numbers down.
        doc.strips[1].set(StripField::Assignments, "1,2,5");
        doc.SelElement = 2;
        Delete(doc);
        QCOMPARE(doc.elements.count(), 5);
        QCOMPARE(doc.elements[2][ElementField::Description], "E4");
        QCOMPARE(Assigned(doc, 1), "1,4");
    }

    void pasteRefusedWhenFull()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        while (doc.strips.count() < MaxStrips)
            AddScene(doc, "x", "1");
        doc.SelStart = 1;
        doc.SelEnd = 2;
        Copy(doc);
        Paste(doc);
        QCOMPARE(doc.strips.count(), MaxStrips);
        QCOMPARE(doc.undo.UndoDepth, 0);
        QVERIFY(prompter.texts().value(0).contains("at most 1000 strips"));
    }

    void nothingToCopy()
    {
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        Copy(doc);
        QCOMPARE(prompter.texts(), QStringList{"Nothing selected to copy! Please select some strips and try again."});
        QCOMPARE(doc.clipboard.ClipKind, int(StripClipboard::Empty));
        Paste(doc); // nothing to paste: silent
        QCOMPARE(prompter.prompts.size(), 1);
    }
};

TB_TEST_GUILESS_MAIN(TestUndoClipboard)
#include "tst_undoclipboard.moc"
