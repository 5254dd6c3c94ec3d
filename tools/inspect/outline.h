#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QString>

#include <utility>
#include <variant>
#include <vector>

namespace inspect {

/// How an outline is coloured: what is written before and after. Plain by default.
struct Palette
{
    QString heading;
    QString name;
    QString end;
};

/// A value of a record as it is shown: null, a boolean, a number, a text, named fields or a list.
class Outline
{
public:
    using Field = std::pair<QString, Outline>;
    using Fields = std::vector<Field>;
    using List = std::vector<Outline>;

    Outline() = default; ///< null
    Outline(bool value);
    Outline(int value);
    Outline(unsigned int value);
    Outline(double value);
    Outline(const QString &value);
    Outline(Fields fields);
    Outline(List list);
    Outline(const char *) = delete; // would be taken for a boolean

    /// Lines for a person to read, indented by \a depth levels; each begins with its line end.
    QString toLines(const Palette &palette, int depth) const;

    /// Fields of one name become an array.
    QJsonValue toJson() const;

private:
    std::variant<std::monostate, bool, int, unsigned int, double, QString, Fields, List> m_value;
};

/// \a text with all that could disturb or deceive on a terminal written as an escape sequence.
QString printable(const QString &text);

/// The same in quotation marks, with those of the text escaped too.
QString quoted(const QString &text);

/// \a object on one line, with what printable() escapes written as escape sequences of JSON.
QString jsonLine(const QJsonObject &object);

} // namespace inspect
