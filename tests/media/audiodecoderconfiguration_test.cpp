#include "records.h"

#include <algorithm>
#include <utility>

using vorn::OnvifAudioDecoderConfiguration;
using vorn::OnvifAudioDecoderConfigurationVector;
using vorn::OnvifCompatibleAudioDecoderConfigurationVector;

namespace {

OnvifAudioDecoderConfiguration filled()
{
    return OnvifAudioDecoderConfiguration(test::nodeOf("<Element token='T1'><Name>Talk</Name></Element>"));
}

void expectFilled(const OnvifAudioDecoderConfiguration &record)
{
    EXPECT_FALSE(record.isNull());
    EXPECT_EQ(record.name, "Talk");
    EXPECT_EQ(record.token, "T1");
}

void expectNull(const OnvifAudioDecoderConfiguration &record)
{
    EXPECT_TRUE(record.isNull());
    EXPECT_TRUE(record.name.isEmpty());
    EXPECT_TRUE(record.token.isEmpty());
    EXPECT_EQ(record.useCount, 0);
}

TEST(OnvifAudioDecoderConfiguration, readsNameAndToken)
{
    const auto record = filled();
    expectFilled(record);
}

TEST(OnvifAudioDecoderConfiguration, doesNotReadTheUseCount)
{
    EXPECT_EQ(test::recordFrom<OnvifAudioDecoderConfiguration>("<UseCount>5</UseCount>").useCount, 0);
}

TEST(OnvifAudioDecoderConfiguration, copyIsNull)
{
    auto source = filled();
    source.useCount = 5;
    const OnvifAudioDecoderConfiguration copy(source);
    expectNull(copy);
    expectFilled(source);
    EXPECT_EQ(source.useCount, 5);
}

TEST(OnvifAudioDecoderConfiguration, movedRecordIsNull)
{
    auto source = filled();
    const OnvifAudioDecoderConfiguration moved(std::move(source));
    expectNull(moved);
    expectFilled(source); // NOLINT(bugprone-use-after-move): nothing is moved
}

TEST(OnvifAudioDecoderConfiguration, assignmentCopiesEverything)
{
    auto source = filled();
    source.useCount = 5;
    OnvifAudioDecoderConfiguration target;
    target = source;
    expectFilled(target);
    EXPECT_EQ(target.useCount, 5);
}

TEST(OnvifAudioDecoderConfiguration, assigningANullRecordClears)
{
    auto target = filled();
    target.useCount = 5;
    target = OnvifAudioDecoderConfiguration();
    expectNull(target);
}

TEST(OnvifAudioDecoderConfiguration, survivesSelfAssignment)
{
    auto record = filled();
    record.useCount = 5;
    const auto &same = record;
    record = same;
    expectFilled(record);
    EXPECT_EQ(record.useCount, 5);
}

TEST(OnvifAudioDecoderConfiguration, differsFromItsCopy)
{
    const auto record = filled();
    EXPECT_FALSE(record == OnvifAudioDecoderConfiguration(record));
    EXPECT_TRUE(record != OnvifAudioDecoderConfiguration(record));
}

TEST(OnvifAudioDecoderConfiguration, withoutTokenIsEqualToItsCopy)
{
    const auto record = test::recordFrom<OnvifAudioDecoderConfiguration>("<Name>n</Name>");
    EXPECT_TRUE(record == OnvifAudioDecoderConfiguration(record));
}

TEST(OnvifAudioDecoderConfiguration, isNullInAList)
{
    QList<OnvifAudioDecoderConfiguration> list;
    const auto record = filled();
    list.append(record);
    list.append(filled());
    list.prepend(record);
    ASSERT_EQ(list.size(), 3);
    for (const auto &element : std::as_const(list))
        expectNull(element);
}

TEST(OnvifAudioDecoderConfiguration, assignedElementsHoldTheirValuesUntilTheListGrows)
{
    QList<OnvifAudioDecoderConfiguration> list(2);
    const auto record = filled();
    list[1] = record;
    expectFilled(list.at(1));
    test::growByAppending(list);
    ASSERT_EQ(list.size(), 2);
    expectNull(list.at(0));
    expectNull(list.at(1));
    list[0] = record;
    list.reserve(list.capacity() + 100);
    expectNull(list.at(0));
}

TEST(OnvifAudioDecoderConfiguration, assignedElementsHoldTheirValuesUntilTheListDetaches)
{
    QList<OnvifAudioDecoderConfiguration> list(2);
    const auto record = filled();
    list[1] = record;
    QList<OnvifAudioDecoderConfiguration> other = list;
    expectFilled(other.at(1));
    other.detach();
    expectNull(other.at(1));
    expectFilled(list.at(1));
}

TEST(OnvifAudioDecoderConfiguration, staysNullWhereverAListPutsIt)
{
    QList<OnvifAudioDecoderConfiguration> list(3);
    const auto record = filled();
    list.insert(1, record);
    list.removeAt(2);
    list.removeFirst();
    std::sort(list.begin(), list.end(), [](const auto &left, const auto &right) { return left.token < right.token; });
    ASSERT_EQ(list.size(), 2);
    for (const auto &element : std::as_const(list))
        expectNull(element);
}

const QByteArray threeOf = "<Configurations token='a'><Name>A</Name></Configurations>"
                           "<Configurations token='b'><Name>B</Name></Configurations><Configurations token='c'/>";

template <typename List>
void expectThreeNulls(const List &list)
{
    ASSERT_EQ(list.size(), 3);
    for (const auto &element : list)
        expectNull(element);
    EXPECT_TRUE(list[0] == list[1]);
    EXPECT_TRUE(list[1] == list[2]);
}

TEST(OnvifAudioDecoderConfigurationVector, holdsANullRecordForEachElement)
{
    expectThreeNulls(OnvifAudioDecoderConfigurationVector("<r>" + threeOf + "</r>", "/r"));
}

TEST(OnvifCompatibleAudioDecoderConfigurationVector, holdsANullRecordForEachElement)
{
    expectThreeNulls(OnvifCompatibleAudioDecoderConfigurationVector(
        test::elementAt("/Envelope/Body/GetCompatibleAudioDecoderConfigurationsResponse", threeOf)));
}

// The way to the values that the list does not keep.
TEST(OnvifAudioDecoderConfigurationVector, responseStillHoldsTheConfigurations)
{
    OnvifAudioDecoderConfigurationVector list("<r>" + threeOf + "</r>", "/r");
    const OnvifAudioDecoderConfiguration record(list.response.getAll("/Configurations").at(1));
    EXPECT_EQ(record.token, "b");
    EXPECT_EQ(record.name, "B");
}

} // namespace
