#include "ui/board/FindStripsBar.h"

#include "board/FindStrips.h"
#include "document/ScheduleDocument.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>

namespace tb {

FindStripsBar::FindStripsBar(ScheduleDocument &doc, QWidget *parent)
    : QWidget(parent)
    , m_doc(doc)
    , m_edit(new QLineEdit(this))
    , m_result(new QLabel(this))
{
    setObjectName(QStringLiteral("FindStripsBar"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    auto *label = new QLabel(QStringLiteral("&Find strips:"), this);
    label->setBuddy(m_edit);
    m_edit->setObjectName(QStringLiteral("FindEdit"));
    m_edit->setPlaceholderText(QStringLiteral("Scene, location, set, synopsis, sequence or element"));
    m_edit->setClearButtonEnabled(true);
    m_edit->setMinimumWidth(260);
    auto *previous = new QToolButton(this);
    previous->setObjectName(QStringLiteral("FindPreviousBut"));
    previous->setText(QStringLiteral("Previous"));
    previous->setToolTip(QStringLiteral("Previous match (Shift+F3)"));
    auto *next = new QToolButton(this);
    next->setObjectName(QStringLiteral("FindNextBut"));
    next->setText(QStringLiteral("Next"));
    next->setToolTip(QStringLiteral("Next match (Enter, F3)"));
    auto *closeBut = new QToolButton(this);
    closeBut->setObjectName(QStringLiteral("FindCloseBut"));
    closeBut->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    closeBut->setToolTip(QStringLiteral("Close (Esc)"));
    closeBut->setAutoRaise(true);
    m_result->setObjectName(QStringLiteral("FindResultLabel"));

    layout->addWidget(label);
    layout->addWidget(m_edit);
    layout->addWidget(previous);
    layout->addWidget(next);
    layout->addWidget(m_result, 1);
    layout->addWidget(closeBut);

    connect(m_edit, &QLineEdit::returnPressed, this, [this] { find(true); });
    connect(next, &QToolButton::clicked, this, [this] { find(true); });
    connect(previous, &QToolButton::clicked, this, [this] { find(false); });
    connect(closeBut, &QToolButton::clicked, this, &FindStripsBar::close);
    connect(m_edit, &QLineEdit::textChanged, m_result, &QLabel::clear);
    hide();
}

void FindStripsBar::open()
{
    show();
    m_edit->setFocus(Qt::ShortcutFocusReason);
    m_edit->selectAll();
}

bool FindStripsBar::findNext()
{
    return find(true);
}

bool FindStripsBar::findPrevious()
{
    return find(false);
}

bool FindStripsBar::find(bool forward)
{
    const QString text = m_edit->text();
    if (text.trimmed().isEmpty()) {
        m_result->clear();
        return false;
    }
    const int row = FindStrip(m_doc, text, m_doc.SelStart, forward);
    if (row == 0) {
        m_result->setText(QStringLiteral("No strip matches."));
        return false;
    }
    const int matches = CountMatchingStrips(m_doc, text);
    m_result->setText(matches == 1 ? QStringLiteral("1 strip matches.")
                                   : QString::number(matches) + QStringLiteral(" strips match."));
    emit stripFound(row);
    return true;
}

void FindStripsBar::close()
{
    hide();
    emit closed();
}

void FindStripsBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    if (event->key() == Qt::Key_F3) {
        find(event->modifiers() != Qt::ShiftModifier);
        return;
    }
    QWidget::keyPressEvent(event);
}

} // namespace tb
