// The encodings that a reply may declare, as Qt has them of ICU: the same in all versions of both.

#include "support/printing.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QStringDecoder>
#include <gtest/gtest.h>

using vorn::XmlResponse;

namespace {

struct EncodingRow
{
    const char *name;
    const char *bytes;
    const char16_t *text;
};

const EncodingRow encodings[] = {
    {"ISO-8859-1", "caf\xE9 \xDC\xDF", u"caf\u00E9 \u00DC\u00DF"},
    {"ISO-8859-2",
     "\xA3\xF3"
     "d\xBC",
     u"\u0141\u00F3d\u017A"},
    {"ISO-8859-3",
     "\xA1"
     "al",
     u"\u0126al"},
    {"ISO-8859-4", "\xAA\xB9", u"\u0112\u0161"},
    {"ISO-8859-5", "\xBA\xD0\xDC\xD5\xE0\xD0", u"\u041A\u0430\u043C\u0435\u0440\u0430"},
    {"ISO-8859-6", "\xE3\xC7", u"\u0643\u0627"},
    {"ISO-8859-7", "\xEA\xDC\xEC\xE5\xF1\xE1", u"\u03BA\u03AC\u03BC\u03B5\u03C1\u03B1"},
    {"ISO-8859-8", "\xEE\xF6\xEC", u"\u05DE\u05E6\u05DC"},
    {"ISO-8859-9", "\xF0\xFD\xFE", u"\u011F\u0131\u015F"},
    {"ISO-8859-10", "\xA2\xBA", u"\u0112\u0161"},
    {"ISO-8859-13", "\xFE\xEB", u"\u017E\u0117"},
    {"ISO-8859-14", "\xF0", u"\u0175"},
    {"ISO-8859-15", "5 \xA4", u"5 \u20AC"},
    {"windows-1250", "\xF8\x9A", u"\u0159\u0161"},
    {"windows-1251", "\xCA\xE0\xEC\xE5\xF0\xE0", u"\u041A\u0430\u043C\u0435\u0440\u0430"},
    {"windows-1252", "5 \x80 \x93x\x94", u"5 \u20AC \u201Cx\u201D"},
    {"windows-1253", "\xEA\xDC\xEC", u"\u03BA\u03AC\u03BC"},
    {"windows-1254", "\xF0\xFD\xFE", u"\u011F\u0131\u015F"},
    {"windows-1255", "\xEE\xF6", u"\u05DE\u05E6"},
    {"windows-1256", "\xDF\xC7", u"\u0643\u0627"},
    {"windows-1257", "\xFE\xEB", u"\u017E\u0117"},
    {"windows-1258", "\xF0\xFD", u"\u0111\u01B0"},
    {"KOI8-R", "\xEB\xC1\xCD\xC5\xD2\xC1", u"\u041A\u0430\u043C\u0435\u0440\u0430"},
    {"KOI8-U", "\xB7\xD6\xC1", u"\u0407\u0436\u0430"},
    {"IBM437", "\x82\xB1", u"\u00E9\u2592"},
    {"IBM850", "\x82", u"\u00E9"},
    {"IBM852", "\xFD", u"\u0159"},
    {"IBM866", "\x8A\xA0", u"\u041A\u0430"},
    {"macintosh", "\x8E", u"\u00E9"},
    {"x-mac-cyrillic", "\x8A\xE0", u"\u041A\u0430"},
    {"TIS-620", "\xA1\xC5", u"\u0E01\u0E25"},
    {"GB2312", "\xC9\xE3\xCF\xF1\xBB\xFA", u"\u6444\u50CF\u673A"},
    {"GBK",
     "\x94z\xCF\xF1\x99"
     "C",
     u"\u651D\u50CF\u6A5F"},
    {"GB18030",
     "\xC9\xE3\xCF\xF1\xBB\xFA \xA8\xB9 \x94"
     "9\xFC"
     "6",
     u"\u6444\u50CF\u673A \u00FC \U0001F600"},
    {"HZ-GB-2312", "~{VP~}", u"\u4E2D"},
    {"Big5", "\xC4\xE1\xBCv\xBE\xF7", u"\u651D\u5F71\u6A5F"},
    {"Big5-HKSCS", "\xC4\xE1\xBCv\xBE\xF7", u"\u651D\u5F71\u6A5F"},
    {"EUC-JP", "\xA5\xAB\xA5\xE1\xA5\xE9", u"\u30AB\u30E1\u30E9"},
    {"Shift_JIS", "\x83J\x83\x81\x83\x89", u"\u30AB\u30E1\u30E9"},
    {"windows-31j", "\x83J\x87@", u"\u30AB\u2460"},
    {"ISO-2022-JP", "\x1B$B%+%a%i\x1B(B", u"\u30AB\u30E1\u30E9"},
    {"EUC-KR", "\xC4\xAB\xB8\xDE\xB6\xF3", u"\uCE74\uBA54\uB77C"},
    {"windows-949",
     "\xC4\xAB\x8C"
     "c",
     u"\uCE74\uB620"},
    {"ISO-2022-KR",
     "\x1B$)C\x0E"
     "D+\x0F",
     u"\uCE74"},
    {"UTF-7", "caf+AOk-", u"caf\u00E9"},
};

TEST(XmlResponseEncodings, areReadAsDeclared)
{
    if (!QStringDecoder("GB2312").isValid())
        GTEST_SKIP() << "This Qt was built without ICU and knows few encodings.";
    for (const auto &[name, bytes, text] : encodings) {
        XmlResponse response("<?xml version='1.0' encoding='" + QByteArray(name) + "'?><a>" + bytes + "</a>", "");
        EXPECT_EQ(response.getText("/a"), QStringView(text).toString()) << name;
    }
}

TEST(XmlResponseEncodings, haveTheCharactersOfTheirNewestEdition)
{
    if (!QStringDecoder("GB2312").isValid())
        GTEST_SKIP() << "This Qt was built without ICU and knows few encodings.";
    for (const char *name : {"GB18030", "gb18030", "windows-54936"}) {
        XmlResponse response(
            "<?xml version='1.0' encoding='" + QByteArray(name)
                + "'?><a>\xA3\xA0|\xA6\xD9\xA6\xDA\xA6\xDB\xA6\xDC\xA6\xDD\xA6\xDE\xA6\xDF\xA6\xEC\xA6\xED"
                  "\xA6\xF3|\xFE\x59\xFE\x61\xFE\x66\xFE\x67\xFE\x6D\xFE\x7E\xFE\x90\xFE\xA0|\xC9\xE3</a>",
            "");
        EXPECT_EQ(response.getText("/a"),
                  QStringLiteral(u"\u3000|\uFE10\uFE12\uFE11\uFE13\uFE14\uFE15\uFE16\uFE17\uFE18\uFE19|"
                                 u"\u9FB4\u9FB5\u9FB6\u9FB7\u9FB8\u9FB9\u9FBA\u9FBB|\u6444"))
            << name;
    }
}

TEST(XmlResponseEncodings, haveACharacterForAByteThatIsNoneOfTheirs)
{
    if (!QStringDecoder("GB2312").isValid())
        GTEST_SKIP() << "This Qt was built without ICU and knows few encodings.";
    const EncodingRow rows[] = {
        {"US-ASCII", "x\x80", u"x\uFFFD"},
        {"GB18030", "\x80|\x81\x80\x80|\x81\x30\x80|\x81\x30\x81\x80|\x81\x7F\x80|\xA2\xE3",
         u"\uFFFD|\u4E90\uFFFD|\uFFFD0\uFFFD|\uFFFD0\u4E90|\uFFFD\u007F\uFFFD|\u20AC"},
        {"windows-1253", "x\xD2", u"x\uFFFD"},
        {"GB2312", "x\xFF", u"x\u001A"},
        {"EUC-JP", "x\xFF", u"x\u001A"},
        {"Shift_JIS", "x\xFD", u"x\u001A"},
    };
    for (const auto &[name, bytes, text] : rows) {
        XmlResponse response("<?xml version='1.0' encoding='" + QByteArray(name) + "'?><a>" + bytes + "</a>", "");
        EXPECT_EQ(response.getText("/a"), QStringView(text).toString()) << name;
    }
}

} // namespace
