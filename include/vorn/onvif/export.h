#pragma once

/// \file
/// Marks what libvornsdk-onvif exports. A static build defines VORNSDK_ONVIF_STATIC for its users.

#include <QtCore/qglobal.h>

#if defined(VORNSDK_ONVIF_STATIC)
#define VORNSDK_ONVIF_EXPORT
#elif defined(VORNSDK_ONVIF_BUILD)
#define VORNSDK_ONVIF_EXPORT Q_DECL_EXPORT
#else
#define VORNSDK_ONVIF_EXPORT Q_DECL_IMPORT
#endif

// The library holds the members of QList for its records, all that are no templates themselves, for programs that look
// them up. Programs that are compiled against these headers do not depend on that: their Qt may be a newer one, with a
// richer QList.
#if defined(VORNSDK_ONVIF_BUILD) && !defined(Q_OS_WIN)
#define VORNSDK_ONVIF_DECLARE_LIST(Element)                                                                            \
    QT_BEGIN_NAMESPACE                                                                                                 \
    extern template class VORNSDK_ONVIF_EXPORT QList<Element>;                                                         \
    QT_END_NAMESPACE
#else
#define VORNSDK_ONVIF_DECLARE_LIST(Element)
#endif
