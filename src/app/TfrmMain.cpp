#include "app/TfrmMain.h"

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
#include "ui/breakdown/InstallBreakdown.h"
#include "ui/breakdown/TfrmStrip.h"
#include "ui/import/InstallImportCommands.h"
#include "ui/reports/ExportCommands.h"
#include "ui/reports/ReportCommands.h"
#include "ui/scheduling/SchedulingMenu.h"
#include "ui/shell/HelpWindow.h"
#include "ui/shell/MenuActions.h"
#include "ui/shell/PanelStatusBar.h"
#include "ui/shell/RecentFilesList.h"
#include "ui/shell/TfrmPref.h"
#include "ui/shell/ToolIcons.h"

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
#include <QWheelEvent>

namespace tb {

namespace {

using namespace actions;

// The entries the window serves itself. Every other entry is served by a subsystem
// and stays disabled until that subsystem asks for it through action().
const char *const ShellEntries[] = {
    New1,   Openfile1, Save1,       SaveAs1,   Preferences1, Exit1,  Undo1,   Redo1,    Cut1,      Copy1,
    Paste1, Delete1,   Fullscreen1, Contents1, Index1,       About1, PopCut1, PopCopy1, PopPaste1, PopDelete1,
};

QString keyText(const QString &shortcut)
{
    return QKeySequence(shortcut).toString(QKeySequence::NativeText);
}

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

    m_board = new BoardView(m_doc, this);
    m_board->setObjectName(QStringLiteral("Board"));
    setCentralWidget(m_board);
    m_board->skipAutoRestWarning = [this] { return m_settings.skipWarning(RememberedWarning::AutoRestClick); };
    m_board->setSkipAutoRestWarning = [this](bool skip) {
        (void)m_settings.setSkipWarning(RememberedWarning::AutoRestClick, skip);
    };

    buildMenus();
    buildPopup();
    buildToolBar();
    for (const char *name : ShellEntries)
        m_served.insert(m_actions.value(QLatin1String(name)));
    for (QAction *zoom : std::as_const(m_zoomItems))
        m_served.insert(zoom);
    connectShellCommands();

    m_autosaveTimer.setObjectName(QStringLiteral("AutoSaveTimer"));
    connect(&m_autosaveTimer, &QTimer::timeout, this, &TfrmMain::AutoSaveTimerTimer);

    m_doc.setStatusSink(m_statusBar);
    m_doc.setView(this);

