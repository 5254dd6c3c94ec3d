// What counts as a document that cannot be parsed, and documents made to hurt.

#include "support/printing.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <gtest/gtest.h>

using vorn::XmlResponse;
using vorn::XmlResponseNode;

namespace {

QByteArray nested(int levels)
{
    return QByteArray("<a>").repeated(levels) + "x" + QByteArray("</a>").repeated(levels);
}

QString pathOf(int levels)
{
    return QString("/a").repeated(levels);
}

TEST(XmlResponseDepth, of256LevelsIsRead)
{
    for (const int levels : {1, 2, 255, 256}) {
        XmlResponse response(nested(levels), "");
        EXPECT_EQ(response.getText(pathOf(levels)), "x") << levels;
        XmlResponseNode node = response.get("/a");
        for (int i = 1; i < levels; ++i)
            node = XmlResponseNode(node.children.value(0));
        EXPECT_EQ(node.element.text(), "x") << levels;
    }
}

TEST(XmlResponseDepth, of257LevelsIsAnEmptyDocument)
{
    for (const int levels : {257, 258, 1000}) {
        XmlResponse response(nested(levels), "");
        EXPECT_FALSE(response.get("/a").valid) << levels;
        EXPECT_TRUE(response.getText("/a").isNull()) << levels;
        EXPECT_EQ(response.xml(), QString::fromLatin1(nested(levels))) << levels;
    }
}

TEST(XmlResponseDepth, countsTheShortestLevelsToo)
{
    const auto shortest = [](int levels) {
        return QByteArray("<a>").repeated(levels - 1) + "<a/>" + QByteArray("</a>").repeated(levels - 1);
    };
    EXPECT_TRUE(XmlResponse(shortest(256), "").get(pathOf(256)).valid);
    EXPECT_FALSE(XmlResponse(shortest(257), "").get("/a").valid);
}

TEST(XmlResponseDepth, countsElementsOnly)
{
    XmlResponse response(QByteArray("<a>").repeated(256) + "x<!-- --><![CDATA[y]]>" + QByteArray("</a>").repeated(256),
                         "");
    EXPECT_EQ(response.getText("/a"), "xy");
}

TEST(XmlResponseDepth, isTheNestingNotTheNumberOfElements)
{
    XmlResponse response("<a>" + QByteArray("<b><c/></b>").repeated(1000) + "</a>", "/a");
    EXPECT_EQ(response.getAll("/b").size(), 1000);
}

TEST(XmlResponseDepth, behindShallowElementsCountsToo)
{
    XmlResponse response("<a><b/><b><c/></b>" + nested(256) + "</a>", "");
    EXPECT_FALSE(response.get("/a").valid);
}

TEST(XmlResponseDepth, ofAMillionLevelsReturns)
{
    XmlResponse closed(nested(1000000), "");
    EXPECT_FALSE(closed.get("/a").valid);
    XmlResponse open(QByteArray("<a>").repeated(1000000), "");
    EXPECT_FALSE(open.get("/a").valid);
}

class Refused : public testing::TestWithParam<const char *>
{
};

TEST_P(Refused, readsAsAnEmptyDocumentAndKeepsItsText)
{
    XmlResponse response(GetParam(), "");
    EXPECT_FALSE(response.get("/a").valid);
    EXPECT_FALSE(response.get("").valid);
    EXPECT_TRUE(response.getAll("/a").isEmpty());
    EXPECT_TRUE(response.getText("/a").isNull());
    EXPECT_EQ(response.getUInt("/a"), 0U);
    EXPECT_FALSE(response.getBool("/a"));
    EXPECT_TRUE(response.getAttribute("k", "/a").isNull());
    EXPECT_EQ(response.xml(), QString::fromUtf8(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    XmlResponse, Refused,
    testing::Values("   \r\n\t ", "plain text", "<a k='1'>1", "<a k='1'>1</b>", "<a k='1'>1</a", "<a k='1'>1</a></a>",
                    "<a k='1'/><b/>", "<a k='1'/><a k='2'/>", "<a k='1'>1</a>text", "text<a k='1'>1</a>",
                    "<a k='1'/>&#32;", "<a k='1'/><![CDATA[x]]>", "<![CDATA[]]><a k='1'/>", "<a k=1/>", "<a k/>",
                    "<!-- <a/> -->", "<?xml version='1.0'?>", "<", "<?", "<!", "&", "<a k='1'/><", "<a k='1'j='2'/>",
                    "<a></a k='1'>", "<a k='1'></A>", "< a k='1'/>", "<a k='1'><1/></a>", "<a k='1'><!-- </a>",
                    "<!---><a k='1'/>", "<a k='1'><![CDATA[</a>", "<a k='1'><?p></a>", "<a k='1'><?1 ?></a>",
                    "<a k='1'><!DOCTYPE a></a>", "<a k='1'><!ENTITY e 'x'></a>", "<!DOCTYPE a '><a k='1'/>",
                    "<!DOCTYPE a [<!><a k='1'/>", "<!doctype a><a k='1'/>"));

class Accepted : public testing::TestWithParam<const char *>
{
};

TEST_P(Accepted, isReadWithWhatMayStandBesideTheDocumentElement)
{
    XmlResponse response(GetParam(), "");
    EXPECT_EQ(response.getText("/a"), "1");
    EXPECT_EQ(response.get("/a").element.text(), "1");
}

INSTANTIATE_TEST_SUITE_P(XmlResponse, Accepted,
                         testing::Values("<a>1</a>", " \r\n<a>1</a>\n ", "<?xml version='1.0'?><a>1</a>",
                                         "\n <?xml version='1.0'?>\n<a>1</a>", "<!-- c --><a>1</a><!-- d -->",
                                         "<?pi?><a>1</a><?pi x?>", "<!DOCTYPE a><a>1</a>",
                                         "<!DOCTYPE html PUBLIC '-//W3C//DTD' 'http://www.w3.org/x.dtd'><a>1</a>",
                                         "<?xml version='1.0'?><!DOCTYPE a [<!ELEMENT a ANY>]><!-- c --><a>1</a>"));

struct ForgivenRow
{
    const char *name;
    QByteArray document;
    const char16_t *text;      // of the element "a"
    const char16_t *attribute; // "k" of that element
};

class Forgiven : public testing::TestWithParam<ForgivenRow>
{
};

// What no XML parser has to accept and devices send all the same.
const ForgivenRow forgivenDocuments[] = {
    {"illFormedUtf8", "<a k='\xFF'>x\xC3y</a>", u"x\uFFFDy", u"\uFFFD"},
    {"nul", QByteArray("<a k='\0'>x\0y</a>\0", 18), u"x\uFFFDy", u"\uFFFD"},
    {"controlCharacters", "<a k='\x01\x7F'>x\x0B\x1Fy</a>", u"x\u000B\u001Fy", u"\u0001\u007F"},
    {"nonCharacters", "<a k='\xEF\xBF\xBE'>x\xEF\xBF\xBFy</a>", u"x\uFFFFy", u"\uFFFE"},
    {"ampersand", "<a k='1 & 2 &&'>x & y &amp</a>", u"x & y &amp", u"1 & 2 &&"},
    {"unknownEntity", "<a k='&unknown;'>x&nbsp;y</a>", u"x&nbsp;y", u"&unknown;"},
    {"referenceToNoCharacter", "<a k='&#0;'>x&#xD800;y&#x110000;</a>", u"x\uFFFDy\uFFFD", u"\uFFFD"},
    {"referenceToAForbiddenCharacter", "<a k='&#1;'>x&#xFFFE;y&#11;</a>", u"x\uFFFEy\u000B", u"\u0001"},
    {"lessThanInAnAttribute", "<a k='1 < 2 <b/>'>x</a>", u"x", u"1 < 2 <b/>"},
    {"endOfCdataInText", "<a k='1'>x]]>y</a>", u"x]]>y", u"1"},
    {"repeatedAttribute", "<a k='1' k='2'>x</a>", u"x", u"1"},
    {"undeclaredPrefix", "<p:a k='1' q:k='2'><q:b>x</q:b></p:a>", u"x", u"1"},
    {"emptyPrefix", "<:a k='1' :k='2'>x</:a>", u"x", u"1"},
    {"colonsInNames", "<p:a k='1' p:q:k='2' k:='3'><p:q:b>x</p:q:b><b:>y</b:></p:a>", u"xy", u"1"},
    {"namesOfAnyCharacter", "<a k='1' \xC3\x97='2'><\xC2\xA0>x</\xC2\xA0></a>", u"x", u"1"},
    {"hyphensInAComment", "<!-- -- ---><a k='1'>x<!-----><!-- -- ->-->y</a>", u"xy", u"1"},
    {"formOfAProcessingInstruction", "<?p!?><a k='1'>x<?p<b/>?><?p&?>y</a>", u"xy", u"1"},
    {"formOfTheDeclaration", "<?xml?><a k='1'>x</a>", u"x", u"1"},
    {"versionOfTheDeclaration", "<?xml version='none' standalone=maybe?><a k='1'>x</a>", u"x", u"1"},
    {"declarationInAnElement", "<a k='1'>x<?xml version='1.0'?>y</a>", u"xy", u"1"},
    {"declarationBehindOthers", "\n<!-- --><?xml version='1.0'?><?xml version='1.0'?><a k='1'>x</a>", u"x", u"1"},
    {"declarationBehindTheRoot", "<a k='1'>x</a><?xml version='1.0'?>", u"x", u"1"},
    {"dtdBehindTheRoot", "<a k='1'>x</a><!DOCTYPE a [<!ENTITY e 'y'>]>", u"x", u"1"},
    {"severalDtds", "<!DOCTYPE a><!DOCTYPE b []><a k='1'>x</a>", u"x", u"1"},
    {"formOfADtd", "<!DOCTYPE><!DOCTYPE 1 [! <?p?> <!b <!c>>><a k='1'>x</a>", u"x", u"1"},
};

TEST_P(Forgiven, isReadByQueriesViewsAndNodes)
{
    XmlResponse response(GetParam().document, "");
    const QString text = QStringView(GetParam().text).toString();
    const QString attribute = QStringView(GetParam().attribute).toString();

    EXPECT_EQ(response.getText("/a"), text);
    EXPECT_EQ(response.getAttribute("k", "/a"), attribute);
    EXPECT_EQ(response.view("/a").text(), text);
    EXPECT_EQ(response.view("/a").attribute("k"), attribute);
    EXPECT_EQ(response.get("/a").element.text(), text);
    EXPECT_EQ(response.get("/a").element.attribute("k"), attribute);
}

INSTANTIATE_TEST_SUITE_P(XmlResponse, Forgiven, testing::ValuesIn(forgivenDocuments),
                         [](const auto &document) { return std::string(document.param.name); });

TEST(XmlResponseDtd, attributesThatItDeclaresAreNotKnown)
{
    XmlResponse response("<!DOCTYPE a [<!ATTLIST a k CDATA 'default'>]><a/>", "");
    EXPECT_TRUE(response.getAttribute("k", "/a").isNull());
    EXPECT_TRUE(response.view("/a").attribute("k").isNull());
    EXPECT_TRUE(response.get("/a").element.attribute("k", QString()).isNull());
}

TEST(XmlResponseDtd, entitiesAreNotExpanded)
{
    XmlResponse response("<!DOCTYPE a [<!ENTITY e 'expanded'><!ENTITY f '&e;&e;'>]><a k='&e;'>x&e;y&f;</a>", "");
    EXPECT_EQ(response.getText("/a"), "x&e;y&f;");
    EXPECT_EQ(response.get("/a").element.text(), "x&e;y&f;");
    EXPECT_EQ(response.getAttribute("k", "/a"), "&e;");
}

TEST(XmlResponseDtd, exponentialEntitiesCostNothing)
{
    QByteArray dtd = "<!DOCTYPE a [<!ENTITY e0 'ha'>";
    for (int i = 1; i < 40; ++i) {
        const QByteArray previous = "&e" + QByteArray::number(i - 1) + ";";
        dtd += "<!ENTITY e" + QByteArray::number(i) + " '" + previous + previous + "'>";
    }
    XmlResponse response(dtd + "]><a>&e39;</a>", "");
    EXPECT_EQ(response.getText("/a"), "&e39;");
}

TEST(XmlResponseDtd, externalEntitiesAreNotOpened)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const QString fileName = folder.filePath("secret");
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<b>secret</b>");
    file.close();

    const QByteArray url = "file://" + fileName.toUtf8();
    XmlResponse entity("<!DOCTYPE a [<!ENTITY e SYSTEM '" + url + "'>]><a>&e;</a>", "");
    EXPECT_EQ(entity.getText("/a"), "&e;");
    XmlResponse subset("<!DOCTYPE a SYSTEM '" + url + "'><a>1</a>", "");
    EXPECT_EQ(subset.getText("/a"), "1");
}

TEST(XmlResponseSize, ofManySiblingsAttributesAndTextsIsRead)
{
    XmlResponse siblings("<a>" + QByteArray("<b/>").repeated(100000) + "</a>", "/a");
    EXPECT_EQ(siblings.getAll("/b").size(), 100000);

    QByteArray attributes = "<a";
    for (int i = 0; i < 100000; ++i)
        attributes += " k" + QByteArray::number(i) + "='" + QByteArray::number(i) + "'";
    XmlResponse wide(attributes + "/>", "/a");
    EXPECT_EQ(wide.getAttribute("k99999", ""), "99999");
    EXPECT_EQ(wide.get("").element.attribute("k99999"), "99999");

    XmlResponse pieces("<a>" + QByteArray("x<!---->").repeated(100000) + "</a>", "");
    EXPECT_EQ(pieces.getText("/a").size(), 100000);
    // Minutes, if each piece copied all before it.
    XmlResponse digits("<a>" + QByteArray("0<!---->").repeated(2000000) + "7</a>", "");
    EXPECT_EQ(digits.getUInt("/a"), 7U);
    EXPECT_FALSE(digits.getBool("/a"));
}

TEST(XmlResponseTruncation, atEveryLengthAnswersAllQueries)
{
    const QByteArray reply = "\n<?xml version=\"1.0\" encoding='UTF-8'?><!DOCTYPE e [<!ENTITY x 'y'>]>\n<!-- c -->"
                             "<s:e xmlns:s=\"urn:s\"><s:b k='&lt;v'>1&#50;<![CDATA[3]]>\xC3\xA9</s:b><?pi x?></s:e>\n";
    const QByteArray documentEnd = "</s:e>";
    const qsizetype whole = reply.indexOf(documentEnd) + documentEnd.size();
    for (qsizetype size = 0; size <= reply.size(); ++size) {
        XmlResponse response(reply.first(size), "");
        const bool read = size >= whole;
        EXPECT_EQ(response.get("/e/b").valid, read) << size;
        EXPECT_EQ(response.getAll("/e/b").size(), read ? 1 : 0) << size;
        EXPECT_EQ(response.getText("/e/b"), read ? QStringLiteral(u"123\u00E9") : QString()) << size;
        EXPECT_EQ(response.getUInt("/e/b"), 0U) << size;
        EXPECT_FALSE(response.getBool("/e/b")) << size;
        EXPECT_EQ(response.getAttribute("k", "/e/b"), read ? QString("<v") : QString()) << size;
        EXPECT_EQ(response.xml(), QString::fromUtf8(reply.first(size))) << size;
    }
}

} // namespace
