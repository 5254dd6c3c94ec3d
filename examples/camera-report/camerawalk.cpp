#include "camerawalk.h"

#include <iterator>

namespace client {
namespace {

/// A request, and where its answer goes.
struct Step
{
    Request request;
    void (*store)(Report &report, const QByteArray &bytes);
};

const Step steps[] = {
    {{Service::Device, "GetDeviceInformation"},
     [](Report &report, const QByteArray &bytes) { report.information = vorn::OnvifDeviceInformation(bytes); }},
    {{Service::Device, "GetCapabilities", "<tds:Category>All</tds:Category>"},
     [](Report &report, const QByteArray &bytes) { report.capabilities = vorn::OnvifCapabilities(bytes); }},
    {{Service::Device, "GetScopes"},
     [](Report &report, const QByteArray &bytes) { report.scopes = vorn::OnvifScopeMap(bytes); }},
    {{Service::Media, "GetProfiles"},
     [](Report &report, const QByteArray &bytes) {
         report.profiles = vorn::OnvifProfileVector(bytes, "/Envelope/Body/GetProfilesResponse");
     }},
    {{Service::Device, "GetNetworkInterfaces"},
     [](Report &report, const QByteArray &bytes) {
         report.interfaces = vorn::OnvifNetworkInterfaceVector(bytes, "/Envelope/Body/GetNetworkInterfacesResponse");
     }},
    {{Service::Device, "GetNetworkDefaultGateway"},
     [](Report &report, const QByteArray &bytes) { report.gateway = vorn::OnvifNetworkGateway(bytes); }},
    {{Service::Device, "GetRelayOutputs"},
     [](Report &report, const QByteArray &bytes) {
         report.relays = vorn::OnvifRelayOutputVector(bytes, "/Envelope/Body/GetRelayOutputsResponse");
     }},
};

/// Whether \a fault is one that an ONVIF device answers with.
bool isSoapFault(const vorn::OnvifFault &fault)
{
    switch (fault.faultType) {
    case vorn::OnvifFault::VersionMismatch:
    case vorn::OnvifFault::MustUnderstand:
    case vorn::OnvifFault::DataEncodingUnknown:
    case vorn::OnvifFault::Sender:
    case vorn::OnvifFault::Receiver:
    case vorn::OnvifFault::UnknownSoapCode:
        return true;
    default:
        return false;
    }
}

} // namespace

CameraWalk::CameraWalk(const QString &address, const Credentials &credentials, std::chrono::milliseconds timeout,
                       Progress progress, Done done)
    : m_entry(deviceServiceUrl(address))
    , m_withCredentials(!credentials.isEmpty())
    , m_client(credentials, timeout)
    , m_progress(std::move(progress))
    , m_done(std::move(done))
{
    m_report.address = address;
}

void CameraWalk::start()
{
    next();
}

void CameraWalk::next()
{
    if (m_step < std::size(steps) && isUnavailable(steps[m_step].request.service)) {
        m_progress(QString("%1 names no media service").arg(m_report.address));
        ++m_step;
    }
    if (m_step == std::size(steps))
        return m_done(m_report);
    const Request &request = steps[m_step].request;
    const QString xAddr = xAddrOf(request.service);
    const QUrl url = urlOnSameHost(m_entry, xAddr);
    if (!xAddr.isEmpty() && url != QUrl(xAddr) && !m_notAsked.contains(xAddr)) {
        m_notAsked.append(xAddr);
        m_progress(QString("%1 is no address of the host that was asked, which is asked instead").arg(xAddr));
    }
    m_progress(QString("asking %1 for %2").arg(url.toString(), request.action));
    m_client.ask(url, request, [this](const Answer &answer) { take(answer); });
}

void CameraWalk::take(const Answer &answer)
{
    const QString complaint = answer.complaint();
    if (complaint.isEmpty())
        steps[m_step].store(m_report, answer.bytes);
    else
        m_report.failures.append({answer.action, complaint});
    m_report.refused = m_report.refused || answer.isRefusal();
    if (!complaint.isEmpty() && !isWorthGoingOn(answer))
        return m_done(m_report);
    ++m_step;
    next();
}

bool CameraWalk::isWorthGoingOn(const Answer &answer) const
{
    if (!answer.received)
        return false;
    return m_step > 0 || (isSoapFault(answer.fault) && !(m_withCredentials && answer.isRefusal()));
}

bool CameraWalk::isUnavailable(Service service) const
{
    return service == Service::Media && m_report.capabilities && !m_report.capabilities->hasMedia();
}

QString CameraWalk::xAddrOf(Service service) const
{
    if (!m_report.capabilities)
        return {};
    return service == Service::Media ? m_report.capabilities->media.xAddr : m_report.capabilities->device.xAddr;
}

} // namespace client
