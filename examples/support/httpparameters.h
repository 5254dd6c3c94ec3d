#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>

namespace example {

/// The pattern of one parameter in a header line of HTTP's authentication: name="value" or name=value.
extern const char *const httpParameterPattern;

/// The parameters in \a list, whose characters stand for a byte each, by their names in lower case. Values that were
/// quoted are without their quotation marks, but escapes in them stay.
QHash<QString, QByteArray> httpParameters(const QString &list);

/// \a value as it stands between quotation marks.
QByteArray httpQuoted(const QByteArray &value);

} // namespace example
