#include "app/TfrmMain.h"

#include "app/MainMenuLayout.h"
#include "app/ShellMenu.h"
#include "app/TfrmAbout.h"
#include "document/Clipboard.h"
#include "document/DayCalculation.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"
#include "document/ScheduleFile.h"
#include "document/Settings.h"
#include "document/UndoStore.h"
#include "ui/board/BoardView.h"
#include "ui/board/FindStripsBar.h"
#include "ui/breakdown/BreakdownMenu.h"
#include "ui/import/ImportMenu.h"
#include "ui/reports/ExportCommands.h"
#include "ui/reports/ReportsMenu.h"
#include "ui/scheduling/SchedulingMenu.h"
#include "ui/shell/HelpWindow.h"
#include "ui/shell/MenuActions.h"
#include "ui/shell/MenuCommands.h"
#include "ui/shell/PanelStatusBar.h"
#include "ui/shell/RecentFilesList.h"
#include "ui/shell/TfrmPref.h"
#include "ui/shell/ToolIcons.h"
#include "ui/shell/WindowPlacement.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMenuBar>
#include <QMimeData>
#include <QPrinterInfo>
#include <QSignalBlocker>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace tb {

namespace {

using namespace actions;

QStringList localFiles(const QMimeData *mime)
{
    QStringList paths;
    if (!mime || !mime->hasUrls())
        return paths;
    for (const QUrl &url : mime->urls()) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

} // namespace

TfrmMain::TfrmMain(ScheduleDocument &doc, Settings &settings, QWidget *parent)
    : QMainWindow(parent)
    , m_doc(doc)
    , m_settings(settings)
    , m_files(this)
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Torvanbridge"));
    resize(1100, 720);

    // FormCreate: the program folder, dropped files, the help pages.
    m_programFolder = QDir(QCoreApplication::applicationDirPath()).absolutePath() + QLatin1Char('/');
    m_autosavePath = AutosavePath(m_programFolder);
    setAcceptDrops(true);
    hasPrinter = [] { return !QPrinterInfo::availablePrinterNames().isEmpty(); };

    m_statusBar = new PanelStatusBar(this);
    setStatusBar(m_statusBar);

    // The board, with the Find strips bar over it (hidden until Ctrl+F).
    auto *centre = new QWidget(this);
    centre->setObjectName(QStringLiteral("BoardArea"));
    auto *centreLayout = new QVBoxLayout(centre);
    centreLayout->setContentsMargins(0, 0, 0, 0);
    centreLayout->setSpacing(0);
    m_board = new BoardView(m_doc, m_settings, centre);
    m_board->setObjectName(QStringLiteral("Board"));
    m_findBar = new FindStripsBar(m_doc, centre);
    centreLayout->addWidget(m_findBar);
    centreLayout->addWidget(m_board, 1);
    setCentralWidget(centre);

    // Every area's entries, each area making its dialogs once for the whole run; then
    // the menus, the pop-up and the tool bar are assembled from them.
    m_commands = new MenuCommands(this);
    m_commands->add(ShellMenuEntries(*this));
    m_commands->add(ImportMenuEntries(*this));
    m_commands->add(SchedulingMenuEntries(*this));
    m_commands->add(BreakdownMenuEntries(*this));
    m_commands->add(ReportsMenuEntries(*this));
    m_commands->add(ExportMenuEntries(*this));
    buildMenus();
    m_commands->claimAddedShortcuts();
    buildPopup();
    buildToolBar();
    connectWindowParts();

    m_autosaveTimer.setObjectName(QStringLiteral("AutoSaveTimer"));
    connect(&m_autosaveTimer, &QTimer::timeout, this, &TfrmMain::AutoSaveTimerTimer);

    m_doc.setStatusSink(m_statusBar);
    m_doc.setView(this);

    // The window where it was left, fitted to the screen it opens on.
    const Settings::RememberedWindow remembered = m_settings.readWindow();
    if (remembered.geometry.isValid())
        PlaceWindow(*this, remembered.geometry);
    if (remembered.maximised)
        setWindowState(windowState() | Qt::WindowMaximized);

    updateCommands(m_doc);
}

TfrmMain::~TfrmMain()
{
    // The document outlives the window; it must not call back into it.
    m_doc.setView(nullptr);
    m_doc.setStatusSink(nullptr);
    // The help window has no owner; it goes with the main window.
    DeleteProgramHelpWindow();
}

