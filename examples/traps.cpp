#include <vorn/onvif/configurations.h>
#include <vorn/onvif/device.h>
#include <vorn/onvif/faults.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/profiles.h>
#include <vorn/onvif/relays.h>

#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QProperty>
#include <QtCore/QSet>
#include <QtCore/QTextStream>
#include <QtCore/QVariant>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

using vorn::OnvifAudioDecoderConfiguration;
using vorn::OnvifFault;
using vorn::OnvifMetadataConfiguration;
using vorn::OnvifNetworkInterface;
using vorn::OnvifProfile;

//! [member]
// Wrong: the setter that moc writes for MEMBER asks != first.
class WrongCamera : public QObject
{
    Q_OBJECT
    Q_PROPERTY(vorn::OnvifProfile profile MEMBER profile NOTIFY profileChanged)

public:
    OnvifProfile profile;

Q_SIGNALS:
    void profileChanged();
};

// Right: a setter that asks nothing.
class RightCamera : public QObject
{
    Q_OBJECT
    Q_PROPERTY(vorn::OnvifProfile profile READ profile WRITE setProfile NOTIFY profileChanged)

public:
    OnvifProfile profile() const { return m_profile; }

    void setProfile(const OnvifProfile &profile)
    {
        m_profile = profile;
        Q_EMIT profileChanged();
    }

Q_SIGNALS:
    void profileChanged();

private:
    OnvifProfile m_profile;
};

//! [member]

