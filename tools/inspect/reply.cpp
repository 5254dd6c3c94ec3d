#include "reply.h"

#include <vorn/onvif/device.h>
#include <vorn/util/xmlresponse.h>

#include <algorithm>
#include <iterator>

namespace inspect {
namespace {

Outline outline(const vorn::OnvifDeviceInformation &record)
{
    return Outline::Fields{
        {"manufacturer", record.manufacturer},       {"model", record.model},
        {"firmwareVersion", record.firmwareVersion}, {"serialNumber", record.serialNumber},
        {"hardwareId", record.hardwareId},
    };
}

/// A record that the library has: the element that its reply holds in the Body, and how to read it.
struct Reader
{
    const char *element;
    Outline (*read)(const QByteArray &bytes);
};

const Reader readers[] = {
    {"GetDeviceInformationResponse",
     [](const QByteArray &bytes) { return outline(vorn::OnvifDeviceInformation(bytes)); }},
};

Reply readBody(const vorn::XmlResponseNode &body, const QByteArray &bytes)
{
    if (body.children.isEmpty())
        return {QStringLiteral("SOAP envelope"), {}, QStringLiteral("Its Body is empty.")};

    const QString element = body.children.constFirst().name;
    if (element == QLatin1String("Fault"))
        return {QStringLiteral("SOAP fault"), {}, QStringLiteral("The device refused the request.")};

    const auto *const reader = std::find_if(std::begin(readers), std::end(readers), [&](const Reader &candidate) {
        return element == QLatin1String(candidate.element);
    });
    if (reader == std::end(readers))
        return {element, {}, QStringLiteral("The library has no record for this reply.")};
    return {element, reader->read(bytes), {}};
}

Reply readOther(const QString &text)
{
    const QString start = text.left(4096);
    if (text.trimmed().isEmpty())
        return {QStringLiteral("nothing"), {}, QStringLiteral("The reply is empty.")};
    if (start.contains(QLatin1String("<html"), Qt::CaseInsensitive)
        || start.contains(QLatin1String("<!DOCTYPE html"), Qt::CaseInsensitive))
        return {
            QStringLiteral("HTML page"), {}, QStringLiteral("It is not well-formed, so nothing can be read from it.")};
    return {QStringLiteral("something else"),
            {},
            QStringLiteral("It is neither a SOAP reply nor a fault nor an HTML page, or it is not well-formed.")};
}

} // namespace

Reply read(const QByteArray &bytes)
{
    vorn::XmlResponse response(bytes, QString());
    const vorn::XmlResponseNode body = response.get(QStringLiteral("/Envelope/Body"));
    if (body.valid)
        return readBody(body, bytes);
    if (response.get(QStringLiteral("/Envelope")).valid)
        return {QStringLiteral("SOAP envelope"), {}, QStringLiteral("It has no Body.")};
    if (response.get(QStringLiteral("/Fault")).valid)
        return {QStringLiteral("bare fault"), {}, QStringLiteral("The transport failed.")};
    if (response.get(QStringLiteral("/html")).valid)
        return {QStringLiteral("HTML page"), {}, QStringLiteral("The reply comes from a web server.")};
    return readOther(response.xml());
}

} // namespace inspect
