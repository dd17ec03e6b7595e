#include "board/BoardMoves.h"

#include "document/Clipboard.h"
#include "document/DocumentEdit.h"
#include "document/DocumentOperations.h"

#include <QList>

namespace tb {

int DropTarget(const ScheduleDocument &doc, int stripUnderBoundary)
{
    const int count = doc.strips.count();
    if (stripUnderBoundary > count)
        return count + 1;
    return qMax(stripUnderBoundary, 1);
}

bool MoveStrips(ScheduleDocument &doc, int target)
{
    const int count = doc.strips.count();
    // A selection made right of the last strip holds no strip to move; one that starts
    // on the board and runs past its end moves the strips that are there.
    if (doc.SelStart < 1 || doc.SelStart > count)
        return false;
    doc.SelEnd = qMin(doc.SelEnd, count);
    if (doc.SelEnd < doc.SelStart)
        return false;
    // A drop inside the selection is no move at all.
    if (target >= doc.SelStart && target <= doc.SelEnd)
        return false;
    target = qBound(1, target, count + 1);

    const int first = doc.SelStart;
    const int moved = qMin(doc.SelEnd - doc.SelStart + 1, MaxStripsMoved);
    DocumentEdit edit(doc, doc.SelEnd > doc.SelStart ? QStringLiteral("Move strips") : QStringLiteral("Move strip"));

    QList<StripRecord> aside;
    aside.reserve(moved);
    for (int row = first; row < first + moved; ++row)
        aside.append(doc.strips[row]);

    DeleteSelection(doc);
    if (target > first)
        target -= moved;
    target = qBound(1, target, doc.strips.count() + 1);
    // The rows just deleted make room for the same number again.
    if (!doc.strips.insertRows(target, moved))
        return false;
    for (int k = 0; k < moved; ++k)
        doc.strips[target + k] = aside.at(k);

    doc.SelStart = target;
    doc.SelEnd = target + moved - 1;
    return true;
}

} // namespace tb
