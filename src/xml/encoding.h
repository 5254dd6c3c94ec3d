#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace vorn {

/// A reply in the two forms that are needed of it: as text for the caller and as UTF-8 for the parser.
struct DecodedReply
{
    QString text;

    /// Free of NUL characters. May hold ill-formed sequences, which the conversion of each value takes care of.
    QByteArray utf8;
};

DecodedReply decodeReply(const QByteArray &bytes);

} // namespace vorn
