#include "import/CharacterReview.h"

#include "document/AssignmentList.h"
#include "document/DocumentOperations.h"

#include <QRegularExpression>
#include <QSet>

namespace tb {

QString CharacterDoubt(const QString &name)
{
    const QString upper = name.simplified().toUpper();
    bool letters = false;
    for (const QChar c : upper) {
        if (c.isLetter()) {
            letters = true;
            break;
        }
    }
    if (!letters)
        return QStringLiteral("no letters");
    static const QString quotes = QStringLiteral("\"'\u2018\u2019\u201C\u201D");
    if (quotes.contains(upper.front()) || quotes.contains(upper.back()))
        return QStringLiteral("a quotation");
    static const QRegularExpression page(
        QStringLiteral("^(PAGE|PG\\.?|P\\.)\\s*\\d+|^\\d+[A-Z]?\\.$|^-\\s*\\d+\\s*-$|^\\d+\\s+OF\\s+\\d+$"));
    if (page.match(upper).hasMatch())
        return QStringLiteral("a page number");
    static const QRegularExpression transition(
        QStringLiteral("\\b(CUT|FADE|FADES|DISSOLVE|DISSOLVES|SMASH|MATCH|WIPE|IRIS|INTERCUT|CONTINUED|"
                       "CONT'D|MORE|THE END|END|BACK TO|TITLE|SUPER|FLASHBACK|MONTAGE)\\b"));
    if (transition.match(upper).hasMatch())
        return QStringLiteral("a transition");
    if (upper.endsWith(u'.'))
        return QStringLiteral("ends with a full stop");
    if (upper.endsWith(u'!') || upper.endsWith(u'?'))
        return QStringLiteral("ends like a sentence");
    if (upper.split(u' ', Qt::SkipEmptyParts).size() > 3)
        return QStringLiteral("more than three words");
    return QString();
}

QList<ReviewedCharacter> ReviewCharacters(const ScheduleDocument &doc)
{
    QList<int> scenes(doc.elements.count() + 1, 0);
    for (int s = 1; s <= doc.strips.count(); ++s) {
        if (doc.strips[s][StripField::StripKind] != StripKinds::Scene)
            continue;
        QSet<int> seen;
        for (const int element : AssignedElements(doc, s)) {
            if (element >= 1 && element <= doc.elements.count() && !seen.contains(element)) {
                seen.insert(element);
                ++scenes[element];
            }
        }
    }
    QList<ReviewedCharacter> cast;
    for (int e = 1; e <= doc.elements.count(); ++e) {
        if (doc.elements[e][ElementField::CategoryNumber] != QLatin1String("1"))
            continue;
        const QString &name = doc.elements[e][ElementField::Description];
        cast.append({e, name, scenes.at(e), CharacterDoubt(name)});
    }
    return cast;
}

QStringList RemoveCharacters(ScheduleDocument &doc, const QList<int> &elements)
{
    const int count = doc.elements.count();
    QSet<int> removed;
    for (const int e : elements) {
        if (e >= 1 && e <= count)
            removed.insert(e);
    }
    if (removed.isEmpty())
        return {};

    // Old row -> new row (0: removed).
    QList<int> moved(count + 1, 0);
    QStringList names;
    int next = 0;
    for (int e = 1; e <= count; ++e) {
        if (removed.contains(e))
            names.append(doc.elements[e][ElementField::Description]);
        else
            moved[e] = ++next;
    }

    for (int s = 1; s <= doc.strips.count(); ++s) {
        const QString &list = doc.strips[s][StripField::Assignments];
        if (list.isEmpty())
            continue;
        QList<int> kept;
        for (const int e : AssignedElements(doc, s)) {
            if (e >= 1 && e <= count && moved.at(e) > 0)
                kept.append(moved.at(e));
            else if (e < 1 || e > count)
                kept.append(e);
        }
        doc.strips[s].set(StripField::Assignments, JoinAssignmentList(kept));
    }
    for (int e = count; e >= 1; --e) {
        if (removed.contains(e))
            doc.elements.removeRows(e, 1);
    }
    int cast = 0;
    for (int e = 1; e <= doc.elements.count(); ++e) {
        if (doc.elements[e][ElementField::CategoryNumber] == QLatin1String("1"))
            doc.elements[e].set(ElementField::BoardId, QString::number(++cast));
    }
    doc.SelElement = -1;
    SetModified(doc);
    return names;
}

QStringList RemoveDoubtfulCharacters(ScheduleDocument &doc)
{
    QList<int> doubtful;
    for (const ReviewedCharacter &c : ReviewCharacters(doc)) {
        if (!c.doubt.isEmpty())
            doubtful.append(c.element);
    }
    return RemoveCharacters(doc, doubtful);
}

} // namespace tb
