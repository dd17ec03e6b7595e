#pragma once

#include <QDialog>
#include <QString>

namespace tb {

class Result;
class ScheduleDocument;

// What the scheduling dialogs share: F1 asks for the dialog's help page (the main
// window connects helpRequested to its help viewer), and a failed command's message
// is shown through the document's prompter.
class SchedulingDialog : public QDialog
{
    Q_OBJECT

public:
    SchedulingDialog(ScheduleDocument &doc, QString helpPage, QWidget *parent);

    ScheduleDocument &document() const { return m_doc; }
    // The help page's file name under the help folder ("auto-pages.html").
    const QString &helpPage() const { return m_helpPage; }

Q_SIGNALS:
    void helpRequested(const QString &page);

protected:
    // Shows the message of a failure that the user has not been told about yet.
    void report(const Result &result) const;

private:
    ScheduleDocument &m_doc;
    QString m_helpPage;
};

} // namespace tb
