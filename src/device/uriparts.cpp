#include "uriparts.h"

#include <QtCore/QString>
#include <QtCore/QUrl>

#include <algorithm>

namespace vorn {

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
    return QUrl::fromPercentEncoding(part.toUtf8());
}

} // namespace vorn
