#pragma once

#include <QDialog>
#include <QString>

namespace tb {

// The base of every dialog of the program: F1 opens the dialog's page in the
// program's help window (ShowHelpPage), wherever the focus is in the dialog.
class DialogWithHelp : public QDialog
{
    Q_OBJECT

public:
    // helpPage: a file name in the help folder ("auto-pages.html"); empty for a
    // dialog without a page of its own, where F1 does nothing.
    explicit DialogWithHelp(QString helpPage, QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    const QString &helpPage() const { return m_helpPage; }

private:
    QString m_helpPage;
};

} // namespace tb
