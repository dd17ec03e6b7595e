#include "ui/shell/PanelStatusBar.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

namespace tb {

namespace {

QLabel *makePanel(QWidget *parent, int width, Qt::Alignment alignment)
{
    auto *label = new QLabel(parent);
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label->setAlignment(alignment | Qt::AlignVCenter);
    label->setContentsMargins(3, 0, 3, 0);
    if (width > 0)
        label->setFixedWidth(width);
    else
        label->setMinimumWidth(50);
    return label;
}

} // namespace

PanelStatusBar::PanelStatusBar(QWidget *parent)
    : QStatusBar(parent)
{
    setObjectName(QStringLiteral("SBar"));
    setSizeGripEnabled(true);
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);

    m_labels[MessagePanel] = makePanel(row, 300, Qt::AlignLeft);
    m_labels[PagesPanel] = makePanel(row, 75, Qt::AlignHCenter);
    m_labels[ModifiedPanel] = makePanel(row, 60, Qt::AlignHCenter);
    m_labels[DaysPanel] = makePanel(row, 0, Qt::AlignLeft);
    m_gauge = new QProgressBar(row);
    m_gauge->setObjectName(QStringLiteral("Gauge"));
    m_gauge->setRange(0, 100);
    m_gauge->setValue(0);
    m_gauge->setTextVisible(false);
    m_gauge->setFixedWidth(100);

    layout->addWidget(m_labels[MessagePanel]);
    layout->addWidget(m_labels[PagesPanel]);
    layout->addWidget(m_gauge);
    layout->addWidget(m_labels[ModifiedPanel]);
    layout->addWidget(m_labels[DaysPanel], 1);
    addWidget(row, 1);
}

void PanelStatusBar::setPanelText(int panel, const QString &text)
{
    if (panel < 0 || panel >= PanelCount || panel == GaugePanel)
        return;
    m_labels[panel]->setText(text);
}

void PanelStatusBar::setProgress(int percent)
{
    const int value = qBound(0, percent, 100);
    if (value == m_gauge->value())
        return;
    m_gauge->setValue(value);
    // Long work runs on this thread; the gauge is painted at once so it moves.
    m_gauge->repaint();
}

void PanelStatusBar::setBusy(bool busy)
{
    if (busy == m_busy)
        return;
    m_busy = busy;
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void PanelStatusBar::keepAlive()
{
    // Paint and timers only: a click during a save must not start another command.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

QString PanelStatusBar::panelText(int panel) const
{
    if (panel < 0 || panel >= PanelCount || panel == GaugePanel)
        return {};
    return m_labels[panel]->text();
}

int PanelStatusBar::progress() const
{
    return m_gauge->value();
}

QWidget *PanelStatusBar::panel(int index) const
{
    if (index == GaugePanel)
        return m_gauge;
    if (index < 0 || index >= PanelCount)
        return nullptr;
    return m_labels[index];
}

} // namespace tb
