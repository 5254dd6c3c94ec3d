#include "foundcamera.h"

#include "soap.h"

#include <vorn/onvif/discovery.h>

#include <QtCore/QUrl>

namespace client {
namespace {

/// The URLs of \a scheme that \a camera names.
QList<QUrl> urlsOf(vorn::OnvifCamera &camera, const QString &scheme)
{
    QList<QUrl> urls;
    for (const QString &text : camera.response.getText("/XAddrs").split(' ', Qt::SkipEmptyParts)) {
        const QUrl url(text);
        if (url.scheme() == scheme && !url.host().isEmpty())
            urls.append(url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment));
    }
    return urls;
}

/// \a url as --address takes it.
QString addressOf(QUrl url)
{
    if (url.path() == usualPath)
        url.setPath(QString());
    return url.toString();
}

/// The path that all of \a urls have; empty if that is the usual one or they differ.
QString pathOf(const QList<QUrl> &urls)
{
    QString path = urls.isEmpty() ? QString() : urls.constFirst().path();
    for (const QUrl &url : urls) {
        if (url.path() != path || path == usualPath)
            return {};
    }
    return path;
}

} // namespace

QString FoundCamera::ownAddress() const
{
    for (const QString &address : addresses) {
        const bool isUrl = address.contains("://");
        if (QHostAddress(QUrl(isUrl ? address : "http://" + address).host()) == sender)
            return isUrl || path.isEmpty() ? address : "http://" + address + path;
    }
    return {};
}

qsizetype FoundCamera::size() const
{
    qsizetype characters = name.size() + hardware.size() + endpoint.size() + path.size();
    for (const QString &text : addresses + types + locations)
        characters += text.size() + qsizetype(sizeof(QString));
    return qsizetype(sizeof(FoundCamera)) + characters * qsizetype(sizeof(QChar));
}

std::optional<FoundCamera> foundCamera(const QByteArray &datagram, const QHostAddress &sender)
{
    vorn::OnvifCamera camera(withPlainSpaces(datagram));
    if (!camera.isValid())
        return std::nullopt;
    FoundCamera found;
    found.sender = sender;
    found.addresses = camera.addresses + camera.linkLocalAddresses;
    // The record leaves out those of TLS.
    for (const QUrl &url : urlsOf(camera, "https"))
        found.addresses += addressOf(url);
    found.addresses.removeDuplicates();
    found.path = pathOf(urlsOf(camera, "http"));
    found.name = camera.scopes.value("name");
    found.hardware = camera.scopes.value("hardware");
    // The last of the message comes first.
    for (const QString &type : camera.scopes.values("type"))
        found.types.prepend(type);
    for (const QString &location : camera.scopes.values("location"))
        found.locations.prepend(location);
    found.endpoint = camera.response.getText("/EndpointReference/Address");
    return found;
}

QByteArray withPlainSpaces(const QByteArray &message)
{
    const bool holdsAscii = !message.contains('\0');
    return holdsAscii ? message.simplified() : message;
}

} // namespace client
