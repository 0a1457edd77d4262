#pragma once

#include <QtCore/qglobal.h>

#if defined(HOSTKIT_LIBRARY)
#define HOSTKIT_EXPORT Q_DECL_EXPORT
#else
#define HOSTKIT_EXPORT Q_DECL_IMPORT
#endif
