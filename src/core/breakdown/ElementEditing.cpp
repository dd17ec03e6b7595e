#include "breakdown/ElementEditing.h"

#include "document/AssignmentList.h"
#include "document/DocumentEdit.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

#include <algorithm>

namespace tb {

namespace {

const QString CastCategoryText = QStringLiteral("1");

int intOrZero(const QString &text)
{
    bool ok = false;
    const int value = legacy::StrToInt(text, &ok);
    return ok ? value : 0;
}

} // namespace

int GetHighestCast(const ScheduleDocument &doc)
{
    int highest = 0;
    for (int i = 1; i <= doc.elements.count(); ++i) {
        const ElementRecord &element = doc.elements[i];
        if (intOrZero(element[ElementField::CategoryNumber]) != CastCategory)
            continue;
        highest = std::max(highest, intOrZero(element[ElementField::BoardId]));
    }
    return highest;
}

ElementIdDefault DoID(const ScheduleDocument &doc, int categoryPosition)
{
    if (categoryPosition > 0) {
        const QString code =
            categoryPosition < doc.categoryCount() ? doc.categories.at(categoryPosition).code : QString();
        return {code, false};
    }
    // So by default only the cast is printed on the board.
    return {QString::number(GetHighestCast(doc) + 1), true};
}

ElementPage ElementPageFromRecord(const ElementRecord &element)
{
    ElementPage page;
    page.description = element[ElementField::Description];
    page.printOnBoard = !element[ElementField::PrintOnBoard].isEmpty();
    page.holdRule = element[ElementField::HoldRule] == QLatin1String("SAG");
    page.boardId = element[ElementField::BoardId];
    page.otherInfo = legacy::SplitCommaText(element[ElementField::OtherInfo]);
    page.categoryPosition = intOrZero(element[ElementField::CategoryNumber]) - 1;
    page.name = element[ElementField::PersonName];
    return page;
}

QList<AssignLine> AssignListLines(const ScheduleDocument &doc, int element)
{
    QList<AssignLine> lines;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        const StripRecord &strip = doc.strips[i];
        if (!strip.isScene())
            continue;
        AssignLine line;
        line.text = strip[StripField::SceneNumber];
        if (!strip[StripField::Location].isEmpty())
            line.text += QStringLiteral(" - ") + strip[StripField::Location];
        if (!strip[StripField::Synopsis].isEmpty())
            line.text += QStringLiteral(" - ") + strip[StripField::Synopsis];
        line.strip = i;
        line.assigned = element >= 1 && IsAssigned(doc, i, element);
        lines.append(line);
    }
    return lines;
}

bool IsDuplicateCastId(const ScheduleDocument &doc, int editIndex, const QString &id)
{
    for (int i = 1; i <= doc.elements.count(); ++i) {
        if (i == editIndex)
            continue;
        const ElementRecord &element = doc.elements[i];
        if (element[ElementField::CategoryNumber] == CastCategoryText && element[ElementField::BoardId] == id)
            return true;
    }
    return false;
}

bool ConfirmDuplicateCastId(ScheduleDocument &doc, int editIndex, const QString &id)
{
    // The test looks at the cast whatever the category of the element being saved,
    // so a prop whose ID equals a cast number is asked about too.
    if (!IsDuplicateCastId(doc, editIndex, id))
        return true;
    return doc.prompter().question(MessageKind::Warning,
                                   QStringLiteral("The element ID you have entered is already being used by another "
                                                  "cast element.\r\rAre you sure you want to have duplicate IDs?"),
                                   Buttons::YesNo) == Answer::Yes;
}

