#include "TfrmPrintBS.h"

#include "ui_TfrmPrintBS.h"

#include "reports/TfrmPrintingIt.h"

#include "document/ScheduleDocument.h"

#include <QKeyEvent>

namespace tb {

TfrmPrintBS::TfrmPrintBS(ScheduleDocument &doc, QWidget *parent)
    : QDialog(parent)
    , m_doc(doc)
    , ui(std::make_unique<Ui::TfrmPrintBS>())
{
    ui->setupUi(this);
    connect(ui->PrinterCombo, &QComboBox::currentTextChanged, this,
            [this](const QString &entry) { m_printer.choose(entry); });
    connect(ui->SetupBut, &QPushButton::clicked, this, [this] { m_printer.setup(this); });
    // Choosing scenes in the list means printing those.
    connect(ui->SceneList, &QListWidget::itemSelectionChanged, this, [this] {
        if (!ui->SceneList->selectedItems().isEmpty())
            ui->SpecificRadio->setChecked(true);
    });
    connect(ui->PrintBut, &QPushButton::clicked, this, &TfrmPrintBS::PrintButClick);
    connect(ui->PreviewBut, &QPushButton::clicked, this, &TfrmPrintBS::PreviewButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &TfrmPrintBS::reject);
}

TfrmPrintBS::~TfrmPrintBS() = default;

void TfrmPrintBS::done(int result)
{
    m_built = BuiltReport();
    QDialog::done(result);
}

void TfrmPrintBS::showEvent(QShowEvent *event)
{
    FormShow();
    QDialog::showEvent(event);
}

void TfrmPrintBS::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1 && showHelp) {
        showHelp(QStringLiteral("breakdown-sheets.html"));
        return;
    }
    QDialog::keyPressEvent(event);
}

void TfrmPrintBS::FormShow()
{
    m_built = BuiltReport();
    m_printer.fill(ui->PrinterCombo);
    ui->CopiesSpin->setValue(1);
    m_printer.setOrientation(QPageLayout::Portrait);
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
    // The selected items in list order.
    for (int i = 0; i < ui->SceneList->count(); ++i) {
        const QListWidgetItem *item = ui->SceneList->item(i);
        if (item->isSelected())
            options.rows.append(item->data(Qt::UserRole).toInt());
    }
    return options;
}

bool TfrmPrintBS::CreatePages()
{
    m_built = BuiltReport();
    ReportBuildContext context;
    context.progress = &SharedPrintingProgress();
    ResultOf<BuiltReport> built = CreateBreakdownPages(m_doc, options(), context);
    if (!built)
        return false;
    m_built = std::move(built.value());
    if (m_built.nothingToPrint) {
        m_doc.prompter().information(QStringLiteral("No scene is chosen: there is nothing to print."));
        return false;
    }
    return true;
}

void TfrmPrintBS::PrintButClick()
{
    if (!CreatePages())
        return;
    if (PrintFilledReport(m_doc, m_built.report(), m_printer, ui->CopiesSpin->value(), this,
                          QStringLiteral("breakdown-sheets.pdf")))
        accept();
}

void TfrmPrintBS::PreviewButClick()
{
    if (!CreatePages())
        return;
    PreviewFilledReport(m_doc, m_built.report(), m_printer, this);
}

} // namespace tb
