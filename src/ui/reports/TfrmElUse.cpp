#include "ui/reports/TfrmElUse.h"

#include "ui_TfrmElUse.h"

#include "document/ScheduleDocument.h"

namespace tb {

TfrmElUse::TfrmElUse(ScheduleDocument &doc, QWidget *parent)
    : ReportPrintDialog(doc, QStringLiteral("element-summary.html"), parent)
    , ui(std::make_unique<Ui::TfrmElUse>())
{
    ui->setupUi(this);
    connectPrintControls({ui->PrinterCombo, ui->SetupBut, ui->CopiesSpin, ui->PrintBut, ui->PreviewBut, ui->CancelBut});
}

TfrmElUse::~TfrmElUse() = default;

void TfrmElUse::fillChoices()
{
    // The document's categories in order; only the first (cast) ticked.
    ui->FilterList->clear();
    for (int c = 0; c < m_doc.categoryCount(); ++c) {
        auto *item = new QListWidgetItem(m_doc.categories.at(c).name, ui->FilterList);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(c == 0 ? Qt::Checked : Qt::Unchecked);
    }
}

ElementSummaryOptions TfrmElUse::options() const
{
    ElementSummaryOptions options;
    options.categories.clear();
    for (int i = 0; i < ui->FilterList->count(); ++i)
        if (ui->FilterList->item(i)->checkState() == Qt::Checked)
            options.categories.insert(i + 1);
    return options;
}

ResultOf<BuiltReport> TfrmElUse::buildPages(const ReportBuildContext &context)
{
    return CreateElementSummaryPages(m_doc, options(), context);
}

QString TfrmElUse::pdfFileName() const
{
    return QStringLiteral("element-summary.pdf");
}

} // namespace tb
