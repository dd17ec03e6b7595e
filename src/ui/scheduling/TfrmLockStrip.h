#pragma once

#include "ui/scheduling/SchedulingDialog.h"

#include <memory>

namespace Ui {
class TfrmLockStrip;
}

namespace tb {

// "Lock / un-lock to date...": locks the selected strips to a date, so that strip
// sorting leaves them in place, or frees them.
class TfrmLockStrip : public SchedulingDialog
{
    Q_OBJECT

public:
    explicit TfrmLockStrip(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmLockStrip() override;

    // Without a start date the user is told to set one first and the dialog does not
    // open (the result is Rejected).
    int exec() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void FormShow();
    void LockRadioClick();
    void OKButClick();

    std::unique_ptr<Ui::TfrmLockStrip> ui;
};

} // namespace tb
