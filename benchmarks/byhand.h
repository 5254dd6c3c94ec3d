#pragma once

#include <QtCore/QStringList>
#include <QtXml/QDomDocument>
#include <QtXml/QDomElement>

#include <string>
#include <vector>

namespace bench {

/// What a client would write itself over `QDomDocument` to get at the values of one kind of reply: it goes through the
/// elements once, and takes the values of those that it knows.
class ByHand
{
public:
    /// The entries are at \a entries below the document element: "Body/GetProfilesResponse/Profiles", with a "|"
    /// between names where the last step has several. The path of a value starts at its entry and ends in the name of
    /// an element or in "@" and that of an attribute.
    ByHand(const std::string &entries, const std::vector<std::string> &values);

    /// Appends the values of all entries to \a values. Returns the number of entries.
    qsizetype read(const QDomDocument &document, QStringList &values) const;

private:
    struct Step
    {
        QString name;
        bool hasText = false;
        QStringList attributes;
        std::vector<Step> children;
    };

    static Step &childOf(Step &step, const QString &name);
    static void readElement(const QDomElement &element, const Step &step, QStringList &values);

    QStringList m_path;
    QStringList m_entryNames;
    Step m_entry;
};

} // namespace bench
