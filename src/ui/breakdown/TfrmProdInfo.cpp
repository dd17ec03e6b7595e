#include "ui/breakdown/TfrmProdInfo.h"

#include "ui_TfrmProdInfo.h"

#include "breakdown/ProductionDetails.h"
#include "breakdown/SceneEditing.h"
#include "ui/breakdown/DialogMetrics.h"

#include "document/ScheduleDocument.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QPixmap>
#include <QShowEvent>

namespace tb {

const QString TfrmProdInfo::HelpPage = QStringLiteral("production-details.html");

TfrmProdInfo::TfrmProdInfo(ScheduleDocument &doc, QWidget *parent)
    : DialogWithHelp(QString(HelpPage), parent)
    , m_doc(doc)
    , m_ui(std::make_unique<Ui::TfrmProdInfo>())
{
    m_ui->setupUi(this);
    QTableWidget *grid = m_ui->CrewGrid;
    grid->setColumnCount(3);
    grid->setRowCount(CrewRowCount);
    grid->setHorizontalHeaderLabels({QStringLiteral("Position"), QStringLiteral("Name"), QStringLiteral("Contact")});
    // Wide enough for "Production Manager" and a full name.
    grid->setColumnWidth(0, std::max(ScaledWidth(this, 100),
                                     fontMetrics().horizontalAdvance(QStringLiteral("Production Manager")) + 12));
    grid->setColumnWidth(1, ScaledWidth(this, 130));
    grid->setColumnWidth(2, ScaledWidth(this, 80));
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->verticalHeader()->setDefaultSectionSize(std::max(18, fontMetrics().height() + 4));

    connect(m_ui->OKBut, &QPushButton::clicked, this, &TfrmProdInfo::OKButClick);
    connect(m_ui->CancelBut, &QPushButton::clicked, this, &TfrmProdInfo::CancelbutClick);
    connect(m_ui->LogoBut, &QPushButton::clicked, this, &TfrmProdInfo::LogoButClick);
}

TfrmProdInfo::~TfrmProdInfo() = default;

void TfrmProdInfo::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        FormShow();
    QDialog::showEvent(event);
}

void TfrmProdInfo::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    showLogo(m_logo);
}

void TfrmProdInfo::FormShow()
{
    const ProductionDetails d = ReadProductionDetails(m_doc);
    m_ui->TitleEdit->setText(d.title);
    m_ui->CompanyEdit->setText(d.company);
    m_ui->MiscMemo->setPlainText(MemoText(d.address));
    m_ui->ProducerEdit->setText(d.producer);
    m_ui->DirectorEdit->setText(d.director);
    m_ui->ADEdit->setText(d.firstAD);
    m_ui->PMEdit->setText(d.productionManager);
    m_ui->ScriptEdit->setText(d.script);
    m_ui->RefEdit->setText(d.reference);
    m_ui->SchByEdit->setText(d.preparedBy);
    m_ui->UnitEdit->setText(d.unitCall);
    m_ui->CostumeEdit->setText(d.costumeCall);
    m_ui->MakeupEdit->setText(d.makeupCall);
    m_ui->WrapEdit->setText(d.wrapTime);

    m_logoFile = d.logoFile;
    m_logo = QImage();
    if (!m_logoFile.isEmpty())
        m_logo = LoadLogo(m_doc, m_logoFile, LogoSource::Stored);
    showLogo(m_logo);

    m_ui->CrewGrid->clearContents();
    for (int r = 0; r < CrewRowCount && r < d.crew.size(); ++r) {
        for (int c = 0; c < 3; ++c)
            m_ui->CrewGrid->setItem(r, c, new QTableWidgetItem(d.crew.at(r)[c]));
    }
}

void TfrmProdInfo::showLogo(const QImage &image)
{
    QLabel *label = m_ui->Image1;
    if (image.isNull()) {
        label->clear();
        return;
    }
    const QSize room = label->contentsRect().size();
    QPixmap pixmap = QPixmap::fromImage(image);
    if (pixmap.width() > room.width() || pixmap.height() > room.height())
        pixmap = pixmap.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    label->setPixmap(pixmap);
}

void TfrmProdInfo::LogoButClick()
{
    const QString path =
        QFileDialog::getOpenFileName(this, QStringLiteral("Open company logo graphic"), m_logoFile, LogoFileFilter());
    if (!path.isEmpty())
        loadChosenLogo(path);
}

void TfrmProdInfo::loadChosenLogo(const QString &path)
{
    // The file name is taken even when the picture cannot be read: OK stores the
    // name the picture dialog holds, not the picture.
    m_logoFile = path;
    const QImage image = LoadLogo(m_doc, path, LogoSource::Chosen);
    if (!image.isNull()) {
        m_logo = image;
        showLogo(m_logo);
    }
}

void TfrmProdInfo::OKButClick()
{
    ProductionDetails d;
    d.title = m_ui->TitleEdit->text();
    d.company = m_ui->CompanyEdit->text();
    d.address = MemoLines(m_ui->MiscMemo->toPlainText());
    d.producer = m_ui->ProducerEdit->text();
    d.director = m_ui->DirectorEdit->text();
    d.firstAD = m_ui->ADEdit->text();
    d.productionManager = m_ui->PMEdit->text();
    d.script = m_ui->ScriptEdit->text();
    d.reference = m_ui->RefEdit->text();
    d.preparedBy = m_ui->SchByEdit->text();
    d.unitCall = m_ui->UnitEdit->text();
    d.costumeCall = m_ui->CostumeEdit->text();
    d.makeupCall = m_ui->MakeupEdit->text();
    d.wrapTime = m_ui->WrapEdit->text();
    d.logoFile = m_logoFile;
    d.crew.resize(CrewRowCount);
    for (int r = 0; r < CrewRowCount; ++r) {
        for (int c = 0; c < 3; ++c) {
            const QTableWidgetItem *cell = m_ui->CrewGrid->item(r, c);
            d.crew[r][c] = cell ? cell->text() : QString();
        }
    }
    WriteProductionDetails(m_doc, d);
    accept();
}

void TfrmProdInfo::CancelbutClick()
{
    reject();
}

} // namespace tb
