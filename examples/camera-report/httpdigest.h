#pragma once

#include "credentials.h"

#include <QtCore/QByteArray>
#include <QtCore/QCryptographicHash>

#include <optional>

namespace client {

/// What a device asks for with the Digest scheme of HTTP (RFC 7616).
struct DigestChallenge
{
    QByteArray realm;
    QByteArray nonce;
    QByteArray opaque;
    QByteArray algorithm; ///< as it was named; empty if it was not
    QCryptographicHash::Algorithm hash = QCryptographicHash::Md5;
    bool qop = false;   ///< whether "auth" is wanted; else the older form without a nonce of the client
    bool stale = false; ///< whether the proof before was right but for its nonce
};

/// The first challenge in the value \a header of WWW-Authenticate that can be answered: Digest with MD5 or SHA-256.
///
/// Other schemes never are. Basic would hand the password itself to whoever asks for it.
std::optional<DigestChallenge> digestChallenge(const QByteArray &header);

/// The request that an answer to a challenge is for.
struct DigestUse
{
    QByteArray method;
    QByteArray uri;         ///< path and query
    QByteArray clientNonce; ///< fresh for each request
    unsigned int count = 1; ///< how often the challenge has been used, this time included
};

/// The value of Authorization that answers \a challenge.
QByteArray digestAuthorization(const DigestChallenge &challenge, const Credentials &credentials, const DigestUse &use);

} // namespace client
