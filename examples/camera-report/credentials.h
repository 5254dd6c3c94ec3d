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

/// What is in a WS-UsernameToken beside the user.
struct Token
{
    QByteArray digest;
    QByteArray nonce; ///< not encoded
    QByteArray created;
};

/// A token with a nonce of its own. \a deviceTime is what the clock of the device shows now: a device refuses a token
/// of another time.
Token freshToken(const Credentials &credentials, const QDateTime &deviceTime);

/// The element Security with \a token, for the Header of a request.
QString securityHeader(const Credentials &credentials, const Token &token);

} // namespace client
