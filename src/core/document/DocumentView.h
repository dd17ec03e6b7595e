#pragma once

#include <QString>

namespace tb {

class ScheduleDocument;

// What the core asks of the window that shows the document. The desktop program
// implements it on the main window and the board; the command-line tool and tests
// use the do-nothing base.
class DocumentView
{
public:
    virtual ~DocumentView() = default;

    // The caption computed by UpdateTitle.
    virtual void setTitle(const QString &) {}
    // Enable menu entries and tool buttons for the document's state and selection.
    virtual void updateCommands(const ScheduleDocument &) {}
    // The scroll bars follow the strip and element counts.
    virtual void setScrolls() {}
    // The board scrolls so that this strip row is the first one shown.
    virtual void scrollToStrip(int) {}
    // The document was emptied: recreate the board buffer, rescale it and reset
    // its scroll bars and zoom controls.
    virtual void resetBoard() {}
    // The board zoom read from a file: update the zoom box and the zoom menu.
    virtual void zoomChanged(double) {}
    // A path opened or saved, for the recent-files list (blank names are ignored there).
    virtual void addRecentFile(const QString &) {}
    // The autosave interval in milliseconds (0 = never), restarted now.
    virtual void setAutosaveInterval(int) {}
    // Repaint the board.
    virtual void repaintBoard() {}
    // The board's scroll positions (first strip shown, first element row shown),
    // kept with every undo level and put back by Undo.
    virtual int horizontalScroll() const { return 0; }
    virtual int verticalScroll() const { return 0; }
    virtual void setScrollPositions(int /*horizontal*/, int /*vertical*/) {}
    // The Undo and Redo entries: enabled state and caption ("Undo add new scene").
    virtual void setUndoCommands(bool /*undoEnabled*/, const QString & /*undoCaption*/, bool /*redoEnabled*/,
                                 const QString & /*redoCaption*/)
    {}
};

} // namespace tb