    updateCommands(m_doc);
}

TfrmMain::~TfrmMain()
{
    // The document outlives the window; it must not call back into it.
    m_doc.setView(nullptr);
    m_doc.setStatusSink(nullptr);
}

// ---- Subsystem commands ----------------------------------------------------------
// Every subsystem that serves menu entries connects them here, each through its
// Install<Area>Commands(CommandHost &) function.

void TfrmMain::installSubsystemCommands()
{
    InstallImportCommands(*this);
    InstallSchedulingCommands(*this);
    InstallBreakdownCommands(*this);
    InstallReportCommands(*this);
    InstallExportCommands(*this);

    // The scene editor's remembered answer to its unsaved-changes warning.
    if (auto *strip = findChild<TfrmStrip *>()) {
        strip->skipSceneChangeWarning = [this] { return m_settings.skipWarning(RememberedWarning::SceneChange); };
        strip->setSkipSceneChangeWarning = [this](bool skip) {
            (void)m_settings.setSkipWarning(RememberedWarning::SceneChange, skip);
        };
    }
}

// ---- Menus ------------------------------------------------------------------------

QAction *TfrmMain::addEntry(QMenu *menu, const char *name, const QString &caption, const QString &shortcut)
{
    auto *action = new QAction(caption, this);
    action->setObjectName(QLatin1String(name));
    if (!shortcut.isEmpty()) {
        const QString key = keyText(shortcut);
        // Three keys are given to two entries each. As in the classic toolkit the
        // first entry in menu order gets the key and both show it; giving it to both
        // would make it ambiguous, and Qt would then fire neither.
        if (m_claimedKeys.contains(key)) {
            action->setText(caption + QLatin1Char('\t') + key);
        } else {
            action->setShortcut(QKeySequence(shortcut));
            m_claimedKeys.insert(key, action);
        }
    }
    menu->addAction(action);
    m_actions.insert(action->objectName(), action);
    return action;
}

void TfrmMain::buildMenus()
{
    QMenuBar *bar = menuBar();
    bar->setObjectName(QStringLiteral("MainMenu1"));

    m_fileMenu = bar->addMenu(QStringLiteral("&File"));
    m_fileMenu->setObjectName(QStringLiteral("File1"));
    addEntry(m_fileMenu, New1, QStringLiteral("&New"));
    addEntry(m_fileMenu, Openfile1, QStringLiteral("&Open..."));
    addEntry(m_fileMenu, Save1, QStringLiteral("&Save"), QStringLiteral("F12"));
    addEntry(m_fileMenu, SaveAs1, QStringLiteral("Save &As..."));
    m_fileMenu->addSeparator();
    addEntry(m_fileMenu, Importscript1, QStringLiteral("&Import script..."));
    addEntry(m_fileMenu, ImportFinalDraft1, QStringLiteral("Import &Final Draft reports..."));
    QMenu *exportMenu = m_fileMenu->addMenu(QStringLiteral("&Export board"));
    exportMenu->setObjectName(QStringLiteral("Exportboard1"));
    addEntry(exportMenu, AsSpreadsheet1, QStringLiteral("As &Spreadsheet..."));
    addEntry(exportMenu, AsHTML1, QStringLiteral("As &HTML..."));
    m_fileMenu->addSeparator();
    QMenu *print = m_fileMenu->addMenu(QStringLiteral("&Print"));
    print->setObjectName(QStringLiteral("Print1"));
    addEntry(print, Breakdownsheets1, QStringLiteral("&Breakdown sheets..."));
    addEntry(print, Callsheet1, QStringLiteral("&Call sheet..."));
    addEntry(print, Dayoutofdays1, QStringLiteral("&Day out of days..."));
    addEntry(print, Elementsummary1, QStringLiteral("Element summary..."));
    addEntry(print, Productionboard1, QStringLiteral("&Production board..."));
    addEntry(print, Shootingschedule1, QStringLiteral("&Shooting schedule..."));
    m_fileMenu->addSeparator();
    addEntry(m_fileMenu, Preferences1, QStringLiteral("P&references..."));
    m_fileMenu->addSeparator();
    addEntry(m_fileMenu, Exit1, QStringLiteral("&Exit"), QStringLiteral("Ctrl+Q"));
    // The recent files follow Exit, after a separator of their own.
    m_recent = new RecentFilesList(m_fileMenu, this);

    QMenu *edit = bar->addMenu(QStringLiteral("&Edit"));
    edit->setObjectName(QStringLiteral("Edit1"));
    addEntry(edit, Undo1, QStringLiteral("&Undo"), QStringLiteral("Ctrl+Z"));
    addEntry(edit, Redo1, QStringLiteral("Redo"));
    edit->addSeparator();
    addEntry(edit, Cut1, QStringLiteral("&Cut"), QStringLiteral("Ctrl+X"));
    addEntry(edit, Copy1, QStringLiteral("Co&py"), QStringLiteral("Ctrl+C"));
    addEntry(edit, Paste1, QStringLiteral("&Paste"), QStringLiteral("Ctrl+V"));
    addEntry(edit, Delete1, QStringLiteral("Delete"), QStringLiteral("Del"));

    QMenu *production = bar->addMenu(QStringLiteral("&Production"));
    production->setObjectName(QStringLiteral("Production1"));
    addEntry(production, Maindetails1, QStringLiteral("&Main details..."));
    addEntry(production, Startdate1, QStringLiteral("&Start date..."));
    addEntry(production, Holddays1, QStringLiteral("Hold days..."));
    production->addSeparator();
    addEntry(production, Endofday1, QStringLiteral("&End of day..."), QStringLiteral("Ctrl+E"));

    QMenu *strips = bar->addMenu(QStringLiteral("&Strips"));
    strips->setObjectName(QStringLiteral("Strips1"));
    addEntry(strips, Addscene1, QStringLiteral("&Add scene at end..."), QStringLiteral("Ins"));
    addEntry(strips, Insertscene1, QStringLiteral("&Insert scene..."), QStringLiteral("Shift+Ins"));
    addEntry(strips, Editscene1, QStringLiteral("&Edit scene..."), QStringLiteral("Ctrl+Ins"));
    // Locking strips to a date has no entry of its own in the earlier edition's menus;
    // it stands with the other commands on the selected strips.
    addEntry(strips, Lockstriptodate1, QStringLiteral("Lock / un-lock to date..."));
    strips->addSeparator();
    addEntry(strips, Adddaydivider1, QStringLiteral("Add &day divider at end"), QStringLiteral("Shift+Ins"));
    addEntry(strips, Insertdaydivider1, QStringLiteral("I&nsert day divider"));
    addEntry(strips, Removealldaydividers1, QStringLiteral("&Remove all day dividers..."));
    strips->addSeparator();
    addEntry(strips, Addbanner1, QStringLiteral("Add &banner at end..."), QStringLiteral("Ctrl+Ins"));
    addEntry(strips, Insertbanner1, QStringLiteral("In&sert banner..."));
    addEntry(strips, EditBanner1, QStringLiteral("Edi&t banner..."));
    addEntry(strips, Removeallbanners1, QStringLiteral("Re&move all banners..."));
    strips->addSeparator();
    addEntry(strips, Automaticdaydividers1, QStringLiteral("A&uto pages-per-day..."));
    addEntry(strips, Autorestdays1, QStringLiteral("Aut&o rest days..."));
    addEntry(strips, Convertautorestdaystobanners1, QStringLiteral("Convert auto-rest days to banners..."));
    strips->addSeparator();
    addEntry(strips, Sortstrips1, QStringLiteral("Sort stri&ps..."));
    addEntry(strips, Conformstriporder1, QStringLiteral("Conform strip order..."));
    addEntry(strips, Resetbreakdownnumbering1, QStringLiteral("Reset brea&kdown numbering..."));

    QMenu *elements = bar->addMenu(QStringLiteral("Ele&ments"));
    elements->setObjectName(QStringLiteral("Elements1"));
    addEntry(elements, Addelement1, QStringLiteral("&Add element..."), QStringLiteral("Ctrl+E"));
    addEntry(elements, Editelement1, QStringLiteral("Edit element..."));
    elements->addSeparator();
    addEntry(elements, Reordercastnumbering1, QStringLiteral("Reset cast numbering..."));
    addEntry(elements, Sortelements1, QStringLiteral("Sort elements by category..."));

    QMenu *view = bar->addMenu(QStringLiteral("&View"));
    view->setObjectName(QStringLiteral("View1"));
    QAction *fullscreen = addEntry(view, Fullscreen1, QStringLiteral("Fullscreen"));
    fullscreen->setCheckable(true);
    QMenu *zoom = view->addMenu(QStringLiteral("&Zoom"));
    zoom->setObjectName(QStringLiteral("Zoom1"));
    m_zoomGroup = new QActionGroup(this);
    m_zoomGroup->setExclusive(true);
    for (int percent = 60; percent <= 140; percent += 10) {
        const QString name = QStringLiteral("N") + QString::number(percent) + QLatin1Char('1');
        QAction *item = addEntry(zoom, name.toLatin1().constData(), QString::number(percent) + QLatin1Char('%'));
        item->setCheckable(true);
        item->setData(percent); // the item's tag
        item->setChecked(percent == 100);
        m_zoomGroup->addAction(item);
        m_zoomItems.append(item);
    }

    QMenu *help = bar->addMenu(QStringLiteral("&Help"));
    help->setObjectName(QStringLiteral("Help1"));
    addEntry(help, Contents1, QStringLiteral("&Contents"), QStringLiteral("F1"));
    addEntry(help, Index1, QStringLiteral("&Index"));
    help->addSeparator();
    addEntry(help, About1, QStringLiteral("&About..."));
}

QAction *TfrmMain::addPopupEntry(const char *name, const QString &caption, const QString &shortcut, const char *twin)
{
    // The pop-up shows the keys of the main menu, which has them already.
    const QString text = shortcut.isEmpty() ? caption : caption + QLatin1Char('\t') + keyText(shortcut);
    auto *action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    m_popup->addAction(action);
    m_actions.insert(action->objectName(), action);
    if (twin) {
        // Until a subsystem serves the pop-up entry itself, it runs the same command
        // as its main menu entry.
        QAction *main = m_actions.value(QLatin1String(twin));
        connect(action, &QAction::triggered, this, [this, action, main] {
            if (!m_served.contains(action))
                main->trigger();
        });
    }
    return action;
}

void TfrmMain::buildPopup()
{
    m_popup = new QMenu(this);
    m_popup->setObjectName(QStringLiteral("PBPopup"));
    addPopupEntry(PopCut1, QStringLiteral("Cut"), QStringLiteral("Ctrl+X"), nullptr);
    addPopupEntry(PopCopy1, QStringLiteral("Copy"), QStringLiteral("Ctrl+C"), nullptr);
    addPopupEntry(PopPaste1, QStringLiteral("Paste (insert)"), QStringLiteral("Ctrl+V"), nullptr);
    addPopupEntry(PopDelete1, QStringLiteral("Delete selection"), QStringLiteral("Del"), nullptr);
    m_popup->addSeparator();
    addPopupEntry(PopAddscene1, QStringLiteral("Add scene at end..."), QStringLiteral("Ins"), Addscene1);
    addPopupEntry(PopInsertscene1, QStringLiteral("Insert scene..."), QStringLiteral("Shift+Ins"), Insertscene1);
    addPopupEntry(PopEditscene1, QStringLiteral("Edit scene..."), {}, Editscene1);
    addPopupEntry(PopLockstrip1, QStringLiteral("Lock / un-lock to date..."), {}, Lockstriptodate1);
    m_popup->addSeparator();
    addPopupEntry(PopAdddaydivider1, QStringLiteral("Add day divider at end..."), QStringLiteral("Shift+Ins"),
                  Adddaydivider1);
    addPopupEntry(PopInsertdaydivider1, QStringLiteral("Insert day divider..."), {}, Insertdaydivider1);
    m_popup->addSeparator();
    addPopupEntry(PopAddelement1, QStringLiteral("Add element at end..."), QStringLiteral("Ctrl+E"), Addelement1);
    addPopupEntry(PopEditelement1, QStringLiteral("Edit element..."), {}, Editelement1);
    m_board->setPopupMenu(m_popup);
}

void TfrmMain::buildToolBar()
{
    m_toolBar = addToolBar(QStringLiteral("Tools"));
    m_toolBar->setObjectName(QStringLiteral("ToolBar1"));
    m_toolBar->setMovable(false);
    m_toolBar->setIconSize(QSize(22, 22));
    struct Button
    {
        const char *action;
        ToolIcon icon;
        const char *hint;
        const char *name;
    };
    const Button buttons[] = {
        {Openfile1, ToolIcon::Open, "Open", "OpenBut"}, {Save1, ToolIcon::Save, "Save", "SaveBut"},
        {Undo1, ToolIcon::Undo, "Undo", "UndoBut"},     {Cut1, ToolIcon::Cut, "Cut", "CutBut"},
        {Copy1, ToolIcon::Copy, "Copy", "CopyBut"},     {Paste1, ToolIcon::Paste, "Paste", "PasteBut"},
    };
    for (const Button &b : buttons) {
        QAction *action = m_actions.value(QLatin1String(b.action));
        action->setIcon(MakeToolIcon(b.icon));
        // The buttons share the entries' commands and state; the hint is the button's own.
        action->setToolTip(QLatin1String(b.hint));
        if (b.icon == ToolIcon::Save || b.icon == ToolIcon::Undo)
            m_toolBar->addSeparator();
        m_toolBar->addAction(action);
        m_toolBar->widgetForAction(action)->setObjectName(QLatin1String(b.name));
    }
    m_toolBar->addSeparator();
    m_zoomCombo = new QComboBox(m_toolBar);
    m_zoomCombo->setObjectName(QStringLiteral("ZoomCombo"));
    m_zoomCombo->setToolTip(QStringLiteral("Zoom"));
    for (int percent = 60; percent <= 140; percent += 10)
        m_zoomCombo->addItem(QString::number(percent) + QLatin1Char('%'));
    m_zoomCombo->setCurrentIndex(4);
    m_zoomCombo->setFocusPolicy(Qt::NoFocus);
    m_toolBar->addWidget(m_zoomCombo);
}

void TfrmMain::connectShellCommands()
{
    const auto on = [this](const char *name, void (TfrmMain::*handler)()) {
        connect(m_actions.value(QLatin1String(name)), &QAction::triggered, this, handler);
    };
    on(New1, &TfrmMain::New1Click);
    on(Openfile1, &TfrmMain::Openfile1Click);
    on(Save1, &TfrmMain::Save1Click);
    on(SaveAs1, &TfrmMain::SaveAs1Click);
    on(Preferences1, &TfrmMain::Preferences1Click);
    on(Exit1, &TfrmMain::Exit1Click);
    on(Undo1, &TfrmMain::Undo1Click);
    on(Redo1, &TfrmMain::Redo1Click);
    on(Cut1, &TfrmMain::Cut1Click);
    on(Copy1, &TfrmMain::Copy1Click);
    on(Paste1, &TfrmMain::Paste1Click);
    on(Delete1, &TfrmMain::Delete1Click);
    on(PopCut1, &TfrmMain::Cut1Click);
    on(PopCopy1, &TfrmMain::Copy1Click);
    on(PopPaste1, &TfrmMain::Paste1Click);
    on(PopDelete1, &TfrmMain::Delete1Click);
    on(Contents1, &TfrmMain::Contents1Click);
    on(Index1, &TfrmMain::Index1Click);
    on(About1, &TfrmMain::About1Click);
    connect(m_actions.value(QLatin1String(Fullscreen1)), &QAction::toggled, this, &TfrmMain::Fullscreen1Click);
    connect(m_zoomGroup, &QActionGroup::triggered, this, &TfrmMain::N1001Click);
    connect(m_zoomCombo, &QComboBox::currentIndexChanged, this, &TfrmMain::ZoomComboChange);
    connect(m_recent, &RecentFilesList::fileChosen, this, &TfrmMain::MRUClick);

    connect(m_board, &BoardView::editSceneRequested, this,
            [this] { m_actions.value(QLatin1String(Editscene1))->trigger(); });
    connect(m_board, &BoardView::editBannerRequested, this,
            [this] { m_actions.value(QLatin1String(EditBanner1))->trigger(); });
    connect(m_board, &BoardView::editElementRequested, this,
            [this] { m_actions.value(QLatin1String(Editelement1))->trigger(); });
}

QAction *TfrmMain::action(const char *objectName)
{
    QAction *found = m_actions.value(QLatin1String(objectName));
    if (found && !m_served.contains(found)) {
        m_served.insert(found);
        updateCommands(m_doc);
    }
    return found;
}

bool TfrmMain::isServed(const QAction *action) const
{
    return m_served.contains(action);
}

// ---- Enabling ---------------------------------------------------------------------

void TfrmMain::enableIf(const char *name, bool state)
{
    QAction *entry = m_actions.value(QLatin1String(name));
    entry->setEnabled(state && m_served.contains(entry));
}

void TfrmMain::updateCommands(const ScheduleDocument &doc)
{
    const int stripCount = doc.strips.count();
    const bool strips = stripCount > 0;
    const bool stripSelected = doc.SelStart > 0 && doc.SelStart <= stripCount;
    const StripRecord *first = stripSelected ? &doc.strips[doc.SelStart] : nullptr;
    const bool elementSelected = doc.SelElement > 0 && doc.SelElement <= doc.elements.count();
    bool autoRestDays = false;
    for (int i = 1; i <= stripCount && !autoRestDays; ++i)
        autoRestDays = doc.strips[i].isAutoRestDay();
    const int clip = doc.clipboard.ClipKind;
    const bool anySelection = stripSelected || elementSelected;
    const bool canPaste =
        (stripSelected && clip == StripClipboard::Strips) || (elementSelected && clip == StripClipboard::Element);

    // Always there.
    for (const char *name : {New1,
                             Openfile1,
                             Save1,
                             SaveAs1,
                             Importscript1,
                             ImportFinalDraft1,
                             AsSpreadsheet1,
                             AsHTML1,
                             Breakdownsheets1,
                             Callsheet1,
                             Dayoutofdays1,
                             Elementsummary1,
                             Productionboard1,
                             Shootingschedule1,
                             Preferences1,
                             Exit1,
                             Maindetails1,
                             Startdate1,
                             Holddays1,
                             Endofday1,
                             Addscene1,
                             Adddaydivider1,
                             Addbanner1,
                             Autorestdays1,
                             Addelement1,
                             Fullscreen1,
                             Contents1,
                             Index1,
                             About1,
                             PopAddscene1,
                             PopAdddaydivider1,
                             PopAddelement1})
        enableIf(name, true);

    // Undo and Redo as the undo store left them.
    const UndoCommandState undo = UndoCommands(doc.undo);
    enableIf(Undo1, undo.undoEnabled);
    enableIf(Redo1, undo.redoEnabled);

    // The selection: a run of strips or one element.
    for (const char *name : {Cut1, Copy1, Delete1, PopCut1, PopCopy1, PopDelete1})
        enableIf(name, anySelection);
    enableIf(Paste1, canPaste);
    enableIf(PopPaste1, canPaste);
    for (const char *name : {Insertscene1, Lockstriptodate1, Insertdaydivider1, Insertbanner1, PopInsertscene1,
                             PopLockstrip1, PopInsertdaydivider1})
        enableIf(name, stripSelected);
    enableIf(Editscene1, first && first->isScene());
    enableIf(PopEditscene1, first && first->isScene());
    enableIf(EditBanner1, first && first->isBanner());
    enableIf(Editelement1, elementSelected);
    enableIf(PopEditelement1, elementSelected);

    // What the board holds.
    enableIf(Removealldaydividers1, doc.days.dividers > 0);
    enableIf(Removeallbanners1, doc.days.banners > 0);
    enableIf(Convertautorestdaystobanners1, autoRestDays);
    for (const char *name : {Automaticdaydividers1, Sortstrips1, Conformstriporder1, Resetbreakdownnumbering1})
        enableIf(name, strips);
    enableIf(Reordercastnumbering1, doc.elements.count() > 0);
    enableIf(Sortelements1, doc.elements.count() > 0);

    // A pop-up entry that runs its main menu entry follows that entry's state.
    static const std::pair<const char *, const char *> twins[] = {
        {PopAddscene1, Addscene1},           {PopInsertscene1, Insertscene1},
        {PopEditscene1, Editscene1},         {PopLockstrip1, Lockstriptodate1},
        {PopAdddaydivider1, Adddaydivider1}, {PopInsertdaydivider1, Insertdaydivider1},
        {PopAddelement1, Addelement1},       {PopEditelement1, Editelement1},
    };
    for (const auto &[pop, main] : twins) {
        QAction *popAction = m_actions.value(QLatin1String(pop));
        if (!m_served.contains(popAction))
            popAction->setEnabled(m_actions.value(QLatin1String(main))->isEnabled());
    }
}

void TfrmMain::setUndoCommands(bool undoEnabled, const QString &undoCaption, bool redoEnabled,
                               const QString &redoCaption)
{
    QAction *undo = m_actions.value(QLatin1String(Undo1));
    QAction *redo = m_actions.value(QLatin1String(Redo1));
    undo->setText(undoCaption);
    redo->setText(redoCaption);
    enableIf(Undo1, undoEnabled);
    enableIf(Redo1, redoEnabled);
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
            setUndoCommands(undo.undoEnabled, undo.undoCaption, undo.redoEnabled, undo.redoCaption);
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
    setWindowTitle(title);
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
    setAutosaveInterval(m_settings.autosaveMinutes * 60000);
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
    // New banners and converted rest days take the "Banner" colour pair.
    if (SchedulingCommands *scheduling = FindSchedulingCommands(*this))
        scheduling->setBannerColours(
            {legacy::ColorValueToString(m_settings.stripBackground[static_cast<int>(StripSlot::Banner)]),
             legacy::ColorValueToString(m_settings.stripText[static_cast<int>(StripSlot::Banner)])});
}

void TfrmMain::FormShow()
{
    // The settings, then an empty document, then the file of the command line.
    const QStringList problems = m_settings.LoadSettings();
    applySettings();
    if (!problems.isEmpty())
        m_doc.prompter().error(problems.join(QStringLiteral("\r\r")));
    NewDocument(m_doc);
    if (!m_commandLineFile.isEmpty())
        (void)OpenDocument(m_doc, m_commandLineFile); // its messages are all there is
    m_doc.clipboard.ClipKind = StripClipboard::Empty;
    m_doc.clipboard.ClipCount = 0;
    if (hasPrinter && !hasPrinter()) {
        m_doc.prompter().error(QStringLiteral("Torvanbridge cannot find any printers installed on this computer. You "
                                              "can continue to use the software, but all Print features will be "
                                              "disabled.\r\rSee Windows Help if you require assistance on installing "
                                              "printers."));
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
    if (m_help)
        m_help->close();
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
    DropFilesCommand(m_doc, paths);
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
    setAutosaveInterval(m_settings.autosaveMinutes * 60000);
    m_board->repaintBoard();
}

void TfrmMain::Fullscreen1Click(bool on)
{
    if (on)
        showFullScreen();
    else
        showNormal();
}

void TfrmMain::showHelp(const QString &page)
{
    if (!m_help)
        m_help = std::make_unique<HelpWindow>();
    m_help->showPage(page);
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
