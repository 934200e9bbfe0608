#pragma once

#include "TessaroGlobal.h"

#include <QList>
#include <QPointer>
#include <QStringList>

class QAction;

namespace ui {

/// The entries of a quick search box (proxy actions, in source order) and
/// their ranking against the typed words. Exported for the benchmark only.
class TESSARO_EXPORT QuickSearchIndex
{
public:
    /// Schedules every live proxy for deletion and forgets all entries.
    void clear();
    /// Appends a proxy whose text is a command path.
    void append(QAction* proxy);

    /// The live proxies whose path holds every word, best rank first and in
    /// source order within a rank. The real actions' enabled, checkable and
    /// checked states are copied onto the proxies first.
    QList<QAction*> match(const QStringList& words);

private:
    QList<QPointer<QAction>> m_entries;
};

} // namespace ui
