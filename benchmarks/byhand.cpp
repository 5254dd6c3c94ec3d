#include "byhand.h"

#include <QtXml/QDomElement>

namespace bench {
namespace {

bool isCalled(const QDomElement &element, const QString &name)
{
    const QString qualified = element.tagName();
    return QStringView(qualified).sliced(qualified.indexOf(u':') + 1) == name;
}

QDomElement named(QDomElement element, const QString &name)
{
    while (!element.isNull() && !isCalled(element, name))
        element = element.nextSiblingElement();
    return element;
}

QString valueAt(QDomElement element, const QStringList &path)
{
    for (const QString &step : path) {
        if (step.startsWith(u'@'))
            return element.attribute(step.sliced(1));
        element = named(element.firstChildElement(), step);
    }
    return element.text();
}

} // namespace

ByHand::ByHand(const std::string &entries, const std::vector<std::string> &values)
    : m_entries(QString::fromStdString(entries).split(u'/'))
{
    for (const std::string &value : values)
        m_values.push_back(QString::fromStdString(value).split(u'/'));
}

qsizetype ByHand::read(const QDomDocument &document, QStringList &values) const
{
    QDomElement entry = document.documentElement();
    for (const QString &step : m_entries)
        entry = named(entry.firstChildElement(), step);
    qsizetype count = 0;
    for (; !entry.isNull(); entry = named(entry.nextSiblingElement(), m_entries.last())) {
        for (const QStringList &value : m_values)
            values.append(valueAt(entry, value));
        ++count;
    }
    return count;
}

} // namespace bench
