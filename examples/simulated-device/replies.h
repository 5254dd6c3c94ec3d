#pragma once

#include "asked.h"
#include "options.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QString>

namespace simulator {

/// A reply, before trouble may come over it.
struct Reply
{
    int status = 200;
    QByteArray body;
};

/// The reply to what is \a asked of a device that is reached at \a origin, such as "http://127.0.0.1:8080", at \a now
/// by its clock.
Reply replyTo(const Asked &asked, const Options &options, const QByteArray &origin, const QDateTime &now);

/// The answer to a probe with the identity \a messageId.
QByteArray probeMatch(const Options &options, const QByteArray &origin, const QString &messageId);

/// The fault of a request that lacks a valid proof of who sends it.
Reply notAuthorized();

/// The fault of a request that the device does not know.
Reply actionNotSupported();

} // namespace simulator
