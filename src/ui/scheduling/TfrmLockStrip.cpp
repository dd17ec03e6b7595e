#include "ui/scheduling/TfrmLockStrip.h"
#include "ui_TfrmLockStrip.h"

#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"
#include "scheduling/Calendar.h"
#include "scheduling/StripLocking.h"

namespace tb {

TfrmLockStrip::TfrmLockStrip(ScheduleDocument &doc, QWidget *parent)
    : SchedulingDialog(doc, QStringLiteral("lock-strip.html"), parent)
    , ui(std::make_unique<Ui::TfrmLockStrip>())
{
    ui->setupUi(this);
    connect(ui->LockRadio, &QRadioButton::clicked, this, &TfrmLockStrip::LockRadioClick);
    connect(ui->Unlockradio, &QRadioButton::clicked, this, &TfrmLockStrip::LockRadioClick);
    connect(ui->OKBut, &QPushButton::clicked, this, &TfrmLockStrip::OKButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmLockStrip::~TfrmLockStrip() = default;

int TfrmLockStrip::exec()
{
    if (!CanLockStrips(document()))
        return QDialog::Rejected;
    return SchedulingDialog::exec();
}

void TfrmLockStrip::showEvent(QShowEvent *event)
{
    FormShow();
    SchedulingDialog::showEvent(event);
}

void TfrmLockStrip::FormShow()
{
    ui->DTPick->setDisplayFormat(legacy::ShortDateFormat());
    // The picker starts at the first selected strip's lock date, or at the start date.
    const ScheduleDocument &doc = document();
    QDate date;
    if (doc.SelStart >= 1 && doc.SelStart <= doc.strips.count())
        date = LockDateOf(doc, doc.SelStart);
    if (!date.isValid())
        date = StartDate(doc);
    if (date.isValid())
        ui->DTPick->setDate(date);
    LockRadioClick();
}

void TfrmLockStrip::LockRadioClick()
{
    ui->DTPick->setEnabled(ui->LockRadio->isChecked());
}

void TfrmLockStrip::OKButClick()
{
    if (ui->LockRadio->isChecked())
        report(LockStrips(document(), ui->DTPick->date()));
    else
        UnlockStrips(document());
    accept();
}

} // namespace tb
