#pragma once

/// \file
/// Records, lists of them and enumerators for QDebug:
///
/// \code
/// qDebug() << relay; // OnvifRelayOutput(token: "R1", mode: Monostable, delayTime: "PT5S", idleState: Open)
/// \endcode
///
/// A list or a map of records stands in brackets or braces. A null record says that it is null, and only that if it
/// holds nothing. Include this header before what first asks whether a record can be printed, such as the first
/// QVariant that holds one.

#include <vorn/onvif/compare.h>
#include <vorn/onvif/fields.h>

#include <QtCore/QDebug>
#include <QtCore/QString>

#include <type_traits>

/// \cond
namespace vorn::detail {

template <typename Value>
void print(QDebug &debug, const Value &value, bool withName);

/// Prints what stands between the parts of a whole, but not before the first of them.
class Separator
{
public:
    explicit Separator(QDebug &debug)
        : m_debug(debug)
    {
    }

    void operator()()
    {
        m_debug << m_text;
        m_text = ", ";
    }

private:
    QDebug &m_debug;
    const char *m_text = "";
};

template <typename Record>
void printRecord(QDebug &debug, const Record &record, bool withName)
{
    Separator separate(debug);
    debug << (withName ? recordName<Record>.data() : "") << '(';
    if constexpr (std::is_base_of_v<OnvifDataStructure, Record>) {
        if (record.isNull()) {
            separate();
            debug << "null";
            if (sameContent(record, Record())) {
                debug << ')';
                return;
            }
        }
    }
    visitFields(
        [&](QLatin1StringView name, const auto &field) {
            separate();
            debug << name.data() << ": ";
            print(debug, field, false);
        },
        record);
    debug << ')';
}

template <typename Value>
void print(QDebug &debug, const Value &value, bool withName)
{
    if constexpr (hasFields<Value>) {
        printRecord(debug, value, withName);
    } else if constexpr (isList<Value>) {
        Separator separate(debug);
        debug << '[';
        for (const auto &element : value) {
            separate();
            print(debug, element, withName);
        }
        debug << ']';
    } else if constexpr (isMap<Value>) {
        Separator separate(debug);
        debug << '{';
        for (auto entry = value.begin(); entry != value.end(); ++entry) {
            separate();
            print(debug, entry.key(), withName);
            debug << ": ";
            print(debug, entry.value(), withName);
        }
        debug << '}';
    } else if constexpr (hasEnumerators<Value>) {
        if (const QLatin1StringView name = enumeratorName(value); !name.isNull())
            debug << name.data();
        else
            debug << static_cast<int>(value);
    } else if constexpr (std::is_same_v<Value, const char *>) {
        debug << QString::fromUtf8(value);
    } else {
        debug << value;
    }
}

/// Whether \a Type is derived from the container \a Container of Qt's, which Qt prints, and holds records.
template <typename Type, typename Container, typename Content>
inline constexpr bool isDerivedFrom = hasFields<Content> && !std::is_same_v<Type, Container>;

template <typename Type>
constexpr bool isContainerOfRecords()
{
    if constexpr (isList<Type>)
        return isDerivedFrom<Type, QList<typename Type::value_type>, typename Type::value_type>;
    else if constexpr (isMap<Type>)
        return isDerivedFrom<Type, QMultiMap<typename Type::key_type, typename Type::mapped_type>,
                             typename Type::mapped_type>;
    else
        return false;
}

} // namespace vorn::detail

/// \endcond

namespace vorn {

/// Prints \a value: a record, one of the lists or maps of records that vorn declares, or an enumerator.
template <typename Value>
std::enable_if_t<hasFields<Value> || hasEnumerators<Value> || detail::isContainerOfRecords<Value>(), QDebug>
operator<<(QDebug debug, const Value &value)
{
    const QDebugStateSaver saver(debug);
    debug.nospace();
    detail::print(debug, value, true);
    return debug;
}

} // namespace vorn
