#include <vorn/onvif/faults.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

using vorn::OnvifFault;

namespace {

/// Whether the sentence is "Unknown Error." or alike, in whatever language.
bool isVague(const OnvifFault &fault)
{
    for (const OnvifFault::FaultType type :
         {OnvifFault::Sender, OnvifFault::Receiver, OnvifFault::UnknownSoapCode, OnvifFault::UnknownHttpError}) {
        const OnvifFault vague(QByteArray(), type, OnvifFault::NoSubcode, OnvifFault::NoSpecific, 0);
        if (fault.toString() == vague.toString())
            return true;
    }
    return false;
}

/// What the device itself says of it.
QString reasonOf(const OnvifFault &fault)
{
    const vorn::XmlElementView reason = fault.response.view("/Envelope/Body/Fault/Reason/Text");
    return reason.isNull() ? fault.response.view("/html/head/title").text() : reason.text();
}

/// The start of \a text on one line, with "?" for what could deceive: control characters, and those that turn the
/// direction of writing.
QString printable(const QString &text)
{
    QString result;
    for (const char32_t character : text.simplified().left(200).toUcs4())
        result += QChar::isPrint(character) ? QString::fromUcs4(&character, 1) : QString('?');
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    const char *action = argc > 2 ? argv[2] : "";
    QTextStream out(stdout);

    const OnvifFault fault(reply.readAll(), action, 0);
    if (!fault.hasError())
        out << "no fault\n";
    else if (fault.is(OnvifFault::Sender, OnvifFault::NotAuthorized) || fault.is(OnvifFault::HttpUnauthorised))
        out << "Enter the password of the device.\n";
    else
        out << fault.toString() << " (" << fault.errorId() << ")\n";

    const QString reason = printable(reasonOf(fault));
    if (isVague(fault) && !reason.isEmpty()) {
        out << "The device says: " << reason << '\n';
        out << "The same in HTML: " << reason.toHtmlEscaped() << '\n';
    }
    return 0;
}
