#include "scheduling/EndOfDay.h"

#include "document/DocumentEdit.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"

namespace tb {

bool IsShot(const StripRecord &strip)
{
    return strip.isScene() && !strip[StripField::Reserved12].isEmpty();
}

QDate ShotDate(const StripRecord &strip)
{
    if (!IsShot(strip))
        return QDate();
    bool ok = false;
    const double serial = legacy::FloatFromText(strip[StripField::Reserved12], &ok);
    return ok ? legacy::SerialToDate(serial) : QDate();
}

QDate StripDate(const ScheduleDocument &doc, int row)
{
    const double start = StartDateSerial(doc);
    if (start == 0)
        return QDate();
    bool ok = false;
    const int day = legacy::StrToInt(doc.strips[row][StripField::DayNumber], &ok);
    return ok ? legacy::SerialToDate(start + day) : QDate();
}

QList<int> SceneStripsOn(const ScheduleDocument &doc, const QDate &date)
{
    QList<int> rows;
    if (!date.isValid())
        return rows;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        if (doc.strips[i].isScene() && StripDate(doc, i) == date)
            rows.append(i);
    }
    return rows;
}

Result ApplyEndOfDay(ScheduleDocument &doc, const QDate &date, const QList<EndOfDayMark> &marks)
{
    if (!date.isValid())
        return Result::failure(QStringLiteral("The end of day needs a valid date."));
    for (const EndOfDayMark &mark : marks) {
        if (mark.row < 1 || mark.row > doc.strips.count() || !doc.strips[mark.row].isScene())
            return Result::failure(QStringLiteral("Only scenes can be marked shot."));
    }
    const QString dayText = QString::number(qint64(legacy::DateToSerial(date)));
    DocumentEdit edit(doc, QStringLiteral("end of day"));
    for (const EndOfDayMark &mark : marks) {
        StripRecord &strip = doc.strips[mark.row];
        if (mark.shot) {
            if (!IsShot(strip))
                strip.set(StripField::Reserved12, dayText);
        } else if (!strip[StripField::Reserved12].isEmpty()) {
            strip.set(StripField::Reserved12, QString());
        }
    }
    return Result::success();
}

} // namespace tb
