#include "lines.h"

#include <algorithm>

namespace test {
namespace {

/// The line of \a text in which \a position stands, or as much of it around there as one wants to read.
std::string lineAround(const QByteArray &text, qsizetype position)
{
    constexpr qsizetype reach = 100;
    if (position == text.size() && (text.isEmpty() || text.endsWith('\n')))
        return "  (the end)";
    const qsizetype lineStart = position == 0 ? 0 : text.lastIndexOf('\n', position - 1) + 1;
    const qsizetype found = text.indexOf('\n', position);
    const qsizetype lineEnd = found < 0 ? text.size() : found;
    const qsizetype start = std::max(lineStart, position - reach);
    const qsizetype end = std::min(lineEnd, position + reach);
    return (start > lineStart ? "  ..." : "  ") + text.mid(start, end - start).toStdString()
           + (end < lineEnd ? "..." : "") + (found < 0 ? " (without a line end)" : "");
}

} // namespace

testing::AssertionResult sameLines(const QByteArray &actual, const QByteArray &expected)
{
    if (actual == expected)
        return testing::AssertionSuccess();
    const auto different = std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
    const qsizetype position = different.first - actual.begin();
    return testing::AssertionFailure() << "line " << actual.first(position).count('\n') + 1 << " is\n"
                                       << lineAround(actual, position) << "\nbut should be\n"
                                       << lineAround(expected, position);
}

} // namespace test
