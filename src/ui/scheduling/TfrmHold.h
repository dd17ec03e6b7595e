#pragma once

#include "ui/scheduling/SchedulingDialog.h"

#include <memory>

namespace Ui {
class TfrmHold;
}

namespace tb {

// "Hold days...": the gap between an element's drop and pickup that the day out of
// days report shows as hold days.
class TfrmHold : public SchedulingDialog
{
    Q_OBJECT

public:
    explicit TfrmHold(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmHold() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void OKButClick();

    std::unique_ptr<Ui::TfrmHold> ui;
};

} // namespace tb
