#pragma once

#include <QString>

namespace tb {

// The main window's status bar as the core sees it. Panels by number:
// 0 progress and result texts, 1 pages of the selection, 2 the progress gauge,
// 3 "Modified", 4 production and shooting day totals.
class StatusSink
{
public:
    enum Panel { MessagePanel = 0, PagesPanel = 1, GaugePanel = 2, ModifiedPanel = 3, DaysPanel = 4 };

    virtual ~StatusSink() = default;
    virtual void setPanelText(int panel, const QString &text) = 0;
    // The gauge of panel 2, 0..100.
    virtual void setProgress(int percent) = 0;
    // The hourglass cursor around long work.
    virtual void setBusy(bool busy) = 0;
    // Lets the window repaint and handle pending input during long work.
    virtual void keepAlive() {}
};

class NullStatusSink : public StatusSink
{
public:
    void setPanelText(int, const QString &) override {}
    void setProgress(int) override {}
    void setBusy(bool) override {}
};

} // namespace tb
