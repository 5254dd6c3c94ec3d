#include "outline.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QLocale>
#include <QtCore/QMap>

#include <cmath>
#include <string_view>

namespace inspect {
namespace {

template <typename... Functions>
struct Overloaded : Functions...
{
    using Functions::operator()...;
};

template <typename... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

QString lineStart(int depth)
{
    return QLatin1Char('\n') + QString(qsizetype(2) * depth, QLatin1Char(' '));
}

/// Whether \a character can neither disturb nor deceive on a terminal.
bool isHarmless(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

/// Escapes what is not harmless on a terminal, and the characters of \a others.
QString escaped(const QString &text, std::u32string_view others)
{
    QString result;
    result.reserve(text.size());
    for (const char32_t character : text.toUcs4()) {
        if (character == U'\n')
            result += QLatin1String("\\n");
        else if (character == U'\r')
            result += QLatin1String("\\r");
        else if (character == U'\t')
            result += QLatin1String("\\t");
        else if (others.find(character) != std::u32string_view::npos)
            result += QLatin1Char('\\') + QChar(static_cast<char16_t>(character));
        else if (isHarmless(character))
            result += QString::fromUcs4(&character, 1);
        else
            result += QStringLiteral("\\u%1").arg(static_cast<uint>(character), 4, 16, QLatin1Char('0'));
    }
    return result;
}

} // namespace

Outline::Outline(bool value)
    : m_value(value)
{
}

Outline::Outline(int value)
    : m_value(value)
{
}

Outline::Outline(unsigned int value)
    : m_value(value)
{
}

Outline::Outline(double value)
    : m_value(value)
{
}

Outline::Outline(const QString &value)
    : m_value(value)
{
}

Outline::Outline(Fields fields)
    : m_value(std::move(fields))
{
}

Outline::Outline(List list)
    : m_value(std::move(list))
{
}

QString Outline::toLines(const Palette &palette, int depth) const
{
    const auto fieldLines = [&](const Fields &fields) {
        QString lines;
        for (const auto &[name, value] : fields) {
            lines += lineStart(depth) + palette.name + printable(name) + palette.end + QLatin1Char(':')
                     + value.toLines(palette, depth + 1);
        }
        return lines;
    };
    const auto listLines = [&](const List &list) {
        if (list.empty())
            return QStringLiteral(" none");
        QString lines;
        for (const Outline &entry : list) {
            // The first field of an entry stands behind the dash.
            const QString entryLines = entry.toLines(palette, depth + 1);
            const QString start = lineStart(depth + 1);
            lines += lineStart(depth) + QLatin1Char('-');
            lines += entryLines.startsWith(start) ? QLatin1Char(' ') + entryLines.mid(start.size()) : entryLines;
        }
        return lines;
    };
    return std::visit(
        Overloaded{
            [](std::monostate) { return QStringLiteral(" null"); },
            [](bool value) { return value ? QStringLiteral(" true") : QStringLiteral(" false"); },
            [](int value) { return QLatin1Char(' ') + QString::number(value); },
            [](unsigned int value) { return QLatin1Char(' ') + QString::number(value); },
            [](double value) { return QLatin1Char(' ') + QString::number(value, 'g', QLocale::FloatingPointShortest); },
            [](const QString &value) -> QString { return QLatin1Char(' ') + quoted(value); },
            fieldLines,
            listLines,
        },
        m_value);
}

QJsonValue Outline::toJson() const
{
    const auto object = [](const Fields &fields) -> QJsonValue {
        QMap<QString, QJsonArray> values;
        for (const auto &[name, value] : fields)
            values[name].append(value.toJson());
        QJsonObject json;
        for (auto value = values.begin(); value != values.end(); ++value)
            json.insert(value.key(), value->size() == 1 ? value->first() : QJsonValue(*value));
        return json;
    };
    const auto array = [](const List &list) -> QJsonValue {
        QJsonArray json;
        for (const Outline &entry : list)
            json.append(entry.toJson());
        return json;
    };
    return std::visit(
        Overloaded{
            [](std::monostate) { return QJsonValue(); },
            [](unsigned int value) { return QJsonValue(static_cast<qint64>(value)); },
            // JSON has no other numbers, and null means that there is no record.
            [](double value) { return std::isfinite(value) ? QJsonValue(value) : QString::number(value); },
            object,
            array,
            [](const auto &value) { return QJsonValue(value); },
        },
        m_value);
}

QString printable(const QString &text)
{
    return escaped(text, U"");
}

QString jsonLine(const QJsonObject &object)
{
    QString result;
    const QString json = QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
    for (const char32_t character : json.toUcs4()) {
        const QString text = QString::fromUcs4(&character, 1);
        if (isHarmless(character)) {
            result += text;
            continue;
        }
        for (const QChar unit : text) // JSON writes units of UTF-16
            result += QStringLiteral("\\u%1").arg(static_cast<uint>(unit.unicode()), 4, 16, QLatin1Char('0'));
    }
    return result;
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + escaped(text, U"\"\\") + QLatin1Char('"');
}

} // namespace inspect
