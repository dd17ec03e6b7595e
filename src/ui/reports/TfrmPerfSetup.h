#pragma once

#include "ui/shell/DialogWithHelp.h"

#include <functional>
#include <memory>

class QPrinter;

namespace Ui {
class TfrmPerfSetup;
}

namespace tb {

class ScheduleDocument;
class Settings;

// "Perforated strip paper setup": the left margin of the stock and the width of ten
// strips, a page to check them against the stock, and the defaults.
class TfrmPerfSetup : public DialogWithHelp
{
    Q_OBJECT

public:
    TfrmPerfSetup(ScheduleDocument &doc, Settings &settings, QWidget *parent = nullptr);
    ~TfrmPerfSetup() override;

    Ui::TfrmPerfSetup &form() { return *ui; }

    // Asks for the printer of the calibration page; false when the user cancels.
    // Tests replace the print dialog.
    std::function<bool(QPrinter &printer, QWidget *parent)> choosePrinter;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void OKButClick();
    void DefaultButClick();
    void CalibrateButClick();

    ScheduleDocument &m_doc;
    Settings &m_settings;
    std::unique_ptr<Ui::TfrmPerfSetup> ui;
};

} // namespace tb
