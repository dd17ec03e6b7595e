#pragma once

// Printing the reports on the desktop: the printer the report dialogs offer (every
// installed printer, and a PDF file, which is always there and is the only choice when
// no printer is installed), the engine's progress box, and printing or previewing a
// filled report.

#include "reports/AlReport.h"

#include "document/Result.h"

#include <QPrinter>
#include <QString>

#include <functional>
#include <memory>

class QComboBox;
class QWidget;

namespace tb {

class ScheduleDocument;
class TfrmPrintingIt;

// The text of the combo entry that prints to a PDF file.
QString PdfFileChoiceText();

// The printer of a report dialog.
class ReportPrinterChoice
{
public:
    ReportPrinterChoice();

    QPrinter &printer() { return *m_printer; }
    bool toPdfFile() const { return m_pdf; }

    // Fills the combo with the installed printers and the PDF file entry and selects
    // the current printer (the PDF file when there is none).
    void fill(QComboBox *combo);
    // Applies the combo's entry to the printer.
    void choose(const QString &entry);
    // The printer setup dialog (paper and orientation).
    void setup(QWidget *parent);
    void setOrientation(QPageLayout::Orientation orientation);

    // Asks for the PDF file to write; empty when the user cancels. Tests replace it.
    std::function<QString(QWidget *parent, const QString &suggested)> choosePdfFile;

private:
    std::unique_ptr<QPrinter> m_printer;
    bool m_pdf = false;
};

// The engine's progress box: "Processing...", the page being laid out, and a cancel
// button while printing.
ReportProgressBox &SharedReportProgressBox();

// The shared progress window of report building.
TfrmPrintingIt &SharedPrintingProgress();

// Prints the report once per copy (each copy a run of its own) on the chosen printer, or
// writes it to a PDF file. Failures are shown through the document's prompter.
Result PrintFilledReport(ScheduleDocument &doc, TAlReport &report, ReportPrinterChoice &choice, int copies,
                         QWidget *parent, const QString &suggestedName);

// Records the report's preview pages for the chosen printer and shows them in the preview
// window, modally, from page 1.
void PreviewFilledReport(ScheduleDocument &doc, TAlReport &report, ReportPrinterChoice &choice, QWidget *parent);

// Tests look at the preview window a report dialog opens: called with the window before
// it is shown; when it returns false the window is not shown modally.
extern std::function<bool(class TfrmPreview &)> PreviewWindowHook;

} // namespace tb
