#include "given.h"

#include <algorithm>

namespace client {

Given::Given(vorn::XmlElementView entry)
    : m_entry(entry)
{
}

Given Given::at(const char *path) const
{
    return Given(m_entry.at(path));
}

std::vector<Given> Given::children() const
{
    std::vector<Given> children;
    for (const vorn::XmlElementView child : m_entry.children())
        children.emplace_back(child);
    return children;
}

QString Given::text(const char *path) const
{
    return m_entry.at(path).text();
}

QString Given::attribute(const char *attribute) const
{
    return m_entry.attribute(attribute);
}

std::optional<int> Given::number(const char *path) const
{
    bool isNumber = false;
    const int number = text(path).trimmed().toInt(&isNumber);
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

std::optional<int> Given::number(const char *path, int value) const
{
    return number(path) ? std::optional<int>(value) : std::nullopt;
}

std::optional<double> Given::decimal(const char *path, double value) const
{
    bool isNumber = false;
    text(path).trimmed().toDouble(&isNumber);
    return isNumber ? std::optional<double>(value) : std::nullopt;
}

std::optional<bool> Given::flag(const char *path) const
{
    return flagOf(text(path));
}

bool Given::isOneOf(const char *path, std::initializer_list<const char *> known) const
{
    const QString value = text(path);
    return std::any_of(known.begin(), known.end(), [&](const char *candidate) { return value == candidate; });
}

std::vector<vorn::XmlElementView> entriesAt(const vorn::XmlResponse &response, const char *path, qsizetype count)
{
    const vorn::XmlElementViews views = response.viewAll(path);
    std::vector<vorn::XmlElementView> entries(views.begin(), views.end());
    entries.resize(static_cast<std::size_t>(count));
    return entries;
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
