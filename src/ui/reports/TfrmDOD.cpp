#include "ui/reports/TfrmDOD.h"

#include "ui_TfrmDOD.h"

#include "document/ScheduleDocument.h"
#include "reports/DayOutOfDaysPrint.h"

#include <QPrintDialog>
#include <QPrinter>

namespace tb {

TfrmDOD::TfrmDOD(ScheduleDocument &doc, QWidget *parent)
    : DialogWithHelp(QStringLiteral("day-out-of-days.html"), parent,
                     Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint)
    , m_doc(doc)
    , ui(std::make_unique<Ui::TfrmDOD>())
{
    ui->setupUi(this);
    setMinimumSize(400, 200);
    choosePrinter = [](QPrinter &printer, QWidget *parent) {
        QPrintDialog dialog(&printer, parent);
        return dialog.exec() == QDialog::Accepted;
    };
    connect(ui->HoldCheck, &QCheckBox::clicked, this, &TfrmDOD::rebuild);
    connect(ui->TotalsCheck, &QCheckBox::clicked, this, &TfrmDOD::rebuild);
    connect(ui->CategoryCombo, &QComboBox::activated, this, &TfrmDOD::rebuild);
    connect(ui->ColorCheck, &QCheckBox::toggled, ui->DODGrid, &DodGridView::setUseColour);
    connect(ui->PrintBut, &QPushButton::clicked, this, &TfrmDOD::PrintButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmDOD::~TfrmDOD() = default;

DayOutOfDaysOptions TfrmDOD::options() const
{
    DayOutOfDaysOptions options;
    options.showHolds = ui->HoldCheck->isChecked();
    options.totals = ui->TotalsCheck->isChecked();
    options.category = qMax(0, ui->CategoryCombo->currentIndex()) + 1;
    return options;
}

void TfrmDOD::fillCategories()
{
    const int kept = ui->CategoryCombo->currentIndex();
    ui->CategoryCombo->clear();
    for (const Category &category : m_doc.categories)
        ui->CategoryCombo->addItem(category.name);
    ui->CategoryCombo->setCurrentIndex(kept >= 0 && kept < ui->CategoryCombo->count() ? kept : 0);
}

void TfrmDOD::rebuild()
{
    ui->DODGrid->setGrid(BuildDayOutOfDays(m_doc, options()));
}

void TfrmDOD::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    fillCategories();
    ui->DODGrid->setUseColour(ui->ColorCheck->isChecked());
    rebuild();
}

void TfrmDOD::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    // The grid fills the window but for a band of buttons at the right and one of check
    // boxes at the bottom.
    const int w = width();
    const int h = height();
    ui->DODGrid->setGeometry(4, 4, qMax(50, w - 85), qMax(50, h - 30));
    // The check boxes 20 above the bottom, at 6 and 120 unless a wider font needs more.
    const int y = h - 20;
    auto place = [y](QWidget *widget, int x, int yOffset = 0) {
        widget->resize(widget->sizeHint().width(), widget->height());
        widget->move(x, y + yOffset);
        return x + widget->width() + 6;
    };
    int x = place(ui->HoldCheck, 6);
    x = place(ui->ColorCheck, qMax(120, x));
    x = place(ui->CategoryLab, qMax(230, x + 4));
    x = place(ui->CategoryCombo, x, -2);
    place(ui->TotalsCheck, x + 6);
    const int buttons = ui->DODGrid->geometry().right() + 1 + 5;
    ui->PrintBut->move(buttons, 4);
    ui->CancelBut->move(buttons, 36);
}

void TfrmDOD::PrintButClick()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QStringLiteral("Day out of days"));
    if (!choosePrinter(printer, this))
        return;
    DayOutOfDaysPrintOptions print;
    print.title = m_doc.values.PictureTitle;
    print.inColour = ui->ColorCheck->isChecked();
    PrintDayOutOfDays(ui->DODGrid->grid(), print, printer);
    accept();
}

} // namespace tb
