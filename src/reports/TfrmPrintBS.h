#pragma once

#include "reports/ReportBuilders.h"
#include "reports/ReportPrinting.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class TfrmPrintBS;
}

namespace tb {

class ScheduleDocument;

// "Print script breakdown sheets": one sheet per scene strip, all of them or the scenes
// chosen in the list.
class TfrmPrintBS : public QDialog
{
    Q_OBJECT

public:
    explicit TfrmPrintBS(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmPrintBS() override;

    BreakdownReportOptions options() const;
    ReportPrinterChoice &printerChoice() { return m_printer; }
    std::function<void(const QString &page)> showHelp;

    Ui::TfrmPrintBS &form() { return *ui; }

public Q_SLOTS:
    void done(int result) override;

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void FormShow();
    void PrintButClick();
    void PreviewButClick();
    bool CreatePages();

    ScheduleDocument &m_doc;
    std::unique_ptr<Ui::TfrmPrintBS> ui;
    ReportPrinterChoice m_printer;
    BuiltReport m_built;
};

} // namespace tb
