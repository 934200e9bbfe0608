#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QByteArray>
#include <QString>

class QAction;
class QDataStream;
class QIODevice;
class QWidget;

namespace ui {

class RibbonBar;

/// Writes the user's ribbon layout (pages, groups, the actions of each group
/// with their button style, group button type, drop-down menus and
/// separators) and, separately, the quick access bar to streams, and
/// rebuilds them. Host actions are stored by identifier: derive from the
/// serializer and override getActionID() and getAction(). Actions without an
/// identifier are stored by their text and come back as new actions.
///
/// The byte-array forms compress with qCompress(). Restoring tolerates
/// damaged input: reading stops where the data ends, menus nested deeper
/// than maxMenuDepth levels are read over without being built, at most
/// maxRestoredItems objects are created, and an array
/// that claims to uncompress to more than maxUncompressedSize bytes is
/// treated as one that does not uncompress. Icons of old streams come back
/// when they are pixmaps (PNG, at most 32,768 pixels a side and 16 M pixels),
/// plain theme names or compiled-in resources; any other icon is left out and
/// costs nothing else, unless its length cannot be known (an icon engine of
/// unknown layout), which ends the reading there.
///
/// @code
/// class LayoutSerializer : public ui::RibbonSerializer
/// {
/// public:
///     LayoutSerializer(ui::RibbonBar* ribbon, ui::CommandsRegistry* commands)
///         : ui::RibbonSerializer(ribbon), m_commands(commands) {}
/// protected:
///     QString getActionID(QAction* action) override
///     {
///         const int id = action->data().toInt();
///         return id > 0 ? QString::number(id) : QString();   // empty: stored by its text
///     }
///     QAction* getAction(const QString& id) const override { return m_commands->getCommandAction(id.toInt()); }
/// private:
///     ui::CommandsRegistry* m_commands;
/// };
///
/// LayoutSerializer serializer(ribbon, commands);
/// serializer.restore(settings.value(QStringLiteral("ribbon")).toByteArray());   // on start
/// settings.setValue(QStringLiteral("ribbon"), serializer.save());              // on exit
/// @endcode
class TESSARO_EXPORT RibbonSerializer
{
public:
    /// The format version written, and the highest one accepted.
    static const int internalVersion = 5;
    /// Drop-down menus below this nesting level are skipped on reading and
    /// not written on saving.
    static const int maxMenuDepth = 64;
    /// The largest uncompressed size a stored array may claim.
    static const int maxUncompressedSize = 64 * 1024 * 1024;
    /// The most pages, groups, actions and menus one restore creates; a
    /// stream that asks for more is read as if it ended there.
    static const int maxRestoredItems = 65536;
    /// The most places one restore puts a single host action in (groups,
    /// menus, the quick access bar); further records of it are read as if
    /// its identifier were unknown. Every place is notified of each change of
    /// the action, so unbounded repeats would make restoring quadratic.
    static const int maxActionPlacements = 32;
    /// The most drop-down menu entries one save writes (menus that share
    /// their actions could otherwise unfold without end); further menus are
    /// written empty.
    static const int maxSavedMenuEntries = 16384;

    /// A serializer of @p ribbon (not owned).
    explicit RibbonSerializer(RibbonBar* ribbon);
    /// A serializer of the same ribbon as @p other.
    RibbonSerializer(const RibbonSerializer& other);
    /// Makes this a serializer of the same ribbon as @p other.
    RibbonSerializer& operator=(const RibbonSerializer& other);
    virtual ~RibbonSerializer();

    /// Writes the ribbon layout to @p device; false when it is not writable.
    bool save(QIODevice& device);
    /// The ribbon layout, compressed.
    QByteArray save();
    /// Rebuilds the ribbon layout from @p device: false (nothing changed)
    /// when it is not readable or holds a newer version.
    bool restore(QIODevice& device);
    /// Rebuilds the ribbon layout from a compressed array; false for an empty one.
    bool restore(const QByteArray& data);

    /// Writes the visible actions of the quick access bar to @p device.
    bool saveQuickBar(QIODevice& device);
    /// The quick access bar, compressed.
    QByteArray saveQuickBar();
    /// Rebuilds the quick access bar from @p device.
    bool restoreQuickBar(QIODevice& device);
    /// Rebuilds the quick access bar from a compressed array; false for an empty one.
    bool restoreQuickBar(const QByteArray& data);

protected:
    /// The identifier under which @p action is stored; empty (the base) stores
    /// the action by its text.
    virtual QString getActionID(QAction* action);
    /// The host's action for @p id, or null (the base) when unknown.
    virtual QAction* getAction(const QString& id) const;

private:
    struct SaveContext;
    void saveActionImpl(QDataStream& stream, QAction* action, SaveContext& context, int depth);
    struct ReadContext;
    struct ActionRecord;
    bool readActionRecord(QDataStream& stream, int version, bool buildIcons, ActionRecord& record) const;
    QAction* loadActionImpl(QDataStream& stream, QWidget* parent, int version, ReadContext& context, int depth);
    void skipActionRecords(QDataStream& stream, qint64 count, int version) const;
    QString translate(const QString& text) const;

    RibbonBar* m_ribbon;
};

} // namespace ui
