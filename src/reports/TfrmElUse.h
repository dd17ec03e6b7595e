#pragma once

#include "reports/ReportBuilders.h"
#include "reports/ReportPrinting.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class TfrmElUse;
}

namespace tb {

class ScheduleDocument;

// "Print element summary": one row per element of the ticked categories, with its first
// and last day, the span and the days used.
class TfrmElUse : public QDialog
{
    Q_OBJECT

public:
    explicit TfrmElUse(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmElUse() override;

    ElementSummaryOptions options() const;
    ReportPrinterChoice &printerChoice() { return m_printer; }
    std::function<void(const QString &page)> showHelp;

    Ui::TfrmElUse &form() { return *ui; }

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
    std::unique_ptr<Ui::TfrmElUse> ui;
    ReportPrinterChoice m_printer;
    BuiltReport m_built;
};

} // namespace tb
