#pragma once

#include "ui/scheduling/SchedulingDialog.h"

#include <memory>

namespace Ui {
class TfrmCalender;
}

namespace tb {

// "Aut&o rest days...": the rest day rule, by day of the week or counted from the
// start day.
class TfrmCalender : public SchedulingDialog
{
    Q_OBJECT

public:
    explicit TfrmCalender(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmCalender() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void FormShow();
    void FirstRadioClick();
    void DayRadioClick();
    void OKButClick();

    std::unique_ptr<Ui::TfrmCalender> ui;
};

} // namespace tb
