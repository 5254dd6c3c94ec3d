#include "savedreplies.h"

#include "support/replyname.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>

namespace client {
namespace {

/// The forms in which the password of \a credentials could stand in a reply.
QList<QByteArray> formsOf(const Credentials &credentials)
{
    if (credentials.password.isEmpty())
        return {};
    const QByteArray password = credentials.password.toUtf8();
    return {password, credentials.password.toHtmlEscaped().toUtf8(), QUrl::toPercentEncoding(credentials.password),
            password.toBase64(), (credentials.user.toUtf8() + ':' + password).toBase64()};
}

bool hasBody(const QByteArray &reply)
{
    vorn::XmlResponse response(reply, "/Envelope");
    return !response.getText("/Body").isNull();
}

/// Whether \a reply is the same without \a secrets once it is decoded: it may be in an encoding whose bytes hide them.
bool isClean(const QByteArray &reply, const QList<QByteArray> &secrets)
{
    const QByteArray decoded = vorn::XmlResponse(reply, {}).xml().toUtf8();
    return withoutSecrets(decoded, secrets) == decoded;
}

} // namespace

QByteArray withoutSecrets(const QByteArray &reply, const QList<QByteArray> &secrets)
{
    static const QRegularExpression token(R"(<((?:[\w.-]+:)?UsernameToken)\b.*?</\1\s*>)",
                                          QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression escapedToken(R"(&lt;((?:[\w.-]+:)?UsernameToken)\b.*?&lt;/\1\s*&gt;)",
                                                 QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression element("(<(?:[\\w.-]+:)?(?:Password|Nonce)\\b[^>]*>)[^<]*");
    static const QRegularExpression userInfo(R"((\b[A-Za-z][A-Za-z0-9+.-]*://)[^/@\s<>"']*@)");
    static const QRegularExpression query(R"(\b((?:password|passwd|passw|pass|pwd|psw)=)[^&\s<>"']*)",
                                          QRegularExpression::CaseInsensitiveOption);
    QByteArray cleaned = reply;
    for (const QByteArray &secret : secrets) {
        if (!secret.isEmpty())
            cleaned.replace(secret, "-");
    }
    // Latin-1 has a character for each byte, so that the bytes stay what they are whatever they mean.
    QString text = QString::fromLatin1(cleaned);
    text.remove(token).remove(escapedToken);
    text.replace(element, "\\1").replace(userInfo, "\\1").replace(query, "\\1");
    return text.toLatin1();
}

QString folderOf(const QString &folder, const QString &address)
{
    static const QRegularExpression notPlain("[^A-Za-z0-9.-]");
    return folder + '/' + QString(address).replace(notPlain, "_");
}

SavedReplies::SavedReplies(const QString &folder, const Credentials &credentials)
    : m_folder(folder)
    , m_secrets(formsOf(credentials))
{
}

QString SavedReplies::keep(const Request &request, const QByteArray &reply, const QList<QByteArray> &secrets)
{
    if (reply.isEmpty())
        return {};
    const QList<QByteArray> all = m_secrets + secrets;
    const QByteArray cleaned = withoutSecrets(reply, all);
    if (hasBody(cleaned) != hasBody(reply) || !isClean(cleaned, all))
        return QString("The reply to %1 is not kept: what is secret cannot be taken out of it.").arg(request.action);
    QString name = example::replyFileName(request.action);
    if (m_kept.contains(name))
        name = example::replyFileName(request.action, request.variant);
    m_kept.insert(name);
    QFile file(m_folder + '/' + name);
    if (QDir().mkpath(m_folder) && file.open(QIODevice::WriteOnly) && file.write(cleaned) == cleaned.size()
        && file.flush())
        return {};
    return QString("The replies cannot be kept in %1: %2.").arg(m_folder, file.errorString());
}

} // namespace client
