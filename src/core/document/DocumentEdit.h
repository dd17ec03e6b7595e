#pragma once

#include "document/DocumentView.h"

#include <QString>

namespace tb {

class ScheduleDocument;

// The one path every change to the document takes. An edit
//   1. takes the undo snapshot under its label ("add new scene", "Move strip" ...)
//      before anything changes, unless it is an edit that by design has no undo
//      (a zoom, the start date, the production details, an import);
//   2. lets the operation change the tables;
//   3. marks the document modified once: "Modified" in the status bar and one run of
//      RecalculateDays, which derives the day fields again;
//   4. tells the views once, with the scroll wish of the change (DocumentChange).
// Steps 3 and 4 run when the edit is finished, at the latest when it goes out of
// scope, on every path out of the operation, early returns and failures included.
//
//     DocumentEdit edit(doc, QStringLiteral("Add day divider"));
//     doc.strips.append(NewDayDividerRow());
//     edit.scrollToStrip(doc.strips.count() - 3);
class DocumentEdit
{
public:
    // An edit with an undo snapshot under the label.
    DocumentEdit(ScheduleDocument &doc, const QString &undoLabel);
    // An edit without an undo snapshot.
    explicit DocumentEdit(ScheduleDocument &doc);
    ~DocumentEdit();
    DocumentEdit(const DocumentEdit &) = delete;
    DocumentEdit &operator=(const DocumentEdit &) = delete;

    ScheduleDocument &document() const { return m_doc; }

    // The board is to show this strip row first once the edit is done.
    void scrollToStrip(int row) { m_change.firstStrip = row; }
    // The board's scroll positions are put back (Undo).
    void restoreScrollPositions(int horizontal, int vertical) { m_change.scrollPositions = {horizontal, vertical}; }

    // Step 3 now, for an operation that needs the derived fields before it is done
    // (the scene editor finds its strip again after rest days moved it). Runs once.
    void markModified();
    // Steps 3 and 4 now. Runs once; the destructor does nothing more.
    void finish();

private:
    ScheduleDocument &m_doc;
    DocumentChange m_change;
    bool m_marked = false;
    bool m_finished = false;
};

} // namespace tb
