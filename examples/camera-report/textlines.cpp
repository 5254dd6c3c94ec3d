#include "textlines.h"

#include "support/terminal.h"

namespace client {

void Lines::heading(const QString &title, bool isEmpty)
{
    m_text += '\n' + title + '\n';
    if (isEmpty)
        line(1, "none");
}

void Lines::line(int depth, const QString &content)
{
    m_text += QString(qsizetype(2) * depth, ' ') + example::printable(content) + '\n';
}

void Lines::field(int depth, const QString &name, const QString &value)
{
    if (!value.isEmpty())
        line(depth, name + ": " + value);
}

QString joined(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(", ");
}

QString amount(int number, const char *unit)
{
    return number > 0 ? QString("%1 %2").arg(number).arg(unit) : QString();
}

QString withToken(const QString &name, const QString &token)
{
    if (name.isEmpty() || name == token)
        return token;
    return token.isEmpty() ? name : QString("%1 (%2)").arg(name, token);
}

} // namespace client
