#include "support/printing.h"

#include <vorn/onvif/discovery.h>

#include <gtest/gtest.h>

#include <type_traits>

using vorn::OnvifCamera;

/// The library knows the name only, so that a program defines its own.
class vorn::ConfCapture
{
public:
    ConfCapture() { ++alive; }

    ConfCapture(const ConfCapture &) = delete;
    ConfCapture &operator=(const ConfCapture &) = delete;

    ~ConfCapture() { --alive; }

    static inline int alive = 0;
};

static_assert(std::is_base_of_v<vorn::OnvifResponseStructure, OnvifCamera>);
static_assert(!std::is_polymorphic_v<OnvifCamera>);

namespace {

using Facts = QMultiMap<QString, QString>;

QByteArray probeMatch(const QByteArray &content)
{
    return "<s:Envelope xmlns:s='http://www.w3.org/2003/05/soap-envelope'"
           " xmlns:d='http://schemas.xmlsoap.org/ws/2005/04/discovery'><s:Header/"
           "><s:Body><d:ProbeMatches><d:ProbeMatch>"
           + content + "</d:ProbeMatch></d:ProbeMatches></s:Body></s:Envelope>";
}

OnvifCamera withAddresses(const QByteArray &addresses)
{
    return OnvifCamera(probeMatch("<d:XAddrs>" + addresses + "</d:XAddrs><d:Scopes/>"));
}

Facts factsOf(const QByteArray &scopes)
{
    return OnvifCamera(probeMatch("<d:XAddrs/><d:Scopes>" + scopes + "</d:Scopes>")).scopes;
}

/// Scope URIs from what stands behind the authority.
QByteArray scopes(const QList<QByteArray> &paths)
{
    QList<QByteArray> uris;
    for (const QByteArray &path : paths)
        uris.append("onvif://www.onvif.org/" + path);
    return uris.join(' ');
}

TEST(OnvifCamera, isValidAndEmptyByDefault)
{
    const OnvifCamera camera;
    EXPECT_TRUE(camera.isValid());
    EXPECT_TRUE(camera.valid);
    EXPECT_TRUE(camera.addresses.isEmpty());
    EXPECT_TRUE(camera.linkLocalAddresses.isEmpty());
    EXPECT_TRUE(camera.scopes.isEmpty());
    EXPECT_TRUE(camera.capture.isNull());
    EXPECT_EQ(camera.index, -1);
    EXPECT_TRUE(camera.xml.isEmpty());
}

TEST(OnvifCamera, isMadeFromAnAddressAsItStands)
{
    const QSharedPointer<vorn::ConfCapture> capture(new vorn::ConfCapture);
    const OnvifCamera camera("10.0.0.1:80", capture);
    EXPECT_EQ(camera.addresses, QStringList("10.0.0.1:80"));
    EXPECT_TRUE(camera.linkLocalAddresses.isEmpty());
    EXPECT_TRUE(camera.scopes.isEmpty());
    EXPECT_TRUE(camera.isValid());
    EXPECT_EQ(camera.capture, capture);
    EXPECT_EQ(camera.index, -1);
    EXPECT_TRUE(camera.xml.isEmpty());
    EXPECT_EQ(OnvifCamera(QString(), {}).addresses, QStringList(QString()));
}

TEST(OnvifCamera, sharesItsCaptureWithItsCopies)
{
    {
        OnvifCamera camera("10.0.0.1", QSharedPointer<vorn::ConfCapture>(new vorn::ConfCapture));
        EXPECT_EQ(vorn::ConfCapture::alive, 1);
        const OnvifCamera copy(camera);
        OnvifCamera assigned;
        assigned = copy;
        EXPECT_EQ(vorn::ConfCapture::alive, 1);
        EXPECT_EQ(assigned.capture, camera.capture);
        const OnvifCamera moved(std::move(camera));
        EXPECT_EQ(moved.capture, copy.capture);
        EXPECT_EQ(vorn::ConfCapture::alive, 1);
    }
    EXPECT_EQ(vorn::ConfCapture::alive, 0);
}

TEST(OnvifCamera, isCopiedMovedAndAssignedWithAllFields)
{
    OnvifCamera source(
        probeMatch("<XAddrs>http://10.0.0.1/x http://169.254.1.1/x</XAddrs><Scopes>onvif://x/name/n</Scopes>"));
    source.index = 7;
    source.valid = false;
    const auto isSource = [](OnvifCamera &camera) {
        return camera.addresses == QStringList("10.0.0.1") && camera.linkLocalAddresses == QStringList("169.254.1.1")
               && camera.scopes == Facts({{"name", "n"}}) && camera.index == 7 && !camera.isValid()
               && camera.xml.contains("ProbeMatch") && camera.response.get("/XAddrs").valid;
    };
    OnvifCamera copy(source);
    EXPECT_TRUE(isSource(copy));
    OnvifCamera moved(std::move(copy));
    EXPECT_TRUE(isSource(moved));
    OnvifCamera assigned;
    assigned = moved;
    EXPECT_TRUE(isSource(assigned));
    OnvifCamera moveAssigned;
    moveAssigned = std::move(moved);
    EXPECT_TRUE(isSource(moveAssigned));
}

TEST(OnvifCameraProbeMatch, needsAddressesAndScopes)
{
    for (const QByteArray &content : {QByteArray(), QByteArray("<d:XAddrs>http://10.0.0.1/</d:XAddrs>"),
                                      QByteArray("<d:Scopes>onvif://www.onvif.org/name/x</d:Scopes>"),
                                      QByteArray("<d:xaddrs>http://10.0.0.1/</d:xaddrs><d:Scopes/>")}) {
        const OnvifCamera camera(probeMatch(content));
        EXPECT_FALSE(camera.isValid()) << content.toStdString();
        EXPECT_TRUE(camera.addresses.isEmpty());
        EXPECT_TRUE(camera.linkLocalAddresses.isEmpty());
        EXPECT_TRUE(camera.scopes.isEmpty());
        EXPECT_EQ(camera.index, -1);
        EXPECT_EQ(camera.xml, QString::fromLatin1(probeMatch(content)));
    }
}

TEST(OnvifCameraProbeMatch, isValidWithEmptyAddressesAndScopes)
{
    const OnvifCamera camera(probeMatch("<d:XAddrs/><d:Scopes></d:Scopes>"));
    EXPECT_TRUE(camera.isValid());
    EXPECT_TRUE(camera.addresses.isEmpty());
    EXPECT_TRUE(camera.scopes.isEmpty());
    EXPECT_TRUE(camera.capture.isNull());
    EXPECT_EQ(camera.index, -1);
}

TEST(OnvifCameraProbeMatch, otherMessagesAreNotValid)
{
    const QByteArray content = "<XAddrs>http://10.0.0.1/</XAddrs><Scopes>onvif://www.onvif.org/name/x</Scopes>";
    for (const QByteArray &reply :
         {QByteArray(), QByteArray("no xml"), "<Envelope><Body><Hello>" + content + "</Hello></Body></Envelope>",
          "<Envelope><Body><Bye>" + content + "</Bye></Body></Envelope>",
          "<Envelope><Body><ResolveMatches><ResolveMatch>" + content
              + "</ResolveMatch></ResolveMatches></Body></Envelope>",
          "<Envelope><Body><ProbeMatches>" + content + "</ProbeMatches></Body></Envelope>"}) {
        const OnvifCamera camera(reply);
        EXPECT_FALSE(camera.isValid()) << reply.toStdString();
        EXPECT_EQ(camera.xml, QString::fromLatin1(reply));
    }
}

TEST(OnvifCameraProbeMatch, ofSeveralTheFirstIsRead)
{
    const OnvifCamera camera(probeMatch("<XAddrs>http://10.0.0.1/</XAddrs><Scopes/></d:ProbeMatch><d:ProbeMatch>"
                                        "<XAddrs>http://10.0.0.2/</XAddrs><Scopes/>"));
    EXPECT_EQ(camera.addresses, QStringList("10.0.0.1"));
}

TEST(OnvifCameraAddresses, areSplitNormalisedAndSorted)
{
    const OnvifCamera camera = withAddresses("http://192.168.001.020:80/onvif/device_service http://169.254.1.2/onvif "
                                             "https://192.168.1.20/onvif http://[fe80::1]:80/onvif");
    EXPECT_TRUE(camera.isValid());
    EXPECT_EQ(camera.addresses, QStringList("192.168.1.20"));
    EXPECT_EQ(camera.linkLocalAddresses, QStringList({"169.254.1.2", "[fe80::1]"}));
}

TEST(OnvifCameraAddresses, areSortedAsText)
{
    EXPECT_EQ(withAddresses("http://10.0.0.2/ http://10.0.0.10/ http://b.c.d.e/ http://B.c.d.e/").addresses,
              QStringList({"10.0.0.10", "10.0.0.2", "B.c.d.e", "b.c.d.e"}));
}

TEST(OnvifCameraAddresses, linkLocalOnesKeepDocumentOrder)
{
    EXPECT_EQ(
        withAddresses("http://[fe80::2]/ http://169.254.9.9/ http://[fe80::1]/ http://169.254.1.1/").linkLocalAddresses,
        QStringList({"[fe80::2]", "169.254.9.9", "[fe80::1]", "169.254.1.1"}));
}

TEST(OnvifCameraAddresses, duplicatesStay)
{
    EXPECT_EQ(withAddresses("http://169.254.1.1/a http://169.254.1.1/b").linkLocalAddresses.size(), 2);
    EXPECT_EQ(withAddresses("http://10.0.0.1/a http://10.0.0.1/b").addresses, QStringList({"10.0.0.1", "10.0.0.1"}));
}

struct AddressRow
{
    const char *url;
    QStringList addresses;
};

TEST(OnvifCameraAddresses, ofOneUrl)
{
    const AddressRow rows[] = {
        {"http://192.168.1.20:8080/onvif", {"192.168.1.20:8080"}},
        {"http://192.168.1.20:80", {"192.168.1.20"}},
        {"http://192.168.1.20", {"192.168.1.20"}},
        {"http://[2001:db8::1]:80/onvif", {"[2001:db8::1]"}},
        {"http://[2001:db8::1]:8080/onvif", {"[2001:db8::1]:8080"}},
        {"http://[FE80::1]/onvif", {"[FE80::1]"}}, // only the lower case is told to be link-local
        {"http://camera.local/onvif", {"camera.local."}},
        {"http://camera.local:80/onvif", {"camera.local."}},
        {"http://camera.local:8080/onvif", {"camera.local:8080"}},
        {"https://192.168.1.20/onvif", {}},
        {"httpsx://192.168.1.20/onvif", {}},
        {"HTTPS://host/onvif", {"host."}},
        {"soap.udp://10.0.0.1/x", {"10.0.0.1"}},
        {"10.0.0.1", {}},
        {"http:/10.0.0.1/x", {"x."}},
        {"http://", {}},
        {"http:///x", {}},
        {"", {}},
        {"http://2001:db8::1/x", {"2001:db8::1"}}, // no brackets: what stands behind the first colon is no port
    };
    for (const AddressRow &row : rows) {
        const OnvifCamera camera = withAddresses(row.url);
        EXPECT_EQ(camera.addresses, row.addresses) << row.url;
        EXPECT_TRUE(camera.linkLocalAddresses.isEmpty()) << row.url;
        EXPECT_TRUE(camera.isValid()) << row.url;
    }
}

TEST(OnvifCameraAddresses, linkLocalIsToldByTheRawText)
{
    EXPECT_EQ(withAddresses("http://169.254.001.002:80/").linkLocalAddresses, QStringList("169.254.1.2"));
    EXPECT_EQ(withAddresses("http://169.2540.0.1/").linkLocalAddresses, QStringList("169.2540.0.1"));
    EXPECT_EQ(withAddresses("http://0169.254.0.1/").addresses, QStringList("169.254.0.1"));
    EXPECT_EQ(withAddresses("http://[fe80:0::1]/").addresses, QStringList("[fe80:0::1]"));
}

TEST(OnvifCameraAddresses, onlyABlankSeparates)
{
    EXPECT_EQ(withAddresses("http://10.0.0.1/  http://10.0.0.2/ ").addresses, QStringList({"10.0.0.1", "10.0.0.2"}));
    EXPECT_EQ(withAddresses(" http://10.0.0.1/").addresses, QStringList("10.0.0.1"));
    // One text, of which the first host counts.
    EXPECT_EQ(withAddresses("http://10.0.0.1/a\nhttp://10.0.0.2/b").addresses, QStringList("10.0.0.1"));
    EXPECT_EQ(withAddresses("http://10.0.0.1\nhttp://10.0.0.2").addresses, QStringList("10.0.0.1\nhttp:"));
    EXPECT_EQ(withAddresses("http://10.0.0.1/a\thttps://10.0.0.2/b").addresses, QStringList("10.0.0.1"));
    EXPECT_EQ(withAddresses("\nhttps://10.0.0.1/a").addresses, QStringList("10.0.0.1"))
        << "the scheme starts with a line break";
}

TEST(OnvifCameraScopes, tellTheKind)
{
    EXPECT_EQ(factsOf(scopes({"type/video_encoder"})), Facts({{"type", "Video"}}));
    EXPECT_EQ(factsOf(scopes({"type/Network_Video_Transmitter"})), Facts({{"type", "Video"}}));
    EXPECT_EQ(factsOf(scopes({"type/audio_encoder"})), Facts({{"type", "Audio"}}));
    EXPECT_EQ(factsOf(scopes({"type/PTZ"})), Facts({{"type", "PTZ"}}));
    EXPECT_EQ(factsOf(scopes({"type/video_analytic"})), Facts({{"type", "Analytics"}}));
    EXPECT_EQ(factsOf(scopes({"TYPE/ptz/more"})), Facts({{"type", "PTZ"}}));
    EXPECT_EQ(factsOf(scopes({"type/video_analytics", "type/other", "type/", "type"})), Facts());
}

TEST(OnvifCameraScopes, tellVideoOnceAndOthersAsOftenAsSaid)
{
    EXPECT_EQ(
        factsOf(scopes({"type/video_encoder", "type/Network_Video_Transmitter", "type/video_encoder"})).values("type"),
        QStringList("Video"));
    EXPECT_EQ(factsOf(scopes({"type/audio_encoder", "type/audio_encoder"})).values("type"),
              QStringList({"Audio", "Audio"}));
    EXPECT_EQ(factsOf(scopes({"type/ptz", "type/ptz"})).values("type"), QStringList({"PTZ", "PTZ"}));
    EXPECT_EQ(factsOf(scopes({"type/video_encoder", "type/audio_encoder", "type/ptz"})).values("type"),
              QStringList({"PTZ", "Audio", "Video"}))
        << "the newest first";
}

TEST(OnvifCamera, typeIsComparedInLowerCase)
{
    EXPECT_EQ(factsOf(scopes({"TYPE/VIDEO_Encoder"})), Facts({{"type", "Video"}}));
    // The sign for kelvin is a k in lower case; the long s is in lower case already.
    EXPECT_EQ(factsOf(scopes({"type/Networ\xE2\x84\xAA_Video_Transmitter"})), Facts({{"type", "Video"}}));
    EXPECT_EQ(factsOf(scopes({"type/Network_Video_Tran\xC5\xBFmitter"})), Facts());
    EXPECT_EQ(factsOf(scopes({"type/Audio_Encoders", "type/PT\xC5\xBB"})), Facts());
}

TEST(OnvifCameraScopes, tellTheName)
{
    EXPECT_EQ(factsOf(scopes({"name/My%20Camera"})), Facts({{"name", "My Camera"}}));
    EXPECT_EQ(factsOf(scopes({"NAME/x"})), Facts({{"name", "x"}}));
    EXPECT_EQ(factsOf(scopes({"name/a/b"})), Facts({{"name", "a"}}));
    EXPECT_EQ(factsOf(scopes({"name/a", "name/b"})), Facts({{"name", "b"}}));
    EXPECT_EQ(factsOf(scopes({"name/NetworkCamera"})), Facts({{"name", "NetworkCamera"}}));
    EXPECT_EQ(factsOf(scopes({"name/networkcamera"})), Facts());
    EXPECT_EQ(factsOf(scopes({"name/K%C3%BCche"})), Facts({{"name", QStringLiteral(u"K\u00FCche")}}));
    EXPECT_EQ(factsOf(scopes({"name/"})), Facts({{"name", ""}}));
    EXPECT_EQ(factsOf(scopes({"name"})), Facts({{"name", ""}}));
}

TEST(OnvifCameraScopes, tellTheLocation)
{
    EXPECT_EQ(factsOf(scopes({"location/city/Paris"})), Facts({{"location", "city"}}));
    EXPECT_EQ(factsOf(scopes({"Location/My%20City"})), Facts({{"location", "My%20City"}}));
    EXPECT_EQ(factsOf(scopes({"location/a", "location/b"})).values("location"), QStringList({"b", "a"}));
    EXPECT_EQ(factsOf(scopes({"location/"})), Facts());
}

TEST(OnvifCameraScopes, tellTheStreamingProfile)
{
    EXPECT_EQ(factsOf(scopes({"Profile/Streaming"})), Facts({{"type", "ProfileS"}}));
    EXPECT_EQ(factsOf(scopes({"profile/x/MyStreaming"})), Facts({{"type", "ProfileS"}}));
    EXPECT_EQ(factsOf(scopes({"profile/Streaming", "profile/Streaming"})).values("type"),
              QStringList({"ProfileS", "ProfileS"}));
    EXPECT_EQ(factsOf(scopes({"profile/streaming", "profile/Streaming/", "profile/G", "profile"})), Facts());
}

TEST(OnvifCameraScopes, tellTheHardware)
{
    EXPECT_EQ(factsOf(scopes({"hardware/ABC/123"})), Facts({{"hardware", "ABC/123"}, {"name", "ABC/123"}}));
    EXPECT_EQ(factsOf(scopes({"hardware/A%20B"})), Facts({{"hardware", "A%20B"}, {"name", "A%20B"}}));
    EXPECT_EQ(factsOf(scopes({"hardware/a", "hardware/b"})).values("hardware"), QStringList({"b", "a"}));
    EXPECT_EQ(factsOf(scopes({"hardware/a", "hardware/b"})).values("name"), QStringList("a"));
    EXPECT_EQ(factsOf(scopes({"hardware"})), Facts({{"name", ""}}));
    EXPECT_EQ(factsOf(scopes({"hardware/", "hardware/b"})), Facts({{"hardware", "b"}, {"name", "b"}}));
}

TEST(OnvifCameraScopes, nameAndHardwareMayComeInAnyOrder)
{
    const Facts both({{"hardware", "H"}, {"name", "N"}});
    EXPECT_EQ(factsOf(scopes({"name/N", "hardware/H"})), both);
    EXPECT_EQ(factsOf(scopes({"hardware/H", "name/N"})), both);
    const Facts nameless({{"hardware", "H"}, {"name", "H"}});
    EXPECT_EQ(factsOf(scopes({"name/networkcamera", "hardware/H"})), nameless);
    EXPECT_EQ(factsOf(scopes({"hardware/H", "name/networkcamera"})), nameless);
    EXPECT_EQ(factsOf(scopes({"name/networkcamer%61", "hardware/H"})), nameless) << "a stored name is compared too";
    EXPECT_EQ(factsOf(scopes({"name/", "hardware/H"})), nameless);
}

TEST(OnvifCameraScopes, anEmptyNameOverwritesToo)
{
    EXPECT_EQ(factsOf(scopes({"hardware/H", "name/"})), Facts({{"hardware", "H"}, {"name", ""}}));
    EXPECT_EQ(factsOf(scopes({"name/a", "name/"})), Facts({{"name", ""}}));
}

TEST(OnvifCameraScopes, caseOfCategoryAndKindDoesNotMatter)
{
    EXPECT_EQ(factsOf(scopes({"HARDWARE/X"})), Facts({{"hardware", "X"}, {"name", "X"}}));
    EXPECT_EQ(factsOf(scopes({"type/Video_Encoder"})), Facts({{"type", "Video"}}));
    EXPECT_EQ(factsOf(scopes({"type/AUDIO_ENCODER"})), Facts({{"type", "Audio"}}));
    EXPECT_EQ(factsOf(scopes({"type/Video_Analytic"})), Facts({{"type", "Analytics"}}));
}

TEST(OnvifCameraScopes, otherCategoriesLeaveNoTrace)
{
    EXPECT_EQ(factsOf(scopes({"mac/00:11:22:33:44:55", "", "x"}) + " plain onvif:// ////y"), Facts());
}

TEST(OnvifCameraScopes, schemeAndAuthorityDoNotMatter)
{
    EXPECT_EQ(factsOf("odm://maker.example/name/x"), Facts({{"name", "x"}}));
    EXPECT_EQ(factsOf("///name/x"), Facts({{"name", "x"}}));
}

TEST(OnvifCameraScopes, areSeparatedByBlanksOnly)
{
    EXPECT_EQ(factsOf("onvif://www.onvif.org/name/x  onvif://www.onvif.org/type/ptz "),
              Facts({{"name", "x"}, {"type", "PTZ"}}));
    EXPECT_EQ(factsOf("onvif://www.onvif.org/hardware/x\nonvif://www.onvif.org/type/ptz").value("hardware"),
              "x\nonvif://www.onvif.org/type/ptz");
}

struct TextRow
{
    const char *before;
    const char *after;
};

QString changed(void (OnvifCamera::*operation)(QString &) const, const char *address)
{
    QString text = address;
    (OnvifCamera().*operation)(text);
    return text;
}

TEST(OnvifCameraAddress, losesTheDefaultPortOfAnIPv4Address)
{
    const TextRow rows[] = {
        {"192.168.1.20:80", "192.168.1.20"},
        {"192.168.1.20:080", "192.168.1.20"},
        {"192.168.1.20: 80", "192.168.1.20"},
        {"192.168.1.20:8080", "192.168.1.20:8080"},
        {"192.168.1.20:", "192.168.1.20:"},
        {"192.168.1.20", "192.168.1.20"},
        {"host:http", "host:http"},
        {":80", ""},
        {"a:80:80", "a:80:80"},
        {"a:1:80", "a:1:80"},
        {"", ""},
        {":", ":"},
        {"host:80x", "host:80x"},
        {"host:+80", "host"},
    };
    for (const TextRow &row : rows)
        EXPECT_EQ(changed(&OnvifCamera::removeIPv4AddressDefaultPort, row.before), row.after) << row.before;
}

TEST(OnvifCameraAddress, losesTheDefaultPortOfAnIPv6Address)
{
    const TextRow rows[] = {
        {"[2001:db8::1]:80", "[2001:db8::1]"},
        {"[2001:db8::1]:8080", "[2001:db8::1]:8080"},
        {"[2001:db8::1]", "[2001:db8::1]"},
        {"[2001:db8::80]", "[2001:db8::80]"},
        {"[2001:db8::1]:", "[2001:db8::1]:"},
        {"192.168.1.20:80", "192.168.1.20"},
        {"2001:db8::80", "2001:db8:"},
        {"host", "host"},
        {"", ""},
        {"]", "]"},
        {"[::1]x", "[::1]x"},
        {"[::1]:080", "[::1]"},
        {"[a]b]:80", "[a]b]"},
        {"80", "80"},
        {":80", ""},
    };
    for (const TextRow &row : rows)
        EXPECT_EQ(changed(&OnvifCamera::removeIPv6AddressDefaultPort, row.before), row.after) << row.before;
}

TEST(OnvifCameraAddress, losesLeadingZeros)
{
    const TextRow rows[] = {
        {"192.168.001.020", "192.168.1.20"},
        {"0.0.0.0", "0.0.0.0"},
        {"192.168.001.020:8080", "192.168.1.20:8080"},
        {"000.1.2.3", ".1.2.3"},
        {"10.000.0.1", "10..0.1"},
        {"camera.local", "camera.local."},
        {"host", "host."},
        {"1.2.3.4.5", "1.2.3.45"},
        {"", "."},
        {"camera.local:8080", "camera.local:8080"},
        {"a:1.b.c", "a:1bc"},
        {"1.2.3.04:08", "1.2.3.4:08"},
        {"0x1.02", "x1.2."},
        {"...", "..."},
        {"1.2.3.4.05.006", "1.2.3.456"},
        {"1.2.3.00", "1.2.3."},
    };
    for (const TextRow &row : rows)
        EXPECT_EQ(changed(&OnvifCamera::removeIPv4AddressLeadingZeros, row.before), row.after) << row.before;
}

TEST(OnvifCameraAddress, operationsChangeTheirArgumentOnly)
{
    const OnvifCamera camera("10.0.0.1:80", {});
    QString address = camera.addresses.first();
    camera.removeIPv4AddressDefaultPort(address);
    EXPECT_EQ(address, "10.0.0.1");
    EXPECT_EQ(camera.addresses, QStringList("10.0.0.1:80"));
}

TEST(OnvifCameraProbeMatch, isReadOrNotValidAtEveryLength)
{
    for (const char *prefix : {"", "d:", "wsdd:", "undeclared:"}) {
        const QByteArray p(prefix);
        const QByteArray message = "<?xml version='1.0'?><" + p + "Envelope><" + p + "Body><" + p + "ProbeMatches><" + p
                                   + "ProbeMatch><" + p + "Scopes>onvif://www.onvif.org/name/x</" + p + "Scopes><" + p
                                   + "XAddrs>http://10.0.0.1:80/onvif http://[fe80::1]/</" + p + "XAddrs></" + p
                                   + "ProbeMatch></" + p + "ProbeMatches></" + p + "Body></" + p + "Envelope>";
        for (qsizetype size = 0; size <= message.size(); ++size) {
            const OnvifCamera camera(message.first(size));
            const bool whole = size == message.size();
            EXPECT_EQ(camera.isValid(), whole) << prefix << size;
            EXPECT_EQ(camera.addresses, whole ? QStringList("10.0.0.1") : QStringList()) << prefix << size;
            EXPECT_EQ(camera.linkLocalAddresses, whole ? QStringList("[fe80::1]") : QStringList()) << prefix << size;
            EXPECT_EQ(camera.scopes, whole ? Facts({{"name", "x"}}) : Facts()) << prefix << size;
        }
    }
}

} // namespace
