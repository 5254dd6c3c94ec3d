#include "interfacechange.h"

#include <vorn/onvif/paths.h>

#include <QtCore/QStringList>
#include <QtNetwork/QHostAddress>

#include <algorithm>

namespace client {
namespace {

using Interface = vorn::OnvifNetworkInterface;

QString namesOf(const vorn::OnvifNetworkInterfaceVector &interfaces)
{
    QStringList names;
    for (const Interface &card : interfaces)
        names += card.name == card.token ? card.name : QString("%1 (%2)").arg(card.name, card.token);
    return names.isEmpty() ? "none" : names.join(", ");
}

QString complaintAbout(const Answer &answer)
{
    const QString complaint = answer.complaint();
    return complaint.isEmpty() ? complaint : QString("%1: %2").arg(answer.request.action, complaint);
}

} // namespace

std::optional<InterfaceChange> addressChange(const QString &text)
{
    const qsizetype equals = text.lastIndexOf('=');
    const qsizetype slash = text.lastIndexOf('/');
    if (equals < 1 || slash < equals)
        return std::nullopt;

    Interface::PrefixedAddress entry;
    entry.address = text.mid(equals + 1, slash - equals - 1);
    bool isNumber = false;
    entry.prefixLength = text.mid(slash + 1).toInt(&isNumber);
    const QHostAddress address(entry.address);
    // QHostAddress also takes forms such as "10.1", which a device need not know.
    const bool isAddress = address.protocol() == QHostAddress::IPv4Protocol && address.toString() == entry.address;
    if (!isAddress || !isNumber || entry.prefixLength < 1 || entry.prefixLength > 32)
        return std::nullopt;
    return InterfaceChange{text.left(equals), entry};
}

Request requestFor(const InterfaceChange &change, const Interface &current)
{
    Interface changed = current;
    changed.name = current.token.toHtmlEscaped(); // the request names the interface by this field, and escapes nothing
    changed.ipv4.enabled = true;
    changed.ipv4.config.dhcp = !change.address;
    if (change.address)
        changed.ipv4.config.manual = {*change.address};
    for (Interface::PrefixedAddress &entry : changed.ipv4.config.manual)
        entry.address = entry.address.toHtmlEscaped();
    return {Service::Device, "SetNetworkInterfaces", changed.toString()};
}

InterfaceChanger::InterfaceChanger(const QString &address, const Access &access, const InterfaceChange &change,
                                   bool apply, Done done)
    : m_url(deviceServiceUrl(address))
    , m_client(access)
    , m_change(change)
    , m_apply(apply)
    , m_done(std::move(done))
{
}

void InterfaceChanger::start()
{
    m_client.ask(m_url, {Service::Device, "GetNetworkInterfaces"}, [this](const Answer &answer) {
        const QString complaint = complaintAbout(answer);
        if (!complaint.isEmpty())
            return m_done({}, complaint);
        change(vorn::OnvifNetworkInterfaceVector(answer.bytes, vorn::paths::GetNetworkInterfacesResponse));
    });
}

void InterfaceChanger::change(const vorn::OnvifNetworkInterfaceVector &interfaces)
{
    const auto current = std::find_if(interfaces.begin(), interfaces.end(), [this](const Interface &card) {
        return card.token == m_change.interface || card.name == m_change.interface;
    });
    if (current == interfaces.end()) {
        return m_done({}, QString("The device has no network interface %1; it has: %2.")
                              .arg(m_change.interface, namesOf(interfaces)));
    }
    const Request request = requestFor(m_change, *current);
    const QByteArray toSend = message(request, {});
    if (!m_apply)
        return m_done(toSend, {});
    m_client.ask(m_url, request, [this, toSend](const Answer &answer) { m_done(toSend, complaintAbout(answer)); });
}

} // namespace client
