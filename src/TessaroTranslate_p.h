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

constexpr bool sameText(const char* a, const char* b)
{
    while (*a && *a == *b) {
        ++a;
        ++b;
    }
    return *a == *b;
}

template <bool ContextIsThisFile>
struct TranslationContextCheck
{
    static_assert(ContextIsThisFile,
                  "TESSARO_TR: the context must be the bare name of the source file that holds the call");
};

} // namespace tessaro_detail

/// Translates a user-visible text in the context of the source file that
/// holds it. The context is written out as a literal so that lupdate (run with
/// -tr-function-alias translate+=TESSARO_TR) files the text where the running
/// code looks it up; the compiler checks that it names this very file.
#define TESSARO_TR(context, text)                                                                       \
    (static_cast<void>(::tessaro_detail::TranslationContextCheck<::tessaro_detail::sameText(            \
                           context, ::tessaro_detail::sourceFileName(__FILE__))>{}),                    \
     QCoreApplication::translate(context, text))
