#pragma once

#include "recordelement.h"

#include <vorn/onvif/bases.h>

#include <QtCore/QLatin1String>
#include <QtCore/QString>

#include <initializer_list>
#include <type_traits>

namespace vorn {

/// What is read from the children of one name: made only in the call that reads, as it points to what that call's
/// arguments hold.
struct ChildReader
{
    QLatin1String name;
    void *target;
    void (*read)(const RecordElement &child, void *target);
};

/// Walks over the children of \a element in document order and reads each whose name one of \a readers has, exactly as
/// it is written. Of several children with one name each is read, so that the last one counts.
void readChildren(const RecordElement &element, std::initializer_list<ChildReader> readers);

/// The same, but of several children with one name only the first is read, as a path leads to it. There are at
/// most 32 readers.
void readFirstChildren(const RecordElement &element, std::initializer_list<ChildReader> readers);

// How an element becomes the value of a field: its text, converted as the type of the field says. A text that is no
// number of this type gives 0; a boolean is true for the text "true" alone. A source file may add a type
// that no other reads with an overload of its own: static in this namespace, as field() does not look into unnamed
// ones.
void readValue(const RecordElement &element, QString &value);
void readValue(const RecordElement &element, int &value);
void readValue(const RecordElement &element, unsigned int &value);
void readValue(const RecordElement &element, double &value);
void readValue(const RecordElement &element, bool &value);

/// The record that \a element holds: its fields are read by its readValue().
template <typename Record>
Record recordFrom(const RecordElement &element)
{
    Record record;
    record.OnvifDataStructure::operator=(OnvifDataStructure(element.isNull()));
    readValue(element, record);
    return record;
}

/// Children called \a name are read into \a target.
template <typename Field>
ChildReader field(const char *name, Field &target)
{
    return {QLatin1String(name), &target,
            [](const RecordElement &child, void *value) { readValue(child, *static_cast<Field *>(value)); }};
}

/// The children of children called \a name are read by \a readers.
inline ChildReader group(const char *name, std::initializer_list<ChildReader> &&readers)
{
    return {QLatin1String(name), &readers, [](const RecordElement &child, void *group) {
                readChildren(child, *static_cast<std::initializer_list<ChildReader> *>(group));
            }};
}

/// Children called \a name are handed to \a read.
template <typename Function>
ChildReader nested(const char *name, Function &&read)
{
    return {QLatin1String(name), &read, [](const RecordElement &child, void *function) {
                (*static_cast<std::remove_reference_t<Function> *>(function))(child);
            }};
}

} // namespace vorn
