#include "document/UndoStore.h"

#include "document/DocumentEdit.h"
#include "document/ScheduleDocument.h"

namespace tb {

namespace {

// Levels move by the counts of the current document, not by their own: rows 1..n
// are copied and the rows above n keep what that level held before. A deep level
// whose document had more rows therefore keeps stale rows above n and is restored
// with them. The program has always behaved so, and this is kept.
template <typename Table>
void copyRows(Table &to, const Table &from, int n)
{
    to.assignRows(from, n);
    to.setCount(from.count());
}

void copyLevel(UndoLevel &to, const UndoLevel &from, int strips, int elements)
{
    copyRows(to.strips, from.strips, strips);
    copyRows(to.elements, from.elements, elements);
    to.nextStripId = from.nextStripId;
    to.horizontalScroll = from.horizontalScroll;
    to.verticalScroll = from.verticalScroll;
    to.label = from.label;
}

} // namespace

void TakeUndoSnapshot(ScheduleDocument &doc, const QString &label)
{
    UndoStack &undo = doc.undo;
    if (undo.UndoDepth < MaxUndoLevels)
        ++undo.UndoDepth;
    const int n = doc.strips.count();
    const int m = doc.elements.count();
    for (int level = MaxUndoLevels - 1; level >= 1; --level)
        copyLevel(undo.levels[level + 1], undo.levels[level], n, m);

    UndoLevel &newest = undo.levels[1];
    copyRows(newest.strips, doc.strips, n);
    copyRows(newest.elements, doc.elements, m);
    newest.nextStripId = doc.values.NextStripId;
    newest.horizontalScroll = doc.view().horizontalScroll();
    newest.verticalScroll = doc.view().verticalScroll();
    newest.label = label;

    // The first snapshot into an empty store disables Redo.
    if (undo.UndoDepth == 1)
        undo.redoLabel.reset();
}

void Undo(ScheduleDocument &doc)
{
    // Marked modified and shown like any edit, without a snapshot of its own.
    DocumentEdit edit(doc);
    UndoStack &undo = doc.undo;
    const UndoLevel &newest = undo.levels[1];
    copyRows(doc.strips, newest.strips, newest.strips.count());
    copyRows(doc.elements, newest.elements, newest.elements.count());
    doc.values.NextStripId = newest.nextStripId;
    edit.restoreScrollPositions(newest.horizontalScroll, newest.verticalScroll);

    const int n = doc.strips.count();
    const int m = doc.elements.count();
    for (int level = 2; level <= MaxUndoLevels; ++level)
        copyLevel(undo.levels[level - 1], undo.levels[level], n, m);
    if (undo.UndoDepth > 0)
        --undo.UndoDepth;
    // The Redo caption names level 9, which is blank unless nine levels were filled.
    undo.redoLabel = undo.levels[MaxUndoLevels - 1].label;
}

UndoCommandState UndoCommands(const UndoStack &undo)
{
    UndoCommandState state;
    state.undoEnabled = undo.UndoDepth > 0;
    state.undoCaption = state.undoEnabled ? QStringLiteral("Undo ") + undo.levels[1].label : QStringLiteral("Undo");
    state.redoEnabled = undo.redoLabel.has_value();
    state.redoCaption = state.redoEnabled ? QStringLiteral("Redo ") + *undo.redoLabel : QStringLiteral("Redo");
    return state;
}

void Redo(ScheduleDocument &) {}

} // namespace tb
