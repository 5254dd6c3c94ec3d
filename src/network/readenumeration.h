#pragma once

#include "core/readchildren.h"

#include <initializer_list>

namespace vorn {

/// The text that stands for a value of an enumeration.
template <typename Enumeration>
struct EnumerationText
{
    const char *text;
    Enumeration value;
};

/// Sets \a value to the one whose text \a element holds. Any other text leaves it as it was.
template <typename Enumeration>
void readEnumeration(const RecordElement &element, Enumeration &value,
                     std::initializer_list<EnumerationText<Enumeration>> texts)
{
    const QString found = element.text();
    for (const EnumerationText<Enumeration> &candidate : texts) {
        if (found == QLatin1StringView(candidate.text))
            value = candidate.value;
    }
}

} // namespace vorn
