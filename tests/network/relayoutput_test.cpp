#include "support/catalogue.h"
#include "support/printing.h"
#include "support/recordingtranslator.h"

#include <vorn/onvif/relays.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <type_traits>

using vorn::OnvifRelayOutput;
using vorn::OnvifRelayOutputVector;
using vorn::XmlResponse;
using vorn::XmlResponseNode;

static_assert(std::is_base_of_v<vorn::OnvifDataStructure, OnvifRelayOutput>);
static_assert(!std::is_base_of_v<vorn::OnvifResponseStructure, OnvifRelayOutput>);
static_assert(!std::is_convertible_v<XmlResponseNode, OnvifRelayOutput>);
static_assert(std::is_nothrow_move_constructible_v<OnvifRelayOutput>);
static_assert(std::is_nothrow_move_assignable_v<OnvifRelayOutput>);

static_assert(std::is_base_of_v<QList<OnvifRelayOutput>, OnvifRelayOutputVector>);
static_assert(std::is_base_of_v<vorn::OnvifResponseStructure, OnvifRelayOutputVector>);
static_assert(!std::is_base_of_v<vorn::OnvifDataStructure, OnvifRelayOutputVector>);
static_assert(!std::is_polymorphic_v<OnvifRelayOutputVector>);
static_assert(std::is_nothrow_move_constructible_v<OnvifRelayOutputVector>);
static_assert(std::is_nothrow_move_assignable_v<OnvifRelayOutputVector>);

static_assert(std::is_same_v<std::underlying_type_t<OnvifRelayOutput::RelayMode>, qint32>);
static_assert(std::is_same_v<std::underlying_type_t<OnvifRelayOutput::IdleState>, qint32>);
static_assert(OnvifRelayOutput::Monostable == 0 && OnvifRelayOutput::Bistable == 1);
static_assert(OnvifRelayOutput::Open == 0 && OnvifRelayOutput::Closed == 1);

