#include "guard.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QUuid>

namespace simulator {
namespace {

constexpr qint64 toleratedSeconds = 30;
const QByteArray realm = "simulated device";

QByteArray md5(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
}

/// The value of \a name in the value of the header line Authorization.
QByteArray parameter(const QByteArray &authorization, const QByteArray &name)
{
    const QByteArray list = ',' + authorization.mid(authorization.indexOf(' ') + 1).replace(", ", ",");
    const qsizetype start = list.indexOf(',' + name + '=');
    if (start < 0)
        return {};
    const qsizetype valueStart = start + name.size() + 2;
    const bool isQuoted = list.mid(valueStart, 1) == "\"";
    const qsizetype end = list.indexOf(isQuoted ? '"' : ',', valueStart + 1);
    return list.mid(valueStart, end < 0 ? -1 : end - valueStart).replace('"', "");
}

} // namespace

Guard::Guard(const Options &options)
    : m_kind(options.authentication)
    , m_user(options.user.toUtf8())
    , m_password(options.password.toUtf8())
    , m_nonce(QUuid::createUuid().toByteArray(QUuid::Id128))
{
}

bool Guard::allows(const HttpRequest &request, const QDateTime &now)
{
    switch (m_kind) {
    case Authentication::None:
        return true;
    case Authentication::Token:
        return allowsToken(request, now);
    case Authentication::Http:
        return allowsDigest(request);
    case Authentication::Basic:
        return request.header("Authorization") == "Basic " + (m_user + ':' + m_password).toBase64();
    }
    return false;
}

QByteArray Guard::challenge() const
{
    QByteArray basic = "WWW-Authenticate: Basic realm=\"" + realm + "\"\r\n";
    if (m_kind == Authentication::Basic)
        return basic;
    if (m_kind != Authentication::Http)
        return {};
    return basic + "WWW-Authenticate: Digest realm=\"" + realm + R"(", qop="auth", algorithm=MD5, nonce=")" + m_nonce
           + "\"\r\n";
}

bool Guard::allowsToken(const HttpRequest &request, const QDateTime &now)
{
    vorn::XmlResponse token(request.body, "/Envelope/Header/Security/UsernameToken");
    const QByteArray nonce = QByteArray::fromBase64(token.getText("/Nonce").toLatin1());
    const QByteArray created = token.getText("/Created").toLatin1();
    const QDateTime time = QDateTime::fromString(QString::fromLatin1(created), Qt::ISODateWithMs);
    const QByteArray digest = QCryptographicHash::hash(nonce + created + m_password, QCryptographicHash::Sha1);
    return token.getText("/Username").toUtf8() == m_user && token.getText("/Password").toLatin1() == digest.toBase64()
           && time.isValid() && std::abs(time.secsTo(now)) <= toleratedSeconds && isFresh(nonce);
}

bool Guard::allowsDigest(const HttpRequest &request)
{
    const QByteArray value = request.header("Authorization");
    const QByteArray count = parameter(value, "nc");
    const QByteArray clientNonce = parameter(value, "cnonce");
    const QByteArray expected = md5(md5(m_user + ':' + realm + ':' + m_password) + ':' + m_nonce + ':' + count + ':'
                                    + clientNonce + ":auth:" + md5("POST:" + request.target));
    return value.startsWith("Digest ") && parameter(value, "username") == m_user && parameter(value, "nonce") == m_nonce
           && parameter(value, "response") == expected && isFresh(count);
}

bool Guard::isFresh(const QByteArray &proof)
{
    if (m_seen.contains(proof))
        return false;
    m_seen.insert(proof);
    return true;
}

} // namespace simulator
