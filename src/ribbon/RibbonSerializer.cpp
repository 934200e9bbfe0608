#include <tessaro/RibbonSerializer.h>

#include <tessaro/RibbonBar.h>
#include <tessaro/RibbonControls.h>

#include "common/IconStreamReader_p.h"

#include <QtitanRibbon.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QDataStream>
#include <QHash>
#include <QIcon>
#include <QMenu>
#include <QToolButton>
#include <QWidgetAction>
#include <QtEndian>

namespace ui {

namespace {

const char* const popupWidgetProperty = "isPopupWidgetAction";
const char* const dynamicMenuProperty = "isDynamic";

bool hasMore(QDataStream& stream)
{
    return stream.status() == QDataStream::Ok && stream.device() && !stream.device()->atEnd();
}

QByteArray uncompressBounded(const QByteArray& data)
{
    if (data.size() < 4)
        return QByteArray();
    if (qFromBigEndian<quint32>(data.constData()) > quint32(RibbonSerializer::maxUncompressedSize))
        return QByteArray();
    return qUncompress(data);
}

Qt::ToolButtonStyle storedStyle(qint32 value)
{
    // A damaged style falls back to icon only rather than reaching the button.
    if (value < Qt::ToolButtonIconOnly || value > Qt::ToolButtonFollowStyle)
        return Qt::ToolButtonIconOnly;
    return Qt::ToolButtonStyle(value);
}

} // namespace

struct RibbonSerializer::ReadContext
{
    int budget = RibbonSerializer::maxRestoredItems;

    // Takes one object from the budget; when it is spent the stream is
    // marked damaged, which ends every reading loop.
    bool take(QDataStream& stream)
    {
        if (budget <= 0) {
            stream.setStatus(QDataStream::ReadCorruptData);
            return false;
        }
        --budget;
        return true;
    }

    // The host action itself, or null once it has been placed too often.
    QAction* place(QAction* action)
    {
        if (!action)
            return nullptr;
        int& count = placements[action];
        if (count >= RibbonSerializer::maxActionPlacements)
            return nullptr;
        ++count;
        return action;
    }

    QHash<QAction*, int> placements;
};

struct RibbonSerializer::SaveContext
{
    int budget = RibbonSerializer::maxSavedMenuEntries;
};

// The fields of one action record up to its sub-records.
struct RibbonSerializer::ActionRecord
{
    bool separator = false;
    QString id;
    QString text;
    // The host's action for a non-empty identifier.
    QAction* hostAction = nullptr;
    QIcon icon;
    // An identifier record of an old stream carries an icon for the host's action.
    bool hostIconStored = false;
    qint32 subCount = 0;
};

RibbonSerializer::RibbonSerializer(RibbonBar* ribbon)
    : m_ribbon(ribbon)
{
}

RibbonSerializer::RibbonSerializer(const RibbonSerializer& other) = default;

RibbonSerializer& RibbonSerializer::operator=(const RibbonSerializer& other) = default;

RibbonSerializer::~RibbonSerializer() = default;

QString RibbonSerializer::getActionID(QAction* action)
{
    Q_UNUSED(action)
    return QString();
}

QAction* RibbonSerializer::getAction(const QString& id) const
{
    Q_UNUSED(id)
    return nullptr;
}

QString RibbonSerializer::translate(const QString& text) const
{
    const QByteArray context = m_ribbon ? m_ribbon->getTranslationContext().toUtf8() : QByteArray();
    const QByteArray source = text.toUtf8();
    return QCoreApplication::translate(context.constData(), source.constData(), nullptr, -1);
}

bool RibbonSerializer::save(QIODevice& device)
{
    if (!m_ribbon || !device.isWritable())
        return false;
    QDataStream stream(&device);
    SaveContext context;
    stream << qint32(internalVersion);
    const int pageCount = m_ribbon->pageCount();
    stream << qint32(pageCount);
    for (int p = 0; p < pageCount; ++p) {
        Qtitan::RibbonPage* page = m_ribbon->page(p);
        stream << page->title();
        const int groupCount = page->groupCount();
        stream << qint32(groupCount);
        for (int g = 0; g < groupCount; ++g) {
            Qtitan::RibbonGroup* group = page->groupAt(g);
            stream << group->title();
            stream << group->isControlsCentering();
            stream << false;
            const QList<QAction*> actions = group->actions();
            stream << qint32(actions.size());
            for (QAction* action : actions) {
                stream << qint32(actionButtonStyle(group, action));
                stream << qint8(getGroupButtonType(group, action));
                saveActionImpl(stream, action, context, 0);
            }
        }
    }
    return true;
}

QByteArray RibbonSerializer::save()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    save(buffer);
    return qCompress(buffer.data());
}

