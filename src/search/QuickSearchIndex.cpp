#include "QuickSearchIndex_p.h"

#include <QAction>

namespace ui {

void QuickSearchIndex::clear()
{
    for (const QPointer<QAction>& entry : qAsConst(m_entries)) {
        if (entry)
            entry->deleteLater();
    }
    m_entries.clear();
}

void QuickSearchIndex::append(QAction* proxy)
{
    m_entries.append(proxy);
}

QList<QAction*> QuickSearchIndex::match(const QStringList& words)
{
    const QString separator = QStringLiteral(" %1 ").arg(QChar(0x2192));
    QList<QAction*> ranked[4];
    for (const QPointer<QAction>& entry : qAsConst(m_entries)) {
        QAction* proxy = entry.data();
        if (!proxy)
            continue;
        if (auto* real = qobject_cast<QAction*>(proxy->parent())) {
            proxy->setEnabled(real->isEnabled());
            // The registry makes an action checkable on its first refresh,
            // which may come after the entry was made.
            proxy->setCheckable(real->isCheckable());
            proxy->setChecked(real->isChecked());
        }
        const QString path = proxy->text();
        const QStringList parts = path.split(separator);
        int rank = 0;
        bool matched = true;
        for (const QString& word : words) {
            if (!path.contains(word, Qt::CaseInsensitive)) {
                matched = false;
                break;
            }
            if (rank < 3 && !parts.isEmpty()) {
                if (parts.last().startsWith(word, Qt::CaseInsensitive)) {
                    rank = 3;
                } else if (rank < 2) {
                    if (parts.last().contains(word, Qt::CaseInsensitive))
                        rank = 2;
                    else if (!parts.first().contains(word, Qt::CaseInsensitive))
                        rank = 1;
                }
            }
        }
        if (matched)
            ranked[rank].append(proxy);
    }
    return ranked[3] + ranked[2] + ranked[1] + ranked[0];
}

} // namespace ui
