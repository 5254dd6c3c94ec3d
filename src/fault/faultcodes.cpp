// Checks the tables of faultcodes.h while they are compiled.

#include "faultcodes.h"

namespace vorn::faultcodes {
namespace {

/// Values are matched by their end from the last colon on, which is only right for literals of this form.
constexpr bool isEndOfValue(std::string_view literal)
{
    return literal.size() > 1 && literal.front() == ':' && literal.find(':', 1) == std::string_view::npos;
}

/// Whether each type stands in one row only, and each literal too. An empty literal is none.
template <typename Row>
constexpr bool isUnambiguous(Rows<Row> rows)
{
    for (const Row &row : rows) {
        for (const Row *other = rows.begin(); other != &row; ++other) {
            if (other->type == row.type || (!row.literal.empty() && other->literal == row.literal))
                return false;
        }
        if (!row.literal.empty() && !isEndOfValue(row.literal))
            return false;
    }
    return true;
}

constexpr bool allAreUnambiguous()
{
    for (const SoapCode &code : soapCodes) {
        if (!isUnambiguous(code.subcodes))
            return false;
        for (const Subcode &subcode : code.subcodes) {
            if (!isUnambiguous(subcode.specificCodes))
                return false;
        }
    }
    return isUnambiguous(Rows(soapCodes));
}

static_assert(allAreUnambiguous());

constexpr int lastFaultType = OnvifFault::UnknownTransportError;
constexpr int lastSubcodeType = OnvifFault::CriticalError;
constexpr int lastSpecificType = OnvifFault::OptionalActionNotSupported;

template <typename Row, typename Type>
constexpr int rowsFor(Rows<Row> rows, Type type)
{
    int count = 0;
    for (const Row &row : rows)
        count += row.type == type ? 1 : 0;
    return count;
}

constexpr bool eachFaultTypeStandsInOneRow()
{
    for (int i = 0; i <= lastFaultType; ++i) {
        const auto type = static_cast<OnvifFault::FaultType>(i);
        if (rowsFor(Rows(soapCodes), type) + rowsFor(Rows(httpCodes), type) + rowsFor(Rows(transportCodes), type)
                + rowsFor(Rows(otherCodes), type)
            != 1)
            return false;
    }
    return true;
}

static_assert(eachFaultTypeStandsInOneRow());

constexpr bool isInATable(OnvifFault::SubcodeType type)
{
    int rows = 0;
    for (const SoapCode &code : soapCodes)
        rows += rowsFor(code.subcodes, type);
    return rows > 0;
}

constexpr bool isInATable(OnvifFault::SpecificType type)
{
    int rows = 0;
    for (const SoapCode &code : soapCodes) {
        for (const Subcode &subcode : code.subcodes)
            rows += rowsFor(subcode.specificCodes, type);
    }
    return rows > 0;
}

/// Whether all types from 1, which is the first after the one for none, to \a last stand in some table.
template <typename Type>
constexpr bool allAreInATable(int last)
{
    for (int i = 1; i <= last; ++i) {
        if (!isInATable(static_cast<Type>(i)))
            return false;
    }
    return true;
}

static_assert(allAreInATable<OnvifFault::SubcodeType>(lastSubcodeType));
static_assert(allAreInATable<OnvifFault::SpecificType>(lastSpecificType));

} // namespace
} // namespace vorn::faultcodes
