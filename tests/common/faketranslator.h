#pragma once

// A translator for the tests of texts that must be looked up in the right
// context: install it, build the widget, remove it, then compare the texts.

#include <QHash>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace testcommon {

class FakeTranslator : public QTranslator
{
public:
    enum Mode {
        MarkEveryText,  // every lookup answers "[context]source"
        OnlyAddedTexts  // lookups answer what add() gave; other texts stay as they are
    };

    explicit FakeTranslator(Mode mode = MarkEveryText)
        : m_mode(mode)
    {
    }

    // The translation of @p source in @p context, looked up without a disambiguation.
    void add(const QString& context, const QString& source, const QString& translation)
    {
        m_texts.insert(key(context, source), translation);
    }

    // The contexts looked up so far, in order, repeats included.
    QStringList contexts() const { return m_contexts; }

    QString translate(const char* context, const char* sourceText, const char* disambiguation = nullptr,
                      int n = -1) const override
    {
        Q_UNUSED(n)
        const QString contextName = QString::fromUtf8(context);
        const QString source = QString::fromUtf8(sourceText);
        m_contexts.append(contextName);
        if (m_mode == MarkEveryText)
            return QLatin1Char('[') + contextName + QLatin1Char(']') + source;
        if (disambiguation != nullptr)
            return QString();
        return m_texts.value(key(contextName, source));
    }

    bool isEmpty() const override { return false; }

private:
    static QString key(const QString& context, const QString& source) { return context + QChar(0) + source; }

    Mode m_mode;
    QHash<QString, QString> m_texts;
    mutable QStringList m_contexts;
};

} // namespace testcommon
