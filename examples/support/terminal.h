#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace example {

/// \a text on one line, with all that could disturb or deceive on a terminal written as an escape sequence. What a
/// device says is shown no other way.
QString printable(const QString &text);

/// \a object on one line that ends with its line end, with the same written as escape sequences of JSON.
QString jsonLine(const QJsonObject &object);

/// Writes \a text to standard output. Whether all went out is asked once, by isOutputWritten().
void print(const QString &text);

/// Writes \a line to standard error.
void note(const QString &line);

/// Whether everything that was printed so far has gone out.
bool isOutputWritten();

} // namespace example
