#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"
#include "readenumeration.h"

#include <vorn/onvif/relays.h>

#include <QtCore/QCoreApplication>

namespace vorn {

using namespace Qt::StringLiterals;

static void readValue(const RecordElement &element, OnvifRelayOutput::RelayMode &mode)
{
    readEnumeration(element, mode,
                    {{"Monostable", OnvifRelayOutput::Monostable}, {"Bistable", OnvifRelayOutput::Bistable}});
}

static void readValue(const RecordElement &element, OnvifRelayOutput::IdleState &state)
{
    state = OnvifRelayOutput::Closed; // for every text but "open"
    readEnumeration(element, state, {{"open", OnvifRelayOutput::Open}});
}

static void readValue(const RecordElement &element, OnvifRelayOutput &relayOutput)
{
    relayOutput.token = element.attribute(u"token"_s);
    readChildren(element, {group("Properties", {
                                                   field("Mode", relayOutput.mode),
                                                   field("DelayTime", relayOutput.delayTime),
                                                   field("IdleState", relayOutput.idleState),
                                               })});
}

OnvifRelayOutput::OnvifRelayOutput() = default;

OnvifRelayOutput::OnvifRelayOutput(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
}

OnvifRelayOutput::OnvifRelayOutput(const OnvifRelayOutput &other) = default;
OnvifRelayOutput::OnvifRelayOutput(OnvifRelayOutput &&other) noexcept = default;
OnvifRelayOutput &OnvifRelayOutput::operator=(const OnvifRelayOutput &other) = default;
OnvifRelayOutput &OnvifRelayOutput::operator=(OnvifRelayOutput &&other) noexcept = default;
OnvifRelayOutput::~OnvifRelayOutput() = default;

bool OnvifRelayOutput::operator==(const OnvifRelayOutput &other) const
{
    return token == other.token;
}

bool OnvifRelayOutput::operator!=(const OnvifRelayOutput &other) const
{
    return !(*this == other);
}

QString vPrintable(OnvifRelayOutput::RelayMode mode)
{
    switch (mode) {
    case OnvifRelayOutput::Monostable:
        return QCoreApplication::translate("vorn::OnvifRelayOutput", "Monostable");
    case OnvifRelayOutput::Bistable:
        return QCoreApplication::translate("vorn::OnvifRelayOutput", "Bistable");
    }
    return {};
}

QString vPrintable(OnvifRelayOutput::IdleState state)
{
    switch (state) {
    case OnvifRelayOutput::Open:
        return QCoreApplication::translate("vorn::OnvifRelayOutput", "Open");
    case OnvifRelayOutput::Closed:
        return QCoreApplication::translate("vorn::OnvifRelayOutput", "Closed");
    }
    return {};
}

OnvifRelayOutputVector::OnvifRelayOutputVector() = default;

OnvifRelayOutputVector::OnvifRelayOutputVector(const QByteArray &bytes, const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    readElements(*this, {u"/RelayOutputs"_s});
}

OnvifRelayOutputVector::OnvifRelayOutputVector(const OnvifRelayOutputVector &other) = default;
OnvifRelayOutputVector::OnvifRelayOutputVector(OnvifRelayOutputVector &&other) noexcept = default;
OnvifRelayOutputVector &OnvifRelayOutputVector::operator=(const OnvifRelayOutputVector &other) = default;
OnvifRelayOutputVector &OnvifRelayOutputVector::operator=(OnvifRelayOutputVector &&other) noexcept = default;
OnvifRelayOutputVector::~OnvifRelayOutputVector() = default;

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifRelayOutput)
