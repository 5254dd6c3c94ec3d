#pragma once

#include <vorn/util/xmlresponse.h>

#include <QtCore/QString>

#include <initializer_list>
#include <optional>
#include <vector>

namespace client {

/// Tells what an entry of a list in a reply holds itself from what its record holds by default: the record of a device
/// that says nothing of its MTU has one of 1500.
class Given
{
public:
    /// \a entry has to stay as long.
    explicit Given(vorn::XmlElementView entry);

    /// The same for what stands at \a path below the entry; there is nothing in it if that is missing.
    Given at(const char *path) const;

    /// The same for each element right below the entry.
    std::vector<Given> children() const;

    /// Whether the entry is there.
    explicit operator bool() const { return !m_entry.isNull(); }

    /// The text at \a path below the entry; null if it is not there.
    QString text(const char *path) const;

    /// The value of the entry's own \a attribute; null if it is not there.
    QString attribute(const char *attribute) const;

    /// The number at \a path.
    std::optional<int> number(const char *path) const;

    /// \a value, if the entry has a number at \a path.
    std::optional<int> number(const char *path, int value) const;
    std::optional<double> decimal(const char *path, double value) const; ///< As above.

    /// The boolean at \a path, in each of the forms that XML Schema has.
    std::optional<bool> flag(const char *path) const;

    /// Whether the text at \a path is one of \a known.
    bool isOneOf(const char *path, std::initializer_list<const char *> known) const;

private:
    vorn::XmlElementView m_entry;
};

/// The elements at \a path in \a response, of which a list has \a count records.
std::vector<vorn::XmlElementView> entriesAt(const vorn::XmlResponse &response, const char *path, qsizetype count);

/// The boolean that \a text stands for in XML Schema; nothing if it is none.
std::optional<bool> flagOf(const QString &text);

} // namespace client
