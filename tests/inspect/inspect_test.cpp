// The program onvif-inspect: its options, exit codes and what it prints where.

#include "samples/samples.h"
#include "support/patience.h"
#include "support/printing.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QString deviceInformation = QStringLiteral(SAMPLES_FOLDER "/short-prefixes/GetDeviceInformation.xml");
const QString hostname = QStringLiteral(SAMPLES_FOLDER "/short-prefixes/GetHostname.xml");

struct Result
{
    int exitCode = -1;
    QByteArray output;
    QByteArray errors;
};

Result inspect(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess process;
    process.start(QStringLiteral(INSPECT_PROGRAM), arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(test::patience) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QByteArray inBody(const QByteArray &content)
{
    return "<Envelope><Body>" + content + "</Body></Envelope>";
}

TEST(Inspect, readsAFile)
{
    const Result result = inspect({deviceInformation});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, QByteArray("GetDeviceInformationResponse\n"
                                        "  manufacturer: \"Example Optics\"\n"
                                        "  model: \"Bullet 4K\"\n"
                                        "  firmwareVersion: \"V2.1.0 build 250314\"\n"
                                        "  serialNumber: \"BULLET-4K-20250314-000271\"\n"
                                        "  hardwareId: \"88\"\n"));
    EXPECT_EQ(result.errors, QByteArray());
}

TEST(Inspect, readsStandardInput)
{
    const Result result =
        inspect({"-"}, inBody("<GetDeviceInformationResponse><Model>M</Model></GetDeviceInformationResponse>"));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.output.contains("model: \"M\"")) << result.output.toStdString();
}

TEST(Inspect, namesEachOfSeveralFiles)
{
    const Result result = inspect({deviceInformation, hostname});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.output.startsWith(deviceInformation.toUtf8() + ": GetDeviceInformationResponse\n"));
    EXPECT_TRUE(result.output.contains(hostname.toUtf8() + ": GetHostnameResponse\n"));
}

TEST(Inspect, saysWhichOperationItHasNoRecordFor)
{
    const Result result = inspect({hostname});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.output.startsWith("GetHostnameResponse\n  The library has no record for this reply.\n"));
}

const QByteArray withoutRecord =
    inBody("<x:GetThingsResponse xmlns:x='urn:x' b='2' a='&lt;1' x:c='3'><x:Thing token='t1'><Name>one</Name></x:Thing>"
           "<Thing token='t2'/><Empty/><Count>2</Count>\n<Mixed>a<B>b</B>c<![CDATA[d]]></Mixed></x:GetThingsResponse>");

TEST(Inspect, showsAllThatIsInAReplyWithoutARecord)
{
    const Result result = inspect({"-"}, withoutRecord);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, QByteArray("GetThingsResponse\n"
                                        "  The library has no record for this reply.\n"
                                        "  tree:\n"
                                        "    @a: \"<1\"\n"
                                        "    @b: \"2\"\n"
                                        "    @x:c: \"3\"\n"
                                        "    Thing:\n"
                                        "      @token: \"t1\"\n"
                                        "      Name: \"one\"\n"
                                        "    Thing:\n"
                                        "      @token: \"t2\"\n"
                                        "    Empty: \"\"\n"
                                        "    Count: \"2\"\n"
                                        "    Mixed:\n"
                                        "      #text: \"acd\"\n"
                                        "      B: \"b\"\n"));
}

TEST(Inspect, printsAllThatIsInAReplyWithoutARecordAsJson)
{
    const QJsonObject line = QJsonDocument::fromJson(inspect({"--json", "-"}, withoutRecord).output).object();
    EXPECT_TRUE(line["record"].isNull());
    const QJsonObject tree{
        {"@a", "<1"},
        {"@b", "2"},
        {"@x:c", "3"},
        {"Thing", QJsonArray{QJsonObject{{"@token", "t1"}, {"Name", "one"}}, QJsonObject{{"@token", "t2"}}}},
        {"Empty", ""},
        {"Count", "2"},
        {"Mixed", QJsonObject{{"#text", "acd"}, {"B", "b"}}}};
    EXPECT_EQ(line["tree"].toObject(), tree);
    EXPECT_FALSE(QJsonDocument::fromJson(inspect({"--json", deviceInformation}).output).object().contains("tree"));
}

