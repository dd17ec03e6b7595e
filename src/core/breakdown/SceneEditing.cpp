#include "breakdown/SceneEditing.h"

#include "document/AssignmentList.h"
#include "document/DocumentEdit.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

#include <QCollator>

#include <algorithm>
#include <cmath>
#include <optional>

namespace tb {

namespace {

const QString ZeroLengthMessage =
    QStringLiteral("Oops! Scene must be a minimum of 1/8ths of a page long. Please enter the correct number of pages "
                   "/ eights of a page.");

const QStringList DayNightCodes = {QStringLiteral("D"), QStringLiteral("N"), QStringLiteral("DWN"),
                                   QStringLiteral("DSK")};
const QStringList IntExtCodes = {QStringLiteral("I"), QStringLiteral("E"), QStringLiteral("I/E")};

QString codeFor(const QStringList &codes, int item)
{
    // Nothing chosen counts as the first item.
    return codes.at(item >= 0 && item < codes.size() ? item : 0);
}

int itemFor(const QStringList &codes, const QString &code)
{
    const int item = int(codes.indexOf(code));
    return item < 0 ? 0 : item;
}

void sortPickList(QStringList &list)
{
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(list.begin(), list.end(),
                     [&collator](const QString &a, const QString &b) { return collator.compare(a, b) < 0; });
}

// The recalculation that follows every change removes and re-inserts the automatic
// rest days, which can move a strip. Counting the other strips up to it finds it again.
int stripsBefore(const ScheduleDocument &doc, int row)
{
    int n = 0;
    for (int i = 1; i <= row && i <= doc.strips.count(); ++i) {
        if (!doc.strips[i].isAutoRestDay())
            ++n;
    }
    return n;
}

int rowOf(const ScheduleDocument &doc, int position)
{
    int n = 0;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        if (!doc.strips[i].isAutoRestDay() && ++n == position)
            return i;
    }
    return doc.strips.count();
}

bool occursInList(const QStringList &list, const QString &value)
{
    // The test is made on the whole text of the list, items joined by line breaks,
    // so a value that is part of a listed one counts as listed.
    return list.join(QLatin1String("\r\n")).contains(value);
}

} // namespace

void LengthToSpins(const QString &lengthText, int linesPerPage, int *whole, int *eighths)
{
    bool ok = false;
    const double length = legacy::FloatFromText(lengthText, &ok);
    if (!ok) {
        *whole = 0;
        *eighths = 1;
        return;
    }
    const double wholePart = std::trunc(length);
    const double fraction = length - wholePart;
    // nearbyint rounds half to even in the default rounding mode.
    int e = int(std::nearbyint(fraction * 8.0));
    const double threeLines = 3.0 / double(linesPerPage > 0 ? linesPerPage : DefaultLinesPerPage);
    if (e == 0 && fraction > threeLines)
        e = 1;
    // The two boxes hold 0..9 and 0..7 and clamp what they are given: a fraction
    // that rounds to eight eighths shows as seven.
    *whole = int(std::clamp(wholePart, 0.0, 9.0));
    *eighths = std::clamp(e, 0, 7);
}

QString SpinsToLength(int whole, int eighths)
{
    return legacy::FloatToText(double(whole) + double(eighths) / 8.0);
}

ScenePage BlankScenePage()
{
    return ScenePage();
}

ScenePage ScenePageFromStrip(const StripRecord &strip, int linesPerPage)
{
    ScenePage page;
    page.scene = strip[StripField::SceneNumber];
    page.sequence = strip[StripField::Sequence];
    page.location = strip[StripField::Location];
    page.set = strip[StripField::SetName];
    page.scriptPage = strip[StripField::ScriptPage];
    page.synopsis = strip[StripField::Synopsis];
    page.notes = legacy::SplitCommaText(strip[StripField::Notes]);
    page.time = itemFor(DayNightCodes, strip[StripField::DayNight]);
    page.intExt = itemFor(IntExtCodes, strip[StripField::IntExt]);
    LengthToSpins(strip[StripField::PageLength], linesPerPage, &page.whole, &page.eighths);
    return page;
}

QString SceneCaption(const ScheduleDocument &doc, int mode, int current)
{
    if (mode == SceneMode::Edit) {
        const QString id =
            current >= 1 && current <= doc.strips.count() ? doc.strips[current][StripField::StripId] : QString();
        return QStringLiteral("Edit scene breakdown #") + id;
    }
    return QStringLiteral("New scene breakdown #") + QString::number(doc.values.NextStripId + 1);
}

AssignmentFlags SceneAssignmentFlags(const ScheduleDocument &doc, int mode, int current)
{
    if (mode != SceneMode::Edit || current < 1 || current > doc.strips.count())
        return AssignmentFlags(doc.elements.count() + 1, false);
    // One pass over the strip's list rather than one IsAssigned per element.
    return AssignedElementFlags(doc, current);
}

bool AddToPickList(QStringList &list, const QString &value)
{
    if (value.isEmpty() || occursInList(list, value))
        return false;
    list.append(value);
    sortPickList(list);
    return true;
}

void RebuildPickLists(ScheduleDocument &doc)
{
    doc.locationPickList.clear();
    doc.setPickList.clear();
    for (int i = 1; i <= doc.strips.count(); ++i) {
        const QString &location = doc.strips[i][StripField::Location];
        if (!location.isEmpty() && !occursInList(doc.locationPickList, location))
            doc.locationPickList.append(location);
        const QString &set = doc.strips[i][StripField::SetName];
        if (!set.isEmpty() && !occursInList(doc.setPickList, set))
            doc.setPickList.append(set);
    }
    sortPickList(doc.locationPickList);
    sortPickList(doc.setPickList);
}

