#pragma once

#include "document/Prompter.h"

class QWidget;

namespace tb {

// The desktop program's prompter: a modal message box with the icon and buttons the
// prompt asks for, and the optional "don't ask again" check box.
class MessageBoxPrompter : public Prompter
{
public:
    explicit MessageBoxPrompter(QWidget *parent = nullptr)
        : m_parent(parent)
    {}
    void setParent(QWidget *parent) { m_parent = parent; }
    PromptReply ask(const Prompt &prompt) override;

    // Message texts use "\r" for line breaks, as the earlier edition did ("\r\r" is an
    // empty line); the box shows them as line breaks.
    static QString displayText(const QString &text);

private:
    QWidget *m_parent;
};

} // namespace tb
