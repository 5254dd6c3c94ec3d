#include "core/queries.h"
#include "faultcodes.h"

#include <vorn/onvif/faults.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QStringView>

namespace vorn {
namespace {

using namespace Qt::StringLiterals;
using namespace faultcodes;

/// The row whose literal \a value ends with; null if there is none.
///
/// Each literal starts with a colon and holds no other. So only the end of the value from its last colon on can be one.
template <typename Row>
const Row *match(Rows<Row> rows, QStringView value)
{
    const qsizetype colon = value.lastIndexOf(u':');
    if (colon < 0)
        return nullptr;
    const QStringView end = value.sliced(colon);
    for (const Row &row : rows) {
        if (end == QLatin1String(row.literal.data(), qsizetype(row.literal.size())))
            return &row;
    }
    return nullptr;
}

/// The type of the first row whose text \a sentence contains, else \a otherwise.
OnvifFault::FaultType typeByText(Rows<TextCode> rows, const QString &sentence, OnvifFault::FaultType otherwise)
{
    for (const TextCode &row : rows) {
        if (sentence.contains(QLatin1String(row.text.data(), qsizetype(row.text.size()))))
            return row.type;
    }
    return otherwise;
}

const char *sentenceOf(const SoapCode &code, OnvifFault::SubcodeType subcodeType, OnvifFault::SpecificType specificType)
{
    const Subcode *subcode = find(code.subcodes, subcodeType);
    if (!subcode)
        return code.sentence;
    const SpecificCode *specific = find(subcode->specificCodes, specificType);
    if (specific && specific->sentence)
        return specific->sentence;
    return subcode->sentence ? subcode->sentence : code.sentence;
}

} // namespace

ErrorInterface::ErrorInterface() = default;
ErrorInterface::ErrorInterface(const ErrorInterface &other) = default;
ErrorInterface &ErrorInterface::operator=(const ErrorInterface &other) = default;
ErrorInterface::~ErrorInterface() = default;

OnvifFault::OnvifFault() = default;

OnvifFault::OnvifFault(const QByteArray &bytes, const char *requestName, unsigned int id)
    : OnvifResponseStructure(bytes, QString())
    , action(requestName)
    , m_responseId(id)
{
    classify();
}

OnvifFault::OnvifFault(const QByteArray &bytes, FaultType fault, SubcodeType subcode, SpecificType specific,
                       unsigned int id)
    : OnvifResponseStructure(bytes, QString())
    , faultType(fault)
    , subcodeType(subcode)
    , specificType(specific)
    , m_responseId(id)
{
}

OnvifFault::OnvifFault(const OnvifFault &other) = default;
OnvifFault::OnvifFault(OnvifFault &&other) noexcept = default;
OnvifFault &OnvifFault::operator=(const OnvifFault &other) = default;
OnvifFault &OnvifFault::operator=(OnvifFault &&other) noexcept = default;
OnvifFault::~OnvifFault() = default;

QString OnvifFault::toString() const
{
    const char *sentence = nullptr;
    if (const SoapCode *code = find(Rows(soapCodes), faultType)) {
        sentence = sentenceOf(*code, subcodeType, specificType);
        if (is(Sender, InvalidArgVal, FixedUser) && qstrcmp(action, "DeleteUsers") == 0)
            sentence = deletionOfFixedUser;
    } else {
        for (const Rows<TextCode> rows : {Rows(httpCodes), Rows(transportCodes), Rows(otherCodes)}) {
            if (const TextCode *row = find(rows, faultType))
                sentence = row->sentence;
        }
    }
    return tr(sentence ? sentence : unknownError);
}

int OnvifFault::errorId() const
{
    return faultType;
}

void OnvifFault::reset()
{
    xml.clear();
    response = XmlResponse(xml.toUtf8(), QString());
    faultType = NoFault;
}

bool OnvifFault::hasError() const
{
    return faultType != NoFault;
}

bool OnvifFault::is(FaultType fault) const
{
    return faultType == fault;
}

bool OnvifFault::is(FaultType fault, SubcodeType subcode) const
{
    return is(fault) && subcodeType == subcode;
}

bool OnvifFault::is(FaultType fault, SubcodeType subcode, SpecificType specific) const
{
    return is(fault, subcode) && specificType == specific;
}

unsigned int OnvifFault::responseId() const
{
    return m_responseId;
}

QString OnvifFault::tr(const char *sourceText, const char *disambiguation, int n)
{
    return QCoreApplication::translate("vorn::OnvifFault", sourceText, disambiguation, n);
}

void OnvifFault::classify()
{
    if (const auto code = foundText(elementAt(response, u"/Envelope/Body/Fault/Code/Value"_s)))
        classifySoapFault(*code);
    else if (const auto title = foundText(elementAt(response, u"/html/head/title"_s)))
        faultType = typeByText(httpCodes, *title, UnknownHttpError);
    else if (const auto reason = foundText(elementAt(response, u"/Fault/Reason/Text"_s)))
        faultType = typeByText(transportCodes, *reason, typeByText(httpCodes, *reason, UnknownTransportError));
}

void OnvifFault::classifySoapFault(const QString &value)
{
    const SoapCode *code = match(Rows(soapCodes), value);
    if (!code) {
        faultType = UnknownSoapCode;
        return;
    }
    const RecordElement fault = elementAt(response, u"/Envelope/Body/Fault"_s);
    if (code->type == Sender) {
        // Devices tell in the reason what their web server refused.
        const QString reason = fault.at(u"/Reason/Text"_s).text();
        if (reason.contains(QLatin1String("HTTP"))) {
            faultType = typeByText(httpCodes, reason, UnknownHttpError);
            return;
        }
    }
    faultType = code->type;
    if (code->subcodes.isEmpty())
        return;
    const QString subcodeValue = fault.at(u"/Code/Subcode/Value"_s).text();
    const Subcode *subcode = match(code->subcodes, subcodeValue);
    if (!subcode)
        return;
    subcodeType = subcode->type;
    if (subcode->specificCodes.isEmpty())
        return;
    if (const SpecificCode *specific = match(subcode->specificCodes, getSpecificCode()))
        specificType = specific->type;
}

QString OnvifFault::getSpecificCode()
{
    return elementAt(response, u"/Envelope/Body/Fault/Code/Subcode/Subcode/Value"_s).text();
}

} // namespace vorn
