#include "ui/import/TfrmImportScript.h"

#include "import/ImportText.h"
#include "ui_TfrmImportScript.h"

#include "document/ScheduleDocument.h"
#include "document/StatusSink.h"

#include <QApplication>
#include <QDir>
#include <QFileSystemModel>
#include <QFontDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace tb {

namespace {

const QString NextCaption = QStringLiteral("Next >");
const QString ImportCaption = QStringLiteral("Import!");

// While the wizard imports, the import's progress shows on the wizard itself: the
// gauge on PBar and the progress text on ImportLab. The other panels (the
// "Modified" text) still reach the main window.
class WizardStatus : public StatusSink
{
public:
    WizardStatus(StatusSink &main, QProgressBar *bar, QLabel *label)
        : m_main(main)
        , m_bar(bar)
        , m_label(label)
    {}
    ~WizardStatus() override { setBusy(false); }

    void setPanelText(int panel, const QString &text) override
    {
        if (panel == MessagePanel)
            m_label->setText(text);
        else
            m_main.setPanelText(panel, text);
    }
    void setProgress(int percent) override { m_bar->setValue(percent); }
    void setBusy(bool busy) override
    {
        if (busy == m_busy)
            return;
        m_busy = busy;
        if (busy)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QApplication::restoreOverrideCursor();
    }
    // Repaints and timers run; clicks and keys wait until the import is done, so
    // that nothing can close the wizard or start a second import half-way.
    void keepAlive() override { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

private:
    StatusSink &m_main;
    QProgressBar *m_bar;
    QLabel *m_label;
    bool m_busy = false;
};

QStringList Items(const QListWidget *list)
{
    QStringList words;
    for (int k = 0; k < list->count(); ++k)
        words.append(list->item(k)->text());
    return words;
}

} // namespace

TfrmImportScript::TfrmImportScript(ScheduleDocument &doc, QWidget *parent)
    : DialogWithHelp(QString(HelpPage), parent)
    , m_doc(doc)
    , ui(std::make_unique<Ui::TfrmImportScript>())
{
    ui->setupUi(this);
    ui->ImportEdit->setFont(QFont(QStringLiteral("Courier New"), 10));
    ui->PBar->setRange(0, 100);
    ui->DayList->addItems(DefaultDayWords());
    ui->NightList->addItems(DefaultNightWords());
    ui->BadList->addItems(DefaultIgnoreWords());

    // Folders on the left, the folder's text files on the right.
    m_folders = new QFileSystemModel(this);
    m_folders->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    m_folders->setRootPath(QString());
    ui->DirectoryListBox1->setModel(m_folders);
    for (int column = 1; column < m_folders->columnCount(); ++column)
        ui->DirectoryListBox1->hideColumn(column);
    connect(ui->DirectoryListBox1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &TfrmImportScript::DirectoryListBox1Change);
    setDirectory(QDir::homePath());

    chooseFont = [this](const QFont &current) -> std::optional<QFont> {
        bool ok = false;
        const QFont font = QFontDialog::getFont(&ok, current, this);
        return ok ? std::optional<QFont>(font) : std::nullopt;
    };
    askWord = [this](const QString &caption, const QString &word) -> std::optional<QString> {
        bool ok = false;
        const QString text =
            QInputDialog::getText(this, caption, QStringLiteral("Word :"), QLineEdit::Normal, word, &ok);
        return ok ? std::optional<QString>(text) : std::nullopt;
    };

    connect(ui->NextBut, &QPushButton::clicked, this, &TfrmImportScript::NextButClick);
    connect(ui->BackBut, &QPushButton::clicked, this, &TfrmImportScript::BackButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &TfrmImportScript::CancelButClick);
    connect(ui->FontBut, &QPushButton::clicked, this, &TfrmImportScript::FontButClick);
    connect(ui->DayAddBut, &QToolButton::clicked, this,
            [this] { addWord(ui->DayList, QStringLiteral("Add new DAY word")); });
    connect(ui->NightAddBut, &QToolButton::clicked, this,
            [this] { addWord(ui->NightList, QStringLiteral("Add new NIGHT word")); });
    connect(ui->BadAddBut, &QToolButton::clicked, this,
            [this] { addWord(ui->BadList, QStringLiteral("Add new word to ignore")); });
    connect(ui->DayDelBut, &QToolButton::clicked, this, [this] { removeWord(ui->DayList); });
    connect(ui->NightDelBut, &QToolButton::clicked, this, [this] { removeWord(ui->NightList); });
    connect(ui->BadDelBut, &QToolButton::clicked, this, [this] { removeWord(ui->BadList); });
    for (QListWidget *list : {ui->DayList, ui->NightList, ui->BadList})
        connect(list, &QListWidget::itemDoubleClicked, this, &TfrmImportScript::editWord);
}

TfrmImportScript::~TfrmImportScript() = default;

int TfrmImportScript::currentStep() const
{
    return ui->Notebook->currentIndex();
}

QString TfrmImportScript::selectedFile() const
{
    const QList<QListWidgetItem *> selected = ui->FileListBox1->selectedItems();
    if (selected.isEmpty())
        return QString();
    return QDir(m_directory).filePath(selected.first()->text());
}

ScriptImportSettings TfrmImportScript::settings() const
{
    ScriptImportSettings s;
    s.linesPerPage = ui->LinesSpin->value();
    s.dayWords = Items(ui->DayList);
    s.nightWords = Items(ui->NightList);
    s.ignoreWords = Items(ui->BadList);
    return s;
}

void TfrmImportScript::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        FormShow();
    QDialog::showEvent(event);
}

