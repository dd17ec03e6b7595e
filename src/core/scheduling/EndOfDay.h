#pragma once

#include "document/Result.h"

#include <QDate>
#include <QList>
#include <QString>

namespace tb {

class ScheduleDocument;
class StripRecord;

// Scenes marked shot. A scene strip carries the date it was shot in field 12
// (Reserved12) as a day number (days since 30 December 1899, "46482"); blank when the
// scene has not been shot. The earlier edition never writes that field on a scene and
// ignores it on reading, so marked schedules stay readable there.

// Whether the scene strip is marked shot.
bool IsShot(const StripRecord &strip);
// The date a strip was shot; invalid when it is not marked.
QDate ShotDate(const StripRecord &strip);

// The date a strip falls on: the start date plus the strip's day field. Invalid when
// no start date is set or the day field is no number.
QDate StripDate(const ScheduleDocument &doc, int row);

// The scene strips that fall on the date, in board order.
QList<int> SceneStripsOn(const ScheduleDocument &doc, const QDate &date);

struct EndOfDayMark
{
    int row = 0;       // a scene strip
    bool shot = false; // ticked: shot on the day; unticked: not shot
};

// "End of day": marks the ticked scenes shot on the date and the unticked ones not
// shot, as one undoable edit ("end of day"). A ticked scene already marked keeps the
// date it was first marked with. Rows that are no scene strips are refused and
// nothing changes.
Result ApplyEndOfDay(ScheduleDocument &doc, const QDate &date, const QList<EndOfDayMark> &marks);

} // namespace tb
