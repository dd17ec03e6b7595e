#include "ui/scheduling/TfrmCalender.h"
#include "ui_TfrmCalender.h"

#include "scheduling/Calendar.h"

namespace tb {

namespace {

QList<QCheckBox *> checks(Ui::TfrmCalender &ui)
{
    return {ui.Check1, ui.Check2, ui.Check3, ui.Check4, ui.Check5, ui.Check6, ui.Check7};
}

} // namespace

TfrmCalender::TfrmCalender(ScheduleDocument &doc, QWidget *parent)
    : SchedulingDialog(doc, QStringLiteral("rest-days.html"), parent)
    , ui(std::make_unique<Ui::TfrmCalender>())
{
    ui->setupUi(this);
    connect(ui->FirstRadio, &QRadioButton::clicked, this, &TfrmCalender::FirstRadioClick);
    connect(ui->DayRadio, &QRadioButton::clicked, this, &TfrmCalender::DayRadioClick);
    connect(ui->OKBut, &QPushButton::clicked, this, &TfrmCalender::OKButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmCalender::~TfrmCalender() = default;

void TfrmCalender::showEvent(QShowEvent *event)
{
    FormShow();
    SchedulingDialog::showEvent(event);
}

void TfrmCalender::FormShow()
{
    ui->DayRadio->setEnabled(HasStartDate(document()));
    const RestDayChoice choice = ReadRestDayRule(document());
    if (choice.basis == RestDayBasis::DayOfWeek) {
        ui->DayRadio->setChecked(true);
        DayRadioClick();
    } else {
        ui->FirstRadio->setChecked(true);
        FirstRadioClick();
    }
    const QList<QCheckBox *> boxes = checks(*ui);
    for (int k = 0; k < 7; ++k)
        boxes[k]->setChecked(choice.ticked[k]);
}

void TfrmCalender::FirstRadioClick()
{
    // Counted from the start day the boxes stand for days 2 to 7 of each week of
    // shooting; day 1 can never be a rest day, so the seventh box goes.
    const QList<QCheckBox *> boxes = checks(*ui);
    for (int k = 0; k < 6; ++k)
        boxes[k]->setText(QString::number(k + 2));
    ui->Check7->hide();
    ui->HintLab->setText(QStringLiteral("Eg; Selecting \" 7 \" will make every 7th day a rest day, begining from the "
                                        "first day of production"));
    ui->DayLab->clear();
}

void TfrmCalender::DayRadioClick()
{
    static const char *const names[] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
    const QList<QCheckBox *> boxes = checks(*ui);
    for (int k = 0; k < 7; ++k)
        boxes[k]->setText(QString::fromLatin1(names[k]));
    ui->Check7->show();
    ui->HintLab->setText(QStringLiteral("Eg; Selecting \"Sun\" will designate all Sundays to be rest days. "));
    ui->DayLab->setText(FirstProductionDayText(document()));
}

void TfrmCalender::OKButClick()
{
    RestDayChoice choice;
    choice.basis = ui->FirstRadio->isChecked() ? RestDayBasis::FromStartDay : RestDayBasis::DayOfWeek;
    const QList<QCheckBox *> boxes = checks(*ui);
    for (int k = 0; k < 7; ++k)
        choice.ticked[k] = boxes[k]->isChecked();
    report(ApplyRestDayRule(document(), RestDayRuleText(choice)));
    accept();
}

} // namespace tb
