#include "ui/import/TfrmFDImport.h"

#include "import/ImportSummary.h"

#include "import/FinalDraftImport.h"
#include "ui_TfrmFDImport.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>

namespace tb {

TfrmFDImport::TfrmFDImport(ScheduleDocument &doc, QWidget *parent)
    : DialogWithHelp(QString(HelpPage), parent)
    , m_doc(doc)
    , ui(std::make_unique<Ui::TfrmFDImport>())
{
    ui->setupUi(this);

    chooseFile = [this](const QString &title, const QString &current) {
        return QFileDialog::getOpenFileName(this, title, current.isEmpty() ? QString() : QFileInfo(current).path(),
                                            QString::fromLatin1(FileFilter));
    };

    connect(ui->SceneEdit, &QLineEdit::textChanged, this, &TfrmFDImport::SceneEditChange);
    connect(ui->ScriptEdit, &QLineEdit::textChanged, this, &TfrmFDImport::SceneEditChange);
    connect(ui->SceneBrowse, &QPushButton::clicked, this, &TfrmFDImport::SceneBrowseClick);
    connect(ui->ScriptBrowse, &QPushButton::clicked, this, &TfrmFDImport::ScriptBrowseClick);
    connect(ui->ImportBut, &QPushButton::clicked, this, &TfrmFDImport::ImportButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &TfrmFDImport::CancelButClick);
}

TfrmFDImport::~TfrmFDImport() = default;

void TfrmFDImport::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        FormShow();
    QDialog::showEvent(event);
}

void TfrmFDImport::FormShow()
{
    ui->SceneEdit->clear();
    ui->ScriptEdit->clear();
    ui->ImportBut->setEnabled(false);
    ui->SceneEdit->setFocus();
}

void TfrmFDImport::SceneEditChange()
{
    ui->ImportBut->setEnabled(!ui->SceneEdit->text().isEmpty() && !ui->ScriptEdit->text().isEmpty());
}

void TfrmFDImport::SceneBrowseClick()
{
    const QString file =
        chooseFile ? chooseFile(QStringLiteral("Open Scene Report file"), ui->SceneEdit->text()) : QString();
    if (!file.isEmpty())
        ui->SceneEdit->setText(file);
}

void TfrmFDImport::ScriptBrowseClick()
{
    const QString file =
        chooseFile ? chooseFile(QStringLiteral("Open Script Report file"), ui->ScriptEdit->text()) : QString();
    if (!file.isEmpty())
        ui->ScriptEdit->setText(file);
}

void TfrmFDImport::ImportButClick()
{
    setCursor(Qt::WaitCursor);
    const Result imported = ImportFinalDraft(m_doc, ui->SceneEdit->text(), ui->ScriptEdit->text());
    unsetCursor();
    if (imported)
        m_doc.prompter().information(SummarizeImport(m_doc).text());
    // The dialog closes either way; a failure has been shown to the user.
    done(imported ? QDialog::Accepted : QDialog::Rejected);
}

void TfrmFDImport::CancelButClick()
{
    reject();
}

} // namespace tb
