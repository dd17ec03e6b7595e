#include "ui/scheduling/TfrmEOD.h"
#include "ui_TfrmEOD.h"

namespace tb {

TfrmEOD::TfrmEOD(ScheduleDocument &doc, QWidget *parent)
    : SchedulingDialog(doc, QStringLiteral("end-of-day.html"), parent)
    , ui(std::make_unique<Ui::TfrmEOD>())
{
    ui->setupUi(this);
    connect(ui->OKBut, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->CancelBut, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmEOD::~TfrmEOD() = default;

} // namespace tb
