#pragma once

#include <vorn/util/xmlresponse.h>

#include <QtCore/QString>

#include <initializer_list>
#include <optional>

namespace client {

/// Tells what an entry of a list in a reply holds itself from what its record holds by default: the record of a device
/// that says nothing of its MTU has one of 1500.
class Given
{
public:
    /// The entry \a node of \a response.
    Given(const vorn::XmlResponse &response, const vorn::XmlResponseNode &node);

    /// The text at \a path below the entry; null if it is not there.
    QString text(const char *path);

    /// The value of the entry's own \a attribute; null if it is not there.
    QString attribute(const char *attribute) const;

    /// \a value, if the entry has a number at \a path.
    std::optional<int> number(const char *path, int value);

    /// The boolean at \a path, in each of the forms that XML Schema has.
    std::optional<bool> flag(const char *path);

    /// Whether the text at \a path is one of \a known.
    bool isOneOf(const char *path, std::initializer_list<const char *> known);

private:
    vorn::XmlResponse m_response;
    vorn::XmlResponseNode m_node;
    QString m_name; ///< that of the node, with a slash
};

/// The boolean that \a text stands for in XML Schema; nothing if it is none.
std::optional<bool> flagOf(const QString &text);

} // namespace client
