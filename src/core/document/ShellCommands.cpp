#include "document/ShellCommands.h"

#include "document/AtomicWrite.h"
#include "document/DocumentOperations.h"
#include "document/ScheduleDocument.h"
#include "document/ScheduleFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

namespace tb {

namespace {

FileDialogSetup scheduleSpec(const QString &title)
{
    return FileDialogSetup{title, QString::fromLatin1(ScheduleFileFilter), QString::fromLatin1(ScheduleFileExtension),
                           QStringLiteral("*.tbf")};
}

// Yes, No or Cancel on a question about unsaved changes; Yes saves. False = stop.
bool saveChangesAnswer(ScheduleDocument &doc, FileChooser &files, const QString &text, bool beep)
{
    const Answer answer = doc.prompter().question(MessageKind::Confirmation, text, Buttons::YesNoCancel, beep);
    if (answer == Answer::Cancel)
        return false;
    if (answer == Answer::Yes)
        SaveCommand(doc, files);
    return true;
}

} // namespace

FileDialogSetup OpenFileSetup()
{
    return scheduleSpec(QStringLiteral("Open file"));
}

FileDialogSetup SaveFileSetup()
{
    return scheduleSpec(QStringLiteral("Save file"));
}

bool AskToSaveChanges(ScheduleDocument &doc, FileChooser &files, bool beep)
{
    if (!doc.Modified)
        return true;
    return saveChangesAnswer(doc, files, QString::fromLatin1(SaveChangesQuestion), beep);
}

void NewCommand(ScheduleDocument &doc, FileChooser &files)
{
    if (!AskToSaveChanges(doc, files, /*beep=*/true))
        return;
    NewDocument(doc);
}

void OpenCommand(ScheduleDocument &doc, FileChooser &files)
{
    if (!AskToSaveChanges(doc, files, /*beep=*/true))
        return;
    const QString path = files.chooseOpenFile(OpenFileSetup());
    if (path.isEmpty())
        return;
    (void)OpenDocument(doc, path);
}

bool SaveCommand(ScheduleDocument &doc, FileChooser &files)
{
    if (!doc.FileName.trimmed().isEmpty() && QFileInfo::exists(doc.FileName))
        return SaveDocument(doc, doc.FileName).ok();
    return SaveAsCommand(doc, files);
}

bool SaveAsCommand(ScheduleDocument &doc, FileChooser &files)
{
    const QString path = files.chooseSaveFile(SaveFileSetup());
    if (path.isEmpty())
        return false;
    doc.FileName = path;
    return SaveDocument(doc, path).ok();
}

void OpenRecentCommand(ScheduleDocument &doc, FileChooser &files, const QString &path)
{
    if (doc.Modified) {
        const QString text =
            QStringLiteral("The current schedule has not been saved since the last change. Do you wish to save it "
                           "before opening ") +
            path + QStringLiteral(" ?");
        if (!saveChangesAnswer(doc, files, text, /*beep=*/true))
            return;
    }
    (void)OpenDocument(doc, path);
}

void DropFilesCommand(ScheduleDocument &doc, FileChooser &files, const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    if (!AskToSaveChanges(doc, files, /*beep=*/true))
        return;
    (void)OpenDocument(doc, paths.first());
}

bool CloseQuery(ScheduleDocument &doc, FileChooser &files)
{
    return AskToSaveChanges(doc, files, /*beep=*/false);
}

Result AutosaveCommand(ScheduleDocument &doc, const QString &autosavePath)
{
    doc.status().setPanelText(StatusSink::MessagePanel, QStringLiteral("Autosaving..."));
    Result saved = WriteScheduleCopy(doc, autosavePath);
    // Which schedule the copy belongs to, for the offer at the next start. Without it
    // the copy is still offered, only without the schedule's name.
    if (saved)
        (void)WriteFileAtomically(AutosaveOwnerPath(autosavePath), doc.FileName.trimmed().toUtf8());
    doc.status().setPanelText(StatusSink::MessagePanel, QString());
    return saved;
}

QString AutosaveOwnerPath(const QString &autosavePath)
{
    return autosavePath + QStringLiteral(".owner");
}

QString AutosaveRestoreQuestion(const QString &autosavePath)
{
    const QFileInfo autosave(autosavePath);
    if (!autosave.isFile())
        return {};
    const QString when = QLocale().toString(autosave.lastModified(), QLocale::ShortFormat);
    QFile ownerFile(AutosaveOwnerPath(autosavePath));
    if (!ownerFile.open(QIODevice::ReadOnly))
        return QStringLiteral("Torvanbridge was not closed properly while a schedule had changes. An automatic copy "
                              "from ") +
               when +
               QStringLiteral(" was kept.\r\rDo you wish to restore it? It opens untitled, so that you choose where "
                              "to save it.");
    const QString owner = QString::fromUtf8(ownerFile.readAll()).trimmed();
    const QFileInfo ownerInfo(owner);
    if (owner.isEmpty())
        return QStringLiteral("Torvanbridge was not closed properly while an untitled schedule had changes. An "
                              "automatic copy from ") +
               when + QStringLiteral(" was kept.\r\rDo you wish to restore it?");
    if (ownerInfo.isFile() && ownerInfo.lastModified() >= autosave.lastModified())
        return {}; // saved since
    return QStringLiteral("Torvanbridge was not closed properly while ") + QDir::toNativeSeparators(owner) +
           QStringLiteral(" had changes which were not saved. An automatic copy from ") + when +
           QStringLiteral(" was kept.\r\rDo you wish to restore it? It opens untitled, so that you choose where to "
                          "save it.");
}

Result RestoreAutosave(ScheduleDocument &doc, const QString &autosavePath)
{
    Result opened = OpenDocument(doc, autosavePath, OpenOptions{.addToRecentFiles = false});
    if (!opened)
        return opened;
    doc.FileName.clear();
    SetModified(doc);
    doc.view().setTitle(UpdateTitle(doc));
    return opened;
}

void DiscardAutosave(const QString &autosavePath)
{
    QFile::remove(autosavePath);
    QFile::remove(AutosaveOwnerPath(autosavePath));
}

QString AutosavePath(const QString &programFolder)
{
    const QFileInfo folder(programFolder);
    if (folder.isDir() && folder.isWritable())
        return QDir(programFolder).filePath(QStringLiteral("autosave.tbf"));
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(data);
    return QDir(data).filePath(QStringLiteral("autosave.tbf"));
}

} // namespace tb
