#pragma once

#include "ui/scheduling/SchedulingDialog.h"

#include <QDate>

#include <functional>
#include <memory>

namespace Ui {
class TfrmEOD;
}

namespace tb {

// "&End of day...": the scene strips of a shooting day (today unless another day is
// picked) with a check box each. OK marks the ticked scenes shot and the others not
// shot, as one undoable edit. (The earlier edition showed an empty list here and
// stored nothing.)
class TfrmEOD : public SchedulingDialog
{
    Q_OBJECT

public:
    explicit TfrmEOD(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmEOD() override;

    Ui::TfrmEOD &form() { return *ui; }
    // The day offered when the dialog opens; today unless a test says otherwise.
    std::function<QDate()> today = [] { return QDate::currentDate(); };

protected:
    void showEvent(QShowEvent *event) override;

private:
    void FormShow();
    void FillList();
    void OKButClick();

    std::unique_ptr<Ui::TfrmEOD> ui;
};

} // namespace tb
