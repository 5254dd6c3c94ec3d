#include "fault/faultcodes.h"
#include "outlines.h"
#include "tree.h"

namespace inspect {
namespace {

using vorn::OnvifFault;
namespace faultcodes = vorn::faultcodes;

/// The name of a code of SOAP: the literal that stands for it in a reply, without its colon. A code that no reply leads
/// to has none, and is shown by its number.
QString nameOf(std::string_view literal, int code)
{
    return literal.empty() ? QString::number(code)
                           : QString::fromLatin1(literal.data() + 1, qsizetype(literal.size() - 1));
}

QString nameOf(OnvifFault::FaultType type)
{
    using namespace vorn::faultcodes;
    if (const SoapCode *code = find(Rows(soapCodes), type))
        return nameOf(code->literal, type);
    for (const Rows<TextCode> rows : {Rows(httpCodes), Rows(transportCodes), Rows(otherCodes)}) {
        if (const TextCode *code = find(rows, type))
            return QString::fromLatin1(code->name);
    }
    return QString::number(type);
}

} // namespace

Outline outline(const OnvifFault &fault)
{
    QString subcodeName = QStringLiteral("NoSubcode");
    QString specificName = QStringLiteral("NoSpecific");
    if (const auto *code = faultcodes::find(faultcodes::Rows(faultcodes::soapCodes), fault.faultType)) {
        if (const auto *subcode = faultcodes::find(code->subcodes, fault.subcodeType)) {
            subcodeName = nameOf(subcode->literal, fault.subcodeType);
            if (const auto *specific = faultcodes::find(subcode->specificCodes, fault.specificType))
                specificName = nameOf(specific->literal, fault.specificType);
        }
    }
    Outline::Fields fields{
        {"faultType", nameOf(fault.faultType)}, {"subcodeType", subcodeName},   {"specificType", specificName},
        {"errorId", fault.errorId()},           {"sentence", fault.toString()},
    };
    // The device's own words. A fault that stands alone has none: whoever made it is no device.
    vorn::XmlResponse response = fault.response; // queries are not const
    const QString reason = response.getText(QStringLiteral("/Envelope/Body/Fault/Reason/Text"));
    if (!reason.isNull())
        fields.emplace_back(QStringLiteral("reason"), reason);
    const vorn::XmlResponseNode detail = response.get(QStringLiteral("/Envelope/Body/Fault/Detail"));
    if (detail.valid)
        fields.emplace_back(QStringLiteral("detail"), treeOf(detail));
    return fields;
}

} // namespace inspect
