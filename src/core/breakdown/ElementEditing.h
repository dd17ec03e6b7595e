#pragma once

// Breakdown elements: the element editor's work on the document (board IDs, saving
// an element with its scene assignments, the duplicate cast ID question) and the two
// whole-table commands of the element menu.

#include "document/Result.h"
#include "document/ScheduleDocument.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace tb {

// The cast is category 1, and only the cast gets numeric board IDs.
inline constexpr int CastCategory = 1;

// The highest board ID among the cast, 0 when there is none. An element whose
// category or ID is not a whole number counts as 0.
int GetHighestCast(const ScheduleDocument &doc);

// The board ID and "print on board" state a category gives an element: the next free
// cast number, printed, for the cast (position 0, or -1 for none chosen); the
// category's code, not printed, for any other category.
struct ElementIdDefault
{
    QString id;
    bool printOnBoard = false;
};
ElementIdDefault DoID(const ScheduleDocument &doc, int categoryPosition);

// One element as the editor shows it.
struct ElementPage
{
    QString description;
    int categoryPosition = 0; // position in the category list, 0 = cast; -1 none chosen
    bool printOnBoard = false;
    QString boardId;
    QString name;
    bool holdRule = false;
    QStringList otherInfo; // one item per line
};

ElementPage ElementPageFromRecord(const ElementRecord &element);

// A line of the editor's scene list: "12 - HARBOUR - Anna arrives".
struct AssignLine
{
    QString text;
    int strip = 0;
    bool assigned = false;
};

// One line per scene strip in board order, ticked where the element is assigned
// (no element, 0 or below, ticks nothing).
QList<AssignLine> AssignListLines(const ScheduleDocument &doc, int element);

// Whether another cast element than the one edited (-1 for a new one) has this ID.
bool IsDuplicateCastId(const ScheduleDocument &doc, int editIndex, const QString &id);

// Asks whether a duplicate cast ID is wanted when there is one; true to go on.
bool ConfirmDuplicateCastId(ScheduleDocument &doc, int editIndex, const QString &id);

// Saves the page into the edited element (editIndex 1 or more) or a new last element
// and applies the scene list: ticked lines assign the element, the others remove it.
// A blank description or ID is refused with its message. Returns the element's row.
ResultOf<int> RecordElement(ScheduleDocument &doc, int editIndex, const ElementPage &page,
                            const QList<AssignLine> &lines);

// "Reset cast numbering...": after the question, numbers the cast 1, 2, 3 ... in table
// order. Returns whether it ran.
bool ResetCastNumbering(ScheduleDocument &doc);

// "Sort elements by category...": after the question, orders the elements by category,
// keeping the table order within each, and renumbers every strip's assignment list to
// match. Returns whether it ran.
bool SortElementsByCategory(ScheduleDocument &doc);

// The table work of the sort, without question, snapshot or repaint.
void SortElementRows(ScheduleDocument &doc);

} // namespace tb
