#pragma once

#include "byhand.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <functional>
#include <string>
#include <vector>

namespace bench {

/// What the library may cost, in instructions, as a multiple of `QDomDocument::setContent` on the same bytes. What a
/// record costs whatever is in its reply weighs more in a small one.
struct Limits
{
    double large; ///< of 2 KB and more
    double small;
};

inline double limitFor(const Limits &limits, qsizetype size)
{
    return size >= 2048 ? limits.large : limits.small;
}

/// A kind of reply and the two ways to its values.
struct Kind
{
    std::string record;
    QString operation; ///< the replies are in files of this name
    Limits limits;
    ByHand byHand;
    std::function<qsizetype(const QByteArray &reply)> read; ///< from the bytes to the record and on to its destruction;
                                                            ///< returns the number of entries
};

const std::vector<Kind> &kinds();

} // namespace bench
