#include "fields/declarations.h"
#include "fields/types.h"
#include "samples/samples.h"

#include <QtCore/QMap>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <type_traits>
#include <vector>

using namespace vorn;

static_assert(hasFields<OnvifProfile> && hasFields<OnvifPtzRange> && hasFields<OnvifNetworkInterface::IPv4>);
static_assert(!hasFields<OnvifProfileVector> && !hasFields<OnvifScopeMap> && !hasFields<XmlResponse>);
static_assert(!hasFields<QString> && !hasFields<int> && !hasFields<OnvifRelayOutput::RelayMode>);
static_assert(isList<OnvifProfileVector> && isList<OnvifAnalyticsEngineConfigurationVector> && isList<QStringList>);
static_assert(!isList<QString> && !isList<OnvifScopeMap> && !isList<OnvifProfile> && !isList<int>);
static_assert(isMap<OnvifScopeMap> && isMap<QMultiMap<QString, QString>>);
static_assert(!isMap<OnvifProfileVector> && !isMap<QMap<QString, QString>> && !isMap<int>);
static_assert(hasEnumerators<OnvifFault::FaultType> && hasEnumerators<OnvifNetworkInterface::LinkSettings::Duplex>);
static_assert(!hasEnumerators<Qt::Orientation> && !hasEnumerators<int> && !hasEnumerators<OnvifFault>);
static_assert(recordName<OnvifNetworkInterface::IPv6::Configuration>.size() == 42);
static_assert(enumerators<OnvifScope::Type>[3].value == OnvifScope::Custom);
static_assert(enumeratorName(OnvifScope::Fixed).size() == 5);

