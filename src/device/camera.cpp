#include "core/foundtext.h"
#include "uriparts.h"

#include <vorn/onvif/discovery.h>

#include <utility>

namespace vorn {
namespace {

using namespace Qt::StringLiterals;

constexpr int defaultPort = 80;

// The parts of the URL of a service and of the URI of a scope.
constexpr int schemePart = 0;
constexpr int hostPart = 2;
constexpr int categoryPart = 3;
constexpr int valuePart = 4;

/// The name of a device that nobody has given a name to.
constexpr auto namelessCamera = "networkcamera"_L1;

/// Cuts \a address at \a colon if the default port stands behind it.
void cutDefaultPort(QString &address, qsizetype colon)
{
    if (QStringView(address).sliced(colon + 1).toInt() == defaultPort)
        address.truncate(colon);
}

QStringView withoutLeadingZeros(QStringView number)
{
    while (number.startsWith(u'0'))
        number = number.sliced(1);
    return number;
}

void readAddresses(OnvifCamera &camera, QStringView addressUrls)
{
    const QList<QStringView> urls = addressUrls.split(u' ');
    for (const QStringView url : urls) {
        if (part(url, schemePart).startsWith("https"_L1))
            continue;
        QString address = part(url, hostPart).toString();
        if (address.isEmpty())
            continue;
        const bool isLinkLocal = address.startsWith("169.254"_L1) || address.startsWith("[fe80::"_L1);
        if (address.contains(u']')) {
            camera.removeIPv6AddressDefaultPort(address);
        } else {
            camera.removeIPv4AddressDefaultPort(address);
            camera.removeIPv4AddressLeadingZeros(address);
        }
        (isLinkLocal ? camera.linkLocalAddresses : camera.addresses).append(address);
    }
}

void readScopes(QMultiMap<QString, QString> &scopes, QStringView scopeUris)
{
    const QString typeKey = u"type"_s;
    const QString nameKey = u"name"_s;
    bool hasVideo = false;
    const QList<QStringView> uris = scopeUris.split(u' ');
    for (const QStringView uri : uris) {
        const QString category = part(uri, categoryPart).toString().toLower();
        const QStringView first = part(uri, valuePart);
        QString value;
        if (category == typeKey) {
            const QString type = first.toString().toLower();
            if (type == "video_encoder"_L1 || type == "network_video_transmitter"_L1) {
                if (!hasVideo) // devices say both
                    value = u"Video"_s;
                hasVideo = true;
            } else if (type == "audio_encoder"_L1) {
                value = u"Audio"_s;
            } else if (type == "ptz"_L1) {
                value = u"PTZ"_s;
            } else if (type == "video_analytic"_L1) {
                value = u"Analytics"_s;
            }
        } else if (category == nameKey) {
            if (first != namelessCamera)
                scopes.replace(nameKey, percentDecoded(first));
        } else if (category == "location"_L1) {
            value = first.toString();
        } else if (category == "profile"_L1) {
            if (uri.endsWith("Streaming"_L1))
                scopes.insert(typeKey, u"ProfileS"_s);
        } else if (category == "hardware"_L1) {
            const QString name = scopes.value(nameKey);
            value = partsFrom(uri, valuePart).toString();
            if (name.isEmpty() || name == namelessCamera)
                scopes.replace(nameKey, value);
        }
        if (!value.isEmpty())
            scopes.insert(category, value);
    }
}

} // namespace

OnvifCamera::OnvifCamera() = default;

OnvifCamera::OnvifCamera(const QByteArray &bytes)
    : OnvifResponseStructure(bytes, u"/Envelope/Body/ProbeMatches/ProbeMatch"_s)
{
    const auto addressUrls = foundText(response, u"/XAddrs"_s);
    const auto scopeUris = foundText(response, u"/Scopes"_s);
    valid = addressUrls && scopeUris;
    if (!valid)
        return;
    readAddresses(*this, *addressUrls);
    readScopes(scopes, *scopeUris);
    addresses.sort();
}

OnvifCamera::OnvifCamera(const QString &address, QSharedPointer<ConfCapture> confCapture)
    : addresses(address)
    , capture(std::move(confCapture))
{
}

OnvifCamera::OnvifCamera(const OnvifCamera &other) = default;
OnvifCamera::OnvifCamera(OnvifCamera &&other) noexcept = default;
OnvifCamera &OnvifCamera::operator=(const OnvifCamera &other) = default;
OnvifCamera &OnvifCamera::operator=(OnvifCamera &&other) noexcept = default;
OnvifCamera::~OnvifCamera() = default;

bool OnvifCamera::isValid() const
{
    return valid;
}

void OnvifCamera::removeIPv4AddressDefaultPort(QString &address) const
{
    const qsizetype colon = address.indexOf(u':');
    if (colon >= 0)
        cutDefaultPort(address, colon);
}

void OnvifCamera::removeIPv4AddressLeadingZeros(QString &address) const
{
    QString result;
    int count = 0;
    const QList<QStringView> numbers = QStringView(address).split(u'.');
    for (const QStringView number : numbers) {
        result += number == "0"_L1 ? number : withoutLeadingZeros(number);
        if (count < 3 && !result.contains(u':'))
            result += u'.';
        ++count;
    }
    address = result;
}

void OnvifCamera::removeIPv6AddressDefaultPort(QString &address) const
{
    const qsizetype colon = address.lastIndexOf(u':');
    if (colon > address.indexOf(u']')) // else it is part of the address
        cutDefaultPort(address, colon);
}

} // namespace vorn
