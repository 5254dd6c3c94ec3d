#include <vorn/onvif/fields.h>
#include <vorn/onvif/paths.h>

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTextStream>

#include <cstdio>
#include <type_traits>

// Any record as JSON, and any field of one.
template <typename Value>
static QJsonValue jsonOf(const Value &value)
{
    if constexpr (vorn::hasFields<Value>) {
        QJsonObject object;
        vorn::visitFields([&](QLatin1StringView name, const auto &field) { object[name] = jsonOf(field); }, value);
        return object;
    } else if constexpr (vorn::isList<Value>) {
        QJsonArray array;
        for (const auto &entry : value)
            array.append(jsonOf(entry));
        return array;
    } else if constexpr (vorn::isMap<Value>) {
        QJsonObject object; // a key may have several values
        for (const QString &key : value.uniqueKeys())
            object[key] = jsonOf(value.values(key));
        return object;
    } else if constexpr (vorn::hasEnumerators<Value>) {
        return QString(vorn::enumeratorName(value));
    } else if constexpr (std::is_same_v<Value, unsigned int>) {
        return static_cast<qint64>(value);
    } else if constexpr (std::is_same_v<Value, QSize>) {
        return QJsonObject{{"width", value.width()}, {"height", value.height()}};
    } else if constexpr (std::is_same_v<Value, QRect>) {
        return QJsonArray{value.left(), value.top(), value.width(), value.height()};
    } else if constexpr (std::is_constructible_v<QJsonValue, Value>) {
        return value;
    } else {
        return {}; // a pointer to something of the program's own
    }
}

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    const QByteArray bytes = reply.readAll();
    QJsonObject json;
    const auto add = [&json](const char *name, const auto &list) {
        if (!list.isEmpty())
            json[name] = jsonOf(list);
    };
    add("relays", vorn::OnvifRelayOutputVector(bytes, vorn::paths::GetRelayOutputsResponse));
    add("encoders",
        vorn::OnvifVideoEncoderConfigurationVector(bytes, vorn::paths::GetVideoEncoderConfigurationsResponse));
    add("profiles", vorn::OnvifProfileVector(bytes, vorn::paths::GetProfilesResponse));
    add("scopes", vorn::OnvifScopeMap(bytes));
    out << QJsonDocument(json).toJson();
    return 0;
}
