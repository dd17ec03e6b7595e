#include "ui/reports/TfrmPreview.h"

#include "ui_TfrmPreview.h"

#include "reports/AlPrinter.h"
#include "ui/reports/AlPreview.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QStyle>

namespace tb {

TfrmPreview::TfrmPreview(QWidget *parent)
    : DialogWithHelp(QString(), parent) // no help page of its own
    , ui(std::make_unique<Ui::TfrmPreview>())
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowFlag(Qt::WindowMinimizeButtonHint);
    setWindowState(Qt::WindowMaximized);
    ui->spbfirst->setIcon(style()->standardIcon(QStyle::SP_MediaSkipBackward));
    ui->spbPrev->setIcon(style()->standardIcon(QStyle::SP_MediaSeekBackward));
    ui->spbNext->setIcon(style()->standardIcon(QStyle::SP_MediaSeekForward));
    ui->spbLast->setIcon(style()->standardIcon(QStyle::SP_MediaSkipForward));
    ui->cbxScale->setCurrentText(QStringLiteral("100"));

    connect(ui->spbfirst, &QToolButton::clicked, this, &TfrmPreview::spbfirstClick);
    connect(ui->spbPrev, &QToolButton::clicked, this, &TfrmPreview::spbPrevClick);
    connect(ui->spbNext, &QToolButton::clicked, this, &TfrmPreview::spbNextClick);
    connect(ui->spbLast, &QToolButton::clicked, this, &TfrmPreview::spbLastClick);
    connect(ui->btnClose, &QPushButton::clicked, this, &TfrmPreview::close);
    connect(ui->btnPrint, &QPushButton::clicked, this, &TfrmPreview::PrintNowClick);
    connect(ui->cbxScale, &QComboBox::currentTextChanged, this, &TfrmPreview::cbxScaleChange);
    connect(ui->Previewer, &tAlPreview::pageChanged, this, &TfrmPreview::updateCounter);
    connect(ui->Previewer, &tAlPreview::zoomChanged, this, [this](int zoom) {
        const QSignalBlocker block(ui->cbxScale);
        ui->cbxScale->setCurrentText(QString::number(zoom));
    });
}

TfrmPreview::~TfrmPreview() = default;

tAlPreview *TfrmPreview::Previewer() const
{
    return ui->Previewer;
}

void TfrmPreview::ShowFirstPage()
{
    ui->Previewer->firstPage();
    updateCounter();
}

QString TfrmPreview::counterText() const
{
    return ui->Panel1->text();
}

void TfrmPreview::updateCounter()
{
    ui->Panel1->setText(QString::number(ui->Previewer->currentPage()) + u'/' +
                        QString::number(ui->Previewer->pageCount()));
}

void TfrmPreview::spbfirstClick()
{
    ui->Previewer->firstPage();
    updateCounter();
}

void TfrmPreview::spbPrevClick()
{
    ui->Previewer->previousPage();
    updateCounter();
}

void TfrmPreview::spbNextClick()
{
    ui->Previewer->nextPage();
    updateCounter();
}

void TfrmPreview::spbLastClick()
{
    ui->Previewer->lastPage();
    updateCounter();
}

void TfrmPreview::cbxScaleChange(const QString &text)
{
    bool ok = false;
    int zoom = text.trimmed().toInt(&ok);
    if (!ok)
        zoom = 100; // letters in the box mean 100 %
    ui->Previewer->setZoom(zoom);
}

bool TfrmPreview::PrintPages(QPrinter &printer, int first, int last)
{
    tAlPreview *previewer = ui->Previewer;
    if (previewer->pageCount() == 0)
        return true;
    previewer->setBusy(true);
    printer.setPageOrientation(previewer->orientation == TPrinterOrientation::poLandscape ? QPageLayout::Landscape
                                                                                          : QPageLayout::Portrait);
    printer.setDocName(windowTitle());
    // Copies are printed one run each.
    const int copies = std::max(1, printer.copyCount());
    printer.setCopyCount(1);
    bool ok = true;
    for (int copy = 0; copy < copies && ok; ++copy)
        ok = PrintRecordedPages(previewer->pages(), printer, first, last);
    previewer->setBusy(false);
    return ok;
}

void TfrmPreview::PrintNowClick()
{
    const int count = ui->Previewer->pageCount();
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, true);
    dialog.setOption(QAbstractPrintDialog::PrintToFile, true);
    dialog.setMinMax(1, std::max(1, count));
    printer.setFromTo(1, std::max(1, count));
    printer.setPrintRange(QPrinter::PageRange);
    if (dialog.exec() != QDialog::Accepted)
        return;
    int first = 1;
    int last = count;
    if (printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0) {
        first = printer.fromPage();
        last = printer.toPage();
    }
    PrintPages(printer, first, last);
}

void TfrmPreview::reject()
{
    // The window stays open while its pages are being printed.
    if (ui->Previewer->busy()) {
        QApplication::beep();
        return;
    }
    QDialog::reject();
}

void TfrmPreview::closeEvent(QCloseEvent *event)
{
    if (ui->Previewer->busy()) {
        QApplication::beep();
        event->ignore();
        return;
    }
    QDialog::closeEvent(event);
}

void TfrmPreview::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // The window sees its keys before any of its controls.
    qApp->installEventFilter(this);
    ui->Previewer->setFocus();
}

void TfrmPreview::hideEvent(QHideEvent *event)
{
    qApp->removeEventFilter(this);
    QDialog::hideEvent(event);
}

bool TfrmPreview::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        auto *widget = qobject_cast<QWidget *>(watched);
        if (widget && widget->window() == this && handleKey(static_cast<QKeyEvent *>(event)->key()))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

bool TfrmPreview::handleKey(int key)
{
    QScrollBar *h = ui->Previewer->horizontalScrollBar();
    QScrollBar *v = ui->Previewer->verticalScrollBar();
    switch (key) {
    case Qt::Key_Escape:
        close();
        return true;
    case Qt::Key_PageUp:
        spbPrevClick();
        return true;
    case Qt::Key_PageDown:
        spbNextClick();
        return true;
    case Qt::Key_End:
        spbLastClick();
        return true;
    case Qt::Key_Home:
        spbfirstClick();
        return true;
    case Qt::Key_Left:
        h->setValue(std::max(0, h->value() - 10));
        return true;
    case Qt::Key_Up:
        v->setValue(std::max(0, v->value() - 10));
        return true;
    case Qt::Key_Right:
        h->setValue(std::min(h->maximum(), h->value() + 10));
        return true;
    case Qt::Key_Down:
        v->setValue(std::min(v->maximum(), v->value() + 10));
        return true;
    default:
        return false;
    }
}

} // namespace tb