// ---- Menus ------------------------------------------------------------------------

void TfrmMain::buildMenus()
{
    QMenuBar *bar = menuBar();
    bar->setObjectName(QStringLiteral("MainMenu1"));
    // In menu bar order, so that a key declared twice goes to the first entry.
    for (const MenuItem &top : MainMenuLayout()) {
        QMenu *menu = bar->addMenu(top.caption);
        menu->setObjectName(QLatin1String(top.name));
        m_commands->fillMenu(menu, top.items);
        if (menu->objectName() == QLatin1String("File1"))
            m_fileMenu = menu;
    }
    // The recent files follow Exit, after a separator of their own.
    m_recent = new RecentFilesList(m_fileMenu, this);
    // The list the last run kept. (The earlier edition wrote the list on exit but never
    // read it back, so it was empty at every start and the next exit overwrote it.)
    m_recent->load();

    m_zoomGroup = new QActionGroup(this);
    m_zoomGroup->setExclusive(true);
    for (const ZoomStep &step : ZoomSteps()) {
        QAction *item = findAction(QLatin1String(step.entry));
        item->setData(step.percent); // the item's tag
        item->setChecked(step.percent == 100);
        m_zoomGroup->addAction(item);
        m_zoomItems.append(item);
    }
}

void TfrmMain::buildPopup()
{
    m_popup = new QMenu(this);
    m_popup->setObjectName(QStringLiteral("PBPopup"));
    m_commands->fillPopup(m_popup, BoardPopupLayout());
    m_board->setPopupMenu(m_popup);
}

void TfrmMain::buildToolBar()
{
    m_toolBar = addToolBar(QStringLiteral("Tools"));
    m_toolBar->setObjectName(QStringLiteral("ToolBar1"));
    m_toolBar->setMovable(false);
    m_toolBar->setIconSize(QSize(22, 22));
    for (const ToolButtonItem &b : ToolBarLayout()) {
        // The buttons share the entries' commands and state; the hint is the entry's.
        QAction *action = findAction(QLatin1String(b.entry));
        action->setIcon(MakeToolIcon(b.icon));
        if (b.separatorBefore)
            m_toolBar->addSeparator();
        m_toolBar->addAction(action);
        m_toolBar->widgetForAction(action)->setObjectName(QLatin1String(b.buttonName));
    }
    m_toolBar->addSeparator();
    m_zoomCombo = new QComboBox(m_toolBar);
    m_zoomCombo->setObjectName(QStringLiteral("ZoomCombo"));
    m_zoomCombo->setToolTip(QStringLiteral("Zoom"));
    for (const ZoomStep &step : ZoomSteps())
        m_zoomCombo->addItem(QString::number(step.percent) + QLatin1Char('%'));
    m_zoomCombo->setCurrentIndex(ZoomIndexForScale(1.0)); // "100%"
    m_zoomCombo->setFocusPolicy(Qt::NoFocus);
    m_toolBar->addWidget(m_zoomCombo);
}

void TfrmMain::connectWindowParts()
{
    connect(m_zoomCombo, &QComboBox::currentIndexChanged, this, &TfrmMain::ZoomComboChange);
    connect(m_recent, &RecentFilesList::fileChosen, this, &TfrmMain::MRUClick);

    // A double click runs the edit entry of what is selected, as enabled now.
    connect(m_board, &BoardView::editSceneRequested, this, [this] { findAction(Editscene1)->trigger(); });
    connect(m_board, &BoardView::editBannerRequested, this, [this] { findAction(EditBanner1)->trigger(); });
    connect(m_board, &BoardView::editElementRequested, this, [this] { findAction(Editelement1)->trigger(); });

    connect(m_findBar, &FindStripsBar::stripFound, this, [this](int row) { m_board->selectStrips(row, row, row); });
    connect(m_findBar, &FindStripsBar::closed, this, [this] { m_board->paintBox()->setFocus(); });
}

QAction *TfrmMain::findAction(const QString &objectName) const
{
    return m_commands->action(objectName);
}

QAction *TfrmMain::action(const char *objectName)
{
    return findAction(QLatin1String(objectName));
}

// ---- Enabling ---------------------------------------------------------------------

void TfrmMain::updateCommands(const ScheduleDocument &doc)
{
    m_commands->updateEnabled(doc);
    // SetModified and ClearModified both end here.
    showCaption();
}

