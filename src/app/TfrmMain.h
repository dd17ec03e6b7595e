#pragma once

#include "document/DocumentView.h"
#include "document/ShellCommands.h"
#include "document/UndoStore.h"
#include "ui/shell/CommandHost.h"

#include <QMainWindow>
#include <QTimer>

#include <functional>
#include <memory>

class QActionGroup;
class QComboBox;
class QMenu;
class QToolBar;

namespace tb {

class BoardView;
class FindStripsBar;
class HelpWindow;
class MenuCommands;
class PanelStatusBar;
class RecentFilesList;
class ScheduleDocument;
class Settings;
class TfrmAbout;
class TfrmPref;

// Shown once in the status bar at start-up when the system has no printer.
inline constexpr const char *NoPrinterStatusText = "No printer: print reports to PDF files.";

// The main window: menus, tool bar, the board, the status bar, the recent-files list,
// the autosave timer and the document commands. It is the document's view and the
// host of the areas' menu tables: it places their entries in its menus, the board's
// pop-up and the tool bar, and enables them by their rules.
class TfrmMain : public QMainWindow, public DocumentView, public CommandHost, private FileChooser
{
    Q_OBJECT

public:
    TfrmMain(ScheduleDocument &doc, Settings &settings, QWidget *parent = nullptr);
    ~TfrmMain() override;

    // ---- CommandHost
    ScheduleDocument &document() override { return m_doc; }
    QWidget *window() override { return this; }
    QAction *action(const char *objectName) override;
    Settings &settings() override { return m_settings; }
    void repaintBoard() override;

    // ---- DocumentView
    // After every edit: scroll bars, scrolling, Undo and Redo, the commands and the
    // selected pages (UpdateCommandsAndStatus), then the board repaints.
    void documentChanged(const ScheduleDocument &doc, const DocumentChange &change) override;
    void setTitle(const QString &title) override;
    void resetBoard() override;
    void restartAutosave() override;
    void zoomChanged(double zoom) override;
    void addRecentFile(const QString &path) override;
    int horizontalScroll() const override;
    int verticalScroll() const override;

    // Enables menu entries and tool buttons for the document's state and selection.
    void updateCommands(const ScheduleDocument &doc);
    // The autosave interval in milliseconds (0 = never), restarted now.
    void setAutosaveInterval(int milliseconds);

    // ---- The window's parts
    BoardView *board() const { return m_board; }
    PanelStatusBar *statusPanels() const { return m_statusBar; }
    RecentFilesList *recentFiles() const { return m_recent; }
    QComboBox *zoomCombo() const { return m_zoomCombo; }
    QMenu *boardPopup() const { return m_popup; }
    FindStripsBar *findBar() const { return m_findBar; }
    QToolBar *toolBar() const { return m_toolBar; }
    QTimer &autosaveTimer() { return m_autosaveTimer; }
    // The program's help window; null until a page was shown.
    HelpWindow *helpWindow() const;
    // Shows a help page ("contents.html") in the program's help window.
    void showHelp(const QString &page);
    // The entry (main menu, pop-up or zoom item); null for a name no table declares.
    QAction *findAction(const QString &objectName) const;
    // Every area's entries as the window assembled them.
    const MenuCommands &menuCommands() const { return *m_commands; }

    // ---- Start-up
    // The file named on the command line, opened on first show.
    void setCommandLineFile(const QString &path) { m_commandLineFile = path; }
    // The pause before the first-show steps (1200 ms; tests shorten it).
    void setFirstShowPause(int milliseconds) { m_firstShowPause = milliseconds; }
    bool firstShowDone() const { return m_firstShowDone; }
    // Whether a printer is installed (the print system by default; tests replace it).
    std::function<bool()> hasPrinter;

    // ---- Files
    // The file dialogs (the window's own by default; tests hand in a script).
    void setFileChooser(FileChooser *files) { m_files = files ? files : this; }
    const QString &programFolder() const { return m_programFolder; }
    const QString &autosavePath() const { return m_autosavePath; }
    void setAutosavePath(const QString &path) { m_autosavePath = path; }

    // ---- Commands, named as the menu entries they serve
    void New1Click();
    void Openfile1Click();
    void Save1Click();
    void SaveAs1Click();
    void MRUClick(const QString &path);
    void Exit1Click();
    void Undo1Click();
    void Redo1Click();
    void Cut1Click();
    void Copy1Click();
    void Paste1Click();
    void Delete1Click();
    void Preferences1Click();
    void Fullscreen1Click(bool on);
    void Contents1Click();
    void Index1Click();
    void About1Click();
    void N1001Click(QAction *item);
    // Zoom in (+1) or out (-1) one step, or back to 100% (0), through the zoom items.
    void ZoomStepClick(int direction);
    // Find strips: the search bar over the board.
    void FindStrips1Click();
    void ZoomComboChange(int index);
    void SetZoomCombo();
    void SetZoomMenu();
    void AutoSaveTimerTimer();
    void WMDROPFILES(const QStringList &paths);

signals:
    // The first-show steps are done (settings read, document emptied, file opened).
    void firstShowFinished();

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    // FileChooser: the window's own file dialogs.
    QString chooseOpenFile(const FileDialogSetup &setup) override;
    QString chooseSaveFile(const FileDialogSetup &setup) override;

    void buildMenus();
    void buildPopup();
    void buildToolBar();
    void connectWindowParts();
    void applySettings();
    void FormShow();
    // The caption of the last setTitle, with an asterisk while there are unsaved changes.
    void showCaption();

    ScheduleDocument &m_doc;
    Settings &m_settings;
    FileChooser *m_files;

    BoardView *m_board = nullptr;
    FindStripsBar *m_findBar = nullptr;
    PanelStatusBar *m_statusBar = nullptr;
    RecentFilesList *m_recent = nullptr;
    QToolBar *m_toolBar = nullptr;
    QComboBox *m_zoomCombo = nullptr;
    QMenu *m_fileMenu = nullptr;
    QMenu *m_popup = nullptr;
    QActionGroup *m_zoomGroup = nullptr;
    QList<QAction *> m_zoomItems;
    QTimer m_autosaveTimer;
    // The Undo and Redo entries as last shown.
    UndoCommandState m_undoShown = UndoCommands(UndoStack());

    MenuCommands *m_commands = nullptr;

    TfrmPref *m_pref = nullptr;
    TfrmAbout *m_about = nullptr;

    QString m_caption;
    QString m_programFolder;
    QString m_autosavePath;
    QString m_commandLineFile;
    int m_firstShowPause = 1200;
    bool m_firstShowStarted = false;
    bool m_firstShowDone = false;
};

} // namespace tb
