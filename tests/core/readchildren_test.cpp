#include "core/readchildren.h"
#include "support/nodes.h"
#include "support/printing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using vorn::field;
using vorn::nested;
using vorn::readChildren;
using vorn::XmlResponseNode;

namespace {

/// A field of type \a Value that held \a value, after the children "A" of an element with \a children were read.
template <typename Value>
Value read(const QByteArray &children, Value value)
{
    readChildren(test::nodeOf(test::element("Element", children)), {field("A", value)});
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
    readChildren(XmlResponseNode(), {field("A", text), nested("", [&calls](const XmlResponseNode &) { ++calls; })});
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

struct Record
{
    QString name;

    Record() = default;

    explicit Record(const XmlResponseNode &node)
        : name(node.name)
    {
    }
};

TEST(ReadChildren, replacesARecord)
{
    Record record;
    record.name = "before";
    readChildren(test::nodeOf("<Element><B/></Element>"), {field("A", record)});
    EXPECT_EQ(record.name, "before");
    readChildren(test::nodeOf("<Element><A/></Element>"), {field("A", record)});
    EXPECT_EQ(record.name, "A");
}

TEST(ReadChildren, handsEachChildToAFunction)
{
    QStringList texts;
    readChildren(
        test::nodeOf("<Element><A>1</A><B>2</B><A>3</A></Element>"),
        {nested("A", [&texts](const XmlResponseNode &child) { texts.append(child.name + child.element.text()); })});
    EXPECT_EQ(texts, QStringList({"A1", "A3"}));
}

TEST(ReadChildren, functionsMayReadFurtherChildren)
{
    int value = 0;
    readChildren(test::nodeOf("<Element><C>1</C><B><C>2</C></B></Element>"),
                 {nested("B", [&value](const XmlResponseNode &child) { readChildren(child, {field("C", value)}); })});
    EXPECT_EQ(value, 2);
}

} // namespace
