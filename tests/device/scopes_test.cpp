#include "support/printing.h"

#include <vorn/onvif/scopes.h>

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

using vorn::OnvifScope;
using vorn::OnvifScopeMap;

static_assert(std::is_base_of_v<vorn::OnvifDataStructure, OnvifScope>);
static_assert(std::is_base_of_v<QMultiMap<QString, OnvifScope>, OnvifScopeMap>);
static_assert(std::is_base_of_v<vorn::OnvifResponseStructure, OnvifScopeMap>);
static_assert(std::is_same_v<std::underlying_type_t<OnvifScope::Type>, qint32>);
static_assert(std::is_convertible_v<OnvifScope, QString>);

namespace {

const QString base = "onvif://www.onvif.org/";

TEST(OnvifScopeType, hasItsValues)
{
    EXPECT_EQ(OnvifScope::Unknown, 0);
    EXPECT_EQ(OnvifScope::Fixed, 1);
    EXPECT_EQ(OnvifScope::Configurable, 2);
    EXPECT_EQ(OnvifScope::Custom, 3);
}

TEST(OnvifScope, isNullByDefault)
{
    const OnvifScope scope;
    EXPECT_TRUE(scope.isNull());
    EXPECT_EQ(scope.type, OnvifScope::Unknown);
    EXPECT_TRUE(scope.uri.isNull());
    EXPECT_TRUE(scope.key.isNull());
    EXPECT_TRUE(scope.value.isNull());
    EXPECT_TRUE(scope.toString().isNull());
}

TEST(OnvifScope, isNotNullOtherwise)
{
    EXPECT_FALSE(OnvifScope(QString()).isNull());
    EXPECT_FALSE(OnvifScope(OnvifScope::Unknown, QString()).isNull());
    EXPECT_FALSE(OnvifScope(OnvifScope::Unknown, QString(), QString()).isNull());
}

TEST(OnvifScope, takesAUriApart)
{
    const OnvifScope scope(base + "location/country/china");
    EXPECT_EQ(scope.type, OnvifScope::Custom);
    EXPECT_EQ(scope.uri, base + "location/country/china");
    EXPECT_EQ(scope.key, "location");
    EXPECT_EQ(scope.value, "country/china");
    EXPECT_EQ(static_cast<QString>(scope), "country/china");
    EXPECT_TRUE(scope.toString().isNull());
}

TEST(OnvifScope, keepsItsType)
{
    const OnvifScope scope(OnvifScope::Configurable, base + "name/Door");
    EXPECT_EQ(scope.type, OnvifScope::Configurable);
    EXPECT_EQ(scope.key, "name");
    EXPECT_EQ(scope.value, "Door");
}

struct UriRow
{
    const char *uri;
    const char16_t *key;
    const char16_t *value;
};

const UriRow uris[] = {
    {"onvif://www.onvif.org/name/My%20Camera", u"name", u"My Camera"},
    {"onvif://www.onvif.org/name/K%C3%BCche", u"name", u"K\u00FCche"},
    {"onvif://www.onvif.org/name/K\xC3\xBC%63he", u"name", u"K\u00FCche"},
    {"onvif://www.onvif.org/na%6De/x", u"name", u"x"},
    {"onvif://www.onvif.org/my%20key/a%2Fb/c", u"my key", u"a/b/c"},
    {"onvif://www.onvif.org/name/100%", u"name", u"100%"},
    {"onvif://www.onvif.org/name/%FF", u"name", u"\uFFFD"},
    {"onvif://www.onvif.org/name/", u"name", u""},
    {"onvif://www.onvif.org/name", u"name", u""},
    {"onvif://www.onvif.org/name//x", u"name", u"/x"},
    {"onvif://www.onvif.org/name/x/", u"name", u"x/"},
    {"onvif://www.onvif.org/Name/X", u"Name", u"X"},
    {"onvif://www.onvif.org/", u"", u""},
    {"onvif://www.onvif.org", u"", u""},
    {"onvif:/", u"", u""},
    {"plain", u"", u""},
    {"", u"", u""},
    {"other://elsewhere.example/name/x", u"name", u"x"},
    {"a/b/c/d/e/f", u"d", u"e/f"},
    {"////x", u"", u"x"},
};

TEST(OnvifScope, countsThePartsOfAUriAtItsSlashes)
{
    for (const UriRow &row : uris) {
        const OnvifScope scope(OnvifScope::Fixed, row.uri);
        EXPECT_EQ(scope.uri, row.uri);
        EXPECT_EQ(scope.key, QStringView(row.key).toString()) << row.uri;
        EXPECT_EQ(scope.value, QStringView(row.value).toString()) << row.uri;
    }
}

TEST(OnvifScope, badPercentSequencesDoNoHarm)
{
    for (const char *value : {"%", "%1", "a%2", "%zz", "%%%", "%E4%B8", "%00"}) {
        const OnvifScope scope(base + "name/" + value);
        EXPECT_EQ(scope.key, "name") << value;
        EXPECT_EQ(scope.uri, base + "name/" + value);
        EXPECT_FALSE(scope.value.isEmpty()) << value;
    }
    for (const char *cutShort : {"%", "%1", "a%2"})
        EXPECT_EQ(OnvifScope(base + "name/" + cutShort).value, cutShort);
}

TEST(OnvifScope, percentSequencesOfOtherCharactersReadTheSameEverywhere)
{
    const std::pair<const char *, const char16_t *> rows[] = {
        {"%G5", u"u"},      // of a character that is no digit, its code counts: 0x47 << 4 | 5
        {"%5G", u"W"},      // 5 << 4 | 0x47
        {"%zz", u"\uFFFD"}, // 0xFA
        {"%:;", u"\uFFFD"}, // 0xBB
        {"%%41", u"T1"},    // 0x25 << 4 | 4, then the rest
        {"%4%31", u"e31"},  // 4 << 4 | 0x25
        {"\u4E2D%E4%B8%AD", u"\u4E2D\u4E2D"},
        {"%EF%BB%BFx", u"x"},
    };
    for (const auto &[written, value] : rows)
        EXPECT_EQ(OnvifScope(base + "name/" + written).value, QStringView(value).toString()) << written;
}

TEST(OnvifScope, buildsAUriWithoutEncoding)
{
    const OnvifScope scope(OnvifScope::Fixed, "name", "a b");
    EXPECT_EQ(scope.uri, "onvif://www.onvif.org/name/a b");
    EXPECT_EQ(scope.key, "name");
    EXPECT_EQ(scope.value, "a b");
    EXPECT_EQ(scope.type, OnvifScope::Fixed);
}

TEST(OnvifScope, buildsAUriInOnePass)
{
    EXPECT_EQ(OnvifScope(OnvifScope::Fixed, "%2", "%1").uri, "onvif://www.onvif.org/%2/%1");
    EXPECT_EQ(OnvifScope(OnvifScope::Fixed, "%2", "%1").key, "%2");
}

TEST(OnvifScope, isCopiedMovedAndAssigned)
{
    const OnvifScope source(OnvifScope::Fixed, base + "name/x");
    const auto isSource = [](const OnvifScope &scope) {
        return !scope.isNull() && scope.type == OnvifScope::Fixed && scope.uri.endsWith("name/x") && scope.key == "name"
               && scope.value == "x";
    };
    OnvifScope copy(source);
    EXPECT_TRUE(isSource(copy));
    OnvifScope moved(std::move(copy));
    EXPECT_TRUE(isSource(moved));
    OnvifScope assigned;
    assigned = moved;
    EXPECT_TRUE(isSource(assigned));
    OnvifScope moveAssigned;
    moveAssigned = std::move(moved);
    EXPECT_TRUE(isSource(moveAssigned));
    moveAssigned = OnvifScope();
    EXPECT_TRUE(moveAssigned.isNull());
}

QByteArray scopeElement(const char *definition, const QByteArray &item)
{
    return QByteArray("<tds:Scopes><tt:ScopeDef>") + definition + "</tt:ScopeDef><tt:ScopeItem>" + item
           + "</tt:ScopeItem></tds:Scopes>";
}

QByteArray replyWith(const QByteArray &scopes)
{
    return "<s:Envelope><s:Body><tds:GetScopesResponse>" + scopes + "</tds:GetScopesResponse></s:Body></s:Envelope>";
}

const QByteArray prefix = "onvif://www.onvif.org/";

TEST(OnvifScopeMap, isEmptyByDefaultAndForOtherReplies)
{
    EXPECT_TRUE(OnvifScopeMap().isEmpty());
    EXPECT_TRUE(OnvifScopeMap().xml.isEmpty());
    EXPECT_TRUE(OnvifScopeMap(QByteArray()).isEmpty());
    EXPECT_TRUE(OnvifScopeMap("no xml").isEmpty());
    EXPECT_EQ(OnvifScopeMap("no xml").xml, "no xml");
    EXPECT_TRUE(OnvifScopeMap("<Envelope><Body><GetDPAddressesResponse><Scopes><ScopeItem>x</ScopeItem></Scopes>"
                              "</GetDPAddressesResponse></Body></Envelope>")
                    .isEmpty());
}

TEST(OnvifScopeMap, readsTypeAndUriOfEachScope)
{
    const OnvifScopeMap scopes(replyWith(scopeElement("Fixed", prefix + "type/ptz")
                                         + scopeElement("Configurable", prefix + "name/My%20Camera")));
    ASSERT_EQ(scopes.size(), 2);
    const OnvifScope ptz = scopes.value("type");
    EXPECT_EQ(ptz.type, OnvifScope::Fixed);
    EXPECT_EQ(ptz.uri, base + "type/ptz");
    EXPECT_EQ(ptz.value, "ptz");
    EXPECT_FALSE(ptz.isNull());
    EXPECT_EQ(scopes.value("name").type, OnvifScope::Configurable);
    EXPECT_EQ(scopes.value("name").value, "My Camera");
    EXPECT_EQ(scopes.value("name").uri, base + "name/My%20Camera");
}

TEST(OnvifScopeMap, definitionIsComparedExactly)
{
    for (const char *definition : {"fixed", "FIXED", " Fixed", "Fixed ", "Configurable2", "Custom", ""}) {
        const OnvifScopeMap scopes(replyWith(scopeElement(definition, prefix + "name/x")));
        EXPECT_EQ(scopes.value("name").type, OnvifScope::Unknown) << definition;
    }
}

TEST(OnvifScopeMap, newestOfAKeyComesFirst)
{
    const OnvifScopeMap scopes(replyWith(scopeElement("Fixed", prefix + "type/video_encoder")
                                         + scopeElement("Fixed", prefix + "type/audio_encoder")));
    const QList<OnvifScope> types = scopes.values("type");
    ASSERT_EQ(types.size(), 2);
    EXPECT_EQ(types[0].value, "audio_encoder");
    EXPECT_EQ(types[1].value, "video_encoder");
    EXPECT_EQ(scopes.fixedValue("type").value, "audio_encoder");
}

TEST(OnvifScopeMap, repeatedScopesAllStay)
{
    const OnvifScopeMap scopes(replyWith(scopeElement("Fixed", prefix + "name/x").repeated(3)));
    EXPECT_EQ(scopes.values("name").size(), 3);
}

TEST(OnvifScopeMap, keysAreNotDecoded)
{
    const OnvifScopeMap scopes(
        replyWith(scopeElement("Fixed", prefix + "my%20key/v") + scopeElement("Fixed", prefix + "Name/v")));
    EXPECT_EQ(scopes.keys(), QStringList({"Name", "my%20key"}));
    EXPECT_EQ(scopes.value("my%20key").key, "my key");
    EXPECT_EQ(scopes.fixedValue("my%20key").value, "v");
}

TEST(OnvifScopeMap, scopeWithoutUriHasTheEmptyKey)
{
    const OnvifScopeMap scopes(replyWith("<Scopes><ScopeDef>Fixed</ScopeDef></Scopes><Scopes/>"));
    ASSERT_EQ(scopes.values("").size(), 2);
    EXPECT_EQ(scopes.values("")[0].type, OnvifScope::Unknown);
    EXPECT_EQ(scopes.values("")[1].type, OnvifScope::Fixed);
    EXPECT_FALSE(scopes.values("")[0].isNull());
    EXPECT_TRUE(scopes.values("")[0].uri.isEmpty());
    EXPECT_TRUE(scopes.values("")[0].value.isEmpty());
}

TEST(OnvifScopeMap, foreignAuthoritiesAreReadLikeAnyOther)
{
    const OnvifScopeMap scopes(replyWith(scopeElement("Fixed", "onvif://maker.example/name/x")
                                         + scopeElement("Fixed", "http://www.onvif.org/name/y")));
    EXPECT_EQ(scopes.values("name").size(), 2);
}

TEST(OnvifScopeMapFixedValue, prefersTheLastFixedScope)
{
    const OnvifScopeMap scopes(replyWith(
        scopeElement("Fixed", prefix + "location/a") + scopeElement("Fixed", prefix + "location/b")
        + scopeElement("Configurable", prefix + "location/c") + scopeElement("Other", prefix + "location/d")));
    EXPECT_EQ(scopes.fixedValue("location").value, "b");
}

TEST(OnvifScopeMapFixedValue, isTheLastScopeIfNoneIsFixed)
{
    const OnvifScopeMap scopes(replyWith(scopeElement("Configurable", prefix + "location/a")
                                         + scopeElement("Configurable", prefix + "location/b")));
    EXPECT_EQ(scopes.fixedValue("location").value, "b");
    const OnvifScopeMap unknown(
        replyWith(scopeElement("Configurable", prefix + "name/a") + scopeElement("", prefix + "name/b")));
    EXPECT_EQ(unknown.fixedValue("name").value, "b");
}

TEST(OnvifScopeMapFixedValue, looksAtItsOwnKeyOnly)
{
    const OnvifScopeMap scopes(replyWith(scopeElement("Configurable", prefix + "name/n")
                                         + scopeElement("Fixed", prefix + "type/t")
                                         + scopeElement("Fixed", prefix + "hardware/h")));
    EXPECT_EQ(scopes.fixedValue("name").value, "n");
}

TEST(OnvifScopeMapFixedValue, missingKeyIsTheCallersError)
{
    const OnvifScopeMap scopes(replyWith(scopeElement("Fixed", prefix + "name/n")));
#ifdef QT_NO_DEBUG
    EXPECT_TRUE(scopes.fixedValue("missing").isNull());
#else
    EXPECT_DEATH(scopes.fixedValue("missing"), "OnvifScopeMap::fixedValue: \"the map does not hold the key\"");
#endif
}

TEST(OnvifScopeMap, isReadOrEmptyAtEveryLengthWithAnyPrefix)
{
    for (const char *namePrefix : {"", "tds:", "undeclared:"}) {
        const QByteArray p(namePrefix);
        const QByteArray reply = "<" + p + "Envelope><" + p + "Body><" + p + "GetScopesResponse><" + p + "Scopes><" + p
                                 + "ScopeDef>Fixed</" + p + "ScopeDef><" + p + "ScopeItem>onvif://x/name/n</" + p
                                 + "ScopeItem></" + p + "Scopes></" + p + "GetScopesResponse></" + p + "Body></" + p
                                 + "Envelope>";
        for (qsizetype size = 0; size <= reply.size(); ++size)
            EXPECT_EQ(OnvifScopeMap(reply.first(size)).size(), size == reply.size() ? 1 : 0) << namePrefix << size;
        EXPECT_EQ(OnvifScopeMap(reply).value("name").type, OnvifScope::Fixed) << namePrefix;
    }
}

TEST(OnvifScopeMap, isCopiedMovedAndAssigned)
{
    const OnvifScopeMap source(replyWith(scopeElement("Fixed", prefix + "name/n")));
    const auto isSource = [](OnvifScopeMap &scopes) {
        return scopes.size() == 1 && scopes.value("name").value == "n" && scopes.xml.contains("ScopeItem")
               && scopes.response.getText("/Scopes/ScopeDef") == "Fixed";
    };
    OnvifScopeMap copy(source);
    EXPECT_TRUE(isSource(copy));
    OnvifScopeMap moved(std::move(copy));
    EXPECT_TRUE(isSource(moved));
    OnvifScopeMap assigned;
    assigned = moved;
    EXPECT_TRUE(isSource(assigned));
    OnvifScopeMap moveAssigned;
    moveAssigned = std::move(moved);
    EXPECT_TRUE(isSource(moveAssigned));
}

} // namespace
