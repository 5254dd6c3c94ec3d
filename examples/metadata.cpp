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

    vorn::XmlResponse response(reply.readAll(), vorn::paths::GetMetadataConfigurationsResponse);
    const QList<vorn::XmlResponseNode> nodes = response.getAll("/Configurations");
    for (const vorn::XmlResponseNode &node : nodes) {
        const vorn::OnvifMetadataConfiguration metadata(node);
        out << metadata.token << ": analytics " << (metadata.analytics ? "on" : "off");
        for (const vorn::OnvifAnalyticsModule &module : metadata.analyticsEngineConfiguration)
            out << ", " << module.name;
        out << '\n';
    }
    return 0;
}
