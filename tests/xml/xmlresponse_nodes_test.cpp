// The nodes that queries hand out.

#include "support/printing.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QTextStream>
#include <QtXml/QDomDocument>
#include <gtest/gtest.h>

using vorn::XmlResponse;
using vorn::XmlResponseNode;

namespace {

TEST(XmlResponseNode, ofAMissingPathIsEmpty)
{
    XmlResponse response("<r/>", "/r");
    const XmlResponseNode node = response.get("/missing");
    EXPECT_FALSE(node.valid);
    EXPECT_TRUE(node.name.isEmpty());
    EXPECT_TRUE(node.element.isNull());
    EXPECT_TRUE(node.children.isEmpty());
    EXPECT_TRUE(node.element.text().isNull());
    EXPECT_TRUE(node.element.attribute("token", QString()).isNull());
}

TEST(XmlResponseNode, hasItsFieldsInOrder)
{
    const auto &[valid, name, element, children] = XmlResponse("<r>x<a/></r>", "").get("/r");
    EXPECT_TRUE(valid);
    EXPECT_EQ(name, "r");
    EXPECT_EQ(element.text(), "x");
    EXPECT_EQ(children.size(), 1);
}

TEST(XmlResponseNode, isTheSameUnderEachPolicyOfQtForInvalidData)
{
    const auto policy = QDomImplementation::invalidDataPolicy();
    for (const auto other : {QDomImplementation::AcceptInvalidChars, QDomImplementation::DropInvalidChars,
                             QDomImplementation::ReturnNullNode}) {
        QDomImplementation::setInvalidDataPolicy(other);
        XmlResponse response(
            "<r><:odd \xC2\xB7='\x02v'>t\x01u</:odd><\xC2\xB7x/><:/><c><![CDATA[\x01\xEF\xBF\xBF]]></c></r>", "");
        const XmlResponseNode node = response.get("/r");
        QDomImplementation::setInvalidDataPolicy(policy);

        ASSERT_EQ(node.children.size(), 4) << other;
        EXPECT_EQ(node.children[0].name, "odd") << other;
        EXPECT_EQ(node.children[0].element.tagName(), ":odd") << other;
        EXPECT_EQ(node.children[0].element.text(), u"t\u0001u") << other;
        EXPECT_EQ(node.children[0].element.attribute(QStringLiteral(u"\u00B7")), u"\u0002v") << other;
        EXPECT_EQ(node.children[1].name, u"\u00B7x") << other;
        EXPECT_EQ(node.children[1].element.tagName(), u"\u00B7x") << other;
        EXPECT_EQ(node.children[2].element.tagName(), ":") << other;
        EXPECT_EQ(node.children[3].element.text(), u"\u0001\uFFFF") << other;
        EXPECT_EQ(node.element.childNodes().count(), 4) << other;
    }
}

TEST(XmlResponseNode, nameHasNoPrefix)
{
    XmlResponse response("<tt:r xmlns:tt='urn:t'><a:Name/><Plain/><:odd/></tt:r>", "");
    const XmlResponseNode node = response.get("/r");
    EXPECT_EQ(node.name, "r");
    ASSERT_EQ(node.children.size(), 3);
    EXPECT_EQ(node.children[0].name, "Name");
    EXPECT_EQ(node.children[1].name, "Plain");
    EXPECT_EQ(node.children[2].name, "odd");
    EXPECT_EQ(node.element.tagName(), "tt:r");
}

TEST(XmlResponseNode, holdsItsChildrenAtAllDepthsInDocumentOrder)
{
    XmlResponse response("<r><c><Resolution><Width>640</Width><Height>480</Height></Resolution></c>"
                         "text<c/><!-- c --><d/><c n='3'/></r>",
                         "/r");
    const XmlResponseNode node = response.get("");
    ASSERT_EQ(node.children.size(), 4);
    EXPECT_EQ(node.children[0].name, "c");
    EXPECT_EQ(node.children[1].name, "c");
    EXPECT_EQ(node.children[2].name, "d");
    EXPECT_EQ(node.children[3].element.attribute("n"), "3");

    ASSERT_EQ(node.children[0].children.size(), 1);
    const XmlResponseNode resolution = node.children[0].children[0];
    EXPECT_TRUE(resolution.valid);
    ASSERT_EQ(resolution.children.size(), 2);
    EXPECT_EQ(resolution.children[0].name, "Width");
    EXPECT_EQ(resolution.children[0].element.text(), "640");
    EXPECT_EQ(resolution.children[1].element.text(), "480");
}

TEST(XmlResponseNode, takesNoMoreRoomThanItsChildrenNeed)
{
    XmlResponse response("<a>text<b/>text<b/>text<b/>text<b/>text<b/></a>", "");
    const XmlResponseNode node = response.get("/a");
    EXPECT_EQ(node.children.size(), 5);
    EXPECT_EQ(node.children.capacity(), 5);
    EXPECT_EQ(node.children[0].children.capacity(), 0);
}

TEST(XmlResponseNode, elementIsTheOneOfTheChildNode)
{
    XmlResponse response("<r><a><b/></a></r>", "");
    const XmlResponseNode node = response.get("/r");
    EXPECT_EQ(node.element.firstChildElement("a"), node.children[0].element);
    EXPECT_EQ(node.children[0].element.firstChildElement("b"), node.children[0].children[0].element);
    EXPECT_EQ(node.children[0].element.parentNode(), node.element);
}

TEST(XmlResponseNode, elementHasAttributesTextAndCDataInItsPlace)
{
    XmlResponse response("<r xmlns='urn:d' a='1'>one<b>two</b><![CDATA[<3>]]>four<!-- five --></r>", "");
    const QDomElement element = response.get("/r").element;
    QString written;
    QTextStream stream(&written);
    element.save(stream, -1);
    EXPECT_EQ(element.attributes().count(), 2);
    EXPECT_EQ(element.attribute("xmlns"), "urn:d");
    EXPECT_EQ(element.attribute("a"), "1");
    const QDomNodeList content = element.childNodes();
    ASSERT_EQ(content.count(), 4);
    EXPECT_TRUE(content.at(0).isText());
    EXPECT_TRUE(content.at(1).isElement());
    EXPECT_TRUE(content.at(2).isCDATASection());
    EXPECT_EQ(content.at(2).nodeValue(), "<3>");
    EXPECT_TRUE(content.at(3).isText());
    EXPECT_TRUE(written.contains(">one<b>two</b><![CDATA[<3>]]>four</r>")) << written.toStdString();
}

TEST(XmlResponseNode, elementBelongsToADocument)
{
    XmlResponse response("<r><a/></r>", "");
    const XmlResponseNode node = response.get("/r");
    EXPECT_FALSE(node.element.ownerDocument().isNull());
    EXPECT_EQ(node.element.ownerDocument(), node.children[0].element.ownerDocument());
    EXPECT_TRUE(node.element.parentNode().isNull());
}

TEST(XmlResponseNode, outlivesItsResponse)
{
    XmlResponseNode node;
    {
        XmlResponse response("<r token='t'><a k='v'>text</a></r>", "");
        node = response.get("/r");
    }
    EXPECT_FALSE(node.element.isNull());
    EXPECT_EQ(node.element.text(), "text");
    EXPECT_EQ(node.element.attribute("token", QString()), "t");
    EXPECT_EQ(node.children[0].element.text(), "text");
    EXPECT_EQ(node.children[0].element.attribute("k", QString()), "v");
    EXPECT_FALSE(node.children[0].element.isNull());
}

TEST(XmlResponseNode, childOutlivesItsParentAndItsResponse)
{
    XmlResponseNode child;
    {
        XmlResponse response("<r><a k='v'>text</a></r>", "");
        child = response.get("/r").children[0];
    }
    EXPECT_EQ(child.element.text(), "text");
    EXPECT_EQ(child.element.attribute("k"), "v");
}

TEST(XmlResponseNode, isCopiedMovedAndAssigned)
{
    XmlResponse response("<r><a>1</a><b>2</b></r>", "/r");
    const XmlResponseNode source = response.get("/a");
    const XmlResponseNode copy(source);
    EXPECT_EQ(copy.element.text(), "1");
    EXPECT_EQ(copy.name, "a");

    XmlResponseNode moved(response.get("/b"));
    EXPECT_EQ(moved.element.text(), "2");
    moved = copy;
    EXPECT_EQ(moved.name, "a");
    XmlResponseNode &same = moved;
    moved = same;
    EXPECT_TRUE(moved.valid);
    EXPECT_EQ(moved.element.text(), "1");
}

TEST(XmlResponseNode, ofOnePathIsBuiltAnewForEachQuery)
{
    XmlResponse response("<r>kept</r>", "");
    QDomElement changed = response.get("/r").element;
    changed.setAttribute("token", "mine");
    changed.firstChild().setNodeValue("changed");
    EXPECT_EQ(response.getText("/r"), "kept");
    EXPECT_EQ(response.get("/r").element.text(), "kept");
    EXPECT_TRUE(response.get("/r").element.attribute("token").isNull());
}

/// Compares all that both documents say, comments and processing instructions aside.
void expectSameContent(const QDomElement &ours, const QDomElement &qts)
{
    EXPECT_EQ(ours.tagName(), qts.tagName());
    const QDomNamedNodeMap attributes = qts.attributes();
    EXPECT_EQ(ours.attributes().count(), attributes.count());
    for (int i = 0; i < attributes.count(); ++i)
        EXPECT_EQ(ours.attribute(attributes.item(i).nodeName()), attributes.item(i).nodeValue());

    QDomNode our = ours.firstChild();
    for (QDomNode their = qts.firstChild(); !their.isNull(); their = their.nextSibling()) {
        if (their.isComment() || their.isProcessingInstruction())
            continue;
        ASSERT_FALSE(our.isNull());
        ASSERT_EQ(our.nodeType(), their.nodeType());
        if (our.isElement())
            expectSameContent(our.toElement(), their.toElement());
        else
            EXPECT_EQ(our.nodeValue(), their.nodeValue());
        our = our.nextSibling();
    }
    EXPECT_TRUE(our.isNull());
}

TEST(XmlResponseNode, agreesWithQtsDomOnAWholeDocument)
{
    const QByteArray reply = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- a reply -->
<s:Envelope xmlns:s="urn:s" xmlns:t='urn:t'>
  <s:Header/>
  <s:Body>
    <t:R t:kind="a&amp;b" token="x">
      lead <t:A>1<!-- c -->2</t:A> <t:B> &#32; </t:B><?pi data?>
      <t:C><![CDATA[ raw ]]></t:C> &#x20; <t:D/>
      trail
    </t:R>
  </s:Body>
</s:Envelope>
)";
    XmlResponse response(reply, "");
    QDomDocument plain;
    ASSERT_TRUE(plain.setContent(reply));
    expectSameContent(response.get("/Envelope").element, plain.documentElement());
}

} // namespace
