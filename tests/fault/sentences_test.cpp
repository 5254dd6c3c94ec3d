// The sentence for each verdict.

#include "expectations.h"
#include "support/allocations.h"
#include "support/printing.h"
#include "support/recordingtranslator.h"

#include <vorn/onvif/faults.h>

#include <QtCore/QCoreApplication>
#include <gtest/gtest.h>

#include <map>
#include <tuple>

using vorn::OnvifFault;

namespace {

OnvifFault stated(int fault, int subcode, int specific)
{
    return {QByteArray(), static_cast<OnvifFault::FaultType>(fault), static_cast<OnvifFault::SubcodeType>(subcode),
            static_cast<OnvifFault::SpecificType>(specific), 0};
}

TEST(FaultSentences, ofEachFaultType)
{
    for (const test::FaultSentence &row : test::faultSentences) {
        EXPECT_EQ(stated(row.faultType, 0, 0).toString(), row.sentence);
        EXPECT_EQ(stated(row.faultType, 8, 57).toString(), row.sentence) << "subcodes play no part here";
    }
}

TEST(FaultSentences, ofEachSubcode)
{
    for (const test::SubcodeSentence &row : test::subcodeSentences)
        EXPECT_EQ(stated(row.faultType, row.subcodeType, 0).toString(), row.sentence)
            << row.faultType << row.subcodeType;
}

TEST(FaultSentences, ofEachSpecificCode)
{
    for (const test::SpecificSentence &row : test::specificSentences)
        EXPECT_EQ(stated(row.faultType, row.subcodeType, row.specificType).toString(), row.sentence);
}

TEST(FaultSentences, ofEveryCombinationInAndOutsideTheRanges)
{
    std::map<int, QString> faults;
    for (const test::FaultSentence &row : test::faultSentences)
        faults[row.faultType] = row.sentence;
    std::map<std::pair<int, int>, QString> subcodes;
    for (const test::SubcodeSentence &row : test::subcodeSentences)
        subcodes[{row.faultType, row.subcodeType}] = row.sentence;
    std::map<std::tuple<int, int, int>, QString> specifics;
    for (const test::SpecificSentence &row : test::specificSentences)
        specifics[{row.faultType, row.subcodeType, row.specificType}] = row.sentence;

    for (int fault = -1; fault <= 20; ++fault) {
        for (int subcode = -1; subcode <= 16; ++subcode) {
            for (int specific = -1; specific <= 111; ++specific) {
                QString expected = "Unknown Error.";
                if (fault == 4 || fault == 5) {
                    const auto ofSubcode = subcodes.find({fault, subcode});
                    const auto ofSpecific = specifics.find({fault, subcode, specific});
                    expected = ofSubcode != subcodes.end() ? ofSubcode->second : subcodes[{fault, 0}];
                    if (ofSpecific != specifics.end())
                        expected = ofSpecific->second;
                } else if (faults.count(fault) != 0) {
                    expected = faults[fault];
                }
                ASSERT_EQ(stated(fault, subcode, specific).toString(), expected)
                    << fault << ' ' << subcode << ' ' << specific;
            }
        }
    }
}

TEST(FaultSentences, outsideTheFaultTypesAreUnknown)
{
    EXPECT_EQ(stated(-1, 0, 0).toString(), "Unknown Error.");
    EXPECT_EQ(stated(20, 0, 0).toString(), "Unknown Error.");
}

TEST(FaultSentences, threeFaultTypesShareUnknownError)
{
    EXPECT_EQ(stated(OnvifFault::HttpNotFound, 0, 0).toString(), "Unknown Error.");
    EXPECT_EQ(stated(OnvifFault::UnknownSoapCode, 0, 0).toString(), "Unknown Error.");
    EXPECT_EQ(stated(OnvifFault::UnknownTransportError, 0, 0).toString(), "Unknown Error.");
}

QByteArray fixedUserFault()
{
    return "<Envelope><Body><Fault><Code><Value>s:Sender</Value><Subcode><Value>ter:InvalidArgVal</Value><Subcode>"
           "<Value>ter:FixedUser</Value></Subcode></Subcode></Code></Fault></Body></Envelope>";
}

TEST(FaultSentences, ofAFixedUserDependsOnTheRequest)
{
    const char *const otherwise = "Password or user level may not be changed.";
    EXPECT_EQ(OnvifFault(fixedUserFault(), "DeleteUsers", 0).toString(), "Client trying to remove fixed user.");
    const std::string elsewhere = "DeleteUsers";
    EXPECT_EQ(OnvifFault(fixedUserFault(), elsewhere.c_str(), 0).toString(), "Client trying to remove fixed user.");
    EXPECT_EQ(OnvifFault(fixedUserFault(), "SetUser", 0).toString(), otherwise);
    EXPECT_EQ(OnvifFault(fixedUserFault(), "deleteusers", 0).toString(), otherwise);
    EXPECT_EQ(OnvifFault(fixedUserFault(), "DeleteUsersX", 0).toString(), otherwise);
    EXPECT_EQ(OnvifFault(fixedUserFault(), "XDeleteUsers", 0).toString(), otherwise);
    EXPECT_EQ(OnvifFault(fixedUserFault(), "", 0).toString(), otherwise);
    EXPECT_EQ(OnvifFault(fixedUserFault(), nullptr, 0).toString(), otherwise);
    EXPECT_EQ(stated(4, 8, 51).toString(), otherwise);

    OnvifFault fault = stated(4, 8, 51);
    fault.action = "DeleteUsers";
    EXPECT_EQ(fault.toString(), "Client trying to remove fixed user.");
}

TEST(FaultSentences, noOtherDependsOnTheRequest)
{
    for (const test::SpecificSentence &row : test::specificSentences) {
        OnvifFault fault = stated(row.faultType, row.subcodeType, row.specificType);
        fault.action = "DeleteUsers";
        if (row.faultType == 4 && row.subcodeType == 8 && row.specificType == 51)
            continue;
        EXPECT_EQ(fault.toString(), row.sentence);
    }
    OnvifFault receiver = stated(5, 8, 51);
    receiver.action = "DeleteUsers";
    EXPECT_EQ(receiver.toString(), "Unknown SOAP receiver error.");
}

TEST(FaultSentences, ofASystemLogFaultAreNotMatchedUp)
{
    const OnvifFault fault("<Envelope><Body><Fault><Code><Value>s:Sender</Value><Subcode><Value>ter:InvalidArgs</Value>"
                           "<Subcode><Value>ter:SystemlogUnavailable</Value></Subcode></Subcode></Code></Fault></Body>"
                           "</Envelope>",
                           "", 0);
    EXPECT_TRUE(fault.is(OnvifFault::Sender, OnvifFault::InvalidArgs, OnvifFault::SystemlogUnavailable));
    EXPECT_EQ(fault.toString(),
              "An error due to any of the following: missing argument, too many arguments or arguments "
              "are of the wrong data type.");
    EXPECT_EQ(stated(4, 8, 28).toString(), "There is no system log information available.");
}

TEST(FaultSentences, neverHoldTheDevicesWords)
{
    const OnvifFault fault(
        "<Envelope><Body><Fault><Code><Value>s:Sender</Value></Code><Reason><Text>secret</Text></Reason>"
        "</Fault></Body></Envelope>",
        "", 0);
    EXPECT_EQ(fault.toString(), "Unknown SOAP sender error.");
}

TEST(FaultSentences, allocateNothingButThemselves)
{
    const OnvifFault faults[] = {stated(0, 0, 0),    stated(4, 8, 77), stated(4, 8, 51),
                                 stated(5, 13, 109), stated(18, 0, 0), stated(99, 0, 0)};
    for (const OnvifFault &fault : faults) {
        const test::AllocationCounter allocations;
        const QString sentence = fault.toString();
        EXPECT_LE(allocations.count(), 1U);
    }
}

using FaultTranslation = test::TranslationTest;

TEST_F(FaultTranslation, asksOnceForEachSentenceInItsContext)
{
    const auto expectRequest = [this](const OnvifFault &fault, const char *sentence) {
        translator.requests.clear();
        EXPECT_EQ(fault.toString(), sentence);
        ASSERT_EQ(translator.requests.size(), 1U) << sentence;
        EXPECT_EQ(last().context, QByteArray("vorn::OnvifFault"));
        EXPECT_EQ(last().sourceText, QByteArray(sentence));
        EXPECT_TRUE(last().disambiguation.isNull()) << sentence;
        EXPECT_EQ(last().n, -1) << sentence;
    };
    for (const test::FaultSentence &row : test::faultSentences)
        expectRequest(stated(row.faultType, 0, 0), row.sentence);
    for (const test::SubcodeSentence &row : test::subcodeSentences)
        expectRequest(stated(row.faultType, row.subcodeType, 0), row.sentence);
    for (const test::SpecificSentence &row : test::specificSentences)
        expectRequest(stated(row.faultType, row.subcodeType, row.specificType), row.sentence);
    expectRequest(stated(77, 0, 0), "Unknown Error.");
    OnvifFault fixedUser = stated(4, 8, 51);
    fixedUser.action = "DeleteUsers";
    expectRequest(fixedUser, "Client trying to remove fixed user.");
}

TEST_F(FaultTranslation, trHandsItsArgumentsOn)
{
    EXPECT_EQ(OnvifFault::tr("%n faults", "note", 3), "3 faults");
    EXPECT_EQ(last().context, QByteArray("vorn::OnvifFault"));
    EXPECT_EQ(last().sourceText, QByteArray("%n faults"));
    EXPECT_EQ(last().disambiguation, QByteArray("note"));
    EXPECT_EQ(last().n, 3);
}

TEST_F(FaultTranslation, isShownToTheUser)
{
    test::UpperCaseTranslator upper;
    QCoreApplication::installTranslator(&upper);
    EXPECT_EQ(stated(0, 0, 0).toString(), "NO ERROR.");
}

} // namespace
