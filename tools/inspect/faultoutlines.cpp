#include "fault/faultcodes.h"
#include "outlines.h"

#include <algorithm>
#include <iterator>

namespace inspect {
namespace {

using vorn::OnvifFault;
namespace faultcodes = vorn::faultcodes;

/// The name of a code of SOAP: the literal that stands for it in a reply, without its colon.
QString nameOf(std::string_view literal)
{
    return QString::fromLatin1(literal.data() + 1, qsizetype(literal.size() - 1));
}

QString nameOf(OnvifFault::FaultType type)
{
    if (const faultcodes::SoapCode *code = faultcodes::find(faultcodes::Rows(faultcodes::soapCodes), type))
        return nameOf(code->literal);

    struct Name
    {
        OnvifFault::FaultType type;
        const char *name;
    };

    static const Name names[] = {
        {OnvifFault::NoFault, "NoFault"},
        {OnvifFault::HttpBadRequest, "HttpBadRequest"},
        {OnvifFault::HttpUnauthorised, "HttpUnauthorised"},
        {OnvifFault::HttpNotFound, "HttpNotFound"},
        {OnvifFault::HttpMethodNotAllowed, "HttpMethodNotAllowed"},
        {OnvifFault::HttpUnsupportedMedia, "HttpUnsupportedMedia"},
        {OnvifFault::BadUrl, "BadUrl"},
        {OnvifFault::ReceiveFailure, "ReceiveFailure"},
        {OnvifFault::EmptyReply, "EmptyReply"},
        {OnvifFault::PartialFile, "PartialFile"},
        {OnvifFault::HostNotResolved, "HostNotResolved"},
        {OnvifFault::UnsupportedProtocol, "UnsupportedProtocol"},
        {OnvifFault::UnknownSoapCode, "UnknownSoapCode"},
        {OnvifFault::UnknownHttpError, "UnknownHttpError"},
        {OnvifFault::UnknownTransportError, "UnknownTransportError"},
    };
    const auto *const row = std::find_if(std::begin(names), std::end(names),
                                         [type](const Name &candidate) { return candidate.type == type; });
    return row != std::end(names) ? QString::fromLatin1(row->name) : QString::number(type);
}

} // namespace

Outline outline(const OnvifFault &fault)
{
    QString subcodeName = QStringLiteral("NoSubcode");
    QString specificName = QStringLiteral("NoSpecific");
    if (const auto *code = faultcodes::find(faultcodes::Rows(faultcodes::soapCodes), fault.faultType)) {
        if (const auto *subcode = faultcodes::find(code->subcodes, fault.subcodeType)) {
            subcodeName = nameOf(subcode->literal);
            if (const auto *specific = faultcodes::find(subcode->specificCodes, fault.specificType))
                specificName = nameOf(specific->literal);
        }
    }
    return Outline::Fields{
        {"faultType", nameOf(fault.faultType)}, {"subcodeType", subcodeName},   {"specificType", specificName},
        {"errorId", fault.errorId()},           {"sentence", fault.toString()},
    };
}

} // namespace inspect
