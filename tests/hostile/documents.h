#pragma once

#include <QtCore/QByteArray>

#include <vector>

namespace hostile {

/// A reply that is made to hurt, of any size.
struct Document
{
    const char *name;                    ///< what there are so many of, such as "siblings"
    qsizetype count;                     ///< of them, at full size
    QByteArray (*make)(qsizetype count); ///< the reply with \a count of them

    /// Whether the records say of \a reply, made with \a count, what they promise.
    bool (*isReadRight)(const QByteArray &reply, qsizetype count);
};

/// All documents. The size of each grows as its count does.
const std::vector<Document> &documents();

} // namespace hostile