ResultOf<int> RecordElement(ScheduleDocument &doc, int editIndex, const ElementPage &page,
                            const QList<AssignLine> &lines)
{
    if (page.description.isEmpty()) {
        const QString message = QStringLiteral("You need to enter a description for the element, or else click Cancel "
                                               "if you do not wish to change anything.");
        doc.prompter().error(message);
        return ResultOf<int>::failure(message);
    }
    if (page.boardId.isEmpty()) {
        const QString message = QStringLiteral("You need to enter an identifier for the element, or else click "
                                               "Cancel if you do not wish to change anything.");
        doc.prompter().error(message);
        return ResultOf<int>::failure(message);
    }

    int row = editIndex;
    if (editIndex < 1) {
        const Result appended = doc.elements.append(ElementRecord());
        if (!appended) {
            doc.prompter().error(appended.message());
            return ResultOf<int>(appended);
        }
        row = doc.elements.count();
    }

    ElementRecord &element = doc.elements[row];
    element.set(ElementField::Description, page.description);
    element.set(ElementField::CategoryNumber, QString::number(page.categoryPosition + 1));
    element.set(ElementField::PrintOnBoard, page.printOnBoard ? QStringLiteral("1") : QString());
    element.set(ElementField::BoardId, page.boardId);
    element.set(ElementField::OtherInfo, legacy::JoinCommaText(page.otherInfo));
    element.set(ElementField::PersonName, page.name);
    element.set(ElementField::HoldRule, page.holdRule ? QStringLiteral("SAG") : QStringLiteral("NONE"));

    for (const AssignLine &line : lines) {
        if (line.strip < 1 || line.strip > doc.strips.count())
            continue;
        if (line.assigned) {
            // AddAssignment alone would add a small number twice.
            if (!IsAssigned(doc, line.strip, row))
                AddAssignment(doc, line.strip, row);
        } else {
            RemoveAssignment(doc, line.strip, row);
        }
    }

    doc.status().keepAlive();
    SetModified(doc);
    return row;
}

bool ResetCastNumbering(ScheduleDocument &doc)
{
    if (!doc.prompter().confirm(
            QStringLiteral("You are about to re-order all Cast numbering, removing any gaps or duplicate numbers. "
                           "This will only alter the numbers used to represent each cast element on the "
                           "board.\r\rAre you sure you wish to proceed?")))
        return false;
    // Board IDs feed no derived value; the edit marks the document modified all the same.
    DocumentEdit edit(doc, QStringLiteral("re-order elements"));
    int n = 0;
    for (int i = 1; i <= doc.elements.count(); ++i) {
        if (doc.elements[i][ElementField::CategoryNumber] == CastCategoryText)
            doc.elements[i].set(ElementField::BoardId, QString::number(++n));
    }
    return true;
}

void SortElementRows(ScheduleDocument &doc)
{
    const int count = doc.elements.count();
    // New number of every old element; 0 for one whose category is none of the list's.
    QList<int> newIndex(count + 1, 0);
    QList<ElementRecord> scratch;
    scratch.reserve(count);
    for (int category = 1; category <= doc.categoryCount(); ++category) {
        const QString text = QString::number(category);
        for (int i = 1; i <= count; ++i) {
            if (doc.elements[i][ElementField::CategoryNumber] == text) {
                scratch.append(doc.elements[i]);
                newIndex[i] = int(scratch.size());
            }
        }
    }
    // Elements of an unknown category are not carried over: the rows after the sorted
    // ones keep what they held, copies of rows that moved. Kept as the program has it.
    for (int n = 1; n <= scratch.size(); ++n)
        doc.elements[n] = scratch.at(n - 1);

    for (int s = 1; s <= doc.strips.count(); ++s) {
        QList<int> numbers;
        for (int old : ReadStripAssignments(doc, s)) {
            if (old >= 1 && old <= count && newIndex.at(old) > 0)
                numbers.append(newIndex.at(old));
        }
        // The new list is built element by element in the new order, each once.
        std::sort(numbers.begin(), numbers.end());
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
        const QString list = JoinAssignmentList(numbers);
        if (doc.strips[s][StripField::Assignments] != list)
            doc.strips[s].set(StripField::Assignments, list);
    }
}

bool SortElementsByCategory(ScheduleDocument &doc)
{
    if (!doc.prompter().confirm(
            QStringLiteral("You are about to sort the elements by category. This will only alter their display order "
                           "on the production board.\r\rAre you sure you wish to proceed?")))
        return false;
    doc.status().setBusy(true);
    {
        DocumentEdit edit(doc, QStringLiteral("sort elements"));
        SortElementRows(doc);
    }
    doc.status().setBusy(false);
    return true;
}

} // namespace tb
