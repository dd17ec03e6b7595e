#pragma once

#include "ui/scheduling/SchedulingDialog.h"

#include <QDate>

#include <memory>

namespace Ui {
class TfrmStartDate1;
}

namespace tb {

// "&Start date...": sets the first day of principal photography, or removes it when
// the picker's tick box is cleared.
class TfrmStartDate1 : public SchedulingDialog
{
    Q_OBJECT

public:
    explicit TfrmStartDate1(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmStartDate1() override;

    // Today's date for the "before today" question; the system date unless set.
    void setToday(const QDate &today) { m_today = today; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void FormShow();
    void StartCheckClick();
    void OKButClick();

    std::unique_ptr<Ui::TfrmStartDate1> ui;
    QDate m_today;
};

} // namespace tb
