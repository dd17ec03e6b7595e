#include "document/AssignmentList.h"

#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"

namespace tb {

namespace {

// Calls take(item) for every item of the list, in order, until it returns false.
template <typename Take>
void forEachItem(const QString &list, AssignmentItems items, Take take)
{
    if (list.isEmpty())
        return;
    if (items == AssignmentItems::CommaText) {
        for (const QString &item : legacy::SplitCommaText(list)) {
            if (!take(item))
                return;
        }
        return;
    }
    qsizetype start = 0;
    while (start <= list.size()) {
        qsizetype comma = list.indexOf(u',', start);
        if (comma < 0)
            comma = list.size();
        if (!take(list.mid(start, comma - start)))
            return;
        start = comma + 1;
    }
}

} // namespace

AssignmentRead ReadAssignmentList(const QString &list, UnreadableItem atUnreadable, AssignmentItems items)
{
    AssignmentRead read;
    forEachItem(list, items, [&](const QString &item) {
        bool ok = false;
        const int number = legacy::StrToInt(item, &ok);
        if (ok) {
            read.numbers.append(number);
            return true;
        }
        read.unreadable = true;
        return atUnreadable == UnreadableItem::Skipped;
    });
    return read;
}

QList<int> ReadStripAssignments(const ScheduleDocument &doc, int strip)
{
    const AssignmentRead read =
        ReadAssignmentList(doc.strips[strip][StripField::Assignments], UnreadableItem::EndsList);
    if (read.unreadable)
        doc.prompter().error(QString::fromLatin1(AssignmentReadError));
    return QList<int>(read.numbers.cbegin(), read.numbers.cend());
}

QList<bool> AssignedElementFlags(const ScheduleDocument &doc, int strip)
{
    QList<bool> flags(doc.elements.count() + 1, false);
    for (int number : ReadStripAssignments(doc, strip)) {
        if (number >= 1 && number < flags.size())
            flags[number] = true;
    }
    return flags;
}

QString JoinAssignmentList(const QList<int> &numbers)
{
    QString list;
    for (int number : numbers) {
        if (!list.isEmpty())
            list += u',';
        list += QString::number(number);
    }
    return list;
}

QString AppendToAssignmentList(const QString &list, int element)
{
    if (list.contains(legacy::Pad3(element)))
        return list;
    const QString number = QString::number(element);
    return list.isEmpty() ? number : list + u',' + number;
}

std::optional<QString> RemoveFromAssignmentList(const QString &list, int element)
{
    QStringList kept;
    bool readable = true;
    forEachItem(list, AssignmentItems::CommaText, [&](const QString &item) {
        bool ok = false;
        const int number = legacy::StrToInt(item, &ok);
        if (!ok)
            readable = false;
        else if (number != element)
            kept.append(item);
        return readable;
    });
    if (!readable)
        return std::nullopt;
    return legacy::JoinCommaText(kept);
}

} // namespace tb
