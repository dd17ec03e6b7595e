#pragma once

#include "ui/scheduling/SchedulingDialog.h"

#include <memory>

namespace Ui {
class TfrmEOD;
}

namespace tb {

// "&End of day...": a list for the scenes completed today. It is kept in the form the
// program has always had: nothing fills the list, and both buttons only close it.
class TfrmEOD : public SchedulingDialog
{
    Q_OBJECT

public:
    explicit TfrmEOD(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmEOD() override;

private:
    std::unique_ptr<Ui::TfrmEOD> ui;
};

} // namespace tb
