#include "soap.h"

#include <vorn/onvif/placeholderstring.h>

namespace client {
namespace {

const char *const messageTemplate =
    R"(<?xml version="1.0" encoding="UTF-8"?><s:Envelope xmlns:s="http://www.w3.org/2003/05/soap-envelope" xmlns:tds="http://www.onvif.org/ver10/device/wsdl")"
    R"( xmlns:trt="http://www.onvif.org/ver10/media/wsdl")"
    R"( xmlns:tt="http://www.onvif.org/ver10/schema">)"
    R"(<s:Header>$@</s:Header><s:Body><$@>$@</$@></s:Body></s:Envelope>)";

const char *prefixOf(Service service)
{
    return service == Service::Media ? "trt:" : "tds:";
}

const char *namespaceOf(Service service)
{
    return service == Service::Media ? "http://www.onvif.org/ver10/media/wsdl"
                                     : "http://www.onvif.org/ver10/device/wsdl";
}

} // namespace

QByteArray message(const Request &request, const QString &header)
{
    const QString element = QString(prefixOf(request.service)) + request.action;
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
    return QByteArray("application/soap+xml; charset=utf-8; action=\"") + namespaceOf(request.service) + '/'
           + request.action + '"';
}

QUrl deviceServiceUrl(const QString &address)
{
    const QUrl url("http://" + address + "/onvif/device_service", QUrl::StrictMode);
    const bool nothingElse = url.path() == "/onvif/device_service" && url.userInfo().isEmpty();
    const bool portIsMissing = address.endsWith(':');
    return url.isValid() && !url.host().isEmpty() && nothingElse && !portIsMissing ? url : QUrl();
}

QUrl urlOnSameHost(const QUrl &asked, const QString &xAddr)
{
    QUrl named(xAddr.trimmed());
    if (named.host() == asked.host()) {
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