namespace {

// RecordStrip within the edit of the caller (OK, Apply), or within an edit of its own
// without a snapshot when the caller has none.
ResultOf<int> recordStrip(ScheduleDocument &doc, DocumentEdit *outer, int mode, int current, const ScenePage &page,
                          const AssignmentFlags &flags)
{
    if (page.whole == 0 && page.eighths == 0) {
        doc.prompter().error(ZeroLengthMessage);
        return ResultOf<int>::failure(ZeroLengthMessage);
    }

    int row = current;
    if (mode == SceneMode::Insert) {
        // The new strip starts as a copy of the strip at its place, all twenty fields,
        // and keeps that copy's values in the fields this editor does not write
        // (8, 9, 12, 13, 16 and 17). Old schedules were built this way; it is kept.
        const StripRecord copy = current >= 1 && current <= doc.strips.count() ? doc.strips[current] : StripRecord();
        const Result inserted = doc.strips.insert(current, copy);
        if (!inserted) {
            doc.prompter().error(inserted.message());
            return ResultOf<int>(inserted);
        }
        doc.strips[current].set(StripField::StripId, QString::number(++doc.values.NextStripId));
    } else if (mode != SceneMode::Edit) {
        const Result appended = doc.strips.append(StripRecord());
        if (!appended) {
            doc.prompter().error(appended.message());
            return ResultOf<int>(appended);
        }
        row = doc.strips.count();
        doc.strips[row].set(StripField::StripId, QString::number(++doc.values.NextStripId));
    }

    std::optional<DocumentEdit> own;
    DocumentEdit &edit = outer ? *outer : own.emplace(doc);

    StripRecord &strip = doc.strips[row];
    strip.set(StripField::StripKind, StripKinds::Scene);
    strip.set(StripField::SceneNumber, page.scene);
    strip.set(StripField::Synopsis, page.synopsis);
    strip.set(StripField::ScriptPage, page.scriptPage);
    strip.set(StripField::PageLength, SpinsToLength(page.whole, page.eighths));
    strip.set(StripField::Sequence, page.sequence);
    strip.set(StripField::Location, page.location);
    strip.set(StripField::SetName, page.set);
    strip.set(StripField::DayNight, codeFor(DayNightCodes, page.time));
    strip.set(StripField::IntExt, codeFor(IntExtCodes, page.intExt));
    // The day number is derived; the recalculation below fills it again.
    strip.set(StripField::DayNumber, QString());
    strip.set(StripField::Notes, legacy::JoinCommaText(page.notes));
    strip.set(StripField::Assignments, QString());
    const int elements = std::min<int>(doc.elements.count(), int(flags.size()) - 1);
    for (int element = 1; element <= elements; ++element) {
        if (flags.at(element))
            AddAssignment(doc, row, element);
    }

    doc.SelElement = -1;
    // The recalculation may put rest days before the strip: it is found again by the
    // number of strips before it.
    const int position = stripsBefore(doc, row);
    edit.markModified();
    row = rowOf(doc, position);

    AddToPickList(doc.locationPickList, page.location);
    AddToPickList(doc.setPickList, page.set);
    return row;
}

} // namespace

ResultOf<int> RecordStrip(ScheduleDocument &doc, int mode, int current, const ScenePage &page,
                          const AssignmentFlags &flags)
{
    return recordStrip(doc, nullptr, mode, current, page, flags);
}

ResultOf<int> SaveScene(ScheduleDocument &doc, int mode, int current, const ScenePage &page,
                        const AssignmentFlags &flags)
{
    DocumentEdit edit(doc, mode == SceneMode::Edit ? QStringLiteral("edit scene") : QStringLiteral("add new scene"));
    ResultOf<int> saved = recordStrip(doc, &edit, mode, current, page, flags);
    // A refused page still counts as a change, as the snapshot was taken.
    edit.markModified();
    if (mode == SceneMode::Add)
        edit.scrollToStrip(ScrollPositionAfterAppend(doc.strips.count()));
    return saved;
}

ResultOf<int> ApplyScene(ScheduleDocument &doc, int mode, int current, const ScenePage &page,
                         const AssignmentFlags &flags)
{
    DocumentEdit edit(doc, QStringLiteral("add / edit scene"));
    return recordStrip(doc, &edit, mode, current, page, flags);
}

int ScrollPositionAfterAppend(int stripCount)
{
    // The scroll bar runs from 1 to the strip count and refuses anything below.
    const int position = stripCount - 5;
    return position >= 1 ? position : stripCount;
}

SceneStep StepToScene(ScheduleDocument &doc, int current, int direction)
{
    const int count = doc.strips.count();
    SceneStep step;
    int index = current;
    do {
        index += direction;
    } while (index >= 1 && index <= count && !doc.strips[index].isScene());

    if (index >= 1 && index <= count) {
        step.found = true;
        doc.SelStart = index;
        doc.SelEnd = index;
        // The board behind the editor shows the strip first; nothing else follows.
        DocumentChange showing;
        showing.firstStrip = index;
        showing.boardOnly = true;
        doc.view().documentChanged(doc, showing);
    }
    if (direction > 0 && index >= count) {
        step.atLimit = true;
        index = count;
        doc.SelStart = index;
        doc.SelEnd = index;
    } else if (direction < 0 && index < 2) {
        step.atLimit = true;
        index = 1;
        doc.SelStart = index;
        doc.SelEnd = index;
    }
    step.index = index;
    return step;
}

QStringList MemoLines(const QString &memoText)
{
    if (memoText.isEmpty())
        return {};
    QString text = memoText;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.split(u'\n');
}

QString MemoText(const QStringList &lines)
{
    return lines.join(u'\n');
}

} // namespace tb
