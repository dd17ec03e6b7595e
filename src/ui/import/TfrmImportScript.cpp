#include "ui/import/TfrmImportScript.h"

#include "import/CharacterReview.h"
#include "import/FdxImport.h"
#include "import/FountainImport.h"
#include "import/ImportSummary.h"
#include "import/ImportText.h"
#include "ui_TfrmImportScript.h"

#include "document/ScheduleDocument.h"
#include "document/StatusSink.h"

#include <QApplication>
#include <QDir>
#include <QFile>
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

    connect(ui->AcceptCharBut, &QPushButton::clicked, this, [this] { setReviewTicks(true); });
    connect(ui->IgnoreCharBut, &QPushButton::clicked, this, [this] { setReviewTicks(false); });
    connect(ui->KeepAllBut, &QPushButton::clicked, this, [this] { finishReview(true); });
    ui->CharacterList->setSelectionMode(QAbstractItemView::ExtendedSelection);
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

TfrmImportScript::ScriptKind TfrmImportScript::scriptKind() const
{
    const QString file = selectedFile();
    if (file.endsWith(QLatin1String(".fdx"), Qt::CaseInsensitive))
        return ScriptKind::FinalDraft;
    if (file.endsWith(QLatin1String(".fountain"), Qt::CaseInsensitive) || ui->FountainCheck->isChecked())
        return ScriptKind::Fountain;
    return ScriptKind::PlainText;
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
    if (currentStep() == ReviewStep) {
        finishReview(false);
        return;
    }
    const bool importNow = ui->NextBut->text() == ImportCaption;
    int step = currentStep();
    const bool advanced = step < LastStep;
    if (advanced && step == 1 && scriptKind() != ScriptKind::PlainText) {
        // Fountain and Final Draft scripts are paginated by the import: the pages for
        // the line count and the font are skipped.
        if (!loadScript())
            return;
        step = LastStep;
        ui->Notebook->setCurrentIndex(step);
    } else if (advanced) {
        ui->Notebook->setCurrentIndex(++step);
    }
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
    if (step == LastStep && scriptKind() != ScriptKind::PlainText)
        step = 2; // back over the skipped pages to the file page
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
    if (scriptKind() == ScriptKind::FinalDraft) {
        // The script is read now, so that a file that is no Final Draft script is
        // refused before anything else is asked.
        QFile file(path);
        QString reason;
        ResultOf<ScreenplayText> script = ResultOf<ScreenplayText>::failure(QString());
        if (file.open(QIODevice::ReadOnly))
            script = ParseFdx(file.readAll());
        else
            script = ResultOf<ScreenplayText>::failure(file.errorString());
        if (!script) {
            m_doc.prompter().error(QString::fromLatin1(FdxReadErrorText) + QStringLiteral("\r\r") + path +
                                   QStringLiteral(": ") + script.message());
            return false;
        }
        m_fdx = script.value();
        m_lines.clear();
        for (const ScreenplayParagraph &p : m_fdx.paragraphs)
            m_lines.append(p.text);
    } else {
        ResultOf<QStringList> lines = ReadScriptFile(path);
        if (!lines) {
            m_doc.prompter().error(lines.message());
            return false;
        }
        m_lines = lines.value();
    }
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
        QDir(m_directory)
            .entryList({QStringLiteral("*.txt"), QStringLiteral("*.fountain"), QStringLiteral("*.fdx")}, QDir::Files,
                       QDir::Name | QDir::IgnoreCase);
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
    Result imported = Result::success();
    {
        WizardStatus status(main, ui->PBar, ui->ImportLab);
        m_doc.setStatusSink(&status);
        switch (scriptKind()) {
        case ScriptKind::PlainText:
            imported = DoImport(m_doc, m_lines, settings());
            break;
        case ScriptKind::Fountain:
            imported = ImportFountain(m_doc, m_lines, settings());
            break;
        case ScriptKind::FinalDraft:
            imported = BuildScheduleFromScreenplay(m_doc, m_fdx, settings());
            break;
        }
        m_doc.setStatusSink(&main);
    }
    ui->CancelBut->setEnabled(true);
    if (!imported) {
        accept(); // the failure has been shown to the user
        return;
    }
    showReview();
}

void TfrmImportScript::showReview()
{
    const QList<ReviewedCharacter> cast = ReviewCharacters(m_doc);
    if (cast.isEmpty()) {
        showSummary({});
        accept();
        return;
    }
    ui->CharacterList->clear();
    for (const ReviewedCharacter &c : cast) {
        auto *item = new QTreeWidgetItem(ui->CharacterList);
        item->setText(0, c.name);
        item->setText(1, QString::number(c.scenes));
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        item->setText(2, c.doubt);
        item->setCheckState(0, c.doubt.isEmpty() ? Qt::Checked : Qt::Unchecked);
        item->setData(0, Qt::UserRole, c.element);
    }
    ui->CharacterList->resizeColumnToContents(0);
    ui->CharacterList->resizeColumnToContents(1);
    ui->Notebook->setCurrentIndex(ReviewStep);
    // The schedule is made: there is no going back, and closing keeps everything.
    ui->BackBut->setEnabled(false);
    ui->CancelBut->setEnabled(false);
    ui->NextBut->setEnabled(true);
    ui->NextBut->setText(ImportCaption);
}

void TfrmImportScript::setReviewTicks(bool keep)
{
    for (QTreeWidgetItem *item : ui->CharacterList->selectedItems())
        item->setCheckState(0, keep ? Qt::Checked : Qt::Unchecked);
}

void TfrmImportScript::finishReview(bool keepAll)
{
    QList<int> ignored;
    if (!keepAll) {
        for (int k = 0; k < ui->CharacterList->topLevelItemCount(); ++k) {
            const QTreeWidgetItem *item = ui->CharacterList->topLevelItem(k);
            if (item->checkState(0) != Qt::Checked)
                ignored.append(item->data(0, Qt::UserRole).toInt());
        }
    }
    const QStringList dropped = RemoveCharacters(m_doc, ignored);
    ui->CancelBut->setEnabled(true);
    showSummary(dropped);
    accept();
}

void TfrmImportScript::showSummary(const QStringList &dropped)
{
    m_doc.prompter().information(SummarizeImport(m_doc, dropped).text());
}

void TfrmImportScript::reject()
{
    // Closing the review keeps every character, as Keep all does.
    if (currentStep() == ReviewStep) {
        finishReview(true);
        return;
    }
    QDialog::reject();
}

} // namespace tb
