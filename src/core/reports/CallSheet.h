#pragma once

// The call sheet of one shooting day: the header values, the scenes shot that day, the
// cast with their calls, extras, crew, other elements and notes. The sheet is filled
// from the schedule for a date and may then be edited by hand (in the call sheet
// dialog or in a saved call sheet file) before it is printed through "CallSheet1.dfm".

#include "reports/ReportBuilders.h"

#include "document/Result.h"
#include "document/ScheduleDocument.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

namespace tb {

// One grid of the sheet: its data rows (the title row is not held), each with the
// grid's number of columns. A grid always has at least one, possibly empty, data row.
struct CallSheetGrid
{
    explicit CallSheetGrid(int columnCount = 2)
        : columns(columnCount)
    {
        clear();
    }

    int columns;
    QList<QStringList> rows;

    // Back to one empty data row.
    void clear()
    {
        rows = {QStringList(columns)};
        m_filled = false;
    }
    // Adds a row when filling from the schedule: the first one takes the empty row.
    void append(const QStringList &row);
    int rowCount() const { return int(rows.size()); }
    QString cell(int row, int column) const
    {
        return row >= 0 && row < rows.size() && column >= 0 && column < rows.at(row).size() ? rows.at(row).at(column)
                                                                                            : QString();
    }

private:
    bool m_filled = false;
};

// The columns of the grids.
namespace CallSheetColumns {
enum Scene { SceneNumber, SceneLocation, ScenePages, SceneDayNight, SceneSynopsis };
enum Cast { CastCharacter, CastName, CastMakeup, CastCostume, CastOnSet, CastTransport };
enum TwoColumns { Description, Call };
enum Other { OtherType, OtherDescription };
} // namespace CallSheetColumns

struct CallSheet
{
    double date = 0; // the picked date as a date-time number (days since 30 December 1899)
    QString unitCall;
    QString costumeCall;
    QString makeupCall;
    QString weather;
    QString wrap;
    CallSheetGrid scenes{5};
    CallSheetGrid cast{6};
    CallSheetGrid extras{2};
    CallSheetGrid crew{2};
    CallSheetGrid other{2};
    QStringList notes; // the lines of the notes

    QDate pickedDate() const;
};

// The column titles and widths (pixels) of the dialog's grids.
QStringList CallSheetSceneTitles();
QList<int> CallSheetSceneWidths();
QStringList CallSheetCastTitles();
QList<int> CallSheetCastWidths();

// What the dialog does on show, with the given date instead of tomorrow: the calls from
// the production details, no notes and no weather, the day recalculation, then
// UpdateSheet and UpdateElementLists.
void FillCallSheet(ScheduleDocument &doc, CallSheet &sheet, double date);

// The scenes of the picked date in board order, the unit call from the production
// details, and the notes of those scenes (each comma-separated item a line).
void UpdateSheet(const ScheduleDocument &doc, CallSheet &sheet);

// Cast, extras, crew and other elements from the listed scenes (each element once). A
// scene row whose scene number no strip has ends the listing there: later rows are not
// looked at.
void UpdateElementLists(ScheduleDocument &doc, CallSheet &sheet);

// The pages of all listed scenes (every strip with a listed scene number counts) and
// the text shown under the scenes: "Total pages: " and the page length.
double CallSheetPages(const ScheduleDocument &doc, const CallSheet &sheet);
QString DoTotalPages(const ScheduleDocument &doc, const CallSheet &sheet);

// ---- The dialog's pop-up lists ----

// The scene list: every scene strip in board order as a scene row; with unshotOnly,
// scenes marked shot are left out. An empty list is one row "- NO SCENES -".
QList<QStringList> ScenePopupRows(const ScheduleDocument &doc, bool unshotOnly);
// The cast list: board id, description and name of every cast element.
QList<QStringList> CastPopupRows(const ScheduleDocument &doc);
// The category list: the long names from the third category on.
QStringList CategoryPopupNames(const ScheduleDocument &doc);

// A scene chosen from the scene list: the scene row of the first strip with that
// scene number. When there is none, "Error finding the specified scene." is shown and
// the row comes from the last strip of the table.
QStringList ChosenSceneRow(ScheduleDocument &doc, const QString &sceneNumber);

// A cast member chosen from the cast list into a cast row: "id - description", the
// name, and, where empty, the makeup call in the "Costume" column and the costume call
// in the "On set" column (one column to the right of a filled sheet's; kept as the
// program has always placed them). When no element has that board id and description,
// "Internal error finding the specified cast member." is shown and the last element of
// the table is used.
QStringList ChosenCastRow(ScheduleDocument &doc, const CallSheet &sheet, const QString &boardId,
                          const QString &description, const QStringList &current);

// Whether a rest day falls on the date: an automatic rest day whose date, counted one
// day earlier than a scene's, is the date.
bool IsAutoRestDay(const ScheduleDocument &doc, const QDate &date);
inline constexpr char CallSheetRestText[] =
    "The date you have picked has beem marked as a rest day under Auto-rest days.";
inline constexpr char CallSheetDateChangeText[] =
    "You have manually entered some information for the previous date.\r\rDo you want to clear this and "
    "automatically update the sheet? Click No to just change the date.";
inline constexpr char CallSheetNeedsStartText[] =
    "You need to enter a production start date before you can print call sheets.";

// ---- Printing ----

// Loads "CallSheet1.dfm" and pushes the sheet into it: the header values, the
// scenes, cast, extras beside other elements, crew in two halves and the notes; then
// the advance schedule (the scenes of the next shooting day after the sheet's date).
ResultOf<BuiltReport> CreateCallSheetPages(ScheduleDocument &doc, const CallSheet &sheet,
                                           const ReportBuildContext &context = {});

// The next shooting day after the date: the first later date on which scene strips
// fall, and those strips; an invalid date when there is none.
QDate NextShootingDay(const ScheduleDocument &doc, const QDate &after, QList<int> *rows = nullptr);

} // namespace tb
