#include "asked.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QList>

namespace simulator {
namespace {

/// The namespace that \a element of \a message stands in; empty if none is declared where messages declare it.
QString namespaceOf(vorn::XmlResponse &message, const vorn::XmlResponseNode &element)
{
    const QString prefix = element.element.tagName().section(':', 0, -2);
    const QString declaration = prefix.isEmpty() ? "xmlns" : "xmlns:" + prefix;
    if (element.element.hasAttribute(declaration))
        return element.element.attribute(declaration);
    const QString inBody = message.getAttribute(declaration, "/Envelope/Body");
    return inBody.isNull() ? message.getAttribute(declaration, "/Envelope") : inBody;
}

} // namespace

QString Asked::variant() const
{
    if (!profileToken.isEmpty())
        return protocol.isEmpty() ? profileToken : profileToken + '.' + protocol;
    return isDeviceIO ? "deviceio" : "";
}

Asked askedIn(const QByteArray &message)
{
    Asked asked;
    vorn::XmlResponse response(message, {});
    const QList<vorn::XmlResponseNode> elements = response.get("/Envelope/Body").children;
    if (elements.isEmpty())
        return asked;
    const vorn::XmlResponseNode &element = elements.constFirst();
    for (const QChar character : element.name) {
        if (character.isLetterOrNumber())
            asked.action += character;
    }
    const QString name = '/' + element.name;
    asked.profileToken = response.getText(element, name + "/ProfileToken").trimmed();
    asked.protocol = response.getText(element, name + "/StreamSetup/Transport/Protocol").trimmed();
    asked.isDeviceIO = namespaceOf(response, element).endsWith("/deviceIO/wsdl");
    return asked;
}

} // namespace simulator
