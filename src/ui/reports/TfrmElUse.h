#pragma once

#include "ui/reports/ReportPrintDialog.h"

#include <memory>

namespace Ui {
class TfrmElUse;
}

namespace tb {

// "Print element summary": one row per element of the ticked categories, with its first
// and last day, the span and the days used.
class TfrmElUse : public ReportPrintDialog
{
    Q_OBJECT

public:
    explicit TfrmElUse(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmElUse() override;

    ElementSummaryOptions options() const;

    Ui::TfrmElUse &form() { return *ui; }

protected:
    void fillChoices() override;
    ResultOf<BuiltReport> buildPages(const ReportBuildContext &context) override;
    QString pdfFileName() const override;

private:
    std::unique_ptr<Ui::TfrmElUse> ui;
};

} // namespace tb
