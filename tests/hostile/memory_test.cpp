// Memory that runs out: one allocation after the other fails. A constructor gives the whole record or std::bad_alloc,
// and so does a query; the program goes on.

#include "fuzz/sameview.h"
#include "samples/samples.h"
#include "support/failingallocation.h"
#include "support/sanitizers.h"

#include <vorn/onvif/compare.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <functional>
#include <new>
#include <optional>

#ifdef ADDRESS_SANITIZED
#include <sanitizer/lsan_interface.h>
#endif

using test::FailingAllocation;

namespace {

using namespace vorn;
using namespace Qt::StringLiterals;

const auto haveSameContent = [](const auto &one, const auto &other) { return sameContent(one, other); };

/// Where QDom was interrupted, it leaks what it had begun, and the library what it had half made.
class LeaksAllowed
{
public:
#ifdef ADDRESS_SANITIZED
    LeaksAllowed()
    {
        __lsan_disable();
    }

    ~LeaksAllowed()
    {
        __lsan_enable();
    }
#else
    LeaksAllowed() {} // NOLINT(modernize-use-equals-default): or it would count as unused
#endif

    LeaksAllowed(const LeaksAllowed &) = delete;
    LeaksAllowed &operator=(const LeaksAllowed &) = delete;
};

/// Has each allocation of \a read fail in turn, which makes nodes of a response that has made none. What it gives all
/// the same, and when it is asked of that response again, has to be right by \a isRight.
template <typename Read, typename IsRight>
void failEachOfNodes(const XmlResponse &parsed, const char *name, const Read &read, const IsRight &isRight)
{
    bool hasFailed = true;
    for (std::size_t number = 1; hasFailed; ++number) {
        XmlResponse response(parsed);
        std::optional<decltype(read(response))> nodes;
        {
            const LeaksAllowed leaks;
            const FailingAllocation allocation(number);
            try {
                nodes.emplace(read(response));
            } catch (const std::bad_alloc &) {
            }
            hasFailed = allocation.hasFailed();
        }
        ASSERT_TRUE(!nodes || isRight(*nodes)) << name << " without allocation " << number;
        ASSERT_TRUE(isRight(read(response))) << name << " after allocation " << number;
    }
}

void failEachOfGet(const XmlResponse &parsed, const QString &path)
{
    failEachOfNodes(
        parsed, "get", [&](XmlResponse &response) { return response.get(path); },
        [&](const XmlResponseNode &node) { return fuzz::isSame(parsed.view(path), node); });
}

void failEachOfGetAll(const XmlResponse &parsed, const QString &path)
{
    failEachOfNodes(
        parsed, "getAll", [&](XmlResponse &response) { return response.getAll(path); },
        [&](const QList<XmlResponseNode> &nodes) {
            const XmlElementViews views = parsed.viewAll(path);
            return std::equal(views.begin(), views.end(), nodes.begin(), nodes.end(), fuzz::isSame);
        });
}

int elementsIn(XmlElementView view)
{
    int count = 1;
    for (const XmlElementView child : view.children())
        count += elementsIn(child);
    return count;
}

/// Asks for the nodes at \a path, or for smaller ones below it if they take long: the square of their number.
void failEachOfNodesBelow(const XmlResponse &parsed, const QString &path)
{
    const XmlElementView view = parsed.view(path);
    if (elementsIn(view) <= 60) {
        failEachOfGet(parsed, path);
        failEachOfGetAll(parsed, path);
        return;
    }
    for (const XmlElementView child : view.children()) {
        const QString name = '/' + child.name();
        const bool isFirstOfItsName = view.at(name) == child;
        if (isFirstOfItsName)
            failEachOfNodesBelow(parsed, path + name);
    }
}

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

TEST_P(Memory, givesTheWholeNodesOrBadAlloc)
{
    failEachOfNodesBelow(XmlResponse(reply(), QString()), root());
}

TEST(MemoryOfNodes, mayRunOutWhileTheMapOfAttributesGrows)
{
    QByteArray attributes;
    for (int i = 0; i < 80; ++i)
        attributes += " k" + QByteArray::number(i) + "=''";
    const XmlResponse parsed("<r><a" + attributes + "/><a" + attributes + ">text</a></r>", QString());
    failEachOfNodesBelow(parsed, "/r");
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
