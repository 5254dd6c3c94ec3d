#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace simulator {

/// What can go wrong with a reply.
enum class Trouble {
    None,
    Silent,       ///< nothing is ever answered
    Slow,         ///< one byte after the other, with pauses
    Dropped,      ///< the connection ends without a byte
    Truncated,    ///< the connection ends in the middle of the reply
    Endless,      ///< the reply never ends
    EndlessHead,  ///< a header line of the reply never ends
    Garbage,      ///< the answer is not HTTP
    Empty,        ///< the reply has no body
    Json,         ///< the reply is JSON
    Redirect,     ///< the reply sends on to another host
    NotFound,     ///< an HTML page with HTTP status 404
    Unavailable,  ///< an HTML page that is not well-formed, with HTTP status 503
    NotSupported, ///< a SOAP fault: the action is not supported
};

/// The trouble by action; that for an empty action counts for all that have none of their own.
using Troubles = QHash<QString, Trouble>;

/// The names by which a user asks for troubles.
QStringList troubleNames();

/// The trouble of that name; None if there is none.
Trouble troubleByName(const QString &name);

/// The trouble that is meant for \a action.
Trouble troubleFor(const Troubles &troubles, const QString &action);

} // namespace simulator
