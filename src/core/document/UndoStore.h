#pragma once

#include "document/RecordTable.h"

#include <QList>
#include <QString>

#include <optional>

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
    // The label the Redo entry names, set by Undo; none while Redo is disabled (at
    // start and after a snapshot into an empty store).
    std::optional<QString> redoLabel;
};

// The Undo and Redo entries as the store has them.
struct UndoCommandState
{
    bool undoEnabled = false;
    QString undoCaption; // "Undo" or "Undo " + the newest label
    bool redoEnabled = false;
    QString redoCaption; // "Redo" or "Redo " + the label Undo left
    bool operator==(const UndoCommandState &) const = default;
};
UndoCommandState UndoCommands(const UndoStack &undo);

// Pushes both tables under the label ("add new scene", "Move strip" ...). Operations
// take it through DocumentEdit, which also marks the document modified.
void TakeUndoSnapshot(ScheduleDocument &doc, const QString &label);

// Puts the newest level back, with the board's scroll positions of that level.
void Undo(ScheduleDocument &doc);

// The Redo entry exists and is enabled after an undo, but there is no redo store:
// it does nothing, as it always has.
void Redo(ScheduleDocument &doc);

} // namespace tb
