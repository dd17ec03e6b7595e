#include "ui/reports/TfrmPrintIt.h"

#include "ui_TfrmPrintIt.h"

#include "ui/reports/TfrmPerfSetup.h"
#include "ui/reports/TfrmPrintingIt.h"

#include "board/BoardStyle.h"
#include "document/ScheduleDocument.h"
#include "document/Settings.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>

namespace tb {

TfrmPrintIt::TfrmPrintIt(ScheduleDocument &doc, Settings &settings, QWidget *parent)
    : DialogWithHelp(QStringLiteral("print-board.html"), parent, Qt::Dialog | Qt::WindowStaysOnTopHint)
    , m_doc(doc)
    , m_settings(settings)
    , ui(std::make_unique<Ui::TfrmPrintIt>())
    , m_perfSetup(std::make_unique<TfrmPerfSetup>(doc, settings, this))
{
    ui->setupUi(this);
    ui->PreviewBut->hide();
    connect(ui->PrinterCombo, &QComboBox::currentTextChanged, this, &TfrmPrintIt::PrinterComboChange);
    connect(ui->PrintSetupBut, &QPushButton::clicked, this, [this] { m_printer.setup(this); });
    connect(ui->PortRadio, &QRadioButton::clicked, this, &TfrmPrintIt::OrientationClick);
    connect(ui->LandRadio, &QRadioButton::clicked, this, &TfrmPrintIt::OrientationClick);
    connect(ui->ScaleSpin, &QSpinBox::valueChanged, this, &TfrmPrintIt::ScaleSpinChange);
    connect(ui->AllRadio, &QRadioButton::clicked, this, &TfrmPrintIt::RangeChange);
    connect(ui->StripsRadio, &QRadioButton::clicked, this, &TfrmPrintIt::RangeChange);
    connect(ui->FromCombo, &QComboBox::activated, this, &TfrmPrintIt::RangeChange);
    connect(ui->ToCombo, &QComboBox::activated, this, &TfrmPrintIt::RangeChange);
    connect(ui->PlainRadio, &QRadioButton::clicked, this, &TfrmPrintIt::PaperClick);
    connect(ui->PerfRadio, &QRadioButton::clicked, this, &TfrmPrintIt::PaperClick);
    connect(ui->PerfBut, &QPushButton::clicked, this, [this] { m_perfSetup->exec(); });
    connect(ui->PrintBut, &QPushButton::clicked, this, &TfrmPrintIt::PrintButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmPrintIt::~TfrmPrintIt() = default;

void TfrmPrintIt::fillRangeCombos()
{
    ui->FromCombo->clear();
    ui->ToCombo->clear();
    for (int strip = 1; strip <= m_doc.strips.count(); ++strip) {
        const QString entry = BoardRangeEntry(m_doc, strip);
        ui->FromCombo->addItem(entry);
        ui->ToCombo->addItem(entry);
    }
    ui->FromCombo->setCurrentIndex(0);
    ui->ToCombo->setCurrentIndex(ui->ToCombo->count() - 1);
}

void TfrmPrintIt::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_printer.setOrientation(QPageLayout::Landscape);
    TfrmPrintingIt &progress = SharedPrintingProgress();
    progress.PrintGuage()->setValue(0);
    progress.PrintLab()->setText(QStringLiteral("Preparing to print..."));
    {
        const QSignalBlocker blocker(ui->ScaleSpin);
        ui->ScaleSpin->setValue(qRound(m_overallScale * 100));
    }
    fillRangeCombos();
    {
        const QSignalBlocker blocker(ui->PrinterCombo);
        m_printer.fill(ui->PrinterCombo);
    }
    PrinterComboChange();
    const bool landscape = m_printer.printer().pageLayout().orientation() == QPageLayout::Landscape;
    ui->LandRadio->setChecked(landscape);
    ui->PortRadio->setChecked(!landscape);
    ui->AllRadio->setChecked(true);
    RangeChange();
    PaperClick();
}

void TfrmPrintIt::PrinterComboChange()
{
    m_printer.choose(ui->PrinterCombo->currentText());
}

void TfrmPrintIt::OrientationClick()
{
    m_printer.setOrientation(ui->PortRadio->isChecked() ? QPageLayout::Portrait : QPageLayout::Landscape);
}

void TfrmPrintIt::ScaleSpinChange(int percent)
{
    // The overall scale is the board's: it changes at once, not only when printing.
    m_overallScale = percent / 100.0;
}

void TfrmPrintIt::RangeChange()
{
    const bool range = ui->StripsRadio->isChecked();
    ui->FromCombo->setEnabled(range);
    ui->ToCombo->setEnabled(range);
}

void TfrmPrintIt::PaperClick()
{
    // The headers of plain paper have no place on perforated stock.
    const bool plain = ui->PlainRadio->isChecked();
    ui->DateCheck->setEnabled(plain);
    ui->PageNumCheck->setEnabled(plain);
}

BoardPrintOptions TfrmPrintIt::options() const
{
    BoardPrintOptions options;
    if (ui->StripsRadio->isChecked()) {
        options.firstStrip = ui->FromCombo->currentIndex() + 1;
        options.lastStrip = ui->ToCombo->currentIndex() + 1;
    }
    options.perforated = ui->PerfRadio->isChecked();
    options.perfMargin = m_settings.perfMargin;
    options.perfWidth = m_settings.perfWidth;
    options.showDate = ui->DateCheck->isChecked();
    options.showPageNumber = ui->PageNumCheck->isChecked();
    options.headerOnEveryPage = ui->AllHeaders->isChecked();
    options.blackAndWhite = ui->BWCheck->isChecked();
    options.overallScale = m_overallScale;
    return options;
}

void TfrmPrintIt::PrintButClick()
{
    QPrinter &printer = m_printer.printer();
    printer.setDocName(BoardPrintJobTitle(m_doc));
    if (m_printer.toPdfFile()) {
        const QString path = m_printer.choosePdfFile(this, QStringLiteral("production-board.pdf"));
        if (path.isEmpty())
            return;
        printer.setOutputFileName(path);
        printer.setCopyCount(1);
    } else {
        printer.setOutputFileName(QString());
        printer.setCopyCount(ui->CopiesSpin->value());
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_lastPrint = PrintBoard(m_doc, StyleFromSettings(m_settings), options(), printer);
    QApplication::restoreOverrideCursor();
    m_overallScale = m_lastPrint.overallScale;
    if (boardChanged)
        boardChanged();
    if (!m_lastPrint.problem.isEmpty()) {
        m_doc.prompter().error(m_lastPrint.problem);
        return;
    }
    accept();
}

} // namespace tb
