#pragma once

#include <QtCore/QByteArray>

#include <functional>
#include <vector>

namespace hostile {

/// Makes one record of a reply, and destroys it.
struct Reader
{
    const char *name;
    std::function<void(const QByteArray &reply)> read;
};

/// One for each constructor that takes bytes. Those of a response and of a fault come with their queries.
const std::vector<Reader> &readers();

/// Runs all of them.
void readAll(const QByteArray &reply);

} // namespace hostile