namespace {

void equality(QTextStream &out, const QByteArray &)
{
    //! [equality]
    const OnvifProfile before("hall", "profile_1", false);
    OnvifProfile after = before;
    after.name = "entrance";

    // Wrong: all of these compare tokens.
    out << "== finds " << (before == after ? "no change\n" : "a change\n");
    out << "a list finds " << (QList{before} == QList{after} ? "no change\n" : "a change\n");
    out << "QVariant finds "
        << (QVariant::fromValue(before) == QVariant::fromValue(after) ? "no change\n" : "a change\n");

    // Right: compare what the program depends on.
    out << "the names show " << (before.name == after.name ? "no change\n" : "a change\n");
    //! [equality]
}

void property(QTextStream &out, const QByteArray &)
{
    //! [property]
    const OnvifProfile before("hall", "profile_1", false);
    OnvifProfile after = before;
    after.name = "entrance";

    // Wrong: what counts as equal is not even stored.
    QProperty<OnvifProfile> wrong(before);
    wrong = after;
    out << "a property of the record holds " << wrong.value().name << '\n';

    // Right: pointers differ with each reading.
    QProperty<std::shared_ptr<const OnvifProfile>> right(std::make_shared<const OnvifProfile>(before));
    const auto handler = right.onValueChanged([&] { out << "changed: " << right.value()->name << '\n'; });
    right = std::make_shared<const OnvifProfile>(after);
    //! [property]
}

template <typename Camera>
int signalsOf(const QVariant &before, const QVariant &after)
{
    int count = 0;
    Camera camera;
    camera.setProperty("profile", before);
    QObject::connect(&camera, &Camera::profileChanged, &camera, [&] { ++count; });
    camera.setProperty("profile", after);
    return count;
}

void member(QTextStream &out, const QByteArray &)
{
    const OnvifProfile before("hall", "profile_1", false);
    OnvifProfile after = before;
    after.name = "entrance";
    const QVariant first = QVariant::fromValue(before);
    const QVariant second = QVariant::fromValue(after);
    out << "WrongCamera: " << signalsOf<WrongCamera>(first, second) << " signals\n";
    out << "RightCamera: " << signalsOf<RightCamera>(first, second) << " signal\n";
}

void hash(QTextStream &out, const QByteArray &)
{
    //! [hash]
    OnvifNetworkInterface before;
    before.token = "eth0";
    OnvifNetworkInterface after = before;
    after.mtu = 1400;
    out << (before == after ? "equal" : "not equal");
    out << (qHash(before) == qHash(after) ? ", the same hash\n" : ", other hashes\n");

    // Wrong: holds one or two, as chance will have it.
    QSet<OnvifNetworkInterface> wrong;
    wrong << before << after;

    // Right: the token is the key.
    QHash<QString, OnvifNetworkInterface> right;
    right.insert(before.token, before);
    right.insert(after.token, after);
    out << right.size() << " interface with the MTU " << right.value("eth0").mtu << '\n';
    //! [hash]
}

void null(QTextStream &out, const QByteArray &bytes)
{
    //! [null]
    const OnvifProfile profile(bytes, "/Envelope/Body/GetProfileResponse");
    const vorn::OnvifNetworkGateway gateway(bytes);
    vorn::OnvifRelayOutput relay;
    relay.token = "relay_1";

    // Wrong: a profile that is read never is null, a gateway always, and filling a record by hand changes nothing.
    out << (profile.isNull() ? "no profile, " : "a profile, ") << (gateway.isNull() ? "no gateway, " : "a gateway, ")
        << (relay.isNull() ? "no relay\n" : "a relay\n");

    // Right: ask for what makes the record worth having.
    const bool hasGateway = !gateway.ipv4Address.isEmpty() || !gateway.ipv6Address.isEmpty();
    out << (profile.token.isEmpty() ? "no profile, " : "a profile, ") << (hasGateway ? "a gateway, " : "no gateway, ")
        << (relay.token.isEmpty() ? "no relay\n" : "a relay\n");
    //! [null]
}

void copies(QTextStream &out, const QByteArray &)
{
    //! [copies]
    OnvifAudioDecoderConfiguration decoder;
    decoder.token = "adc_1";
    OnvifMetadataConfiguration metadata;
    metadata.analyticsEngineConfiguration.append(vorn::OnvifAnalyticsModule());

    // Wrong: decoders are lost by construction, modules by assignment.
    const OnvifAudioDecoderConfiguration lostDecoder = decoder;
    OnvifMetadataConfiguration lostModules;
    lostModules = metadata;
    out << "token \"" << lostDecoder.token << "\", " << lostModules.analyticsEngineConfiguration.size() << " modules\n";

    // Right: the other way round.
    OnvifAudioDecoderConfiguration keptDecoder;
    keptDecoder = decoder;
    const OnvifMetadataConfiguration keptModules = metadata;
    out << "token \"" << keptDecoder.token << "\", " << keptModules.analyticsEngineConfiguration.size() << " module\n";
    //! [copies]
}

void sorting(QTextStream &out, const QByteArray &bytes)
{
    //! [sorting]
    const vorn::OnvifCompatibleMetadataConfigurationVector read(bytes);
    const auto byUse = [](const OnvifMetadataConfiguration &left, const OnvifMetadataConfiguration &right) {
        return left.useCount < right.useCount;
    };
    for (const OnvifMetadataConfiguration &metadata : read)
        out << metadata.token << ": " << metadata.analyticsEngineConfiguration.size() << " modules\n";

    // Wrong: sorting assigns, so the modules stay where they are.
    vorn::OnvifCompatibleMetadataConfigurationVector wrong = read;
    std::sort(wrong.begin(), wrong.end(), byUse);
    for (const OnvifMetadataConfiguration &metadata : wrong)
        out << metadata.token << ": " << metadata.analyticsEngineConfiguration.size() << " modules, sorted wrongly\n";

    // Right: sort pointers to records that stay where they are.
    std::vector<const OnvifMetadataConfiguration *> right;
    for (const OnvifMetadataConfiguration &metadata : read)
        right.push_back(&metadata);
    std::sort(right.begin(), right.end(), [&](const auto *left, const auto *other) { return byUse(*left, *other); });
    for (const OnvifMetadataConfiguration *metadata : right)
        out << metadata->token << ": " << metadata->analyticsEngineConfiguration.size() << " modules, sorted rightly\n";
    //! [sorting]
}

//! [action]
// Wrong, and no compiler says so: the text is gone when this returns, and toString() reads it. Never called here.
[[maybe_unused]] OnvifFault wrongFault(const QByteArray &bytes, const QString &operation)
{
    return OnvifFault(bytes, operation.toUtf8().constData(), 0);
}

// Right: a literal, or a text that is kept beside the fault.
struct Verdict
{
    QByteArray action; // copies share the text, so that it stays where the fault looks for it
    OnvifFault fault;

