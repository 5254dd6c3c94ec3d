// What is made of answers to a probe.

#include "camera-report/foundcamera.h"
#include "client/programs.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace {

using client::FoundCamera;
using client::foundCamera;

const QHostAddress sender("192.0.2.7");

QByteArray probeMatch(const QByteArray &scopes, const QByteArray &xAddrs)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Envelope><Body><ProbeMatches><ProbeMatch>"
           "<EndpointReference><Address>urn:uuid:1</Address></EndpointReference><Scopes>"
           + scopes + "</Scopes><XAddrs>" + xAddrs + "</XAddrs></ProbeMatch></ProbeMatches></Body></Envelope>";
}

const QByteArray namedCam = "onvif://www.onvif.org/type/video_encoder onvif://www.onvif.org/name/Cam";

TEST(FoundCamera, isReadWithAnyWhiteSpaceBetweenItsScopesAndAddresses)
{
    const auto found =
        foundCamera(probeMatch("\r\n  onvif://www.onvif.org/type/video_encoder\n"
                               "\tonvif://www.onvif.org/type/ptz\n"
                               "  onvif://www.onvif.org/name/K%C3%B6ln\n  onvif://www.onvif.org/hardware/C1\n",
                               "\n  http://192.0.2.7/onvif/device_service\n"
                               "\thttp://192.0.2.8:8080/onvif/device_service\n"),
                    sender);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, QString::fromUtf8("K\xc3\xb6ln"));
    EXPECT_EQ(found->hardware, "C1");
    EXPECT_EQ(found->types, (QStringList{"Video", "PTZ"}));
    EXPECT_EQ(found->endpoint, "urn:uuid:1");
    EXPECT_EQ(found->addresses, (QStringList{"192.0.2.7", "192.0.2.8:8080"}));
    EXPECT_EQ(found->ownAddress(), "192.0.2.7");
}

TEST(FoundCamera, isReadInUtf16)
{
    const QString text = QString::fromLatin1(probeMatch(namedCam, "http://192.0.2.7/").replace("UTF-8", "UTF-16"));
    const QByteArray bytes(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
    EXPECT_EQ(client::withPlainSpaces(bytes), bytes);
    const auto found = foundCamera(bytes, sender);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, "Cam");
}

TEST(FoundCamera, namesItsAddressesOfTls)
{
    const auto found =
        foundCamera(probeMatch(namedCam, "https://192.0.2.7/onvif/device_service https://192.0.2.9:8443/x "
                                         "https://u:p@192.0.2.7/onvif/device_service"),
                    sender);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->addresses, (QStringList{"https://192.0.2.7", "https://192.0.2.9:8443/x"}));
    EXPECT_EQ(found->ownAddress(), "https://192.0.2.7");
}

TEST(FoundCamera, isAskedAtThePathThatItNames)
{
    const std::pair<const char *, const char *> rows[] = {
        {"http://192.0.2.7/onvif/device_service", "192.0.2.7"},
        {"http://192.0.2.7:8080/onvif/services", "http://192.0.2.7:8080/onvif/services"},
        {"http://192.0.2.8/onvif/services http://192.0.2.7/onvif/services", "http://192.0.2.7/onvif/services"},
        {"http://192.0.2.7/a http://192.0.2.7:81/b", "192.0.2.7"},
        {"http://192.0.2.8/onvif/services", ""},
        {"", ""},
    };
    for (const auto &[xAddrs, own] : rows) {
        const auto found = foundCamera(probeMatch(namedCam, xAddrs), sender);
        ASSERT_TRUE(found) << xAddrs;
        EXPECT_EQ(found->ownAddress(), own) << xAddrs;
    }
}

TEST(FoundCamera, isNoneInAnotherMessage)
{
    EXPECT_FALSE(foundCamera("", sender));
    EXPECT_FALSE(foundCamera("<Envelope><Body><Hello/></Body></Envelope>", sender));
}

} // namespace
