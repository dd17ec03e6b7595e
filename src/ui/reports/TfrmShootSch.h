#pragma once

#include "ui/reports/ReportPrintDialog.h"

#include <memory>

namespace Ui {
class TfrmShootSch;
}

namespace tb {

// "Print schedule": the full shooting schedule or the one-line schedule, all days or a
// range, printed, written to PDF or previewed.
class TfrmShootSch : public ReportPrintDialog
{
    Q_OBJECT

public:
    explicit TfrmShootSch(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmShootSch() override;

    // The choices of the dialog as the builder takes them.
    ScheduleReportOptions options() const;

    Ui::TfrmShootSch &form() { return *ui; }

protected:
    void fillChoices() override;
    ResultOf<BuiltReport> buildPages(const ReportBuildContext &context) override;
    QString nothingToPrintMessage() const override;
    QString pdfFileName() const override;

private:
    void FromSpinChange(int value);
    void ToSpinChange(int value);

    std::unique_ptr<Ui::TfrmShootSch> ui;
};

} // namespace tb
