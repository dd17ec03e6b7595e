#pragma once

#include "ui/scheduling/SchedulingDialog.h"

#include <memory>

namespace Ui {
class TfrmDate;
}

namespace tb {

// "Dates": an early form of the calendar, kept as it is: "GO!" does nothing, "Cancel"
// closes, and no menu entry opens it. The start date and rest day dialogs do its work.
class TfrmDate : public SchedulingDialog
{
    Q_OBJECT

public:
    explicit TfrmDate(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmDate() override;

private:
    std::unique_ptr<Ui::TfrmDate> ui;
};

} // namespace tb
