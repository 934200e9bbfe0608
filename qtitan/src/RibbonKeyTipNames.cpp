#include "RibbonKeyTipNames_p.h"

namespace Qtitan {
namespace detail {

namespace {

const QString Fallback = QStringLiteral("ZYXWVUTSRQPONMLKJIHGFEDCBA0123456789");

bool usable(QChar c)
{
    return c.isLetterOrNumber();
}

void append(QString& chars, QChar c)
{
    if (usable(c) && !chars.contains(c.toUpper()))
        chars += c.toUpper();
}

// A tip fits while no chosen one equals it or begins with it, nor it with one.
bool fits(const QStringList& chosen, const QString& tip)
{
    for (const QString& other : chosen) {
        if (!other.isEmpty() && (other.startsWith(tip) || tip.startsWith(other)))
            return false;
    }
    return true;
}

} // namespace

QString RibbonKeyTipNames::candidatesOf(const QString& text)
{
    QString chars;
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&')) {
            if (text.at(i + 1) != QLatin1Char('&'))
                append(chars, text.at(i + 1));
            ++i;
        }
    }
    bool wordStart = true;
    for (QChar c : text) {
        if (wordStart && usable(c))
            append(chars, c);
        wordStart = !usable(c) && c != QLatin1Char('&');
    }
    for (QChar c : text)
        append(chars, c);
    return chars;
}

QStringList RibbonKeyTipNames::assign(const QVector<Request>& requests)
{
    QStringList tips;
    for (int i = 0; i < requests.size(); ++i)
        tips.append(QString());
    for (int i = 0; i < requests.size(); ++i) {
        const QString fixed = requests.at(i).fixed.trimmed().toUpper();
        if (!fixed.isEmpty() && fits(tips, fixed))
            tips[i] = fixed;
    }
    for (int i = 0; i < requests.size(); ++i) {
        for (QChar c : requests.at(i).candidates) {
            if (!tips.at(i).isEmpty())
                break;
            if (fits(tips, QString(c)))
                tips[i] = QString(c);
        }
    }
    for (int i = 0; i < requests.size(); ++i) {
        const QString own = requests.at(i).candidates;
        const QString leads = own + Fallback;
        const QString seconds = own + Fallback;
        for (int l = 0; l < leads.size() && tips.at(i).isEmpty(); ++l) {
            for (int s = 0; s < seconds.size() && tips.at(i).isEmpty(); ++s) {
                const QString tip = QString(leads.at(l)) + seconds.at(s);
                if (fits(tips, tip))
                    tips[i] = tip;
            }
        }
    }
    return tips;
}

} // namespace detail
} // namespace Qtitan
