// The operations on addresses, and scope URIs.

#include "require.h"

#include <vorn/onvif/discovery.h>
#include <vorn/onvif/scopes.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>

#include <cstddef>
#include <cstdint>
#include <optional>

using fuzz::require;
using vorn::OnvifCamera;
using vorn::OnvifScope;

namespace {

using Operation = void (OnvifCamera::*)(QString &) const;

QString changed(Operation operation, QString address)
{
    (OnvifCamera().*operation)(address);
    return address;
}

/// Of \a host with a port, \a cut takes port 80 away and nothing else.
void checkDefaultPort(Operation cut, const QString &host)
{
    require(changed(cut, host) == host);
    require(changed(cut, host + QLatin1String(":80")) == host);
    for (const char *port : {":8", ":8080", ":180", ":"})
        require(changed(cut, host + QLatin1String(port)) == host + QLatin1String(port));
}

/// Numbers that are written with zeros before them keep their value.
void checkLeadingZeros(const QByteArray &bytes)
{
    QStringList numbers;
    QStringList padded;
    for (const char byte : bytes.first(4)) {
        const int number = 1 + static_cast<unsigned char>(byte) % 255;
        numbers.append(QString::number(number));
        padded.append(QString(number % 4, '0') + numbers.constLast());
    }
    for (const char *port : {"", ":8080", ":0"}) {
        const QString address = numbers.join('.') + QLatin1String(port);
        require(changed(&OnvifCamera::removeIPv4AddressLeadingZeros, padded.join('.') + QLatin1String(port))
                == address);
    }
}

/// What \a text is without its percent-encoding; of characters that are no digits, each version of Qt makes its own.
std::optional<QString> decoded(const QString &text)
{
    static const QRegularExpression badDigits(QStringLiteral("%(?![0-9A-Fa-f]{2})"));
    return text.contains(badDigits) ? std::nullopt : std::optional(QUrl::fromPercentEncoding(text.toUtf8()));
}

bool isDecoded(const QString &value, const QString &text)
{
    return value == decoded(text).value_or(value);
}

void checkScope(const QString &uri)
{
    const OnvifScope scope(uri);
    const QStringList parts = uri.split('/');
    require(scope.type == OnvifScope::Custom && scope.uri == uri && !scope.isNull());
    require(isDecoded(scope.key, parts.value(3)) && isDecoded(scope.value, parts.mid(4).join('/')));
    require(QString(scope) == scope.value);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString text = QString::fromUtf8(bytes);

    for (const Operation cut : {&OnvifCamera::removeIPv4AddressDefaultPort, &OnvifCamera::removeIPv6AddressDefaultPort})
        require(text.startsWith(changed(cut, text)));
    checkDefaultPort(&OnvifCamera::removeIPv4AddressDefaultPort, QString(text).remove(':'));
    checkDefaultPort(&OnvifCamera::removeIPv6AddressDefaultPort, '[' + QString(text).remove(']') + ']');

    // a "." behind each of at most four parts
    require(changed(&OnvifCamera::removeIPv4AddressLeadingZeros, text).size() <= text.size() + 4);
    if (bytes.size() >= 4)
        checkLeadingZeros(bytes);

    checkScope(text);
    const OnvifScope built(OnvifScope::Fixed, text, text);
    require(built.type == OnvifScope::Fixed && built.key == text && built.value == text);
    require(built.uri == QLatin1String("onvif://www.onvif.org/") + text + '/' + text);
    checkScope(built.uri);
    return 0;
}
