// The access by path: no reply may crash it, and all roads to a value have to agree.

#include "require.h"

#include <vorn/util/xmlresponse.h>

#include <cstddef>
#include <cstdint>

using fuzz::require;
using vorn::XmlResponse;
using vorn::XmlResponseNode;

namespace {

void checkElement(XmlResponse &response, const QString &path)
{
    const XmlResponseNode node = response.get(path);
    require(node.valid != node.element.isNull());
    require(response.getText(path) == node.element.text());
    require(response.getText(node, '/' + node.name) == node.element.text() || node.name.isEmpty());
    require(response.getUInt(path) == node.element.text().toUInt());
    require(response.getAll(path).isEmpty() != node.valid);
    const QDomNamedNodeMap attributes = node.element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QString name = attributes.item(i).nodeName();
        require(response.getAttribute(name, path) == node.element.attribute(name));
    }
}

/// Goes down the document along the first children, and asks for each element on the way.
void checkFrom(XmlResponse &response, QString path)
{
    for (XmlResponseNode node = response.get(path); node.valid;) {
        checkElement(response, path);
        if (node.children.isEmpty())
            break;
        node = XmlResponseNode(node.children.constFirst());
        path += '/' + node.name;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    // The first line is a path too.
    const QString drawnPath = QString::fromUtf8(bytes.left(bytes.indexOf('\n')));

    XmlResponse response(bytes, QString());
    checkElement(response, drawnPath);
    for (const char *start : {"/Envelope", "/html", "/Fault", "/a"})
        checkFrom(response, QLatin1String(start));

    XmlResponse copy(response);
    require(copy.xml() == response.xml());
    require(copy.getText(drawnPath) == response.getText(drawnPath));
    XmlResponse rooted(bytes, drawnPath);
    require(rooted.getText({}) == response.getText(drawnPath));
    return 0;
}
