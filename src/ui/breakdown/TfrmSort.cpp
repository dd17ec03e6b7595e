#include "ui/breakdown/TfrmSort.h"

#include "ui_TfrmSort.h"

#include "ui/breakdown/DialogMetrics.h"

#include "document/ScheduleDocument.h"

#include <QApplication>
#include <QHeaderView>
#include <QShowEvent>

namespace tb {

namespace {

constexpr int ColumnWidths[SortColumn::Count] = {25, 40, 165, 30, 30, 200};

} // namespace

const QString TfrmSort::HelpPage = QStringLiteral("sort-strips.html");

TfrmSort::TfrmSort(ScheduleDocument &doc, QWidget *parent)
    : DialogWithHelp(QString(HelpPage), parent)
    , m_doc(doc)
    , m_ui(std::make_unique<Ui::TfrmSort>())
{
    m_ui->setupUi(this);
    const QStringList keys = SortKeyNames();
    m_ui->HighCombo->addItems(keys);
    m_ui->MidCombo->addItem(QStringLiteral("(None)"));
    m_ui->MidCombo->addItems(keys);
    m_ui->LowCombo->addItem(QStringLiteral("(None)"));
    m_ui->LowCombo->addItems(keys);

    QTableWidget *grid = m_ui->SortGrid;
    grid->setColumnCount(SortColumn::Count);
    grid->setHorizontalHeaderLabels({QStringLiteral("#"), QStringLiteral("Scene"), QStringLiteral("Location"),
                                     QStringLiteral("D/N"), QStringLiteral("I/E"), QStringLiteral("Synopsis")});
    for (int c = 0; c < SortColumn::Count; ++c)
        grid->setColumnWidth(c, ScaledWidth(this, ColumnWidths[c]));
    // The codes must fit whole: "DWN", "I/E".
    const int codeWidth = fontMetrics().horizontalAdvance(QStringLiteral("DWN")) + 16;
    for (int c : {SortColumn::DayNight, SortColumn::IntExt})
        grid->setColumnWidth(c, std::max(grid->columnWidth(c), codeWidth));
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->horizontalHeader()->setMinimumSectionSize(20);
    grid->verticalHeader()->hide();
    grid->verticalHeader()->setDefaultSectionSize(std::max(16, fontMetrics().height() + 2));

    connect(m_ui->SortBut, &QPushButton::clicked, this, &TfrmSort::SortButClick);
    connect(m_ui->UnSortBut, &QPushButton::clicked, this, &TfrmSort::UnSortButClick);
    connect(m_ui->OKBut, &QPushButton::clicked, this, &TfrmSort::OKButClick);
    connect(m_ui->CancelBut, &QPushButton::clicked, this, &TfrmSort::CancelButClick);
}

TfrmSort::~TfrmSort() = default;

void TfrmSort::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        FormShow();
    QDialog::showEvent(event);
}

void TfrmSort::FormShow()
{
    m_rows = SortPreviewRows(m_doc);
    m_hasNonScene = HasNonSceneStrips(m_doc);
    fillGrid();
    m_ui->HighCombo->setCurrentIndex(SortColumn::Location);
    m_ui->MidCombo->setCurrentIndex(SortColumn::DayNight + 1);
    m_ui->LowCombo->setCurrentIndex(SortColumn::IntExt + 1);
    m_ui->InfoLabel->setText(QStringLiteral("Strips will be sorted according to the order shown on the right. The "
                                            "table below shows a preview of the sort."));
    m_ui->OKBut->setEnabled(false);
    m_ui->UnSortBut->setEnabled(false);
}

void TfrmSort::fillGrid()
{
    QTableWidget *grid = m_ui->SortGrid;
    grid->clearContents();
    grid->setRowCount(int(m_rows.size()));
    for (int r = 0; r < m_rows.size(); ++r) {
        for (int c = 0; c < SortColumn::Count; ++c)
            grid->setItem(r, c, new QTableWidgetItem(m_rows.at(r).value(c)));
    }
}

void TfrmSort::SortButClick()
{
    DoSort();
}

void TfrmSort::DoSort()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    // The next and lowest boxes start with "(None)", so their item k+1 is column k.
    SortRowsByKeys(m_rows, m_ui->HighCombo->currentIndex(), m_ui->MidCombo->currentIndex() - 1,
                   m_ui->LowCombo->currentIndex() - 1);
    fillGrid();
    QApplication::restoreOverrideCursor();
    m_ui->OKBut->setEnabled(true);
    m_ui->UnSortBut->setEnabled(true);
}

void TfrmSort::UnSortButClick()
{
    FormShow();
}

void TfrmSort::OKButClick()
{
    // Both answers to the warning sort the strips; Abort only closes the dialog as
    // cancelled. This is how the command has always worked, and it is kept.
    bool cancelled = false;
    if (m_hasNonScene)
        cancelled = !WarnSortDeletesDividers(m_doc);
    UpdateStrips(m_doc, m_rows);
    done(cancelled ? QDialog::Rejected : QDialog::Accepted);
}

void TfrmSort::CancelButClick()
{
    reject();
}

} // namespace tb
