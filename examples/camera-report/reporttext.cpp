#include "report.h"
#include "support/terminal.h"

#include <QtCore/QStringList>

namespace client {
namespace {

using Interface = vorn::OnvifNetworkInterface;

/// Lines of text that are safe to show.
class Lines
{
public:
    void heading(const QString &title) { m_text += '\n' + example::printable(title) + '\n'; }

    void line(int depth, const QString &content)
    {
        m_text += QString(2 * depth, ' ') + example::printable(content) + '\n';
    }

    /// A line for a value, unless the device gave none.
    void field(int depth, const QString &name, const QString &value)
    {
        if (!value.isEmpty())
            line(depth, name + ": " + value);
    }

    QString text() const { return m_text; }

private:
    QString m_text;
};

/// "a (b)", or only one of them if the other adds nothing.
QString withToken(const QString &name, const QString &token)
{
    if (name.isEmpty() || name == token)
        return token;
    return token.isEmpty() ? name : QString("%1 (%2)").arg(name, token);
}

void write(Lines &lines, const vorn::OnvifDeviceInformation &information)
{
    lines.heading("Device");
    lines.field(1, "Manufacturer", information.manufacturer);
    lines.field(1, "Model", information.model);
    lines.field(1, "Firmware", information.firmwareVersion);
    lines.field(1, "Serial number", information.serialNumber);
    lines.field(1, "Hardware", information.hardwareId);
}

void write(Lines &lines, const vorn::OnvifCapabilities &capabilities)
{
    QStringList versions;
    for (const auto &version : capabilities.device.system.supportedVersions)
        versions += QString("%1.%2").arg(version.major).arg(version.minor);

    lines.heading("Services");
    lines.field(1, "ONVIF", versions.join(", "));
    lines.field(1, "Device", capabilities.device.xAddr);
    lines.field(1, "Media", capabilities.media.xAddr);
    lines.field(1, "Events", capabilities.events.xAddr);
    lines.field(1, "PTZ", capabilities.ptz.xAddr);
    lines.field(1, "Imaging", capabilities.imaging.xAddr);
    lines.field(1, "Analytics", capabilities.analytics.xAddr);
    lines.field(1, "Device I/O", capabilities.device.io.xAddr);
    lines.field(1, "Recording", capabilities.recording.xAddr);
    lines.field(1, "Search", capabilities.search.xAddr);
    lines.field(1, "Replay", capabilities.replay.xAddr);
    lines.field(1, "Analytics device", capabilities.analyticsDevice.xAddr);
    lines.field(1, "Display", capabilities.display.xAddr);
}

void write(Lines &lines, const vorn::OnvifScopeMap &scopes)
{
    lines.heading("Scopes");
    for (const QString &key : scopes.uniqueKeys()) {
        QStringList values;
        for (const vorn::OnvifScope &scope : scopes.values(key))
            values.prepend(scope.value); // the last of the reply comes first
        lines.line(1, key + ": " + values.join(", "));
    }
}

void write(Lines &lines, const vorn::OnvifProfile &profile)
{
    lines.line(1, withToken(profile.name, profile.token) + (profile.fixed ? ", fixed" : ""));
    if (!profile.videoSource.isNull())
        lines.line(2, "Source: " + profile.videoSource.sourceToken);
    if (const auto &video = profile.videoEncoder; !video.isNull()) {
        lines.line(2, QString("Video: %1, %2x%3, %4 frames/s, %5 kbit/s")
                          .arg(video.encoding)
                          .arg(video.resolution.width())
                          .arg(video.resolution.height())
                          .arg(video.frameRateLimit)
                          .arg(video.bitrateLimit));
    }
    if (const auto &audio = profile.audioEncoder; !audio.isNull())
        lines.line(2, QString("Audio: %1, %2 kbit/s, %3 kHz").arg(audio.encoding).arg(audio.bitrate).arg(audio.sampleRate));
    if (!profile.ptz.isNull())
        lines.line(2, "PTZ: " + withToken(profile.ptz.name, profile.ptz.token));
    if (!profile.videoAnalytics.isNull())
        lines.line(2, "Analytics: " + withToken(profile.videoAnalytics.name, profile.videoAnalytics.token));
    if (!profile.metadata.isNull())
        lines.line(2, "Metadata: " + withToken(profile.metadata.name, profile.metadata.token));
}

void write(Lines &lines, const vorn::OnvifProfileVector &profiles)
{
    lines.heading("Profiles");
    for (const vorn::OnvifProfile &profile : profiles)
        write(lines, profile);
}

QString text(const Interface::PrefixedAddress &address)
{
    return QString("%1/%2").arg(address.address).arg(address.prefixLength);
}

QStringList texts(const QList<Interface::PrefixedAddress> &addresses, const QString &origin)
{
    QStringList result;
    for (const Interface::PrefixedAddress &address : addresses)
        result += text(address) + origin;
    return result;
}

QString text(const Interface::IPv4 &ipv4)
{
    if (!ipv4.enabled)
        return "off";
    QStringList parts = texts(ipv4.config.manual, "");
    if (!ipv4.config.fromDHCP.address.isEmpty())
        parts += text(ipv4.config.fromDHCP) + " from DHCP";
    if (!ipv4.config.linkLocal.address.isEmpty())
        parts += text(ipv4.config.linkLocal) + " link-local";
    parts += ipv4.config.dhcp ? "DHCP on" : "DHCP off";
    return parts.join(", ");
}

QString text(const Interface::IPv6 &ipv6)
{
    if (!ipv6.enabled)
        return "off";
    const QStringList parts = texts(ipv6.config.manual, "") + texts(ipv6.config.fromDHCP, " from DHCP")
                              + texts(ipv6.config.fromRA, " advertised") + texts(ipv6.config.linkLocal, " link-local")
                              + QStringList("DHCP " + vPrintable(ipv6.config.dhcp));
    return parts.join(", ");
}

void write(Lines &lines, const vorn::OnvifNetworkInterfaceVector &interfaces)
{
    lines.heading("Network interfaces");
    for (const Interface &card : interfaces) {
        lines.line(1, withToken(card.name, card.token) + (card.enabled ? "" : ", off"));
        lines.field(2, "Hardware address", card.hwAddress);
        lines.field(2, "MTU", QString::number(card.mtu));
        if (card.operSettings.present)
            lines.line(2, QString("Link: %1 Mbit/s, %2 duplex")
                              .arg(card.operSettings.speed)
                              .arg(vPrintable(card.operSettings.duplex).toLower()));
        lines.field(2, "IPv4", text(card.ipv4));
        lines.field(2, "IPv6", text(card.ipv6));
    }
}

void write(Lines &lines, const vorn::OnvifNetworkGateway &gateway)
{
    lines.heading("Default gateway");
    lines.field(1, "IPv4", gateway.ipv4Address);
    lines.field(1, "IPv6", gateway.ipv6Address);
}

void write(Lines &lines, const vorn::OnvifRelayOutputVector &relays)
{
    lines.heading("Relay outputs");
    for (const vorn::OnvifRelayOutput &relay : relays) {
        const QString delay = relay.mode == vorn::OnvifRelayOutput::Monostable ? " after " + relay.delayTime : QString();
        lines.line(1, QString("%1: %2%3, idle state %4")
                          .arg(relay.token, vPrintable(relay.mode).toLower(), delay,
                               vPrintable(relay.idleState).toLower()));
    }
}

template <typename Record>
void writeIfThere(Lines &lines, const std::optional<Record> &record)
{
    if (record)
        write(lines, *record);
}

} // namespace

QString textOf(const Report &report)
{
    Lines lines;
    lines.line(0, "Camera at " + report.address);
    writeIfThere(lines, report.information);
    writeIfThere(lines, report.capabilities);
    writeIfThere(lines, report.scopes);
    writeIfThere(lines, report.profiles);
    writeIfThere(lines, report.interfaces);
    writeIfThere(lines, report.gateway);
    writeIfThere(lines, report.relays);
    return lines.text();
}

} // namespace client
