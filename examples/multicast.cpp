#include <vorn/onvif/configurations.h>
#include <vorn/onvif/paths.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    vorn::OnvifVideoEncoderConfigurationVector encoders(reply.readAll(),
                                                        vorn::paths::GetVideoEncoderConfigurationsResponse);
    out << encoders.size() << " encoders\n";

    // The records do not keep the multicast settings; the reply does.
    vorn::XmlResponse &response = encoders.response;
    const QList<vorn::XmlResponseNode> nodes = response.getAll("/Configurations");
    for (const vorn::XmlResponseNode &node : nodes) {
        out << node.element.attribute("token") << ": "
            << response.getText(node, "/Configurations/Multicast/Address/IPv4Address") << ':'
            << response.getUInt(node, "/Configurations/Multicast/Port") << '\n';
    }
    return 0;
}
