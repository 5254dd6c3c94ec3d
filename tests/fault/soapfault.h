#pragma once

#include <QtCore/QByteArray>

namespace test {

/// A SOAP 1.2 fault, element by element. A value that is null is left out with its element.
struct SoapFault
{
    QByteArray code;
    QByteArray subcode = {};
    QByteArray specific = {};
    QByteArray reason = {};
    QByteArray prefix = "s";

    QByteArray document() const
    {
        const QByteArray p = prefix.isEmpty() ? QByteArray() : prefix + ':';
        const auto element = [&](const char *name, const QByteArray &content) {
            return content.isNull() ? QByteArray() : '<' + p + name + '>' + content + "</" + p + name + '>';
        };
        const auto codeElement = [&](const char *name, const QByteArray &value, const QByteArray &below) {
            return value.isNull() && below.isNull() ? QByteArray() : element(name, element("Value", value) + below);
        };
        const QByteArray specificElement = codeElement("Subcode", specific, QByteArray());
        const QByteArray subcodeElement = codeElement("Subcode", subcode, specificElement);
        const QByteArray reasonElement = reason.isNull() ? QByteArray() : element("Reason", element("Text", reason));
        return "<?xml version=\"1.0\"?>\n"
               + element("Envelope",
                         element("Body", element("Fault", codeElement("Code", code, subcodeElement) + reasonElement)));
    }
};

} // namespace test
