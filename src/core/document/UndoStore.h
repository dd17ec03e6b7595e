#pragma once

#include "document/RecordTable.h"

#include <QList>
#include <QString>

namespace tb {

class ScheduleDocument;

inline constexpr int MaxUndoLevels = 10;

// One undo level: both tables with their counts, the strip serial counter, the
// board's scroll positions and the label of the change about to be made.
struct UndoLevel
{
    StripTable strips;
    ElementTable elements;
    int nextStripId = 0;
    int horizontalScroll = 0;
    int verticalScroll = 0;
    QString label;
    // The document the tables were taken from (ScheduleDocument::documentNumber).
    int documentNumber = 0;
};

// Ten levels, level 1 the newest. Tables are shared with the document and with each
// other, so a snapshot costs row pointers, never field texts.
struct UndoStack
{
    UndoStack()
        : levels(MaxUndoLevels + 1)
    {}
    QList<UndoLevel> levels; // 1..10; 0 unused
    int UndoDepth = 0;
};

// Before a change: pushes both tables under the label ("add new scene", "Move strip" ...)
// and marks the document modified.
void TakeUndoSnapshot(ScheduleDocument &doc, const QString &label);

// Puts the newest level back.
void Undo(ScheduleDocument &doc);

// The Redo entry exists and is enabled after an undo, but there is no redo store:
// it does nothing, as it always has.
void Redo(ScheduleDocument &doc);

} // namespace tb