bool RibbonSerializer::saveQuickBar(QIODevice& device)
{
    if (!m_ribbon || !device.isWritable())
        return false;
    Qtitan::RibbonQuickAccessBar* bar = m_ribbon->quickAccessBar();
    QDataStream stream(&device);
    SaveContext context;
    stream << qint32(internalVersion);
    stream << qint32(bar ? bar->visibleCount() : 0);
    const QList<QAction*> actions = bar ? bar->actions() : QList<QAction*>();
    for (QAction* action : actions) {
        if (!bar->isActionVisible(action))
            continue;
        stream << qint32(actionButtonStyle(bar, action));
        stream << qint8(getGroupButtonType(bar, action));
        saveActionImpl(stream, action, context, 0);
    }
    return true;
}

QByteArray RibbonSerializer::saveQuickBar()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    saveQuickBar(buffer);
    return qCompress(buffer.data());
}

void RibbonSerializer::saveActionImpl(QDataStream& stream, QAction* action, SaveContext& context, int depth)
{
    const bool separator = action->isSeparator();
    stream << separator;
    if (separator)
        return;
    const QString id = getActionID(action);
    stream << id;
    if (id.isEmpty() || !qobject_cast<QWidgetAction*>(action))
        stream << action->text();
    QList<QAction*> subActions;
    // Menus filled at run time are not stored; nor are menus nested past what
    // the reader builds (a menu that holds its own action would never end),
    // nor menus past the entry budget.
    if (action->menu() && !action->property(dynamicMenuProperty).toBool() && depth < maxMenuDepth) {
        subActions = action->menu()->actions();
        if (subActions.size() > context.budget)
            subActions.clear();
        context.budget -= subActions.size();
    }
    stream << qint32(subActions.size());
    for (QAction* subAction : qAsConst(subActions))
        saveActionImpl(stream, subAction, context, depth + 1);
}

bool RibbonSerializer::restore(const QByteArray& data)
{
    if (data.isEmpty())
        return false;
    QByteArray raw = uncompressBounded(data);
    QBuffer buffer(&raw);
    buffer.open(QIODevice::ReadOnly);
    return restore(buffer);
}

bool RibbonSerializer::restore(QIODevice& device)
{
    if (!m_ribbon || !device.isReadable())
        return false;
    QDataStream stream(&device);
    qint32 version = 0;
    stream >> version;
    if (version > internalVersion)
        return false;

    ReadContext context;
    m_ribbon->setUpdatesEnabled(false);
    m_ribbon->clearPages();

    // Every loop also ends where the data does: counts from a damaged stream
    // must not drive us on past it.
    qint32 pageCount = 0;
    stream >> pageCount;
    for (qint32 p = 0; p < pageCount && hasMore(stream); ++p) {
        QString pageTitle;
        stream >> pageTitle;
        if (stream.status() != QDataStream::Ok || !context.take(stream))
            break;
        Qtitan::RibbonPage* page = m_ribbon->addPage(translate(pageTitle));
        qint32 groupCount = 0;
        stream >> groupCount;
        for (qint32 g = 0; g < groupCount && hasMore(stream); ++g) {
            QString groupTitle;
            stream >> groupTitle;
            // Icons of old streams: a refused one costs only itself, one whose
            // end cannot be found stops the reading.
            QIcon groupIcon;
            if (version < 5)
                IconStreamReader(stream).readIcon(&groupIcon);
            if (stream.status() != QDataStream::Ok || !context.take(stream))
                break;
            Qtitan::RibbonGroup* group = page->addGroup(groupIcon, translate(groupTitle));
            bool centering = false;
            bool reserved = false;
            stream >> centering >> reserved;
            group->setControlsCentering(centering);
            qint32 actionCount = 0;
            stream >> actionCount;
            for (qint32 a = 0; a < actionCount && hasMore(stream); ++a) {
                qint32 style = 0;
                qint8 type = 0;
                stream >> style >> type;
                QAction* action = loadActionImpl(stream, group, version, context, 0);
                if (!action)
                    continue;
                group->addAction(action);
                const bool popupWidget = action->property(popupWidgetProperty).toBool();
                if (!qobject_cast<QWidgetAction*>(action) || popupWidget) {
                    setActionButtonStyle(group, action, storedStyle(style));
                    if (!popupWidget && !action->isSeparator()) {
                        if (QToolButton* button = findActionButton(group, action))
                            setGroupButtonType(button, GroupButtonType(type));
                    }
                }
            }
        }
    }

    m_ribbon->setUpdatesEnabled(true);
    return true;
}

