// Which element a path leads to.

#include "support/printing.h"

#include <vorn/util/xmlresponse.h>

#include <gtest/gtest.h>

using vorn::XmlResponse;
using vorn::XmlResponseNode;

namespace {

struct Style
{
    const char *name;
    const char *reply;
};

void PrintTo(const Style &style, std::ostream *stream)
{
    *stream << style.name;
}

class PrefixStyle : public testing::TestWithParam<Style>
{
};

const Style styles[] = {
    {"SoapEnv", R"(<?xml version="1.0"?>
<SOAP-ENV:Envelope xmlns:SOAP-ENV="http://www.w3.org/2003/05/soap-envelope" xmlns:tds="urn:d">
 <SOAP-ENV:Body>
  <tds:GetScopesResponse tds:kind="all" count="2">
   <tds:Scopes><tt:ScopeItem xmlns:tt="urn:t">first</tt:ScopeItem></tds:Scopes>
   <tds:Scopes><tt:ScopeItem xmlns:tt="urn:t">second</tt:ScopeItem></tds:Scopes>
   <tds:Limit>42</tds:Limit>
   <tds:Full>true</tds:Full>
  </tds:GetScopesResponse>
 </SOAP-ENV:Body>
</SOAP-ENV:Envelope>)"},
    {"ShortPrefix", R"(<s:Envelope xmlns:s="urn:s"><s:Body><t:GetScopesResponse xmlns:t="urn:d" count="2">)"
                    R"(<t:Scopes><t:ScopeItem>first</t:ScopeItem></t:Scopes>)"
                    R"(<t:Scopes><t:ScopeItem>second</t:ScopeItem></t:Scopes>)"
                    R"(<t:Limit>42</t:Limit><t:Full>true</t:Full></t:GetScopesResponse></s:Body></s:Envelope>)"},
    {"NoPrefix", R"(<Envelope><Body><GetScopesResponse count="2">)"
                 R"(<Scopes><ScopeItem>first</ScopeItem></Scopes><Scopes><ScopeItem>second</ScopeItem></Scopes>)"
                 R"(<Limit>42</Limit><Full>true</Full></GetScopesResponse></Body></Envelope>)"},
    {"DefaultNamespace",
     R"(<Envelope xmlns="urn:s"><Body><GetScopesResponse xmlns="urn:d" count="2">)"
     R"(<Scopes><ScopeItem>first</ScopeItem></Scopes><Scopes><ScopeItem>second</ScopeItem></Scopes>)"
     R"(<Limit>42</Limit><Full>true</Full></GetScopesResponse></Body></Envelope>)"},
    {"Mixed",
     R"(<env:Envelope xmlns:env="urn:s"><env:Body><GetScopesResponse xmlns="urn:d" count="2">)"
     R"(<a:Scopes xmlns:a="urn:d"><ScopeItem>first</ScopeItem></a:Scopes>)"
     R"(<Scopes><b:ScopeItem xmlns:b="urn:t">second</b:ScopeItem></Scopes>)"
     R"(<Limit>42</Limit><c:Full xmlns:c="urn:d">true</c:Full></GetScopesResponse></env:Body></env:Envelope>)"},
    {"Undeclared",
     R"(<s:Envelope><s:Body><tds:GetScopesResponse count="2">)"
     R"(<tds:Scopes><tt:ScopeItem>first</tt:ScopeItem></tds:Scopes>)"
     R"(<tds:Scopes><tt:ScopeItem>second</tt:ScopeItem></tds:Scopes>)"
     R"(<tds:Limit>42</tds:Limit><tds:Full>true</tds:Full></tds:GetScopesResponse></s:Body></s:Envelope>)"},
};

TEST_P(PrefixStyle, givesTheSameAnswers)
{
    XmlResponse response(GetParam().reply, "/Envelope/Body/GetScopesResponse");

    EXPECT_EQ(response.getText("/Scopes/ScopeItem"), "first");
    EXPECT_EQ(response.getUInt("/Limit"), 42U);
    EXPECT_TRUE(response.getBool("/Full"));
    EXPECT_EQ(response.getAttribute("count", ""), "2");
    EXPECT_EQ(response.get("/Scopes").name, "Scopes");

    const QList<XmlResponseNode> scopes = response.getAll("/Scopes");
    ASSERT_EQ(scopes.size(), 2);
    EXPECT_EQ(response.getText(scopes[0], "/Scopes/ScopeItem"), "first");
    EXPECT_EQ(response.getText(scopes[1], "/Scopes/ScopeItem"), "second");
}

INSTANTIATE_TEST_SUITE_P(XmlResponse, PrefixStyle, testing::ValuesIn(styles),
                         [](const auto &instance) { return instance.param.name; });

TEST(XmlResponsePath, firstComponentIsTheDocumentElement)
{
    XmlResponse soap("<Envelope><Body/></Envelope>", "");
    EXPECT_TRUE(soap.get("/Envelope").valid);
    EXPECT_TRUE(soap.get("/Envelope/Body").valid);
    EXPECT_FALSE(soap.get("/Body").valid);

    XmlResponse page("<html><head><title>404</title></head></html>", "");
    EXPECT_EQ(page.getText("/html/head/title"), "404");

    XmlResponse fault("<Fault><Reason><Text>gone</Text></Reason></Fault>", "");
    EXPECT_EQ(fault.getText("/Fault/Reason/Text"), "gone");
}

TEST(XmlResponsePath, startsAtTheRootPath)
{
    XmlResponse response("<Envelope><Body><A>1</A></Body></Envelope>", "/Envelope/Body");
    EXPECT_EQ(response.getText("/A"), "1");
    EXPECT_FALSE(response.get("/Envelope/Body/A").valid);
}

TEST(XmlResponsePath, emptyPathIsTheElementAtTheRootPath)
{
    XmlResponse response("<Envelope><Body>x</Body></Envelope>", "/Envelope/Body");
    EXPECT_EQ(response.get("").name, "Body");
    EXPECT_EQ(response.getText(QString()), "x");
    EXPECT_EQ(response.getAll("").size(), 1);
}

TEST(XmlResponsePath, emptyPathBelowAnEmptyRootIsMissing)
{
    XmlResponse response("<Envelope>x</Envelope>", "");
    EXPECT_FALSE(response.get("").valid);
    EXPECT_TRUE(response.getAll("").isEmpty());
    EXPECT_TRUE(response.getText("").isNull());
}

TEST(XmlResponsePath, missingRootMakesEveryPathMissing)
{
    XmlResponse response("<Envelope><Body><A>1</A></Body></Envelope>", "/Envelope/Body/B");
    EXPECT_FALSE(response.get("/A").valid);
    EXPECT_FALSE(response.get("").valid);
    EXPECT_TRUE(response.getAll("/A").isEmpty());
}

TEST(XmlResponsePath, missingMiddleIsMissing)
{
    XmlResponse response("<Profiles><Name>p</Name></Profiles>", "");
    EXPECT_FALSE(response.get("/Profiles/Extension/AudioOutputConfiguration").valid);
    EXPECT_TRUE(response.getAll("/Profiles/Extension/AudioOutputConfiguration").isEmpty());
    EXPECT_TRUE(response.getText("/Profiles/Extension/AudioOutputConfiguration").isNull());
    EXPECT_TRUE(response.getAttribute("token", "/Profiles/Extension/AudioOutputConfiguration").isNull());
}

TEST(XmlResponsePath, componentsAreLiteral)
{
    XmlResponse response("<Security><TLS1.1>true</TLS1.1><X.509Token>1</X.509Token><TLS1x2>true</TLS1x2></Security>",
                         "/Security");
    EXPECT_TRUE(response.getBool("/TLS1.1"));
    EXPECT_TRUE(response.getBool("/X.509Token"));
    EXPECT_FALSE(response.get("/TLS1.2").valid);
    EXPECT_FALSE(response.get("/*").valid);
    EXPECT_FALSE(response.get("/TLS1.1[1]").valid);
    EXPECT_FALSE(response.get("/@token").valid);
    EXPECT_FALSE(response.get("/.").valid);
    EXPECT_FALSE(response.get("/../Security").valid);
}

TEST(XmlResponsePath, isCaseSensitive)
{
    XmlResponse response("<Envelope><Body/></Envelope>", "");
    EXPECT_FALSE(response.get("/envelope").valid);
    EXPECT_FALSE(response.get("/Envelope/BODY").valid);
}

TEST(XmlResponsePath, matchesWholeNamesOnly)
{
    XmlResponse response("<a><TagMismatch>1</TagMismatch></a>", "/a");
    EXPECT_FALSE(response.get("/Tag").valid);
    EXPECT_FALSE(response.get("/TagMismatchX").valid);
    EXPECT_TRUE(response.get("/TagMismatch").valid);
}

TEST(XmlResponsePath, withAPrefixIsMissing)
{
    XmlResponse response("<tt:a><tt:b/><x:y:c/></tt:a>", "/a");
    EXPECT_FALSE(response.get("/tt:b").valid);
    EXPECT_EQ(response.get("").children[1].name, "y:c") << "the prefix ends at the first colon";
    EXPECT_TRUE(response.get("/y:c").valid);
}

TEST(XmlResponsePath, notOfThePathFormIsMissing)
{
    XmlResponse response("<a><b><c/></b></a>", "/a");
    EXPECT_FALSE(response.get("b").valid);
    EXPECT_FALSE(response.get("/b/").valid);
    EXPECT_FALSE(response.get("//b").valid);
    EXPECT_FALSE(response.get("/").valid);
    EXPECT_FALSE(response.get("/b//c").valid);
    EXPECT_FALSE(XmlResponse("<a><b/></a>", "a").get("/b").valid);
    EXPECT_FALSE(XmlResponse("<a><b/></a>", "/a/").get("/b").valid);
}

TEST(XmlResponsePath, aNulMatchesNoName)
{
    XmlResponse response("<aaaaaaaa k='1'><b>2</b></aaaaaaaa>", "");
    const QString tail(QChar(u'\0'));
    EXPECT_FALSE(response.get("/aaaaaaaa" + tail).valid);
    EXPECT_FALSE(response.get("/aaaaaaaa" + tail + ">" + tail + "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx").valid);
    EXPECT_TRUE(response.getAttribute("k" + tail, "/aaaaaaaa").isNull());
    EXPECT_TRUE(response.getAttribute(tail, "/aaaaaaaa").isNull());
    EXPECT_FALSE(XmlResponse("<a><b/></a>", "/a" + tail).get("/b").valid);
}

TEST(XmlResponsePath, oneQueryDoesNotDependOnTheLast)
{
    XmlResponse response("<r><a><x>1</x></a><b><x>2</x></b><ab><x>3</x></ab></r>", "/r");
    EXPECT_EQ(response.getText("/a/x"), "1");
    EXPECT_EQ(response.getText("/b/x"), "2");
    EXPECT_EQ(response.getText("/c/x"), QString());
    EXPECT_EQ(response.getText("/a/x"), "1");
    EXPECT_EQ(response.getText("/ab/x"), "3");
    EXPECT_EQ(response.getText("/x"), QString());
    EXPECT_EQ(response.getText("/b/y"), QString());
    EXPECT_EQ(response.getText("/b/x"), "2");
}

TEST(XmlResponsePath, textOfThePathMayChangeBetweenQueries)
{
    XmlResponse response("<r><a><x>1</x></a><b><x>2</x></b></r>", "/r");
    QChar path[] = {u'/', u'a', u'/', u'x'};
    EXPECT_EQ(response.getText(QString::fromRawData(path, 4)), "1");
    path[1] = u'b';
    EXPECT_EQ(response.getText(QString::fromRawData(path, 4)), "2");
}

TEST(XmlResponsePath, longParentsAreFound)
{
    const QString name(60, u'n');
    const QByteArray utf8 = name.toUtf8();
    XmlResponse response("<r><" + utf8 + "><x>1</x><y>2</y></" + utf8 + "><b><x>3</x></b></r>", "/r");
    EXPECT_EQ(response.getText('/' + name + "/x"), "1");
    EXPECT_EQ(response.getText("/b/x"), "3");
    EXPECT_EQ(response.getText('/' + name + "/y"), "2");
}

TEST(XmlResponsePath, namesBeyondAsciiMatch)
{
    XmlResponse response("<a><x:gr\xC3\xB6\xC3\x9F"
                         "e>1</x:gr\xC3\xB6\xC3\x9F"
                         "e></a>",
                         "/a");
    EXPECT_EQ(response.getText(QStringLiteral(u"/gr\u00F6\u00DFe")), "1");
    EXPECT_FALSE(response.get(QStringLiteral(u"/gr\u00F6\u00DF")).valid);
    EXPECT_FALSE(response.get(QStringLiteral(u"/gr\u00F6se")).valid);
    EXPECT_EQ(response.get("").children.first().name, QStringLiteral(u"gr\u00F6\u00DFe"));
}

TEST(XmlResponsePath, namesThatStartBeyondAsciiMatch)
{
    XmlResponse response("<a><\xC3\xA4>1</\xC3\xA4><\xC3\xB6>2</\xC3\xB6><\xC2\x80>3</\xC2\x80></a>", "/a");
    EXPECT_EQ(response.getText(QStringLiteral(u"/\u00F6")), "2");
    EXPECT_EQ(response.getText(QStringLiteral(u"/\u0080")), "3") << "the first character beyond ASCII";
    EXPECT_FALSE(response.get(QStringLiteral(u"/\u00C3")).valid);
    EXPECT_FALSE(response.get(QStringLiteral(u"/\uFFC3\uFFB6")).valid) << "whose lower bytes are the UTF-8 of U+00F6";
}

TEST(XmlResponsePath, aNulMatchesNoEndOfAName)
{
    XmlResponse response("<a><b>1</b></a>", "/a");
    EXPECT_FALSE(response.get(QString("/b") + QChar(0)).valid);
    EXPECT_FALSE(response.get(QString("/b") + QChar(0) + "b").valid);
    EXPECT_FALSE(response.get(QString("/b") + QChar(0) + "1").valid) << "the text may stand behind the name in memory";
}

TEST(XmlResponsePath, firstOfSeveralMatchesIsTaken)
{
    XmlResponse response("<a><b id='1'/><b id='2'><c>deep</c></b></a>", "/a");
    EXPECT_EQ(response.getAttribute("id", "/b"), "1");
    EXPECT_EQ(response.get("/b").element.attribute("id"), "1");
    EXPECT_FALSE(response.get("/b/c").valid) << "each component chooses before the next is looked at";
    EXPECT_TRUE(response.getAll("/b/c").isEmpty());
}

TEST(XmlResponsePath, getAllKeepsDocumentOrderAndSkipsOthers)
{
    XmlResponse response("<a><b>1</b>text<c/><x:b>2</x:b><!-- b --><bb/><b>3</b></a>", "/a");
    const QList<XmlResponseNode> nodes = response.getAll("/b");
    ASSERT_EQ(nodes.size(), 3);
    EXPECT_EQ(nodes[0].element.text(), "1");
    EXPECT_EQ(nodes[1].element.text(), "2");
    EXPECT_EQ(nodes[2].element.text(), "3");
}

TEST(XmlResponsePath, getAllOfTheDocumentElement)
{
    XmlResponse response("<a/>", "");
    EXPECT_EQ(response.getAll("/a").size(), 1);
}

TEST(XmlResponseNodePath, startsWithTheNodesOwnName)
{
    XmlResponse response(
        "<r><Profiles token='p'><Name>n</Name><Extension><Output>o</Output></Extension></Profiles></r>", "/r");
    const XmlResponseNode node = response.get("/Profiles");
    EXPECT_EQ(response.getText(node, "/Profiles/Name"), "n");
    EXPECT_EQ(response.get(node, "/Profiles/Extension/Output").element.text(), "o");
    EXPECT_EQ(response.get(node, "/Profiles").element.attribute("token"), "p");
    EXPECT_FALSE(response.get(node, "/Profiles/Extension/Missing").valid);
    EXPECT_FALSE(response.get(node, "/Profiles/Missing/Output").valid);
}

TEST(XmlResponseNodePath, ofAnotherNameIsMissing)
{
    XmlResponse response("<r><a><b>1</b></a></r>", "/r");
    const XmlResponseNode node = response.get("/a");
    EXPECT_FALSE(response.get(node, "/b").valid);
    EXPECT_FALSE(response.get(node, "/r/a/b").valid);
    EXPECT_FALSE(response.get(node, "").valid);
    EXPECT_FALSE(response.get(node, "a/b").valid);
    EXPECT_TRUE(response.getText(node, "/x/b").isNull());
    EXPECT_EQ(response.getUInt(node, "/x/b"), 0U);
}

TEST(XmlResponseNodePath, ofASiblingIsMissing)
{
    XmlResponse response("<r><a>1</a><b>2</b></r>", "");
    const XmlResponseNode parent = response.get("/r");
    ASSERT_EQ(parent.children.size(), 2);
    EXPECT_FALSE(response.get(parent.children[0], "/b").valid);
    EXPECT_FALSE(response.get(parent.children[1], "/a").valid);
}

TEST(XmlResponseNodePath, belowAMissingNodeIsMissing)
{
    XmlResponse response("<r/>", "/r");
    const XmlResponseNode missing = response.get("/a");
    EXPECT_FALSE(response.get(missing, "/a").valid);
    EXPECT_FALSE(response.get(missing, "").valid);
    EXPECT_FALSE(response.get(missing, "/").valid);
}

TEST(XmlResponseNodePath, readsTextAndNumbers)
{
    XmlResponse response("<r><Version><Major>2</Major><Minor>x</Minor></Version></r>", "/r");
    const XmlResponseNode node = response.get("/Version");
    EXPECT_EQ(response.getUInt(node, "/Version/Major"), 2U);
    EXPECT_EQ(response.getUInt(node, "/Version/Minor"), 0U);
    EXPECT_EQ(response.getText(node, "/Version/Minor"), "x");
}

TEST(XmlResponseNodePath, worksOnNodesOfAnotherResponse)
{
    XmlResponse source("<r><a><b>1</b></a></r>", "/r");
    XmlResponse other("<x/>", "/x");
    EXPECT_EQ(other.getText(source.get("/a"), "/a/b"), "1");
}

} // namespace
