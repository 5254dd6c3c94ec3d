#include "core/queries.h"
#include "support/nodes.h"
#include "support/printing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

using vorn::elementAt;
using vorn::field;
using vorn::nested;
using vorn::query;
using vorn::readChildren;
using vorn::readFirstChildren;
using vorn::readQueries;
using vorn::RecordElement;
using vorn::XmlResponse;
using vorn::XmlResponseNode;

namespace {

/// Two answers that are the same, NaN and the sign of zero included.
template <typename Value>
bool areSame(const Value &left, const Value &right)
{
    if constexpr (std::is_same_v<Value, double>)
        return std::memcmp(&left, &right, sizeof left) == 0;
    else
        return left == right;
}

/// A field of type \a Value that held \a value, after the children "A" of an element with \a children were read: from a
/// node, and from a view of the same element, which has to give the same.
template <typename Value>
Value read(const QByteArray &children, Value value)
{
    const QByteArray xml = test::element("Element", children);
    const XmlResponse response(xml, QString());
    Value viewed = value;
    readChildren(RecordElement(response.view(u"/Element")), {field("A", viewed)});
    readChildren(test::nodeOf(xml), {field("A", value)});
    EXPECT_TRUE(areSame(viewed, value)) << xml.toStdString();
    return value;
}

QString textOf(const QByteArray &children)
{
    return read(children, QStringLiteral("before"));
}

TEST(ReadChildren, leavesAFieldWhoseElementIsMissing)
{
    EXPECT_EQ(textOf(""), "before");
    EXPECT_EQ(read("<B>1</B>", 5), 5);
    EXPECT_EQ(read("<B>1</B>", 5U), 5U);
    EXPECT_EQ(read("<B>1</B>", 5.5), 5.5);
    EXPECT_TRUE(read("<B>false</B>", true));
}

TEST(ReadChildren, leavesFieldsForAMissingNode)
{
    QString text = "before";
    int calls = 0;
    readChildren(XmlResponseNode(), {field("A", text), nested("", [&calls](const RecordElement &) { ++calls; })});
    EXPECT_EQ(text, "before");
    EXPECT_EQ(calls, 0);
}

TEST(ReadChildren, comparesNamesExactly)
{
    EXPECT_EQ(textOf("<a>1</a><AA>2</AA><A.>3</A.><B>4</B>"), "before");
    EXPECT_EQ(textOf("<p:A>1</p:A>"), "1");
}

TEST(ReadChildren, looksAtDirectChildrenOnly)
{
    EXPECT_EQ(textOf("<B><A>1</A></B>"), "before");
    QString text = "before";
    readChildren(test::nodeOf("<Element A='1'>2</Element>"), {field("A", text), field("Element", text)});
    EXPECT_EQ(text, "before");
}

TEST(ReadChildren, lastOfSeveralChildrenCounts)
{
    EXPECT_EQ(textOf("<A>1</A><B/><A>2</A>"), "2");
    EXPECT_EQ(read("<A>1</A><A>2</A>", 0), 2);
}

TEST(ReadChildren, readsEachFieldFromItsOwnElement)
{
    int a = 0;
    QString b;
    bool c = false;
    readChildren(test::nodeOf("<Element><C>true</C><B>text</B><A>1</A></Element>"),
                 {field("A", a), field("B", b), field("C", c)});
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, "text");
    EXPECT_TRUE(c);
}

TEST(ReadChildren, firstOfSeveralReadersHandlesAChild)
{
    int first = 0;
    int second = 0;
    readChildren(test::nodeOf("<Element><A>1</A></Element>"), {field("A", first), field("A", second)});
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 0);
}

// The order and the names are those of the nodes, not of the DOM.
TEST(ReadChildren, walksOverTheStoredChildren)
{
    XmlResponseNode node = test::nodeOf("<Element><A>1</A><A>2</A></Element>");
    std::reverse(node.children.begin(), node.children.end());
    int value = 0;
    readChildren(node, {field("A", value)});
    EXPECT_EQ(value, 1);
    node.children[1].name = "B";
    readChildren(node, {field("A", value)});
    EXPECT_EQ(value, 2);
}

