#pragma once

#include <QtCore/QByteArray>
#include <gtest/gtest.h>

namespace test {

/// Whether \a actual and \a expected are the same text. If not, it says the first line that differs, and no other:
/// texts may be megabytes.
testing::AssertionResult sameLines(const QByteArray &actual, const QByteArray &expected);

} // namespace test
