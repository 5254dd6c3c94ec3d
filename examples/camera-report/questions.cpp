#include "questions.h"

namespace client {
namespace {

/// No more profiles are asked for their URIs: a device could name very many.
constexpr std::size_t mostProfiles = 32;

/// The question \a request, whose answer \a read makes a record of for \a section. If it fails, so does the report.
template <typename Record, typename Read>
Question question(Report &report, const Request &request, Section<Record> &section, Read read)
{
    return {request, [&report, &section, read](const Answer &answer, const QString &complaint) -> Questions {
                section.notAnswered = complaint;
                if (answer.isReply)
                    section.record = read(answer);
                else
                    report.failures.append({answer.request.action, complaint});
                return {};
            }};
}

template <typename Record>
void leaveOpen(Section<Record> &section, const QString &why)
{
    if (!section.record && section.notAnswered.isEmpty())
        section.notAnswered = why;
}

void leaveOpen(ProfileUris &uris, const QString &why)
{
    leaveOpen(uris.streamOverUdp, why);
    leaveOpen(uris.streamOverTcp, why);
    leaveOpen(uris.snapshot, why);
}

template <typename Record>
Record readRecord(const Answer &answer)
{
    return Record(answer.bytes);
}

template <typename Record>
Record readBelowRoot(const Answer &answer)
{
    return Record(answer.bytes, answer.root());
}

/// There is no record for this reply, so it is read by a query.
QString readUri(const Answer &answer)
{
    vorn::XmlResponse response(answer.bytes, answer.root());
    return response.getText("/MediaUri/Uri").trimmed();
}

Request uriRequest(const char *action, const QString &profileToken, const QString &protocol = {})
{
    const QString token = QString("<trt:ProfileToken>%1</trt:ProfileToken>").arg(profileToken.toHtmlEscaped());
    if (protocol.isEmpty())
        return {Service::Media, action, token, profileToken};
    const QString setup = QString("<trt:StreamSetup><tt:Stream>RTP-Unicast</tt:Stream><tt:Transport><tt:Protocol>%1"
                                  "</tt:Protocol></tt:Transport></trt:StreamSetup>")
                              .arg(protocol);
    return {Service::Media, action, setup + token, profileToken + '.' + protocol};
}

/// Where each profile is seen.
Questions uriQuestions(Report &report)
{
    const vorn::OnvifProfileVector &profiles = *report.profiles.record;
    report.uris.resize(static_cast<std::size_t>(profiles.size()));
    Questions questions;
    for (std::size_t index = 0; index < report.uris.size(); ++index) {
        const QString token = profiles.at(static_cast<qsizetype>(index)).token;
        ProfileUris &uris = report.uris[index];
        if (token.isEmpty()) {
            leaveOpen(uris, "It was not asked: the profile has no token.");
        } else if (index >= mostProfiles) {
            leaveOpen(uris, QString("It was not asked: only the first %1 profiles are.").arg(mostProfiles));
        } else {
            const auto ask = [&](const Request &request, Section<QString> &section) {
                questions.push_back(question(report, request, section, readUri));
            };
            ask(uriRequest("GetStreamUri", token, "UDP"), uris.streamOverUdp);
            ask(uriRequest("GetStreamUri", token, "RTSP"), uris.streamOverTcp);
            ask(uriRequest("GetSnapshotUri", token), uris.snapshot);
        }
    }
    return questions;
}

Question profilesQuestion(Report &report)
{
    Question profiles =
        question(report, {Service::Media, "GetProfiles"}, report.profiles, readBelowRoot<vorn::OnvifProfileVector>);
    profiles.take = [&report, take = profiles.take](const Answer &answer, const QString &complaint) {
        take(answer, complaint);
        return report.profiles.record ? uriQuestions(report) : Questions();
    };
    return profiles;
}

/// The services that may know the relays of a device with \a capabilities, the likelier one first.
QList<Service> relayServices(const std::optional<vorn::OnvifCapabilities> &capabilities)
{
    if (!capabilities || !capabilities->hasIO())
        return {Service::Device};
    // The record does not tell which of the two services has the relays that it counts.
    vorn::XmlResponse response = capabilities->response;
    if (response.getUInt("/Device/IO/RelayOutputs") > 0)
        return {Service::Device, Service::DeviceIO};
    return {Service::DeviceIO, Service::Device};
}

/// The relays, from the first of \a services that names any. If none does, what the first one said counts.
Question relaysQuestion(Report &report, QList<Service> services)
{
    Request request{services.takeFirst(), "GetRelayOutputs"};
    if (request.service == Service::DeviceIO)
        request.variant = "deviceio";
    return {request, [&report, services](const Answer &answer, const QString &complaint) -> Questions {
                vorn::OnvifRelayOutputVector relays(answer.bytes, answer.root());
                const bool isFirst = !report.relays.record && report.relays.notAnswered.isEmpty();
                if (answer.isReply && (isFirst || !report.relays.record || !relays.isEmpty()))
                    report.relays = {relays, {}};
                else if (isFirst)
                    report.relays.notAnswered = complaint;
                if (report.relays.record && !report.relays.record->isEmpty())
                    return {};
                if (!services.isEmpty())
                    return {relaysQuestion(report, services)};
                if (!report.relays.record)
                    report.failures.append({answer.request.action, report.relays.notAnswered});
                return {};
            }};
}

/// What is asked when it is known which services the device has.
Questions laterQuestions(Report &report)
{
    Questions questions;
    questions.push_back(
        question(report, {Service::Device, "GetScopes"}, report.scopes, readRecord<vorn::OnvifScopeMap>));
    if (report.capabilities.record && !report.capabilities.record->hasMedia())
        report.profiles.notAnswered = "It was not asked: the device names no media service.";
    else
        questions.push_back(profilesQuestion(report));
    questions.push_back(question(report, {Service::Device, "GetNetworkInterfaces"}, report.interfaces,
                                 readBelowRoot<vorn::OnvifNetworkInterfaceVector>));
    questions.push_back(question(report, {Service::Device, "GetNetworkDefaultGateway"}, report.gateway,
                                 readRecord<vorn::OnvifNetworkGateway>));
    questions.push_back(relaysQuestion(report, relayServices(report.capabilities.record)));
    return questions;
}

} // namespace

Questions questionsFor(Report &report)
{
    Question capabilities = question(report, {Service::Device, "GetCapabilities", "<tds:Category>All</tds:Category>"},
                                     report.capabilities, readRecord<vorn::OnvifCapabilities>);
    capabilities.take = [&report, take = capabilities.take](const Answer &answer, const QString &complaint) {
        take(answer, complaint);
        return laterQuestions(report);
    };
    return {question(report, {Service::Device, "GetDeviceInformation"}, report.information,
                     readRecord<vorn::OnvifDeviceInformation>),
            capabilities};
}

void leaveOpen(Report &report, const QString &why)
{
    leaveOpen(report.clock, why);
    leaveOpen(report.information, why);
    leaveOpen(report.capabilities, why);
    leaveOpen(report.scopes, why);
    leaveOpen(report.profiles, why);
    for (ProfileUris &uris : report.uris)
        leaveOpen(uris, why);
    leaveOpen(report.interfaces, why);
    leaveOpen(report.gateway, why);
    leaveOpen(report.relays, why);
}

} // namespace client
