#pragma once

#include "document/Records.h"
#include "document/Result.h"

#include <QList>
#include <QString>

namespace tb {

class ScheduleDocument;

// The program's private clipboard: a run of strips, or one element with the strips
// it was assigned to. Nothing goes to the system clipboard; New and Open leave it
// alone, so strips can be pasted into another schedule.
struct StripClipboard
{
    enum Kind { Empty = 0, Strips = 1, Element = 2 };
    int ClipKind = Empty;
    int ClipCount = 0;
    QList<StripRecord> strips;
    ElementRecord element;
    // For an element: "1" or "0" per strip of the document at copy time, as comma
    // text, and that strip count.
    QString assignmentFlags;
    QString flagStripCount;
};

// The table operations on the current selection.
void CopySelection(ScheduleDocument &doc);
// Refused, with nothing changed, when the strips would not fit on the board.
Result PasteSelection(ScheduleDocument &doc);
void DeleteSelection(ScheduleDocument &doc);

// The Edit commands, each with its undo snapshot, messages and repaint.
void Cut(ScheduleDocument &doc);
void Copy(ScheduleDocument &doc);
void Paste(ScheduleDocument &doc);
void Delete(ScheduleDocument &doc);

// Elements whose PrintOnBoard is "1": the rows of the board's element area.
int CountElementsShowing(const ScheduleDocument &doc);

} // namespace tb