namespace {

test::Declarations declared()
{
    return test::declarationsBelow(INCLUDE_FOLDER "/vorn/onvif");
}

template <typename Record>
QStringList namesOf(const Record &record)
{
    QStringList names;
    visitFields([&names](QLatin1StringView name, const auto &) { names.append(name); }, record);
    return names;
}

QMap<QString, QStringList> visitedFields()
{
    QMap<QString, QStringList> fields;
    test::forEachRecord([&fields](auto type) {
        using Record = typename decltype(type)::type;
        fields[recordName<Record>] = namesOf(Record());
    });
    return fields;
}

/// As they are declared: each with its value.
template <typename Enumeration>
QStringList enumeratorsOf()
{
    QStringList result;
    for (const auto &[value, name] : enumerators<Enumeration>)
        result.append(QString(name) + " = " + QString::number(value));
    return result;
}

TEST(Fields, areThoseThatTheRecordDeclares)
{
    const QMap<QString, QStringList> visited = visitedFields();
    const test::Declarations declarations = declared();
    ASSERT_EQ(visited.size(), 43);
    for (auto record = visited.begin(); record != visited.end(); ++record)
        EXPECT_EQ(record.value(), declarations.fields.value(record.key())) << record.key().toStdString();
}

TEST(Fields, areKnownOfEachRecordThatAHeaderDeclares)
{
    QStringList records = visitedFields().keys();
    records.append({"Enumerator", "OnvifResponseStructure"}); // no record, and the reply that a record was read from
    records.sort();
    EXPECT_EQ(declared().fields.keys(), records);
}

TEST(Fields, doNotIncludeTheReply)
{
    EXPECT_EQ(declared().fields.value("OnvifResponseStructure"), QStringList({"response", "xml"}));
    EXPECT_EQ(namesOf(OnvifRelayOutput()), QStringList({"token", "mode", "delayTime", "idleState"}));
    EXPECT_EQ(namesOf(OnvifDeviceInformation()),
              QStringList({"manufacturer", "model", "firmwareVersion", "serialNumber", "hardwareId"}));
}

TEST(Fields, standInMemoryInTheirOrder)
{
    test::forEachRecord([](auto type) {
        using Record = typename decltype(type)::type;
        const Record record;
        std::vector<const void *> addresses = {&record};
        visitFields([&addresses](QLatin1StringView, const auto &field) { addresses.push_back(&field); }, record);
        if constexpr (std::is_polymorphic_v<Record>)
            EXPECT_LT(addresses[0], addresses[1]) << recordName<Record>.data();
        else
            EXPECT_LE(addresses[0], addresses[1]) << recordName<Record>.data();
        EXPECT_EQ(std::adjacent_find(addresses.begin() + 1, addresses.end(), std::greater_equal<>()), addresses.end())
            << recordName<Record>.data();
        EXPECT_LT(addresses.back(), static_cast<const void *>(&record + 1)) << recordName<Record>.data();
    });
}

// Would a field be noticed that nobody names?
TEST(Fields, areMissedWhenADeclarationGetsAnother)
{
    QString header = test::contentsOf(INCLUDE_FOLDER "/vorn/onvif/relays.h");
    ASSERT_EQ(test::declarationsIn(header).fields.value("OnvifRelayOutput"), namesOf(OnvifRelayOutput()));
    header.replace("QString delayTime;", "QString delayTime; bool isLocked = false;");
    EXPECT_EQ(test::declarationsIn(header).fields.value("OnvifRelayOutput"),
              QStringList({"token", "mode", "delayTime", "isLocked", "idleState"}));
}

TEST(Fields, canBeChanged)
{
    OnvifPtzRange range;
    visitFields([](QLatin1StringView name, double &field) { field = name == QLatin1String("min") ? -1.5 : 2.5; },
                range);
    EXPECT_EQ(range.min, -1.5);
    EXPECT_EQ(range.max, 2.5);
}

TEST(Fields, areNotChangedThroughAConstRecord)
{
    visitFields([](QLatin1StringView, auto &field) { static_assert(std::is_same_v<decltype(field), const double &>); },
                std::add_const_t<OnvifPtzRange>());
}

TEST(Fields, ofSeveralRecordsAreVisitedTogether)
{
    const OnvifPtzRange before{1.0, 2.0};
    OnvifPtzRange now{3.0, 4.0};
    QStringList seen;
    visitFields(
        [&seen](QLatin1StringView name, double was, double &is) {
            seen.append(QString("%1: %2 %3").arg(name).arg(was).arg(is));
            is = 0;
        },
        before, now);
    EXPECT_EQ(seen, QStringList({"min: 1 3", "max: 2 4"}));
    EXPECT_EQ(now.max, 0);
}

TEST(Enumerators, areThoseOfTheDeclarations)
{
    const QMap<QString, QStringList> named = {
        {"OnvifScope::Type", enumeratorsOf<OnvifScope::Type>()},
        {"OnvifFault::FaultType", enumeratorsOf<OnvifFault::FaultType>()},
        {"OnvifFault::SubcodeType", enumeratorsOf<OnvifFault::SubcodeType>()},
        {"OnvifFault::SpecificType", enumeratorsOf<OnvifFault::SpecificType>()},
        {"OnvifNetworkInterface::LinkSettings::Duplex", enumeratorsOf<OnvifNetworkInterface::LinkSettings::Duplex>()},
        {"OnvifNetworkInterface::IPv6::Configuration::DHCP",
         enumeratorsOf<OnvifNetworkInterface::IPv6::Configuration::DHCP>()},
        {"OnvifRelayOutput::RelayMode", enumeratorsOf<OnvifRelayOutput::RelayMode>()},
        {"OnvifRelayOutput::IdleState", enumeratorsOf<OnvifRelayOutput::IdleState>()},
    };
    const test::Declarations declarations = declared();
    EXPECT_EQ(declarations.enumerators.keys(), named.keys());
    for (auto enumeration = named.begin(); enumeration != named.end(); ++enumeration) {
        EXPECT_EQ(enumeration.value(), declarations.enumerators.value(enumeration.key()))
            << enumeration.key().toStdString();
    }
}

TEST(Enumerators, haveTheirNames)
{
    EXPECT_EQ(enumeratorName(OnvifScope::Unknown), QLatin1String("Unknown"));
    EXPECT_EQ(enumeratorName(OnvifFault::Sender), QLatin1String("Sender"));
    EXPECT_EQ(enumeratorName(OnvifFault::NotAuthorized), QLatin1String("NotAuthorized"));
    EXPECT_EQ(enumeratorName(OnvifFault::OptionalActionNotSupported), QLatin1String("OptionalActionNotSupported"));
    EXPECT_EQ(enumeratorName(OnvifNetworkInterface::LinkSettings::Half), QLatin1String("Half"));
    EXPECT_EQ(enumeratorName(OnvifNetworkInterface::IPv6::Configuration::Stateless), QLatin1String("Stateless"));
    EXPECT_EQ(enumeratorName(OnvifRelayOutput::Bistable), QLatin1String("Bistable"));
    EXPECT_EQ(enumeratorName(OnvifRelayOutput::Closed), QLatin1String("Closed"));
}

TEST(Enumerators, beyondTheDeclarationHaveNoName)
{
    EXPECT_TRUE(enumeratorName(static_cast<OnvifRelayOutput::RelayMode>(2)).isNull());
    EXPECT_TRUE(enumeratorName(static_cast<OnvifFault::FaultType>(-1)).isNull());
}

TEST(Declarations, areReadWithWhatSurroundsThem)
{
    const test::Declarations found = test::declarationsIn(R"(
#define FIELD \
    int inMacro;
/* int inComment; */
namespace vorn {
struct VORNSDK_ONVIF_EXPORT Outer : Base, Other
{
    enum Kind : qint32 {
        First = 0, ///< one, two
        Second = 1,
    };

    struct Inner
    {
        bool flag = true; // bool other;
    };

    Inner inner;
    int plain, second = 2;
    const char *pointer = "a";
    QMap<QString, QList<int>> map{{"a", {}}};
    int array[2] = {1, 2};
    double
        broken = 0.0;
    static constexpr int notAField = 1;
    using Alias = int;

    Outer();
    Outer(const Outer &other) = default;
    bool operator==(const Outer &other) const;
    int count(int start = 0) const { int local = start; return local; }
    Kind kind = First;

protected:
    int notPublic;

private:
    int m_private = 0;
};

class Closed
{
    int hidden;

public:
    int shown;
};
} // namespace vorn
)");
    EXPECT_EQ(found.fields.keys(), QStringList({"Closed", "Outer", "Outer::Inner"}));
    EXPECT_EQ(found.fields.value("Outer"),
              QStringList({"inner", "plain", "second", "pointer", "map", "array", "broken", "kind"}));
    EXPECT_EQ(found.fields.value("Outer::Inner"), QStringList({"flag"}));
    EXPECT_EQ(found.fields.value("Closed"), QStringList({"shown"}));
    EXPECT_EQ(found.enumerators.keys(), QStringList({"Outer::Kind"}));
    EXPECT_EQ(found.enumerators.value("Outer::Kind"), QStringList({"First = 0", "Second = 1"}));
}

} // namespace
