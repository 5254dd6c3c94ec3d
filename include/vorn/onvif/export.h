#pragma once

/// \file
/// Marks what libvornsdk-onvif exports. A static build defines VORNSDK_ONVIF_STATIC for its users.

#include <QtCore/qcompilerdetection.h>

#if defined(VORNSDK_ONVIF_STATIC)
#define VORNSDK_ONVIF_EXPORT
#elif defined(VORNSDK_ONVIF_BUILD)
#define VORNSDK_ONVIF_EXPORT Q_DECL_EXPORT
#else
#define VORNSDK_ONVIF_EXPORT Q_DECL_IMPORT
#endif