bool RibbonSerializer::restoreQuickBar(const QByteArray& data)
{
    if (data.isEmpty())
        return false;
    QByteArray raw = uncompressBounded(data);
    QBuffer buffer(&raw);
    buffer.open(QIODevice::ReadOnly);
    return restoreQuickBar(buffer);
}

bool RibbonSerializer::restoreQuickBar(QIODevice& device)
{
    if (!m_ribbon || !device.isReadable())
        return false;
    QDataStream stream(&device);
    qint32 version = 0;
    stream >> version;
    if (version > internalVersion)
        return false;

    Qtitan::RibbonQuickAccessBar* bar = m_ribbon->quickAccessBar();
    if (!bar)
        return false;
    bar->clear();
    bar->setVisible(false);

    ReadContext context;
    qint32 count = 0;
    stream >> count;
    for (qint32 i = 0; i < count && hasMore(stream); ++i) {
        qint32 style = 0;
        qint8 type = 0;
        // The style is not applied: quick access buttons keep the bar's own look.
        stream >> style >> type;
        QAction* action = loadActionImpl(stream, bar, version, context, 0);
        if (!action)
            continue;
        bar->addAction(action);
        bar->setVisible(true);
        const bool popupWidget = action->property(popupWidgetProperty).toBool();
        if (!qobject_cast<QWidgetAction*>(action) && !popupWidget && !action->isSeparator()) {
            if (QToolButton* button = findActionButton(bar, action))
                setGroupButtonType(button, GroupButtonType(type));
        }
    }
    return true;
}

bool RibbonSerializer::readActionRecord(QDataStream& stream, int version, bool buildIcons,
                                        ActionRecord& record) const
{
    stream >> record.separator;
    if (stream.status() != QDataStream::Ok || record.separator)
        return stream.status() == QDataStream::Ok;
    stream >> record.id;
    QIcon* icon = buildIcons ? &record.icon : nullptr;
    if (!record.id.isEmpty()) {
        record.hostAction = getAction(record.id);
        // A widget action with an identifier is stored without its text.
        if (!qobject_cast<QWidgetAction*>(record.hostAction)) {
            stream >> record.text;
            bool hasIcon = false;
            if (version >= 1 && version <= 4)
                stream >> hasIcon;
            if (hasIcon && stream.status() == QDataStream::Ok) {
                const IconStreamReader::Outcome outcome = IconStreamReader(stream).readIcon(icon);
                record.hostIconStored = outcome == IconStreamReader::Accepted || !record.icon.isNull();
            }
        }
    } else {
        stream >> record.text;
        if (version < 5 && stream.status() == QDataStream::Ok)
            IconStreamReader(stream).readIcon(icon);
    }
    stream >> record.subCount;
    return stream.status() == QDataStream::Ok;
}

QAction* RibbonSerializer::loadActionImpl(QDataStream& stream, QWidget* parent, int version,
                                          ReadContext& context, int depth)
{
    ActionRecord record;
    if (!readActionRecord(stream, version, true, record))
        return nullptr;
    if (record.separator) {
        if (!context.take(stream))
            return nullptr;
        auto* action = new QAction(parent);
        action->setSeparator(true);
        return action;
    }

    QAction* action = nullptr;
    if (!record.id.isEmpty()) {
        action = context.place(record.hostAction);
        if (action && record.hostIconStored)
            action->setIcon(record.icon);
    } else {
        if (!context.take(stream))
            return nullptr;
        action = new QAction(record.icon, translate(record.text), parent);
    }

    if (record.subCount < 1)
        return action;
    if (depth >= maxMenuDepth) {
        // Deeper menus are read over so that the stream stays in step, but not built.
        skipActionRecords(stream, record.subCount, version);
        return action;
    }
    if (!context.take(stream))
        return action;
    auto* menu = new QMenu(parent);
    for (qint32 i = 0; i < record.subCount && hasMore(stream); ++i) {
        QAction* subAction = loadActionImpl(stream, menu, version, context, depth + 1);
        if (!subAction)
            continue;
        menu->addAction(subAction);
        if (version >= 5 && action && i == 0 && !subAction->icon().isNull())
            action->setIcon(subAction->icon());
    }
    if (!action) {
        delete menu;
        return nullptr;
    }
    action->setMenu(menu);
    return action;
}

void RibbonSerializer::skipActionRecords(QDataStream& stream, qint64 count, int version) const
{
    // Iterative on purpose: the nesting of the skipped records is unbounded.
    for (qint64 pending = count; pending > 0 && hasMore(stream); --pending) {
        ActionRecord record;
        if (!readActionRecord(stream, version, false, record))
            return;
        pending += qMax(record.subCount, 0);
    }
}

} // namespace ui
