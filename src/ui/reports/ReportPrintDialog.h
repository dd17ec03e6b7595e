#pragma once

#include "reports/ReportBuilders.h"
#include "ui/reports/ReportPrinting.h"

#include "ui/shell/DialogWithHelp.h"

class QComboBox;
class QPushButton;
class QSpinBox;

namespace tb {

class ScheduleDocument;

// What the report dialogs have in common: the printer box with its Setup button, the
// copies, Print, Preview and Cancel, F1 help, and the filled report kept from the build
// until the dialog closes. Each dialog adds its own choices and names its builder.
class ReportPrintDialog : public DialogWithHelp
{
    Q_OBJECT

public:
    ~ReportPrintDialog() override;

    ReportPrinterChoice &printerChoice() { return m_printer; }

public Q_SLOTS:
    void done(int result) override;

protected:
    // The controls every report dialog has, by their names in its form.
    struct PrintControls
    {
        QComboBox *PrinterCombo = nullptr;
        QPushButton *SetupBut = nullptr;
        QSpinBox *CopiesSpin = nullptr;
        QPushButton *PrintBut = nullptr;
        QPushButton *PreviewBut = nullptr;
        QPushButton *CancelBut = nullptr;
    };

    ReportPrintDialog(ScheduleDocument &doc, QString helpPage, QWidget *parent);

    // Connects the shared controls; called once the form is set up.
    void connectPrintControls(const PrintControls &controls);

    // The dialog's own part of opening: its lists and choices.
    virtual void fillChoices() = 0;
    // Builds the report from the dialog's choices; a failure has been shown by the builder.
    virtual ResultOf<BuiltReport> buildPages(const ReportBuildContext &context) = 0;
    // The message when the choices leave nothing to print; blank = the report always prints.
    virtual QString nothingToPrintMessage() const { return QString(); }
    // The file name offered when printing to a PDF file.
    virtual QString pdfFileName() const = 0;

    void showEvent(QShowEvent *event) override;

    ScheduleDocument &m_doc;

private:
    void FormShow();
    void PrintButClick();
    void PreviewButClick();
    // Builds the pages; false when there is nothing to print (the user has been told).
    bool CreatePages();

    PrintControls m_controls;
    ReportPrinterChoice m_printer;
    BuiltReport m_built; // the template with its values, kept until the dialog closes
};

} // namespace tb
