#include "document/Clipboard.h"

#include "document/DocumentEdit.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"

#include <algorithm>

namespace tb {

namespace {

// The distinct element numbers of a strip's list within first..last, ascending.
QList<int> assignedWithin(const ScheduleDocument &doc, int strip, int first, int last)
{
    QList<int> numbers = AssignedElements(doc, strip);
    numbers.erase(std::remove_if(numbers.begin(), numbers.end(), [&](int n) { return n < first || n > last; }),
                  numbers.end());
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

void clearSelection(ScheduleDocument &doc)
{
    doc.SelStart = 0;
    doc.SelEnd = 0;
    doc.SelElement = -1;
}

} // namespace

void CopySelection(ScheduleDocument &doc)
{
    StripClipboard &clip = doc.clipboard;
    if (doc.SelStart > 0) {
        clip.strips.clear();
        for (int row = doc.SelStart; row <= doc.SelEnd; ++row) {
            if (!doc.strips[row].isAutoRestDay())
                clip.strips.append(doc.strips[row]);
        }
        clip.ClipCount = int(clip.strips.size());
        clip.ClipKind = StripClipboard::Strips;
    }
    if (doc.SelElement > 0) {
        clip.element = doc.elements[doc.SelElement];
        QStringList flags;
        flags.reserve(doc.strips.count());
        for (int strip = 1; strip <= doc.strips.count(); ++strip)
            flags.append(IsAssigned(doc, strip, doc.SelElement) ? QStringLiteral("1") : QStringLiteral("0"));
        clip.assignmentFlags = legacy::JoinCommaText(flags);
        clip.flagStripCount = QString::number(doc.strips.count());
        clip.ClipCount = 1;
        clip.ClipKind = StripClipboard::Element;
    }
}

Result PasteSelection(ScheduleDocument &doc)
{
    const StripClipboard &clip = doc.clipboard;
    if (clip.ClipKind == StripClipboard::Strips && doc.SelStart >= 1) {
        const int at = doc.SelStart;
        Result room = doc.strips.insertRows(at, clip.ClipCount);
        if (!room)
            return room;
        for (int k = 0; k < clip.ClipCount; ++k) {
            StripRecord row = clip.strips.at(k);
            if (row.isScene())
                row.set(StripField::StripId, QString::number(++doc.values.NextStripId));
            doc.strips[at + k] = row;
        }
    } else if (clip.ClipKind == StripClipboard::Element && doc.SelElement >= 1) {
        const int at = doc.SelElement;
        Result room = doc.elements.insertRows(at, 1);
        if (!room)
            return room;
        const int last = doc.elements.count() - 1; // the count before the insertion
        // References to the elements that moved up follow them, highest first.
        for (int strip = 1; strip <= doc.strips.count(); ++strip) {
            const QList<int> moved = assignedWithin(doc, strip, at, last);
            for (auto k = moved.crbegin(); k != moved.crend(); ++k) {
                RemoveAssignment(doc, strip, *k);
                AddAssignment(doc, strip, *k + 1);
            }
        }
        doc.elements[at] = clip.element;
        // The flags apply by row number: strips moved or deleted since the copy get
        // the flags of whatever stood in their row then. This is the program's rule.
        const QStringList flags = legacy::SplitCommaText(clip.assignmentFlags);
        const int flagged = qMin(legacy::StrToIntDef(clip.flagStripCount, 0), MaxStrips);
        for (int strip = 1; strip <= flagged; ++strip) {
            if (flags.value(strip - 1) == QLatin1String("1"))
                AddAssignment(doc, strip, at);
            else
                RemoveAssignment(doc, strip, at);
        }
    }
    return Result::success();
}

void DeleteSelection(ScheduleDocument &doc)
{
    if (doc.SelStart > 0) {
        // Auto rest days are skipped over, not moved: the test is made once per step,
        // as it always has been.
        StripTable &strips = doc.strips;
        const int count = strips.count();
        int d = doc.SelStart;
        int s = doc.SelEnd + 1;
        while (s <= count) {
            if (strips[d].isAutoRestDay())
                ++d;
            if (strips[s].isAutoRestDay()) {
                ++s;
                if (s > count)
                    break;
            }
            strips[d] = strips[s];
            ++s;
            ++d;
        }
        strips.setCount(qMax(0, count - (doc.SelEnd - doc.SelStart + 1)));
    }
    if (doc.SelElement > 0) {
        const int gone = doc.SelElement;
        ElementTable &elements = doc.elements;
        for (int row = gone; row < elements.count(); ++row)
            elements[row] = elements[row + 1];
        for (int strip = 1; strip <= doc.strips.count(); ++strip) {
            RemoveAssignment(doc, strip, gone);
            for (int k : assignedWithin(doc, strip, gone + 1, elements.count())) {
                RemoveAssignment(doc, strip, k);
                AddAssignment(doc, strip, k - 1);
            }
        }
        elements.setCount(elements.count() - 1);
    }
}

void Cut(ScheduleDocument &doc)
{
    if (doc.SelStart > 0) {
        DocumentEdit edit(doc, QStringLiteral("Cut strip(s)"));
        CopySelection(doc);
        DeleteSelection(doc);
        clearSelection(doc);
    }
    if (doc.SelElement > 0) {
        DocumentEdit edit(doc, QStringLiteral("Cut element"));
        CopySelection(doc);
        DeleteSelection(doc);
        clearSelection(doc);
    }
}

void Copy(ScheduleDocument &doc)
{
    if (doc.SelStart < 1 && doc.SelElement < 1) {
        doc.prompter().information(
            QStringLiteral("Nothing selected to copy! Please select some strips and try again."));
        return;
    }
    CopySelection(doc);
}

void Paste(ScheduleDocument &doc)
{
    const StripClipboard &clip = doc.clipboard;
    const bool strips = doc.SelStart >= 1 && clip.ClipKind == StripClipboard::Strips;
    const bool element = doc.SelElement >= 1 && clip.ClipKind == StripClipboard::Element;
    if (!strips && !element)
        return;
    // A paste that would not fit is refused before anything changes.
    const bool fits = strips ? doc.strips.canGrow(clip.ClipCount) : doc.elements.canGrow(1);
    if (!fits) {
        doc.prompter().error(strips ? StripTable::fullMessage() : ElementTable::fullMessage());
        return;
    }
    DocumentEdit edit(doc, strips ? QStringLiteral("Paste strip(s)") : QStringLiteral("Paste element"));
    (void)PasteSelection(doc);
}

void Delete(ScheduleDocument &doc)
{
    if (doc.SelStart > 0 && doc.strips[doc.SelStart].isAutoRestDay()) {
        doc.prompter().warning(QStringLiteral(
            "You cannot manually delete auto-rest day banners. To remove these banners, de-select all items under "
            "menu item Strips | Auto rest days..."));
        return;
    }
    if (doc.SelStart > 0) {
        DocumentEdit edit(doc, QStringLiteral("Delete strip(s)"));
        DeleteSelection(doc);
        clearSelection(doc);
    }
    if (doc.SelElement > 0) {
        DocumentEdit edit(doc, QStringLiteral("Delete element"));
        DeleteSelection(doc);
        clearSelection(doc);
    }
}

int CountElementsShowing(const ScheduleDocument &doc)
{
    int showing = 0;
    for (int j = 1; j <= doc.elements.count(); ++j)
        if (doc.elements[j][ElementField::PrintOnBoard] == QLatin1String("1"))
            ++showing;
    return showing;
}

} // namespace tb
