#include "uriparts.h"

#include <QtCore/QString>

#include <algorithm>

namespace vorn {
namespace {

/// The value of a hexadecimal digit; of another character its code.
unsigned int hexadecimalValue(char c)
{
    const auto code = static_cast<unsigned char>(c);
    if (code >= '0' && code <= '9')
        return code - unsigned{'0'};
    const unsigned int lower = code | unsigned{' '};
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : code;
}

} // namespace

QStringView partsFrom(QStringView uri, int index)
{
    for (; index > 0; --index) {
        const auto slash = std::find(uri.begin(), uri.end(), u'/');
        if (slash == uri.end())
            return {};
        uri = QStringView(slash + 1, uri.end());
    }
    return uri;
}

QStringView part(QStringView uri, int index)
{
    const QStringView parts = partsFrom(uri, index);
    return QStringView(parts.begin(), std::find(parts.begin(), parts.end(), u'/'));
}

QString percentDecoded(QStringView part)
{
    const auto staysAsItIs = [](QChar character) { return character.unicode() < 0x80 && character != u'%'; };
    if (std::all_of(part.begin(), part.end(), staysAsItIs)) // nearly always, and cheaper
        return part.toString();
    // As QUrl::fromPercentEncoding() of Qt 6.4. Of "%zz" and its like, other versions make something else.
    const QByteArray utf8 = part.toUtf8();
    QByteArray decoded;
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        if (utf8[i] == '%' && i + 2 < utf8.size()) {
            decoded += static_cast<char>(hexadecimalValue(utf8[i + 1]) << 4 | hexadecimalValue(utf8[i + 2]));
            i += 2;
        } else {
            decoded += utf8[i];
        }
    }
    return QString::fromUtf8(decoded);
}

} // namespace vorn
