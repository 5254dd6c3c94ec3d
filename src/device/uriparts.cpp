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
    // The way through UTF-8 changes nothing in well-formed text, but that it drops a byte order mark.
    const bool isDecoded = !part.contains(u'%') && part.isValidUtf16() && !part.startsWith(QChar::ByteOrderMark);
    return isDecoded ? part.toString() : QUrl::fromPercentEncoding(part.toUtf8());
}

} // namespace vorn
