#include "httpdigest.h"

#include "support/httpparameters.h"

#include <QtCore/QHash>
#include <QtCore/QRegularExpression>

namespace client {
namespace {

using Parameters = QHash<QString, QByteArray>;

std::optional<DigestChallenge> challengeOf(const Parameters &parameters)
{
    DigestChallenge challenge{parameters["realm"], parameters["nonce"], parameters["opaque"], parameters["algorithm"]};
    const QByteArray algorithm = challenge.algorithm.toUpper();
    if (algorithm == "SHA-256")
        challenge.hash = QCryptographicHash::Sha256;
    else if (!algorithm.isEmpty() && algorithm != "MD5")
        return std::nullopt;
    challenge.stale = parameters["stale"].toLower() == "true";
    challenge.qop = parameters.contains("qop");
    for (const QByteArray &quality : parameters["qop"].split(',')) {
        if (!challenge.qop || quality.trimmed().toLower() == "auth")
            return challenge;
    }
    return std::nullopt; // auth-int, for example, or a form that is not known
}

QByteArray quoted(const QByteArray &value)
{
    return '"' + value + '"';
}

} // namespace

std::optional<DigestChallenge> digestChallenge(const QByteArray &header)
{
    static const QRegularExpression pattern("\\bDigest\\s((?:" + QString(example::httpParameterPattern) + ")+)",
                                            QRegularExpression::CaseInsensitiveOption);
    for (const QRegularExpressionMatch &match : pattern.globalMatch(QString::fromLatin1(header))) {
        if (auto challenge = challengeOf(example::httpParameters(match.captured(1))))
            return challenge;
    }
    return std::nullopt;
}

QByteArray digestAuthorization(const DigestChallenge &challenge, const Credentials &credentials, const DigestUse &use)
{
    const auto hash = [&](const QByteArray &text) { return QCryptographicHash::hash(text, challenge.hash).toHex(); };
    const QByteArray user = credentials.user.toUtf8();
    const QByteArray count = QByteArray::number(use.count, 16).rightJustified(8, '0');
    const QByteArray secret = hash(user + ':' + challenge.realm + ':' + credentials.password.toUtf8());
    const QByteArray request = hash(use.method + ':' + use.uri);
    const QByteArray freshness = challenge.qop ? ':' + count + ':' + use.clientNonce + ":auth:" : QByteArray(":");

    QByteArray value = "Digest username=" + example::httpQuoted(user) + ", realm=" + quoted(challenge.realm)
                       + ", nonce=" + quoted(challenge.nonce) + ", uri=" + quoted(use.uri)
                       + ", response=" + quoted(hash(secret + ':' + challenge.nonce + freshness + request));
    if (!challenge.algorithm.isEmpty())
        value += ", algorithm=" + challenge.algorithm;
    if (!challenge.opaque.isEmpty())
        value += ", opaque=" + quoted(challenge.opaque);
    if (challenge.qop)
        value += ", qop=auth, nc=" + count + ", cnonce=" + quoted(use.clientNonce);
    return value;
}

} // namespace client
