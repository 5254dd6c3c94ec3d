// Memory that runs out: one allocation after the other fails. A constructor gives the whole record or std::bad_alloc,
// and so does a query; the program goes on.

#include "samples/samples.h"
#include "support/failingallocation.h"

#include <vorn/onvif/compare.h>

#include <gtest/gtest.h>

#include <cctype>
#include <functional>
#include <new>
#include <optional>

using test::FailingAllocation;

namespace {

using namespace vorn;
using namespace Qt::StringLiterals;

const auto haveSameContent = [](const auto &one, const auto &other) { return sameContent(one, other); };

class Memory : public testing::TestWithParam<test::Sample>
{
protected:
    /// Has each allocation of \a read fail in turn. What was read all the same has to be the same by \a areSame as what
    /// is read without failure.
    template <typename Read, typename AreSame>
    void failEach(const char *name, const Read &read, const AreSame &areSame)
    {
        const auto whole = read();
        bool hasFailed = true;
        for (std::size_t number = 1; hasFailed; ++number) {
            std::optional<decltype(read())> result;
            {
                const FailingAllocation allocation(number);
                try {
                    result.emplace(read());
                } catch (const std::bad_alloc &) {
                }
                hasFailed = allocation.hasFailed();
            }
            if (result) {
                ASSERT_TRUE(areSame(*result, whole)) << name << " without allocation " << number;
            }
        }
    }

    template <typename List>
    void failEachOfList(const char *name, const QString &root)
    {
        const QByteArray bytes = reply();
        failEach(
            name, [&] { return List(bytes, root); }, haveSameContent);
    }

    template <typename Record>
    void failEachOfRecord(const char *name)
    {
        const QByteArray bytes = reply();
        failEach(
            name, [&] { return Record(bytes); }, haveSameContent);
    }

    QByteArray reply() const { return GetParam().bytes(); }

    /// The path of what the reply holds.
    QString root() const
    {
        XmlResponse response(reply(), QString());
        return "/Envelope/Body/"_L1 + (*response.view(u"/Envelope/Body").children().begin()).name();
    }
};

TEST_P(Memory, givesTheWholeRecordOrBadAlloc)
{
    failEachOfRecord<OnvifDeviceInformation>("OnvifDeviceInformation");
    failEachOfRecord<OnvifCapabilities>("OnvifCapabilities");
    failEachOfRecord<OnvifScopeMap>("OnvifScopeMap");
    failEachOfRecord<OnvifCamera>("OnvifCamera");
    failEachOfRecord<OnvifNetworkGateway>("OnvifNetworkGateway");
}

TEST_P(Memory, givesTheRightVerdictOrBadAlloc)
{
    const QByteArray bytes = reply();
    failEach(
        "OnvifFault", [&] { return OnvifFault(bytes, "GetProfiles", 1); },
        [](const OnvifFault &fault, const OnvifFault &whole) {
            return sameContent(fault, whole) && fault.xml == whole.xml;
        });
    failEach(
        "OnvifFault::toString",
        [&] {
            const OnvifFault fault(bytes, "DeleteUsers", 1);
            return fault.toString();
        },
        std::equal_to<>());
}

TEST_P(Memory, givesTheWholeListOrBadAlloc)
{
    const QString path = root();
    failEachOfList<OnvifProfileVector>("OnvifProfileVector", path);
    failEachOfList<OnvifNetworkInterfaceVector>("OnvifNetworkInterfaceVector", path);
    failEachOfList<OnvifRelayOutputVector>("OnvifRelayOutputVector", path);
    failEachOfList<OnvifVideoSourceConfigurationVector>("OnvifVideoSourceConfigurationVector", path);
    failEachOfList<OnvifVideoEncoderConfigurationVector>("OnvifVideoEncoderConfigurationVector", path);
    failEachOfList<OnvifAudioSourceConfigurationVector>("OnvifAudioSourceConfigurationVector", path);
    failEachOfList<OnvifAudioOutputConfigurationVector>("OnvifAudioOutputConfigurationVector", path);
    failEachOfList<OnvifAudioEncoderConfigurationVector>("OnvifAudioEncoderConfigurationVector", path);
    failEachOfList<OnvifAudioDecoderConfigurationVector>("OnvifAudioDecoderConfigurationVector", path);
    failEachOfList<OnvifVideoAnalyticsConfigurationVector>("OnvifVideoAnalyticsConfigurationVector", path);
    failEachOfList<OnvifPtzConfigurationVector>("OnvifPtzConfigurationVector", path);
    const QByteArray bytes = reply();
    failEach(
        "OnvifProfile", [&] { return OnvifProfile(bytes, path); }, haveSameContent);
}

TEST_P(Memory, givesTheWholeCompatibleListOrBadAlloc)
{
    failEachOfRecord<OnvifCompatibleVideoSourceConfigurationVector>("OnvifCompatibleVideoSourceConfigurationVector");
    failEachOfRecord<OnvifCompatibleVideoEncoderConfigurationVector>("OnvifCompatibleVideoEncoderConfigurationVector");
    failEachOfRecord<OnvifCompatibleAudioSourceConfigurationVector>("OnvifCompatibleAudioSourceConfigurationVector");
    failEachOfRecord<OnvifCompatibleAudioOutputConfigurationVector>("OnvifCompatibleAudioOutputConfigurationVector");
    failEachOfRecord<OnvifCompatibleAudioEncoderConfigurationVector>("OnvifCompatibleAudioEncoderConfigurationVector");
    failEachOfRecord<OnvifCompatibleAudioDecoderConfigurationVector>("OnvifCompatibleAudioDecoderConfigurationVector");
    failEachOfRecord<OnvifCompatibleVideoAnalyticsConfigurationVector>(
        "OnvifCompatibleVideoAnalyticsConfigurationVector");
    failEachOfRecord<OnvifCompatibleMetadataConfigurationVector>("OnvifCompatibleMetadataConfigurationVector");
    failEachOfRecord<OnvifCompatiblePtzConfigurationVector>("OnvifCompatiblePtzConfigurationVector");
}

TEST_P(Memory, givesTheRightAnswerOrBadAlloc)
{
    const QByteArray bytes = reply();
    const QString path = root();
    const auto failEachQuery = [&](const char *name, const auto &query) {
        failEach(
            name,
            [&] {
                XmlResponse response(bytes, QString());
                return query(response);
            },
            std::equal_to<>());
    };
    failEachQuery("xml", [](XmlResponse &response) { return response.xml(); });
    failEachQuery("getText", [&](XmlResponse &response) { return response.getText(path); });
    failEachQuery("getUInt", [&](XmlResponse &response) { return response.getUInt(path); });
    failEachQuery("getBool", [&](XmlResponse &response) { return response.getBool(path); });
    failEachQuery("getAttribute", [&](XmlResponse &response) { return response.getAttribute(u"token"_s, path); });
    failEachQuery("view", [&](XmlResponse &response) {
        QString answers;
        for (const XmlElementView view : response.viewAll(path)) {
            for (const XmlElementView child : view.children())
                answers += child.name() + child.text() + child.attribute(u"token") + QString::number(child.toDouble());
        }
        return answers;
    });
}

std::string nameOf(const testing::TestParamInfo<test::Sample> &info)
{
    std::string name = info.param.path;
    for (char &c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c)))
            c = '_';
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(, Memory, testing::ValuesIn(test::allSamples()), nameOf);

} // namespace
