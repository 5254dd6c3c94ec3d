// Encodings, and bytes that are not what they should be.

#include "support/printing.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QStringEncoder>
#include <gtest/gtest.h>

#include <string>
#include <utility>

using vorn::XmlResponse;

namespace {

const QString name = QStringLiteral(u"Kamera \u00FC\u4E2D\U0001F600");

QString documentWithName(const QString &declaration)
{
    return declaration + "<a k='" + name + "'>" + name + "</a>";
}

QByteArray encoded(const QString &text, QStringConverter::Encoding encoding, bool byteOrderMark)
{
    QStringEncoder encoder(encoding,
                           byteOrderMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

/// As UTF-16LE, whatever surrogates \a text holds.
QByteArray encodedAsUtf16(const QString &text)
{
    QByteArray bytes;
    for (const QChar character : text) {
        bytes += static_cast<char>(character.unicode() & 0xFF);
        bytes += static_cast<char>(character.unicode() >> 8);
    }
    return bytes;
}

/// As UTF-32LE, whatever numbers \a text holds.
QByteArray encodedAsUtf32(const std::u32string &text)
{
    QByteArray bytes;
    for (const char32_t character : text) {
        for (int shift = 0; shift < 32; shift += 8)
            bytes += static_cast<char>(character >> shift & 0xFF);
    }
    return bytes;
}

void expectName(const QByteArray &reply, const char *what)
{
    XmlResponse response(reply, "");
    EXPECT_EQ(response.getText("/a"), name) << what;
    EXPECT_EQ(response.get("/a").element.text(), name) << what;
    EXPECT_EQ(response.getAttribute("k", "/a"), name) << what;
    EXPECT_TRUE(response.xml().endsWith("</a>")) << what;
    EXPECT_TRUE(response.xml().contains(name)) << what;
}

TEST(XmlResponseEncoding, unicodeIsRecognisedWithAndWithoutByteOrderMark)
{
    const std::pair<QStringConverter::Encoding, const char *> encodings[] = {
        {QStringConverter::Utf8, "UTF-8"},       {QStringConverter::Utf16LE, "UTF-16LE"},
        {QStringConverter::Utf16BE, "UTF-16BE"}, {QStringConverter::Utf32LE, "UTF-32LE"},
        {QStringConverter::Utf32BE, "UTF-32BE"},
    };
    for (const auto &[encoding, what] : encodings) {
        for (const bool mark : {true, false}) {
            expectName(encoded(documentWithName({}), encoding, mark), what);
            expectName(encoded(documentWithName("<?xml version='1.0'?>"), encoding, mark), what);
            for (const char *blank : {"\n", "\r\n", " ", "\t"})
                expectName(encoded(documentWithName(QString(blank) + "<?xml version='1.0'?>\n"), encoding, mark), what);
        }
    }
}

TEST(XmlResponseEncoding, byteOrderMarkWinsOverTheDeclaration)
{
    const QString document = documentWithName("<?xml version='1.0' encoding='ISO-8859-1'?>");
    expectName(encoded(document, QStringConverter::Utf8, true), "UTF-8");
    expectName(encoded(document, QStringConverter::Utf16LE, true), "UTF-16LE");
}

TEST(XmlResponseEncoding, byteOrderMarkIsNoPartOfTheText)
{
    XmlResponse response("\xEF\xBB\xBF<a>1</a>", "");
    EXPECT_EQ(response.xml(), "<a>1</a>");
    EXPECT_EQ(response.getText("/a"), "1");
}

TEST(XmlResponseEncoding, declaredLatin1IsHonoured)
{
    XmlResponse response("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a k='\xE9'>caf\xE9</a>", "");
    EXPECT_EQ(response.getText("/a"), QStringLiteral(u"caf\u00E9"));
    EXPECT_EQ(response.getAttribute("k", "/a"), QStringLiteral(u"\u00E9"));
    EXPECT_TRUE(response.xml().endsWith(QStringLiteral(u"caf\u00E9</a>")));
}

TEST(XmlResponseEncoding, declaredGb2312IsHonoured)
{
    if (!QStringDecoder("GB2312").isValid())
        GTEST_SKIP() << "This Qt was built without ICU and knows no GB2312.";
    XmlResponse response("<?xml version='1.0' encoding='GB2312'?><a>\xC9\xE3\xCF\xF1\xBB\xFA</a>", "");
    EXPECT_EQ(response.getText("/a"), QStringLiteral(u"\u6444\u50CF\u673A"));
}

TEST(XmlResponseEncoding, declarationMayBeWrittenInManyWays)
{
    for (const char *declaration : {
             "<?xml version='1.0' encoding='iso-8859-1'?>",
             "<?xml encoding = \"Latin1\" ?>",
             "\r\n<?xml version='1.0'\n\tencoding\n=\n'ISO-8859-1' standalone='yes'?>\r\n",
         }) {
        XmlResponse response(declaration + QByteArray("<a>\xE9</a>"), "");
        EXPECT_EQ(response.getText("/a"), QStringLiteral(u"\u00E9")) << declaration;
    }
}

TEST(XmlResponseEncoding, nameOfAnEncodingMayHoldAnyLetterAndDigit)
{
    if (!QStringDecoder("GB2312").isValid())
        GTEST_SKIP() << "This Qt was built without ICU and knows few encodings.";
    for (const char *encoding : {"HZ", "hz"}) {
        XmlResponse response("<?xml version='1.0' encoding='" + QByteArray(encoding) + "'?><a>~{VP~}</a>", "");
        EXPECT_EQ(response.getText("/a"), QStringLiteral(u"\u4E2D")) << encoding;
    }
    for (const char *encoding : {"IBM850", "ibm850"}) {
        XmlResponse response("<?xml version='1.0' encoding='" + QByteArray(encoding) + "'?><a>\x82</a>", "");
        EXPECT_EQ(response.getText("/a"), QStringLiteral(u"\u00E9")) << encoding;
    }
    for (const char *encoding : {"MACINTOSH", "macintosh"}) {
        XmlResponse response("<?xml version='1.0' encoding='" + QByteArray(encoding) + "'?><a>\x8E</a>", "");
        EXPECT_EQ(response.getText("/a"), QStringLiteral(u"\u00E9")) << encoding;
    }
}

TEST(XmlResponseEncoding, nameOfAnEncodingMayHoldUnderscores)
{
    XmlResponse response("<?xml version='1.0' encoding='ISO_8859_1'?><a>\xE9</a>", "");
    EXPECT_EQ(response.getText("/a"), QStringLiteral(u"\u00E9"));
}

TEST(XmlResponseEncoding, uselessDeclarationMeansUtf8)
{
    for (const char *declaration : {
             "<?xml version='1.0'?>",
             "<?xml version='1.0' encoding='UTF-8'?>",
             "<?xml version='1.0' encoding='utf8'?>",
             "<?xml version='1.0' encoding='no-such-encoding'?>",
             "<?xml version='1.0' encoding=''?>",
             "<?xml version='1.0' encoding?>",
             "<?xml version='1.0' encoding=?>",
             "<?xml version='1.0' encoding='ISO-8859-1?>",
             "<?xml version='1.0' encoding=ISO-8859-1?>",
             "<?xml version='1.0' encoding='../../../etc/passwd'?>",
             "<?xml version='1.0' encoding='[ISO-8859-1]'?>",
             "<?xml version='1.0' encoding='{ISO-8859-1}'?>",
             "<?xml version='1.0' encoding='locale'?>",
             "<?xml version='1.0' encoding='system'?>",
             // The text was UTF-16 when the device wrote the declaration, but not when it sent it.
             "<?xml version='1.0' encoding='utf-16'?>",
             "<?xml version='1.0' encoding='UTF-16LE'?>",
             "<?xml version='1.0' encoding='UTF-32'?>",
             "<!-- <?xml encoding='ISO-8859-1'?> -->",
             "<?pi encoding='ISO-8859-1'?>",
             "<?xml-stylesheet encoding='ISO-8859-1'?>",
             "<?xml version='1.0' encoding='ISO-8859-1,swaplfnl'?>",
         }) {
        XmlResponse response(declaration + QByteArray("<a>\xC3\xA9</a>"), "");
        EXPECT_EQ(response.getText("/a"), QStringLiteral(u"\u00E9")) << declaration;
    }
}

TEST(XmlResponseEncoding, encodingOfAnAttributeIsNoDeclaration)
{
    XmlResponse response("<a encoding='ISO-8859-1'>\xC3\xA9</a>", "");
    EXPECT_EQ(response.getText("/a"), QStringLiteral(u"\u00E9"));
}

TEST(XmlResponseBytes, illFormedUtf8BecomesAReplacementCharacterWhereItStands)
{
    XmlResponse response(
        "<r k='\xFFv'><bad>a\xFFz</bad><cut>\xE4\xB8</cut><good>ok</good><wide>\xED\xA0\x80</wide></r>", "/r");
    EXPECT_EQ(response.getText("/bad"), QStringLiteral(u"a\uFFFDz"));
    EXPECT_EQ(response.get("/bad").element.text(), QStringLiteral(u"a\uFFFDz"));
    EXPECT_EQ(response.getAttribute("k", ""), QStringLiteral(u"\uFFFDv"));
    EXPECT_EQ(response.get("").element.attribute("k"), QStringLiteral(u"\uFFFDv"));
    EXPECT_TRUE(response.getText("/cut").startsWith(QChar(0xFFFD)));
    EXPECT_EQ(response.getText("/cut"), response.get("/cut").element.text());
    EXPECT_TRUE(response.getText("/wide").startsWith(QChar(0xFFFD)));
    EXPECT_EQ(response.getText("/good"), "ok");
    EXPECT_TRUE(response.xml().contains(QStringLiteral(u"a\uFFFDz")));
}

TEST(XmlResponseBytes, loneSurrogateOfUtf16IsReadAsAQuestionMark)
{
    for (const QChar surrogate : {QChar(0xD800), QChar(0xDC00)}) {
        const QString text = QStringLiteral("<a>x") + surrogate + QStringLiteral("y</a>");
        XmlResponse response(encodedAsUtf16(text), "");
        EXPECT_EQ(response.getText("/a"), "x?y");
        EXPECT_EQ(response.xml(), text);
    }
}

TEST(XmlResponseBytes, loneSurrogateOfUtf32IsReadAsAQuestionMark)
{
    const char32_t text[] = U"<a>x_y_\U0001F600</a>";
    std::u32string document(text);
    document[4] = 0xD800;
    document[6] = 0xDC00;
    XmlResponse response(encodedAsUtf32(document), "");
    EXPECT_EQ(response.getText("/a"), QStringLiteral(u"x?y?\U0001F600"));
}

TEST(XmlResponseBytes, numberBeyondUnicodeInUtf32IsReadAsAReplacementCharacter)
{
    for (const char32_t number : {0x110000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        XmlResponse response(encodedAsUtf32(U"<a>x" + std::u32string(1, number) + U"y</a>"), "");
        EXPECT_EQ(response.getText("/a"), QStringLiteral(u"x\uFFFDy"));
        EXPECT_EQ(response.xml(), QStringLiteral(u"<a>x\uFFFDy</a>"));
    }
}

TEST(XmlResponseBytes, characterThatIsCutShortAtTheEndOfAReplyIsIgnored)
{
    const QString text = "<a>1</a>";
    for (const int more : {1, 2, 3}) {
        XmlResponse response(encodedAsUtf32(text.toStdU32String()) + QByteArray(more, '\x20'), "");
        EXPECT_EQ(response.getText("/a"), "1");
        EXPECT_EQ(response.xml(), text);
    }
    XmlResponse response(encoded(text, QStringConverter::Utf16LE, false) + '\x20', "");
    EXPECT_EQ(response.getText("/a"), "1");
    EXPECT_EQ(response.xml(), text);
}

TEST(XmlResponseBytes, loneContinuationByteIsIllFormed)
{
    XmlResponse response("<a>\x80</a>", "");
    EXPECT_EQ(response.getText("/a"), QStringLiteral(u"\uFFFD"));
    EXPECT_EQ(response.get("/a").element.text(), QStringLiteral(u"\uFFFD"));
}

TEST(XmlResponseBytes, illFormedNameIsTheSameInPathAndNode)
{
    XmlResponse response("<r><a\xFF>1</a\xFF></r>", "/r");
    EXPECT_EQ(response.get("").children[0].name, QStringLiteral(u"a\uFFFD"));
    EXPECT_EQ(response.getText(QStringLiteral(u"/a\uFFFD")), "1");
}

TEST(XmlResponseBytes, nulBecomesAReplacementCharacterWhereItStands)
{
    XmlResponse response(QByteArray("<r><a>x\0y</a><b>ok</b></r>", 26), "/r");
    EXPECT_EQ(response.getText("/a"), QStringLiteral(u"x\uFFFDy"));
    EXPECT_EQ(response.get("/a").element.text(), QStringLiteral(u"x\uFFFDy"));
    EXPECT_EQ(response.getText("/b"), "ok");
}

TEST(XmlResponseBytes, nulsBehindTheReplyAreIgnored)
{
    // The terminator of a C string, or the rest of a buffer of fixed size.
    XmlResponse response(QByteArray("<a>1</a>") + QByteArray(100, '\0'), "");
    EXPECT_EQ(response.getText("/a"), "1");
    XmlResponse withLineEnd(QByteArray("<a>1</a>\r\n\0", 11), "");
    EXPECT_EQ(withLineEnd.getText("/a"), "1");
}

TEST(XmlResponseBytes, nulsBesideTheDocumentElementAreText)
{
    EXPECT_FALSE(XmlResponse(QByteArray("\0<a>1</a>", 9), "").get("/a").valid);
    EXPECT_FALSE(XmlResponse(QByteArray("<a>1</a>\0<b/>", 13), "").get("/a").valid);
    EXPECT_FALSE(XmlResponse(QByteArray("<a>1</a>\0\n", 10), "").get("/a").valid);
}

TEST(XmlResponseBytes, referenceToNoCharacterHarmsItsOwnValueOnly)
{
    for (const char *reference :
         {"&#0;", "&#x0;", "&#000;", "&#xD800;", "&#xDFFF;", "&#55296;", "&#x110000;", "&#1114112;", "&#4294967296;",
          "&#4294967361;", "&#x100000041;", "&#18446744073709551681;", "&#x10000000000000041;",
          "&#99999999999999999999999999999999999999999;"}) {
        XmlResponse response(QByteArray("<r k='x@y'>@<a>x@y@</a><!--@-->@<b><![CDATA[@]]></b><e>&lt;ok&#65;</e></r>")
                                 .replace('@', reference),
                             "/r");
        EXPECT_EQ(response.getText("/a"), QStringLiteral(u"x\uFFFDy\uFFFD")) << reference;
        EXPECT_EQ(response.get("/a").element.text(), QStringLiteral(u"x\uFFFDy\uFFFD")) << reference;
        EXPECT_EQ(response.getAttribute("k", ""), QStringLiteral(u"x\uFFFDy")) << reference;
        EXPECT_EQ(response.get("").element.attribute("k"), QStringLiteral(u"x\uFFFDy")) << reference;
        EXPECT_EQ(response.getText("/b"), reference) << "in a CDATA section it is none";
        EXPECT_EQ(response.getText("/e"), "<okA") << reference;
    }
}

TEST(XmlResponseBytes, otherReferencesReadTheSameBesideOneToNoCharacter)
{
    const std::pair<QByteArray, const char16_t *> rows[] = {
        {"&lt;&gt;&amp;&quot;&apos;", u"<>&\"'"},
        {"&amp;lt;", u"&lt;"},
        {"&amp;#65;", u"&#65;"},
        {"&#65;&#x42;&#x6a;&#x6A;", u"ABjj"},
        {"&#1;&#9;&#10;&#13;", u"\u0001\t\n\r"},
        {"&#xE9;&#x4E2D;&#x10FFFF;&#xFFFE;", u"\u00E9\u4E2D\U0010FFFF\uFFFE"},
        {"&nbsp;&LT;&lt &gt", u"&nbsp;&LT;&lt &gt"},
        {"&#;&#x;&#X41;&#65&#x41&#-1;&# 65;&#6 5;&#xG;", u"&#;&#x;&#X41;&#65&#x41&#-1;&# 65;&#6 5;&#xG;"},
        {"& && &&lt;", u"& && &<"},
        {"a\r\nb&#13;\r", u"a\nb\r\n"},
    };
    for (const auto &[written, text] : rows) {
        for (const char *other : {"", "<b>&#0;</b>"}) {
            XmlResponse response("<r><a>x" + written + "</a>" + other + "</r>", "/r");
            EXPECT_EQ(response.getText("/a"), 'x' + QStringView(text).toString()) << written.constData() << other;
        }
    }
}

TEST(XmlResponseBytes, nullAndEmptyHaveNoText)
{
    EXPECT_TRUE(XmlResponse(QByteArray(), "").xml().isEmpty());
    EXPECT_TRUE(XmlResponse("", "/a").xml().isEmpty());
}

TEST(XmlResponseBytes, htmlIsReadWhenWellFormed)
{
    XmlResponse page("<!DOCTYPE html>\n<html lang='en'><head><title>401 Unauthorized</title></head>"
                     "<body>a&nbsp;b<br/></body></html>",
                     "");
    EXPECT_EQ(page.getText("/html/head/title"), "401 Unauthorized");
    EXPECT_EQ(page.getText("/html/body"), "a&nbsp;b");

    XmlResponse sloppy("<html><head><title>401</title><meta></head><body><br></body></html>", "");
    EXPECT_FALSE(sloppy.get("/html/head/title").valid);
    EXPECT_TRUE(sloppy.xml().startsWith("<html>"));
}

} // namespace