TEST(Inspect, showsAFaultInTheDevicesOwnWords)
{
    const QByteArray fault = inBody("<Fault><Code><Value>s:Sender</Value></Code><Reason><Text>No\nway</Text></Reason>"
                                    "<Detail><Text>really</Text><Text>not</Text></Detail></Fault>");
    const QByteArray output = inspect({"-"}, fault).output;
    EXPECT_TRUE(output.endsWith("\n  reason: \"No\\nway\"\n  detail:\n    Text: \"really\"\n    Text: \"not\"\n"))
        << output.toStdString();
    const QJsonObject json =
        QJsonDocument::fromJson(inspect({"--json", "-"}, fault).output).object()["fault"].toObject();
    EXPECT_EQ(json["reason"].toString(), "No\nway");
    EXPECT_EQ(json["detail"].toObject()["Text"].toArray(), (QJsonArray{"really", "not"}));
}

TEST(Inspect, recognisesWhatIsNoReplyOfAnOperation)
{
    const std::pair<QByteArray, QByteArray> rows[] = {
        {inBody("<Fault><Code/></Fault>"), "SOAP fault\n"},
        {"<Fault><Reason><Text>Empty reply from Camera</Text></Reason></Fault>", "bare fault\n"},
        {"<html><head><title>404</title></head></html>", "HTML page\n"},
        {"<!DOCTYPE HTML><HTML><BR></HTML>", "HTML page\n"},
        {inBody(""), "SOAP envelope\n"},
        {"<Envelope/>", "SOAP envelope\n"},
        {"", "nothing\n"},
        {" \n", "nothing\n"},
        {"<other/>", "something else\n"},
        {"plain text", "something else\n"},
    };
    for (const auto &[reply, kind] : rows) {
        const Result result = inspect({"-"}, reply);
        EXPECT_EQ(result.exitCode, 1) << reply.toStdString();
        EXPECT_TRUE(result.output.startsWith(kind)) << reply.toStdString() << " -> " << result.output.toStdString();
    }
}

TEST(Inspect, printsJsonWithTheNamesOfTheFields)
{
    const Result result = inspect({"--json", deviceInformation, hostname});
    EXPECT_EQ(result.exitCode, 1);
    const QList<QByteArray> lines = result.output.split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[2], QByteArray());

    const QJsonObject first = QJsonDocument::fromJson(lines[0]).object();
    EXPECT_EQ(first.value("file").toString(), deviceInformation);
    EXPECT_EQ(first.value("reply").toString(), "GetDeviceInformationResponse");
    const QJsonObject expected{{"manufacturer", "Example Optics"},
                               {"model", "Bullet 4K"},
                               {"firmwareVersion", "V2.1.0 build 250314"},
                               {"serialNumber", "BULLET-4K-20250314-000271"},
                               {"hardwareId", "88"}};
    EXPECT_EQ(first.value("record").toObject(), expected);

    const QJsonObject second = QJsonDocument::fromJson(lines[1]).object();
    EXPECT_EQ(second.value("reply").toString(), "GetHostnameResponse");
    EXPECT_TRUE(second.value("record").isNull());
    EXPECT_EQ(second.value("remark").toString(), "The library has no record for this reply.");
}

const QString fixedUser = QStringLiteral(SAMPLES_FOLDER "/faults/FixedUser.xml");

TEST(Inspect, showsAConfigurationThatAProfileLacksAsNull)
{
    const Result result =
        inspect({"--json", "-"},
                inBody("<GetProfilesResponse><Profiles><VideoSourceConfiguration/></Profiles></GetProfilesResponse>"));
    const QJsonObject profile = QJsonDocument::fromJson(result.output).object()["record"].toArray().first().toObject();
    EXPECT_TRUE(profile["videoSource"].isObject());
    for (const char *field : {"audioSource", "videoEncoder", "audioEncoder", "videoAnalytics", "ptz", "metadata",
                              "audioOutput", "audioDecoder"})
        EXPECT_TRUE(profile.contains(QLatin1String(field)) && profile[QLatin1String(field)].isNull()) << field;
}

