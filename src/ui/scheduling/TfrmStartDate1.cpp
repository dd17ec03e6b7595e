#include "ui/scheduling/TfrmStartDate1.h"
#include "ui_TfrmStartDate1.h"

#include "scheduling/Calendar.h"

#include <QLocale>

namespace tb {

TfrmStartDate1::TfrmStartDate1(ScheduleDocument &doc, QWidget *parent)
    : SchedulingDialog(doc, QStringLiteral("start-date.html"), parent)
    , ui(std::make_unique<Ui::TfrmStartDate1>())
{
    ui->setupUi(this);
    connect(ui->StartCheck, &QCheckBox::clicked, this, &TfrmStartDate1::StartCheckClick);
    connect(ui->OKBut, &QPushButton::clicked, this, &TfrmStartDate1::OKButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmStartDate1::~TfrmStartDate1() = default;

void TfrmStartDate1::showEvent(QShowEvent *event)
{
    FormShow();
    SchedulingDialog::showEvent(event);
}

void TfrmStartDate1::FormShow()
{
    ui->StartPicker->setDisplayFormat(QLocale().dateFormat(QLocale::LongFormat));
    // Without a start date the picker offers today.
    const QDate start = StartDate(document());
    ui->StartPicker->setDate(start.isValid() ? start : QDate::currentDate());
    ui->StartCheck->setChecked(true);
    StartCheckClick();
}

void TfrmStartDate1::StartCheckClick()
{
    ui->StartPicker->setEnabled(ui->StartCheck->isChecked());
}

void TfrmStartDate1::OKButClick()
{
    std::optional<QDate> date;
    if (ui->StartCheck->isChecked())
        date = ui->StartPicker->date();
    const QDate today = m_today.isValid() ? m_today : QDate::currentDate();
    // A No to either question keeps the dialog open.
    if (ApplyStartDate(document(), date, today))
        accept();
}

} // namespace tb
