#pragma once

#include <QObject>
#include <QStringList>

class QAction;
class QMenu;

namespace tb {

// The recent-files list at the end of the File menu: up to six paths, the newest
// first, kept under the current user's "Brenholt/Torvanbridge" settings in the key
// "MRUList" (values "File1".."File6").
class RecentFilesList : public QObject
{
    Q_OBJECT

public:
    static constexpr int MaxItems = 6;

    // The entries are added to the end of the menu, after a separator of their own.
    explicit RecentFilesList(QMenu *menu, QObject *parent = nullptr);

    // Reads the list kept by the last run.
    void load();
    // Writes the list; false when it could not be written.
    bool save() const;

    // Puts a path at the top (moving it if it was listed); blank names are ignored.
    void add(const QString &path);
    void clear();
    QStringList paths() const { return m_paths; }
    // The menu entries, in list order.
    QList<QAction *> actions() const { return m_actions; }

signals:
    void fileChosen(const QString &path);

private:
    void rebuildMenu();

    QMenu *m_menu;
    QAction *m_separator;
    QList<QAction *> m_actions;
    QStringList m_paths;
};

} // namespace tb
