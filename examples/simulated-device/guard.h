#pragma once

#include "httprequest.h"
#include "nonces.h"
#include "options.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QSet>

namespace simulator {

/// Lets only those requests pass that prove to come from the user.
class Guard
{
public:
    enum class Verdict {
        Allowed,
        Refused,
        Stale, ///< the proof is right, but made of a nonce that is no longer good
    };

    explicit Guard(const Options &options);

    /// Whether \a request may pass, at \a now by the clock of the device. A proof passes only once.
    Verdict judge(const HttpRequest &request, const QDateTime &now);

    /// The header lines that ask for the proof, after \a verdict; empty if a SOAP fault does.
    QByteArray challenge(Verdict verdict);

private:
    bool allowsToken(const HttpRequest &request, const QDateTime &now);
    Verdict judgeDigest(const HttpRequest &request);

    Authentication m_kind;
    QByteArray m_user;
    QByteArray m_password;
    Nonces m_nonces;               ///< of challenges
    QSet<QByteArray> m_seenTokens; ///< their nonces
};

} // namespace simulator
