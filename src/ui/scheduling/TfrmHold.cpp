#include "ui/scheduling/TfrmHold.h"
#include "ui_TfrmHold.h"

#include "document/ScheduleDocument.h"
#include "scheduling/StripLocking.h"

namespace tb {

TfrmHold::TfrmHold(ScheduleDocument &doc, QWidget *parent)
    : SchedulingDialog(doc, QStringLiteral("hold-days.html"), parent)
    , ui(std::make_unique<Ui::TfrmHold>())
{
    ui->setupUi(this);
    ui->DropSpin->setRange(MinHoldDays, MaxHoldDays);
    connect(ui->OKBut, &QPushButton::clicked, this, &TfrmHold::OKButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmHold::~TfrmHold() = default;

void TfrmHold::showEvent(QShowEvent *event)
{
    ui->DropSpin->setValue(document().values.HoldDays);
    SchedulingDialog::showEvent(event);
}

void TfrmHold::OKButClick()
{
    // The threshold is stored without marking the document modified.
    report(SetHoldDays(document(), ui->DropSpin->value()));
    accept();
}

} // namespace tb
