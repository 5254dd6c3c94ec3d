#pragma once

namespace client {

/// What --help answers.
extern const char *const helpText;

} // namespace client
