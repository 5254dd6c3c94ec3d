#pragma once

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

/// The reply to \a action of a device that is reached at \a address, a host with a port, at \a now by its clock.
Reply replyTo(const QString &action, const Options &options, const QByteArray &address, const QDateTime &now);

/// The answer to a probe with the identity \a messageId.
QByteArray probeMatch(const Options &options, const QByteArray &address, const QByteArray &messageId);

/// The fault of a request that lacks a valid proof of who sends it.
Reply notAuthorized();

/// The fault of a request that the device does not know.
Reply actionNotSupported();

} // namespace simulator
