#include "given.h"
#include "report.h"
#include "textparts.h"

#include <QtCore/QSize>
#include <QtCore/QStringList>

#include <cstdlib>

namespace client {
namespace {

QString text(const QSize &size)
{
    return size.isEmpty() ? QString() : QString("%1x%2").arg(size.width()).arg(size.height());
}

/// \a time to the second.
QString text(const QDateTime &time)
{
    return time.toString("yyyy-MM-dd HH:mm:ss");
}

QString notAnswered(const QString &why)
{
    return "not answered: " + why;
}

void writeUri(Lines &lines, const QString &name, const Section<QString> &uri)
{
    if (!uri.record)
        lines.field(2, name, notAnswered(uri.notAnswered));
    else
        lines.field(2, name, uri.record->isEmpty() ? "none" : *uri.record);
}

void write(Lines &lines, const vorn::OnvifProfile &profile, const ProfileUris &uris)
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
    writeUri(lines, "Stream over UDP", uris.streamOverUdp);
    writeUri(lines, "Stream over TCP", uris.streamOverTcp);
    writeUri(lines, "Snapshot", uris.snapshot);
}

/// The section \a title, or why it is not there.
template <typename Record>
void writeSection(Lines &lines, const QString &title, const Section<Record> &section)
{
    if (section.record)
        return write(lines, *section.record);
    lines.heading(title);
    lines.line(1, notAnswered(section.notAnswered));
}

void writeProfiles(Lines &lines, const Report &report)
{
    if (!report.profiles.record) {
        lines.heading("Profiles");
        return lines.line(1, notAnswered(report.profiles.notAnswered));
    }
    lines.heading("Profiles", report.profiles.record->isEmpty());
    std::size_t index = 0;
    for (const vorn::OnvifProfile &profile : *report.profiles.record)
        write(lines, profile, report.uris.at(index++));
}

} // namespace

void write(Lines &lines, const vorn::OnvifDeviceInformation &information)
{
    lines.heading("Device");
    lines.field(1, "Manufacturer", information.manufacturer);
    lines.field(1, "Model", information.model);
    lines.field(1, "Firmware", information.firmwareVersion);
    lines.field(1, "Serial number", information.serialNumber);
    lines.field(1, "Hardware", information.hardwareId);
}

void write(Lines &lines, const ClockReading &reading)
{
    const DeviceClock &clock = reading.clock;
    const bool agrees = reading.secondsAhead == 0;
    lines.heading("Clock");
    lines.field(1, "Time", clock.utc.isValid() ? text(clock.utc) + " UTC" : "none that can be");
    lines.field(1, "Local time", text(clock.local));
    lines.field(1, "Zone", clock.zone);
    if (const auto daylightSaving = flagOf(clock.daylightSaving))
        lines.field(1, "Daylight saving", *daylightSaving ? "on" : "off");
    lines.field(1, "Set by", clock.source);
    if (reading.secondsAhead) {
        const QString amount = duration(std::llabs(*reading.secondsAhead));
        lines.field(1, "Beside this machine",
                    agrees ? "the same" : amount + (*reading.secondsAhead > 0 ? " ahead" : " behind"));
        if (!reading.isUsed)
            lines.field(1, "Not used", "proofs of who asks do not go by it, as --clock-limit wants");
    }
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

QString textOf(const Report &report)
{
    Lines lines;
    lines.line(0, "Camera at " + report.address);
    if (!report.tls.fingerprint.isEmpty()) {
        const QString doubt = report.tls.doubt.isEmpty() ? "trusted" : "not trusted: " + report.tls.doubt;
        lines.field(1, "Certificate", doubt);
        lines.field(1, "Fingerprint", "SHA-256 " + QString::fromLatin1(report.tls.fingerprint));
    }
    writeSection(lines, "Device", report.information);
    writeSection(lines, "Clock", report.clock);
    writeSection(lines, "Services", report.capabilities);
    writeSection(lines, "Scopes", report.scopes);
    writeProfiles(lines, report);
    writeSection(lines, "Network interfaces", report.interfaces);
    writeSection(lines, "Default gateway", report.gateway);
    writeSection(lines, "Relay outputs", report.relays);
    return lines.text();
}

QStringList linesOf(const QList<Failure> &failures)
{
    QStringList lines;
    QStringList sentences;
    for (const Failure &failure : failures) {
        if (!sentences.contains(failure.sentence))
            sentences += failure.sentence;
    }
    for (const QString &sentence : std::as_const(sentences)) {
        QStringList requests;
        for (const Failure &failure : failures) {
            if (failure.sentence == sentence)
                requests += failure.request;
        }
        requests.removeDuplicates();
        lines += requests.join(", ") + ": " + sentence;
    }
    return lines;
}

} // namespace client
