#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QString>

namespace client {

struct Credentials
{
    QString user;
    QString password;

    bool isEmpty() const { return user.isEmpty(); }
};

/// The digest of a WS-UsernameToken: Base64 of SHA-1 over the three. \a nonce is not encoded.
QByteArray tokenDigest(const QByteArray &nonce, const QByteArray &created, const QString &password);

/// The element Security with a UsernameToken whose password is a digest, for the Header of a request. \a deviceTime is
/// what the clock of the device shows now: a device refuses a token of another time.
QString securityHeader(const Credentials &credentials, const QDateTime &deviceTime);

} // namespace client
