#pragma once

#include "ui/shell/MenuEntry.h"

#include <QHash>
#include <QObject>

class QAction;
class QMenu;
class QWidget;

namespace tb {

// An item of a menu as the main window lays it out: an entry by object name, a
// separator, or a submenu with its own caption and items.
struct MenuItem
{
    const char *name = nullptr; // the entry's or the submenu's object name; null: separator
    QString caption;            // a submenu's caption
    QList<MenuItem> items;      // a submenu's items

    static MenuItem entry(const char *name) { return {name, {}, {}}; }
    static MenuItem separator() { return {}; }
    static MenuItem submenu(const char *name, const QString &caption, const QList<MenuItem> &items)
    {
        return {name, caption, items};
    }
    bool isSeparator() const { return !name; }
    bool isSubmenu() const { return !caption.isEmpty(); }
};

// The entries of every area's table as actions of one window: made once per row,
// placed in menus by a layout, and enabled by the rows' rules.
class MenuCommands : public QObject
{
    Q_OBJECT

public:
    // The actions are children of the window.
    explicit MenuCommands(QWidget *window);

    // Makes one action per row and connects it to the row's handler.
    void add(const MenuTable &table);

    // The action of an entry; null for a name no table declares.
    QAction *action(const QString &name) const;
    // The row of an entry; null for a name no table declares.
    const MenuEntry *entry(const QString &name) const;
    const QList<MenuEntry> &entries() const { return m_entries; }

    // Fills a menu of the menu bar in order. Three keys are declared by two entries
    // each: as in the classic toolkit the first entry in menu order gets the key and
    // both show it; giving it to both would make it ambiguous, and Qt would then fire
    // neither. Menus are therefore filled in the order the menu bar shows them.
    void fillMenu(QMenu *menu, const QList<MenuItem> &items);
    // Fills the board's pop-up. Its entries show their keys, which the main menu holds.
    void fillPopup(QMenu *popup, const QList<MenuItem> &items);

    // Enables every entry by its rule; an entry without a handler stays disabled.
    void updateEnabled(const ScheduleDocument &doc);
    // The same for one entry.
    void updateEnabled(const QString &name, const ScheduleDocument &doc);

private:
    void place(QMenu *menu, const QList<MenuItem> &items, bool popup);
    void setEnabledFor(int row, const ScheduleDocument &doc);

    QWidget *m_window;
    QList<MenuEntry> m_entries;
    QList<QAction *> m_actions;
    QHash<QString, int> m_rows;
    // Shortcut keys already given to an entry of the main menu.
    QHash<QString, QAction *> m_claimedKeys;
};

} // namespace tb