TEST(ReadChildren, keepsTextsVerbatim)
{
    EXPECT_EQ(textOf("<A>  a \n\t b </A>"), "  a \n\t b ");
    EXPECT_EQ(textOf("<A>&lt;&amp;&#228;</A>"), u"<&\u00E4");
    EXPECT_EQ(textOf("<A><![CDATA[<b> &amp; ]]></A>"), "<b> &amp; ");
    EXPECT_EQ(textOf("<A>a<![CDATA[b]]>c</A>"), "abc");
}

TEST(ReadChildren, takesTheTextOfNestedElementsToo)
{
    EXPECT_EQ(textOf("<A><B>b</B></A>"), "b");
    EXPECT_EQ(textOf("<A>a<B>b<C>c</C></B>d</A>"), "abcd");
    EXPECT_EQ(textOf("<A>a<B/></A>"), "a");
    EXPECT_EQ(textOf("<A><B/>a</A>"), "a");
    EXPECT_EQ(textOf("<A>a<!-- no -->b<?no no?></A>"), "ab");
}

TEST(ReadChildren, emptyElementEmptiesAText)
{
    EXPECT_TRUE(textOf("<A/>").isEmpty());
    EXPECT_TRUE(textOf("<A></A>").isEmpty());
    EXPECT_TRUE(textOf("<A><B/></A>").isEmpty());
    EXPECT_TRUE(textOf("<A>1</A><A/>").isEmpty());
}

TEST(ReadChildren, readsSignedNumbers)
{
    EXPECT_EQ(read("<A>-2</A>", 5), -2);
    EXPECT_EQ(read("<A>2147483647</A>", 5), 2147483647);
    EXPECT_EQ(read("<A>-2147483648</A>", 5), -2147483647 - 1);
    EXPECT_EQ(read("<A>2147483648</A>", 5), 0);
    EXPECT_EQ(read("<A>-2147483649</A>", 5), 0);
    EXPECT_EQ(read("<A>010</A>", 5), 10);
    EXPECT_EQ(read("<A>1<![CDATA[2]]></A>", 5), 12);
}

TEST(ReadChildren, readsUnsignedNumbers)
{
    EXPECT_EQ(read("<A>2147483648</A>", 5U), 2147483648U);
    EXPECT_EQ(read("<A>4294967295</A>", 5U), 4294967295U);
    EXPECT_EQ(read("<A>4294967296</A>", 5U), 0U);
    EXPECT_EQ(read("<A>-1</A>", 5U), 0U);
    EXPECT_EQ(read("<A>010</A>", 5U), 10U);
}

TEST(ReadChildren, readsPlainDoublesAsQtDoes)
{
    const QByteArray texts[] = {"0",
                                "-0",
                                "4.5",
                                "-0.090909",
                                "1.",
                                ".5",
                                "00.10",
                                "123456789012345678901234567890",
                                "0.1234567890123456789012345678901234567890",
                                "-",
                                ".",
                                "-.",
                                "1.2.3",
                                "--1",
                                "1-",
                                "-1-2"};
    for (const QByteArray &text : texts) {
        const double value = read("<A>" + text + "</A>", 5.5);
        const double expected = QString::fromLatin1(text).toDouble();
        EXPECT_EQ(value, expected) << text.toStdString();
        EXPECT_EQ(std::signbit(value), std::signbit(expected)) << text.toStdString();
    }
}

TEST(ReadChildren, readsDoubles)
{
    EXPECT_EQ(read("<A>4.5</A>", 5.0), 4.5);
    EXPECT_EQ(read("<A>-0.25</A>", 5.0), -0.25);
    EXPECT_EQ(read("<A>1e3</A>", 5.0), 1000.0);
    EXPECT_EQ(read("<A>7</A>", 5.0), 7.0);
    EXPECT_TRUE(std::isnan(read("<A>NaN</A>", 5.0)));
}

