#pragma once

#include "httprequest.h"
#include "options.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QSet>

namespace simulator {

/// Lets only those requests pass that prove to come from the user.
class Guard
{
public:
    explicit Guard(const Options &options);

    /// Whether \a request may pass, at \a now by the clock of the device. A proof passes only once.
    bool allows(const HttpRequest &request, const QDateTime &now);

    /// The header lines that ask for the proof; empty if a SOAP fault does.
    QByteArray challenge() const;

private:
    bool allowsToken(const HttpRequest &request, const QDateTime &now);
    bool allowsDigest(const HttpRequest &request);
    bool isFresh(const QByteArray &proof);

    Authentication m_kind;
    QByteArray m_user;
    QByteArray m_password;
    QByteArray m_nonce; ///< of the challenge
    QSet<QByteArray> m_seen;
};

} // namespace simulator
