#pragma once

#include "document/ScheduleDocument.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace tb {

// The cast an import found, for the review that follows it.
struct ReviewedCharacter
{
    int element = 0; // element row
    QString name;
    int scenes = 0; // scene strips it is assigned to
    // Why the name looks like a mistake ("no letters", ...); empty when it looks like
    // a character. Doubtful names start unticked in the review.
    QString doubt;
};

// Why a cast name found by an import is likely no character: no letters ("12."), a
// trailing full stop ("A river.") or "!" or "?" ("BOOM!"), a page number ("PAGE 3", "- 12 -"), more than
// three words ("Grabbing the snake and running"), a quotation ("\"Dog translator\""),
// a transition ("Cut to black",
// "Continued"). Empty when none of these holds.
QString CharacterDoubt(const QString &name);

// Every cast element of the document in table order.
QList<ReviewedCharacter> ReviewCharacters(const ScheduleDocument &doc);

// Removes the given elements with their assignments. The elements after them move
// up, the scenes' assignment lists follow, and the cast board ids are numbered again
// 1, 2, 3 ... in table order. Returns the names removed.
QStringList RemoveCharacters(ScheduleDocument &doc, const QList<int> &elements);

// The review without asking: removes every cast element with a doubt. Returns the
// names removed.
QStringList RemoveDoubtfulCharacters(ScheduleDocument &doc);

} // namespace tb
