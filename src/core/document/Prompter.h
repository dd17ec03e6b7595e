#pragma once

#include <QString>

namespace tb {

// How a message looks: which icon it carries.
enum class MessageKind { Error, Information, Warning, Confirmation };

// Which buttons a message offers.
enum class Buttons { Ok, YesNo, YesNoCancel, YesAbort };

enum class Answer { Ok, Yes, No, Cancel, Abort };

struct Prompt
{
    MessageKind kind = MessageKind::Information;
    QString text;
    Buttons buttons = Buttons::Ok;
    // A beep before the message is shown (the program beeps before some questions).
    bool beep = false;
    // When not empty, the message carries a check box with this caption ("Don't ask me again").
    QString checkBoxText;
    bool checkBoxChecked = false;
};

struct PromptReply
{
    Answer answer = Answer::Ok;
    bool checkBoxChecked = false;
};

// Every message and question of the program goes through one Prompter: message boxes
// in the desktop program, stderr and scripted answers in the command-line tool and tests.
class Prompter
{
public:
    virtual ~Prompter() = default;
    virtual PromptReply ask(const Prompt &prompt) = 0;

    void error(const QString &text, bool beep = false)
    {
        ask(Prompt{MessageKind::Error, text, Buttons::Ok, beep, {}, false});
    }
    void information(const QString &text)
    {
        ask(Prompt{MessageKind::Information, text, Buttons::Ok, false, {}, false});
    }
    void warning(const QString &text) { ask(Prompt{MessageKind::Warning, text, Buttons::Ok, false, {}, false}); }
    Answer question(MessageKind kind, const QString &text, Buttons buttons, bool beep = false)
    {
        return ask(Prompt{kind, text, buttons, beep, {}, false}).answer;
    }
    bool confirm(const QString &text)
    {
        return question(MessageKind::Confirmation, text, Buttons::YesNo) == Answer::Yes;
    }
};

// A prompter that shows nothing and gives every question one fixed answer.
class SilentPrompter : public Prompter
{
public:
    explicit SilentPrompter(Answer answer = Answer::Yes)
        : m_answer(answer)
    {}
    PromptReply ask(const Prompt &prompt) override
    {
        if (prompt.buttons == Buttons::Ok)
            return {Answer::Ok, prompt.checkBoxChecked};
        return {m_answer, prompt.checkBoxChecked};
    }

private:
    Answer m_answer;
};

} // namespace tb
