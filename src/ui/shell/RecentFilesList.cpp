#include "ui/shell/RecentFilesList.h"

#include <QAction>
#include <QDir>
#include <QMenu>
#include <QSettings>

namespace tb {

namespace {

// The product's key in the current user's settings (the registry on Windows).
const QString Organisation = QStringLiteral("Brenholt");
const QString Application = QStringLiteral("Torvanbridge");
const QString ListKey = QStringLiteral("MRUList");

} // namespace

RecentFilesList::RecentFilesList(QMenu *menu, QObject *parent)
    : QObject(parent)
    , m_menu(menu)
{
    m_separator = m_menu->addSeparator();
    m_separator->setVisible(false);
}

void RecentFilesList::load()
{
    QSettings settings(QSettings::NativeFormat, QSettings::UserScope, Organisation, Application);
    settings.beginGroup(ListKey);
    m_paths.clear();
    for (int i = 1; i <= MaxItems; ++i) {
        const QString path = settings.value(QStringLiteral("File") + QString::number(i)).toString();
        if (!path.trimmed().isEmpty() && !m_paths.contains(path))
            m_paths.append(path);
    }
    settings.endGroup();
    rebuildMenu();
}

bool RecentFilesList::save() const
{
    QSettings settings(QSettings::NativeFormat, QSettings::UserScope, Organisation, Application);
    settings.remove(ListKey);
    settings.beginGroup(ListKey);
    for (int i = 0; i < m_paths.size(); ++i)
        settings.setValue(QStringLiteral("File") + QString::number(i + 1), m_paths.at(i));
    settings.endGroup();
    settings.sync();
    return settings.status() == QSettings::NoError;
}

void RecentFilesList::add(const QString &path)
{
    if (path.trimmed().isEmpty())
        return;
    m_paths.removeAll(path);
    m_paths.prepend(path);
    while (m_paths.size() > MaxItems)
        m_paths.removeLast();
    rebuildMenu();
}

void RecentFilesList::clear()
{
    m_paths.clear();
    rebuildMenu();
}

void RecentFilesList::rebuildMenu()
{
    qDeleteAll(m_actions);
    m_actions.clear();
    for (int i = 0; i < m_paths.size(); ++i) {
        const QString path = m_paths.at(i);
        QString shown = QDir::toNativeSeparators(path);
        shown.replace(QLatin1Char('&'), QLatin1String("&&"));
        auto *action = new QAction(QLatin1Char('&') + QString::number(i + 1) + QLatin1Char(' ') + shown, m_menu);
        action->setObjectName(QStringLiteral("MRU") + QString::number(i + 1));
        connect(action, &QAction::triggered, this, [this, path] { emit fileChosen(path); });
        m_menu->addAction(action);
        m_actions.append(action);
    }
    m_separator->setVisible(!m_paths.isEmpty());
}

} // namespace tb
