#include "fields/types.h"

#include <vorn/onvif/compare.h>

#include <QtCore/QProperty>
#include <QtCore/QVariant>
#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

class vorn::ConfCapture
{
};

using namespace vorn;

namespace {

/// Gives \a field another value than it has by default.
template <typename Field>
void change(Field &field)
{
    if constexpr (hasFields<Field>) {
        bool changed = false;
        visitFields(
            [&changed](QLatin1StringView, auto &first) {
                if (!changed)
                    change(first);
                changed = true;
            },
            field);
    } else if constexpr (hasEnumerators<Field>) {
        field = field == enumerators<Field>[0].value ? enumerators<Field>[1].value : enumerators<Field>[0].value;
    } else if constexpr (isList<Field>) {
        field.append(typename Field::value_type());
    } else if constexpr (isMap<Field>) {
        field.insert("key", "value");
    } else if constexpr (std::is_same_v<Field, bool>) {
        field = !field;
    } else if constexpr (std::is_arithmetic_v<Field>) {
        field += 1;
    } else if constexpr (std::is_same_v<Field, QString>) {
        field = "text";
    } else if constexpr (std::is_same_v<Field, const char *>) {
        field = "text";
    } else if constexpr (std::is_same_v<Field, QSize>) {
        field = QSize(640, 480);
    } else if constexpr (std::is_same_v<Field, QRect>) {
        field = QRect(0, 0, 640, 480);
    } else {
        static_assert(std::is_same_v<Field, QSharedPointer<ConfCapture>>);
        field.reset(new ConfCapture);
    }
}

/// Changes the field of \a record that \a number counts. False if it has no such field.
template <typename Record>
bool changeField(Record &record, int number)
{
    int next = 0;
    visitFields(
        [&](QLatin1StringView, auto &field) {
            if (next++ == number)
                change(field);
        },
        record);
    return number < next;
}

TEST(SameContent, isLostByAChangeOfAnyField)
{
    int fields = 0;
    test::forEachRecord([&fields](auto type) {
        using Record = typename decltype(type)::type;
        const Record record;
        EXPECT_TRUE(sameContent(record, record));
        for (int number = 0;; ++number) {
            Record changed;
            EXPECT_TRUE(sameContent(record, changed)) << recordName<Record>.data();
            if (!changeField(changed, number))
                break;
            EXPECT_FALSE(sameContent(record, changed)) << recordName<Record>.data() << ", field " << number;
            EXPECT_FALSE(sameContent(changed, record)) << recordName<Record>.data() << ", field " << number;
            EXPECT_TRUE(sameContent(changed, changed)) << recordName<Record>.data() << ", field " << number;
            ++fields;
        }
    });
    EXPECT_EQ(fields, 214);
}

TEST(SameContent, isNotEquality)
{
    OnvifProfile one("Day", "T1", false);
    const OnvifProfile other("Night", "T1", false);
    EXPECT_TRUE(one == other);
    EXPECT_FALSE(sameContent(one, other));
    one.name = "Night";
    EXPECT_TRUE(sameContent(one, other));
}

TEST(SameContent, goesIntoTheRecordsWithin)
{
    const OnvifProfile one("Day", "T1", false);
    OnvifProfile other("Day", "T1", false);
    other.videoEncoder.bitrateLimit = 4096;
    EXPECT_FALSE(sameContent(one, other));

    OnvifNetworkInterface before;
    OnvifNetworkInterface now;
    before.ipv4.config.manual.append(OnvifNetworkInterface::PrefixedAddress());
    now.ipv4.config.manual.append(OnvifNetworkInterface::PrefixedAddress());
    EXPECT_TRUE(sameContent(before, now));
    now.ipv4.config.manual[0].prefixLength = 24;
    EXPECT_FALSE(sameContent(before, now));
}

TEST(SameContent, tellsANullRecordFromAnEmptyOne)
{
    XmlResponse reply("<Rule/>", QString());
    const OnvifRule empty(reply.get("/Rule"));
    ASSERT_FALSE(empty.isNull());
    EXPECT_FALSE(sameContent(empty, OnvifRule()));
    EXPECT_TRUE(sameContent(empty, OnvifRule(reply.get("/Rule"))));
}

TEST(SameContent, takesANullTextForAnEmptyOne)
{
    OnvifScope scope;
    scope.value = "";
    EXPECT_TRUE(sameContent(scope, OnvifScope()));
}

TEST(SameContent, takesNotANumberForItself)
{
    OnvifPtzRange one;
    OnvifPtzRange other;
    one.min = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(sameContent(one, other));
    other.min = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(sameContent(one, other));
    other.min = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(sameContent(one, other));
}

TEST(SameContent, comparesTheTextOfAnAction)
{
    const char action[] = "GetProfiles";
    const char sameAction[] = "GetProfiles";
    EXPECT_TRUE(sameContent(OnvifFault({}, action, 1), OnvifFault({}, sameAction, 2)));
    EXPECT_FALSE(sameContent(OnvifFault({}, action, 1), OnvifFault({}, "GetProfile", 1)));
    EXPECT_TRUE(sameContent(OnvifFault({}, nullptr, 1), OnvifFault({}, "", 1)));
}

TEST(SameContent, isNotLostByAnotherReply)
{
    const QByteArray reply = "<Envelope><Header/><Body><GetDeviceInformationResponse><Model>M1</Model>"
                             "</GetDeviceInformationResponse></Body></Envelope>";
    const OnvifDeviceInformation one(reply);
    const OnvifDeviceInformation other(QByteArray(reply).replace("<Header/>", ""));
    ASSERT_EQ(other.model, "M1");
    ASSERT_NE(one.xml, other.xml);
    EXPECT_TRUE(sameContent(one, other));
}

TEST(SameContent, ofListsIsThatOfTheirElementsInOrder)
{
    OnvifProfileVector one;
    OnvifProfileVector other;
    EXPECT_TRUE(sameContent(one, other));
    one.append(OnvifProfile("Day", "T1", false));
    EXPECT_FALSE(sameContent(one, other));
    other.append(OnvifProfile("Night", "T1", false));
    EXPECT_TRUE(one == other);
    EXPECT_FALSE(sameContent(one, other));
    other[0].name = "Day";
    EXPECT_TRUE(sameContent(one, other));
    one.append(OnvifProfile("Night", "T2", false));
    other.prepend(OnvifProfile("Night", "T2", false));
    EXPECT_FALSE(sameContent(one, other));
}

TEST(SameContent, isAskedOfAListRecordAndAPlainList)
{
    const OnvifRelayOutputVector record;
    EXPECT_TRUE(sameContent(record, QList<OnvifRelayOutput>()));
    EXPECT_FALSE(sameContent(record, QList<OnvifRelayOutput>(1)));
}

TEST(SameContent, ofScopeMapsIsThatOfKeysAndScopes)
{
    OnvifScopeMap one;
    OnvifScopeMap other;
    one.insert("name", OnvifScope(OnvifScope::Fixed, "onvif://www.onvif.org/name/A"));
    EXPECT_FALSE(sameContent(one, other));
    other.insert("name", OnvifScope(OnvifScope::Configurable, "onvif://www.onvif.org/name/A"));
    EXPECT_FALSE(sameContent(one, other));
    other.first().type = OnvifScope::Fixed;
    EXPECT_TRUE(sameContent(one, other));
    const OnvifScope scope = other.take("name");
    other.insert("location", scope);
    EXPECT_FALSE(sameContent(one, other));
}

// Why it is there.

TEST(SameContent, isWhatPropertiesAndVariantsDoNotAskFor)
{
    const OnvifProfile day("Day", "T1", false);
    const OnvifProfile night("Night", "T1", false);
    QProperty<OnvifProfile> property(day);
    property.setValue(night);
    EXPECT_EQ(property.value().name, "Day");
    EXPECT_EQ(QVariant::fromValue(day), QVariant::fromValue(night));
}

} // namespace
