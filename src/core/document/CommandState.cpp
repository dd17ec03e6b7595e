#include "document/CommandState.h"

#include "document/ScheduleDocument.h"

namespace tb {

bool HasStrips(const ScheduleDocument &doc)
{
    return doc.strips.count() > 0;
}

bool HasElements(const ScheduleDocument &doc)
{
    return doc.elements.count() > 0;
}

bool HasSelectedStrip(const ScheduleDocument &doc)
{
    return doc.SelStart > 0 && doc.SelStart <= doc.strips.count();
}

bool HasSelectedElement(const ScheduleDocument &doc)
{
    return doc.SelElement > 0 && doc.SelElement <= doc.elements.count();
}

bool HasSelection(const ScheduleDocument &doc)
{
    return HasSelectedStrip(doc) || HasSelectedElement(doc);
}

bool FirstSelectedIsScene(const ScheduleDocument &doc)
{
    return HasSelectedStrip(doc) && doc.strips[doc.SelStart].isScene();
}

bool CanPasteSelection(const ScheduleDocument &doc)
{
    const int clip = doc.clipboard.ClipKind;
    return (HasSelectedStrip(doc) && clip == StripClipboard::Strips) ||
           (HasSelectedElement(doc) && clip == StripClipboard::Element);
}

bool CanUndo(const ScheduleDocument &doc)
{
    return UndoCommands(doc.undo).undoEnabled;
}

bool CanRedo(const ScheduleDocument &doc)
{
    return UndoCommands(doc.undo).redoEnabled;
}

} // namespace tb
