#include "soap.h"

#include <vorn/onvif/placeholderstring.h>

namespace client {
namespace {

const char *const messageTemplate =
    R"(<?xml version="1.0" encoding="UTF-8"?><s:Envelope xmlns:s="http://www.w3.org/2003/05/soap-envelope")"
    R"( xmlns:tds="http://www.onvif.org/ver10/device/wsdl" xmlns:trt="http://www.onvif.org/ver10/media/wsdl")"
    R"( xmlns:tmd="http://www.onvif.org/ver10/deviceIO/wsdl" xmlns:tt="http://www.onvif.org/ver10/schema">)"
    R"(<s:Header>$@</s:Header><s:Body><$@>$@</$@></s:Body></s:Envelope>)";

struct Names
{
    const char *prefix;
    const char *nameSpace;
};

Names namesOf(Service service)
{
    switch (service) {
    case Service::Device:
        break;
    case Service::Media:
        return {"trt:", "http://www.onvif.org/ver10/media/wsdl"};
    case Service::DeviceIO:
        return {"tmd:", "http://www.onvif.org/ver10/deviceIO/wsdl"};
    }
    return {"tds:", "http://www.onvif.org/ver10/device/wsdl"};
}

} // namespace

const char *const usualPath = "/onvif/device_service";

QByteArray message(const Request &request, const QString &header)
{
    const QString element = QString(namesOf(request.service).prefix) + request.action;
    return vorn::PlaceHolderString(messageTemplate, "$@")
        .arg(header)
        .arg(element)
        .arg(request.content)
        .arg(element)
        .qStr()
        .toUtf8();
}

QByteArray contentType(const Request &request)
{
    return QByteArray("application/soap+xml; charset=utf-8; action=\"") + namesOf(request.service).nameSpace + '/'
           + request.action + '"';
}

QUrl deviceServiceUrl(const QString &address)
{
    const bool isUrl = address.startsWith("http://") || address.startsWith("https://");
    QUrl url((isUrl ? address : "http://" + address).trimmed(), QUrl::StrictMode);
    const bool hasPath = !url.path().isEmpty() && url.path() != "/";
    const bool hasMore = !url.userInfo().isEmpty() || url.hasFragment() || url.hasQuery() || (hasPath && !isUrl);
    const bool portIsMissing = url.authority().endsWith(':') || address.endsWith(':');
    if (!url.isValid() || url.host().isEmpty() || hasMore || portIsMissing || url.port() == 0)
        return {};
    if (!hasPath)
        url.setPath(usualPath);
    return url;
}

QUrl urlOnSameHost(const QUrl &asked, const QString &xAddr)
{
    QUrl named(xAddr.trimmed());
    const bool stays = named.scheme() == asked.scheme() || named.scheme() == "https";
    if (named.host() == asked.host() && stays) {
        named.setUserInfo(QString());
        return named;
    }
    QUrl url = asked;
    if (named.path().startsWith('/')) {
        url.setPath(named.path());
        url.setQuery(named.query());
    }
    return url;
}

} // namespace client
