#include "clock.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QTimeZone>

namespace client {
namespace {

/// The time in the element \a name. Not valid if there is none, or none that four digits hold the year of: others
/// have no form that a token could give them.
QDateTime timeIn(vorn::XmlResponse &response, const QString &name)
{
    const auto number = [&](const char *path) {
        bool isNumber = false;
        const int value = response.getText('/' + name + path).trimmed().toInt(&isNumber);
        return isNumber ? value : -1;
    };
    const QDate date(number("/Date/Year"), number("/Date/Month"), number("/Date/Day"));
    const QTime time(number("/Time/Hour"), number("/Time/Minute"), number("/Time/Second"));
    const bool hasForm = date.isValid() && time.isValid() && date.year() >= 1 && date.year() <= 9999;
    return hasForm ? QDateTime(date, time, QTimeZone::utc()) : QDateTime();
}

} // namespace

std::optional<qint64> DeviceClock::secondsAhead(const QDateTime &sent, const QDateTime &received) const
{
    if (!utc.isValid())
        return std::nullopt;
    // The device leaves out the fractions of its second.
    if (received.secsTo(utc) <= 0 && utc.secsTo(sent) <= 1)
        return 0;
    return sent.addMSecs(sent.msecsTo(received) / 2).secsTo(utc);
}

DeviceClock clockIn(const QByteArray &bytes)
{
    vorn::XmlResponse response(bytes, "/Envelope/Body/GetSystemDateAndTimeResponse/SystemDateAndTime");
    DeviceClock clock;
    clock.utc = timeIn(response, "UTCDateTime");
    clock.local = timeIn(response, "LocalDateTime");
    clock.zone = response.getText("/TimeZone/TZ");
    clock.daylightSaving = response.getText("/DaylightSavings").trimmed();
    clock.source = response.getText("/DateTimeType").trimmed();
    return clock;
}

QString duration(qint64 seconds)
{
    const auto counted = [](qint64 count, const char *unit) {
        return QString("%1 %2%3").arg(count).arg(unit, count == 1 ? "" : "s");
    };
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 60 * minute;
    constexpr qint64 day = 24 * hour;
    if (seconds < 2 * minute)
        return counted(seconds, "second");
    if (seconds < 2 * hour)
        return counted((seconds + minute / 2) / minute, "minute");
    if (seconds < 2 * day)
        return counted((seconds + hour / 2) / hour, "hour");
    return counted((seconds + day / 2) / day, "day");
}

} // namespace client
