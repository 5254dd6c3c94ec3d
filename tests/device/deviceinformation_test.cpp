#include "support/printing.h"

#include <vorn/onvif/device.h>

#include <gtest/gtest.h>

#include <type_traits>

using vorn::OnvifDeviceInformation;

static_assert(std::is_base_of_v<vorn::OnvifResponseStructure, OnvifDeviceInformation>);
static_assert(!std::is_base_of_v<vorn::OnvifDataStructure, OnvifDeviceInformation>);
static_assert(!std::is_polymorphic_v<OnvifDeviceInformation>);

namespace {

QByteArray replyWith(const QByteArray &fields)
{
    return "<s:Envelope xmlns:s='http://www.w3.org/2003/05/soap-envelope'"
           " xmlns:tds='http://www.onvif.org/ver10/device/wsdl'><s:Body><tds:GetDeviceInformationResponse>"
           + fields + "</tds:GetDeviceInformationResponse></s:Body></s:Envelope>";
}

const QByteArray wholeReply = replyWith("<tds:Manufacturer>Maker</tds:Manufacturer><tds:Model>Model 1</tds:Model>"
                                        "<tds:FirmwareVersion>1.2</tds:FirmwareVersion>"
                                        "<tds:SerialNumber>0042</tds:SerialNumber><tds:HardwareId>7B</tds:HardwareId>");

void expectWhole(const OnvifDeviceInformation &information)
{
    EXPECT_EQ(information.manufacturer, "Maker");
    EXPECT_EQ(information.model, "Model 1");
    EXPECT_EQ(information.firmwareVersion, "1.2");
    EXPECT_EQ(information.serialNumber, "0042");
    EXPECT_EQ(information.hardwareId, "7B");
    EXPECT_EQ(information.xml, QString::fromLatin1(wholeReply));
}

void expectNull(const OnvifDeviceInformation &information)
{
    EXPECT_TRUE(information.manufacturer.isNull());
    EXPECT_TRUE(information.model.isNull());
    EXPECT_TRUE(information.firmwareVersion.isNull());
    EXPECT_TRUE(information.serialNumber.isNull());
    EXPECT_TRUE(information.hardwareId.isNull());
}

TEST(OnvifDeviceInformation, isNullByDefault)
{
    const OnvifDeviceInformation information;
    expectNull(information);
    EXPECT_TRUE(information.xml.isEmpty());
}

TEST(OnvifDeviceInformation, readsAllFields)
{
    expectWhole(OnvifDeviceInformation(wholeReply));
}

TEST(OnvifDeviceInformation, readsFieldsInAnyOrder)
{
    const OnvifDeviceInformation information(
        replyWith("<tds:HardwareId>7B</tds:HardwareId><tds:SerialNumber>0042</tds:SerialNumber>"
                  "<tds:FirmwareVersion>1.2</tds:FirmwareVersion><tds:Model>Model 1</tds:Model>"
                  "<tds:Manufacturer>Maker</tds:Manufacturer>"));
    EXPECT_EQ(information.manufacturer, "Maker");
    EXPECT_EQ(information.model, "Model 1");
    EXPECT_EQ(information.firmwareVersion, "1.2");
    EXPECT_EQ(information.serialNumber, "0042");
    EXPECT_EQ(information.hardwareId, "7B");
}

TEST(OnvifDeviceInformation, missingElementsLeaveTheirFieldsNull)
{
    const OnvifDeviceInformation information(
        replyWith("<tds:Manufacturer>M</tds:Manufacturer><tds:Model>N</tds:Model>"));
    EXPECT_EQ(information.manufacturer, "M");
    EXPECT_EQ(information.model, "N");
    EXPECT_TRUE(information.firmwareVersion.isNull());
    EXPECT_TRUE(information.serialNumber.isNull());
    EXPECT_TRUE(information.hardwareId.isNull());
}

TEST(OnvifDeviceInformation, prefixesDoNotMatter)
{
    const OnvifDeviceInformation information(
        "<Envelope><Body><GetDeviceInformationResponse><Manufacturer>M</Manufacturer><undeclared:Model>N"
        "</undeclared:Model></GetDeviceInformationResponse></Body></Envelope>");
    EXPECT_EQ(information.manufacturer, "M");
    EXPECT_EQ(information.model, "N");
}

TEST(OnvifDeviceInformation, textIsVerbatim)
{
    EXPECT_EQ(OnvifDeviceInformation(replyWith("<Model> a &amp; B\n</Model>")).model, " a & B\n");
}

TEST(OnvifDeviceInformation, otherRepliesGiveNullFieldsAndKeepTheText)
{
    for (const QByteArray &reply :
         {QByteArray("<Envelope><Body><Fault><Model>x</Model></Fault></Body></Envelope>"),
          QByteArray("<GetDeviceInformationResponse><Model>x</Model></GetDeviceInformationResponse>"),
          QByteArray("not XML"), QByteArray("")}) {
        const OnvifDeviceInformation information(reply);
        expectNull(information);
        EXPECT_EQ(information.xml, QString::fromLatin1(reply));
    }
}

TEST(OnvifDeviceInformation, nullBytesGiveNullFields)
{
    expectNull(OnvifDeviceInformation(QByteArray()));
}

TEST(OnvifDeviceInformation, isCopiedMovedAndAssigned)
{
    const OnvifDeviceInformation source(wholeReply);
    OnvifDeviceInformation copy(source);
    expectWhole(copy);
    OnvifDeviceInformation moved(std::move(copy));
    expectWhole(moved);
    OnvifDeviceInformation assigned;
    assigned = moved;
    expectWhole(assigned);
    OnvifDeviceInformation moveAssigned;
    moveAssigned = std::move(moved);
    expectWhole(moveAssigned);
    EXPECT_EQ(moveAssigned.response.getText("/Model"), "Model 1");
}

} // namespace
