#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QStringView>
#include <QtCore/QVarLengthArray>

#include <cstdint>
#include <limits>
#include <type_traits>

namespace vorn {

// How a text becomes a number. QString decides that a little differently from version to version, so it is decided
// here: as QString::toInt(), toUInt() and toDouble() of Qt 6.4 do. A text that is no number, or none of the type, gives
// 0.

/// Decimal digits with a sign or without, and blanks of ASCII around both.
template <typename Integer, typename Character>
Integer toInteger(const Character *begin, const Character *end)
{
    const auto isBlank = [](Character c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    while (begin != end && isBlank(*begin))
        ++begin;
    while (begin != end && isBlank(end[-1]))
        --end;

    const bool isNegative = std::is_signed_v<Integer> && begin != end && *begin == '-';
    if (isNegative || (begin != end && *begin == '+'))
        ++begin;
    const std::int64_t limit = std::int64_t(std::numeric_limits<Integer>::max()) + (isNegative ? 1 : 0);
    std::int64_t number = 0;
    for (; begin != end; ++begin) {
        if (*begin < '0' || *begin > '9')
            return 0;
        number = 10 * number + (*begin - '0');
        if (number > limit)
            return 0;
    }
    return static_cast<Integer>(isNegative ? -number : number);
}

inline int toInt(QStringView text)
{
    return toInteger<int>(text.utf16(), text.utf16() + text.size());
}

inline int toInt(QByteArrayView utf8)
{
    return toInteger<int>(utf8.begin(), utf8.end());
}

inline unsigned int toUInt(QStringView text)
{
    return toInteger<unsigned int>(text.utf16(), text.utf16() + text.size());
}

inline unsigned int toUInt(QByteArrayView utf8)
{
    return toInteger<unsigned int>(utf8.begin(), utf8.end());
}

/// Whether the characters from \a begin to \a end, in lower case, are [sign] digits [. digits] [e [sign] digits], where
/// the digits before or behind the point may be missing, or "inf" with or without a sign, or "nan".
inline bool isDecimal(const char *begin, const char *end)
{
    const char *next = begin;
    const auto skipSign = [&] { next += next != end && (*next == '+' || *next == '-') ? 1 : 0; };
    const auto skipDigits = [&] {
        const char *const first = next;
        while (next != end && *next >= '0' && *next <= '9')
            ++next;
        return next != first;
    };
    skipSign();
    const QByteArrayView name(next, end);
    if (name == "inf" || (name == "nan" && next == begin))
        return true;
    bool hasDigits = skipDigits();
    if (next != end && *next == '.') {
        ++next;
        hasDigits = skipDigits() || hasDigits;
    }
    if (next != end && *next == 'e') {
        ++next;
        skipSign();
        hasDigits = skipDigits() && hasDigits;
    }
    return hasDigits && next == end;
}

/// The value of \a text if it isDecimal(), else 0. Letters may be of any case, U+2212 is a minus too, and white space
/// of any kind may stand around the whole. Beyond the range of double it is infinite.
inline double toDouble(QStringView text)
{
    QVarLengthArray<char, 64> number;
    for (const QChar character : text.trimmed()) {
        const char16_t c = character == u'\u2212' ? u'-' : character.unicode();
        const bool isUpper = c >= u'A' && c <= u'Z';
        number.append(c < 0x80 ? static_cast<char>(isUpper ? c - u'A' + u'a' : c) : '?');
    }
    if (!isDecimal(number.cbegin(), number.cend()))
        return 0;
    bool isInRange = false;
    const double value = QByteArrayView(number).toDouble(&isInRange);
    if (isInRange)
        return value;
    const double edge = QString::fromLatin1(number.cbegin(), number.size()).toDouble(); // infinite, or too small
    return edge == 0 ? 0 : edge;
}

/// Whether each of the characters is a digit, a point or, in the first place, a minus. What Qt makes of these is the
/// same in all versions.
inline bool isPlainDecimal(QByteArrayView utf8)
{
    if (utf8.isEmpty() || utf8.size() > 32)
        return false;
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        const char c = utf8[i];
        const bool isDigit = c >= '0' && c <= '9';
        if (!isDigit && c != '.' && (c != '-' || i > 0))
            return false;
    }
    return true;
}

inline double toDouble(QByteArrayView utf8)
{
    if (isPlainDecimal(utf8)) // as nearly all are
        return utf8.toDouble();
    if (utf8.startsWith("\xEF\xBB\xBF")) // which would be taken for a byte order mark, and is no part of a number
        return 0;
    return toDouble(QString::fromUtf8(utf8));
}

} // namespace vorn
