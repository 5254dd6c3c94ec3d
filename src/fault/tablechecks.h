#pragma once

#include "faultcodes.h"

#include <string_view>

/// What must be true of the tables of faultcodes.h, which faultcodes.cpp has the compiler check.
namespace vorn::faultcodes {

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

/// Whether \a codes and each table below them are unambiguous.
constexpr bool allAreUnambiguous(Rows<SoapCode> codes)
{
    for (const SoapCode &code : codes) {
        if (!isUnambiguous(code.subcodes))
            return false;
        for (const Subcode &subcode : code.subcodes) {
            if (!isUnambiguous(subcode.specificCodes))
                return false;
        }
    }
    return isUnambiguous(codes);
}

template <typename Row, typename Type>
constexpr int rowsFor(Rows<Row> rows, Type type)
{
    int count = 0;
    for (const Row &row : rows)
        count += row.type == type ? 1 : 0;
    return count;
}

/// Whether each type up to \a last stands in one row of one of \a tables.
template <typename... Row>
constexpr bool eachStandsInOneRow(OnvifFault::FaultType last, Rows<Row>... tables)
{
    for (int i = 0; i <= last; ++i) {
        const auto type = static_cast<OnvifFault::FaultType>(i);
        if ((rowsFor(tables, type) + ...) != 1)
            return false;
    }
    return true;
}

constexpr bool isBelow(Rows<SoapCode> codes, OnvifFault::SubcodeType type)
{
    int rows = 0;
    for (const SoapCode &code : codes)
        rows += rowsFor(code.subcodes, type);
    return rows > 0;
}

constexpr bool isBelow(Rows<SoapCode> codes, OnvifFault::SpecificType type)
{
    int rows = 0;
    for (const SoapCode &code : codes) {
        for (const Subcode &subcode : code.subcodes)
            rows += rowsFor(subcode.specificCodes, type);
    }
    return rows > 0;
}

/// Whether each type from 1, which is the first after the one for none, to \a last stands in a table below \a codes.
template <typename Type>
constexpr bool allAreBelow(Rows<SoapCode> codes, Type last)
{
    for (int i = 1; i <= last; ++i) {
        if (!isBelow(codes, static_cast<Type>(i)))
            return false;
    }
    return true;
}

} // namespace vorn::faultcodes
