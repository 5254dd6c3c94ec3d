#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace bench {

/// Reads \a reply into the types that gSOAP generated from media.wsdl, and destroys them. Returns the number of
/// profiles; nothing if the binding refuses the reply.
std::optional<qsizetype> readGsoap(const QByteArray &reply);

} // namespace bench
