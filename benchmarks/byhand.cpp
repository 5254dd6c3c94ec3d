#include "byhand.h"

#include <algorithm>

namespace bench {
namespace {

QString localName(const QDomElement &element)
{
    const QString qualified = element.tagName();
    return qualified.sliced(qualified.indexOf(u':') + 1);
}

QDomElement childCalled(const QDomElement &parent, const QString &name)
{
    QDomElement child = parent.firstChildElement();
    while (!child.isNull() && localName(child) != name)
        child = child.nextSiblingElement();
    return child;
}

} // namespace

ByHand::ByHand(const std::string &entries, const std::vector<std::string> &values)
    : m_path(QString::fromStdString(entries).split(u'/'))
    , m_entryNames(m_path.takeLast().split(u'|'))
{
    for (const std::string &value : values) {
        QStringList path = QString::fromStdString(value).split(u'/');
        const QString last = path.takeLast();
        Step *step = &m_entry;
        for (const QString &name : std::as_const(path))
            step = &childOf(*step, name);
        if (last.startsWith(u'@'))
            step->attributes.append(last.sliced(1));
        else
            childOf(*step, last).hasText = true;
    }
}

ByHand::Step &ByHand::childOf(Step &step, const QString &name)
{
    for (Step &child : step.children) {
        if (child.name == name)
            return child;
    }
    return step.children.emplace_back(Step{name, false, {}, {}});
}

void ByHand::readElement(const QDomElement &element, const Step &step, QStringList &values)
{
    for (const QString &attribute : step.attributes)
        values.append(element.attribute(attribute));
    if (step.hasText)
        values.append(element.text());
    if (step.children.empty())
        return;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString name = localName(child);
        const auto known = std::find_if(step.children.begin(), step.children.end(),
                                        [&name](const Step &candidate) { return candidate.name == name; });
        if (known != step.children.end())
            readElement(child, *known, values);
    }
}

qsizetype ByHand::read(const QDomDocument &document, QStringList &values) const
{
    QDomElement parent = document.documentElement();
    for (const QString &name : m_path)
        parent = childCalled(parent, name);
    qsizetype count = 0;
    for (QDomElement entry = parent.firstChildElement(); !entry.isNull(); entry = entry.nextSiblingElement()) {
        if (!m_entryNames.contains(localName(entry)))
            continue;
        readElement(entry, m_entry, values);
        ++count;
    }
    return count;
}

} // namespace bench
