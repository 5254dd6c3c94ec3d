// Devices that keep a client waiting: how long, and what is made of it.

#include "client/programs.h"

namespace {

using test::report;
using test::Result;
using test::samples;
using test::SimulatedDevice;

TEST(Silence, toOneRequestDoesNotEndTheReport)
{
    const SimulatedDevice device({samples("short-prefixes"), "--trouble", "GetScopes=silent"});
    const Result result = report(device, {"--address", "{address}", "--timeout", "5"});
    EXPECT_TRUE(result.output.contains("\nScopes\n  not answered: Failure when receiving data from the peer. (no "
                                       "complete reply within 5 s)\n"))
        << result.output.toStdString();
    EXPECT_TRUE(result.output.contains("AlarmOut_1"));
}

TEST(Silence, toTwoRequestsInARowEndsIt)
{
    const SimulatedDevice device(
        {samples("short-prefixes"), "--trouble", "GetScopes=silent", "--trouble", "GetProfiles=silent"});
    const Result result = report(device, {"--address", "{address}", "--timeout", "5"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(
        result.output.endsWith("Relay outputs\n  not answered: It was not asked, as the device has fallen silent.\n"))
        << result.output.toStdString();
    EXPECT_FALSE(result.output.contains("AlarmOut_1"));
}

} // namespace
