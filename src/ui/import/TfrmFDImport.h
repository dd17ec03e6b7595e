#pragma once

#include "ui/shell/DialogWithHelp.h"
#include <QString>

#include <functional>
#include <memory>

namespace Ui {
class TfrmFDImport;
}

namespace tb {

class ScheduleDocument;

// The Final Draft import: the Scene Report and the Script Report, both saved from
// Final Draft as text files, read into new scene strips and cast elements
// (ImportFinalDraft). The caller empties the document before showing it.
class TfrmFDImport : public DialogWithHelp
{
    Q_OBJECT

public:
    explicit TfrmFDImport(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmFDImport() override;

    static constexpr const char *HelpPage = "final-draft-import.html";
    static constexpr const char *FileFilter = "Text file (*.txt);;All files (*)";

    // The open dialog: its title and the current file name in, the chosen file out
    // (empty when cancelled). Tests put their own answers here.
    std::function<QString(const QString &title, const QString &current)> chooseFile;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void FormShow();
    void SceneEditChange();
    void SceneBrowseClick();
    void ScriptBrowseClick();
    void ImportButClick();
    void CancelButClick();

    ScheduleDocument &m_doc;
    std::unique_ptr<Ui::TfrmFDImport> ui;
};

} // namespace tb
