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
// Files dropped on the window: only the first is opened. The earlier edition took a
// drop as the user's decision and replaced an unsaved schedule without a word; here a
// drop asks the unsaved-changes question first, as Open does.
void DropFilesCommand(ScheduleDocument &doc, FileChooser &files, const QStringList &paths);
// Closing the window: the unsaved-changes question without a beep. Returns false
// when the window must stay open.
bool CloseQuery(ScheduleDocument &doc, FileChooser &files);
// The autosave: the whole document to the autosave file, with "Autosaving..." in the
// status bar meanwhile. The earlier edition's autosave marked the document saved, so
// the close question no longer came and the changes never reached the user's own
// file. Here the document is left as it was (Modified stays, the name stays, nothing
// goes on the recent-files list), and beside the autosave file (AutosaveOwnerPath) is
// kept the path of the schedule it belongs to, blank for an untitled one.
Result AutosaveCommand(ScheduleDocument &doc, const QString &autosavePath);

// The file beside the autosave naming the schedule it belongs to: the autosave path
// with ".owner" added.
QString AutosaveOwnerPath(const QString &autosavePath);

// An autosave worth offering at start-up: it exists, and the schedule it belongs to
// was not saved after it (or is untitled, or gone). Empty text when there is none;
// otherwise the question to ask.
QString AutosaveRestoreQuestion(const QString &autosavePath);

// Opens the autosave as an untitled, modified schedule, so that Save asks where to
// keep it; it does not go on the recent-files list.
Result RestoreAutosave(ScheduleDocument &doc, const QString &autosavePath);

// The autosave and its owner file removed: the window closed after its question, so
// nothing is left to restore.
void DiscardAutosave(const QString &autosavePath);

// Where the autosave goes. The earlier edition wrote "autosave.tbf" into the program
// folder. A program folder is often not writable by its user today, so the file goes
// there only when the folder is writable, and otherwise into the per-user data folder
// (a deliberate change, shown next to the autosave time in the preferences).
QString AutosavePath(const QString &programFolder);

} // namespace tb
