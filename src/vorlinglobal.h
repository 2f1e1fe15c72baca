#pragma once

#include <QtCore/qglobal.h>

#if defined(VORLIN_LIBRARY)
#  define VORLIN_EXPORT Q_DECL_EXPORT
#else
#  define VORLIN_EXPORT Q_DECL_IMPORT
#endif
