#include "core/queries.h"
#include "uriparts.h"
#include "xml/numbers.h"

#include <vorn/onvif/discovery.h>

#include <algorithm>
#include <utility>

namespace vorn {
namespace {

using namespace Qt::StringLiterals;

constexpr int defaultPort = 80;

// The parts of the URL of a service.
constexpr int schemePart = 0;
constexpr int hostPart = 2;

/// The name of a device that nobody has given a name to.
constexpr auto namelessCamera = "networkcamera"_L1;

/// Cuts \a address at \a colon if the default port stands behind it.
void cutDefaultPort(QString &address, qsizetype colon)
{
    if (toInt(QStringView(address).sliced(colon + 1)) == defaultPort)
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
    for (const QStringView url : addressUrls.tokenize(u' ')) {
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

/// Whether \a text is \a word once it is in lower case.
bool isInAnyCase(QStringView text, QLatin1String word)
{
    if (text.size() != word.size()) // lower case makes a word of ASCII from no text of another size
        return false;
    const auto isAscii = [](QChar character) { return character.unicode() < 0x80; };
    if (!std::all_of(text.begin(), text.end(), isAscii)) // comparing has other rules there than lower case has
        return text.toString().toLower() == word;
    return text.compare(word, Qt::CaseInsensitive) == 0;
}

/// What a type scope says of a device; null if it is nothing that counts.
QString kindOf(QStringView type)
{
    if (isInAnyCase(type, "video_encoder"_L1) || isInAnyCase(type, "network_video_transmitter"_L1))
        return u"Video"_s;
    if (isInAnyCase(type, "audio_encoder"_L1))
        return u"Audio"_s;
    if (isInAnyCase(type, "ptz"_L1))
        return u"PTZ"_s;
    if (isInAnyCase(type, "video_analytic"_L1))
        return u"Analytics"_s;
    return {};
}

/// Reads the scopes of a ProbeMatch one by one, as they hang together.
class ScopeReader
{
public:
    explicit ScopeReader(QMultiMap<QString, QString> &scopes)
        : m_scopes(scopes)
    {
    }

    void read(QStringView uri)
    {
        const QStringView parts = partsFrom(uri, categoryPart);
        const QStringView category = part(parts, 0);
        const QStringView values = partsFrom(parts, valuePart - categoryPart);
        const QStringView value = part(values, 0);
        if (isInAnyCase(category, "type"_L1))
            readType(value);
        else if (isInAnyCase(category, "name"_L1))
            readName(value);
        else if (isInAnyCase(category, "location"_L1))
            insert(u"location"_s, value);
        else if (isInAnyCase(category, "profile"_L1) && uri.endsWith("Streaming"_L1))
            m_scopes.insert(m_typeKey, u"ProfileS"_s);
        else if (isInAnyCase(category, "hardware"_L1))
            readHardware(values);
    }

private:
    void insert(const QString &key, QStringView value)
    {
        if (!value.isEmpty())
            m_scopes.insert(key, value.toString());
    }

    void readType(QStringView type)
    {
        const QString kind = kindOf(type);
        const bool isVideo = kind == "Video"_L1;
        if (!(isVideo && m_hasVideo)) // devices say it in two ways
            insert(m_typeKey, kind);
        m_hasVideo = m_hasVideo || isVideo;
    }

    void readName(QStringView name)
    {
        if (name != namelessCamera)
            m_scopes.replace(m_nameKey, percentDecoded(name));
    }

    /// The hardware stands for the name until there is one.
    void readHardware(QStringView hardware)
    {
        const QString name = m_scopes.value(m_nameKey);
        if (name.isEmpty() || name == namelessCamera)
            m_scopes.replace(m_nameKey, hardware.toString());
        insert(u"hardware"_s, hardware);
    }

    const QString m_typeKey = u"type"_s;
    const QString m_nameKey = u"name"_s;
    QMultiMap<QString, QString> &m_scopes;
    bool m_hasVideo = false;
};

} // namespace

OnvifCamera::OnvifCamera() = default;

OnvifCamera::OnvifCamera(const QByteArray &bytes)
    : OnvifResponseStructure(bytes, u"/Envelope/Body/ProbeMatches/ProbeMatch"_s)
{
    const auto addressUrls = foundText(elementAt(response, u"/XAddrs"_s));
    const auto scopeUris = foundText(elementAt(response, u"/Scopes"_s));
    valid = addressUrls && scopeUris;
    if (!valid)
        return;
    readAddresses(*this, *addressUrls);
    ScopeReader scopeReader(scopes);
    for (const QStringView uri : QStringView(*scopeUris).tokenize(u' '))
        scopeReader.read(uri);
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
    for (const QStringView number : QStringView(address).tokenize(u'.')) {
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
