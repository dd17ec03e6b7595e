#pragma once

#include "ui/reports/ReportPrintDialog.h"

#include <functional>
#include <memory>

namespace Ui {
class TfrmPrintBS;
}

namespace tb {

// "Print script breakdown sheets": one sheet per scene strip, all of them or the scenes
// chosen in the list.
class TfrmPrintBS : public ReportPrintDialog
{
    Q_OBJECT

public:
    explicit TfrmPrintBS(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmPrintBS() override;

    BreakdownReportOptions options() const;

    Ui::TfrmPrintBS &form() { return *ui; }

    // The board's colours for the sheets' headings; white strips when not set.
    std::function<BoardStyle()> boardStyle;

protected:
    void fillChoices() override;
    ResultOf<BuiltReport> buildPages(const ReportBuildContext &context) override;
    QString nothingToPrintMessage() const override;
    QString pdfFileName() const override;

private:
    std::unique_ptr<Ui::TfrmPrintBS> ui;
};

} // namespace tb