TEST(ReadChildren, badTextReplacesAGoodNumberByZero)
{
    for (const char *text : {"", "x", "1x", "0x10", "1 2"}) {
        const QByteArray children = "<A>7</A>" + test::element("A", text);
        EXPECT_EQ(read(children, 5), 0) << text;
        EXPECT_EQ(read(children, 5U), 0U) << text;
        EXPECT_EQ(read(children, 5.0), 0.0) << text;
    }
    EXPECT_EQ(read("<A>7</A><A>1.5</A>", 5), 0);
    EXPECT_EQ(read("<A>7</A><A>1.5</A>", 5U), 0U);
    EXPECT_EQ(read("<A>7</A><A>1,5</A>", 5.0), 0.0);
    // The low byte of its first character is that of a digit.
    EXPECT_EQ(read("<A>7</A><A>&#x131;5</A>", 5.0), 0.0);
}

TEST(ReadChildren, readsBooleansOfTheWordTrueAlone)
{
    EXPECT_TRUE(read("<A>true</A>", false));
    EXPECT_TRUE(read("<A><![CDATA[true]]></A>", false));
    for (const char *text : {"True", "TRUE", "1", " true", "true ", "tru", "false", "0", ""})
        EXPECT_FALSE(read("<A>true</A>" + test::element("A", text), true)) << text;
}

TEST(ReadChildren, handsEachChildToAFunction)
{
    QStringList texts;
    readChildren(test::nodeOf("<Element><A>1</A><B>2</B><A>3</A></Element>"),
                 {nested("A", [&texts](const RecordElement &child) { texts.append(child.text()); })});
    EXPECT_EQ(texts, QStringList({"1", "3"}));
}

TEST(ReadChildren, functionsMayReadFurtherChildren)
{
    int value = 0;
    readChildren(test::nodeOf("<Element><C>1</C><B><C>2</C></B></Element>"),
                 {nested("B", [&value](const RecordElement &child) { readChildren(child, {field("C", value)}); })});
    EXPECT_EQ(value, 2);
}

TEST(ReadFirstChildren, firstOfSeveralChildrenCounts)
{
    const QByteArray xml = "<Element><B>0</B><A>1</A><A>2</A><B>3</B></Element>";
    const XmlResponse response(xml, QString());
    const XmlResponseNode node = test::nodeOf(xml);
    for (const RecordElement &element : {RecordElement(node), RecordElement(response.view(u"/Element"))}) {
        int a = 5;
        int b = 5;
        int c = 5;
        readFirstChildren(element, {field("A", a), field("B", b), field("C", c)});
        EXPECT_EQ(a, 1);
        EXPECT_EQ(b, 0);
        EXPECT_EQ(c, 5);
    }
}

TEST(ReadFirstChildren, theLastOfManyReadersIsOneOfThem)
{
    int first = 0;
    int last = 0;
    int none = 0;
    std::initializer_list<vorn::ChildReader> readers = {
        field("A", first), field("-", none), field("-", none), field("-", none), field("-", none), field("-", none),
        field("-", none),  field("-", none), field("-", none), field("-", none), field("-", none), field("-", none),
        field("-", none),  field("-", none), field("-", none), field("-", none), field("-", none), field("-", none),
        field("-", none),  field("-", none), field("-", none), field("-", none), field("-", none), field("-", none),
        field("-", none),  field("-", none), field("-", none), field("-", none), field("-", none), field("-", none),
        field("-", none),  field("Z", last)};
    ASSERT_EQ(readers.size(), 32U);
    readFirstChildren(test::nodeOf("<Element><Z>1</Z><Z>2</Z><A>3</A><A>4</A></Element>"), readers);
    EXPECT_EQ(last, 1);
    EXPECT_EQ(first, 3);
}

TEST(ReadQueries, readsTheFirstElementAtEachPath)
{
    XmlResponse response("<r><p><A>1</A><A>2</A></p><p><A>3</A><B>x</B></p></r>", "/r");
    int a = 0;
    QString b;
    readQueries(response, {query(u"/p/A", a), query(u"/p/B", b)});
    EXPECT_EQ(a, 1);
    EXPECT_TRUE(b.isNull());
}

