#include "ui/shell/DialogWithHelp.h"

#include "ui/shell/HelpWindow.h"

#include <QKeyEvent>

namespace tb {

namespace {

// Catches F1 on its way to the dialog. A key no control of the dialog uses travels
// from the focused control up to the dialog, so this sees it wherever the focus is.
// An object of its own, so that dialogs with event filters of their own keep it.
class HelpKeyFilter : public QObject
{
public:
    HelpKeyFilter(const QString &page, QObject *parent)
        : QObject(parent)
        , m_page(page)
    {}

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
            return false;
        ShowHelpPage(m_page);
        return true;
    }

private:
    QString m_page;
};

} // namespace

DialogWithHelp::DialogWithHelp(QString helpPage, QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_helpPage(std::move(helpPage))
{
    if (!m_helpPage.isEmpty())
        installEventFilter(new HelpKeyFilter(m_helpPage, this));
}

} // namespace tb
