#pragma once

#include <QCoreApplication>

namespace tessaro_detail {

// The bare name of a source file: its translations are keyed by it.
constexpr const char* sourceFileName(const char* path)
{
    const char* name = path;
    for (const char* p = path; *p; ++p) {
        if (*p == '/' || *p == '\\')
            name = p + 1;
    }
    return name;
}

} // namespace tessaro_detail

/// Translates a user-visible text in the context of the source file that holds it.
#define TESSARO_TR(text) \
    QCoreApplication::translate(::tessaro_detail::sourceFileName(__FILE__), text)
