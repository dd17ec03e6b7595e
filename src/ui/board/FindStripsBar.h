#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace tb {

class ScheduleDocument;

// Find strips (Ctrl+F): a bar over the board with a search box and Next and Previous.
// It finds scene strips by scene number, location, set, synopsis, sequence or the
// name of an assigned element (FindStrip), and asks for the match to be selected and
// shown. Escape or the close button hides it.
class FindStripsBar : public QWidget
{
    Q_OBJECT

public:
    explicit FindStripsBar(ScheduleDocument &doc, QWidget *parent = nullptr);

    // Shows the bar with the search text selected and the focus in the box.
    void open();
    QLineEdit *searchBox() const { return m_edit; }
    QLabel *resultLabel() const { return m_result; }

    // The next or previous match after the current selection; false when none matches.
    bool findNext();
    bool findPrevious();

signals:
    // A strip matched: it should be selected and scrolled into view.
    void stripFound(int row);
    // The bar was closed; the focus goes back to the board.
    void closed();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool find(bool forward);
    void close();

    ScheduleDocument &m_doc;
    QLineEdit *m_edit;
    QLabel *m_result;
};

} // namespace tb
