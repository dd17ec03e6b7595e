#include "TfrmElUse.h"

#include "ui_TfrmElUse.h"

#include "reports/TfrmPrintingIt.h"

#include "document/ScheduleDocument.h"

#include <QKeyEvent>

namespace tb {

TfrmElUse::TfrmElUse(ScheduleDocument &doc, QWidget *parent)
    : QDialog(parent)
    , m_doc(doc)
    , ui(std::make_unique<Ui::TfrmElUse>())
{
    ui->setupUi(this);
    connect(ui->PrinterCombo, &QComboBox::currentTextChanged, this,
            [this](const QString &entry) { m_printer.choose(entry); });
    connect(ui->SetupBut, &QPushButton::clicked, this, [this] { m_printer.setup(this); });
    connect(ui->PrintBut, &QPushButton::clicked, this, &TfrmElUse::PrintButClick);
    connect(ui->PreviewBut, &QPushButton::clicked, this, &TfrmElUse::PreviewButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &TfrmElUse::reject);
}

TfrmElUse::~TfrmElUse() = default;

void TfrmElUse::done(int result)
{
    m_built = BuiltReport();
    QDialog::done(result);
}

void TfrmElUse::showEvent(QShowEvent *event)
{
    FormShow();
    QDialog::showEvent(event);
}

void TfrmElUse::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1 && showHelp) {
        showHelp(QStringLiteral("element-summary.html"));
        return;
    }
    QDialog::keyPressEvent(event);
}

void TfrmElUse::FormShow()
{
    m_built = BuiltReport();
    m_printer.fill(ui->PrinterCombo);
    ui->CopiesSpin->setValue(1);
    m_printer.setOrientation(QPageLayout::Portrait);
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

bool TfrmElUse::CreatePages()
{
    m_built = BuiltReport();
    ReportBuildContext context;
    context.progress = &SharedPrintingProgress();
    ResultOf<BuiltReport> built = CreateElementSummaryPages(m_doc, options(), context);
    if (!built)
        return false;
    m_built = std::move(built.value());
    return true;
}

void TfrmElUse::PrintButClick()
{
    if (!CreatePages())
        return;
    if (PrintFilledReport(m_doc, m_built.report(), m_printer, ui->CopiesSpin->value(), this,
                          QStringLiteral("element-summary.pdf")))
        accept();
}

void TfrmElUse::PreviewButClick()
{
    if (!CreatePages())
        return;
    PreviewFilledReport(m_doc, m_built.report(), m_printer, this);
}

} // namespace tb
