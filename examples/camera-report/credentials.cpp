#include "credentials.h"

#include <vorn/onvif/placeholderstring.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QRandomGenerator>

#include <array>

namespace client {
namespace {

const char *const securityTemplate =
    R"(<wsse:Security s:mustUnderstand="true")"
    R"( xmlns:wsse="http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-secext-1.0.xsd")"
    R"( xmlns:wsu="http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-utility-1.0.xsd">)"
    R"(<wsse:UsernameToken><wsse:Username>$@</wsse:Username>)"
    R"(<wsse:Password Type="http://docs.oasis-open.org/wss/2004/01/)"
    R"(oasis-200401-wss-username-token-profile-1.0#PasswordDigest">$@</wsse:Password>)"
    R"(<wsse:Nonce EncodingType="http://docs.oasis-open.org/wss/2004/01/)"
    R"(oasis-200401-wss-soap-message-security-1.0#Base64Binary">$@</wsse:Nonce>)"
    R"(<wsu:Created>$@</wsu:Created></wsse:UsernameToken></wsse:Security>)";

QByteArray freshNonce()
{
    std::array<quint32, 5> words = {};
    QRandomGenerator::system()->generate(words.begin(), words.end());
    return {reinterpret_cast<const char *>(words.data()), sizeof(words)};
}

} // namespace

QByteArray tokenDigest(const QByteArray &nonce, const QByteArray &created, const QString &password)
{
    return QCryptographicHash::hash(nonce + created + password.toUtf8(), QCryptographicHash::Sha1).toBase64();
}

Token freshToken(const Credentials &credentials, const QDateTime &deviceTime)
{
    Token token;
    token.nonce = freshNonce();
    token.created = deviceTime.toUTC().toString(Qt::ISODateWithMs).toLatin1();
    token.digest = tokenDigest(token.nonce, token.created, credentials.password);
    return token;
}

QString securityHeader(const Credentials &credentials, const Token &token)
{
    return vorn::PlaceHolderString(securityTemplate, "$@")
        .arg(credentials.user.toHtmlEscaped())
        .arg(token.digest.constData())
        .arg(token.nonce.toBase64().constData())
        .arg(token.created.constData())
        .qStr();
}

} // namespace client
