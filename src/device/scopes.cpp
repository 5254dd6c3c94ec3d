#include "core/readchildren.h"
#include "uriparts.h"

#include <vorn/onvif/scopes.h>

#include <utility>

namespace vorn {
namespace {

using namespace Qt::StringLiterals;

OnvifScope::Type typeByDefinition(const QString &definition)
{
    if (definition == "Fixed"_L1)
        return OnvifScope::Fixed;
    if (definition == "Configurable"_L1)
        return OnvifScope::Configurable;
    return OnvifScope::Unknown;
}

} // namespace

OnvifScope::OnvifScope() = default;

OnvifScope::OnvifScope(const QString &scopeUri)
    : OnvifScope(Custom, scopeUri)
{
}

OnvifScope::OnvifScope(Type scopeType, const QString &scopeUri)
    : OnvifDataStructure(false)
    , type(scopeType)
    , uri(scopeUri)
{
    const QStringView parts = partsFrom(uri, categoryPart);
    key = percentDecoded(part(parts, 0));
    value = percentDecoded(partsFrom(parts, valuePart - categoryPart));
}

OnvifScope::OnvifScope(Type scopeType, const QString &scopeKey, const QString &scopeValue)
    : OnvifDataStructure(false)
    , type(scopeType)
    , uri(u"onvif://www.onvif.org/%1/%2"_s.arg(scopeKey, scopeValue))
    , key(scopeKey)
    , value(scopeValue)
{
}

OnvifScope::OnvifScope(const OnvifScope &other) = default;
OnvifScope::OnvifScope(OnvifScope &&other) noexcept = default;
OnvifScope &OnvifScope::operator=(const OnvifScope &other) = default;
OnvifScope &OnvifScope::operator=(OnvifScope &&other) noexcept = default;
OnvifScope::~OnvifScope() = default;

OnvifScope::operator QString() const
{
    return value;
}

OnvifScopeMap::OnvifScopeMap() = default;

OnvifScopeMap::OnvifScopeMap(const QByteArray &bytes)
    : OnvifResponseStructure(bytes, u"/Envelope/Body/GetScopesResponse"_s)
{
    const auto elements = elementsAt(response, u"/Scopes"_s);
    for (const RecordElement element : elements) {
        QString definition;
        QString uri;
        readFirstChildren(element, {field("ScopeDef", definition), field("ScopeItem", uri)});
        const OnvifScope scope(typeByDefinition(definition), uri);
        const QStringView category = part(uri, categoryPart); // not decoded, unlike the key of the scope
        insert(category == scope.key ? scope.key : category.toString(), scope);
    }
}

OnvifScopeMap::OnvifScopeMap(const OnvifScopeMap &other) = default;
OnvifScopeMap::OnvifScopeMap(OnvifScopeMap &&other) noexcept = default;
OnvifScopeMap &OnvifScopeMap::operator=(const OnvifScopeMap &other) = default;
OnvifScopeMap &OnvifScopeMap::operator=(OnvifScopeMap &&other) noexcept = default;
OnvifScopeMap::~OnvifScopeMap() = default;

OnvifScope OnvifScopeMap::fixedValue(const QString &categoryKey) const
{
    const auto [begin, end] = std::as_const(*this).equal_range(categoryKey);
    Q_ASSERT_X(begin != end, "OnvifScopeMap::fixedValue", "the map does not hold the key");
    for (auto scope = begin; scope != end; ++scope) {
        if (scope->type == OnvifScope::Fixed)
            return *scope;
    }
    return begin != end ? *begin : OnvifScope();
}

} // namespace vorn
