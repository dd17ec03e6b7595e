#pragma once

#include "ui/scheduling/SchedulingDialog.h"

#include <memory>

namespace Ui {
class TfrmAutoPages;
}

namespace tb {

// "A&uto pages-per-day...": places day dividers by a maximum of script pages a day.
class TfrmAutoPages : public SchedulingDialog
{
    Q_OBJECT

public:
    explicit TfrmAutoPages(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmAutoPages() override;

private:
    void PagesSpinChange(int value);
    void OKButClick();

    std::unique_ptr<Ui::TfrmAutoPages> ui;
};

} // namespace tb
