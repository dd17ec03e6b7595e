#pragma once

// Commands that rearrange or renumber the strip table as a whole: sorting scene
// strips by up to three keys, conforming the board to a typed order of breakdown
// sheet numbers, and renumbering the sheets in board order.

#include "document/Prompter.h"
#include "document/Result.h"
#include "document/ScheduleDocument.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace tb {

// ---- Sorting ----------------------------------------------------------------

// Columns of the sort preview, which are also the sort keys.
namespace SortColumn {
inline constexpr int Strip = 0; // "#": the strip's row in the table
inline constexpr int Scene = 1;
inline constexpr int Location = 2;
inline constexpr int DayNight = 3;
inline constexpr int IntExt = 4;
inline constexpr int Synopsis = 5;
inline constexpr int Count = 6;
inline constexpr int None = -1;
} // namespace SortColumn

// "Strip number", "Scene number", "Location", "Day / Night", "Int / Ext", "Synopsis".
QStringList SortKeyNames();

// A preview row: row number, scene number, location, day/night, int/ext, synopsis.
using SortRow = QStringList;

// One row per scene strip, in board order.
QList<SortRow> SortPreviewRows(const ScheduleDocument &doc);

// Whether the table holds any strip other than a scene (a divider or a banner).
bool HasNonSceneStrips(const ScheduleDocument &doc);

// Sorts the rows by one column, keeping the order of equal rows. "#" and "Scene"
// compare as whole numbers (the leading digits of a scene number such as 12A, 0 when
// there are none); the others with the locale's case-sensitive text comparison.
void SortRowsByColumn(QList<SortRow> &rows, int column);

// Sorts by the lowest key, then the next, then the highest (SortColumn::None skips a
// key): the rows end in order of the highest key, ties by the next, ties by the
// lowest, remaining ties in board order.
void SortRowsByKeys(QList<SortRow> &rows, int highest, int next, int lowest);

// The warning before a sort deletes the dividers and banners. Both answers go on with
// the sort; returns false when the user chose Abort.
bool WarnSortDeletesDividers(ScheduleDocument &doc);

// Rebuilds the strip table in the order of the preview rows (undo snapshot "sort
// strips"). Every strip that has no preview row, every divider and banner, is gone.
void UpdateStrips(ScheduleDocument &doc, const QList<SortRow> &rows);

// The whole sort as the dialog's OK runs it: preview, keys, the warning when the
// board holds dividers or banners, and the update.
void SortStrips(ScheduleDocument &doc, int highest, int next, int lowest);

// ---- Conforming -------------------------------------------------------------

// A line of the conform list.
struct ConformEntry
{
    QString code;        // "D" divider, "B" banner, "R" rest day, or the sheet number; blank = empty line
    QString description; // what the grid shows beside the code
    int scene = -1;      // index into the scene list for a sheet number; -1 otherwise

    bool isEmpty() const { return code.isEmpty() && description.isEmpty() && scene < 0; }
};

// The typed order of the conform dialog: the document's scene strips as they stood
// when the dialog opened, which of them were entered, and the entered lines.
class ConformList
{
public:
    // Takes the scene strips of the document and starts with one empty line.
    void reset(const ScheduleDocument &doc);

    // One entry as typed: "+" a divider, "-" a rest day, "*text" a banner, anything
    // else a sheet number, matched as text ("05" does not find sheet 5). A sheet that
    // does not exist or was entered already is refused with its message. Returns
    // whether a line was filled.
    bool enter(Prompter &prompter, const QString &text);

    // The Delete key: frees the line's scene and removes the line; the last line left
    // is emptied instead.
    void remove(int line);

    const QList<ConformEntry> &entries() const { return m_entries; }
    int sceneCount() const { return int(m_scenes.size()); }
    bool isUsed(int scene) const { return scene >= 0 && scene < m_used.size() && m_used.at(scene); }

    // Rebuilds the strip table from the lines (undo snapshot "conform strips"). When
    // the number of lines differs from the number of strips the user is asked first;
    // No returns false with nothing changed.
    bool apply(ScheduleDocument &doc) const;

private:
    QList<StripRecord> m_scenes;
    QList<bool> m_used;
    QList<ConformEntry> m_entries;
};

// ---- Renumbering ------------------------------------------------------------

// "Reset breakdown numbering...": after the question, numbers the scene strips 1, 2,
// 3 ... in board order and sets the sheet counter to their number. Returns whether
// it ran.
bool ResetBreakdownNumbering(ScheduleDocument &doc);

// The renumbering alone, without question or snapshot.
void RenumberBreakdownSheets(ScheduleDocument &doc);

} // namespace tb
