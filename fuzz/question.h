#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace fuzz {

/// What an input asks of which reply.
struct Question
{
    QString path;
    QByteArray reply;
};

/// An input that starts with a slash is a path, a line end and a reply. Any other is a reply; its path is empty.
inline Question questionFrom(const QByteArray &input)
{
    const qsizetype lineEnd = input.indexOf('\n');
    if (!input.startsWith('/') || lineEnd < 0)
        return {QString(), input};
    return {QString::fromUtf8(input.first(lineEnd)), input.sliced(lineEnd + 1)};
}

} // namespace fuzz
