// The elements of a reply, looked at where they stand.

#include "fuzz/sameview.h"
#include "support/allocations.h"
#include "support/printing.h"
#include "support/sanitizers.h"

#include <vorn/util/xmlresponse.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

using vorn::XmlElementView;
using vorn::XmlElementViews;
using vorn::XmlResponse;
using vorn::XmlResponseNode;

static_assert(sizeof(XmlElementView) == sizeof(void *));
static_assert(std::is_trivially_copyable_v<XmlElementView>);
static_assert(std::is_trivially_copyable_v<XmlElementViews>);
static_assert(std::is_nothrow_default_constructible_v<XmlElementView>);
static_assert(XmlElementView().isNull());
static_assert(XmlElementView() == XmlElementView());
static_assert(XmlElementViews().isEmpty());
static_assert(XmlElementViews().begin() == XmlElementViews().end());

namespace {

/// The texts of \a views in order.
QStringList textsOf(const XmlElementViews &views)
{
    QStringList texts;
    for (const XmlElementView view : views)
        texts.append(view.text());
    return texts;
}

QStringList namesOf(const XmlElementViews &views)
{
    QStringList names;
    for (const XmlElementView view : views)
        names.append(view.name());
    return names;
}

/// The response that has \a content in its element "v".
XmlResponse responseOf(const QByteArray &content)
{
    return {"<r><v>" + content + "</v></r>", "/r"};
}

void expectMissing(XmlElementView view)
{
    EXPECT_TRUE(view.isNull());
    EXPECT_TRUE(view.name().isNull());
    EXPECT_TRUE(view.utf8Name().isEmpty());
    EXPECT_FALSE(view.hasName("v"));
    EXPECT_FALSE(view.hasName(""));
    EXPECT_FALSE(view.hasName(QString()));
    EXPECT_TRUE(view.text().isNull());
    EXPECT_FALSE(view.hasText("v"));
    EXPECT_FALSE(view.hasText(""));
    EXPECT_FALSE(view.hasText(QString()));
    EXPECT_EQ(view.toUInt(), 0U);
    EXPECT_EQ(view.toInt(), 0);
    EXPECT_EQ(view.toDouble(), 0.0);
    EXPECT_FALSE(std::signbit(view.toDouble()));
    EXPECT_FALSE(view.toBool());
    EXPECT_TRUE(view.attribute("token").isNull());
    EXPECT_TRUE(view.attribute("").isNull());
    EXPECT_TRUE(view.at("").isNull());
    EXPECT_TRUE(view.at("/v").isNull());
    EXPECT_TRUE(view.children().isEmpty());
    EXPECT_TRUE(view.children("v").isEmpty());
    EXPECT_EQ(view, XmlElementView());
}

TEST(XmlElementView, isMissingByDefault)
{
    expectMissing(XmlElementView());
}

TEST(XmlElementView, isMissingWhereNoElementIs)
{
    const XmlResponse response("<r><a/></r>", "/r");
    expectMissing(response.view("/v"));
    expectMissing(response.view("/v/w"));
    expectMissing(response.view("").at("/v"));
    expectMissing(response.view("/v").at("/w"));
    expectMissing(*response.viewAll("/v").begin());
    expectMissing(*response.view("").children("v").begin());
    expectMissing(*response.view("").children().end());
}

TEST(XmlElementView, isMissingInAResponseOfNothing)
{
    expectMissing(XmlResponse().view(""));
    expectMissing(XmlResponse().view("/r"));
    expectMissing(XmlResponse("", "/r").view(""));
    expectMissing(XmlResponse("<r><v></r>", "/r").view("/v"));
    expectMissing(XmlResponse("<r><v/></r>", "/missing").view("/v"));
    expectMissing(XmlResponse("<r><v/></r>", "/missing").view(""));
}

TEST(XmlElementView, hasALocalName)
{
    const XmlResponse response("<tt:r xmlns:tt='urn:t'><a:Name/><Plain/><x:y:c/><:odd/></tt:r>", "/r");
    EXPECT_EQ(response.view("").name(), "r");
    EXPECT_EQ(namesOf(response.view("").children()), QStringList({"Name", "Plain", "y:c", "odd"}))
        << "the prefix ends at the first colon";
    EXPECT_EQ(response.view("/Name").utf8Name(), "Name");
    EXPECT_TRUE(response.view("/Name").hasName("Name"));
    EXPECT_FALSE(response.view("/Name").hasName("a:Name"));
    EXPECT_FALSE(response.view("/Name").hasName("name"));
    EXPECT_FALSE(response.view("/Name").hasName("Nam"));
    EXPECT_FALSE(response.view("/Name").hasName("Name1"));
    EXPECT_FALSE(response.view("/Name").hasName(""));
}

TEST(XmlElementView, mayHaveAnEmptyName)
{
    const XmlResponse response("<r><x:/></r>", "/r");
    const XmlElementView element = *response.view("").children().begin();
    EXPECT_FALSE(element.isNull());
    EXPECT_TRUE(element.name().isEmpty());
    EXPECT_FALSE(element.name().isNull());
    EXPECT_TRUE(element.utf8Name().isEmpty());
    EXPECT_TRUE(element.hasName(""));
    EXPECT_TRUE(response.view("").children("").isEmpty()) << "as no path leads to it";
    EXPECT_TRUE(response.view("").at("/").isNull());
}

TEST(XmlElementView, comparesNamesOfEachKindOfString)
{
    const XmlResponse response("<r><Name/></r>", "/r");
    const XmlElementView element = response.view("/Name");
    const char16_t notTerminated[] = {u'N', u'a', u'm', u'e', u's'};
    EXPECT_TRUE(element.hasName(QString("Name")));
    EXPECT_TRUE(element.hasName(QStringView(notTerminated, 4)));
    EXPECT_FALSE(element.hasName(QStringView(notTerminated, 5)));
    EXPECT_TRUE(element.hasName(u"Name"));
    EXPECT_TRUE(element.hasName("Name"_L1));
    EXPECT_TRUE(element.hasName("Name"));
    EXPECT_TRUE(element.hasName(QByteArray("Name")));
    EXPECT_TRUE(element.hasName(QByteArrayView("Names").first(4)));
    EXPECT_FALSE(element.hasName(u"Nam\u00E9"));
    EXPECT_FALSE(element.hasName("Nam\xE9"_L1));
    EXPECT_FALSE(element.hasName("Nam\xC3\xA9"));
}

TEST(XmlElementView, comparesNamesBeyondAscii)
{
    const XmlResponse response("<r><x:gr\xC3\xB6\xC3\x9F"
                               "e>1</x:gr\xC3\xB6\xC3\x9F"
                               "e></r>",
                               "/r");
    const XmlElementView element = *response.view("").children().begin();
    EXPECT_EQ(element.name(), u"gr\u00F6\u00DFe");
    EXPECT_EQ(element.utf8Name(), "gr\xC3\xB6\xC3\x9F"
                                  "e");
    EXPECT_TRUE(element.hasName(QStringLiteral(u"gr\u00F6\u00DFe")));
    EXPECT_TRUE(element.hasName(u"gr\u00F6\u00DFe"));
    EXPECT_TRUE(element.hasName("gr\xF6\xDF"
                                "e"_L1));
    EXPECT_TRUE(element.hasName("gr\xC3\xB6\xC3\x9F"
                                "e"));
    EXPECT_FALSE(element.hasName(u"gr\u00F6\u00DF"));
    EXPECT_FALSE(element.hasName(u"gr\u00F6se"));
    EXPECT_FALSE(element.hasName("gr\xC3\xB6\xC3\x9F"
                                 "e"_L1));
    EXPECT_EQ(response.view(u"/gr\u00F6\u00DFe"), element);
    EXPECT_EQ(response.view("/gr\xF6\xDF"
                            "e"_L1),
              element);
    EXPECT_EQ(response.view("/gr\xC3\xB6\xC3\x9F"
                            "e"),
              element);
}

TEST(XmlElementView, comparesAByteOrderMarkInANameAsACharacter)
{
    const XmlResponse response("<r><\xEF\xBB\xBFm>1</\xEF\xBB\xBFm><n\xEF\xBB\xBF>2</n\xEF\xBB\xBF><m>3</m></r>", "/r");
    EXPECT_EQ(namesOf(response.view("").children()), QStringList({u"\uFEFFm"_s, u"n\uFEFF"_s, u"m"_s}));
    EXPECT_EQ(response.view(u"/\uFEFFm").text(), "1");
    EXPECT_EQ(response.view("/\xEF\xBB\xBFm").text(), "1");
    EXPECT_EQ(response.view(u"/n\uFEFF").text(), "2");
    EXPECT_EQ(response.view("/n\xEF\xBB\xBF").text(), "2");
    EXPECT_EQ(response.view("/m").text(), "3");
    EXPECT_FALSE(response.view("/m").hasName("m\xEF\xBB\xBF"));
    EXPECT_FALSE(response.view("/m").hasName("\xEF\xBB\xBFm"));
}

TEST(XmlElementView, showsAnIllFormedNameAsItIsAndDecoded)
{
    const XmlResponse response("<r><a\xFF"
                               "b/></r>",
                               "/r");
    const XmlElementView element = *response.view("").children().begin();
    EXPECT_EQ(element.utf8Name(), "a\xFF"
                                  "b");
    EXPECT_EQ(element.name(), u"a\uFFFDb");
    EXPECT_TRUE(element.hasName(u"a\uFFFDb"));
    EXPECT_TRUE(element.hasName("a\xFF"
                                "b"));
    EXPECT_TRUE(element.hasName("a\xFE"
                                "b"))
        << "which decodes to the same";
    EXPECT_FALSE(element.hasName(u"a\u00FFb"));
    EXPECT_EQ(response.view(u"/a\uFFFDb"), element);
}

TEST(XmlElementView, takesNamesThatDecodeToTheSameForOne)
{
    XmlResponse response("<r><a\xFF>1</a\xFF><b>2</b><a\xFE>3</a\xFE>"
                         "<\xEF\xBB\xBF\xFF>4</\xEF\xBB\xBF\xFF><\xEF\xBB\xBF\xFE>5</\xEF\xBB\xBF\xFE></r>",
                         "/r");
    EXPECT_EQ(textsOf(response.view("").children(u"a\uFFFD")), QStringList({"1", "3"}));
    EXPECT_EQ(textsOf(response.viewAll(u"/a\uFFFD")), QStringList({"1", "3"}));
    EXPECT_EQ(response.getAll(QStringLiteral(u"/a\uFFFD")).size(), 2);
    EXPECT_EQ(textsOf(response.viewAll(u"/\uFEFF\uFFFD")), QStringList({"4", "5"}));
    EXPECT_EQ(response.getAll(QStringLiteral(u"/\uFEFF\uFFFD")).size(), 2);
}

TEST(XmlElementView, aNulInAStringMatchesNothing)
{
    const XmlResponse response("<r><b k='v'>1</b></r>", "/r");
    const QString tail(QChar(u'\0'));
    EXPECT_FALSE(response.view("/b").hasName("b" + tail));
    EXPECT_FALSE(response.view("/b").hasText("1" + tail));
    EXPECT_TRUE(response.view("/b").attribute("k" + tail).isNull());
    EXPECT_TRUE(response.view("/b" + tail).isNull());
    EXPECT_TRUE(response.view("").at("/b" + tail).isNull());
    EXPECT_TRUE(response.view("").children("b" + tail).isEmpty());
}

struct TextRow
{
    const char *content;
    const char16_t *text;
};

class ViewedText : public testing::TestWithParam<TextRow>
{
};

const TextRow texts[] = {
    {"", u""},
    {"plain", u"plain"},
    {"  kept blanks  ", u"  kept blanks  "},
    {"   ", u""},
    {"\n\t ", u""},
    {"&#32;", u""},
    {" &#32;x", u"  x"},
    {"one<!-- not text -->two", u"onetwo"},
    {"one<!-- -->  <!-- -->two", u"onetwo"},
    {"one<?pi not text?>two", u"onetwo"},
    {"<![CDATA[<raw> & more]]>", u"<raw> & more"},
    {"<![CDATA[ ]]>", u" "},
    {"<![CDATA[]]>", u""},
    {" <![CDATA[x]]> ", u"x"},
    {"a<![CDATA[ ]]>b", u"a b"},
    {"&lt;&gt;&amp;&quot;&apos;", u"<>&\"'"},
    {"&#65;&#x42;&#xE9;", u"AB\u00E9"},
    {"&#x1F600;", u"\U0001F600"},
    {"&unknown; a & b", u"&unknown; a & b"},
    {"out<b>in<c>deep</c></b>out", u"outindeepout"},
    {" <b> </b> ", u""},
    {"<b/><b/>", u""},
    {"a\r\nb\rc\nd", u"a\nb\nc\nd"},
    {"\xEF\xBB\xBFmarked", u"\uFEFFmarked"},
    {"ill\xFF"
     "formed",
     u"ill\uFFFDformed"},
    {"\xE6\x91\x84\xE5\x83\x8F\xE6\x9C\xBA", u"\u6444\u50CF\u673A"},
};

TEST_P(ViewedText, isThatOfTheNode)
{
    XmlResponse response = responseOf(GetParam().content);
    const QString expected = QStringView(GetParam().text).toString();
    const XmlElementView element = response.view("/v");
    EXPECT_EQ(element.text(), expected);
    EXPECT_FALSE(element.text().isNull());
    EXPECT_EQ(response.get("/v").element.text(), expected);
}

TEST_P(ViewedText, isWhatItIsComparedWith)
{
    const XmlResponse response = responseOf(GetParam().content);
    const QString expected = QStringView(GetParam().text).toString();
    const QByteArray utf8 = expected.toUtf8();
    const XmlElementView element = response.view("/v");
    EXPECT_TRUE(element.hasText(expected));
    EXPECT_TRUE(element.hasText(QStringView(expected)));
    EXPECT_TRUE(element.hasText(utf8));
    EXPECT_TRUE(element.hasText(QUtf8StringView(utf8)));
    EXPECT_FALSE(element.hasText(expected + 'x'));
    EXPECT_FALSE(element.hasText(utf8 + "\xC3\xA9"));
    EXPECT_FALSE(element.hasText(utf8 + "\xEF\xBB\xBF"));
    EXPECT_FALSE(element.hasText("\xEF\xBB\xBF" + utf8));
    EXPECT_EQ(element.hasText(""), expected.isEmpty());
    EXPECT_EQ(element.hasText(QString()), expected.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(XmlElementView, ViewedText, testing::ValuesIn(texts));

TEST(XmlElementView, comparesTextWithEachKindOfLiteral)
{
    const XmlResponse response("<r><a>true</a><b>caf\xC3\xA9</b><c>caf<d>\xC3\xA9</d></c></r>", "/r");
    EXPECT_TRUE(response.view("/a").hasText(u"true"));
    EXPECT_TRUE(response.view("/a").hasText("true"_L1));
    EXPECT_TRUE(response.view("/a").hasText("true"));
    EXPECT_FALSE(response.view("/a").hasText("True"));
    for (const char *path : {"/b", "/c"}) {
        const XmlElementView element = response.view(path);
        EXPECT_TRUE(element.hasText(u"caf\u00E9")) << path;
        EXPECT_TRUE(element.hasText("caf\xE9"_L1)) << path;
        EXPECT_TRUE(element.hasText("caf\xC3\xA9")) << path;
        EXPECT_FALSE(element.hasText("caf\xC3\xA9"_L1)) << path;
        EXPECT_FALSE(element.hasText("caf")) << path;
    }
}

struct UIntRow
{
    const char *content;
    unsigned int value;
};

class ViewedUInt : public testing::TestWithParam<UIntRow>
{
};

const UIntRow unsignedNumbers[] = {
    {"0", 0U},           {"42", 42U},
    {" 42\n", 42U},      {"+42", 42U},
    {"007", 7U},         {"4294967295", 4294967295U},
    {"4<!-- -->2", 42U}, {"<![CDATA[42]]>", 42U},
    {"<b>4</b>2", 42U},  {"", 0U},
    {"4294967296", 0U},  {"-1", 0U},
    {"42abc", 0U},       {"4 2", 0U},
    {"1e3", 0U},         {"3.0", 0U},
};

TEST_P(ViewedUInt, isReadAsByTheQuery)
{
    XmlResponse response = responseOf(GetParam().content);
    EXPECT_EQ(response.view("/v").toUInt(), GetParam().value);
    EXPECT_EQ(response.getUInt("/v"), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(XmlElementView, ViewedUInt, testing::ValuesIn(unsignedNumbers));

struct IntRow
{
    const char *content;
    int value;
};

class ViewedInt : public testing::TestWithParam<IntRow>
{
};

const IntRow signedNumbers[] = {
    {"0", 0},
    {"42", 42},
    {" -42\n", -42},
    {"+42", 42},
    {"-007", -7},
    {"2147483647", 2147483647},
    {"-2147483648", std::numeric_limits<int>::min()},
    {"-<!-- -->2", -2},
    {"<b>-4</b>2", -42},
    {"", 0},
    {"2147483648", 0},
    {"-2147483649", 0},
    {"- 1", 0},
    {"--1", 0},
    {"1.0", 0},
    {"one", 0},
};

TEST_P(ViewedInt, isADecimalNumberInTheRangeOfTheType)
{
    EXPECT_EQ(responseOf(GetParam().content).view("/v").toInt(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(XmlElementView, ViewedInt, testing::ValuesIn(signedNumbers));

struct DoubleRow
{
    const char *content;
    double value;
};

class ViewedDouble : public testing::TestWithParam<DoubleRow>
{
};

constexpr double infinity = std::numeric_limits<double>::infinity();

const DoubleRow doubles[] = {
    {"0", 0.0},
    {"1", 1.0},
    {"-0.5", -0.5},
    {" 0.5\n", 0.5},
    {"1e3", 1000.0},
    {"1E-3", 0.001},
    {"+.5", 0.5},
    {"5.", 5.0},
    {"inf", infinity},
    {"-inf", -infinity},
    {"INF", infinity},
    {"1e999", infinity},
    {"-1e999", -infinity},
    {"1e-999", 0.0},
    {"0<!-- -->.5", 0.5},
    {"", 0.0},
    {"<b>1</b>.5", 1.5},
    {"<![CDATA[1.5]]>", 1.5},
    {"1,5", 0.0},
    {"1.5x", 0.0},
    {"one", 0.0},
    {"1 5", 0.0},
    {"infinity", 0.0},
    {"0x10", 0.0},
};

TEST_P(ViewedDouble, isANumberOfAnyUsualForm)
{
    EXPECT_EQ(responseOf(GetParam().content).view("/v").toDouble(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(XmlElementView, ViewedDouble, testing::ValuesIn(doubles));

TEST(XmlElementView, readsNanAsADouble)
{
    EXPECT_TRUE(std::isnan(responseOf("nan").view("/v").toDouble()));
    EXPECT_TRUE(std::isnan(responseOf(" NaN ").view("/v").toDouble()));
    EXPECT_TRUE(std::isnan(responseOf("<b>na</b>n").view("/v").toDouble()));
}

struct BoolRow
{
    const char *content;
    bool value;
};

class ViewedBool : public testing::TestWithParam<BoolRow>
{
};

const BoolRow booleans[] = {
    {"true", true},         {"1", true},           {" true ", true},      {"\n1\n", true}, {"<![CDATA[true]]>", true},
    {"tr<!-- -->ue", true}, {"<b>tr</b>ue", true}, {"false", false},      {"0", false},    {"", false},
    {"TRUE", false},        {"yes", false},        {"true false", false}, {"11", false},   {"01", false},
};

TEST_P(ViewedBool, isReadAsByTheQuery)
{
    XmlResponse response = responseOf(GetParam().content);
    EXPECT_EQ(response.view("/v").toBool(), GetParam().value);
    EXPECT_EQ(response.getBool("/v"), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(XmlElementView, ViewedBool, testing::ValuesIn(booleans));

TEST(XmlElementView, hasAttributesThatAreNamedAsWritten)
{
    const XmlResponse response("<r xmlns:tt='urn:t' tt:token='p' plain='q' empty='' gr\xC3\xB6\xC3\x9F"
                               "e='&lt;3'/>",
                               "/r");
    const XmlElementView element = response.view("");
    EXPECT_EQ(element.attribute("tt:token"), "p");
    EXPECT_EQ(element.attribute("xmlns:tt"), "urn:t");
    EXPECT_TRUE(element.attribute("token").isNull());
    EXPECT_TRUE(element.attribute("Plain").isNull());
    EXPECT_TRUE(element.attribute("").isNull());
    EXPECT_TRUE(element.attribute("empty").isEmpty());
    EXPECT_FALSE(element.attribute("empty").isNull());
    EXPECT_EQ(element.attribute(QString("plain")), "q");
    EXPECT_EQ(element.attribute(u"plain"), "q");
    EXPECT_EQ(element.attribute("plain"_L1), "q");
    EXPECT_EQ(element.attribute(u"gr\u00F6\u00DFe"), "<3");
    EXPECT_EQ(element.attribute("gr\xF6\xDF"
                                "e"_L1),
              "<3");
    EXPECT_EQ(element.attribute("gr\xC3\xB6\xC3\x9F"
                                "e"),
              "<3");
}

TEST(XmlElementView, takesTheFirstOfARepeatedAttribute)
{
    const XmlResponse response("<r a='0' token='first' b='1' token='second' c\xFF='3' c\xFE='4'/>", "/r");
    EXPECT_EQ(response.view("").attribute("token"), "first");
    EXPECT_EQ(response.view("").attribute(u"c\uFFFD"), "3");
}

TEST(XmlElementView, leadsToTheElementAtAPathBelowIt)
{
    const XmlResponse response("<r><Encoder><Resolution><Width>640</Width><Height>480</Height></Resolution>"
                               "<Encoder>inner</Encoder></Encoder></r>",
                               "/r");
    const XmlElementView encoder = response.view("/Encoder");
    EXPECT_EQ(encoder.at("/Resolution/Width").toInt(), 640);
    EXPECT_EQ(encoder.at(QString("/Resolution/Height")).toInt(), 480);
    EXPECT_EQ(encoder.at(u"/Resolution/Height").toInt(), 480);
    EXPECT_EQ(encoder.at("/Resolution/Height"_L1).toInt(), 480);
    EXPECT_EQ(encoder.at("/Resolution").at("/Width"), encoder.at("/Resolution/Width"));
    EXPECT_EQ(encoder.at("/Encoder").text(), "inner") << "the path does not name the element itself";
    EXPECT_EQ(encoder.at(""), encoder);
    EXPECT_EQ(encoder.at(QString()), encoder);
    EXPECT_TRUE(encoder.at("/Width").isNull());
    EXPECT_TRUE(encoder.at("/Resolution/Missing").isNull());
    EXPECT_TRUE(encoder.at("/Missing/Width").isNull());
}

TEST(XmlElementView, leadsNowhereByATextThatIsNoPath)
{
    const XmlResponse response("<r>text<b><c/></b><x:/></r>", "/r");
    const XmlElementView element = response.view("");
    for (const char *path : {"b", "/", "//", "//b", "/b/", "/b//c", "b/c", "/.", "/../r", "/*", "/b[1]", " /b", "/x:"})
        EXPECT_TRUE(element.at(path).isNull()) << path;
}

TEST(XmlElementView, leadsToTheFirstOfSeveralOfOneName)
{
    const XmlResponse response("<r><a><b id='1'/><b id='2'><c/></b></a></r>", "/r");
    EXPECT_EQ(response.view("/a").at("/b").attribute("id"), "1");
    EXPECT_TRUE(response.view("/a").at("/b/c").isNull()) << "each component chooses before the next is looked at";
}

TEST(XmlElementView, isEqualToWhatIsTheSameElement)
{
    const XmlResponse response("<r><a/><a/></r>", "/r");
    const XmlResponse copy(response);
    const XmlResponse parsedAgain("<r><a/><a/></r>", "/r");
    const XmlElementView first = response.view("/a");
    const XmlElementView second = *std::next(response.viewAll("/a").begin());
    EXPECT_TRUE(first == response.view("").at("/a"));
    EXPECT_FALSE(first != response.view("").at("/a"));
    EXPECT_TRUE(first == copy.view("/a"));
    EXPECT_TRUE(first != second) << "what they hold is not compared";
    EXPECT_FALSE(first == second);
    EXPECT_TRUE(first != parsedAgain.view("/a"));
    EXPECT_TRUE(first != XmlElementView());
    EXPECT_TRUE(response.view("/x") == XmlElementView());
}

TEST(XmlElementViews, areTheChildElementsInDocumentOrder)
{
    const XmlResponse response("<r>text<a>1</a><!-- a --><x:b>2</x:b><?a?><a>3</a><![CDATA[<a/>]]><c><a>4</a></c></r>",
                               "/r");
    const XmlElementView element = response.view("");
    EXPECT_EQ(namesOf(element.children()), QStringList({"a", "b", "a", "c"}));
    EXPECT_EQ(textsOf(element.children()), QStringList({"1", "2", "3", "4"}));
    EXPECT_FALSE(element.children().isEmpty());
    EXPECT_TRUE(element.at("/a").children().isEmpty());
}

TEST(XmlElementViews, ofANameAreTheChildrenOfThisLocalName)
{
    const XmlResponse response("<r>text<a>1</a><b/><x:a>2</x:a><!-- a --><aa/><A/><y:a>3</y:a><c><a/></c></r>", "/r");
    const XmlElementView element = response.view("");
    EXPECT_EQ(textsOf(element.children("a")), QStringList({"1", "2", "3"}));
    EXPECT_EQ(textsOf(element.children(QString("a"))), QStringList({"1", "2", "3"}));
    EXPECT_EQ(textsOf(element.children(u"a")), QStringList({"1", "2", "3"}));
    EXPECT_EQ(textsOf(element.children("a"_L1)), QStringList({"1", "2", "3"}));
    EXPECT_TRUE(element.children("x:a").isEmpty());
    EXPECT_TRUE(element.children("/a").isEmpty());
    EXPECT_TRUE(element.children("missing").isEmpty());
    EXPECT_TRUE(element.children("").isEmpty());
}

TEST(XmlElementViews, lookAtANameDuringTheCallOnly)
{
    const XmlResponse response("<r><a>1</a><b>x</b><a>2</a></r>", "/r");
    QChar text[] = {u'/', u'a'};
    const XmlElementViews children = response.view("").children(QStringView(text + 1, 1));
    const XmlElementViews all = response.viewAll(QStringView(text, 2));
    text[1] = u'b';
    EXPECT_EQ(textsOf(children), QStringList({"1", "2"}));
    EXPECT_EQ(textsOf(all), QStringList({"1", "2"}));
}

TEST(XmlElementViews, canBeWalkedOverMoreThanOnce)
{
    const XmlResponse response("<r><a>1</a><a>2</a></r>", "/r");
    const XmlElementViews views = response.viewAll("/a");
    EXPECT_EQ(textsOf(views), QStringList({"1", "2"}));
    EXPECT_EQ(textsOf(views), QStringList({"1", "2"}));
}

TEST(XmlElementViews, areNoneByDefault)
{
    EXPECT_TRUE(XmlElementViews().isEmpty());
    EXPECT_EQ(XmlElementViews().begin(), XmlElementViews().end());
    EXPECT_TRUE(namesOf(XmlElementViews()).isEmpty());
}

TEST(XmlElementViewsIterator, goesOnBeforeOrAfterItIsRead)
{
    const XmlResponse response("<r><a>1</a><a>2</a></r>", "/r");
    const XmlElementViews views = response.viewAll("/a");
    XmlElementViews::Iterator next = views.begin();
    EXPECT_EQ((*next++).text(), "1");
    EXPECT_EQ(next->text(), "2");
    EXPECT_EQ(&++next, &next);
    EXPECT_EQ(next, views.end());
}

TEST(XmlElementViewsIterator, isEqualToOneAtTheSamePlace)
{
    const XmlResponse response("<r><a>1</a><a>2</a></r>", "/r");
    const XmlElementViews views = response.viewAll("/a");
    XmlElementViews::Iterator next = views.begin();
    EXPECT_TRUE(next == views.begin());
    EXPECT_FALSE(next != views.begin());
    ++next;
    EXPECT_TRUE(next != views.begin());
    EXPECT_FALSE(next == views.begin());
    EXPECT_EQ(XmlElementViews::Iterator(), views.end());
}

TEST(XmlElementViewsIterator, worksWithAlgorithms)
{
    const XmlResponse response("<r><a>1</a><b>2</b><a>3</a></r>", "/r");
    const XmlElementViews children = response.view("").children();
    EXPECT_EQ(std::distance(children.begin(), children.end()), 3);
    const auto found =
        std::find_if(children.begin(), children.end(), [](XmlElementView child) { return child.hasName("b"); });
    ASSERT_NE(found, children.end());
    EXPECT_EQ(found->text(), "2");
    EXPECT_EQ(std::count_if(children.begin(), children.end(), [](XmlElementView child) { return child.hasName("a"); }),
              2);
    const std::vector<XmlElementView> kept(children.begin(), children.end());
    ASSERT_EQ(kept.size(), 3U);
    EXPECT_EQ(kept[2].text(), "3");
}

TEST(XmlResponseView, isAskedOfAConstResponse)
{
    const XmlResponse response("<r token='t'><a>1</a><a>2</a></r>", "/r");
    EXPECT_EQ(response.view("").attribute("token"), "t");
    EXPECT_EQ(response.view("/a").text(), "1");
    EXPECT_EQ(textsOf(response.viewAll("/a")), QStringList({"1", "2"}));
}

struct PathRow
{
    const char *root;
    const char *path;
    int count;            // of all
    const char16_t *text; // of the first
};

class PathOfView : public testing::TestWithParam<PathRow>
{
};

const PathRow paths[] = {
    {"", "/r", 1, u"123456"}, {"", "", 0, u""},       {"", "/r/a", 3, u"12"},  {"", "/r/a/b", 2, u"1"},
    {"", "/x", 0, u""},       {"", "r", 0, u""},      {"", "/r/", 0, u""},     {"", "//r", 0, u""},
    {"/r", "", 1, u"123456"}, {"/r", "/a", 3, u"12"}, {"/r", "/a/b", 2, u"1"}, {"/r", "/c/a", 0, u""},
    {"/r", "/r", 0, u""},     {"/r", "a", 0, u""},    {"/r/a", "", 3, u"12"},  {"/r/a", "/b", 2, u"1"},
    {"/r/a/b", "", 2, u"1"},  {"/x", "", 0, u""},     {"/x", "/a", 0, u""},    {"r", "/a", 0, u""},
};

constexpr char repeated[] = "<r><x:a><b>1</b><!-- b --><y:b>2</y:b></x:a><c>3</c><a><b>4</b></a>5<a>6</a></r>";

TEST_P(PathOfView, leadsToWhatTheQueriesMakeNodesOf)
{
    const auto &[root, path, count, text] = GetParam();
    XmlResponse response(repeated, QString(root));
    const XmlElementViews views = response.viewAll(path);
    const QList<XmlResponseNode> nodes = response.getAll(path);
    EXPECT_EQ(std::distance(views.begin(), views.end()), count);
    EXPECT_EQ(nodes.size(), count);
    EXPECT_TRUE(std::equal(views.begin(), views.end(), nodes.begin(), nodes.end(), fuzz::isSame));
    EXPECT_TRUE(fuzz::isSame(response.view(path), response.get(path)));
    EXPECT_EQ(response.view(path), *views.begin());
    EXPECT_EQ(response.view(path).isNull(), count == 0);
    EXPECT_EQ(response.view(path).text(), QStringView(text).toString());
}

INSTANTIATE_TEST_SUITE_P(XmlResponseView, PathOfView, testing::ValuesIn(paths));

class OddDocument : public testing::TestWithParam<const char *>
{
};

const char *const oddDocuments[] = {
    "<r/>",
    "<r></r>",
    "<p:r p:a='1' a='2' xmlns:p='urn:p'>text</p:r>",
    "<r> <a> </a>\n<b>\t</b> </r>",
    "<r>one<a>two</a>three<![CDATA[four]]><!-- five --><?six seven?><a>eight</a></r>",
    "<r><a/><b/><a/><c><a/></c><x:a/></r>",
    "<r a='' b=' ' c='&#10;' d='&quot;' e='\xC3\xA9' f='\xFF'/>",
    "<r a='1' a='2' b\xFF='3' b\xFE='4'/>",
    "<r><a\xFF>1</a\xFF><a\xFE>2</a\xFE></r>",
    "<r><x:/><:y/><:/><a:b:c/></r>",
    "<r>\xEF\xBB\xBF<\xEF\xBB\xBF/>\xEF\xBB\xBF</r>",
    "<r>&#0;&#xD800;&#x110000;<a b='&#0;'>&nbsp;&amp</a></r>",
    "<r><a>4294967296</a><a> -1 </a><a>NaN</a><a>true</a><a>\x01</a></r>",
    "<?xml version='1.0'?><!DOCTYPE r [<!ENTITY e 'x'>]><r>&e;</r>",
    "<r><a><a><a><a><a>deep</a></a></a></a></a></r>",
};

TEST_P(OddDocument, isViewedAsItsNodes)
{
    XmlResponse response(GetParam(), "");
    const XmlResponseNode node = response.get("/r");
    EXPECT_TRUE(node.valid);
    EXPECT_TRUE(fuzz::isSame(response.view("/r"), node));
}

INSTANTIATE_TEST_SUITE_P(XmlElementView, OddDocument, testing::ValuesIn(oddDocuments));

TEST(SameView, isToldFromAnother)
{
    const QByteArray reply = "<r a='1'><b>2</b><c>3</c></r>";
    const XmlResponse response(reply, "");
    const auto isSame = [&response](const QByteArray &other) {
        XmlResponse otherResponse(other, "");
        return fuzz::isSame(response.view("/r"), otherResponse.get("/r"));
    };
    EXPECT_TRUE(isSame(reply));
    EXPECT_FALSE(isSame("<x/>"));
    EXPECT_FALSE(isSame("<r a='2'><b>2</b><c>3</c></r>"));
    EXPECT_FALSE(isSame("<r a='1' b='1'><b>2</b><c>3</c></r>"));
    EXPECT_FALSE(isSame("<r a='1'><d>2</d><c>3</c></r>"));
    EXPECT_FALSE(isSame("<r a='1'><b>23</b><c></c></r>"));
    EXPECT_FALSE(isSame("<r a='1'><b>2</b><c>3</c><d/></r>"));
    EXPECT_FALSE(isSame("<r a='1'><b>2</b>3</r>"));
    EXPECT_FALSE(fuzz::isSame(XmlElementView(), XmlResponse(reply, "").get("/r")));
    EXPECT_FALSE(fuzz::isSame(response.view("/r"), XmlResponseNode()));
    EXPECT_TRUE(fuzz::isSame(XmlElementView(), XmlResponseNode()));
}

TEST(XmlElementViewLifetime, isThatOfTheLastCopyOfTheResponse)
{
    auto response = std::make_unique<XmlResponse>("<r><a>1</a></r>", "/r");
    const XmlElementView view = response->view("/a");
    auto copy = std::make_unique<XmlResponse>(*response);
    response.reset();
    EXPECT_EQ(view.text(), "1");
    XmlResponse assigned;
    assigned = *copy;
    copy.reset();
    EXPECT_EQ(view.text(), "1");
    EXPECT_EQ(view, assigned.view("/a"));
}

TEST(XmlElementViewLifetime, isNotCutShortByMovingTheResponse)
{
    XmlResponse response("<r><a>1</a></r>", "/r");
    const XmlElementView view = response.view("/a");
    XmlResponse moved(std::move(response));
    EXPECT_EQ(view.text(), "1");
    XmlResponse assigned("<other/>", "");
    assigned = std::move(moved);
    EXPECT_EQ(view.text(), "1");
    EXPECT_EQ(view, assigned.view("/a"));
}

TEST(XmlElementViewLifetime, isNotCutShortByQueriesOrSelfAssignment)
{
    XmlResponse response("<r><a>1</a></r>", "/r");
    const XmlElementView view = response.view("/a");
    EXPECT_TRUE(response.get("/a").valid);
    EXPECT_EQ(response.getAll("/a").size(), 1);
    const XmlResponse &same = response;
    response = same;
    EXPECT_EQ(view.text(), "1");
}

TEST(XmlElementViewLifetime, outlastsTheViewThatItCameFrom)
{
    const XmlResponse response("<r><a><b>1</b></a></r>", "/r");
    XmlElementView view;
    for (const XmlElementView child : response.view("").children())
        view = child.at("/b");
    EXPECT_EQ(view.text(), "1");
}

#ifdef ADDRESS_SANITIZED

/// What a program does wrong that uses \a use on a view of a response that is gone.
template <typename Use>
void useTooLate(const Use &use)
{
    auto response = std::make_unique<XmlResponse>("<r><element token='t'>text</element></r>", "/r");
    const XmlElementView view = response->view("/element");
    response.reset();
    use(view);
}

template <typename Use>
void useAfterAssignment(const Use &use)
{
    XmlResponse response("<r><element token='t'>text</element></r>", "/r");
    const XmlElementView view = response.view("/element");
    response = XmlResponse("<r/>", "/r");
    use(view);
}

TEST(XmlElementViewLifetimeDeathTest, endsWithTheResponse)
{
    const char *const report = "AddressSanitizer: heap-use-after-free";
    EXPECT_DEATH(useTooLate([](XmlElementView view) { return view.name(); }), report);
    EXPECT_DEATH(useTooLate([](XmlElementView view) { return view.hasName("element"); }), report);
    EXPECT_DEATH(useTooLate([](XmlElementView view) { return view.text(); }), report);
    EXPECT_DEATH(useTooLate([](XmlElementView view) { return view.toInt(); }), report);
    EXPECT_DEATH(useTooLate([](XmlElementView view) { return view.attribute("token"); }), report);
    EXPECT_DEATH(useAfterAssignment([](XmlElementView view) { return view.text(); }), report);
}

#else

TEST(XmlElementViewLifetimeDeathTest, endsWithTheResponse)
{
    GTEST_SKIP() << "only AddressSanitizer reports a view that is used after its response is gone";
}

#endif

TEST(XmlElementViewAllocations, noneToMakeCopyOrWalk)
{
    const XmlResponse response("<r token='t'><a>1</a><b><c>2</c><c>true</c></b><gr\xC3\xB6\xC3\x9F/><a>3</a></r>",
                               "/r");
    const QString name = "a";
    const QString path = "/b/c";
    int count = 0;
    const test::AllocationCounter allocations;
    const XmlElementView element = response.view("");
    XmlElementView copy(element);
    copy = XmlElementView();
    copy = element;
    for (const XmlElementView child : copy.children()) {
        count += child.isNull() || child.utf8Name().isEmpty() ? 0 : 1;
        count += child.hasName("a") && child.hasText("1") ? 1 : 0;
        for (const XmlElementView grandchild : child.children("c"))
            count += grandchild.toBool() ? 1 : grandchild.toInt();
    }
    for (const XmlElementView child : element.children(name))
        count += static_cast<int>(child.toUInt() + child.toDouble());
    for (const XmlElementView found : response.viewAll(path))
        count += found.attribute("token").isNull() ? 1 : 0;
    count += response.view(path) == element.at(path) ? 1 : 0;
    EXPECT_EQ(allocations.count(), 0U);
    EXPECT_EQ(count, 4 + 1 + 2 + 1 + 2 * (1 + 3) + 2 + 1);
}

TEST(XmlElementViewAllocations, oneForAText)
{
    const XmlResponse response("<r token='some token'><a>some text</a></r>", "/r");
    const XmlElementView element = response.view("/a");
    const test::AllocationCounter allocations;
    const QString text = element.text();
    EXPECT_EQ(allocations.count(), 1U);
    const QString token = response.view("").attribute("token");
    EXPECT_EQ(allocations.count(), 2U);
}

} // namespace
