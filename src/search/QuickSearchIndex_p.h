#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVector>

class QAction;

namespace ui {

/// The entries of a quick search box (proxy actions, in source order) and
/// their ranking against the typed words.
class QuickSearchIndex
{
public:
    /// Schedules every live proxy for deletion and forgets all entries.
    void clear();
    /// Appends a proxy whose text is a command path.
    void append(QAction* proxy);

    /// The live proxies whose path holds every word, best rank first and in
    /// source order within a rank. First, every live proxy takes its real
    /// action's enabled, checkable and checked state, matching or not. The
    /// path parts are those of each proxy's text as it is now.
    QList<QAction*> match(const QStringList& words);

private:
    // A proxy with its text split and folded once; read again whenever the
    // proxy's text is no longer the one split.
    struct Entry
    {
        QPointer<QAction> proxy;
        QString path;   // the proxy's text when last read
        QString folded; // case-folded unit by unit, when \c folds
        bool folds;     // false when the path holds surrogates
        int firstEnd;   // length of the top menu's title
        int lastStart;  // where the command's own name begins
    };

    static void readPath(Entry& entry, const QString& path);
    static void copyLiveState(QAction* proxy);

    static int rankFolded(const Entry& entry, const QStringList& words);
    static int rankCaseInsensitive(const Entry& entry, const QStringList& words);

    QVector<Entry> m_entries;
};

} // namespace ui
