#pragma once

// The store that keyvaluestorage_rewriter rewrites round after round: a
// generation number and a large payload that only that generation has, so
// that a file holding a mix of two rounds cannot pass for either.

#include <QByteArray>
#include <QString>

#include <cstring>

namespace rewriter {

inline QString generationKey()
{
    return QStringLiteral("generation");
}

inline QString payloadKey()
{
    return QStringLiteral("payload");
}

inline QByteArray payloadFor(int generation)
{
    const int size = 4 * 1024 * 1024;
    QByteArray payload(size, char('a' + generation % 26));
    const QByteArray mark = QByteArray::number(generation);
    for (int at = 0; at + mark.size() <= size; at += 64 * 1024)
        std::memcpy(payload.data() + at, mark.constData(), size_t(mark.size()));
    return payload;
}

} // namespace rewriter
