#include "QuickSearchIndex_p.h"

#include <QAction>

namespace ui {

namespace {

const QChar pathArrow(0x2192);

// Folding each UTF-16 unit on its own gives the comparisons of
// Qt::CaseInsensitive exactly, except for surrogate pairs, which fold as a
// whole; texts holding them take the slow road.
bool foldUnits(const QString& text, QString* folded)
{
    folded->resize(text.size());
    QChar* out = folded->data();
    for (const QChar c : text) {
        if (c.isSurrogate())
            return false;
        *out++ = c.toCaseFolded();
    }
    return true;
}

} // namespace

void QuickSearchIndex::clear()
{
    for (const Entry& entry : qAsConst(m_entries)) {
        if (entry.proxy)
            entry.proxy->deleteLater();
    }
    m_entries.clear();
}

void QuickSearchIndex::append(QAction* proxy)
{
    Entry entry;
    entry.proxy = proxy;
    readPath(entry, proxy->text());
    m_entries.append(entry);
}

void QuickSearchIndex::readPath(Entry& entry, const QString& path)
{
    entry.path = path;
    // The parts are those of a left-to-right split at " → ", as the ranking defines them.
    const QStringList parts = path.split(QStringLiteral(" %1 ").arg(pathArrow));
    entry.firstEnd = parts.first().size();
    entry.lastStart = path.size() - parts.last().size();
    entry.folds = foldUnits(path, &entry.folded);
}

// The popup shows the commands' live state, and the registry makes an action
// checkable only on its first refresh, which may come after the entry was made.
void QuickSearchIndex::copyLiveState(QAction* proxy)
{
    auto* real = qobject_cast<QAction*>(proxy->parent());
    if (!real)
        return;
    proxy->setEnabled(real->isEnabled());
    proxy->setCheckable(real->isCheckable());
    proxy->setChecked(real->isChecked());
}

// Ranks of a surviving entry: 3 when the command's name starts with a word,
// 2 when it holds one, 1 when a word is found only below the top menu's
// title, 0 otherwise; a later word never lowers the rank. -1: some word is
// missing.
int QuickSearchIndex::rankFolded(const Entry& entry, const QStringList& words)
{
    const QStringView path(entry.folded);
    const QStringView first = path.left(entry.firstEnd);
    const QStringView last = path.mid(entry.lastStart);
    int rank = 0;
    for (const QString& word : words) {
        if (!path.contains(word))
            return -1;
        if (rank < 3) {
            if (last.startsWith(word)) {
                rank = 3;
            } else if (rank < 2) {
                if (last.contains(word))
                    rank = 2;
                else if (!first.contains(word))
                    rank = 1;
            }
        }
    }
    return rank;
}

int QuickSearchIndex::rankCaseInsensitive(const Entry& entry, const QStringList& words)
{
    const QStringView path(entry.path);
    const QStringView first = path.left(entry.firstEnd);
    const QStringView last = path.mid(entry.lastStart);
    int rank = 0;
    for (const QString& word : words) {
        if (!path.contains(word, Qt::CaseInsensitive))
            return -1;
        if (rank < 3) {
            if (last.startsWith(word, Qt::CaseInsensitive)) {
                rank = 3;
            } else if (rank < 2) {
                if (last.contains(word, Qt::CaseInsensitive))
                    rank = 2;
                else if (!first.contains(word, Qt::CaseInsensitive))
                    rank = 1;
            }
        }
    }
    return rank;
}

QList<QAction*> QuickSearchIndex::match(const QStringList& words)
{
    QStringList foldedWords;
    bool foldedQuery = true;
    for (const QString& word : words) {
        QString folded;
        foldedQuery = foldedQuery && foldUnits(word, &folded);
        foldedWords.append(folded);
    }

    QVector<QAction*> ranked[4];
    for (Entry& entry : m_entries) {
        QAction* proxy = entry.proxy.data();
        if (!proxy)
            continue;
        copyLiveState(proxy);
        const QString path = proxy->text();
        if (path != entry.path)
            readPath(entry, path);
        const int rank = foldedQuery && entry.folds ? rankFolded(entry, foldedWords)
                                                    : rankCaseInsensitive(entry, words);
        if (rank >= 0)
            ranked[rank].append(proxy);
    }

    QList<QAction*> results;
    results.reserve(ranked[0].size() + ranked[1].size() + ranked[2].size() + ranked[3].size());
    for (int rank = 3; rank >= 0; --rank) {
        for (QAction* proxy : qAsConst(ranked[rank]))
            results.append(proxy);
    }
    return results;
}

} // namespace ui
