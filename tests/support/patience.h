#pragma once

namespace test {

/// For how many milliseconds a program is waited for that takes a moment, on a machine that has much else to do.
constexpr int patience = 120000;

} // namespace test
