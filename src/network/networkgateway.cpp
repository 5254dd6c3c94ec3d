#include "core/queries.h"

#include <vorn/onvif/network.h>
#include <vorn/onvif/placeholderstring.h>

namespace vorn {

using namespace Qt::StringLiterals;

OnvifNetworkGateway::OnvifNetworkGateway() = default;

// The record stays null: that it was read is not noted in its flag.
OnvifNetworkGateway::OnvifNetworkGateway(const QByteArray &bytes)
{
    OnvifResponseStructure reply(bytes, u"/Envelope/Body/GetNetworkDefaultGatewayResponse/NetworkGateway"_s);
    readQueries(reply.response, {query(u"/IPv4Address", ipv4Address), query(u"/IPv6Address", ipv6Address)});
}

OnvifNetworkGateway::OnvifNetworkGateway(const OnvifNetworkGateway &other) = default;
OnvifNetworkGateway::OnvifNetworkGateway(OnvifNetworkGateway &&other) noexcept = default;
OnvifNetworkGateway &OnvifNetworkGateway::operator=(const OnvifNetworkGateway &other) = default;
OnvifNetworkGateway &OnvifNetworkGateway::operator=(OnvifNetworkGateway &&other) noexcept = default;
OnvifNetworkGateway::~OnvifNetworkGateway() = default;

QString OnvifNetworkGateway::toString() const
{
    QString text;
    const auto append = [&text](const char *element, const QString &address) {
        if (!address.isEmpty())
            text += PlaceHolderString(element, "$@").arg(address).qStr();
    };
    append("<tt:IPv4Address>$@</tt:IPv4Address>", ipv4Address);
    append("<tt:IPv6Address>$@</tt:IPv6Address>", ipv6Address);
    return text;
}

} // namespace vorn
