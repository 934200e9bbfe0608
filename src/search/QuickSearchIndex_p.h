#pragma once

#include <tessaro/TessaroGlobal.h>

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVector>

class QAction;

namespace ui {

/// The entries of a quick search box (proxy actions, in source order) and
/// their ranking against the typed words. Exported for the benchmark only.
class TESSARO_EXPORT QuickSearchIndex
{
public:
    /// Schedules every live proxy for deletion and forgets all entries.
    void clear();
    /// Appends a proxy whose text is a command path. The text is read once:
    /// proxies are the box's own and their texts never change.
    void append(QAction* proxy);

    /// The live proxies whose path holds every word, best rank first and in
    /// source order within a rank. The real actions' enabled, checkable and
    /// checked states are copied onto the proxies that are returned.
    QList<QAction*> match(const QStringList& words) const;

private:
    struct Entry
    {
        QPointer<QAction> proxy;
        QString path;   // as shown
        QString folded; // case-folded unit by unit, when \c folds
        bool folds;     // false when the path holds surrogates
        int firstEnd;   // length of the top menu's title
        int lastStart;  // where the command's own name begins
    };

    static int rankFolded(const Entry& entry, const QStringList& words);
    static int rankCaseInsensitive(const Entry& entry, const QStringList& words);

    QVector<Entry> m_entries;
};

} // namespace ui
