#include "ui/scheduling/TfrmBanner.h"
#include "ui_TfrmBanner.h"

#include "document/ScheduleDocument.h"

namespace tb {

TfrmBanner::TfrmBanner(ScheduleDocument &doc, QWidget *parent)
    : SchedulingDialog(doc, QStringLiteral("banner.html"), parent)
    , ui(std::make_unique<Ui::TfrmBanner>())
{
    ui->setupUi(this);
    ui->DaySpin->setRange(MinBannerDays, MaxBannerDays);
    connect(ui->DayCheck, &QCheckBox::clicked, this, &TfrmBanner::DayCheckClick);
    connect(ui->OKBut, &QPushButton::clicked, this, &TfrmBanner::OKButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmBanner::~TfrmBanner() = default;

void TfrmBanner::showEvent(QShowEvent *event)
{
    FormShow();
    SchedulingDialog::showEvent(event);
}

void TfrmBanner::FormShow()
{
    ui->BannerTextEdit->clear();
    ui->DayCheck->setChecked(false);
    DayCheckClick();

    if (m_mode == BannerEdit && document().SelStart >= 1 && document().SelStart <= document().strips.count()) {
        const BannerContent content = ReadBanner(document(), document().SelStart, m_defaults);
        ui->BannerTextEdit->setText(content.text);
        ui->StripColorBut->setColourName(content.colours.background);
        ui->TextColorBut->setColourName(content.colours.text);
        ui->DaySpin->setValue(content.days > 0 ? content.days : 1);
        ui->DayCheck->setChecked(content.days > 0);
        DayCheckClick();
    } else {
        ui->StripColorBut->setColourName(m_defaults.background);
        ui->TextColorBut->setColourName(m_defaults.text);
    }
    ui->BannerTextEdit->setFocus();
}

void TfrmBanner::DayCheckClick()
{
    ui->DaySpin->setEnabled(ui->DayCheck->isChecked());
}

void TfrmBanner::OKButClick()
{
    BannerContent content;
    content.text = ui->BannerTextEdit->text();
    content.colours.background = ui->StripColorBut->colourName();
    content.colours.text = ui->TextColorBut->colourName();
    content.days = ui->DayCheck->isChecked() ? ui->DaySpin->value() : 0;
    report(WriteBanner(document(), m_mode, content));
    accept();
}

} // namespace tb