void TfrmImportScript::FormShow()
{
    ui->Notebook->setCurrentIndex(0);
    ui->BackBut->setEnabled(false);
    ui->NextBut->setEnabled(true);
    ui->NextBut->setText(NextCaption);
    ui->ImportEdit->clear();
    ui->PBar->setValue(0);
    ui->ImportLab->setText(QStringLiteral("Import progress :"));
    m_lines.clear();
    fillFileList();
}

void TfrmImportScript::NextButClick()
{
    const bool importNow = ui->NextBut->text() == ImportCaption;
    int step = currentStep();
    const bool advanced = step < LastStep;
    if (advanced)
        ui->Notebook->setCurrentIndex(++step);
    if (importNow) {
        runImport();
        return;
    }
    ui->NextBut->setText(step == LastStep ? ImportCaption : NextCaption);
    ui->BackBut->setEnabled(true);
    if (advanced && step == 2 && !loadScript())
        ui->Notebook->setCurrentIndex(1);
}

void TfrmImportScript::BackButClick()
{
    int step = currentStep();
    if (step > 0)
        ui->Notebook->setCurrentIndex(--step);
    if (step == 0)
        ui->BackBut->setEnabled(false);
    ui->NextBut->setEnabled(true);
    ui->NextBut->setText(NextCaption);
}

void TfrmImportScript::CancelButClick()
{
    reject();
}

bool TfrmImportScript::loadScript()
{
    const QString path = selectedFile();
    if (path.isEmpty()) {
        m_doc.prompter().error(QStringLiteral("You must select a txt file in the right side box before continuing"));
        return false;
    }
    ResultOf<QStringList> lines = ReadScriptFile(path);
    if (!lines) {
        m_doc.prompter().error(lines.message());
        return false;
    }
    m_lines = lines.value();
    ui->ImportEdit->setPlainText(m_lines.join(u'\n'));
    ui->ImportEdit->selectAll();
    return true;
}

void TfrmImportScript::FontButClick()
{
    if (!chooseFont)
        return;
    if (const std::optional<QFont> font = chooseFont(ui->FontBut->font()))
        applyFont(*font);
}

void TfrmImportScript::applyFont(const QFont &font)
{
    ui->FontBut->setFont(font);
    ui->FontBut->setText(font.family() + u' ' + QString::number(font.pointSize()) + QStringLiteral("pt"));
    // The script view takes the name and size only; the font plays no part in the
    // line count.
    QFont view(font.family());
    view.setPointSize(font.pointSize());
    ui->ImportEdit->setFont(view);
}

void TfrmImportScript::setDirectory(const QString &path)
{
    const QString absolute = QDir(path).absolutePath();
    const bool changed = absolute != m_directory;
    m_directory = absolute;
    ui->DirLab->setText(QDir::toNativeSeparators(absolute));
    const QModelIndex index = m_folders->index(absolute);
    if (index.isValid() && ui->DirectoryListBox1->currentIndex() != index) {
        ui->DirectoryListBox1->setCurrentIndex(index);
        ui->DirectoryListBox1->expand(index);
        ui->DirectoryListBox1->scrollTo(index);
    }
    if (changed)
        fillFileList();
}

void TfrmImportScript::DirectoryListBox1Change(const QModelIndex &index)
{
    if (index.isValid())
        setDirectory(m_folders->filePath(index));
}

void TfrmImportScript::fillFileList()
{
    const QString selected =
        ui->FileListBox1->selectedItems().isEmpty() ? QString() : ui->FileListBox1->selectedItems().first()->text();
    ui->FileListBox1->clear();
    const QStringList files =
        QDir(m_directory).entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    ui->FileListBox1->addItems(files);
    if (!selected.isEmpty()) {
        const QList<QListWidgetItem *> again = ui->FileListBox1->findItems(selected, Qt::MatchExactly);
        if (!again.isEmpty())
            ui->FileListBox1->setCurrentItem(again.first());
    }
}

void TfrmImportScript::addWord(QListWidget *list, const QString &caption)
{
    if (!askWord)
        return;
    const std::optional<QString> word = askWord(caption, QString());
    if (!word || TrimImportLine(*word).isEmpty())
        return;
    list->addItem(TrimImportLine(*word));
    list->setCurrentRow(list->count() - 1);
}

void TfrmImportScript::editWord(QListWidgetItem *item)
{
    if (!item || !askWord)
        return;
    const std::optional<QString> word = askWord(QStringLiteral("Edit word"), item->text());
    if (!word || TrimImportLine(*word).isEmpty())
        return;
    item->setText(TrimImportLine(*word));
}

void TfrmImportScript::removeWord(QListWidget *list)
{
    const QList<QListWidgetItem *> selected = list->selectedItems();
    if (selected.isEmpty())
        return;
    delete list->takeItem(list->row(selected.first()));
}

void TfrmImportScript::runImport()
{
    if (beforeImport && !beforeImport())
        return;
    ui->NextBut->setEnabled(false);
    ui->BackBut->setEnabled(false);
    ui->CancelBut->setEnabled(false);
    StatusSink &main = m_doc.status();
    {
        WizardStatus status(main, ui->PBar, ui->ImportLab);
        m_doc.setStatusSink(&status);
        (void)DoImport(m_doc, m_lines, settings()); // a failure has been shown to the user
        m_doc.setStatusSink(&main);
    }
    ui->CancelBut->setEnabled(true);
    accept();
}

} // namespace tb
