#pragma once

#include <QList>
#include <QString>
#include <QVarLengthArray>

#include <optional>

namespace tb {

class ScheduleDocument;

// ---- The element assignment list of a scene strip (field 19) -----------------
// The numbers of the elements in the scene, plain decimal, joined by "," in the order
// they were assigned ("3,12,7"); blank means none. Every reading and writing of the
// list goes through these functions.

// Shown when an item of a list is not a number. "stip" is the program's own spelling
// of this message and is kept.
inline constexpr const char *AssignmentReadError = "Error reading stip assignments!";
// Shown when removing an element meets an item that is not a number.
inline constexpr const char *AssignmentRemoveError = "Error removing assignment!";

// How the items of a list are told apart. The editors, the reports and the clipboard
// read it as comma text (a blank separates items as well, quotes group them); the
// board drawing cuts it at commas only. Lists this program writes read the same
// either way.
enum class AssignmentItems { CommaText, AtCommas };

// What an item that is not a number does: end the list there, or drop out of it.
enum class UnreadableItem { EndsList, Skipped };

struct AssignmentRead
{
    // The numbers read, in list order (duplicates kept).
    QVarLengthArray<int, 32> numbers;
    // Whether an item was not a number.
    bool unreadable = false;
};

AssignmentRead ReadAssignmentList(const QString &list, UnreadableItem atUnreadable,
                                  AssignmentItems items = AssignmentItems::CommaText);

// A strip's list as the editors and the reports read it: up to the first item that
// is not a number, which is reported once with AssignmentReadError.
QList<int> ReadStripAssignments(const ScheduleDocument &doc, int strip);

// The same reading as flags: index n is true when element row n is in the list, for
// n from 0 to the element count (numbers outside that range are ignored).
QList<bool> AssignedElementFlags(const ScheduleDocument &doc, int strip);

// The list holding the numbers in the order given.
QString JoinAssignmentList(const QList<int> &numbers);

// The list with the element appended, unless the element's number padded to three
// places ("  7") occurs in it. That padded search is the program's long-standing
// duplicate test: it only ever finds numbers of three digits, so smaller numbers can
// be appended twice. Old schedules depend on it, so it is kept; callers that must
// not duplicate test IsAssigned first or build the list anew.
QString AppendToAssignmentList(const QString &list, int element);

// The list without any entry of the element (the other items as they were written);
// nothing when an item is not a number.
std::optional<QString> RemoveFromAssignmentList(const QString &list, int element);

} // namespace tb
