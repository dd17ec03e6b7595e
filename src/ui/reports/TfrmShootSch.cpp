#include "ui/reports/TfrmShootSch.h"

#include "ui_TfrmShootSch.h"

#include "document/ScheduleDocument.h"

namespace tb {

TfrmShootSch::TfrmShootSch(ScheduleDocument &doc, QWidget *parent)
    : ReportPrintDialog(doc, QStringLiteral("shooting-schedule.html"), parent)
    , ui(std::make_unique<Ui::TfrmShootSch>())
{
    ui->setupUi(this);
    connectPrintControls({ui->PrinterCombo, ui->SetupBut, ui->CopiesSpin, ui->PrintBut, ui->PreviewBut, ui->CancelBut});
    connect(ui->FromSpin, &QSpinBox::valueChanged, this, &TfrmShootSch::FromSpinChange);
    connect(ui->ToSpin, &QSpinBox::valueChanged, this, &TfrmShootSch::ToSpinChange);
}

TfrmShootSch::~TfrmShootSch() = default;

void TfrmShootSch::fillChoices()
{
    // Setting the spins would select "Day"; the dialog opens on "All".
    const QSignalBlocker blockFrom(ui->FromSpin);
    const QSignalBlocker blockTo(ui->ToSpin);
    const int days = ScheduleDayCount(m_doc);
    ui->DayLab->setText(QStringLiteral("(") + QString::number(days) + QStringLiteral(" production days)"));
    ui->FromSpin->setMaximum(days);
    ui->ToSpin->setMaximum(days);
    ui->AllRadio->setChecked(true);
}

void TfrmShootSch::FromSpinChange(int value)
{
    if (value > ui->ToSpin->value()) {
        const QSignalBlocker block(ui->ToSpin);
        ui->ToSpin->setValue(value);
    }
    ui->RangeRadio->setChecked(true);
}

void TfrmShootSch::ToSpinChange(int value)
{
    if (value < ui->FromSpin->value()) {
        const QSignalBlocker block(ui->FromSpin);
        ui->FromSpin->setValue(value);
    }
    ui->RangeRadio->setChecked(true);
}

ScheduleReportOptions TfrmShootSch::options() const
{
    ScheduleReportOptions options;
    options.oneLine = ui->OnelineRadio->isChecked();
    options.allDays = ui->AllRadio->isChecked();
    options.fromDay = ui->FromSpin->value();
    options.toDay = ui->ToSpin->value();
    options.shootingDaysOnly = ui->ShootCheck->isChecked();
    return options;
}

ResultOf<BuiltReport> TfrmShootSch::buildPages(const ReportBuildContext &context)
{
    return CreateSchedulePages(m_doc, options(), context);
}

QString TfrmShootSch::nothingToPrintMessage() const
{
    return QStringLiteral("No strip falls on the days chosen: there is nothing to print.");
}

QString TfrmShootSch::pdfFileName() const
{
    return options().oneLine ? QStringLiteral("oneline-schedule.pdf") : QStringLiteral("shooting-schedule.pdf");
}

} // namespace tb
