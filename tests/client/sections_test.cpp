// What stands in the sections of a report, beyond what the samples show.

#include "camera-report/clock.h"
#include "client/programs.h"

#include <QtCore/QTimeZone>

namespace {

using test::ReplyFolder;
using test::report;
using test::Result;
using test::samples;
using test::SimulatedDevice;

/// The section \a title of the report \a output.
QString section(const QString &output, const QString &title)
{
    const qsizetype start = output.indexOf("\n" + title + "\n") + 1;
    return start > 0 ? output.mid(start).section("\n\n", 0, 0).trimmed() : QString();
}

QString reportText(const SimulatedDevice &device)
{
    return report(device, {"--address", "{address}", "--timeout", "60"}).output;
}

QJsonObject reportJson(const SimulatedDevice &device)
{
    const Result result = report(device, {"--address", "{address}", "--timeout", "60", "--json"});
    return QJsonDocument::fromJson(result.output.toUtf8()).object();
}

const QByteArray noRelays = "";
const QByteArray oneRelay = "<RelayOutputs token=\"R1\"><Properties><Mode>Bistable</Mode><IdleState>open</IdleState>"
                            "</Properties></RelayOutputs>";

QByteArray capabilities(const QByteArray &inDevice, const QByteArray &inDeviceIO)
{
    return "<Capabilities><Device><XAddr>http://h/onvif/device_service</XAddr><IO><RelayOutputs>" + inDevice
           + "</RelayOutputs></IO></Device><Extension><DeviceIO><XAddr>http://h/onvif/deviceio</XAddr><RelayOutputs>"
           + inDeviceIO + "</RelayOutputs></DeviceIO></Extension></Capabilities>";
}

TEST(Relays, areAskedForWhereTheCapabilitiesPoint)
{
    const QTemporaryDir record;
    const ReplyFolder points("GetCapabilities", capabilities("0", "1"));
    const ReplyFolder there("GetRelayOutputs", oneRelay);
    const SimulatedDevice device({samples("short-prefixes"), "--answer", "GetCapabilities=" + points.fileName(),
                                  "--answer", "GetRelayOutputs.deviceio=" + there.fileName(), "--trouble",
                                  "GetProfiles=not-supported", "--record", record.path()});
    EXPECT_EQ(section(reportText(device), "Relay outputs"), "Relay outputs\n  R1: bistable, idle state open");
}

TEST(Relays, areAskedForElsewhereWhereThereAreNone)
{
    const std::pair<QByteArray, QByteArray> counts[] = {{"1", "0"}, {"0", "1"}, {"1", "1"}, {"", ""}};
    for (const auto &[inDevice, inDeviceIO] : counts) {
        const ReplyFolder points("GetCapabilities", capabilities(inDevice, inDeviceIO));
        const ReplyFolder none("GetRelayOutputs", noRelays);
        const ReplyFolder one("GetRelayOutputs", oneRelay);
        for (const bool isAtDevice : {true, false}) {
            const SimulatedDevice device({samples("short-prefixes"), "--answer", "GetCapabilities=" + points.fileName(),
                                          "--answer", "GetRelayOutputs=" + (isAtDevice ? one : none).fileName(),
                                          "--answer",
                                          "GetRelayOutputs.deviceio=" + (isAtDevice ? none : one).fileName()});
            EXPECT_EQ(section(reportText(device), "Relay outputs"), "Relay outputs\n  R1: bistable, idle state open");
        }
    }
}

TEST(Relays, areAskedForElsewhereAfterAFault)
{
    const ReplyFolder points("GetCapabilities", capabilities("0", "2"));
    const ReplyFolder one("GetRelayOutputs", oneRelay);
    const SimulatedDevice device({samples("short-prefixes"), "--answer", "GetCapabilities=" + points.fileName(),
                                  "--answer", "GetRelayOutputs=" + one.fileName(), "--answer",
                                  "GetRelayOutputs.deviceio=" + samples("faults/ActionNotSupported.xml")});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60"});
    EXPECT_EQ(section(result.output, "Relay outputs"), "Relay outputs\n  R1: bistable, idle state open");
    EXPECT_FALSE(result.errors.contains("GetRelayOutputs"));
}

TEST(Relays, areNoneWhereNeitherServiceHasAny)
{
    const ReplyFolder none("GetRelayOutputs", noRelays);
    const SimulatedDevice device({samples("short-prefixes"), "--answer", "GetRelayOutputs=" + none.fileName()});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_EQ(section(result.output, "Relay outputs"), "Relay outputs\n  none");
}

TEST(Interfaces, doNotHaveWhatTheDeviceDidNotSend)
{
    const ReplyFolder folder("GetNetworkInterfaces",
                             "<NetworkInterfaces token=\"e\"><Info><Name>eth0</Name></Info><Link><OperSettings>"
                             "<Duplex>half</Duplex></OperSettings></Link><IPv4><Enabled>1</Enabled><Config><Manual>"
                             "<Address>192.0.2.7</Address></Manual></Config></IPv4></NetworkInterfaces>");
    const SimulatedDevice device({folder.path()});
    EXPECT_EQ(section(reportText(device), "Network interfaces"), "Network interfaces\n  eth0 (e)\n    IPv4: 192.0.2.7");
    const QJsonObject card = reportJson(device)["interfaces"][0].toObject();
    const QJsonObject link{{"autoNegotiation", QJsonValue()}, {"speed", QJsonValue()}, {"duplex", QJsonValue()}};
    const QJsonObject ipv4{
        {"enabled", true},
        {"dhcp", QJsonValue()},
        {"manual", QJsonArray{QJsonObject{{"address", "192.0.2.7"}, {"prefixLength", QJsonValue()}}}},
        {"linkLocal", QJsonValue()},
        {"fromDHCP", QJsonValue()}};
    const QJsonObject expected{{"name", "eth0"},
                               {"token", "e"},
                               {"enabled", QJsonValue()},
                               {"hwAddress", QJsonValue()},
                               {"mtu", QJsonValue()},
                               {"interfaceType", QJsonValue()},
                               {"adminSettings", QJsonValue()},
                               {"operSettings", link},
                               {"ipv4", ipv4},
                               {"ipv6", QJsonValue()}};
    EXPECT_EQ(card, expected) << QJsonDocument(card).toJson().toStdString();
}

TEST(Relays, doNotHaveWhatTheDeviceDidNotSend)
{
    const ReplyFolder folder("GetRelayOutputs", "<RelayOutputs token=\"R1\"/><RelayOutputs token=\"R2\"><Properties>"
                                                "<IdleState>Open</IdleState></Properties></RelayOutputs>");
    const SimulatedDevice device({folder.path()});
    EXPECT_EQ(section(reportText(device), "Relay outputs"), "Relay outputs\n  R1\n  R2");
}

TEST(Uris, areThoseOfTheProfileThatIsNamed)
{
    const QTemporaryDir record;
    const SimulatedDevice device({samples("short-prefixes"), "--record", record.path()});
    const QString profiles = section(reportText(device), "Profiles");
    EXPECT_TRUE(profiles.contains(device.filledIn("    Stream over UDP: rtsp://127.0.0.1:554/profile_2?transport=UDP\n"
                                                  "    Stream over TCP: rtsp://127.0.0.1:554/profile_2?transport=RTSP\n"
                                                  "    Snapshot: http://{address}/snapshot/profile_2")))
        << profiles.toStdString();
}

TEST(Uris, thatAreNotAnsweredSayWhy)
{
    const SimulatedDevice device({samples("short-prefixes"), "--trouble", "GetSnapshotUri=not-supported"});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(
        result.output.count("    Snapshot: not answered: The requested action is optional and is not implemented"), 2);
    EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.toStdString();
    const QJsonObject profile = reportJson(device)["profiles"][0].toObject();
    EXPECT_TRUE(profile["snapshot"].toObject().contains("notAnswered"));
}

TEST(Sections, sayWhyThereIsNothingInAnyOfThem)
{
    const SimulatedDevice device({samples("short-prefixes"), "--trouble", "silent"});
    const Result result = report(device, {"--address", "{address}", "--timeout", "0.5", "--json"});
    const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
    EXPECT_EQ(json["clock"]["notAnswered"].toString(),
              "Failure when receiving data from the peer. (no complete reply within 0.5 s)");
    for (const char *name :
         {"information", "versions", "services", "features", "scopes", "profiles", "interfaces", "gateway", "relays"}) {
        EXPECT_EQ(json[QLatin1String(name)]["notAnswered"].toString(),
                  "It was not asked, as the device has fallen silent.")
            << name;
    }
}

TEST(Sections, areNotThereWhereARequestIsPrinted)
{
    const SimulatedDevice device({samples("short-prefixes")});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60", "--json", "--set-dhcp", "eth0"});
    const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
    EXPECT_EQ(json.keys(), (QStringList{"address", "request"}));
}

TEST(Clock, isShownBesideTheOwn)
{
    const std::pair<const char *, const char *> rows[] = {
        {"86400", "  Beside this machine: 24 hours ahead"},
        {"-172800", "  Beside this machine: 2 days behind"},
        {"0", "  Beside this machine: the same"},
    };
    for (const auto &[ahead, line] : rows) {
        const SimulatedDevice device({samples("undeclared-prefixes"), "--clock-ahead", ahead});
        EXPECT_TRUE(section(reportText(device), "Clock").endsWith(line)) << ahead;
    }
}

TEST(Clock, isReadWithItsZone)
{
    const client::DeviceClock clock = client::clockIn(
        "<Envelope><Body><GetSystemDateAndTimeResponse><SystemDateAndTime><DateTimeType>NTP</DateTimeType>"
        "<DaylightSavings>true</DaylightSavings><TimeZone><TZ>CET-1CEST</TZ></TimeZone><UTCDateTime><Time><Hour>23</"
        "Hour>"
        "<Minute>59</Minute><Second>58</Second></Time><Date><Year>2024</Year><Month>2</Month><Day>29</Day></Date>"
        "</UTCDateTime><LocalDateTime><Time><Hour>0</Hour><Minute>59</Minute><Second>58</Second></Time><Date>"
        "<Year>2024</Year><Month>3</Month><Day>1</Day></Date></LocalDateTime></SystemDateAndTime>"
        "</GetSystemDateAndTimeResponse></Body></Envelope>");
    EXPECT_EQ(clock.utc, QDateTime(QDate(2024, 2, 29), QTime(23, 59, 58), QTimeZone::utc()));
    EXPECT_EQ(clock.local.toString("yyyy-MM-dd HH:mm:ss"), "2024-03-01 00:59:58");
    EXPECT_EQ(clock.zone, "CET-1CEST");
    EXPECT_EQ(clock.daylightSaving, "true");
    EXPECT_EQ(clock.source, "NTP");

    const QDateTime sent = clock.utc.addSecs(-10);
    EXPECT_EQ(clock.secondsAhead(sent, sent.addSecs(20)), 0); // it may be the same
    EXPECT_EQ(clock.secondsAhead(sent, sent.addSecs(4)), 8);
    EXPECT_EQ(clock.secondsAhead(clock.utc.addSecs(60), clock.utc.addSecs(62)), -61);
}

TEST(Duration, isToldInTheUnitThatSaysItShortly)
{
    const std::pair<qint64, const char *> rows[] = {
        {1, "1 second"},   {119, "119 seconds"}, {120, "2 minutes"}, {7199, "120 minutes"},
        {7200, "2 hours"}, {86400, "24 hours"},  {172800, "2 days"}, {1000000000, "11574 days"},
    };
    for (const auto &[seconds, text] : rows)
        EXPECT_EQ(client::duration(seconds), text);
}

} // namespace
