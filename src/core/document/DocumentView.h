#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace tb {

class ScheduleDocument;

// What an edit tells the views besides "the document changed": where the board
// should stand afterwards. The core never scrolls the board itself; it passes the
// wish along and the window does it.
struct DocumentChange
{
    // The board scrolls so that this strip row is the first one shown (a row out of
    // range is taken to the nearest end); none: it stays where it is.
    std::optional<int> firstStrip;
    // Undo puts back the scroll positions (first strip, first element row) kept with
    // the level it restored.
    std::optional<std::pair<int, int>> scrollPositions;
    // Only the board shows something new (the scene editor stepping through scenes,
    // the automatic division showing a long scene while it asks); the commands and
    // the status bar stay as they are.
    bool boardOnly = false;
};

// What the core asks of the window that shows the document. The desktop program
// implements it on the main window and the board; the command-line tool and tests
// use the do-nothing base.
class DocumentView
{
public:
    virtual ~DocumentView() = default;

    // The one notification after the document (its tables, values, selection or undo
    // store) changed: the view brings the scroll bars, the board, the Undo and Redo
    // entries, the enabled commands and the selected pages up to date, and scrolls as
    // the change asks. Every edit sends it once, when it is done.
    virtual void documentChanged(const ScheduleDocument &, const DocumentChange &) {}

    // The caption computed by UpdateTitle.
    virtual void setTitle(const QString &) {}
    // The document was emptied: recreate the board buffer, rescale it and reset
    // its scroll bars and zoom controls.
    virtual void resetBoard() {}
    // A new document: the autosave timer starts again with the interval of the
    // preferences (the window keeps the preferences, not the document).
    virtual void restartAutosave() {}
    // The board zoom read from a file: update the zoom box and the zoom menu.
    virtual void zoomChanged(double) {}
    // A path opened or saved, for the recent-files list (blank names are ignored there).
    virtual void addRecentFile(const QString &) {}
    // The board's scroll positions (first strip shown, first element row shown),
    // kept with every undo level and put back by Undo.
    virtual int horizontalScroll() const { return 0; }
    virtual int verticalScroll() const { return 0; }
};

} // namespace tb
