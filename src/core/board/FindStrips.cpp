#include "board/FindStrips.h"

#include "document/DocumentOperations.h"
#include "document/ScheduleDocument.h"

namespace tb {

bool StripMatches(const ScheduleDocument &doc, int row, const QString &text)
{
    const QString wanted = text.trimmed();
    if (wanted.isEmpty() || row < 1 || row > doc.strips.count())
        return false;
    const StripRecord &strip = doc.strips[row];
    if (!strip.isScene())
        return false;
    for (StripField field : {StripField::SceneNumber, StripField::Location, StripField::SetName, StripField::Synopsis,
                             StripField::Sequence})
        if (strip[field].contains(wanted, Qt::CaseInsensitive))
            return true;
    if (strip[StripField::Assignments].trimmed().isEmpty())
        return false;
    for (int element : AssignedElements(doc, row))
        if (element >= 1 && element <= doc.elements.count() &&
            doc.elements[element][ElementField::Description].contains(wanted, Qt::CaseInsensitive))
            return true;
    return false;
}

int FindStrip(const ScheduleDocument &doc, const QString &text, int from, bool forward)
{
    const int count = doc.strips.count();
    if (count == 0 || text.trimmed().isEmpty())
        return 0;
    if (from < 1 || from > count)
        from = forward ? 0 : count + 1;
    for (int step = 1; step <= count; ++step) {
        // Round the board: rows after `from`, then from the other end back to `from`.
        int row = forward ? from + step : from - step;
        if (row > count)
            row -= count;
        if (row < 1)
            row += count;
        if (StripMatches(doc, row, text))
            return row;
    }
    return 0;
}

int CountMatchingStrips(const ScheduleDocument &doc, const QString &text)
{
    int matches = 0;
    for (int row = 1; row <= doc.strips.count(); ++row)
        matches += StripMatches(doc, row, text) ? 1 : 0;
    return matches;
}

} // namespace tb
