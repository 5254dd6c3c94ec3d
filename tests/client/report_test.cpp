// The whole report, from each style in which devices write.

#include "client/programs.h"
#include "samples/samples.h"
#include "support/lines.h"

#include <QtCore/QRegularExpression>

namespace {

using test::ReplyFolder;
using test::report;
using test::Result;
using test::samples;
using test::SimulatedDevice;

struct Style
{
    const char *name;
    QStringList notAnswered; ///< the requests that the folder has no reply to
};

void PrintTo(const Style &style, std::ostream *stream)
{
    *stream << style.name;
}

class Styles : public testing::TestWithParam<Style>
{
};

TEST_P(Styles, giveTheReportThatIsWrittenDown)
{
    const SimulatedDevice device({samples(GetParam().name)});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60"});
    const QByteArray expected = test::contentsOf(QString(EXPECTED_FOLDER "/%1.txt").arg(GetParam().name));
    ASSERT_FALSE(expected.isEmpty());
    static const QRegularExpression time("\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d UTC");
    const QString shown = QString(result.output).replace(time, "{time}");
    EXPECT_TRUE(test::sameLines(shown.toUtf8(), device.filledIn(QString::fromUtf8(expected)).toUtf8()));

    QString errors;
    if (!GetParam().notAnswered.isEmpty()) {
        errors = QString("camera-report: %1: %2: The requested action is optional and is not implemented by the device."
                         " (the device says: Not simulated)\n")
                     .arg(device.address(), GetParam().notAnswered.join(", "));
    }
    EXPECT_EQ(result.errors, errors);
    EXPECT_EQ(result.exitCode, errors.isEmpty() ? 0 : 1);
}

TEST_P(Styles, giveTheSameSectionsAsJson)
{
    const SimulatedDevice device({samples(GetParam().name)});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60", "--json"});
    const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
    const std::pair<const char *, const char *> rows[] = {
        {"GetDeviceInformation", "information"},
        {"GetCapabilities", "services"},
        {"GetCapabilities", "versions"},
        {"GetCapabilities", "features"},
        {"GetScopes", "scopes"},
        {"GetProfiles", "profiles"},
        {"GetNetworkInterfaces", "interfaces"},
        {"GetNetworkDefaultGateway", "gateway"},
        {"GetRelayOutputs", "relays"},
    };
    for (const auto &[request, section] : rows) {
        const bool isAnswered = !GetParam().notAnswered.contains(request);
        EXPECT_NE(json[QLatin1String(section)].toObject().contains("notAnswered"), isAnswered) << section;
    }
    EXPECT_EQ(json["failures"].toArray().size(), GetParam().notAnswered.size());
}

INSTANTIATE_TEST_SUITE_P(Report, Styles,
                         testing::Values(Style{"short-prefixes", {}}, Style{"many-namespaces", {}},
                                         Style{"no-prefixes",
                                               {"GetScopes", "GetProfiles", "GetNetworkInterfaces",
                                                "GetNetworkDefaultGateway", "GetRelayOutputs"}},
                                         Style{"undeclared-prefixes",
                                               {"GetCapabilities", "GetScopes", "GetProfiles", "GetNetworkInterfaces",
                                                "GetNetworkDefaultGateway", "GetRelayOutputs"}},
                                         Style{"sloppy",
                                               {"GetCapabilities", "GetNetworkDefaultGateway", "GetRelayOutputs"}}));

TEST(Report, isPrintedAsJson)
{
    const SimulatedDevice device({samples("short-prefixes"), "--trouble", "GetScopes=not-supported"});
    const Result result = report(device, {"--address", "{address}", "--json", "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output.count('\n'), 1);

    const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
    EXPECT_EQ(json["address"].toString(), device.address());
    const QJsonObject information{{"manufacturer", "Example Optics"},
                                  {"model", "Bullet 4K"},
                                  {"firmwareVersion", "V2.1.0 build 250314"},
                                  {"serialNumber", "BULLET-4K-20250314-000271"},
                                  {"hardwareId", "88"}};
    EXPECT_EQ(json["information"].toObject(), information);
    EXPECT_EQ(json["services"]["media"].toString(), device.filledIn("http://{address}/onvif/media"));
    EXPECT_EQ(json["profiles"][1]["videoEncoder"]["encoding"].toString(), "JPEG");
    EXPECT_EQ(json["interfaces"][0]["ipv4"]["manual"][1]["address"].toString(), "192.0.2.200");
    EXPECT_EQ(json["gateway"]["ipv4Address"].toString(), "203.0.113.1");
    EXPECT_EQ(json["relays"][1]["delayTime"].toString(), "PT30S");
    EXPECT_EQ(json["versions"].toArray(), (QJsonArray{"2.40", "2.20", "1.2"}));
    EXPECT_EQ(json["profiles"][0]["videoSource"]["sourceToken"].toString(), "vs_1");
    EXPECT_EQ(json["profiles"][0]["ptz"]["token"].toString(), "ptz_1");
    EXPECT_EQ(json["profiles"][0]["videoAnalytics"]["token"].toString(), "vac_1");
    EXPECT_EQ(json["profiles"][0]["metadata"]["token"].toString(), "mc_1");
    EXPECT_EQ(json["profiles"][1]["streamOverTcp"].toString(), "rtsp://127.0.0.1:554/profile_2?transport=RTSP");
    const QJsonObject link{{"autoNegotiation", true}, {"speed", 10}, {"duplex", "Half"}};
    EXPECT_EQ(json["interfaces"][0]["operSettings"].toObject(), link);
    EXPECT_EQ(json["clock"]["zone"].toString(), "UTC0");
    EXPECT_EQ(json["clock"]["secondsAhead"].toInt(-1), 0);

    EXPECT_EQ(json["scopes"].toObject(), (QJsonObject{{"notAnswered", json["failures"][0]["sentence"]}}));
    EXPECT_EQ(json["failures"].toArray().size(), 1);
    EXPECT_EQ(json["failures"][0]["request"].toString(), "GetScopes");
    EXPECT_EQ(
        json["failures"][0]["sentence"].toString(),
        "The requested action is optional and is not implemented by the device. (the device says: Not simulated)");
}

TEST(Report, goesOnAfterAFaultOfOneRequest)
{
    const SimulatedDevice device(
        {samples("short-prefixes"), "--answer", "GetProfiles=" + samples("faults/NoProfile.xml")});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.errors.startsWith(
        device.filledIn("camera-report: {address}: GetProfiles: The requested profile does not exist.")))
        << result.errors.toStdString();
    EXPECT_EQ(result.errors.count('\n'), 1);
    EXPECT_TRUE(result.output.contains("\nProfiles\n  not answered: The requested profile does not exist. ("));
    EXPECT_TRUE(result.output.contains("Relay outputs\n"));
}

TEST(Report, escapesWhatADeviceSays)
{
    const ReplyFolder folder("GetDeviceInformation", "<Model>a\x1b[2J\xe2\x80\xae\xe2\x80\xa8</Model>");
    const SimulatedDevice device({folder.path()});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60"});
    EXPECT_TRUE(result.output.contains("Model: a\\u001b[2J\\u202e\\u2028\n")) << result.output.toStdString();
}

TEST(Report, asksNoHostButTheOneThatItWasGiven)
{
    // The replies name 10.1.2.3 for all services. Nothing there would answer.
    const SimulatedDevice device({samples("short-prefixes"), "--keep-addresses"});
    QProcess process;
    process.start(QStringLiteral(REPORT_PROGRAM), {"--address", device.address(), "--timeout", "60"});
    const Result result = test::resultOf(process);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.output.contains("Media: http://10.1.2.3:8080/onvif/media\n"));
    EXPECT_TRUE(
        result.errors.contains("camera-report: http://10.1.2.3:8080/onvif/media is no address of the host that was "
                               "asked, which is asked instead\n"));
    EXPECT_TRUE(result.errors.contains(
        device.filledIn("camera-report: asking http://{address}/onvif/media for GetProfiles\n")));
}

TEST(Report, saysWhyThereAreNoProfilesWhereThereIsNoMediaService)
{
    const ReplyFolder folder("GetCapabilities", "<Capabilities/>");
    const SimulatedDevice device({samples("short-prefixes"), "--answer", "GetCapabilities=" + folder.fileName()});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_TRUE(
        result.output.contains("\nProfiles\n  not answered: It was not asked: the device names no media service.\n"))
        << result.output.toStdString();
    EXPECT_TRUE(result.output.contains("Relay outputs\n"));
}

} // namespace
