#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace client {

/// Lines of text that are safe to show.
class Lines
{
public:
    void heading(const QString &title, bool isEmpty = false);
    void line(int depth, const QString &content);

    /// A line for a value, unless the device gave none.
    void field(int depth, const QString &name, const QString &value);

    QString text() const { return m_text; }

private:
    QString m_text;
};

/// What of \a parts is not empty, with commas.
QString joined(QStringList parts);

/// A number with its unit; empty if the device gave none.
QString amount(int number, const char *unit);

/// "a (b)", or only one of them if the other adds nothing.
QString withToken(const QString &name, const QString &token);

} // namespace client
