#pragma once

// Helpers shared by the tests of the dialogs and the board.

#include "TestSupport.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace tb::test {

inline const QString ExampleSchedule = QStringLiteral(TB_SOURCE_DIR "/examples/harbour-lights.tbf");

// Answers like ScriptedPrompter, and ticks the "remember" box of a prompt when told to.
class RememberingPrompter : public ScriptedPrompter
{
public:
    PromptReply ask(const Prompt &prompt) override
    {
        PromptReply reply = ScriptedPrompter::ask(prompt);
        reply.checkBoxChecked = tickRemember;
        return reply;
    }
    bool tickRemember = false;
};

// Clicks a button of whatever modal dialog is open once the event loop runs, after
// running `before` on that dialog.
inline void clickInModal(const char *button, std::function<void(QWidget *)> before = {})
{
    QTimer::singleShot(0, [button, before] {
        QWidget *modal = QApplication::activeModalWidget();
        QVERIFY(modal);
        if (before)
            before(modal);
        Child<QPushButton>(modal, button)->click();
    });
}

// A grab of a window for looking at, when TB_SCREENSHOTS names a folder.
inline void keepScreenshot(QWidget &widget, const QString &name)
{
    const QString folder = qEnvironmentVariable("TB_SCREENSHOTS");
    if (!folder.isEmpty())
        widget.grab().save(folder + u'/' + name + QStringLiteral(".png"));
}

} // namespace tb::test
