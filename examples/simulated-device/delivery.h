#pragma once

#include "replies.h"
#include "troubles.h"

#include <QtCore/QByteArray>
#include <QtNetwork/QTcpSocket>

namespace simulator {

/// Writes \a bytes to \a socket and closes it.
void deliver(QTcpSocket *socket, const QByteArray &bytes);

/// Writes \a reply to \a socket, with \a trouble.
void deliver(QTcpSocket *socket, const Reply &reply, Trouble trouble);

} // namespace simulator
