#pragma once

#include "document/DocumentView.h"
#include "document/ScheduleDocument.h"

#include <QList>

// Records the scrolling and repainting that the scheduling commands ask of the board,
// with the selection as it stood at each repaint.
class SchedulingTestView : public tb::DocumentView
{
public:
    explicit SchedulingTestView(const tb::ScheduleDocument &doc)
        : m_doc(doc)
    {}
    void scrollToStrip(int row) override { scrolls.append(row); }
    void repaintBoard() override { selectionAtRepaint.append(m_doc.SelStart); }
    void updateCommands(const tb::ScheduleDocument &) override { ++commandUpdates; }

    QList<int> scrolls;
    QList<int> selectionAtRepaint;
    int commandUpdates = 0;

private:
    const tb::ScheduleDocument &m_doc;
};
