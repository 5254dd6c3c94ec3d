#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QString>

namespace simulator {

// What is changed in replies that are laid down. Their encoding may be any that has ASCII in it.

/// Makes each address of HTTP in the elements XAddr and XAddrs of \a reply one at \a origin, such as
/// "http://127.0.0.1:8080".
QByteArray withAddressesAt(const QByteArray &reply, const QByteArray &origin);

/// Makes \a value, whatever it is, the text of each element \a name in \a reply.
QByteArray withText(const QByteArray &reply, const char *name, const QString &value);

/// Makes the time in \a reply to GetSystemDateAndTime \a now. It no longer tells the time on the wall.
QByteArray withTime(const QByteArray &reply, const QDateTime &now);

/// \a text as it stands in a document of any encoding that has ASCII in it.
QByteArray escaped(const QString &text);

/// What is inside of the element UTCDateTime at \a now. \a prefix ends with a colon, or is empty.
QByteArray timeElements(const QDateTime &now, const QByteArray &prefix);

} // namespace simulator
