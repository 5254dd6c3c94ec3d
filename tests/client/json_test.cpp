// All that is read of a device, as JSON, and nothing that it did not send.

#include "client/programs.h"

namespace {

using test::ReplyFolder;
using test::report;
using test::Result;
using test::samples;
using test::SimulatedDevice;

QJsonObject reportOf(const SimulatedDevice &device)
{
    const Result result = report(device, {"--address", "{address}", "--timeout", "60", "--json"});
    return QJsonDocument::fromJson(result.output.toUtf8()).object();
}

QJsonObject objectOf(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    EXPECT_FALSE(object.isEmpty()) << json.toStdString();
    return object;
}

std::string shown(const QJsonValue &value)
{
    return QJsonDocument(value.toObject()).toJson().toStdString();
}

TEST(Json, holdsAllFeaturesOfTheCapabilities)
{
    const SimulatedDevice device({samples("short-prefixes")});
    const QJsonObject expected = objectOf(R"({
        "network": {"ipFilter": true, "zeroConfiguration": true, "ipVersion6": true, "dynDns": false,
                    "dot11Configuration": true},
        "system": {"discoveryResolve": false, "discoveryBye": true, "remoteDiscovery": false, "systemBackup": true,
                   "firmwareUpgrade": true, "systemLogging": true, "httpSystemBackup": true,
                   "httpFirmwareUpgrade": true, "httpSystemLogging": false, "httpSupportInformation": true},
        "io": {"videoSources": 1, "videoOutputs": 0, "audioSources": 1, "relayOutputs": 1, "inputConnectors": 2,
               "auxiliary": true, "auxiliaryCommands": ["tt:Wiper|On", "tt:Wiper|Off"]},
        "security": {"tls10": false, "tls11": true, "tls12": true, "onboardKeyGeneration": true,
                     "accessPolicyConfig": true, "x509Token": false, "samlToken": false, "kerberosToken": false,
                     "relToken": false, "dot1x": true, "remoteUserHandling": false, "supportedEapMethods": [13, 25]},
        "media": {"rtpMulticast": true, "rtpTcp": false, "rtpRtspTcp": true, "maximumNumberOfProfiles": 16},
        "events": {"wsSubscriptionPolicySupport": false, "wsPullPointSupport": true,
                   "wsPausableSubscriptionManagerInterfaceSupport": false},
        "analytics": {"ruleSupport": true, "analyticsModuleSupport": true},
        "recording": {"dynamicRecordings": true, "dynamicTracks": false, "deleteData": true, "receiverSource": false,
                      "mediaProfileSource": true, "maxStringLength": 4096},
        "search": {"metadataSearch": true},
        "analyticsDevice": {"ruleSupport": true},
        "display": {"fixedLayout": true}
    })");
    const QJsonValue features = reportOf(device)["features"];
    EXPECT_EQ(features.toObject(), expected) << shown(features);
}

TEST(Json, holdsAllOfAProfile)
{
    const SimulatedDevice device({samples("short-prefixes")});
    const QByteArray expected = R"({
        "name": "main_stream", "token": "profile_1", "fixed": true,
        "videoSource": {"name": "Video source", "token": "vsc_1", "sourceToken": "vs_1", "useCount": 4,
                        "bounds": {"x": 0, "y": 0, "width": 1920, "height": 1080}},
        "videoEncoder": {"name": "encoder_main", "token": "vec_1", "encoding": "H264", "width": 1920, "height": 1080,
                         "quality": 4, "frameRateLimit": 25, "encodingInterval": 1, "bitrateLimit": 4096,
                         "multicast": {"ipv4Address": "224.1.2.1", "ipv6Address": null, "port": 8600, "ttl": 1,
                                       "autoStart": false},
                         "sessionTimeout": "PT60S", "useCount": 1},
        "audioSource": {"name": "Microphone", "token": "asc_1", "sourceToken": "as_1", "useCount": 4},
        "audioEncoder": {"name": "G711", "token": "aec_1", "encoding": "G711", "bitrate": 64, "sampleRate": 8,
                         "multicast": {"ipv4Address": "224.1.2.1", "ipv6Address": null, "port": 8700, "ttl": 1,
                                       "autoStart": false},
                         "sessionTimeout": "PT60S", "useCount": 4},
        "audioOutput": {"name": "Speaker", "token": "aoc_1", "outputToken": "ao_1", "outputLevel": 10,
                        "sendPrimacy": "www.onvif.org/ver20/HalfDuplex/Server", "useCount": 4},
        "ptz": {"name": "PTZ", "token": "ptz_1", "nodeToken": "node_1", "defaultPtzTimeout": "PT5S",
                "panTiltXRange": {"min": -1, "max": 1}, "panTiltYRange": {"min": -1, "max": 1},
                "zoomXRange": {"min": 0, "max": 1}, "useCount": 4},
        "videoAnalytics": {"name": "Analytics", "token": "vac_1", "useCount": 4,
                           "modules": [{"name": "MyCellMotion", "type": "tt:CellMotionEngine"}],
                           "rules": [{"name": "MyMotion", "type": "tt:CellMotionDetector"}]},
        "metadata": {"name": "Metadata", "token": "mc_1", "useCount": 4, "analytics": true, "ptzStatus": true,
                     "ptzPosition": false, "eventsFilter": null, "eventsSubscriptionPolicy": null,
                     "multicast": {"ipv4Address": "224.1.2.1", "ipv6Address": null, "port": 8800, "ttl": 1,
                                   "autoStart": false},
                     "sessionTimeout": "PT60S"},
        "streamOverUdp": "rtsp://127.0.0.1:554/profile_1?transport=UDP",
        "streamOverTcp": "rtsp://127.0.0.1:554/profile_1?transport=RTSP",
        "snapshot": "http://{address}/snapshot/profile_1"
    })";
    const QJsonValue profile = reportOf(device)["profiles"][0];
    EXPECT_EQ(profile.toObject(), objectOf(device.filledIn(expected).toUtf8())) << shown(profile);
}

