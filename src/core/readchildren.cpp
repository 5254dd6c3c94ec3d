#include "readchildren.h"

#include <algorithm>
#include <cstdint>

namespace vorn {
namespace {

/// Calls \a read with each child of \a element and the reader for its name.
template <typename Read>
void visitRead(const RecordElement &element, std::initializer_list<ChildReader> readers, const Read &read)
{
    element.visitChildren([&](const auto &name, const RecordElement &child) {
        const auto hasName = [&name](const ChildReader &reader) { return name == reader.name; };
        const ChildReader *reader = std::find_if(readers.begin(), readers.end(), hasName);
        if (reader != readers.end())
            read(*reader, child);
    });
}

} // namespace

void readChildren(const RecordElement &element, std::initializer_list<ChildReader> readers)
{
    visitRead(element, readers,
              [](const ChildReader &reader, const RecordElement &child) { reader.read(child, reader.target); });
}

void readFirstChildren(const RecordElement &element, std::initializer_list<ChildReader> readers)
{
    Q_ASSERT(readers.size() <= 32);
    std::uint32_t done = 0;
    visitRead(element, readers, [&](const ChildReader &reader, const RecordElement &child) {
        const std::uint32_t bit = std::uint32_t(1) << (&reader - readers.begin());
        if ((done & bit) == 0)
            reader.read(child, reader.target);
        done |= bit;
    });
}

void readValue(const RecordElement &element, QString &value)
{
    value = element.text();
}

void readValue(const RecordElement &element, int &value)
{
    value = element.toInt();
}

void readValue(const RecordElement &element, unsigned int &value)
{
    value = element.toUInt();
}

void readValue(const RecordElement &element, double &value)
{
    value = element.toDouble();
}

void readValue(const RecordElement &element, bool &value)
{
    value = element.hasText(QLatin1String("true"));
}

} // namespace vorn
