#include "replyname.h"

#include <QtCore/QByteArray>
#include <QtCore/QUrl>

namespace example {

QString replyFileName(const QString &action, const QString &variant)
{
    if (variant.isEmpty())
        return action + ".xml";
    constexpr qsizetype longest = 100; // a system has its limit, and a device may send tokens of any length
    return QString("%1.%2.xml").arg(action, QString::fromLatin1(QUrl::toPercentEncoding(variant).left(longest)));
}

} // namespace example