TEST(Json, holdsNoFeatureThatTheDeviceDidNotSend)
{
    const ReplyFolder folder("GetCapabilities",
                             "<Capabilities><Device><Network><IPFilter>false</IPFilter><DynDNS>yes</DynDNS></Network>"
                             "</Device><Extension><DeviceIO><RelayOutputs>0</RelayOutputs></DeviceIO></Extension>"
                             "</Capabilities>");
    const SimulatedDevice device({folder.path()});
    const QJsonObject features = reportOf(device)["features"].toObject();
    EXPECT_EQ(features.size(), 11);
    QStringList sent;
    for (const QString &group : features.keys()) {
        const QJsonObject ofGroup = features[group].toObject();
        for (const QString &name : ofGroup.keys()) {
            const QJsonValue value = ofGroup[name];
            if (!value.isNull() && value != QJsonValue(QJsonArray()))
                sent += group + '.' + name;
        }
    }
    EXPECT_EQ(sent, (QStringList{"io.relayOutputs", "network.ipFilter"}));
    EXPECT_EQ(features["network"]["ipFilter"], QJsonValue(false));
    EXPECT_EQ(features["io"]["relayOutputs"], QJsonValue(0));
}

TEST(Json, holdsNothingOfAProfileThatTheDeviceDidNotSend)
{
    const ReplyFolder folder(
        "GetProfiles", "<Profiles><VideoEncoderConfiguration/><AudioEncoderConfiguration><Multicast><Port>x</Port>"
                       "</Multicast></AudioEncoderConfiguration><PTZConfiguration><PanTiltLimits><Range><XRange>"
                       "<Max>2.5</Max></XRange></Range></PanTiltLimits></PTZConfiguration><MetadataConfiguration/>"
                       "<Extension><AudioOutputConfiguration/></Extension></Profiles>");
    const SimulatedDevice device({folder.path()});
    const QJsonObject profile = reportOf(device)["profiles"][0].toObject();
    const QJsonObject multicast =
        objectOf(R"({"ipv4Address": null, "ipv6Address": null, "port": null, "ttl": null, "autoStart": null})");
    EXPECT_EQ(profile["audioEncoder"]["multicast"].toObject(), multicast);
    EXPECT_EQ(profile["ptz"]["panTiltXRange"].toObject(), objectOf(R"({"min": null, "max": 2.5})"));
    EXPECT_EQ(profile["ptz"]["panTiltYRange"], QJsonValue());
    EXPECT_EQ(profile["ptz"]["zoomXRange"], QJsonValue());
    for (const char *name : {"videoEncoder", "metadata", "audioOutput"}) {
        const QJsonObject configuration = profile[QLatin1String(name)].toObject();
        EXPECT_FALSE(configuration.isEmpty()) << name;
        for (const QJsonValue value : configuration)
            EXPECT_TRUE(value.isNull()) << name << shown(configuration);
    }
}

TEST(Json, holdsWhatAMetadataStreamIsFilteredBy)
{
    const ReplyFolder folder("GetProfiles",
                             "<Profiles><MetadataConfiguration><Events><Filter>tns1:VideoSource</Filter>"
                             "<SubscriptionPolicy>all</SubscriptionPolicy></Events><SessionTimeout>60</SessionTimeout>"
                             "</MetadataConfiguration></Profiles>");
    const SimulatedDevice device({folder.path()});
    const QJsonValue metadata = reportOf(device)["profiles"][0]["metadata"];
    EXPECT_EQ(metadata["eventsFilter"], QJsonValue("tns1:VideoSource"));
    EXPECT_EQ(metadata["eventsSubscriptionPolicy"], QJsonValue("all"));
    EXPECT_EQ(metadata["sessionTimeout"], QJsonValue("60"));
}

} // namespace
