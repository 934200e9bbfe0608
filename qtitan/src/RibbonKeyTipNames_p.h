#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace Qtitan {
namespace detail {

/// Chooses the key tips of one level (the tabs, or the controls of a page):
/// unique, and none the beginning of another, so that typing one is never
/// ambiguous. A tip set by the host comes first; then a single character of
/// the item's own (its mnemonic, the initials of its words, its other
/// letters); items left over get two characters, led by one no single tip uses.
struct RibbonKeyTipNames
{
    struct Request
    {
        QString fixed;      ///< the tip the host set; used if it fits
        QString candidates; ///< characters the item may take, the best first
    };

    /// The characters a text offers, the best first: its mnemonic, the
    /// initials of its words, its other letters and digits, upper-cased.
    static QString candidatesOf(const QString& text);
    static QStringList assign(const QVector<Request>& requests);
};

} // namespace detail
} // namespace Qtitan
