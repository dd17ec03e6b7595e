#pragma once

#include "reports/ReportBuilders.h"
#include "reports/ReportPrinting.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class TfrmShootSch;
}

namespace tb {

class ScheduleDocument;

// "Print schedule": the full shooting schedule or the one-line schedule, all days or a
// range, printed, written to PDF or previewed.
class TfrmShootSch : public QDialog
{
    Q_OBJECT

public:
    explicit TfrmShootSch(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmShootSch() override;

    // The choices of the dialog as the builder takes them.
    ScheduleReportOptions options() const;
    ReportPrinterChoice &printerChoice() { return m_printer; }
    // Opens a dialog's help page (F1); set by whoever shows the dialog.
    std::function<void(const QString &page)> showHelp;

    Ui::TfrmShootSch &form() { return *ui; }

public Q_SLOTS:
    void done(int result) override;

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void FormShow();
    void FromSpinChange(int value);
    void ToSpinChange(int value);
    void PrintButClick();
    void PreviewButClick();
    // Builds the pages; false when there is nothing to print (the user has been told).
    bool CreatePages();

    ScheduleDocument &m_doc;
    std::unique_ptr<Ui::TfrmShootSch> ui;
    ReportPrinterChoice m_printer;
    BuiltReport m_built; // the template with its values, kept until the dialog closes
};

} // namespace tb