// ---- The document's view ----------------------------------------------------------

void TfrmMain::documentChanged(const ScheduleDocument &doc, const DocumentChange &change)
{
    // The scroll bars follow the strip and element counts, then the board goes where
    // the change asks.
    m_board->SetScrolls();
    if (change.scrollPositions)
        m_board->setScrollPositions(change.scrollPositions->first, change.scrollPositions->second);
    else if (change.firstStrip)
        m_board->scrollToStrip(*change.firstStrip);
    if (!change.boardOnly) {
        // The entries keep their first captions ("&Undo") until the store changes.
        const UndoCommandState undo = UndoCommands(doc.undo);
        if (undo != m_undoShown) {
            m_undoShown = undo;
            // The captions ("Undo add new scene"); updateCommands below enables the
            // entries from the same store.
            findAction(QLatin1String(actions::Undo1))->setText(undo.undoCaption);
            findAction(QLatin1String(actions::Redo1))->setText(undo.redoCaption);
        }
        // UpdateCommandsAndStatus: the commands for the state and the selection, and
        // the selected scenes' pages in panel 1.
        updateCommands(doc);
        doc.status().setPanelText(StatusSink::PagesPanel, SelectedPagesText(doc));
    }
    m_board->repaintBoard();
}

void TfrmMain::setTitle(const QString &title)
{
    // A schedule with neither a title nor a file reads "Torvanbridge - Untitled"
    // rather than "Torvanbridge -   () ", and an asterisk follows the caption while
    // there are unsaved changes (setWindowModified in updateCommands).
    const bool untitled = m_doc.values.PictureTitle.isEmpty() && m_doc.FileName.trimmed().isEmpty();
    m_caption = untitled ? QStringLiteral("Torvanbridge - Untitled") : title;
    showCaption();
}

void TfrmMain::showCaption()
{
    if (m_caption.isEmpty())
        return; // "Torvanbridge" until the first document
    QString caption = m_caption;
    if (m_doc.Modified)
        caption += caption.endsWith(QLatin1Char(' ')) ? QStringLiteral("*") : QStringLiteral(" *");
    setWindowTitle(caption);
}

void TfrmMain::repaintBoard()
{
    m_board->repaintBoard();
}

void TfrmMain::resetBoard()
{
    m_board->resetBoard();
    m_board->setBoardScale(m_doc.values.BoardZoom);
    SetZoomCombo();
    SetZoomMenu();
}

void TfrmMain::zoomChanged(double zoom)
{
    m_board->setBoardScale(zoom);
    SetZoomCombo();
    SetZoomMenu();
}

void TfrmMain::addRecentFile(const QString &path)
{
    m_recent->add(path);
}

void TfrmMain::restartAutosave()
{
    setAutosaveInterval(AutosaveIntervalMs(m_settings.autosaveMinutes));
}

void TfrmMain::setAutosaveInterval(int milliseconds)
{
    if (milliseconds <= 0) {
        m_autosaveTimer.stop();
        return;
    }
    m_autosaveTimer.start(milliseconds);
}

int TfrmMain::horizontalScroll() const
{
    return m_board->horizontalScroll();
}

int TfrmMain::verticalScroll() const
{
    return m_board->verticalScroll();
}

// ---- Start-up and closing ----------------------------------------------------------

void TfrmMain::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (m_firstShowStarted)
        return;
    m_firstShowStarted = true;
    // A fixed pause before anything else happens on first show; the window is up and
    // painted meanwhile.
    QTimer::singleShot(m_firstShowPause, this, &TfrmMain::FormShow);
}

void TfrmMain::applySettings()
{
    m_board->setStyle(StyleFromSettings(m_settings));
}

