#include "ui/shell/HelpWindow.h"

#include <QAction>
#include <QFile>
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
    window->showPage(page);
}

void DeleteProgramHelpWindow()
{
    delete programHelpWindow().data();
}

} // namespace tb
