#pragma once

/// \file
/// Marks what libvornsdk-util exports. A static build defines VORNSDK_UTIL_STATIC for its users.

#include <QtCore/qcompilerdetection.h>

#if defined(VORNSDK_UTIL_STATIC)
#define VORNSDK_UTIL_EXPORT
#elif defined(VORNSDK_UTIL_BUILD)
#define VORNSDK_UTIL_EXPORT Q_DECL_EXPORT
#else
#define VORNSDK_UTIL_EXPORT Q_DECL_IMPORT
#endif