void TfrmMain::FormShow()
{
    // The settings, then an empty document, then the file of the command line.
    const QStringList problems = m_settings.LoadSettings();
    applySettings();
    if (!problems.isEmpty())
        m_doc.prompter().error(problems.join(QStringLiteral("\r\r")));
    NewDocument(m_doc);
    // The zoom the board had when the program was last closed. The empty schedule is
    // not marked changed for it.
    const int zoomIndex = ZoomIndexForScale(m_settings.readWindow().zoomPercent / 100.0);
    if (zoomIndex >= 0 && zoomIndex != ZoomIndexForScale(1.0)) {
        m_doc.values.BoardZoom = ScaleForZoomIndex(zoomIndex);
        zoomChanged(m_doc.values.BoardZoom);
    }
    if (!m_commandLineFile.isEmpty())
        (void)OpenDocument(m_doc, m_commandLineFile); // its messages are all there is
    // An autosave the last run left behind, of changes never saved.
    const QString restore = AutosaveRestoreQuestion(m_autosavePath);
    if (!restore.isEmpty() &&
        m_doc.prompter().question(MessageKind::Confirmation, restore, Buttons::YesNo) == Answer::Yes)
        (void)RestoreAutosave(m_doc, m_autosavePath);
    m_doc.clipboard.ClipKind = StripClipboard::Empty;
    m_doc.clipboard.ClipCount = 0;
    if (hasPrinter && !hasPrinter()) {
        // The earlier edition said at every start that all print features would be
        // disabled. Every report can be written to a PDF file, which the print
        // dialogs always offer, so the status bar says that once instead.
        m_statusBar->setPanelText(StatusSink::MessagePanel, QString::fromLatin1(NoPrinterStatusText));
    }
    m_firstShowDone = true;
    emit firstShowFinished();
}

void TfrmMain::closeEvent(QCloseEvent *event)
{
    const bool mayClose = CloseQuery(m_doc, *m_files);
    // Whatever the answer, the recent-files list is written.
    if (!m_recent->save())
        m_doc.prompter().error(QStringLiteral("Error saving MRU list to the registry..."));
    if (!mayClose) {
        event->ignore();
        return;
    }
    m_autosaveTimer.stop();
    if (HelpWindow *help = ProgramHelpWindow())
        help->close();
    // The user has answered for the changes; there is nothing left to restore.
    DiscardAutosave(m_autosavePath);
    // The window's place and the board's zoom for the next start. Failing to keep them
    // loses nothing of the schedule, so it is not worth a message while closing.
    (void)m_settings.writeWindow({isMaximized() || isFullScreen() ? normalGeometry() : geometry(), isMaximized(),
                                  qRound(m_board->boardScale() * 100)});
    event->accept();
}

// ---- Files -------------------------------------------------------------------------

namespace {

QFileDialog *makeFileDialog(QWidget *parent, const FileDialogSetup &setup, QFileDialog::AcceptMode mode)
{
    auto *dialog = new QFileDialog(parent, setup.title);
    dialog->setAttribute(Qt::WA_DeleteOnClose, false);
    dialog->setAcceptMode(mode);
    dialog->setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog->setNameFilter(setup.filter);
    dialog->setDefaultSuffix(setup.defaultSuffix);
    return dialog;
}

} // namespace

QString TfrmMain::chooseOpenFile(const FileDialogSetup &setup)
{
    std::unique_ptr<QFileDialog> dialog(makeFileDialog(this, setup, QFileDialog::AcceptOpen));
    if (dialog->exec() != QDialog::Accepted || dialog->selectedFiles().isEmpty())
        return {};
    return dialog->selectedFiles().constFirst();
}

QString TfrmMain::chooseSaveFile(const FileDialogSetup &setup)
{
    std::unique_ptr<QFileDialog> dialog(makeFileDialog(this, setup, QFileDialog::AcceptSave));
    if (dialog->exec() != QDialog::Accepted || dialog->selectedFiles().isEmpty())
        return {};
    return dialog->selectedFiles().constFirst();
}

void TfrmMain::New1Click()
{
    NewCommand(m_doc, *m_files);
}

void TfrmMain::Openfile1Click()
{
    OpenCommand(m_doc, *m_files);
    m_board->repaintBoard();
}

void TfrmMain::Save1Click()
{
    SaveCommand(m_doc, *m_files);
}

void TfrmMain::SaveAs1Click()
{
    SaveAsCommand(m_doc, *m_files);
}

void TfrmMain::MRUClick(const QString &path)
{
    OpenRecentCommand(m_doc, *m_files, path);
    m_board->repaintBoard();
}

void TfrmMain::WMDROPFILES(const QStringList &paths)
{
    DropFilesCommand(m_doc, *m_files, paths);
    m_board->repaintBoard();
}

void TfrmMain::Exit1Click()
{
    // Closing by the menu runs the same close question as any other way of closing.
    close();
}

void TfrmMain::AutoSaveTimerTimer()
{
    (void)AutosaveCommand(m_doc, m_autosavePath);
}

