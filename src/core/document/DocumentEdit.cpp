#include "document/DocumentEdit.h"

#include "document/DayCalculation.h"
#include "document/ScheduleDocument.h"
#include "document/UndoStore.h"

namespace tb {

DocumentEdit::DocumentEdit(ScheduleDocument &doc, const QString &undoLabel)
    : m_doc(doc)
{
    TakeUndoSnapshot(doc, undoLabel);
}

DocumentEdit::DocumentEdit(ScheduleDocument &doc)
    : m_doc(doc)
{}

DocumentEdit::~DocumentEdit()
{
    finish();
}

void DocumentEdit::markModified()
{
    if (m_marked)
        return;
    m_marked = true;
    m_doc.Modified = true;
    m_doc.status().setPanelText(StatusSink::ModifiedPanel, QStringLiteral("Modified"));
    RecalculateDays(m_doc);
}

void DocumentEdit::finish()
{
    if (m_finished)
        return;
    markModified();
    m_finished = true;
    m_doc.view().documentChanged(m_doc, m_change);
}

} // namespace tb
