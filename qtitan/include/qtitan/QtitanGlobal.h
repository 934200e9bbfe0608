#pragma once

#include <QtCore/qglobal.h>

/// Marks the classes that the Qtitan ribbon library exports.
#if defined(QTITAN_LIBRARY)
#define QTITAN_EXPORT Q_DECL_EXPORT
#else
#define QTITAN_EXPORT Q_DECL_IMPORT
#endif