void TfrmMain::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void TfrmMain::dropEvent(QDropEvent *event)
{
    const QStringList paths = localFiles(event->mimeData());
    if (paths.isEmpty())
        return;
    event->acceptProposedAction();
    WMDROPFILES(paths);
}

// ---- Edit --------------------------------------------------------------------------

void TfrmMain::Undo1Click()
{
    Undo(m_doc);
}

void TfrmMain::Redo1Click()
{
    Redo(m_doc);
}

void TfrmMain::Cut1Click()
{
    Cut(m_doc);
}

void TfrmMain::Copy1Click()
{
    Copy(m_doc);
    // Paste may have become possible.
    updateCommands(m_doc);
}

void TfrmMain::Paste1Click()
{
    Paste(m_doc);
}

void TfrmMain::Delete1Click()
{
    Delete(m_doc);
}

// ---- Preferences, view and help -----------------------------------------------------

void TfrmMain::Preferences1Click()
{
    if (!m_pref)
        m_pref = new TfrmPref(m_doc, m_settings, m_autosavePath, this);
    m_pref->exec();
    applySettings();
    setAutosaveInterval(AutosaveIntervalMs(m_settings.autosaveMinutes));
    m_board->repaintBoard();
}

void TfrmMain::Fullscreen1Click(bool on)
{
    if (on)
        showFullScreen();
    else
        showNormal();
}

HelpWindow *TfrmMain::helpWindow() const
{
    return ProgramHelpWindow();
}

void TfrmMain::showHelp(const QString &page)
{
    ShowHelpPage(page);
}

void TfrmMain::Contents1Click()
{
    showHelp(QString::fromLatin1(HelpWindow::ContentsPage));
}

void TfrmMain::Index1Click()
{
    showHelp(QString::fromLatin1(HelpWindow::IndexPage));
}

void TfrmMain::About1Click()
{
    if (!m_about)
        m_about = new TfrmAbout(this);
    m_about->exec();
}

// ---- Zoom --------------------------------------------------------------------------

void TfrmMain::N1001Click(QAction *item)
{
    const double scale = item->data().toInt() / 100.0;
    m_board->setBoardScale(scale);
    m_doc.values.BoardZoom = scale;
    item->setChecked(true);
    SetZoomCombo();
    m_board->SetScrolls();
    m_board->ReScalePB();
    m_board->repaintBoard();
    // A zoom counts as a change to the schedule (the zoom is saved with it); this is
    // deliberate.
    SetModified(m_doc);
}

void TfrmMain::ZoomStepClick(int direction)
{
    const QList<ZoomStep> steps = ZoomSteps();
    int index = ZoomIndexForScale(m_board->boardScale());
    if (index < 0)
        index = ZoomIndexForScale(1.0);
    const int wanted = direction == 0 ? ZoomIndexForScale(1.0) : qBound(0, index + direction, int(steps.size()) - 1);
    if (wanted == index && direction != 0)
        return;
    N1001Click(findAction(QLatin1String(steps.at(wanted).entry)));
}

void TfrmMain::FindStrips1Click()
{
    m_findBar->open();
}

void TfrmMain::ZoomComboChange(int index)
{
    if (index < 0)
        return;
    const double scale = ScaleForZoomIndex(index);
    m_board->setBoardScale(scale);
    m_doc.values.BoardZoom = scale;
    SetZoomMenu();
    m_board->SetScrolls();
    m_board->ReScalePB();
    m_board->repaintBoard();
    SetModified(m_doc);
}

void TfrmMain::SetZoomCombo()
{
    int index = ZoomIndexForScale(m_board->boardScale());
    if (index < 0) {
        // Anything but the nine steps snaps back to 100%.
        index = ZoomIndexForScale(1.0);
        m_board->setBoardScale(1.0);
        m_doc.values.BoardZoom = 1.0;
    }
    const QSignalBlocker quiet(m_zoomCombo);
    m_zoomCombo->setCurrentIndex(index);
}

void TfrmMain::SetZoomMenu()
{
    int index = ZoomIndexForScale(m_board->boardScale());
    if (index < 0)
        index = ZoomIndexForScale(1.0);
    m_zoomItems.at(index)->setChecked(true);
}

void TfrmMain::wheelEvent(QWheelEvent *event)
{
    // The wheel scrolls the board wherever it turns over the window.
    m_board->handleWheel(event);
    event->accept();
}

} // namespace tb
