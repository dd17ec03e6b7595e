#pragma once

#include "TestSupport.h"

#include "document/DocumentView.h"
#include "document/ScheduleDocument.h"

#include <QList>

namespace tb::test {

// Records what the scheduling commands tell the views: every scroll wish, the
// selection as it stood at each notification, and the command updates.
class SchedulingTestView : public DocumentView
{
public:
    explicit SchedulingTestView(const ScheduleDocument &doc)
        : m_doc(doc)
    {}
    void documentChanged(const ScheduleDocument &, const DocumentChange &change) override
    {
        if (change.firstStrip)
            scrolls.append(*change.firstStrip);
        selectionAtRepaint.append(m_doc.SelStart);
        if (!change.boardOnly)
            ++commandUpdates;
    }

    QList<int> scrolls;
    QList<int> selectionAtRepaint;
    int commandUpdates = 0;

private:
    const ScheduleDocument &m_doc;
};

// A document with a scripted prompter and a recording view.
struct Fixture
{
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    SchedulingTestView view{doc};
    Fixture()
    {
        doc.setPrompter(&prompter);
        doc.setView(&view);
    }
};

// Scenes of the given page lengths ("12", "0.5"), a banner for "B" and a divider for
// "|", numbered scene by scene; then the days are calculated.
inline void Build(ScheduleDocument &doc, const QStringList &strips)
{
    int scene = 0;
    for (const QString &s : strips) {
        if (s == "|")
            AddDivider(doc);
        else if (s == "B")
            AddBanner(doc, "Travel", 0);
        else
            AddScene(doc, QString::number(++scene), s);
    }
    SetModified(doc);
}

inline const QString FridayMarch6 = QStringLiteral("46087"); // Fri, March 6, 2026

} // namespace tb::test
