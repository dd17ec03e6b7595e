#include "ui/reports/TfrmPerfSetup.h"

#include "ui_TfrmPerfSetup.h"

#include "board/BoardPrinting.h"
#include "board/PerforatedCalibration.h"
#include "document/ScheduleDocument.h"
#include "document/Settings.h"

#include <QPainter>
#include <QPixmap>
#include <QPrintDialog>
#include <QPrinter>

namespace tb {

namespace {

// The explanatory picture: a piece of stock with its margin and strips marked.
QPixmap stockPicture()
{
    QPixmap pixmap(360, 120);
    pixmap.fill(Qt::white);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    const int left = 20;
    const int margin = 40;
    const int strip = 24;
    p.setPen(Qt::black);
    p.drawRect(left, 30, 330, 80);
    for (int i = 0; i <= 12; ++i) {
        const int x = left + margin + i * strip;
        p.setPen(QPen(Qt::gray, 1, Qt::DashLine));
        p.drawLine(x, 30, x, 110);
    }
    p.setPen(Qt::darkBlue);
    p.drawLine(left, 20, left + margin, 20);
    p.drawText(QRect(left - 10, 2, margin + 20, 16), Qt::AlignCenter, QStringLiteral("margin"));
    p.drawLine(left + margin, 20, left + margin + 10 * strip, 20);
    p.drawText(QRect(left + margin, 2, 10 * strip, 16), Qt::AlignCenter, QStringLiteral("10 strips"));
    return pixmap;
}

} // namespace

TfrmPerfSetup::TfrmPerfSetup(ScheduleDocument &doc, Settings &settings, QWidget *parent)
    : DialogWithHelp(QStringLiteral("perforated-setup.html"), parent)
    , m_doc(doc)
    , m_settings(settings)
    , ui(std::make_unique<Ui::TfrmPerfSetup>())
{
    ui->setupUi(this);
    ui->StockPicture->setPixmap(stockPicture());
    choosePrinter = [](QPrinter &printer, QWidget *parent) {
        QPrintDialog dialog(&printer, parent);
        return dialog.exec() == QDialog::Accepted;
    };
    connect(ui->OKBut, &QPushButton::clicked, this, &TfrmPerfSetup::OKButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->DefaultBut, &QPushButton::clicked, this, &TfrmPerfSetup::DefaultButClick);
    connect(ui->CalibrateBut, &QPushButton::clicked, this, &TfrmPerfSetup::CalibrateButClick);
}

TfrmPerfSetup::~TfrmPerfSetup() = default;

void TfrmPerfSetup::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    ui->MargSpin->setValue(m_settings.perfMargin);
    ui->StripSpin->setValue(m_settings.perfWidth * 10);
}

void TfrmPerfSetup::DefaultButClick()
{
    ui->MargSpin->setValue(DefaultPerfMargin);
    ui->StripSpin->setValue(DefaultTenPerfStrips);
}

void TfrmPerfSetup::OKButClick()
{
    const Result stored = StorePerforatedStock(m_settings, ui->MargSpin->value(), ui->StripSpin->value());
    if (!stored)
        m_doc.prompter().error(stored.message());
    accept();
}

void TfrmPerfSetup::CalibrateButClick()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QStringLiteral("Torvanbridge - perforated strip paper calibration"));
    printer.setPageOrientation(QPageLayout::Landscape);
    if (!choosePrinter(printer, this))
        return;
    // The numbers on the page are the ones in the boxes, not yet stored.
    if (!PrintCalibrationPage(ui->MargSpin->value(), ui->StripSpin->value() / 10.0, printer).printed)
        m_doc.prompter().error(QStringLiteral("The printer could not start the print job."));
}

} // namespace tb
