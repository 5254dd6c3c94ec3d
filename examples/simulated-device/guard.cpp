#include "guard.h"

#include "support/httpparameters.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QCryptographicHash>

#include <chrono>
#include <cstdlib>

namespace simulator {
namespace {

constexpr qint64 toleratedSeconds = 30;
const QByteArray realm = "simulated device";

QByteArray md5(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
}

} // namespace

Guard::Guard(const Options &options)
    : m_kind(options.authentication)
    , m_user(options.user.toUtf8())
    , m_password(options.password.toUtf8())
    , m_nonces(options.nonceUses, std::chrono::seconds(options.nonceLife))
{
}

Guard::Verdict Guard::judge(const HttpRequest &request, const QDateTime &now)
{
    bool isAllowed = true;
    switch (m_kind) {
    case Authentication::None:
        break;
    case Authentication::Token:
        isAllowed = allowsToken(request, now);
        break;
    case Authentication::Http:
        return judgeDigest(request);
    case Authentication::Basic:
        isAllowed = request.header("Authorization") == "Basic " + (m_user + ':' + m_password).toBase64();
        break;
    }
    return isAllowed ? Verdict::Allowed : Verdict::Refused;
}

QByteArray Guard::challenge(Verdict verdict)
{
    QByteArray basic = "WWW-Authenticate: Basic realm=\"" + realm + "\"\r\n";
    if (m_kind == Authentication::Basic)
        return basic;
    if (m_kind != Authentication::Http)
        return {};
    return basic + "WWW-Authenticate: Digest realm=\"" + realm + R"(", qop="auth", algorithm=MD5, nonce=")"
           + m_nonces.issue() + '"' + (verdict == Verdict::Stale ? ", stale=true" : "") + "\r\n";
}

bool Guard::allowsToken(const HttpRequest &request, const QDateTime &now)
{
    vorn::XmlResponse token(request.body, "/Envelope/Header/Security/UsernameToken");
    const QByteArray nonce = QByteArray::fromBase64(token.getText("/Nonce").toLatin1());
    const QByteArray created = token.getText("/Created").toLatin1();
    const QDateTime time = QDateTime::fromString(QString::fromLatin1(created), Qt::ISODateWithMs);
    const QByteArray digest = QCryptographicHash::hash(nonce + created + m_password, QCryptographicHash::Sha1);
    // A digest over less is one over the password alone, which is good for ever.
    if (nonce.isEmpty() || !time.isValid() || std::abs(time.secsTo(now)) > toleratedSeconds
        || token.getText("/Username").toUtf8() != m_user || token.getText("/Password").toLatin1() != digest.toBase64())
        return false;
    const bool isFresh = !m_seenTokens.contains(nonce);
    m_seenTokens.insert(nonce);
    return isFresh;
}

Guard::Verdict Guard::judgeDigest(const HttpRequest &request)
{
    const QByteArray header = request.header("Authorization");
    if (!header.toLower().startsWith("digest "))
        return Verdict::Refused;
    const auto values = example::httpParameters(QString::fromLatin1(header.mid(7)));
    const QByteArray nonce = values["nonce"];
    const QByteArray count = values["nc"];
    const QByteArray expected = md5(md5(m_user + ':' + realm + ':' + m_password) + ':' + nonce + ':' + count + ':'
                                    + values["cnonce"] + ":auth:" + md5("POST:" + values["uri"]));
    if (example::httpQuoted(m_user) != '"' + values["username"] + '"' || values["uri"] != request.target
        || values["response"] != expected)
        return Verdict::Refused;
    switch (m_nonces.use(nonce, count)) {
    case Nonces::Verdict::Good:
        return Verdict::Allowed;
    case Nonces::Verdict::Stale:
        return Verdict::Stale;
    case Nonces::Verdict::Replayed:
        break;
    }
    return Verdict::Refused;
}

} // namespace simulator
