#include "ui/reports/TfrmPrintBS.h"

#include "ui_TfrmPrintBS.h"

#include "document/ScheduleDocument.h"

namespace tb {

TfrmPrintBS::TfrmPrintBS(ScheduleDocument &doc, QWidget *parent)
    : ReportPrintDialog(doc, QStringLiteral("breakdown-sheets.html"), parent)
    , ui(std::make_unique<Ui::TfrmPrintBS>())
{
    ui->setupUi(this);
    connectPrintControls({ui->PrinterCombo, ui->SetupBut, ui->CopiesSpin, ui->PrintBut, ui->PreviewBut, ui->CancelBut});
    // Choosing scenes in the list means printing those.
    connect(ui->SceneList, &QListWidget::itemSelectionChanged, this, [this] {
        if (!ui->SceneList->selectedItems().isEmpty())
            ui->SpecificRadio->setChecked(true);
    });
}

TfrmPrintBS::~TfrmPrintBS() = default;

void TfrmPrintBS::fillChoices()
{
    const QSignalBlocker block(ui->SceneList);
    ui->SceneList->clear();
    for (const BreakdownListItem &entry : BreakdownListItems(m_doc)) {
        auto *item = new QListWidgetItem(entry.text, ui->SceneList);
        item->setData(Qt::UserRole, entry.row); // the strip the item stands for
    }
    ui->AllRadio->setChecked(true);
}

BreakdownReportOptions TfrmPrintBS::options() const
{
    BreakdownReportOptions options;
    options.all = ui->AllRadio->isChecked();
    if (boardStyle)
        options.style = boardStyle();
    // The selected items in list order.
    for (int i = 0; i < ui->SceneList->count(); ++i) {
        const QListWidgetItem *item = ui->SceneList->item(i);
        if (item->isSelected())
            options.rows.append(item->data(Qt::UserRole).toInt());
    }
    return options;
}

ResultOf<BuiltReport> TfrmPrintBS::buildPages(const ReportBuildContext &context)
{
    return CreateBreakdownPages(m_doc, options(), context);
}

QString TfrmPrintBS::nothingToPrintMessage() const
{
    return QStringLiteral("No scene is chosen: there is nothing to print.");
}

QString TfrmPrintBS::pdfFileName() const
{
    return QStringLiteral("breakdown-sheets.pdf");
}

} // namespace tb
