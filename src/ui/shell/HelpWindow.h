#pragma once

#include <QMainWindow>

class QTextBrowser;
class QWidget;

namespace tb {

// The help window: the program's bundled HTML pages (the docs/help folder, built into
// the program under ":/help") in a browser with Back, Forward, Contents and Index.
// It has no owner window, so it stays usable beside the main window and its dialogs.
class HelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    static constexpr const char *ContentsPage = "contents.html";
    static constexpr const char *IndexPage = "index.html";

    explicit HelpWindow(QWidget *parent = nullptr);

    // Shows the window on a page (a file name in the help folder, optionally with
    // "#anchor"). A page that is not bundled shows a short note saying so.
    void showPage(const QString &page);
    // The file name of the page shown ("board.html"), without the anchor.
    QString currentPage() const;
    QTextBrowser *browser() const { return m_browser; }

    // Whether the help folder holds the page.
    static bool pageExists(const QString &page);

private:
    QTextBrowser *m_browser;
};

// The program's one help window, made on first use (null before); the menu's
// "&Contents" and "&Index" and F1 in every dialog (DialogWithHelp) show their pages in
// it. Whoever ends the program deletes it with DeleteProgramHelpWindow.
HelpWindow *ProgramHelpWindow();
// Shows a page in the program's help window, making the window when there is none.
void ShowHelpPage(const QString &page);
void DeleteProgramHelpWindow();

} // namespace tb
