#include "ui/scheduling/SchedulingDialog.h"

#include "document/Result.h"
#include "document/ScheduleDocument.h"

namespace tb {

SchedulingDialog::SchedulingDialog(ScheduleDocument &doc, QString helpPage, QWidget *parent)
    : DialogWithHelp(std::move(helpPage), parent)
    , m_doc(doc)
{}

void SchedulingDialog::report(const Result &result) const
{
    if (!result.ok() && !result.message().isEmpty())
        m_doc.prompter().error(result.message());
}

} // namespace tb
