#pragma once

#include <QAction>
#include <QHash>
#include <QList>
#include <QMenu>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>

// Builds nested menus from command paths written as "File/Recent/Report".
// The last part is a command; the parts before it are menu titles, merged
// with earlier menus of the same title at the same level.
class SearchSource
{
public:
    SearchSource() : m_owner(new QWidget) {}

    QAction* add(const QString& path)
    {
        const QStringList parts = path.split(QLatin1Char('/'));
        QMenu* menu = nullptr;
        QString key;
        for (int i = 0; i + 1 < parts.size(); ++i) {
            key += parts[i] + QLatin1Char('/');
            QMenu*& slot = m_menus[key];
            if (!slot) {
                if (menu) {
                    slot = menu->addMenu(parts[i]);
                } else {
                    slot = new QMenu(parts[i], m_owner.get());
                    m_top.append(slot->menuAction());
                }
            }
            menu = slot;
        }
        QAction* command = nullptr;
        if (menu) {
            command = menu->addAction(parts.last());
        } else {
            command = new QAction(parts.last(), m_owner.get());
            m_top.append(command);
        }
        m_commands.insert(path, command);
        return command;
    }

    void addAll(const QStringList& paths)
    {
        for (const QString& path : paths)
            add(path);
    }

    QMenu* menu(const QString& path) const { return m_menus.value(path + QLatin1Char('/')); }
    QAction* command(const QString& path) const { return m_commands.value(path); }
    QList<QAction*> actions() const { return m_top; }
    QWidget* owner() const { return m_owner.get(); }

private:
    std::unique_ptr<QWidget> m_owner;
    QList<QAction*> m_top;
    QHash<QString, QMenu*> m_menus;
    QHash<QString, QAction*> m_commands;
};

// The path text the search shows for "File/Open": "File → Open".
inline QString shown(const QString& path)
{
    return path.split(QLatin1Char('/')).join(QStringLiteral(" \u2192 "));
}

inline QStringList shown(const QStringList& paths)
{
    QStringList texts;
    for (const QString& path : paths)
        texts << shown(path);
    return texts;
}
