#pragma once

#include "ui/shell/DialogWithHelp.h"

namespace tb {

class Result;
class ScheduleDocument;

// What the scheduling dialogs share: the document, F1 help, and a failed command's
// message shown through the document's prompter.
class SchedulingDialog : public DialogWithHelp
{
    Q_OBJECT

public:
    SchedulingDialog(ScheduleDocument &doc, QString helpPage, QWidget *parent);

    ScheduleDocument &document() const { return m_doc; }

protected:
    // Shows the message of a failure that the user has not been told about yet.
    void report(const Result &result) const;

private:
    ScheduleDocument &m_doc;
};

} // namespace tb
