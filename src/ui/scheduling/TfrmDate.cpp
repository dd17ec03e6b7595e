#include "ui/scheduling/TfrmDate.h"
#include "ui_TfrmDate.h"

#include "document/LegacyText.h"

namespace tb {

TfrmDate::TfrmDate(ScheduleDocument &doc, QWidget *parent)
    : SchedulingDialog(doc, QStringLiteral("dates.html"), parent)
    , ui(std::make_unique<Ui::TfrmDate>())
{
    ui->setupUi(this);
    ui->DatePick->setDisplayFormat(legacy::ShortDateFormat());
    ui->DatePick->setDate(QDate::currentDate());
    // "GO!" is left unconnected on purpose.
    connect(ui->Button2, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmDate::~TfrmDate() = default;

} // namespace tb
