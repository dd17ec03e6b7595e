#pragma once

#include "import/ScreenplayText.h"
#include "import/ScriptImport.h"

#include "ui/shell/DialogWithHelp.h"
#include <QFont>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class QFileSystemModel;
class QListWidget;
class QListWidgetItem;

namespace Ui {
class TfrmImportScript;
}

namespace tb {

class ScheduleDocument;

// The script import wizard: five pages that ask for the script file, the lines on a
// printed page, the font of the printed script and the words of scene headings and
// cues, then build a new schedule from the script (DoImport; ImportFountain and the
// .fdx import for those files, which skip the line and font pages). A review page
// follows the import: the characters found, doubtful names unticked; Import! removes
// the unticked ones, Keep all keeps everything. A summary ends every import. The word
// lists are kept while the program runs; the dialog is created once and shown for
// every import.
class TfrmImportScript : public DialogWithHelp
{
    Q_OBJECT

public:
    explicit TfrmImportScript(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmImportScript() override;

    static constexpr int LastStep = 4;
    // The page that reviews the characters after the import.
    static constexpr int ReviewStep = 6;

    // What the selected file holds: formatted plain text, Fountain (a .fountain file,
    // or a .txt file the user marks so) or a Final Draft script (.fdx).
    enum class ScriptKind { PlainText, Fountain, FinalDraft };
    ScriptKind scriptKind() const;
    static constexpr const char *HelpPage = "import-script.html";

    // Asked when Import! is clicked, before the document is emptied; false keeps the
    // wizard open and the document as it is. Unset: the import goes ahead.
    std::function<bool()> beforeImport;
    // The font dialog and the word box; tests put their own answers here.
    std::function<std::optional<QFont>(const QFont &current)> chooseFont;
    std::function<std::optional<QString>(const QString &caption, const QString &word)> askWord;

    // The folder whose text files the file list shows.
    void setDirectory(const QString &path);
    QString directory() const { return m_directory; }
    // The file selected in the file list; empty when none is.
    QString selectedFile() const;
    int currentStep() const;
    // The script as loaded when page 3 was reached, one string per line.
    const QStringList &scriptLines() const { return m_lines; }
    ScriptImportSettings settings() const;

public Q_SLOTS:
    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void FormShow();
    void NextButClick();
    void BackButClick();
    void CancelButClick();
    void FontButClick();
    void applyFont(const QFont &font);
    void DirectoryListBox1Change(const QModelIndex &index);
    void fillFileList();
    bool loadScript();
    void addWord(QListWidget *list, const QString &caption);
    void editWord(QListWidgetItem *item);
    void removeWord(QListWidget *list);
    void runImport();
    void showReview();
    void setReviewTicks(bool keep);
    void finishReview(bool keepAll);
    void showSummary(const QStringList &dropped);

    ScheduleDocument &m_doc;
    std::unique_ptr<Ui::TfrmImportScript> ui;
    QFileSystemModel *m_folders = nullptr;
    QString m_directory;
    QStringList m_lines;
    ScreenplayText m_fdx; // the .fdx script as read when its file was chosen
};

} // namespace tb
