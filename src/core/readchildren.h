#pragma once

#include <vorn/util/xmlresponse.h>

#include <QtCore/QLatin1String>
#include <QtCore/QString>

#include <initializer_list>
#include <type_traits>

namespace vorn {

/// What is read from the children of one name: made by field(), group() or nested(), in the call of readChildren()
/// only.
struct ChildReader
{
    QLatin1StringView name;
    void *target;
    void (*read)(const XmlResponseNode &child, void *target);
};

/// Walks over the children of \a node in document order and reads each whose name one of \a readers has, exactly as it
/// is written. Of several children with one name each is read, so that the last one counts.
void readChildren(const XmlResponseNode &node, std::initializer_list<ChildReader> readers);

// How an element becomes the value of a field: its text, converted as the type of the field says. A text that is no
// number of this type gives 0; a boolean is true for the text "true" alone. A source file may add a type
// that no other reads with an overload of its own: static in this namespace, as field() does not look into unnamed
// ones.
void readValue(const XmlResponseNode &element, QString &value);
void readValue(const XmlResponseNode &element, int &value);
void readValue(const XmlResponseNode &element, unsigned int &value);
void readValue(const XmlResponseNode &element, double &value);
void readValue(const XmlResponseNode &element, bool &value);

/// A record that an element holds replaces the one that was there.
template <typename Record, typename = std::enable_if_t<std::is_constructible_v<Record, const XmlResponseNode &>>>
void readValue(const XmlResponseNode &element, Record &record)
{
    record = Record(element);
}

/// Children called \a name are read into \a target.
template <typename Field>
ChildReader field(const char *name, Field &target)
{
    return {QLatin1StringView(name), &target,
            [](const XmlResponseNode &child, void *value) { readValue(child, *static_cast<Field *>(value)); }};
}

/// The children of children called \a name are read by \a readers.
inline ChildReader group(const char *name, std::initializer_list<ChildReader> &&readers)
{
    return {QLatin1StringView(name), &readers, [](const XmlResponseNode &child, void *group) {
                readChildren(child, *static_cast<std::initializer_list<ChildReader> *>(group));
            }};
}

/// Children called \a name are handed to \a read.
template <typename Function>
ChildReader nested(const char *name, Function &&read)
{
    return {QLatin1StringView(name), &read, [](const XmlResponseNode &child, void *function) {
                (*static_cast<std::remove_reference_t<Function> *>(function))(child);
            }};
}

} // namespace vorn
