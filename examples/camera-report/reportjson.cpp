#include "given.h"
#include "jsonparts.h"

namespace client {
namespace {

QJsonValue jsonOf(const Tls &tls)
{
    if (tls.fingerprint.isEmpty())
        return {};
    return QJsonObject{{"fingerprint", QString::fromLatin1(tls.fingerprint)},
                       {"isTrusted", tls.doubt.isEmpty()},
                       {"doubt", tls.doubt.isEmpty() ? QJsonValue() : QJsonValue(tls.doubt)}};
}

QJsonArray jsonOf(const QList<Failure> &failures)
{
    QJsonArray array;
    for (const Failure &failure : failures)
        array.append(QJsonObject{{"request", failure.request}, {"sentence", failure.sentence}});
    return array;
}

QJsonObject informationJson(const vorn::OnvifDeviceInformation &information)
{
    return {{"manufacturer", orNull(information.manufacturer)},
            {"model", orNull(information.model)},
            {"firmwareVersion", orNull(information.firmwareVersion)},
            {"serialNumber", orNull(information.serialNumber)},
            {"hardwareId", orNull(information.hardwareId)}};
}

QJsonObject clockJson(const ClockReading &reading)
{
    const auto time = [](const QDateTime &value, const char *end) {
        return value.isValid() ? QJsonValue(value.toString("yyyy-MM-ddTHH:mm:ss") + end) : QJsonValue();
    };
    return {{"utc", time(reading.clock.utc, "Z")},
            {"local", time(reading.clock.local, "")},
            {"zone", orNull(reading.clock.zone)},
            {"daylightSaving", orNull(flagOf(reading.clock.daylightSaving))},
            {"setBy", orNull(reading.clock.source)},
            {"secondsAhead", orNull(reading.secondsAhead)},
            {"isUsed", reading.isUsed}};
}

QJsonArray versionsJson(const vorn::OnvifCapabilities &capabilities)
{
    QJsonArray versions;
    for (const auto &version : capabilities.device.system.supportedVersions)
        versions.append(QString("%1.%2").arg(version.major).arg(version.minor));
    return versions;
}

/// The address of each service that the device has.
QJsonObject servicesJson(const vorn::OnvifCapabilities &capabilities)
{
    const std::pair<const char *, QString> services[] = {
        {"device", capabilities.device.xAddr},
        {"media", capabilities.media.xAddr},
        {"events", capabilities.events.xAddr},
        {"ptz", capabilities.ptz.xAddr},
        {"imaging", capabilities.imaging.xAddr},
        {"analytics", capabilities.analytics.xAddr},
        {"io", capabilities.device.io.xAddr},
        {"recording", capabilities.recording.xAddr},
        {"search", capabilities.search.xAddr},
        {"replay", capabilities.replay.xAddr},
        {"analyticsDevice", capabilities.analyticsDevice.xAddr},
        {"display", capabilities.display.xAddr},
    };
    QJsonObject json;
    for (const auto &[name, xAddr] : services) {
        if (!xAddr.isEmpty())
            json.insert(name, xAddr);
    }
    return json;
}

QJsonObject scopeJson(const vorn::OnvifScope &scope)
{
    QJsonValue definition;
    if (scope.type == vorn::OnvifScope::Fixed)
        definition = "Fixed";
    else if (scope.type == vorn::OnvifScope::Configurable)
        definition = "Configurable";
    return {{"definition", definition},
            {"uri", orNull(scope.uri)},
            {"key", orNull(scope.key)},
            {"value", orNull(scope.value)}};
}

QJsonArray scopesJson(const vorn::OnvifScopeMap &scopes)
{
    QJsonArray array;
    for (const QString &key : scopes.uniqueKeys()) {
        QJsonArray ofKey;
        for (const vorn::OnvifScope &scope : scopes.values(key))
            ofKey.prepend(scopeJson(scope)); // the last of the reply comes first
        for (const auto scope : std::as_const(ofKey))
            array.append(scope);
    }
    return array;
}

QJsonObject gatewayJson(const vorn::OnvifNetworkGateway &gateway)
{
    return {{"ipv4Address", orNull(gateway.ipv4Address)}, {"ipv6Address", orNull(gateway.ipv6Address)}};
}

} // namespace

QJsonObject jsonOf(const Report &report)
{
    return {{"address", report.address},
            {"tls", jsonOf(report.tls)},
            {"information", sectionJson(report.information, informationJson)},
            {"clock", sectionJson(report.clock, clockJson)},
            {"versions", sectionJson(report.capabilities, versionsJson)},
            {"services", sectionJson(report.capabilities, servicesJson)},
            {"features", sectionJson(report.capabilities, featuresJson)},
            {"scopes", sectionJson(report.scopes, scopesJson)},
            {"profiles",
             sectionJson(report.profiles, [&](const vorn::OnvifProfileVector &) { return profilesJson(report); })},
            {"interfaces", sectionJson(report.interfaces, interfacesJson)},
            {"gateway", sectionJson(report.gateway, gatewayJson)},
            {"relays", sectionJson(report.relays, relaysJson)},
            {"failures", jsonOf(report.failures)}};
}

} // namespace client
