#pragma once

#include "document/Result.h"

#include <QString>
#include <QStringList>

namespace tb {

class ScheduleDocument;

// The document commands of the main window: New, Open, Save, Save As, a recent file,
// dropped files, the close question and the autosave. They live in the core so that
// their questions and their order can be checked without a window; the window hands
// them its file dialogs through a FileChooser.

// How a file dialog is set up; each use sets it up anew.
struct FileDialogSetup
{
    QString title;
    QString filter;
    QString defaultSuffix;
    QString fileName;
};

// "Open file" and "Save file": the schedule filter, extension "tbf", name "*.tbf".
FileDialogSetup OpenFileSetup();
FileDialogSetup SaveFileSetup();

class FileChooser
{
public:
    virtual ~FileChooser() = default;
    // The chosen path, or an empty text when the dialog was cancelled.
    virtual QString chooseOpenFile(const FileDialogSetup &setup) = 0;
    virtual QString chooseSaveFile(const FileDialogSetup &setup) = 0;
};

inline constexpr const char *SaveChangesQuestion =
    "You have made changes to the schedule which have not been saved. Do you wish to save them now?";

// The unsaved-changes question of New, Open and Exit. Nothing is asked when the
// document is unchanged. Returns false when the user cancels; Yes saves first. When
// that save is itself cancelled in the Save As dialog the command still goes on and
// the changes are lost: there is deliberately no second question.
bool AskToSaveChanges(ScheduleDocument &doc, FileChooser &files, bool beep);

// New: the question (with a beep), then an empty document and a repaint.
void NewCommand(ScheduleDocument &doc, FileChooser &files);
// Open: the question (with a beep), the open dialog, then the file.
void OpenCommand(ScheduleDocument &doc, FileChooser &files);
// Save: to the document's file when it has a name and the file is there; otherwise
// Save As, so a document whose file was deleted meanwhile goes through the dialog.
// Returns whether the document was written.
bool SaveCommand(ScheduleDocument &doc, FileChooser &files);
// Save As: the save dialog; the chosen path becomes the document's name and is
// written. The dialog's own question is the only one before a file is overwritten.
bool SaveAsCommand(ScheduleDocument &doc, FileChooser &files);
// A recent file: its own question naming the path (with a beep), then the file.
void OpenRecentCommand(ScheduleDocument &doc, FileChooser &files, const QString &path);
// Files dropped on the window: only the first is opened, and without the
// unsaved-changes question. Dropping is deliberately taken as the user's decision.
void DropFilesCommand(ScheduleDocument &doc, const QStringList &paths);
// Closing the window: the unsaved-changes question without a beep. Returns false
// when the window must stay open.
bool CloseQuery(ScheduleDocument &doc, FileChooser &files);
// The autosave: the whole document to the autosave file. Because a save marks the
// document saved, an autosave clears Modified and the close question no longer comes;
// the document's own file is not written and its name stays. This is the program's
// required behaviour.
Result AutosaveCommand(ScheduleDocument &doc, const QString &autosavePath);

// Where the autosave goes. The earlier edition wrote "autosave.tbf" into the program
// folder. A program folder is often not writable by its user today, so the file goes
// there only when the folder is writable, and otherwise into the per-user data folder
// (a deliberate change, shown next to the autosave time in the preferences).
QString AutosavePath(const QString &programFolder);

} // namespace tb
