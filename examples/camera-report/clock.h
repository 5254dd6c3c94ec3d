#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <optional>

namespace client {

/// What a device tells of its clock: the answer to GetSystemDateAndTime, for which the library has no record.
struct DeviceClock
{
    QDateTime utc;          ///< not valid if the device tells none that there can be
    QDateTime local;        ///< the same by the clock on the wall
    QString zone;           ///< as POSIX writes it, such as "CET-1CEST,M3.5.0,M10.5.0/3"
    QString daylightSaving; ///< "true" or "false", as the device says it
    QString source;         ///< how the clock is set: "NTP" or "Manual"

    /// Seconds by which the clock is ahead of this machine's, at which the request was sent at \a sent and the answer
    /// came at \a received. 0 if the two agree, as far as the time between tells. Nothing if there is no time.
    std::optional<qint64> secondsAhead(const QDateTime &sent, const QDateTime &received) const;
};

/// The clock of a device beside that of this machine.
struct ClockReading
{
    DeviceClock clock;
    std::optional<qint64> secondsAhead; ///< see DeviceClock::secondsAhead()
    bool isUsed = false;                ///< whether proofs of who asks go by it
};

/// The clock in the reply \a bytes.
DeviceClock clockIn(const QByteArray &bytes);

/// "3 seconds", "5 minutes", "2 hours" or "7 days", whichever says it shortly. \a seconds is not negative.
QString duration(qint64 seconds);

} // namespace client
