#include "ui/reports/TfrmPrintingIt.h"

#include "ui_TfrmPrintingIt.h"

#include <QApplication>
#include <QScreen>

namespace tb {

TfrmPrintingIt::TfrmPrintingIt(QWidget *parent)
    : DialogWithHelp(QString(), parent, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::Tool)
    , ui(std::make_unique<Ui::TfrmPrintingIt>())
{
    ui->setupUi(this);
    setFixedSize(298, 70);
    // Without a window frame the box draws its own border.
    setStyleSheet(QStringLiteral("tb--TfrmPrintingIt { border: 1px solid #808080; }"));
}

TfrmPrintingIt::~TfrmPrintingIt() = default;

QLabel *TfrmPrintingIt::PrintLab() const
{
    return ui->PrintLab;
}

QProgressBar *TfrmPrintingIt::PrintGuage() const
{
    return ui->PrintGuage;
}

void TfrmPrintingIt::setText(const QString &text)
{
    ui->PrintLab->setText(text);
}

void TfrmPrintingIt::setMaximum(int maximum)
{
    ui->PrintGuage->setMaximum(std::max(1, maximum));
}

void TfrmPrintingIt::setPosition(int position)
{
    ui->PrintGuage->setValue(std::min(position, ui->PrintGuage->maximum()));
}

void TfrmPrintingIt::showProgress()
{
    if (QScreen *screen = QApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    show();
    QApplication::processEvents();
}

void TfrmPrintingIt::hideProgress()
{
    hide();
}

void TfrmPrintingIt::keepAlive()
{
    QApplication::processEvents();
}

} // namespace tb
