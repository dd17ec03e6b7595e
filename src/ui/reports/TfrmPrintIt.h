#pragma once

#include "ui/reports/ReportPrinting.h"

#include "board/BoardPrinting.h"

#include "ui/shell/DialogWithHelp.h"

#include <functional>
#include <memory>

namespace Ui {
class TfrmPrintIt;
}

namespace tb {

class ScheduleDocument;
class Settings;
class TfrmPerfSetup;

// "Print production board": the board on plain paper or on perforated strip stock,
// all strips or a range, with copies, orientation, overall scale, headers and black
// and white printing.
class TfrmPrintIt : public DialogWithHelp
{
    Q_OBJECT

public:
    TfrmPrintIt(ScheduleDocument &doc, Settings &settings, QWidget *parent = nullptr);
    ~TfrmPrintIt() override;

    Ui::TfrmPrintIt &form() { return *ui; }
    ReportPrinterChoice &printerChoice() { return m_printer; }
    TfrmPerfSetup &perfSetup() { return *m_perfSetup; }

    // The choices as the dialog holds them now.
    BoardPrintOptions options() const;
    // The overall scale (1.0 = 100 %), kept by this dialog for the whole run.
    double overallScale() const { return m_overallScale; }
    // What the last print made.
    const BoardPrintResult &lastPrint() const { return m_lastPrint; }

    // Called after printing, which clears the board's selection.
    std::function<void()> boardChanged;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void PrinterComboChange();
    void OrientationClick();
    void ScaleSpinChange(int percent);
    void RangeChange();
    void PaperClick();
    void PrintButClick();
    void fillRangeCombos();

    ScheduleDocument &m_doc;
    Settings &m_settings;
    std::unique_ptr<Ui::TfrmPrintIt> ui;
    std::unique_ptr<TfrmPerfSetup> m_perfSetup;
    ReportPrinterChoice m_printer;
    BoardPrintResult m_lastPrint;
    double m_overallScale = 1.0;
};

} // namespace tb