TEST(Inspect, showsNumbersAsShortAsTheyAreExact)
{
    const Result result = inspect(
        {"-"}, inBody("<GetVideoEncoderConfigurationsResponse><Configurations><Quality>0.1</Quality></Configurations>"
                      "</GetVideoEncoderConfigurationsResponse>"));
    EXPECT_TRUE(result.output.contains("quality: 0.1\n")) << result.output.toStdString();
}

TEST(Inspect, showsAFaultByNameNumberAndSentence)
{
    const Result result = inspect({fixedUser});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, QByteArray("SOAP fault\n"
                                        "  faultType: \"Sender\"\n"
                                        "  subcodeType: \"InvalidArgVal\"\n"
                                        "  specificType: \"FixedUser\"\n"
                                        "  errorId: 4\n"
                                        "  sentence: \"Password or user level may not be changed.\"\n"
                                        "  reason: \"fixed user\"\n"));
    EXPECT_EQ(result.errors, QByteArray());
}

TEST(Inspect, takesTheNameOfTheRequest)
{
    const Result result = inspect({"--action", "DeleteUsers", fixedUser});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.output.contains("sentence: \"Client trying to remove fixed user.\"\n"))
        << result.output.toStdString();
    EXPECT_EQ(inspect({"--action", "DeleteUsers", fixedUser, fixedUser}).output.count("fixed user."), 2);
    EXPECT_EQ(inspect({fixedUser, "--action"}).exitCode, 2);
}

TEST(Inspect, printsAFaultAsJson)
{
    const QJsonObject line = QJsonDocument::fromJson(inspect({"--json", fixedUser}).output).object();
    EXPECT_EQ(line.value("reply").toString(), "SOAP fault");
    EXPECT_FALSE(line.contains("record"));
    const QJsonObject expected{{"faultType", "Sender"},
                               {"subcodeType", "InvalidArgVal"},
                               {"specificType", "FixedUser"},
                               {"errorId", 4},
                               {"sentence", "Password or user level may not be changed."},
                               {"reason", "fixed user"}};
    EXPECT_EQ(line.value("fault").toObject(), expected);
}

TEST(Inspect, namesTheFaultsThatAreNotOfSoap)
{
    const auto page = [](const char *title) {
        return QByteArray("<html><head><title>") + title + "</title></head></html>";
    };
    const auto bare = [](const char *text) {
        return QByteArray("<Fault><Reason><Text>") + text + "</Text></Reason></Fault>";
    };
    const std::pair<QByteArray, QByteArray> rows[] = {
        {page("400"), "HttpBadRequest"},
        {page("401"), "HttpUnauthorised"},
        {page("404"), "HttpNotFound"},
        {page("405"), "HttpMethodNotAllowed"},
        {page("415"), "HttpUnsupportedMedia"},
        {page("500"), "UnknownHttpError"},
        {bare("URL using bad/illegal format or missing URL"), "BadUrl"},
        {bare("Failure when receiving data from the peer"), "ReceiveFailure"},
        {bare("Empty reply from Camera"), "EmptyReply"},
        {bare("Transferred a partial file"), "PartialFile"},
        {bare("Couldn't resolve host name"), "HostNotResolved"},
        {bare("Unsupported protocol"), "UnsupportedProtocol"},
        {bare("else"), "UnknownTransportError"},
        {inBody("<Fault><Code><Value>x</Value></Code></Fault>"), "UnknownSoapCode"},
    };
    for (const auto &[reply, name] : rows) {
        const QByteArray output = inspect({"-"}, reply).output;
        EXPECT_TRUE(output.contains("faultType: \"" + name + "\"\n")) << output.toStdString();
    }
}

