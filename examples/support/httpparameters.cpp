#include "httpparameters.h"

#include <QtCore/QRegularExpression>

namespace example {

const char *const httpParameterPattern = R"re([\s,]*([\w-]+)\s*=\s*(?:"((?:[^"\\]|\\.)*+)"|([^\s,"]++)))re";

QHash<QString, QByteArray> httpParameters(const QString &list)
{
    static const QRegularExpression pattern(httpParameterPattern);
    QHash<QString, QByteArray> parameters;
    for (const QRegularExpressionMatch &match : pattern.globalMatch(list))
        parameters.insert(match.captured(1).toLower(), (match.captured(2) + match.captured(3)).toLatin1());
    return parameters;
}

QByteArray httpQuoted(const QByteArray &value)
{
    return '"' + QByteArray(value).replace('\\', "\\\\").replace('"', "\\\"") + '"';
}

} // namespace example
