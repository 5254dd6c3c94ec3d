#include "given.h"

#include <algorithm>

namespace client {

Given::Given(const vorn::XmlResponse &response, const vorn::XmlResponseNode &node)
    : m_response(response)
    , m_node(node)
    , m_name('/' + node.name)
{
}

QString Given::text(const char *path)
{
    return m_response.getText(m_node, m_name + path);
}

QString Given::attribute(const char *attribute) const
{
    const QString name = attribute;
    return m_node.element.hasAttribute(name) ? m_node.element.attribute(name) : QString();
}

std::optional<int> Given::number(const char *path, int value)
{
    bool isNumber = false;
    text(path).trimmed().toInt(&isNumber);
    return isNumber ? std::optional<int>(value) : std::nullopt;
}

std::optional<bool> Given::flag(const char *path)
{
    return flagOf(text(path));
}

bool Given::isOneOf(const char *path, std::initializer_list<const char *> known)
{
    const QString value = text(path);
    return std::any_of(known.begin(), known.end(), [&](const char *candidate) { return value == candidate; });
}

std::optional<bool> flagOf(const QString &text)
{
    const QString value = text.trimmed();
    if (value == "true" || value == "1")
        return true;
    if (value == "false" || value == "0")
        return false;
    return std::nullopt;
}

} // namespace client
