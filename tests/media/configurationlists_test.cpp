#include "records.h"

#include <type_traits>
#include <utility>

using namespace vorn;

namespace {

/// A list that is told its root path, here a path of the test's own.
template <typename List>
struct PlainList
{
    using ListType = List;
    static constexpr const char *root = "/Envelope/Body/GetAnythingResponse";
    static constexpr const char *child = "Configurations";

    static List read(const QByteArray &reply) { return List(reply, QString::fromLatin1(root)); }
};

/// A list that knows its root path.
template <typename List>
struct CompatibleList
{
    using ListType = List;
    static constexpr const char *child = "Configurations";

    static List read(const QByteArray &reply) { return List(reply); }
};

struct VideoSourceList : PlainList<OnvifVideoSourceConfigurationVector>
{
    static constexpr const char *title = "VideoSource";
};

struct VideoEncoderList : PlainList<OnvifVideoEncoderConfigurationVector>
{
    static constexpr const char *title = "VideoEncoder";
};

struct AudioSourceList : PlainList<OnvifAudioSourceConfigurationVector>
{
    static constexpr const char *title = "AudioSource";
};

struct AudioOutputList : PlainList<OnvifAudioOutputConfigurationVector>
{
    static constexpr const char *title = "AudioOutput";
};

struct AudioEncoderList : PlainList<OnvifAudioEncoderConfigurationVector>
{
    static constexpr const char *title = "AudioEncoder";
};

struct AudioDecoderList : PlainList<OnvifAudioDecoderConfigurationVector>
{
    static constexpr const char *title = "AudioDecoder";
};

struct PtzList : PlainList<OnvifPtzConfigurationVector>
{
    static constexpr const char *title = "Ptz";
    static constexpr const char *child = "PTZConfiguration";
};

struct VideoAnalyticsList : PlainList<OnvifVideoAnalyticsConfigurationVector>
{
    static constexpr const char *title = "VideoAnalytics";
};

struct CompatibleVideoSourceList : CompatibleList<OnvifCompatibleVideoSourceConfigurationVector>
{
    static constexpr const char *title = "CompatibleVideoSource";
    static constexpr const char *root = "/Envelope/Body/GetCompatibleVideoSourceConfigurationsResponse";
};

struct CompatibleVideoEncoderList : CompatibleList<OnvifCompatibleVideoEncoderConfigurationVector>
{
    static constexpr const char *title = "CompatibleVideoEncoder";
    static constexpr const char *root = "/Envelope/Body/GetCompatibleVideoEncoderConfigurationsResponse";
};

struct CompatibleAudioSourceList : CompatibleList<OnvifCompatibleAudioSourceConfigurationVector>
{
    static constexpr const char *title = "CompatibleAudioSource";
    static constexpr const char *root = "/Envelope/Body/GetCompatibleAudioSourceConfigurationsResponse";
};

struct CompatibleAudioOutputList : CompatibleList<OnvifCompatibleAudioOutputConfigurationVector>
{
    static constexpr const char *title = "CompatibleAudioOutput";
    static constexpr const char *root = "/Envelope/Body/GetCompatibleAudioOutputConfigurationsResponse";
};

struct CompatibleAudioEncoderList : CompatibleList<OnvifCompatibleAudioEncoderConfigurationVector>
{
    static constexpr const char *title = "CompatibleAudioEncoder";
    static constexpr const char *root = "/Envelope/Body/GetCompatibleAudioEncoderConfigurationsResponse";
};

struct CompatibleAudioDecoderList : CompatibleList<OnvifCompatibleAudioDecoderConfigurationVector>
{
    static constexpr const char *title = "CompatibleAudioDecoder";
    static constexpr const char *root = "/Envelope/Body/GetCompatibleAudioDecoderConfigurationsResponse";
};

struct CompatibleMetadataList : CompatibleList<OnvifCompatibleMetadataConfigurationVector>
{
    static constexpr const char *title = "CompatibleMetadata";
    static constexpr const char *root = "/Envelope/Body/GetCompatibleMetadataConfigurationsResponse";
};

struct CompatiblePtzList : CompatibleList<OnvifCompatiblePtzConfigurationVector>
{
    static constexpr const char *title = "CompatiblePtz";
    static constexpr const char *root = "/Envelope/Body/GetCompatibleConfigurationsResponse";
    static constexpr const char *child = "PTZConfiguration";
};

struct CompatibleVideoAnalyticsList : CompatibleList<OnvifCompatibleVideoAnalyticsConfigurationVector>
{
    static constexpr const char *title = "CompatibleVideoAnalytics";
    static constexpr const char *root = "/Envelope/Body/GetCompatibleVideoAnalyticsConfigurationsResponse";
};

struct Titles
{
    template <typename Traits>
    static std::string GetName(int)
    {
        return Traits::title;
    }
};

// The list comes first in the object, the response second.
template <typename List, typename Element>
constexpr bool isListRecord()
{
    static_assert(std::is_base_of_v<QList<Element>, List>);
    static_assert(std::is_base_of_v<OnvifResponseStructure, List>);
    static_assert(!std::is_base_of_v<OnvifDataStructure, List>);
    static_assert(std::is_same_v<typename List::value_type, Element>);
    static_assert(std::is_default_constructible_v<List>);
    static_assert(std::is_copy_constructible_v<List>);
    static_assert(std::is_copy_assignable_v<List>);
    static_assert(std::is_nothrow_move_constructible_v<List>);
    static_assert(std::is_nothrow_move_assignable_v<List>);
    return true;
}

template <typename List, typename Element>
constexpr bool isPlainList()
{
    static_assert(isListRecord<List, Element>());
    static_assert(std::is_constructible_v<List, const QByteArray &, const QString &>);
    return true;
}

template <typename List, typename Base>
constexpr bool isCompatibleList()
{
    static_assert(isListRecord<List, typename Base::value_type>());
    static_assert(std::is_base_of_v<Base, List>);
    static_assert(std::is_constructible_v<List, const QByteArray &>);
    static_assert(!std::is_constructible_v<List, const QByteArray &, const QString &>);
    return true;
}

static_assert(isPlainList<OnvifVideoSourceConfigurationVector, OnvifVideoSourceConfiguration>());
static_assert(isPlainList<OnvifVideoEncoderConfigurationVector, OnvifVideoEncoderConfiguration>());
static_assert(isPlainList<OnvifAudioSourceConfigurationVector, OnvifAudioSourceConfiguration>());
static_assert(isPlainList<OnvifAudioOutputConfigurationVector, OnvifAudioOutputConfiguration>());
static_assert(isPlainList<OnvifAudioEncoderConfigurationVector, OnvifAudioEncoderConfiguration>());
static_assert(isPlainList<OnvifAudioDecoderConfigurationVector, OnvifAudioDecoderConfiguration>());
static_assert(isPlainList<OnvifPtzConfigurationVector, OnvifPtzConfiguration>());
static_assert(isPlainList<OnvifVideoAnalyticsConfigurationVector, OnvifVideoAnalyticsConfiguration>());
static_assert(isCompatibleList<OnvifCompatibleVideoSourceConfigurationVector, OnvifVideoSourceConfigurationVector>());
static_assert(isCompatibleList<OnvifCompatibleVideoEncoderConfigurationVector, OnvifVideoEncoderConfigurationVector>());
static_assert(isCompatibleList<OnvifCompatibleAudioSourceConfigurationVector, OnvifAudioSourceConfigurationVector>());
static_assert(isCompatibleList<OnvifCompatibleAudioOutputConfigurationVector, OnvifAudioOutputConfigurationVector>());
static_assert(isCompatibleList<OnvifCompatibleAudioEncoderConfigurationVector, OnvifAudioEncoderConfigurationVector>());
static_assert(isCompatibleList<OnvifCompatibleAudioDecoderConfigurationVector, OnvifAudioDecoderConfigurationVector>());
static_assert(isCompatibleList<OnvifCompatiblePtzConfigurationVector, OnvifPtzConfigurationVector>());
static_assert(
    isCompatibleList<OnvifCompatibleVideoAnalyticsConfigurationVector, OnvifVideoAnalyticsConfigurationVector>());
static_assert(isListRecord<OnvifCompatibleMetadataConfigurationVector, OnvifMetadataConfiguration>());
static_assert(std::is_constructible_v<OnvifCompatibleMetadataConfigurationVector, const QByteArray &>);

template <typename Traits>
using ElementOf = typename Traits::ListType::value_type;

/// The reply that \a Traits reads, with \a entries.
template <typename Traits>
QByteArray replyWith(const QByteArray &entries)
{
    return test::elementAt(Traits::root, entries);
}

template <typename Traits>
QByteArray replyOf(const QByteArrayList &tokens)
{
    QByteArray entries;
    for (const QByteArray &token : tokens)
        entries += test::sampleElement<ElementOf<Traits>>(Traits::child, token);
    return replyWith<Traits>(entries);
}

/// Elements of an audio decoder list are null: the record's copy constructor takes nothing over.
template <typename Element>
void expectEntry(const Element &element, const QString &token)
{
    if constexpr (std::is_same_v<Element, OnvifAudioDecoderConfiguration>) {
        EXPECT_TRUE(element.isNull());
        test::expectDefaults(element);
    } else {
        test::expectSample(element, token);
    }
}

template <typename Traits>
void expectTwoEntries(typename Traits::ListType &list)
{
    ASSERT_EQ(list.size(), 2);
    expectEntry(list[0], "T1");
    expectEntry(list[1], "T2");
}

template <typename Traits>
void expectReplyOfTwo(typename Traits::ListType &list)
{
    expectTwoEntries<Traits>(list);
    EXPECT_EQ(list.xml, replyOf<Traits>({"T1", "T2"}));
    EXPECT_EQ(list.response.getAttribute("token", '/' + QString::fromLatin1(Traits::child)), "T1");
}

template <typename Traits>
struct ConfigurationList : ::testing::Test
{
};

using Lists = ::testing::Types<VideoSourceList, VideoEncoderList, AudioSourceList, AudioOutputList, AudioEncoderList,
                               AudioDecoderList, PtzList, VideoAnalyticsList, CompatibleVideoSourceList,
                               CompatibleVideoEncoderList, CompatibleAudioSourceList, CompatibleAudioOutputList,
                               CompatibleAudioEncoderList, CompatibleAudioDecoderList, CompatibleMetadataList,
                               CompatiblePtzList, CompatibleVideoAnalyticsList>;
TYPED_TEST_SUITE(ConfigurationList, Lists, Titles);

TYPED_TEST(ConfigurationList, isEmptyByDefault)
{
    typename TypeParam::ListType list;
    EXPECT_TRUE(list.isEmpty());
    EXPECT_TRUE(list.xml.isEmpty());
    EXPECT_FALSE(list.response.get("/Envelope").valid);
    EXPECT_TRUE(list.response.getAll(QString("/") + TypeParam::child).isEmpty());
}

TYPED_TEST(ConfigurationList, holdsItsListBeforeItsResponse)
{
    const typename TypeParam::ListType list;
    const QList<ElementOf<TypeParam>> &elements = list;
    const OnvifResponseStructure &response = list;
    EXPECT_LT(static_cast<const void *>(&elements), static_cast<const void *>(&response));
}

TYPED_TEST(ConfigurationList, readsEachEntryInDocumentOrder)
{
    auto list = TypeParam::read(replyOf<TypeParam>({"T1", "T2"}));
    expectReplyOfTwo<TypeParam>(list);
}

TYPED_TEST(ConfigurationList, readsAListOfOne)
{
    const auto list = TypeParam::read(replyOf<TypeParam>({"T1"}));
    ASSERT_EQ(list.size(), 1);
    expectEntry(list[0], "T1");
}

TYPED_TEST(ConfigurationList, keepsDuplicates)
{
    const auto list = TypeParam::read(replyOf<TypeParam>({"T1", "T1"}));
    ASSERT_EQ(list.size(), 2);
    EXPECT_TRUE(list[0] == list[1]);
}

TYPED_TEST(ConfigurationList, ignoresPrefixes)
{
    const QByteArray path = QByteArray(TypeParam::root).replace("/", "/any:");
    const QByteArray reply = test::elementAt(path, test::element(QByteArray("other:") + TypeParam::child));
    EXPECT_EQ(TypeParam::read(reply).size(), 1);
}

TYPED_TEST(ConfigurationList, isEmptyForAReplyWithoutEntries)
{
    const QByteArray reply = replyWith<TypeParam>("");
    const auto list = TypeParam::read(reply);
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(list.xml, reply);
}

TYPED_TEST(ConfigurationList, isEmptyForAnotherOperation)
{
    const QByteArray entry = QByteArray("<") + TypeParam::child + " token='T1'/>";
    for (const char *operation :
         {"GetConfigurationsResponse", "GetCompatibleConfigurationResponse", "GetProfilesResponse"}) {
        const QByteArray reply = test::elementAt(QByteArray("/Envelope/Body/") + operation, entry);
        const auto list = TypeParam::read(reply);
        EXPECT_TRUE(list.isEmpty()) << operation;
        EXPECT_EQ(list.xml, reply);
    }
}

TYPED_TEST(ConfigurationList, isEmptyForAFault)
{
    EXPECT_TRUE(TypeParam::read(test::elementAt("/Envelope/Body/Fault/Code/Value", "s:Sender")).isEmpty());
}

TYPED_TEST(ConfigurationList, isEmptyForWhatIsNoXml)
{
    for (const char *bytes : {"", "no xml", "<Envelope>"}) {
        const auto list = TypeParam::read(bytes);
        EXPECT_TRUE(list.isEmpty());
        EXPECT_EQ(list.xml, bytes);
    }
}

TYPED_TEST(ConfigurationList, countsAnEmptyEntry)
{
    const auto list = TypeParam::read(replyWith<TypeParam>(test::element(TypeParam::child)));
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(list[0].isNull(), (std::is_same_v<ElementOf<TypeParam>, OnvifAudioDecoderConfiguration>));
    test::expectDefaults(list[0]);
}

TYPED_TEST(ConfigurationList, takesEntriesFromItsChildPathOnly)
{
    const QByteArray child(TypeParam::child);
    const QByteArray other = child == "Configurations" ? "PTZConfiguration" : "Configurations";
    const QByteArray reply =
        replyWith<TypeParam>(test::element(other) + test::element(child.toLower()) + test::element("Configuration")
                             + test::elementAt("/Extension/" + child, "") + test::element("Profiles"));
    EXPECT_TRUE(TypeParam::read(reply).isEmpty());
}

TYPED_TEST(ConfigurationList, isCopied)
{
    auto source = TypeParam::read(replyOf<TypeParam>({"T1", "T2"}));
    auto copy = source;
    expectReplyOfTwo<TypeParam>(copy);
    expectReplyOfTwo<TypeParam>(source);
}

TYPED_TEST(ConfigurationList, isMoved)
{
    auto source = TypeParam::read(replyOf<TypeParam>({"T1", "T2"}));
    const auto *elements = source.constData();
    auto moved = std::move(source);
    expectReplyOfTwo<TypeParam>(moved);
    EXPECT_EQ(moved.constData(), elements);
}

TYPED_TEST(ConfigurationList, isAssigned)
{
    auto source = TypeParam::read(replyOf<TypeParam>({"T1", "T2"}));
    auto target = TypeParam::read(replyOf<TypeParam>({"T3"}));
    target = source;
    expectReplyOfTwo<TypeParam>(target);
    expectReplyOfTwo<TypeParam>(source);
}

TYPED_TEST(ConfigurationList, isMoveAssigned)
{
    auto source = TypeParam::read(replyOf<TypeParam>({"T1", "T2"}));
    auto target = TypeParam::read(replyOf<TypeParam>({"T3"}));
    const auto *elements = source.constData();
    target = std::move(source);
    expectReplyOfTwo<TypeParam>(target);
    EXPECT_EQ(target.constData(), elements);
}

TYPED_TEST(ConfigurationList, responseAnswersAsLongAsTheListLives)
{
    auto list = TypeParam::read(replyOf<TypeParam>({"T1", "T2"}));
    list.clear();
    list.xml.clear();
    const QList<XmlResponseNode> nodes = list.response.getAll(QString("/") + TypeParam::child);
    ASSERT_EQ(nodes.size(), 2);
    EXPECT_EQ(nodes[1].element.attribute("token"), "T2");
}

} // namespace
