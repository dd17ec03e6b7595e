#pragma once

#include "document/DocumentEdit.h"
#include "document/ScheduleDocument.h"

#include <QString>

namespace tb {

// Element assignments of a scene strip: element numbers joined by "," in field 19.

// Adds the element to the strip's list. The test for an existing entry looks for the
// number padded to three places ("  7"), which only ever matches numbers of three
// digits; smaller numbers can be added twice. Old schedules depend on this, so it is
// kept; callers that must not duplicate test IsAssigned first.
void AddAssignment(ScheduleDocument &doc, int strip, int element);

// Whether the element is in the strip's list (whole numbers compared, not digits).
// An item that is not a number shows "Error reading stip assignments!" and gives false.
bool IsAssigned(const ScheduleDocument &doc, int strip, int element);

// Removes every entry of the element from the strip's list. An item that is not a
// number shows "Error removing assignment!" and leaves the list as it was.
void RemoveAssignment(ScheduleDocument &doc, int strip, int element);

// The element numbers of a strip's list; items that are not numbers are skipped.
QList<int> AssignedElements(const ScheduleDocument &doc, int strip);

// Page lengths: "1 3/8" for 1.375, "4/8" for 0.5, "2" for 2, "" for 0. Eighths are
// rounded half to even and never reduced.
QString FormatPageLength(double pages);

// A strip's page length as a number (0 when blank or not a number).
double PageLengthOf(const StripRecord &strip);

// The start date as a date serial number; 0 when none is set.
double StartDateSerial(const ScheduleDocument &doc);

// Marks the document changed: "Modified" in the status bar, then the day
// recalculation, then the views are told (which update the commands). This is the
// edit without an undo snapshot, all at once (DocumentEdit).
void SetModified(ScheduleDocument &doc, const DocumentChange &change = {});

// Marks the document saved (no recalculation); the views update the commands.
void ClearModified(ScheduleDocument &doc);

// Empties the document to the state of a new schedule.
void NewDocument(ScheduleDocument &doc);

// The autosave timer's interval in milliseconds for an interval in minutes from the
// settings file: 0 (no autosave) for 0 or less, and at most what the timer can count.
int AutosaveIntervalMs(int minutes);

// The main window caption: "Torvanbridge - " + picture title + "  (" + file name + ") ".
// The two blanks and the trailing blank are the program's own and are kept.
QString UpdateTitle(const ScheduleDocument &doc);

} // namespace tb
