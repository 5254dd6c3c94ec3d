// What the text, number, boolean and attribute queries read, and that they agree with Qt's DOM.

#include "support/printing.h"

#include <vorn/util/xmlresponse.h>

#include <QtXml/QDomDocument>
#include <gtest/gtest.h>

using vorn::XmlResponse;

namespace {

QByteArray wrapped(const QByteArray &content)
{
    return "<r><v>" + content + "</v></r>";
}

struct TextRow
{
    const char *content;
    const char16_t *text;
};

class TextOf : public testing::TestWithParam<TextRow>
{
};

const TextRow wellFormedTexts[] = {
    {"", u""},
    {"plain", u"plain"},
    {"  kept blanks  ", u"  kept blanks  "},
    {"one<!-- not text -->two", u"onetwo"},
    {"one<!-- -->  <!-- -->two", u"onetwo"},
    {"one<?pi not text?>two", u"onetwo"},
    {"<![CDATA[<raw> & more]]>", u"<raw> & more"},
    {"a<![CDATA[ ]]>b", u"a b"},
    {"<![CDATA[ ]]>", u" "},
    {"<![CDATA[]]>", u""},
    {" <![CDATA[x]]> ", u"x"},
    {"&lt;&gt;&amp;&quot;&apos;", u"<>&\"'"},
    {"&#65;&#x42;&#xE9;", u"AB\u00E9"},
    {"&#x1F600;", u"\U0001F600"},
    {"out<b>in<c>deep</c></b>out", u"outindeepout"},
    {" <b> </b> ", u""},
    {"one<b/>&#32;<b/>two", u"onetwo"},
    {"   ", u""},
    {"\n\t ", u""},
    {"&#32;", u""},
    {"&#10;&#x20;", u""},
    {"&#13;", u""},
    {"&#9;", u""},
    {" &#32;x", u"  x"},
    {"a\r\nb\rc\nd", u"a\nb\nc\nd"},
    {"a&#13;b", u"a\rb"},
    {"<![CDATA[a\r\nb]]>", u"a\nb"},
    {"\xEF\xBB\xBFmarked", u"\uFEFFmarked"},
    {"\xEF\xBB\xBF\xEF\xBB\xBF", u"\uFEFF\uFEFF"},
    {"\xE6\x91\x84\xE5\x83\x8F\xE6\x9C\xBA", u"\u6444\u50CF\u673A"},
};

TEST_P(TextOf, isTheSameByPathAsElementAndInQtsDom)
{
    const QByteArray reply = wrapped(GetParam().content);
    XmlResponse response(reply, "/r");
    const QString expected = QStringView(GetParam().text).toString();

    EXPECT_EQ(response.getText("/v"), expected);
    EXPECT_FALSE(response.getText("/v").isNull());
    EXPECT_EQ(response.get("/v").element.text(), expected);
    EXPECT_EQ(response.getText(response.get("/v"), "/v"), expected);

    QDomDocument plain;
    ASSERT_TRUE(plain.setContent(reply));
    EXPECT_EQ(plain.documentElement().firstChildElement("v").text(), expected);
}

INSTANTIATE_TEST_SUITE_P(XmlResponse, TextOf, testing::ValuesIn(wellFormedTexts));

TEST(XmlResponseText, countsAPieceOfBlanksThatXmlDoesNotCallWhiteSpace)
{
    for (const char16_t *text : {u"\u00A0", u"\u0085", u"\u2003\u3000", u"\v\f"}) {
        const QString expected = QStringView(text).toString();
        XmlResponse response(wrapped(expected.toUtf8()), "/r");
        EXPECT_EQ(response.getText("/v"), expected);
        EXPECT_EQ(response.view("/v").text(), expected);
        EXPECT_EQ(response.get("/v").element.text(), expected);
    }
}

TEST(XmlResponseText, isNullOnlyForAMissingElement)
{
    XmlResponse response("<r><empty/></r>", "/r");
    EXPECT_TRUE(response.getText("/missing").isNull());
    EXPECT_FALSE(response.getText("/empty").isNull());
    EXPECT_TRUE(response.get("/missing").element.text().isNull());
    EXPECT_FALSE(response.get("/empty").element.text().isNull());
}

TEST(XmlResponseText, keepsAPrefixThatStandsInTheValue)
{
    XmlResponse response("<e:Envelope><e:Value>env:Sender</e:Value></e:Envelope>", "/Envelope");
    EXPECT_EQ(response.getText("/Value"), "env:Sender");
}

struct UIntRow
{
    const char *content;
    unsigned int value;
};

class UIntOf : public testing::TestWithParam<UIntRow>
{
};

const UIntRow numbers[] = {
    {"0", 0U},
    {"42", 42U},
    {" 42\n", 42U},
    {"+42", 42U},
    {"007", 7U},
    {"987654321", 987654321U},
    {"1234567890", 1234567890U},
    {"4294967295", 4294967295U},
    {"4<!-- -->2", 42U},
    {"<![CDATA[42]]>", 42U},
    {"&#52;2", 42U},
    {"<b>4</b>2", 42U},
    {"0000000000000000000000000000000000000000000000000000000000000000000000000000000000000042", 42U},
    {"", 0U},
    {"4294967296", 0U},
    {"9876543210", 0U},
    {"-1", 0U},
    {"42abc", 0U},
    {"4 2", 0U},
    {"0x1A", 0U},
    {"1e3", 0U},
    {"3.0", 0U},
    {"\xEF\xBB\xBF"
     "42",
     0U},
    {"4\xFF"
     "2",
     0U},
    {"many", 0U},
};

TEST_P(UIntOf, isWhatQStringReads)
{
    XmlResponse response(wrapped(GetParam().content), "/r");
    EXPECT_EQ(response.getUInt("/v"), GetParam().value);
    EXPECT_EQ(response.getUInt(response.get("/v"), "/v"), GetParam().value);
    EXPECT_EQ(response.getText("/v").toUInt(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(XmlResponse, UIntOf, testing::ValuesIn(numbers));

TEST(XmlResponseUInt, isZeroForAMissingElement)
{
    XmlResponse response("<r/>", "/r");
    EXPECT_EQ(response.getUInt("/v"), 0U);
    EXPECT_EQ(response.getUInt(response.get("/v"), "/v"), 0U);
}

struct BoolRow
{
    const char *content;
    bool value;
};

class BoolOf : public testing::TestWithParam<BoolRow>
{
};

const BoolRow booleans[] = {
    {"true", true},         {"1", true},      {" true ", true},      {"\n1\n", true},  {"<![CDATA[true]]>", true},
    {"tr<!-- -->ue", true}, {"false", false}, {"0", false},          {"", false},      {"TRUE", false},
    {"True", false},        {"yes", false},   {"true false", false}, {"truex", false}, {"11", false},
    {"01", false},
};

TEST_P(BoolOf, takesTheWordsOfXmlSchema)
{
    XmlResponse response(wrapped(GetParam().content), "/r");
    EXPECT_EQ(response.getBool("/v"), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(XmlResponse, BoolOf, testing::ValuesIn(booleans));

TEST(XmlResponseBool, isFalseForAMissingElement)
{
    XmlResponse response("<r/>", "/r");
    EXPECT_FALSE(response.getBool("/v"));
}

struct AttributeRow
{
    const char *written;
    const char16_t *value;
};

class AttributeValue : public testing::TestWithParam<AttributeRow>
{
};

const AttributeRow attributes[] = {
    {"token=\"abc\"", u"abc"},
    {"token='abc'", u"abc"},
    {"token = 'abc'", u"abc"},
    {"token=''", u""},
    {"token='&lt;&amp;&#65;&quot;'", u"<&A\""},
    {"token=' a  b '", u" a  b "},
    {"token='a\nb\tc'", u"a b c"},
    {"token='a\r\nb'", u"a b"},
    {"token='a&#10;b'", u"a\nb"},
    {"token='\xEF\xBB\xBFm'", u"\uFEFFm"},
    {"other='1' token='abc' tt:token='2'", u"abc"},
};

TEST_P(AttributeValue, isTheSameByPathAsElementAndInQtsDom)
{
    const QByteArray reply = "<r><v " + QByteArray(GetParam().written) + "/></r>";
    const QString expected = QStringView(GetParam().value).toString();
    XmlResponse response(reply, "/r");
    EXPECT_EQ(response.getAttribute("token", "/v"), expected);
    EXPECT_EQ(response.get("/v").element.attribute("token", QString()), expected);

    QDomDocument plain;
    ASSERT_TRUE(plain.setContent(reply));
    EXPECT_EQ(plain.documentElement().firstChildElement("v").attribute("token"), expected);
}

INSTANTIATE_TEST_SUITE_P(XmlResponse, AttributeValue, testing::ValuesIn(attributes));

TEST(XmlResponseAttribute, isNamedAsItIsWritten)
{
    XmlResponse response("<r xmlns:tt='urn:t' tt:token='p' plain='q'/>", "/r");
    EXPECT_EQ(response.getAttribute("tt:token", ""), "p");
    EXPECT_EQ(response.getAttribute("plain", ""), "q");
    EXPECT_EQ(response.getAttribute("xmlns:tt", ""), "urn:t");
    EXPECT_TRUE(response.getAttribute("token", "").isNull());
    EXPECT_TRUE(response.getAttribute("Plain", "").isNull());
    EXPECT_TRUE(response.getAttribute("", "").isNull());
}

TEST(XmlResponseAttribute, ofARepeatedAttributeTheFirstCounts)
{
    XmlResponse response("<r a='0' token='first' b='1' token='second'/>", "/r");
    EXPECT_EQ(response.getAttribute("token", ""), "first");
    EXPECT_EQ(response.get("").element.attribute("token"), "first");
}

TEST(XmlResponseAttribute, isNullWhenMissingAndEmptyWhenEmpty)
{
    XmlResponse response("<r empty=''/>", "/r");
    EXPECT_FALSE(response.getAttribute("empty", "").isNull());
    EXPECT_TRUE(response.getAttribute("missing", "").isNull());
    EXPECT_TRUE(response.getAttribute("empty", "/x").isNull());
}

} // namespace
