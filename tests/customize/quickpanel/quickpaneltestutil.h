#pragma once

// Shared by the quick access tests: a host with named, coloured commands on a
// ribbon, independent readings of the live bar and of the tree, and a
// serializer that stores host commands by identifier.

#include <tessaro/Tessaro.h>

#include "common/testicons.h"

#include <QtitanRibbon.h>

#include <QAction>
#include <QHash>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QStringList>

namespace quicktest {

using testcommon::colorIcon;
using testcommon::iconColor;

inline bool isSet(const QAction* action, const char* property)
{
    const QVariant value = action->property(property);
    return value.isValid() && value.toBool();
}

// The host: a ribbon with one page and group, and commands owned by the host
// object, each with an object name, a text and an icon of its own colour.
struct Host
{
    QObject owner;
    ui::RibbonBar ribbon{QStringLiteral("QuickPanelTest")};
    QList<QAction*> commands;

    explicit Host(int commandCount = 12)
    {
        Qtitan::RibbonPage* page = ribbon.addPage(QStringLiteral("Главная"));
        Qtitan::RibbonGroup* group = page->addGroup(QStringLiteral("Файл"));
        for (int i = 0; i < commandCount; ++i) {
            QAction* action = command(QStringLiteral("cmd%1").arg(i), QStringLiteral("&Команда %1").arg(i),
                                      QColor::fromHsv((i * 37) % 360, 200, 220));
            group->addAction(action);
        }
    }

    QAction* command(const QString& name, const QString& text, const QColor& color)
    {
        auto* action = new QAction(colorIcon(color), text, &owner);
        action->setObjectName(name);
        commands.append(action);
        return action;
    }

    Qtitan::RibbonQuickAccessBar* bar() { return ribbon.quickAccessBar(); }

    QList<QAction*> visibleActions()
    {
        QList<QAction*> result;
        const QList<QAction*> all = bar()->actions();
        for (QAction* action : all) {
            if (bar()->isActionVisible(action))
                result.append(action);
        }
        return result;
    }
};

// The kind the tree should report for an action, read off the action itself.
inline int expectedKind(const QAction* action)
{
    if (isSet(action, "isPopupWidgetAction"))
        return 5;
    if (isSet(action, "isDynamic"))
        return 6;
    if (action->isSeparator())
        return 3;
    if (action->inherits("QWidgetAction"))
        return 4;
    if (action->menu())
        return 2;
    return 1;
}

// One line per row, indented by depth: "kind|name".
inline void dumpTree(const QAbstractItemModel& model, const QModelIndex& parent, int depth, QStringList* out)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const auto* tree = static_cast<const RibbonQuickPanelTreeModel*>(&model);
        out->append(QString(depth, QLatin1Char(' ')) + QString::number(tree->itemType(index)) + QLatin1Char('|')
                    + index.data().toString());
        dumpTree(model, index, depth + 1, out);
    }
}

inline QStringList dumpTree(const RibbonQuickPanelTreeModel& model)
{
    QStringList out;
    dumpTree(model, QModelIndex(), 0, &out);
    return out;
}

// The same lines read from the live bar and the actions' menus alone (dump
// the tree first: reading an unnamed group command's name names it).
inline void dumpActions(const QList<QAction*>& actions, int depth, QStringList* out)
{
    for (QAction* action : actions) {
        QString name = action->isSeparator() ? QString::fromUtf8("< Р А З Д Е Л И Т Е Л Ь >") : action->text();
        name.remove(QLatin1Char('&'));
        out->append(QString(depth, QLatin1Char(' ')) + QString::number(expectedKind(action)) + QLatin1Char('|') + name);
        if (action->menu() && !isSet(action, "isDynamic"))
            dumpActions(action->menu()->actions(), depth + 1, out);
    }
}

inline QStringList dumpBar(Host& host)
{
    QStringList out;
    dumpActions(host.visibleActions(), 0, &out);
    return out;
}

// Maps host commands to "id.<objectName>" and back.
class IdSerializer : public ui::RibbonSerializer
{
public:
    IdSerializer(ui::RibbonBar* ribbon, const QList<QAction*>& commands)
        : ui::RibbonSerializer(ribbon)
    {
        for (QAction* action : commands)
            m_actions.insert(QStringLiteral("id.") + action->objectName(), action);
    }

protected:
    QString getActionID(QAction* action) override
    {
        if (action->objectName().isEmpty())
            return QString();
        const QString id = QStringLiteral("id.") + action->objectName();
        return m_actions.value(id) == action ? id : QString();
    }

    QAction* getAction(const QString& id) const override { return m_actions.value(id); }

private:
    QHash<QString, QAction*> m_actions;
};

} // namespace quicktest
