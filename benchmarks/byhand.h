#pragma once

#include <QtCore/QStringList>
#include <QtXml/QDomDocument>

#include <string>
#include <vector>

namespace bench {

/// What a client would write itself over `QDomDocument` to get at the values of one kind of reply: where its entries
/// are, and which values each of them has.
class ByHand
{
public:
    /// The entries are at \a entries below the document element: "Body/GetProfilesResponse/Profiles". The path of a
    /// value starts at its entry and ends in the name of an element or in "@" and that of an attribute.
    ByHand(const std::string &entries, const std::vector<std::string> &values);

    /// Appends the values of all entries to \a values. Returns the number of entries.
    qsizetype read(const QDomDocument &document, QStringList &values) const;

private:
    QStringList m_entries;
    std::vector<QStringList> m_values;
};

} // namespace bench
