#include "report.h"

#include <QtCore/QJsonArray>

namespace client {
namespace {

using Interface = vorn::OnvifNetworkInterface;

/// An array with what \a jsonOfEntry makes of each element of \a list.
template <typename Entry>
QJsonArray jsonOfAll(const QList<Entry> &list, QJsonObject (*jsonOfEntry)(const Entry &))
{
    QJsonArray array;
    for (const Entry &entry : list)
        array.append(jsonOfEntry(entry));
    return array;
}

QJsonObject jsonOf(const Failure &failure)
{
    return {{"request", failure.request}, {"sentence", failure.sentence}};
}

QJsonObject jsonOf(const vorn::OnvifDeviceInformation &information)
{
    return {{"manufacturer", information.manufacturer},
            {"model", information.model},
            {"firmwareVersion", information.firmwareVersion},
            {"serialNumber", information.serialNumber},
            {"hardwareId", information.hardwareId}};
}

/// The address of each service that the device has.
QJsonObject jsonOf(const vorn::OnvifCapabilities &capabilities)
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

QJsonObject jsonOf(const vorn::OnvifScope &scope)
{
    return {{"uri", scope.uri}, {"key", scope.key}, {"value", scope.value}};
}

QJsonValue jsonOf(const vorn::OnvifVideoEncoderConfiguration &video)
{
    if (video.isNull())
        return {};
    return QJsonObject{{"encoding", video.encoding},
                       {"width", video.resolution.width()},
                       {"height", video.resolution.height()},
                       {"frameRateLimit", video.frameRateLimit},
                       {"bitrateLimit", video.bitrateLimit}};
}

QJsonValue jsonOf(const vorn::OnvifAudioEncoderConfiguration &audio)
{
    if (audio.isNull())
        return {};
    return QJsonObject{{"encoding", audio.encoding}, {"bitrate", audio.bitrate}, {"sampleRate", audio.sampleRate}};
}

QJsonObject jsonOf(const vorn::OnvifProfile &profile)
{
    return {{"name", profile.name},
            {"token", profile.token},
            {"fixed", profile.fixed},
            {"videoEncoder", jsonOf(profile.videoEncoder)},
            {"audioEncoder", jsonOf(profile.audioEncoder)}};
}

QJsonObject jsonOf(const Interface::PrefixedAddress &address)
{
    return {{"address", address.address}, {"prefixLength", address.prefixLength}};
}

QJsonObject jsonOf(const Interface::IPv4 &ipv4)
{
    return {{"enabled", ipv4.enabled},
            {"dhcp", ipv4.config.dhcp},
            {"manual", jsonOfAll(ipv4.config.manual, jsonOf)},
            {"linkLocal", jsonOf(ipv4.config.linkLocal)},
            {"fromDHCP", jsonOf(ipv4.config.fromDHCP)}};
}

QJsonObject jsonOf(const Interface::IPv6 &ipv6)
{
    return {{"enabled", ipv6.enabled},
            {"dhcp", vPrintable(ipv6.config.dhcp)},
            {"manual", jsonOfAll(ipv6.config.manual, jsonOf)},
            {"linkLocal", jsonOfAll(ipv6.config.linkLocal, jsonOf)},
            {"fromDHCP", jsonOfAll(ipv6.config.fromDHCP, jsonOf)},
            {"fromRA", jsonOfAll(ipv6.config.fromRA, jsonOf)}};
}

QJsonObject jsonOf(const Interface &card)
{
    return {{"name", card.name}, {"token", card.token},       {"enabled", card.enabled},  {"hwAddress", card.hwAddress},
            {"mtu", card.mtu},   {"ipv4", jsonOf(card.ipv4)}, {"ipv6", jsonOf(card.ipv6)}};
}

QJsonObject jsonOf(const vorn::OnvifNetworkGateway &gateway)
{
    return {{"ipv4Address", gateway.ipv4Address}, {"ipv6Address", gateway.ipv6Address}};
}

QJsonObject jsonOf(const vorn::OnvifRelayOutput &relay)
{
    return {{"token", relay.token},
            {"mode", vPrintable(relay.mode)},
            {"delayTime", relay.delayTime},
            {"idleState", vPrintable(relay.idleState)}};
}

} // namespace

QJsonObject jsonOf(const Report &report)
{
    QJsonObject json{{"address", report.address}, {"failures", jsonOfAll(report.failures, jsonOf)}};
    if (report.information)
        json.insert("information", jsonOf(*report.information));
    if (report.capabilities)
        json.insert("services", jsonOf(*report.capabilities));
    if (report.scopes)
        json.insert("scopes", jsonOfAll(report.scopes->values(), jsonOf));
    if (report.profiles)
        json.insert("profiles", jsonOfAll<vorn::OnvifProfile>(*report.profiles, jsonOf));
    if (report.interfaces)
        json.insert("interfaces", jsonOfAll<Interface>(*report.interfaces, jsonOf));
    if (report.gateway)
        json.insert("gateway", jsonOf(*report.gateway));
    if (report.relays)
        json.insert("relays", jsonOfAll<vorn::OnvifRelayOutput>(*report.relays, jsonOf));
    return json;
}

} // namespace client
