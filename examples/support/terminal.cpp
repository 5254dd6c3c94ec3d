#include "terminal.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QList>

#include <cstdio>

namespace example {
namespace {

bool isHarmless(char32_t character)
{
    const bool breaksTheLine = character == U'\u2028' || character == U'\u2029';
    return QChar::isPrint(character) && !breaksTheLine;
}

void write(std::FILE *stream, const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    (void)std::fwrite(utf8.constData(), 1, static_cast<std::size_t>(utf8.size()), stream);
}

} // namespace

QString printable(const QString &text)
{
    QString result;
    for (const char32_t character : text.toUcs4()) {
        if (isHarmless(character))
            result += QString::fromUcs4(&character, 1);
        else
            result += QString("\\u%1").arg(static_cast<uint>(character), 4, 16, QLatin1Char('0'));
    }
    return result;
}

QString jsonLine(const QJsonObject &object)
{
    QString result;
    // What is not harmless stands inside of texts alone. JSON writes it in units of UTF-16.
    for (const char32_t character : QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)).toUcs4()) {
        const QString text = QString::fromUcs4(&character, 1);
        if (isHarmless(character)) {
            result += text;
            continue;
        }
        for (const QChar unit : text)
            result += QString("\\u%1").arg(static_cast<uint>(unit.unicode()), 4, 16, QLatin1Char('0'));
    }
    return result + '\n';
}

void print(const QString &text)
{
    write(stdout, text);
}

void note(const QString &line)
{
    write(stderr, line + '\n');
}

bool isOutputWritten()
{
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

} // namespace example
