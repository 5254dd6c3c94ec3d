#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSet>

namespace simulator {

/// The nonces that a device has given out for Digest authentication of HTTP. Each has a count of its own, and an end:
/// after five minutes, or when it has been used often enough.
class Nonces
{
public:
    /// What a request is worth whose digest is right.
    enum class Verdict {
        Good,
        Replayed, ///< this use of the nonce has been seen
        Stale,    ///< the nonce is at its end, or is not known
    };

    /// Each nonce is good for \a uses requests.
    explicit Nonces(int uses);

    /// A new one.
    QByteArray issue();

    /// Uses \a nonce for the request that calls itself the one of number \a count, in hexadecimal digits.
    Verdict use(const QByteArray &nonce, const QByteArray &count);

private:
    struct Issued
    {
        QDeadlineTimer end;
        QSet<uint> counts; ///< that have been used
    };

    int m_uses;
    QHash<QByteArray, Issued> m_issued;
    QList<QByteArray> m_inOrder; ///< the oldest first
};

} // namespace simulator
