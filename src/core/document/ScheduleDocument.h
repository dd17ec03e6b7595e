#pragma once

#include "document/Clipboard.h"
#include "document/DocumentView.h"
#include "document/Prompter.h"
#include "document/RecordTable.h"
#include "document/StatusSink.h"
#include "document/UndoStore.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace tb {

struct Category
{
    QString code; // short code shown on the board ("Cst")
    QString name; // long name ("Cast")
};

// The fifteen categories every schedule uses.
QList<Category> DefaultCategories();

// The production details and other single values of a schedule. Everything the
// file holds is text or a number; the four call times are not saved.
struct ProductionValues
{
    QString FileVersion = QStringLiteral("1.0");
    QString PictureTitle;
    QString Company;
    QString Producer;
    QString Director;
    QString FirstAD;
    QString ProductionManager;
    QString ScriptTitle;
    QString StartDate;      // date serial number as float text; blank = no start date
    QString CompanyAddress; // comma text
    QString LogoFile;
    double BoardZoom = 1.0;
    QString AutoRestDayRule; // "D" or "S" followed by digits; blank = none
    QString Reference;
    QString PreparedBy;
    int NextStripId = 0; // last StripId given out
    int HoldDays = 10;
    QString UnitCall = QStringLiteral("8:00 am");
    QString CostumeCall = QStringLiteral("7:45 am");
    QString MakeupCall = QStringLiteral("7:00 am");
    QString WrapTime = QStringLiteral("6:00 pm");
};

// Counters that RecalculateDays derives from the strip table.
struct DayTotals
{
    int dividers = 0;
    int banners = 0;
    int productionDays = 0;
    int shootingDays = 0;
};

// The one open schedule: strip, element and crew tables, categories, production
// values, the selection, and the services through which the core talks to the user.
// The state of the running window (editor modes, the autosave interval, the enabled
// commands) lives with the window, not here.
// The document lives for the whole run; New and Open empty it rather than replace it.
class ScheduleDocument
{
public:
    ScheduleDocument();
    ScheduleDocument(const ScheduleDocument &) = delete;
    ScheduleDocument &operator=(const ScheduleDocument &) = delete;

    StripTable strips;
    ElementTable elements;
    QList<CrewRow> crew; // rows 1..50; row 0 unused
    QList<bool> marks;   // one mark per strip row 1..1000, set by the call sheet
    QList<Category> categories;
    ProductionValues values;
    DayTotals days;

    bool Modified = false;
    QString FileName; // full path; blank = untitled

    // Selection: strip rows (0 = none) and element row (-1 = none).
    int SelStart = 0;
    int SelEnd = 0;
    int SelElement = -1;

    // The scene editor's pick lists: the locations and sets typed in this document,
    // emptied by New. They stay with the document, not with the editor, because the
    // script importers fill the location list as they create scenes.
    QStringList locationPickList;
    QStringList setPickList;

    // The undo store and the private clipboard live for the whole run: New and Open
    // empty neither, so Undo after New brings back the earlier tables. The Undo and
    // Redo entries are derived from the store (UndoCommands).
    UndoStack undo;
    StripClipboard clipboard;

    int categoryCount() const { return int(categories.size()); }

    // The services; never null. The defaults show nothing and answer Yes.
    Prompter &prompter() const { return *m_prompter; }
    StatusSink &status() const { return *m_status; }
    DocumentView &view() const { return *m_view; }
    void setPrompter(Prompter *prompter);
    void setStatusSink(StatusSink *status);
    void setView(DocumentView *view);

private:
    Prompter *m_prompter;
    StatusSink *m_status;
    DocumentView *m_view;
};

} // namespace tb
