#include "ui/shell/MenuCommands.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QWidget>

namespace tb {

namespace {

QString keyText(const QString &shortcut)
{
    return QKeySequence(shortcut).toString(QKeySequence::NativeText);
}

} // namespace

MenuCommands::MenuCommands(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    setObjectName(QStringLiteral("MenuCommands"));
}

void MenuCommands::add(const MenuTable &table)
{
    for (const MenuEntry &row : table) {
        auto *action = new QAction(row.caption, m_window);
        action->setObjectName(QLatin1String(row.name));
        action->setCheckable(row.checkable);
        if (!row.hint.isEmpty())
            action->setToolTip(row.hint);
        if (row.handler) {
            const std::function<void()> handler = row.handler;
            connect(action, &QAction::triggered, this, [handler] { handler(); });
        }
        m_rows.insert(action->objectName(), int(m_entries.size()));
        m_entries.append(row);
        m_actions.append(action);
    }
}

QAction *MenuCommands::action(const QString &name) const
{
    const int row = m_rows.value(name, -1);
    return row < 0 ? nullptr : m_actions.at(row);
}

const MenuEntry *MenuCommands::entry(const QString &name) const
{
    const int row = m_rows.value(name, -1);
    return row < 0 ? nullptr : &m_entries.at(row);
}

void MenuCommands::fillMenu(QMenu *menu, const QList<MenuItem> &items)
{
    place(menu, items, false);
}

void MenuCommands::fillPopup(QMenu *popup, const QList<MenuItem> &items)
{
    place(popup, items, true);
}

void MenuCommands::place(QMenu *menu, const QList<MenuItem> &items, bool popup)
{
    for (const MenuItem &item : items) {
        if (item.isSeparator()) {
            menu->addSeparator();
            continue;
        }
        if (item.isSubmenu()) {
            QMenu *sub = menu->addMenu(item.caption);
            sub->setObjectName(QLatin1String(item.name));
            place(sub, item.items, popup);
            continue;
        }
        const int row = m_rows.value(QLatin1String(item.name), -1);
        if (row < 0) {
            qWarning("No table declares the menu entry %s", item.name);
            continue;
        }
        const MenuEntry &entry = m_entries.at(row);
        QAction *action = m_actions.at(row);
        if (!entry.shortcut.isEmpty()) {
            const QString key = keyText(entry.shortcut);
            if (popup || m_claimedKeys.contains(key)) {
                action->setText(entry.caption + QLatin1Char('\t') + key);
            } else {
                action->setShortcut(QKeySequence(entry.shortcut));
                m_claimedKeys.insert(key, action);
            }
        }
        menu->addAction(action);
    }
}

void MenuCommands::setEnabledFor(int row, const ScheduleDocument &doc)
{
    const MenuEntry &entry = m_entries.at(row);
    m_actions.at(row)->setEnabled(entry.handler && (!entry.enabledWhen || entry.enabledWhen(doc)));
}

void MenuCommands::updateEnabled(const ScheduleDocument &doc)
{
    for (int row = 0; row < m_entries.size(); ++row)
        setEnabledFor(row, doc);
}

void MenuCommands::updateEnabled(const QString &name, const ScheduleDocument &doc)
{
    const int row = m_rows.value(name, -1);
    if (row >= 0)
        setEnabledFor(row, doc);
}

} // namespace tb