namespace {

OnvifRelayOutput relayWith(const QByteArray &content, const QByteArray &attributes = {})
{
    XmlResponse response("<RelayOutputs " + attributes + ">" + content + "</RelayOutputs>", QString());
    return OnvifRelayOutput(response.get("/RelayOutputs"));
}

OnvifRelayOutput relayWithProperties(const QByteArray &properties)
{
    return relayWith("<Properties>" + properties + "</Properties>");
}

void expectDefaults(const OnvifRelayOutput &relay)
{
    EXPECT_EQ(relay.token, "");
    EXPECT_EQ(relay.mode, OnvifRelayOutput::Monostable);
    EXPECT_EQ(relay.delayTime, "");
    EXPECT_EQ(relay.idleState, OnvifRelayOutput::Closed);
}

const QByteArray wholeContent = "<tt:Properties><tt:Mode>Bistable</tt:Mode><tt:DelayTime>PT5S</tt:DelayTime>"
                                "<tt:IdleState>open</tt:IdleState></tt:Properties>";

void expectWhole(const OnvifRelayOutput &relay)
{
    EXPECT_FALSE(relay.isNull());
    EXPECT_EQ(relay.token, "relay-0");
    EXPECT_EQ(relay.mode, OnvifRelayOutput::Bistable);
    EXPECT_EQ(relay.delayTime, "PT5S");
    EXPECT_EQ(relay.idleState, OnvifRelayOutput::Open);
}

TEST(OnvifRelayOutput, isNullByDefault)
{
    const OnvifRelayOutput relay;
    EXPECT_TRUE(relay.isNull());
    expectDefaults(relay);
    EXPECT_TRUE(relay.toString().isNull());
}

TEST(OnvifRelayOutput, readsAllFields)
{
    const OnvifRelayOutput relay = relayWith(wholeContent, "token='relay-0'");
    expectWhole(relay);
    EXPECT_TRUE(relay.toString().isNull());
}

TEST(OnvifRelayOutput, readsFieldsInAnyOrder)
{
    expectWhole(relayWith("<Other/><Properties><IdleState>open</IdleState><Extension/><DelayTime>PT5S</DelayTime>"
                          "<Mode>Bistable</Mode></Properties>",
                          "other='x' token='relay-0'"));
}

TEST(OnvifRelayOutput, hasItsFieldsInOrder)
{
    const OnvifRelayOutput relay;
    EXPECT_LT(static_cast<const void *>(&relay.token), static_cast<const void *>(&relay.mode));
    EXPECT_LT(static_cast<const void *>(&relay.mode), static_cast<const void *>(&relay.delayTime));
    EXPECT_LT(static_cast<const void *>(&relay.delayTime), static_cast<const void *>(&relay.idleState));
}

TEST(OnvifRelayOutput, ofAMissingNodeIsNull)
{
    XmlResponse response("<r/>", QString());
    const OnvifRelayOutput relay(response.get("/r/RelayOutputs"));
    EXPECT_TRUE(relay.isNull());
    expectDefaults(relay);
}

TEST(OnvifRelayOutput, ofANullElementIsNullThoughItsNodeIsValid)
{
    XmlResponseNode node;
    node.valid = true;
    EXPECT_TRUE(OnvifRelayOutput(node).isNull());
}

TEST(OnvifRelayOutput, ofAnElementIsNotNullThoughItsNodeIsNotValid)
{
    XmlResponse response("<RelayOutputs token='relay-0'>" + wholeContent + "</RelayOutputs>", QString());
    XmlResponseNode node = response.get("/RelayOutputs");
    node.valid = false;
    expectWhole(OnvifRelayOutput(node));
}

TEST(OnvifRelayOutput, withoutPropertiesHasItsTokenOnly)
{
    const OnvifRelayOutput relay = relayWith("", "token='relay-0'");
    EXPECT_FALSE(relay.isNull());
    EXPECT_EQ(relay.token, "relay-0");
    EXPECT_EQ(relay.mode, OnvifRelayOutput::Monostable);
    EXPECT_EQ(relay.delayTime, "");
    EXPECT_EQ(relay.idleState, OnvifRelayOutput::Closed);
    expectDefaults(relayWithProperties(""));
}

TEST(OnvifRelayOutput, textsAreVerbatim)
{
    EXPECT_EQ(relayWith("", "token=' a &amp; B '").token, " a & B ");
    EXPECT_EQ(relayWithProperties("<DelayTime> 5 s&lt; </DelayTime>").delayTime, " 5 s< ");
}

TEST(OnvifRelayOutput, otherNamesAndPlacesAreNotRead)
{
    expectDefaults(relayWith("<token>t</token><Mode>Bistable</Mode><DelayTime>PT1S</DelayTime>"
                             "<IdleState>open</IdleState><properties><Mode>Bistable</Mode></properties>"
                             "<Properties Token='t'><mode>Bistable</mode><MODE>Bistable</MODE>"
                             "<delayTime>PT1S</delayTime><Delaytime>PT1S</Delaytime><idleState>open</idleState>"
                             "<Idlestate>open</Idlestate><Extension><Mode>Bistable</Mode></Extension></Properties>",
                             "Token='t'"));
}

TEST(OnvifRelayOutput, modeIsReadByItsText)
{
    const auto read = [](const QByteArray &properties) { return relayWithProperties(properties).mode; };
    EXPECT_EQ(read("<Mode>Monostable</Mode>"), OnvifRelayOutput::Monostable);
    EXPECT_EQ(read("<Mode>Bistable</Mode>"), OnvifRelayOutput::Bistable);
    EXPECT_EQ(read("<Mode>Bistable</Mode><Mode>Monostable</Mode>"), OnvifRelayOutput::Monostable);
    for (const char *text : {"bistable", "BISTABLE", "Bistable ", "monostable", "1", "0", ""}) {
        const QByteArray unknown = QByteArray("<Mode>") + text + "</Mode>";
        EXPECT_EQ(read(unknown), OnvifRelayOutput::Monostable) << text;
        EXPECT_EQ(read("<Mode>Bistable</Mode>" + unknown), OnvifRelayOutput::Bistable) << text;
    }
}

TEST(OnvifRelayOutput, idleStateIsClosedUnlessTheTextIsOpen)
{
    const auto read = [](const QByteArray &properties) { return relayWithProperties(properties).idleState; };
    EXPECT_EQ(read("<IdleState>open</IdleState>"), OnvifRelayOutput::Open);
    EXPECT_EQ(read("<IdleState>closed</IdleState><IdleState>open</IdleState>"), OnvifRelayOutput::Open);
    for (const char *text : {"closed", "Closed", "Open", "OPEN", " open", "open ", "0", "opened", ""}) {
        const QByteArray other = QByteArray("<IdleState>") + text + "</IdleState>";
        EXPECT_EQ(read(other), OnvifRelayOutput::Closed) << text;
        EXPECT_EQ(read("<IdleState>open</IdleState>" + other), OnvifRelayOutput::Closed) << text;
    }
}

TEST(OnvifRelayOutput, modeIsReadFromTheWholeElement)
{
    const auto read = [](const QByteArray &content) {
        return relayWithProperties("<Mode>" + content + "</Mode>").mode;
    };
    for (const char *content : {"Bi<b>stab</b>le", "<b>Bistable</b>", "Bi<![CDATA[stable]]>", "<![CDATA[Bistable]]>",
                                "B<!-- -->istable", "Bistabl<?x y?>e"})
        EXPECT_EQ(read(content), OnvifRelayOutput::Bistable) << content;
    for (const char *content : {"Bistable<b>x</b>", "<b>x</b>Bistable", "Bistable<![CDATA[ ]]>", "<!-- Bistable -->"})
        EXPECT_EQ(read(content), OnvifRelayOutput::Monostable) << content;
}

TEST(OnvifRelayOutput, idleStateIsReadFromTheWholeElement)
{
    const auto read = [](const QByteArray &content) {
        return relayWithProperties("<IdleState>" + content + "</IdleState>").idleState;
    };
    for (const char *content :
         {"o<b>pe</b>n", "<b>open</b>", "op<![CDATA[en]]>", "<![CDATA[open]]>", "o<!-- -->pen", "ope<?x y?>n"})
        EXPECT_EQ(read(content), OnvifRelayOutput::Open) << content;
    for (const char *content : {"open<b>ed</b>", "<b>re</b>open", "open<![CDATA[ ]]>", "<!-- open -->"})
        EXPECT_EQ(read(content), OnvifRelayOutput::Closed) << content;
}

TEST(OnvifRelayOutput, delayTimeIsTheTextOfTheWholeElement)
{
    const auto read = [](const QByteArray &content) {
        return relayWithProperties("<DelayTime>" + content + "</DelayTime>").delayTime;
    };
    EXPECT_EQ(read("P<b>T5</b>S"), "PT5S");
    EXPECT_EQ(read("PT<![CDATA[5S]]>"), "PT5S");
    EXPECT_EQ(read("PT<!-- 1 -->5S"), "PT5S");
}

TEST(OnvifRelayOutput, theLastElementCounts)
{
    const OnvifRelayOutput relay =
        relayWith("<Properties><Mode>Monostable</Mode><DelayTime>a</DelayTime><DelayTime>b</DelayTime></Properties>"
                  "<Properties><Mode>Bistable</Mode><IdleState>open</IdleState></Properties><Properties/>");
    EXPECT_EQ(relay.mode, OnvifRelayOutput::Bistable);
    EXPECT_EQ(relay.delayTime, "b");
    EXPECT_EQ(relay.idleState, OnvifRelayOutput::Open);
    EXPECT_EQ(relayWithProperties("<DelayTime>a</DelayTime><DelayTime/>").delayTime, "");
}

TEST(OnvifRelayOutput, equalityIsByTokenAlone)
{
    OnvifRelayOutput relay;
    relay.token = "relay-0";
    const OnvifRelayOutput other = relayWith(wholeContent, "token='relay-0'");
    EXPECT_TRUE(relay == other);
    EXPECT_FALSE(relay != other);
    OnvifRelayOutput changed = other;
    changed.token = "Relay-0";
    EXPECT_FALSE(changed == other);
    EXPECT_TRUE(changed != other);
    EXPECT_TRUE(OnvifRelayOutput() == relayWith(wholeContent));
}

TEST(OnvifRelayOutput, isCopiedMovedAndAssigned)
{
    const OnvifRelayOutput source = relayWith(wholeContent, "token='relay-0'");
    OnvifRelayOutput copy(source);
    expectWhole(copy);
    OnvifRelayOutput moved(std::move(copy));
    expectWhole(moved);
    OnvifRelayOutput assigned;
    assigned = moved;
    expectWhole(assigned);
    OnvifRelayOutput moveAssigned;
    moveAssigned = std::move(moved);
    expectWhole(moveAssigned);
    expectWhole(source);
    assigned = OnvifRelayOutput();
    EXPECT_TRUE(assigned.isNull());
    expectDefaults(assigned);
}

const QString root = "/Envelope/Body/GetRelayOutputsResponse";

QByteArray replyWith(const QByteArray &entries)
{
    return "<s:Envelope xmlns:s='http://www.w3.org/2003/05/soap-envelope'"
           " xmlns:tds='http://www.onvif.org/ver10/device/wsdl' xmlns:tt='http://www.onvif.org/ver10/schema'><s:Body>"
           "<tds:GetRelayOutputsResponse>"
           + entries + "</tds:GetRelayOutputsResponse></s:Body></s:Envelope>";
}

const QByteArray twoRelays = replyWith("<tds:RelayOutputs token='relay-0'>" + wholeContent
                                       + "</tds:RelayOutputs><tds:Other token='x'/><tds:RelayOutputs/>");

void expectTwo(OnvifRelayOutputVector list)
{
    ASSERT_EQ(list.size(), 2);
    expectWhole(list[0]);
    EXPECT_FALSE(list[1].isNull());
    expectDefaults(list[1]);
    EXPECT_EQ(list.xml, QString::fromLatin1(twoRelays));
    EXPECT_EQ(list.response.getText("/RelayOutputs/Properties/Mode"), "Bistable");
}

TEST(OnvifRelayOutputVector, isEmptyByDefault)
{
    OnvifRelayOutputVector list;
    EXPECT_TRUE(list.isEmpty());
    EXPECT_TRUE(list.xml.isEmpty());
    EXPECT_FALSE(list.response.get("/Envelope").valid);
}

TEST(OnvifRelayOutputVector, isAListFirstAndAResponseAfterIt)
{
    const OnvifRelayOutputVector list;
    const void *const start = &list;
    EXPECT_EQ(static_cast<const void *>(static_cast<const QList<OnvifRelayOutput> *>(&list)), start);
    EXPECT_GT(static_cast<const void *>(static_cast<const vorn::OnvifResponseStructure *>(&list)), start);
}

TEST(OnvifRelayOutputVector, readsEachRelayInOrder)
{
    expectTwo(OnvifRelayOutputVector(twoRelays, root));
}

TEST(OnvifRelayOutputVector, startsAtTheGivenRoot)
{
    EXPECT_EQ(OnvifRelayOutputVector("<r><RelayOutputs/></r>", "/r").size(), 1);
    EXPECT_TRUE(OnvifRelayOutputVector(twoRelays, "/Envelope/Body").isEmpty());
}

TEST(OnvifRelayOutputVector, otherRepliesGiveAnEmptyListAndKeepTheText)
{
    for (const QByteArray &reply :
         {replyWith(""), replyWith("<RelayOutput token='a'/><relayOutputs token='a'/>"),
          QByteArray("<Envelope><Body><GetNetworkInterfacesResponse><RelayOutputs/></GetNetworkInterfacesResponse>"
                     "</Body></Envelope>"),
          QByteArray("<Envelope><Body><Fault/></Body></Envelope>"), QByteArray("not XML"), QByteArray("")}) {
        OnvifRelayOutputVector list(reply, root);
        EXPECT_TRUE(list.isEmpty()) << reply.toStdString();
        EXPECT_EQ(list.xml, QString::fromLatin1(reply));
        EXPECT_TRUE(list.response.getAll("/RelayOutputs").isEmpty());
    }
    EXPECT_TRUE(OnvifRelayOutputVector(QByteArray(), root).isEmpty());
}

TEST(OnvifRelayOutputVector, isCopiedMovedAndAssigned)
{
    const OnvifRelayOutputVector source(twoRelays, root);
    OnvifRelayOutputVector copy(source);
    expectTwo(copy);
    OnvifRelayOutputVector moved(std::move(copy));
    expectTwo(moved);
    OnvifRelayOutputVector assigned;
    assigned = moved;
    expectTwo(assigned);
    OnvifRelayOutputVector moveAssigned;
    moveAssigned = std::move(moved);
    expectTwo(moveAssigned);
    expectTwo(source);
}

OnvifRelayOutput named(const QString &token)
{
    OnvifRelayOutput relay;
    relay.token = token;
    relay.delayTime = token;
    return relay;
}

QStringList tokensOf(const QList<OnvifRelayOutput> &list)
{
    QStringList tokens;
    for (const OnvifRelayOutput &relay : list) {
        tokens.append(relay.token);
        EXPECT_EQ(relay.delayTime, relay.token);
    }
    return tokens;
}

TEST(OnvifRelayOutputVector, isAListInEveryRespect)
{
    OnvifRelayOutputVector list;
    for (int i = 0; i < 100; ++i)
        list.append(named(QString::number(i)));
    ASSERT_EQ(list.size(), 100);
    EXPECT_EQ(list.constLast().token, "99");
    list.remove(3, 97);

    const QList<OnvifRelayOutput> shared = list;
    list.insert(1, named("b"));
    list.prepend(named("a"));
    EXPECT_EQ(tokensOf(list), QStringList({"a", "0", "b", "1", "2"}));
    EXPECT_EQ(tokensOf(shared), QStringList({"0", "1", "2"}));

    std::sort(list.begin(), list.end(),
              [](const OnvifRelayOutput &a, const OnvifRelayOutput &b) { return a.token < b.token; });
    EXPECT_EQ(tokensOf(list), QStringList({"0", "1", "2", "a", "b"}));
    EXPECT_EQ(list.indexOf(named("2")), 2);
    EXPECT_FALSE(list.contains(named("c")));
    EXPECT_EQ(list.takeAt(0).token, "0");
    EXPECT_TRUE(list.mid(2) == QList<OnvifRelayOutput>({named("a"), named("b")}));
}

struct NameRow
{
    QString (*print)();
    const char *name;
};

using Mode = OnvifRelayOutput::RelayMode;
using State = OnvifRelayOutput::IdleState;

const NameRow names[] = {
    {[] { return vPrintable(OnvifRelayOutput::Monostable); }, "Monostable"},
    {[] { return vPrintable(OnvifRelayOutput::Bistable); }, "Bistable"},
    {[] { return vPrintable(OnvifRelayOutput::Open); }, "Open"},
    {[] { return vPrintable(OnvifRelayOutput::Closed); }, "Closed"},
};

QString (*const unnamed[])() = {
    [] { return vPrintable(static_cast<Mode>(2)); },
    [] { return vPrintable(static_cast<Mode>(-1)); },
    [] { return vPrintable(static_cast<State>(2)); },
    [] { return vPrintable(static_cast<State>(-1)); },
};

TEST(RelayOutputNames, areEnglishWithoutACatalogue)
{
    for (const NameRow &row : names)
        EXPECT_EQ(row.print(), row.name);
}

TEST(RelayOutputNames, areEmptyOutsideTheEnumerations)
{
    for (const auto print : unnamed)
        EXPECT_EQ(print(), "");
}

using RelayOutputTranslation = test::TranslationTest;

TEST_F(RelayOutputTranslation, isAskedOnceForEachName)
{
    for (const NameRow &row : names) {
        translator.requests.clear();
        EXPECT_EQ(row.print(), row.name);
        ASSERT_EQ(translator.requests.size(), 1U) << row.name;
        EXPECT_EQ(last().context, QByteArray("vorn::OnvifRelayOutput"));
        EXPECT_EQ(last().sourceText, QByteArray(row.name));
        EXPECT_TRUE(last().disambiguation.isNull());
        EXPECT_EQ(last().n, -1);
    }
}

TEST_F(RelayOutputTranslation, isNotAskedForUnknownValues)
{
    for (const auto print : unnamed)
        EXPECT_EQ(print(), "");
    EXPECT_TRUE(translator.requests.empty());
}

TEST_F(RelayOutputTranslation, isShownToTheUser)
{
    test::UpperCaseTranslator upper;
    QCoreApplication::installTranslator(&upper);
    EXPECT_EQ(vPrintable(OnvifRelayOutput::Bistable), "BISTABLE");
    EXPECT_EQ(vPrintable(OnvifRelayOutput::Closed), "CLOSED");
}

TEST(RelayOutputCatalogue, holdsEachNameOnceAndNoOther)
{
    QList<test::Message> expected;
    for (const NameRow &row : names)
        expected.append(test::Message(row.name, QString()));
    QList<test::Message> found = test::messagesByContext().value("vorn::OnvifRelayOutput");
    std::sort(expected.begin(), expected.end());
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, expected);
}

} // namespace
