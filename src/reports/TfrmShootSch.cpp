#include "TfrmShootSch.h"

#include "ui_TfrmShootSch.h"

#include "reports/TfrmPrintingIt.h"

#include "document/ScheduleDocument.h"

#include <QKeyEvent>

namespace tb {

TfrmShootSch::TfrmShootSch(ScheduleDocument &doc, QWidget *parent)
    : QDialog(parent)
    , m_doc(doc)
    , ui(std::make_unique<Ui::TfrmShootSch>())
{
    ui->setupUi(this);
    connect(ui->PrinterCombo, &QComboBox::currentTextChanged, this,
            [this](const QString &entry) { m_printer.choose(entry); });
    connect(ui->SetupBut, &QPushButton::clicked, this, [this] { m_printer.setup(this); });
    connect(ui->FromSpin, &QSpinBox::valueChanged, this, &TfrmShootSch::FromSpinChange);
    connect(ui->ToSpin, &QSpinBox::valueChanged, this, &TfrmShootSch::ToSpinChange);
    connect(ui->PrintBut, &QPushButton::clicked, this, &TfrmShootSch::PrintButClick);
    connect(ui->PreviewBut, &QPushButton::clicked, this, &TfrmShootSch::PreviewButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &TfrmShootSch::reject);
}

TfrmShootSch::~TfrmShootSch() = default;

void TfrmShootSch::done(int result)
{
    m_built = BuiltReport(); // the template is released when the dialog closes
    QDialog::done(result);
}

void TfrmShootSch::showEvent(QShowEvent *event)
{
    FormShow();
    QDialog::showEvent(event);
}

void TfrmShootSch::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1 && showHelp) {
        showHelp(QStringLiteral("shooting-schedule.html"));
        return;
    }
    QDialog::keyPressEvent(event);
}

void TfrmShootSch::FormShow()
{
    m_built = BuiltReport();
    m_printer.fill(ui->PrinterCombo);
    ui->CopiesSpin->setValue(1);
    m_printer.setOrientation(QPageLayout::Portrait);
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

bool TfrmShootSch::CreatePages()
{
    // Values accumulate in a template, so every build starts from a fresh one.
    m_built = BuiltReport();
    ReportBuildContext context;
    context.progress = &SharedPrintingProgress();
    ResultOf<BuiltReport> built = CreateSchedulePages(m_doc, options(), context);
    if (!built)
        return false; // the builder has shown the message
    m_built = std::move(built.value());
    if (m_built.nothingToPrint) {
        m_doc.prompter().information(QStringLiteral("No strip falls on the days chosen: there is nothing to print."));
        return false;
    }
    return true;
}

void TfrmShootSch::PrintButClick()
{
    if (!CreatePages())
        return;
    const QString name =
        options().oneLine ? QStringLiteral("oneline-schedule.pdf") : QStringLiteral("shooting-schedule.pdf");
    if (PrintFilledReport(m_doc, m_built.report(), m_printer, ui->CopiesSpin->value(), this, name))
        accept();
}

void TfrmShootSch::PreviewButClick()
{
    if (!CreatePages())
        return;
    PreviewFilledReport(m_doc, m_built.report(), m_printer, this);
}

} // namespace tb
