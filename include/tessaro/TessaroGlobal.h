#pragma once

#include <QtCore/qglobal.h>

/// Marks the classes and functions that the Tessaro shared library exports.
#if defined(TESSARO_LIBRARY)
#define TESSARO_EXPORT Q_DECL_EXPORT
#else
#define TESSARO_EXPORT Q_DECL_IMPORT
#endif
