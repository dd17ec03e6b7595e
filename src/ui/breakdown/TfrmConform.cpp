#include "ui/breakdown/TfrmConform.h"

#include "ui_TfrmConform.h"

#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QShowEvent>

namespace tb {

namespace {

// Orange, stored as blue-green-red 0x006FEF.
QColor bannerColour()
{
    return legacy::ColorValueToQColor(0x006FEF);
}

} // namespace

const QString TfrmConform::HelpPage = QStringLiteral("conform-strip-order.html");

TfrmConform::TfrmConform(ScheduleDocument &doc, QWidget *parent)
    : DialogWithHelp(QString(HelpPage), parent)
    , m_doc(doc)
    , m_ui(std::make_unique<Ui::TfrmConform>())
{
    m_ui->setupUi(this);
    QTableWidget *grid = m_ui->ConformGrid;
    grid->setColumnCount(3);
    grid->setHorizontalHeaderLabels({QStringLiteral("#"), QStringLiteral("Description"), QString()});
    grid->setColumnWidth(0, 50);
    grid->horizontalHeader()->setStretchLastSection(true);
    // The third column holds the scene's place in the list and is never shown.
    grid->setColumnHidden(2, true);
    grid->verticalHeader()->hide();
    grid->verticalHeader()->setDefaultSectionSize(std::max(18, fontMetrics().height() + 4));

    m_ui->ConformEdit->installEventFilter(this);
    grid->installEventFilter(this);
    connect(m_ui->OKBut, &QPushButton::clicked, this, &TfrmConform::OKButClick);
    connect(m_ui->CancelBut, &QPushButton::clicked, this, &TfrmConform::CancelButClick);
}

TfrmConform::~TfrmConform() = default;

void TfrmConform::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        FormShow();
    QDialog::showEvent(event);
}

bool TfrmConform::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (watched == m_ui->ConformEdit && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
            ConformEditKeyPress();
            return true; // the key is used up: it neither reaches the edit nor closes the dialog
        }
        if (watched == m_ui->ConformGrid && key == Qt::Key_Delete) {
            ConformGridKeyDown();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void TfrmConform::FormShow()
{
    m_list.reset(m_doc);
    m_ui->ConformEdit->clear();
    ConformGridGetCellProps();
    m_ui->ConformEdit->setFocus();
}

void TfrmConform::ConformEditKeyPress()
{
    m_list.enter(m_doc.prompter(), m_ui->ConformEdit->text());
    ConformGridGetCellProps();
    m_ui->ConformEdit->clear();
    m_ui->ConformEdit->setFocus();
    if (m_list.entries().size() > VisibleLines)
        m_ui->ConformGrid->scrollToBottom();
}

void TfrmConform::ConformGridKeyDown()
{
    const int row = m_ui->ConformGrid->currentRow();
    if (row < 0)
        return;
    m_list.remove(row);
    ConformGridGetCellProps();
    m_ui->ConformGrid->setCurrentCell(std::min<int>(row, int(m_list.entries().size()) - 1), 0);
}

void TfrmConform::ConformGridGetCellProps()
{
    // Fills the grid from the list with each line's colours: dividers white on black,
    // banners and rest days white on orange, sheets black on white.
    QTableWidget *grid = m_ui->ConformGrid;
    const QList<ConformEntry> &entries = m_list.entries();
    grid->setRowCount(int(entries.size()));
    for (int r = 0; r < entries.size(); ++r) {
        const ConformEntry &entry = entries.at(r);
        QColor text = Qt::black;
        QColor back = Qt::white;
        if (entry.code == QLatin1String("D")) {
            text = Qt::white;
            back = Qt::black;
        } else if (entry.code == QLatin1String("B") || entry.code == QLatin1String("R")) {
            text = Qt::white;
            back = bannerColour();
        }
        const QString cells[3] = {entry.code, entry.description,
                                  entry.scene >= 0 ? QString::number(entry.scene) : QString()};
        for (int c = 0; c < 3; ++c) {
            auto *item = new QTableWidgetItem(cells[c]);
            item->setForeground(text);
            item->setBackground(back);
            grid->setItem(r, c, item);
        }
    }
}

void TfrmConform::OKButClick()
{
    // The question comes first; the rebuild shows the busy cursor through the status.
    if (m_list.apply(m_doc))
        accept();
}

void TfrmConform::CancelButClick()
{
    reject();
}

} // namespace tb