    Verdict(const QByteArray &bytes, const QString &operation)
        : action(operation.toUtf8())
        , fault(bytes, action.constData(), 0)
    {
    }
};

//! [action]

void action(QTextStream &out, const QByteArray &bytes)
{
    const Verdict verdict(bytes, "DeleteUsers");
    out << verdict.fault.toString() << '\n';
}

// What does not compile, as the comment below says.
template <typename Response, typename = void>
constexpr bool canBeAsked = false;
template <typename Response>
constexpr bool canBeAsked<Response, std::void_t<decltype(std::declval<Response &>().getText(QString()))>> = true;
static_assert(canBeAsked<vorn::XmlResponse> && !canBeAsked<const vorn::XmlResponse>);

void constant(QTextStream &out, const QByteArray &bytes)
{
    //! [constant]
    const vorn::OnvifDeviceInformation device(bytes);

    // Wrong, and does not compile: queries for values and nodes are not const.
    // out << device.response.getText("/Model") << '\n';

    // Right: a view, or a copy of the response, which shares what was parsed.
    out << device.response.view("/Model").text() << '\n';
    vorn::XmlResponse response = device.response;
    out << response.getText("/Model") << '\n';
    //! [constant]
}

//! [nodes]
// Wrong: the response is gone when the node is asked, and with it what element looks at. Never called here.
[[maybe_unused]] qsizetype wrongCount(const QByteArray &bytes)
{
    const vorn::XmlResponseNode node = vorn::XmlResponse(bytes, "/Envelope/Body/GetProfilesResponse").get("/Profiles");
    return node.element.childNodes().count();
}

// Right: keep the response as long as its nodes, or ask a node for what is its own.
qsizetype rightCount(const QByteArray &bytes)
{
    vorn::XmlResponse response(bytes, "/Envelope/Body/GetProfilesResponse");
    const vorn::XmlResponseNode node = response.get("/Profiles");
    return node.element.childNodes().count();
}

qsizetype ownCount(const QByteArray &bytes)
{
    const vorn::XmlResponseNode node = vorn::XmlResponse(bytes, "/Envelope/Body/GetProfilesResponse").get("/Profiles");
    return node.children.size();
}

//! [nodes]

void nodes(QTextStream &out, const QByteArray &bytes)
{
    out << rightCount(bytes) << " child nodes, " << ownCount(bytes) << " children\n";
}

void names(QTextStream &out, const QByteArray &bytes)
{
    //! [names]
    vorn::XmlResponse response(bytes, "/Envelope/Body/GetProfilesResponse");
    const vorn::XmlResponseNode node = response.get("/Profiles");

    // Wrong: Qt's DOM takes the prefix for part of the name.
    out << "tag name: " << node.element.tagName() << '\n';
    out << "first child called Name: \"" << node.element.firstChildElement("Name").text() << "\"\n";

    // Right: paths and names of nodes are without prefixes.
    out << "name: " << node.name << '\n';
    out << "text at the path: \"" << response.getText(node, "/Profiles/Name") << "\"\n";
    //! [names]
}

// Does not compile, as the page says.
static_assert(!std::is_assignable_v<vorn::OnvifProfileVector &, QList<OnvifProfile>>);

void lists(QTextStream &out, const QByteArray &bytes)
{
    //! [lists]
    vorn::OnvifProfileVector profiles(bytes, "/Envelope/Body/GetProfilesResponse");
    const QList<OnvifProfile> rest = profiles.mid(1); // a plain QList, which has no response
    profiles.removeFirst();

    // Wrong: the response does not change with the list.
    const QList<vorn::XmlResponseNode> found = profiles.response.getAll("/Profiles");
    out << profiles.first().token << " is not " << found.first().element.attribute("token") << '\n';

    // Right: take what belongs together by its token.
    for (const OnvifProfile &profile : rest) {
        for (const vorn::XmlElementView view : profiles.response.viewAll("/Profiles")) {
            if (view.attribute("token") == profile.token)
                out << profile.token << " is " << view.at("/Name").text() << '\n';
        }
    }
    //! [lists]
}

} // namespace

int main(int argc, char **argv)
{
    const std::map<QByteArray, void (*)(QTextStream &, const QByteArray &)> traps = {
        {"equality", equality}, {"property", property}, {"member", member},   {"hash", hash},
        {"null", null},         {"copies", copies},     {"sorting", sorting}, {"action", action},
        {"constant", constant}, {"nodes", nodes},       {"names", names},     {"lists", lists},
    };
    const auto trap = traps.find(argc > 2 ? argv[2] : "");
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (trap == traps.end() || !reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);
    trap->second(out, reply.readAll());
    return 0;
}

#include "traps.moc"
