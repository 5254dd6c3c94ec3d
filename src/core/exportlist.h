#pragma once

#include <vorn/onvif/export.h>

#include <QtCore/QList>

// Instantiates and exports all of QList<Element>, which the header of Element declares with
// VORNSDK_ONVIF_DECLARE_LIST.
#if defined(Q_OS_WIN)
#define VORNSDK_ONVIF_DEFINE_LIST(Element)                                                                             \
    QT_BEGIN_NAMESPACE                                                                                                 \
    template class VORNSDK_ONVIF_EXPORT QList<Element>;                                                                \
    QT_END_NAMESPACE
#else
#define VORNSDK_ONVIF_DEFINE_LIST(Element)                                                                             \
    QT_BEGIN_NAMESPACE                                                                                                 \
    template class QList<Element>;                                                                                     \
    QT_END_NAMESPACE
#endif
