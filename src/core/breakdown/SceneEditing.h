#pragma once

// The scene strip editor's work on the document: filling its page from a strip,
// saving the page as a new, inserted or edited scene strip, the location and set
// pick lists, and stepping from one scene strip to the next.

#include "document/Result.h"
#include "document/ScheduleDocument.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace tb {

// The editor's modes, set by the caller before the editor is shown.
namespace SceneMode {
inline constexpr int Add = 1;    // append a new scene after the last strip
inline constexpr int Edit = 4;   // edit the current strip
inline constexpr int Insert = 9; // insert a new scene at the current strip
} // namespace SceneMode

inline constexpr int DefaultLinesPerPage = 56;

// One scene strip as the editor shows it.
struct ScenePage
{
    QString scene;
    QString scriptPage;
    int whole = 0;   // whole pages, 0..9
    int eighths = 1; // eighths of a page, 0..7; a new scene is one eighth long
    int intExt = 0;  // 0 INT, 1 EXT, 2 INT/EXT (-1: nothing chosen, saved as INT)
    int time = 0;    // 0 DAY, 1 NIGHT, 2 DAWN, 3 DUSK (-1: nothing chosen, saved as DAY)
    QString location;
    QString set;
    QString sequence;
    QString synopsis;
    QStringList notes; // one item per line
};

// Per element, whether it goes into the strip being edited. Indexed 1..element count;
// index 0 is unused. Entries past the end count as not assigned.
using AssignmentFlags = QList<bool>;

// The length text of a strip as whole pages and eighths. Eighths are rounded half to
// even; a fraction that rounds to no eighth but is more than three script lines long
// shows as one eighth, so a short scene never shows as zero; eight eighths show as
// seven, the most the eighths box holds. A text that is no number gives 0 and 1/8.
void LengthToSpins(const QString &lengthText, int linesPerPage, int *whole, int *eighths);

// Whole pages and eighths as the stored length text ("0.125", "1.375", "2").
QString SpinsToLength(int whole, int eighths);

// The page of a new scene: everything blank, 0 pages and 1/8, INT and DAY.
ScenePage BlankScenePage();

// The page of an existing strip (the notes from their comma text).
ScenePage ScenePageFromStrip(const StripRecord &strip, int linesPerPage = DefaultLinesPerPage);

// The editor's caption: "Edit scene breakdown #" and the strip's sheet number in the
// edit mode, "New scene breakdown #" and the next sheet number otherwise.
QString SceneCaption(const ScheduleDocument &doc, int mode, int current);

// The elements assigned to the current strip in the edit mode; none otherwise.
AssignmentFlags SceneAssignmentFlags(const ScheduleDocument &doc, int mode, int current);

// Adds a value to a pick list unless it is blank or already occurs anywhere in the
// list's text: BAR is not added when BARN is listed. The list is kept sorted.
// Returns whether it was added.
bool AddToPickList(QStringList &list, const QString &value);

// Rebuilds the location and set pick lists from every strip of the document.
void RebuildPickLists(ScheduleDocument &doc);

// Saves the page as a scene strip and returns its row (where it stands after the day
// recalculation has put the automatic rest days back): the current strip in the edit
// mode, a new strip at the current row in the insert mode (which starts as a copy of
// the strip that stood there), a new last strip otherwise. New strips get the next
// sheet number. The assignment list is rebuilt from the flags in ascending element
// order. A page of no length is refused with the editor's message and nothing is
// written; a full strip table is refused with its own message.
ResultOf<int> RecordStrip(ScheduleDocument &doc, int mode, int current, const ScenePage &page,
                          const AssignmentFlags &flags);

// OK: undo snapshot ("edit scene" or "add new scene"), save, and after an append the
// board scrolled to show the new strip. A page of no length is refused with the
// editor's message before the snapshot, so a refused edit takes no undo step.
ResultOf<int> SaveScene(ScheduleDocument &doc, int mode, int current, const ScenePage &page,
                        const AssignmentFlags &flags);

// Apply: undo snapshot "add / edit scene", save, repaint (a page of no length is
// refused before the snapshot, as with OK). The mode stays as it is,
// so each Apply in the add mode appends another strip.
ResultOf<int> ApplyScene(ScheduleDocument &doc, int mode, int current, const ScenePage &page,
                         const AssignmentFlags &flags);

// Where the board scrolls after an append: five strips before the end, or the last
// strip itself when the board is too short for that.
int ScrollPositionAfterAppend(int stripCount);

// Where "Next strip" (direction 1) or "Prev strip" (direction -1) lands.
struct SceneStep
{
    int index = 0;        // the new current strip
    bool found = false;   // a scene strip was reached: the editor shows it
    bool atLimit = false; // the end was reached: the button of this direction is disabled
};

// Steps from the current strip to the next (or previous) scene strip, over dividers
// and banners, and makes it the board's selected strip, scrolled into view. Running
// off the end clamps the index and the selection to the last (or first) strip.
SceneStep StepToScene(ScheduleDocument &doc, int current, int direction);

// A memo's text as lines: a final line break does not start another line, and an
// empty memo has no lines.
QStringList MemoLines(const QString &memoText);
// Lines as memo text, one per line.
QString MemoText(const QStringList &lines);

} // namespace tb
