#include "ui/shell/HelpWindow.h"

#include "ui/shell/HelpSearch.h"
#include "ui/shell/WindowPlacement.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPointer>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>

namespace tb {

namespace {

QString pageFile(const QString &page)
{
    return QStringLiteral(":/help/") + page.section(QLatin1Char('#'), 0, 0);
}

} // namespace

HelpWindow::HelpWindow(QWidget *parent)
    : QMainWindow(parent, Qt::Window)
    , m_browser(new QTextBrowser(this))
    , m_search(new QLineEdit(this))
{
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(QStringLiteral("Torvanbridge Help"));
    m_browser->setObjectName(QStringLiteral("HelpBrowser"));
    m_browser->setOpenExternalLinks(true);
    m_browser->setSearchPaths({QStringLiteral(":/help")});
    setCentralWidget(m_browser);

    QToolBar *bar = addToolBar(QStringLiteral("Help"));
    bar->setObjectName(QStringLiteral("HelpToolBar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction *back = bar->addAction(style()->standardIcon(QStyle::SP_ArrowBack), QStringLiteral("Back"));
    QAction *forward = bar->addAction(style()->standardIcon(QStyle::SP_ArrowForward), QStringLiteral("Forward"));
    bar->addSeparator();
    QAction *contents = bar->addAction(QStringLiteral("Contents"));
    QAction *index = bar->addAction(QStringLiteral("Index"));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QAction::triggered, m_browser, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, m_browser, &QTextBrowser::forward);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(contents, &QAction::triggered, this, [this] { showPage(QString::fromLatin1(ContentsPage)); });
    connect(index, &QAction::triggered, this, [this] { showPage(QString::fromLatin1(IndexPage)); });
    bar->addSeparator();
    m_search->setObjectName(QStringLiteral("HelpSearchEdit"));
    m_search->setPlaceholderText(QStringLiteral("Search the help"));
    m_search->setClearButtonEnabled(true);
    m_search->setMaximumWidth(240);
    bar->addWidget(m_search);
    connect(m_search, &QLineEdit::returnPressed, this, [this] { search(m_search->text()); });
    connect(m_browser, &QTextBrowser::sourceChanged, this, [this] {
        const QString title = m_browser->documentTitle();
        setWindowTitle(title.isEmpty() ? QStringLiteral("Torvanbridge Help")
                                       : QStringLiteral("Torvanbridge Help - ") + title);
    });
    resize(760, 620);
}

bool HelpWindow::pageExists(const QString &page)
{
    return !page.isEmpty() && QFile::exists(pageFile(page));
}

void HelpWindow::showPage(const QString &page)
{
    if (pageExists(page)) {
        m_browser->setSource(QUrl(QStringLiteral("qrc:/help/") + page));
    } else {
        m_browser->setHtml(QStringLiteral("<h2>Page not found</h2><p>The help page <b>") + page.toHtmlEscaped() +
                           QStringLiteral("</b> is not part of this installation.</p>"
                                          "<p><a href=\"qrc:/help/contents.html\">Contents</a></p>"));
    }
    show();
    raise();
    activateWindow();
}

void HelpWindow::search(const QString &text)
{
    if (text.trimmed().isEmpty())
        return;
    m_browser->setHtml(HelpSearchResultsHtml(text.simplified(), SearchHelpPages(text)));
    setWindowTitle(QStringLiteral("Torvanbridge Help - Search"));
}

QString HelpWindow::currentPage() const
{
    return m_browser->source().fileName();
}

namespace {

// The window has no owner, so nothing deletes it with the main window.
QPointer<HelpWindow> &programHelpWindow()
{
    static QPointer<HelpWindow> window;
    return window;
}

} // namespace

HelpWindow *ProgramHelpWindow()
{
    return programHelpWindow();
}

void ShowHelpPage(const QString &page)
{
    QPointer<HelpWindow> &window = programHelpWindow();
    if (!window)
        window = new HelpWindow;
    // A modal dialog blocks every window but its own, so help shown from one (F1 in
    // the dialog) could be neither clicked nor scrolled until the dialog closed. The
    // help window therefore becomes a window of the open dialog, on top of it, and
    // goes back to having no owner when help is asked for with no dialog open. If
    // that dialog is deleted, the help window goes with it and is made anew next time.
    QWidget *owner = QApplication::activeModalWidget();
    if (window->parentWidget() != owner) {
        const QRect placed = window->geometry();
        const bool wasShown = window->isVisible();
        window->setParent(owner, Qt::Window);
        if (wasShown)
            window->setGeometry(placed);
    }
    const bool first = !window->isVisible();
    window->showPage(page);
    if (first && owner) {
        // Beside the dialog where there is room, never partly off the screen.
        const QRect dialog = owner->frameGeometry();
        PlaceWindow(*window, QRect(dialog.topLeft() + QPoint(40, 40), window->size()));
    }
    KeepOnScreen(*window);
    window->raise();
    window->activateWindow();
}

void DeleteProgramHelpWindow()
{
    delete programHelpWindow().data();
}

} // namespace tb