TEST(Inspect, saysWhyAFaultCannotBeClassified)
{
    EXPECT_EQ(
        inspect({"-"}, inBody("<Fault><Code/></Fault>")).output,
        QByteArray("SOAP fault\n  It has no Code with a Value, as SOAP 1.2 wants it.\n  tree:\n    Code: \"\"\n"));
    EXPECT_EQ(inspect({"-"}, "<Fault><Reason/></Fault>").output,
              QByteArray("bare fault\n  It has no Reason with a Text.\n"));
}

const QString interfaces = QStringLiteral(SAMPLES_FOLDER "/many-namespaces/GetNetworkInterfaces.xml");
const QString gateway = QStringLiteral(SAMPLES_FOLDER "/many-namespaces/GetNetworkDefaultGateway.xml");
const QString relays = QStringLiteral(SAMPLES_FOLDER "/many-namespaces/GetRelayOutputs.xml");

const QByteArray interfacesAsRequest =
    "<tds:InterfaceToken>eth0</tds:InterfaceToken><tds:NetworkInterface><tt:Enabled>true</tt:Enabled><tt:IPv4>"
    "<tt:Enabled>true</tt:Enabled><tt:Manual><tt:Address>192.0.2.64</tt:Address><tt:PrefixLength>24</tt:PrefixLength>"
    "</tt:Manual><tt:DHCP>true</tt:DHCP></tt:IPv4></tds:NetworkInterface>\n"
    "<tds:InterfaceToken>wlan0</tds:InterfaceToken><tds:NetworkInterface><tt:Enabled>false</tt:Enabled><tt:IPv4>"
    "<tt:Enabled>false</tt:Enabled><tt:DHCP>false</tt:DHCP></tt:IPv4></tds:NetworkInterface>\n";

const QByteArray gatewayAsRequest =
    "<tt:IPv4Address>192.0.2.1</tt:IPv4Address><tt:IPv6Address>2001:db8:1:2::1</tt:IPv6Address>\n";

TEST(InspectRequest, printsEachInterface)
{
    const Result result = inspect({"--request", interfaces});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, interfacesAsRequest);
    EXPECT_EQ(result.errors, QByteArray());
}

TEST(InspectRequest, printsTheGateway)
{
    const Result result = inspect({"--request", gateway});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, gatewayAsRequest);
}

TEST(InspectRequest, printsThoseOfSeveralFilesInOrder)
{
    const Result good = inspect({"--request", gateway, interfaces});
    EXPECT_EQ(good.exitCode, 0);
    EXPECT_EQ(good.output, gatewayAsRequest + interfacesAsRequest);
    const Result other = inspect({"--request", relays, gateway});
    EXPECT_EQ(other.exitCode, 1);
    EXPECT_EQ(other.output, gatewayAsRequest);
}

TEST(InspectRequest, saysWhereThereIsNone)
{
    const std::pair<QByteArray, QByteArray> rows[] = {
        {inBody("<GetRelayOutputsResponse><RelayOutputs/></GetRelayOutputsResponse>"), "GetRelayOutputsResponse"},
        {inBody("<GetDeviceInformationResponse/>"), "GetDeviceInformationResponse"},
        {inBody("<GetNetworkInterfacesResponse/>"), "GetNetworkInterfacesResponse"},
        {inBody("<GetNetworkDefaultGatewayResponse/>"), "GetNetworkDefaultGatewayResponse"},
        {inBody("<Fault><Code><Value>s:Sender</Value></Code></Fault>"), "SOAP fault"},
        {inBody("<GetHostnameResponse/>"), "GetHostnameResponse"},
        {"", "nothing"},
    };
    for (const auto &[reply, kind] : rows) {
        const Result result = inspect({"--request", "-"}, reply);
        EXPECT_EQ(result.exitCode, 1) << reply.toStdString();
        EXPECT_EQ(result.output, QByteArray());
        EXPECT_EQ(result.errors, "onvif-inspect: - (" + kind + "): it holds nothing of which a request can be made.\n");
    }
}