TEST(ReadQueries, leavesFieldsWhereTheParentIsMissing)
{
    XmlResponse response("<r/>", "/r");
    QString text = "before";
    readQueries(response, {query(u"/p/A", text)});
    EXPECT_EQ(text, "before");
}

TEST(ReadQueries, tellsNamesFromTheirBeginnings)
{
    XmlResponse response("<r><AB>1</AB><A>2</A><C><D>3</D></C><CE>4</CE></r>", "/r");
    int a = 0;
    int ab = 0;
    int ce = 0;
    int d = 0;
    readQueries(response, {query(u"/A", a), query(u"/AB", ab), query(u"/CE", ce), query(u"/C/D", d)});
    EXPECT_EQ(a, 2);
    EXPECT_EQ(ab, 1);
    EXPECT_EQ(ce, 4);
    EXPECT_EQ(d, 3);
}

TEST(ReadQueries, walksDownFromEachElementOnTheWay)
{
    XmlResponse response("<r><p><C>3</C><q><B>2</B></q><A>1</A></p><D>4</D></r>", "/r");
    int a = 0;
    int b = 0;
    int c = 0;
    int d = 0;
    readQueries(response, {query(u"/p/A", a), query(u"/p/q/B", b), query(u"/p/C", c), query(u"/D", d)});
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, 2);
    EXPECT_EQ(c, 3);
    EXPECT_EQ(d, 4);
}

TEST(ReadQueries, theLastOfManyQueriesIsOneOfThem)
{
    XmlResponse response("<r><Z>1</Z><Z>2</Z><A>3</A><A>4</A></r>", "/r");
    int first = 0;
    int last = 0;
    int none = 0;
    const std::initializer_list<vorn::Query> queries = {
        query(u"/A", first), query(u"/-", none), query(u"/-", none), query(u"/-", none), query(u"/-", none),
        query(u"/-", none),  query(u"/-", none), query(u"/-", none), query(u"/-", none), query(u"/-", none),
        query(u"/-", none),  query(u"/-", none), query(u"/-", none), query(u"/-", none), query(u"/-", none),
        query(u"/-", none),  query(u"/-", none), query(u"/-", none), query(u"/-", none), query(u"/-", none),
        query(u"/-", none),  query(u"/-", none), query(u"/-", none), query(u"/-", none), query(u"/-", none),
        query(u"/-", none),  query(u"/-", none), query(u"/-", none), query(u"/-", none), query(u"/-", none),
        query(u"/-", none),  query(u"/-", none), query(u"/-", none), query(u"/-", none), query(u"/-", none),
        query(u"/-", none),  query(u"/-", none), query(u"/-", none), query(u"/-", none), query(u"/-", none),
        query(u"/-", none),  query(u"/-", none), query(u"/-", none), query(u"/-", none), query(u"/-", none),
        query(u"/-", none),  query(u"/-", none), query(u"/-", none), query(u"/-", none), query(u"/-", none),
        query(u"/-", none),  query(u"/-", none), query(u"/-", none), query(u"/-", none), query(u"/-", none),
        query(u"/-", none),  query(u"/-", none), query(u"/-", none), query(u"/-", none), query(u"/-", none),
        query(u"/-", none),  query(u"/-", none), query(u"/-", none), query(u"/Z", last)};
    ASSERT_EQ(queries.size(), 64U);
    readQueries(response, queries);
    EXPECT_EQ(last, 1);
    EXPECT_EQ(first, 3);
}

// Unlike those of a walk.
TEST(ReadQueries, booleansAreTrueForBothWordsOfXmlSchema)
{
    XmlResponse response("<r><A>1</A><B> true </B><C>TRUE</C><D/></r>", "/r");
    bool a = false;
    bool b = false;
    bool c = true;
    bool d = true;
    readQueries(response, {query(u"/A", a), query(u"/B", b), query(u"/C", c), query(u"/D", d)});
    EXPECT_TRUE(a);
    EXPECT_TRUE(b);
    EXPECT_FALSE(c);
    EXPECT_FALSE(d);
}

} // namespace
