#include "ui/scheduling/SchedulingDialog.h"
#include "ui/shell/HelpWindow.h"

#include "document/Result.h"
#include "document/ScheduleDocument.h"

#include <QKeyEvent>

namespace tb {

SchedulingDialog::SchedulingDialog(ScheduleDocument &doc, QString helpPage, QWidget *parent)
    : QDialog(parent)
    , m_doc(doc)
    , m_helpPage(std::move(helpPage))
{
    InstallHelpKey(this, [this] { Q_EMIT helpRequested(m_helpPage); });
}

void SchedulingDialog::report(const Result &result) const
{
    if (!result.ok() && !result.message().isEmpty())
        m_doc.prompter().error(result.message());
}

} // namespace tb
