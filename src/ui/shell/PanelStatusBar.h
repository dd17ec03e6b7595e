#pragma once

#include "document/StatusSink.h"

#include <QStatusBar>

class QLabel;
class QProgressBar;

namespace tb {

// The main window's status bar: five sunken panels side by side. Panel 0 (300 pixels)
// progress and result texts, panel 1 (75, centred) the selected pages, panel 2 (100)
// the progress gauge, panel 3 (60, centred) "Modified", panel 4 the day totals, taking
// what width is left.
class PanelStatusBar : public QStatusBar, public StatusSink
{
    Q_OBJECT

public:
    explicit PanelStatusBar(QWidget *parent = nullptr);

    static constexpr int PanelCount = 5;

    void setPanelText(int panel, const QString &text) override;
    void setProgress(int percent) override;
    void setBusy(bool busy) override;
    void keepAlive() override;

    QString panelText(int panel) const;
    int progress() const;
    // The widget of a panel (a label, or the gauge for panel 2).
    QWidget *panel(int index) const;

private:
    QLabel *m_labels[PanelCount] = {};
    QProgressBar *m_gauge = nullptr;
    bool m_busy = false;
};

} // namespace tb
