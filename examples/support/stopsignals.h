#pragma once

namespace example {

/// Catches SIGINT and SIGTERM from now on. The descriptor that is returned becomes readable when one has come, so that
/// an event loop can wait for it like for anything else. -1 if the system refuses.
int catchStopSignals();

} // namespace example
