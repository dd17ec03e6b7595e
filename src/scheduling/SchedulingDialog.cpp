#include "SchedulingDialog.h"

#include "document/Result.h"
#include "document/ScheduleDocument.h"

#include <QKeyEvent>

namespace tb {

SchedulingDialog::SchedulingDialog(ScheduleDocument &doc, QString helpPage, QWidget *parent)
    : QDialog(parent)
    , m_doc(doc)
    , m_helpPage(std::move(helpPage))
{}

void SchedulingDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier) {
        Q_EMIT helpRequested(m_helpPage);
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

void SchedulingDialog::report(const Result &result) const
{
    if (!result.ok() && !result.message().isEmpty())
        m_doc.prompter().error(result.message());
}

} // namespace tb
