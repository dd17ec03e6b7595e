#include "ui/shell/MessageBoxPrompter.h"

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>

namespace tb {

QString MessageBoxPrompter::displayText(const QString &text)
{
    QString shown = text;
    shown.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    shown.replace(u'\r', u'\n');
    return shown;
}

PromptReply MessageBoxPrompter::ask(const Prompt &prompt)
{
    if (prompt.beep)
        QApplication::beep();

    QMessageBox box(m_parent);
    box.setWindowTitle(QStringLiteral("Torvanbridge"));
    box.setText(displayText(prompt.text));
    switch (prompt.kind) {
    case MessageKind::Error:
        box.setIcon(QMessageBox::Critical);
        break;
    case MessageKind::Information:
        box.setIcon(QMessageBox::Information);
        break;
    case MessageKind::Warning:
        box.setIcon(QMessageBox::Warning);
        break;
    case MessageKind::Confirmation:
        box.setIcon(QMessageBox::Question);
        break;
    }
    switch (prompt.buttons) {
    case Buttons::Ok:
        box.setStandardButtons(QMessageBox::Ok);
        break;
    case Buttons::YesNo:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        break;
    case Buttons::YesNoCancel:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    case Buttons::YesAbort:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::Abort);
        break;
    }
    QCheckBox *check = nullptr;
    if (!prompt.checkBoxText.isEmpty()) {
        check = new QCheckBox(prompt.checkBoxText, &box);
        check->setChecked(prompt.checkBoxChecked);
        box.setCheckBox(check);
    }

    const int clicked = box.exec();
    PromptReply reply;
    reply.checkBoxChecked = check ? check->isChecked() : false;
    switch (clicked) {
    case QMessageBox::Yes:
        reply.answer = Answer::Yes;
        break;
    case QMessageBox::No:
        reply.answer = Answer::No;
        break;
    case QMessageBox::Cancel:
        reply.answer = Answer::Cancel;
        break;
    case QMessageBox::Abort:
        reply.answer = Answer::Abort;
        break;
    default:
        // Closing a Yes/No box with Escape or the title bar counts as No.
        reply.answer = prompt.buttons == Buttons::Ok      ? Answer::Ok
                       : prompt.buttons == Buttons::YesNo ? Answer::No
                                                          : Answer::Cancel;
        break;
    }
    return reply;
}

} // namespace tb
