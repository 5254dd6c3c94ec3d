#include "report.h"
#include "support/terminal.h"

#include <QtCore/QSize>
#include <QtCore/QStringList>

namespace client {
namespace {

using Interface = vorn::OnvifNetworkInterface;

/// Lines of text that are safe to show.
class Lines
{
public:
    void heading(const QString &title, bool isEmpty = false)
    {
        m_text += '\n' + title + '\n';
        if (isEmpty)
            line(1, "none");
    }

    void line(int depth, const QString &content)
    {
        m_text += QString(qsizetype(2) * depth, ' ') + example::printable(content) + '\n';
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

/// What of \a parts is not empty, with commas.
QString joined(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(", ");
}

/// A number with its unit; empty if the device gave none.
QString amount(int number, const char *unit)
{
    return number > 0 ? QString("%1 %2").arg(number).arg(unit) : QString();
}

QString text(const QSize &size)
{
    return size.isEmpty() ? QString() : QString("%1x%2").arg(size.width()).arg(size.height());
}

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
    lines.heading("Scopes", scopes.isEmpty());
    for (const QString &key : scopes.uniqueKeys()) {
        QStringList values;
        for (const vorn::OnvifScope &scope : scopes.values(key))
            values.prepend(scope.value); // the last of the reply comes first
        lines.field(1, key, joined(values));
    }
}

void write(Lines &lines, const vorn::OnvifProfile &profile)
{
    const auto &video = profile.videoEncoder;
    const auto &audio = profile.audioEncoder;
    const QString name = withToken(profile.name, profile.token);
    lines.line(1, (name.isEmpty() ? "without a name" : name) + (profile.fixed ? ", fixed" : ""));
    lines.field(2, "Source", profile.videoSource.sourceToken);
    lines.field(2, "Video",
                joined({video.encoding, text(video.resolution), amount(video.frameRateLimit, "frames/s"),
                        amount(video.bitrateLimit, "kbit/s")}));
    lines.field(2, "Audio", joined({audio.encoding, amount(audio.bitrate, "kbit/s"), amount(audio.sampleRate, "kHz")}));
    lines.field(2, "PTZ", withToken(profile.ptz.name, profile.ptz.token));
    lines.field(2, "Analytics", withToken(profile.videoAnalytics.name, profile.videoAnalytics.token));
    lines.field(2, "Metadata", withToken(profile.metadata.name, profile.metadata.token));
}

void write(Lines &lines, const vorn::OnvifProfileVector &profiles)
{
    lines.heading("Profiles", profiles.isEmpty());
    for (const vorn::OnvifProfile &profile : profiles)
        write(lines, profile);
}

QString text(const Interface::PrefixedAddress &address)
{
    return address.address + '/' + QString::number(address.prefixLength);
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
    lines.heading("Network interfaces", interfaces.isEmpty());
    for (const Interface &card : interfaces) {
        lines.line(1, withToken(card.name, card.token) + (card.enabled ? "" : ", off"));
        lines.field(2, "Hardware address", card.hwAddress);
        lines.field(2, "MTU", amount(card.mtu, "bytes"));
        if (card.operSettings.present)
            lines.field(2, "Link",
                        joined({amount(card.operSettings.speed, "Mbit/s"),
                                vPrintable(card.operSettings.duplex).toLower() + " duplex"}));
        lines.field(2, "IPv4", text(card.ipv4));
        lines.field(2, "IPv6", text(card.ipv6));
    }
}

void write(Lines &lines, const vorn::OnvifNetworkGateway &gateway)
{
    lines.heading("Default gateway", gateway.ipv4Address.isEmpty() && gateway.ipv6Address.isEmpty());
    lines.field(1, "IPv4", gateway.ipv4Address);
    lines.field(1, "IPv6", gateway.ipv6Address);
}

void write(Lines &lines, const vorn::OnvifRelayOutputVector &relays)
{
    lines.heading("Relay outputs", relays.isEmpty());
    for (const vorn::OnvifRelayOutput &relay : relays) {
        const bool fallsBack = relay.mode == vorn::OnvifRelayOutput::Monostable && !relay.delayTime.isEmpty();
        lines.line(1, relay.token + ": "
                          + joined({vPrintable(relay.mode).toLower() + (fallsBack ? " for " + relay.delayTime : ""),
                                    "idle state " + vPrintable(relay.idleState).toLower()}));
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
