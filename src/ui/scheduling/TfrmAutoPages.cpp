#include "ui/scheduling/TfrmAutoPages.h"
#include "ui_TfrmAutoPages.h"

#include "scheduling/DayDividers.h"

namespace tb {

TfrmAutoPages::TfrmAutoPages(ScheduleDocument &doc, QWidget *parent)
    : SchedulingDialog(doc, QStringLiteral("auto-pages.html"), parent)
    , ui(std::make_unique<Ui::TfrmAutoPages>())
{
    ui->setupUi(this);
    ui->PagesSpin->setRange(MinPagesPerDay, MaxPagesPerDay);
    ui->PagesSpin->setValue(DefaultPagesPerDay);
    // The heading keeps its "X" until the spin box is first changed.
    connect(ui->PagesSpin, &QSpinBox::valueChanged, this, &TfrmAutoPages::PagesSpinChange);
    connect(ui->OKBut, &QPushButton::clicked, this, &TfrmAutoPages::OKButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmAutoPages::~TfrmAutoPages() = default;

void TfrmAutoPages::PagesSpinChange(int value)
{
    ui->Label4->setText(AutoPagesHeading(value));
}

void TfrmAutoPages::OKButClick()
{
    AutoPagesOptions options;
    options.maxPages = ui->PagesSpin->value();
    options.mode = ui->KeepCheck->isChecked()    ? AutoPagesMode::Keep
                   : ui->SplitCheck->isChecked() ? AutoPagesMode::Split
                                                 : AutoPagesMode::Ask;
    options.removeDividers = ui->RemoveCheck->isChecked();
    report(AutoDayDividers(document(), options));
    accept();
}

} // namespace tb
