#pragma once

#include "import/ScriptImport.h"

#include <QList>
#include <QString>

namespace tb {

// The printed elements of a screenplay, the same for Fountain and Final Draft files.
enum class ScreenplayElement { Heading, Action, Character, Parenthetical, Dialogue, Transition, Centered, PageBreak };

struct ScreenplayParagraph
{
    ScreenplayElement kind = ScreenplayElement::Action;
    QString text;            // lines joined by "\n", markup removed
    int line = 0;            // where it starts in the file (Fountain: line; .fdx: paragraph)
    QString sceneNumber;     // headings: the number the script gives, if any
    QString length;          // headings of .fdx files: "1 3/8" when the file has it
    QString page;            // headings of .fdx files: the script page when the file has it
    bool dualSecond = false; // the second speaker of dual dialogue and its lines
};

struct ScreenplayText
{
    QString title;
    QList<ScreenplayParagraph> paragraphs;
};

// Where each paragraph starts on a standard screenplay page (US Letter, Courier
// 12 pt, 55 lines a page, 61 characters of action, 35 of dialogue), in pages from the
// start of the script (page 3, line 11 is 2 + 11/55). One more value at the end: where
// the script ends. Headings and cues are not left alone at the foot of a page;
// speeches are split with (MORE) and a cue again; blank lines at the top of a page
// are dropped.
QList<double> PaginateScreenplay(const QList<ScreenplayParagraph> &paragraphs);

inline constexpr int ScreenplayLinesPerPage = 55;

// A scene heading without its scene number: interior/exterior from the leading INT.,
// EXT., INT./EXT., I/E or EST.; time of day from the last part ("- NIGHT") through the
// wizard's day and night word lists, day words winning as in the text wizard; the
// location is the rest, in capitals. A continuity note (CONTINUOUS, LATER, SAME) is
// dropped from the location and leaves the time of day open ("?").
void ReadSceneHeading(const QString &heading, const ScriptImportSettings &words, QString *intExt, QString *dayNight,
                      QString *location);

// A character cue as a name: extensions in parentheses, "^" of dual dialogue and the
// "@" of a forced cue removed, blanks folded.
QString CueName(const QString &cue);

// The first line of an action paragraph as a synopsis: markup and extra blanks gone,
// and, when long, cut after the first sentence or at a blank.
QString SynopsisFrom(const QString &action);

// Builds the schedule from a parsed screenplay, exactly as the text wizard builds its
// strips and cast elements (ImportedStrips), keeping the script's scene numbers (a
// running number where a heading has none) and one assignment per character and
// scene. The title becomes the production title when the script has one.
Result BuildScheduleFromScreenplay(ScheduleDocument &doc, const ScreenplayText &script,
                                   const ScriptImportSettings &words);

} // namespace tb
