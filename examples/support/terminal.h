#pragma once

#include <QtCore/QString>

namespace example {

/// \a text on one line, with all that could disturb or deceive on a terminal written as an escape sequence. What a
/// device says is shown no other way.
QString printable(const QString &text);

/// Writes \a text to standard output. Whether all went out is asked once, by isOutputWritten().
void print(const QString &text);

/// Writes \a line to standard error.
void note(const QString &line);

/// Whether everything that was printed has gone out.
bool isOutputWritten();

} // namespace example
