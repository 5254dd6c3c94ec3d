#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSet>

#include <chrono>

namespace simulator {

/// The nonces that a device has given out for Digest authentication of HTTP. Each has a count of its own, and an end:
/// after some time, or when it has been used often enough.
class Nonces
{
public:
    /// What a request is worth whose digest is right.
    enum class Verdict {
        Good,
        Replayed, ///< this use of the nonce has been seen
        Stale,    ///< the nonce is at its end, or is not known
    };

    /// Each nonce is good for \a uses requests within \a life.
    Nonces(int uses, std::chrono::seconds life);

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
    std::chrono::seconds m_life;
    QHash<QByteArray, Issued> m_issued;
    QList<QByteArray> m_inOrder; ///< the oldest first
};

} // namespace simulator
