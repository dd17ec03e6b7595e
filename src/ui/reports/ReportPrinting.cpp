#include "ui/reports/ReportPrinting.h"

#include "reports/AlPrinter.h"
#include "ui/reports/AlPreview.h"
#include "ui/reports/TfrmPreview.h"
#include "ui/reports/TfrmPrintingIt.h"

#include "document/ScheduleDocument.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPageSetupDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QVBoxLayout>

namespace tb {

std::function<bool(TfrmPreview &)> PreviewWindowHook;

QString PdfFileChoiceText()
{
    return QStringLiteral("PDF file");
}

// ---- The printer choice ----

ReportPrinterChoice::ReportPrinterChoice()
    : m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution))
{
    choosePdfFile = [](QWidget *parent, const QString &suggested) {
        return QFileDialog::getSaveFileName(parent, QStringLiteral("Print to PDF file"),
                                            QDir::home().filePath(suggested), QStringLiteral("PDF file (*.pdf)"));
    };
}

void ReportPrinterChoice::fill(QComboBox *combo)
{
    const QSignalBlocker block(combo);
    combo->clear();
    const QStringList names = QPrinterInfo::availablePrinterNames();
    combo->addItems(names);
    combo->addItem(PdfFileChoiceText());
    QString current = m_pdf ? QString() : m_printer->printerName();
    if (current.isEmpty() || !names.contains(current))
        current = QPrinterInfo::defaultPrinterName();
    const int index = names.indexOf(current);
    combo->setCurrentIndex(index >= 0 ? int(index) : combo->count() - 1);
    choose(combo->currentText());
}

void ReportPrinterChoice::choose(const QString &entry)
{
    m_pdf = entry == PdfFileChoiceText() || !QPrinterInfo::availablePrinterNames().contains(entry);
    if (m_pdf) {
        m_printer->setOutputFormat(QPrinter::PdfFormat);
        // A PDF page is printable to its edges, as the command-line tool writes it.
        m_printer->setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter);
    } else {
        m_printer->setOutputFormat(QPrinter::NativeFormat);
        m_printer->setPrinterName(entry);
    }
}

void ReportPrinterChoice::setup(QWidget *parent)
{
    QPageSetupDialog dialog(m_printer.get(), parent);
    dialog.exec();
}

void ReportPrinterChoice::setOrientation(QPageLayout::Orientation orientation)
{
    m_printer->setPageOrientation(orientation);
}

// ---- The engine's progress box ----

namespace {

class AlProgressBox : public QDialog, public ReportProgressBox
{
public:
    AlProgressBox()
        : QDialog(nullptr, Qt::Dialog | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    {
        setFixedSize(240, 60);
        auto *layout = new QHBoxLayout(this);
        m_label = new QLabel(this);
        m_label->setFont(QFont(QStringLiteral("Tahoma"), 11));
        m_cancel = new QPushButton(QStringLiteral("Cancel"), this);
        m_cancel->setFont(QFont(QStringLiteral("Tahoma"), 10));
        layout->addWidget(m_label, 1);
        layout->addWidget(m_cancel);
        connect(m_cancel, &QPushButton::clicked, this, [this] { m_cancelled = true; });
    }

    void open(const QString &caption, const QString &label, bool cancelVisible) override
    {
        m_cancelled = false;
        setWindowTitle(caption);
        m_label->setText(label);
        m_cancel->setVisible(cancelVisible);
        show();
        QApplication::processEvents();
    }
    void setCaption(const QString &caption) override { setWindowTitle(caption); }
    void setLabel(const QString &label) override { m_label->setText(label); }
    bool keepAlive() override
    {
        QApplication::processEvents();
        return m_cancelled;
    }
    void close() override { hide(); }

private:
    QLabel *m_label;
    QPushButton *m_cancel;
    bool m_cancelled = false;
};

} // namespace

ReportProgressBox &SharedReportProgressBox()
{
    static AlProgressBox *box = new AlProgressBox; // lives for the rest of the run
    return *box;
}

TfrmPrintingIt &SharedPrintingProgress()
{
    static TfrmPrintingIt *window = new TfrmPrintingIt; // lives for the rest of the run
    return *window;
}

// ---- Printing and preview ----

Result PrintFilledReport(ScheduleDocument &doc, TAlReport &report, ReportPrinterChoice &choice, int copies,
                         QWidget *parent, const QString &suggestedName)
{
    report.progressBox = &SharedReportProgressBox();
    QPrinter &printer = choice.printer();
    printer.setDocName(report.ReportTitle);
    printer.setCopyCount(1);
    if (choice.toPdfFile()) {
        // A file holds one copy.
        const QString path = choice.choosePdfFile(parent, suggestedName);
        if (path.isEmpty())
            return Result::failure(QString());
        printer.setOutputFileName(path);
        copies = 1;
    } else {
        printer.setOutputFileName(QString());
    }
    for (int copy = 0; copy < std::max(1, copies); ++copy) {
        Result printed = report.Print(printer, [&printer] { printer.abort(); });
        if (!printed) {
            if (!report.cancelled)
                doc.prompter().error(printed.message());
            return printed;
        }
    }
    return Result::success();
}

void PreviewFilledReport(ScheduleDocument &doc, TAlReport &report, ReportPrinterChoice &choice, QWidget *parent)
{
    report.progressBox = &SharedReportProgressBox();
    TfrmPreview preview(parent);
    tAlPreview *previewer = preview.Previewer();
    previewer->title = report.ReportTitle;
    previewer->orientation = report.Orientation;
    Result prepared = report.PreparePreview(previewer->pages(), PrinterGeometry::fromDevice(choice.printer()));
    if (!prepared) {
        doc.prompter().error(prepared.message());
        return;
    }
    preview.ShowFirstPage();
    if (PreviewWindowHook && !PreviewWindowHook(preview))
        return;
    preview.exec();
}

} // namespace tb
