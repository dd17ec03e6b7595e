#include "ui/reports/ReportPrintDialog.h"

#include "ui/reports/TfrmPrintingIt.h"

#include "document/ScheduleDocument.h"

#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>

namespace tb {

ReportPrintDialog::ReportPrintDialog(ScheduleDocument &doc, QString helpPage, QWidget *parent)
    : DialogWithHelp(std::move(helpPage), parent)
    , m_doc(doc)
{}

ReportPrintDialog::~ReportPrintDialog() = default;

void ReportPrintDialog::connectPrintControls(const PrintControls &controls)
{
    m_controls = controls;
    connect(controls.PrinterCombo, &QComboBox::currentTextChanged, this,
            [this](const QString &entry) { m_printer.choose(entry); });
    connect(controls.SetupBut, &QPushButton::clicked, this, [this] { m_printer.setup(this); });
    connect(controls.PrintBut, &QPushButton::clicked, this, &ReportPrintDialog::PrintButClick);
    connect(controls.PreviewBut, &QPushButton::clicked, this, &ReportPrintDialog::PreviewButClick);
    connect(controls.CancelBut, &QPushButton::clicked, this, &ReportPrintDialog::reject);
}

void ReportPrintDialog::done(int result)
{
    m_built = BuiltReport(); // the template is released when the dialog closes
    QDialog::done(result);
}

void ReportPrintDialog::showEvent(QShowEvent *event)
{
    FormShow();
    QDialog::showEvent(event);
}

void ReportPrintDialog::FormShow()
{
    m_built = BuiltReport();
    m_printer.fill(m_controls.PrinterCombo);
    m_controls.CopiesSpin->setValue(1);
    m_printer.setOrientation(QPageLayout::Portrait);
    fillChoices();
}

bool ReportPrintDialog::CreatePages()
{
    // Values accumulate in a template, so every build starts from a fresh one.
    m_built = BuiltReport();
    ReportBuildContext context;
    context.progress = &SharedPrintingProgress();
    ResultOf<BuiltReport> built = buildPages(context);
    if (!built)
        return false; // the builder has shown the message
    m_built = std::move(built.value());
    const QString nothing = nothingToPrintMessage();
    if (m_built.nothingToPrint && !nothing.isEmpty()) {
        m_doc.prompter().information(nothing);
        return false;
    }
    return true;
}

void ReportPrintDialog::PrintButClick()
{
    if (!CreatePages())
        return;
    if (PrintFilledReport(m_doc, m_built.report(), m_printer, m_controls.CopiesSpin->value(), this, pdfFileName()))
        accept();
}

void ReportPrintDialog::PreviewButClick()
{
    if (!CreatePages())
        return;
    PreviewFilledReport(m_doc, m_built.report(), m_printer, this);
}

} // namespace tb
