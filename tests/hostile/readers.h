#pragma once

#include <QtCore/QByteArray>

#include <functional>
#include <memory>
#include <vector>

namespace hostile {

/// Makes one record of a reply.
struct Reader
{
    const char *name;
    std::function<std::shared_ptr<const void>(const QByteArray &reply)> read; ///< gives the record
};

/// One for each constructor that takes bytes. Those of a response and of a fault come with their queries.
const std::vector<Reader> &readers();

/// Runs all of them; destroys each record before the next is made.
void readAll(const QByteArray &reply);

} // namespace hostile
