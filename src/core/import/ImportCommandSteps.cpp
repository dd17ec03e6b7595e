#include "import/ImportCommandSteps.h"

#include "document/DocumentOperations.h"

namespace tb {

namespace {

// Yes saves, No goes on, Cancel stops. A save that is itself cancelled (in the
// Save As dialog) still lets the command go on: there is no second question.
bool AskToSave(ScheduleDocument &doc, const char *question, const std::function<void()> &save)
{
    if (!doc.Modified)
        return true;
    const Answer answer = doc.prompter().question(MessageKind::Confirmation, QString::fromLatin1(question),
                                                  Buttons::YesNoCancel, /*beep=*/true);
    if (answer == Answer::Cancel)
        return false;
    if (answer == Answer::Yes && save)
        save();
    return true;
}

} // namespace

bool AskToSaveBeforeScriptImport(ScheduleDocument &doc, const std::function<void()> &save)
{
    return AskToSave(doc, ScriptImportSaveQuestion, save);
}

bool BeginFinalDraftImport(ScheduleDocument &doc, const std::function<void()> &save)
{
    if (!AskToSave(doc, FinalDraftSaveQuestion, save))
        return false;
    NewDocument(doc);
    doc.status().setPanelText(StatusSink::MessagePanel, QString::fromLatin1(FinalDraftImportingText));
    return true;
}

void EndFinalDraftImport(ScheduleDocument &doc)
{
    doc.status().setPanelText(StatusSink::MessagePanel, QString());
    doc.view().documentChanged(doc, {});
}

} // namespace tb
