#pragma once

#include "report.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>

#include <optional>

namespace client {

// What the device did not send is null.

inline QJsonValue orNull(const QString &text)
{
    return text.isNull() ? QJsonValue() : QJsonValue(text);
}

template <typename Value>
QJsonValue orNull(const std::optional<Value> &value)
{
    return value ? QJsonValue(*value) : QJsonValue();
}

/// What \a jsonOfRecord makes of the record of \a section, or an object that says why there is none.
template <typename Record, typename Function>
QJsonValue sectionJson(const Section<Record> &section, Function jsonOfRecord)
{
    if (!section.record)
        return QJsonObject{{"notAnswered", section.notAnswered}};
    return jsonOfRecord(*section.record);
}

/// What the services of a device can do.
QJsonObject featuresJson(const vorn::OnvifCapabilities &capabilities);

/// The profiles of \a report.
QJsonArray profilesJson(const Report &report);

QJsonArray interfacesJson(const vorn::OnvifNetworkInterfaceVector &interfaces);
QJsonArray relaysJson(const vorn::OnvifRelayOutputVector &relays);

} // namespace client
