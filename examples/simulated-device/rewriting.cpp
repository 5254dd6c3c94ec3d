#include "rewriting.h"

#include <QtCore/QRegularExpression>

#include <functional>

namespace simulator {
namespace {

/// \a reply with \a replacement of each match of \a pattern in its place.
QByteArray replaced(const QByteArray &reply, const QRegularExpression &pattern,
                    const std::function<QString(const QRegularExpressionMatch &)> &replacement)
{
    // Latin-1 has a character for each byte, so that the bytes stay what they are whatever they mean.
    const QString text = QString::fromLatin1(reply);
    QString result;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : pattern.globalMatch(text)) {
        result += text.mid(end, match.capturedStart() - end) + replacement(match);
        end = match.capturedEnd();
    }
    return (result + text.mid(end)).toLatin1();
}

QByteArray element(const QByteArray &name, const QByteArray &content)
{
    return '<' + name + '>' + content + "</" + name + '>';
}

QByteArray element(const QByteArray &name, int value)
{
    return element(name, QByteArray::number(value));
}

} // namespace

QByteArray withAddressesAt(const QByteArray &reply, const QByteArray &origin)
{
    static const QRegularExpression xAddrs("(<(?:[\\w.-]+:)?XAddrs?>)([^<]*)");
    static const QRegularExpression host("\\bhttp://[^/\\s]*");
    return replaced(reply, xAddrs, [&](const QRegularExpressionMatch &match) {
        const QByteArray addresses =
            replaced(match.captured(2).toLatin1(), host, [&](const auto &) { return QString::fromLatin1(origin); });
        return match.captured(1) + QString::fromLatin1(addresses);
    });
}

QByteArray withText(const QByteArray &reply, const char *name, const QString &value)
{
    const QRegularExpression pattern(QString("(<(?:[\\w.-]+:)?%1>)[^<]*").arg(name));
    return replaced(reply, pattern, [text = QString::fromLatin1(escaped(value))](const auto &match) {
        return match.captured(1) + text;
    });
}

QByteArray withTime(const QByteArray &reply, const QDateTime &now)
{
    static const QRegularExpression times("(<((?:[\\w.-]+:)?)UTCDateTime\\b[^>]*>).*?(</\\2UTCDateTime\\s*>)"
                                          "|<((?:[\\w.-]+:)?LocalDateTime)\\b.*?</\\4\\s*>",
                                          QRegularExpression::DotMatchesEverythingOption);
    return replaced(reply, times, [&](const QRegularExpressionMatch &match) {
        if (match.captured(1).isEmpty())
            return QString();
        return match.captured(1) + QString::fromLatin1(timeElements(now, match.captured(2).toLatin1()))
               + match.captured(3);
    });
}

QByteArray escaped(const QString &text)
{
    QByteArray result;
    for (const char32_t character : text.toHtmlEscaped().toUcs4()) {
        if (character < 0x80)
            result += static_cast<char>(character);
        else
            result += "&#" + QByteArray::number(static_cast<uint>(character)) + ';';
    }
    return result;
}

QByteArray timeElements(const QDateTime &now, const QByteArray &prefix)
{
    const QDate date = now.date();
    const QTime time = now.time();
    return element(prefix + "Time", element(prefix + "Hour", time.hour()) + element(prefix + "Minute", time.minute())
                                        + element(prefix + "Second", time.second()))
           + element(prefix + "Date", element(prefix + "Year", date.year()) + element(prefix + "Month", date.month())
                                          + element(prefix + "Day", date.day()));
}

} // namespace simulator