TEST(InspectRequest, cannotBeJson)
{
    const Result result = inspect({"--request", "--json", gateway});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.output, QByteArray());
    EXPECT_EQ(result.errors, QByteArray("onvif-inspect: --json and --request exclude each other. Try --help.\n"));
}

TEST(InspectRequest, printsValuesAsTheyAreAwayFromATerminal)
{
    const Result result =
        inspect({"--request", "-"},
                inBody("<GetNetworkDefaultGatewayResponse><NetworkGateway><IPv4Address>\"a\\&lt;&#10;</IPv4Address>"
                       "</NetworkGateway></GetNetworkDefaultGatewayResponse>"));
    EXPECT_EQ(result.output, QByteArray("<tt:IPv4Address>\"a\\<\n</tt:IPv4Address>\n"));
}

TEST(Inspect, printsAListAsJson)
{
    const QJsonObject line = QJsonDocument::fromJson(inspect({"--json", relays}).output).object();
    const QJsonArray expected{
        QJsonObject{{"token", "RelayOutput_1"}, {"mode", "Bistable"}, {"delayTime", "PT0S"}, {"idleState", "Open"}},
        QJsonObject{
            {"token", "RelayOutput_2"}, {"mode", "Monostable"}, {"delayTime", "PT2.5S"}, {"idleState", "Closed"}}};
    EXPECT_EQ(line.value("record").toArray(), expected);
}

TEST(Inspect, saysThatAListIsEmpty)
{
    const Result result = inspect({"-"}, inBody("<GetRelayOutputsResponse/>"));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, QByteArray("GetRelayOutputsResponse none\n"));
}

TEST(Inspect, printsNothingThatCouldDisturbATerminal)
{
    const Result result = inspect({"-"}, inBody("<GetDeviceInformationResponse><Model>a&#27;[31m&#10;\"\\&#9;&#x202E;&#"
                                                "x9b;</Model></GetDeviceInformationResponse>"));
    EXPECT_TRUE(result.output.contains("model: \"a\\u001b[31m\\n\\\"\\\\\\t\\u202e\\u009b\"\n"))
        << result.output.toStdString();
}

TEST(Inspect, printsNothingThatCouldDisturbATerminalAsJsonEither)
{
    const Result result = inspect({"--json", "-"}, inBody("<GetDeviceInformationResponse><Model>&#x9b;&#x202e;&#xe0021;"
                                                          "</Model></GetDeviceInformationResponse>"));
    EXPECT_TRUE(result.output.contains(R"("model":"\u009b\u202e\udb40\udc21")")) << result.output.toStdString();
}

TEST(Inspect, usesNoColoursAwayFromATerminal)
{
    EXPECT_FALSE(inspect({deviceInformation}).output.contains('\033'));
}

TEST(Inspect, complainsAboutWrongArguments)
{
    for (const QStringList &arguments :
         {QStringList(), QStringList("--no-such-option"), QStringList("/no/such/file"), QStringList(SAMPLES_FOLDER)}) {
        const Result result = inspect(arguments);
        EXPECT_EQ(result.exitCode, 2) << arguments.join(' ').toStdString();
        EXPECT_EQ(result.output, QByteArray());
        EXPECT_TRUE(result.errors.startsWith("onvif-inspect: ")) << result.errors.toStdString();
    }
}

TEST(Inspect, readsTheOtherFilesWhenOneCannotBeRead)
{
    const Result result = inspect({"/no/such/file", deviceInformation});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.output.contains("Bullet 4K"));
    EXPECT_TRUE(result.errors.contains("/no/such/file"));
}

TEST(Inspect, hasHelpAndVersion)
{
    const Result help = inspect({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.output.contains("--json"));
    EXPECT_TRUE(help.output.contains("--request"));
    EXPECT_TRUE(help.output.contains("Exit codes"));
    const Result version = inspect({"--version"});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.output, QByteArray("onvif-inspect " PROJECT_VERSION_TEXT "\n"));
}

} // namespace
