#include "document/DocumentOperations.h"

#include "document/AssignmentList.h"
#include "document/DayCalculation.h"
#include "document/DocumentEdit.h"
#include "document/LegacyText.h"

#include <cmath>
#include <limits>

namespace tb {

void AddAssignment(ScheduleDocument &doc, int strip, int element)
{
    StripRecord &row = doc.strips[strip];
    const QString list = AppendToAssignmentList(row[StripField::Assignments], element);
    if (list != row[StripField::Assignments])
        row.set(StripField::Assignments, list);
}

bool IsAssigned(const ScheduleDocument &doc, int strip, int element)
{
    // Items are compared in order, so an element before an unreadable item is found
    // without a message.
    const AssignmentRead read =
        ReadAssignmentList(doc.strips[strip][StripField::Assignments], UnreadableItem::EndsList);
    if (read.numbers.contains(element))
        return true;
    if (read.unreadable)
        doc.prompter().error(QString::fromLatin1(AssignmentReadError));
    return false;
}

void RemoveAssignment(ScheduleDocument &doc, int strip, int element)
{
    StripRecord &row = doc.strips[strip];
    const std::optional<QString> list = RemoveFromAssignmentList(row[StripField::Assignments], element);
    if (!list) {
        doc.prompter().error(QString::fromLatin1(AssignmentRemoveError));
        return;
    }
    row.set(StripField::Assignments, *list);
}

QList<int> AssignedElements(const ScheduleDocument &doc, int strip)
{
    const AssignmentRead read = ReadAssignmentList(doc.strips[strip][StripField::Assignments], UnreadableItem::Skipped);
    return QList<int>(read.numbers.cbegin(), read.numbers.cend());
}

QString FormatPageLength(double pages)
{
    double whole = std::trunc(pages);
    // nearbyint rounds half to even in the default rounding mode: half an eighth is 0.
    double eighths = std::nearbyint((pages - whole) * 8.0);
    if (eighths >= 8.0) {
        eighths = 0.0;
        whole += 1.0;
    }
    const qint64 w = qint64(whole);
    const qint64 e = qint64(eighths);
    QString text;
    if (w > 0)
        text += QString::number(w);
    if (w > 0 && e > 0)
        text += u' ';
    if (e > 0)
        text += QString::number(e) + QStringLiteral("/8");
    return text;
}

double PageLengthOf(const StripRecord &strip)
{
    bool ok = false;
    const double value = legacy::FloatFromText(strip[StripField::PageLength], &ok);
    return ok ? value : 0.0;
}

double StartDateSerial(const ScheduleDocument &doc)
{
    if (doc.values.StartDate.trimmed().isEmpty())
        return 0.0;
    bool ok = false;
    const double value = legacy::FloatFromText(doc.values.StartDate, &ok);
    return ok ? value : 0.0;
}

void SetModified(ScheduleDocument &doc, const DocumentChange &change)
{
    DocumentEdit edit(doc);
    if (change.firstStrip)
        edit.scrollToStrip(*change.firstStrip);
    if (change.scrollPositions)
        edit.restoreScrollPositions(change.scrollPositions->first, change.scrollPositions->second);
}

void ClearModified(ScheduleDocument &doc)
{
    doc.Modified = false;
    doc.status().setPanelText(StatusSink::ModifiedPanel, QString());
    // The commands and the pages panel follow; the days are not recalculated.
    doc.view().documentChanged(doc, {});
}

void NewDocument(ScheduleDocument &doc)
{
    // 1. Production details. The crew list belongs to the production details and is
    //    emptied with them. (The scene editor takes its mode anew each time it opens.)
    doc.values = ProductionValues(); // also the version, zoom, call times and counters
    for (CrewRow &row : doc.crew)
        row.clear();
    // 2. The autosave timer starts again with the interval of the preferences.
    doc.view().restartAutosave();
    // 3.-5. Zoom, file name, selection, rest day rule, strip serials, hold days.
    doc.FileName.clear();
    doc.SelStart = 0;
    doc.SelEnd = 0;
    doc.SelElement = -1;
    // 6. The scene editor's pick lists hold this document's values only.
    doc.locationPickList.clear();
    doc.setPickList.clear();
    // 7. The fifteen categories.
    doc.categories = DefaultCategories();
    // 8. Strip rows and their marks are cleared in full. Only the first 200 element
    //    rows are cleared, as the program always has; rows above the element count
    //    are never read, so what an earlier document left there does no harm.
    doc.strips.clearRows(1, MaxStrips);
    doc.marks.fill(false);
    doc.elements.clearRows(1, 200);
    // 9. Counts.
    doc.strips.setCount(0);
    doc.elements.setCount(0);
    // 10. Board, title, status, derived values.
    doc.view().resetBoard();
    doc.view().setTitle(UpdateTitle(doc));
    doc.status().setPanelText(StatusSink::MessagePanel, QStringLiteral("New file."));
    doc.status().setPanelText(StatusSink::PagesPanel, QString());
    doc.Modified = false;
    doc.status().setPanelText(StatusSink::ModifiedPanel, QString());
    RecalculateDays(doc);
    // ClearModified's command update and the one after the recalculation are one
    // notification: the views show the empty document once.
    doc.view().documentChanged(doc, {});
}

QString UpdateTitle(const ScheduleDocument &doc)
{
    return QStringLiteral("Torvanbridge - ") + doc.values.PictureTitle + QStringLiteral("  (") + doc.FileName +
           QStringLiteral(") ");
}

int AutosaveIntervalMs(int minutes)
{
    constexpr int MinuteMs = 60000;
    return qBound(0, minutes, std::numeric_limits<int>::max() / MinuteMs) * MinuteMs;
}

} // namespace tb
