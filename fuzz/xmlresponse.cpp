// The access by path: no reply may crash it, and all roads to a value have to agree.

#include "children.h"
#include "properties.h"
#include "question.h"
#include "require.h"
#include "sameview.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QTextStream>

#include <algorithm>
#include <cstddef>
#include <cstdint>

using fuzz::require;
using vorn::XmlElementViews;
using vorn::XmlResponse;
using vorn::XmlResponseNode;

namespace {

/// How far checkFrom() goes: each step makes all nodes below anew.
constexpr int maximumSteps = 16;

/// The element of \a node with all that it holds.
QString written(const XmlResponseNode &node)
{
    QString text;
    QTextStream stream(&text);
    node.element.save(stream, -1);
    return text;
}

bool isSameNode(const XmlResponseNode &node, const XmlResponseNode &other)
{
    return node.valid == other.valid && node.name == other.name && node.children.size() == other.children.size()
           && written(node) == written(other);
}

/// All that \a response answers for \a path, as one text.
QString answers(XmlResponse &response, const QString &path)
{
    QString all = written(response.get(path)) + response.getText(path);
    all += QString::number(response.getUInt(path)) + QString::number(int(response.getBool(path)));
    all += response.getAttribute(QStringLiteral("token"), path);
    const QList<XmlResponseNode> nodes = response.getAll(path);
    for (const XmlResponseNode &node : nodes)
        all += written(node);
    for (const vorn::XmlElementView view : response.viewAll(path))
        all += view.text();
    return all + response.view(path).attribute("token");
}

/// What is asked below \a start for \a path is what \a node says.
void checkBelow(XmlResponse &response, const XmlResponseNode &start, const QString &path, const XmlResponseNode &node)
{
    require(isSameNode(response.get(start, path), node));
    require(response.getText(start, path) == node.element.text());
    require(response.getUInt(start, path) == node.element.text().toUInt());
}

/// The views at \a path show what \a node and the other nodes at the path hold.
void checkViews(XmlResponse &response, const QString &path, const XmlResponseNode &node)
{
    require(fuzz::isSame(response.view(path), node));
    const XmlElementViews views = response.viewAll(path);
    const QList<XmlResponseNode> nodes = response.getAll(path);
    require(std::equal(views.begin(), views.end(), nodes.begin(), nodes.end(), fuzz::isSame));
}

/// By way of the element above that at \a path, unless there is none.
void checkByParent(XmlResponse &response, const QString &path, const XmlResponseNode &node)
{
    const qsizetype slash = path.lastIndexOf('/');
    if (slash <= 0)
        return;
    const XmlResponseNode parent = response.get(path.left(slash));
    checkBelow(response, parent, '/' + parent.name + path.mid(slash), node);
    const QList<XmlResponseNode> all = response.getAll(path);
    const QList<XmlResponseNode> children = fuzz::childrenNamed(parent, path.mid(slash + 1));
    require(std::equal(all.begin(), all.end(), children.begin(), children.end(), isSameNode));

    const vorn::XmlElementView parentView = response.view(path.left(slash));
    require(parentView.at(path.mid(slash)) == response.view(path));
    const XmlElementViews views = response.viewAll(path);
    const XmlElementViews childViews = parentView.children(path.mid(slash + 1));
    require(std::equal(views.begin(), views.end(), childViews.begin(), childViews.end()));
}

void checkElement(XmlResponse &response, const QString &path)
{
    const XmlResponseNode node = response.get(path);
    const QString text = node.element.text();
    const QString word = text.trimmed();
    require(node.valid != node.element.isNull());
    require(response.getText(path) == text && (node.valid || response.getText(path).isNull()));
    require(response.getUInt(path) == text.toUInt());
    require(response.getBool(path) == (word == QLatin1String("true") || word == QLatin1String("1")));
    require(response.getAll(path).isEmpty() != node.valid);
    if (!node.name.isEmpty())
        checkBelow(response, node, '/' + node.name, node);
    checkViews(response, path, node);
    checkByParent(response, path, node);
    const QDomNamedNodeMap attributes = node.element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QString name = attributes.item(i).nodeName();
        require(response.getAttribute(name, path) == node.element.attribute(name));
    }
}

/// Goes down the document along the first children, and asks for each element on the way.
void checkFrom(XmlResponse &response, QString path)
{
    XmlResponseNode node = response.get(path);
    for (int step = 0; node.valid && step < maximumSteps; ++step) {
        checkElement(response, path);
        if (node.children.isEmpty())
            break;
        node = XmlResponseNode(node.children.constFirst());
        path += '/' + node.name;
    }
}

/// A response that starts at a part of \a path answers for the rest of it as \a response does for the whole.
void checkRoots(XmlResponse &response, const fuzz::Question &question)
{
    const QString expected = answers(response, question.path);
    for (const qsizetype end : {question.path.indexOf('/', 1), question.path.lastIndexOf('/'), question.path.size()}) {
        if (end <= 0)
            continue;
        XmlResponse rooted(question.reply, question.path.left(end));
        require(answers(rooted, question.path.mid(end)) == expected);
        XmlResponse copy(rooted);
        require(copy.xml() == rooted.xml() && answers(copy, question.path.mid(end)) == expected);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const fuzz::Question question =
        fuzz::questionFrom(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));

    XmlResponse response(question.reply, QString());
    checkElement(response, question.path);
    checkRoots(response, question);
    for (const char *start : {"/Envelope", "/html", "/Fault", "/a"})
        checkFrom(response, QLatin1String(start));
    fuzz::checkLists(question.reply);
    return 0;
}
