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

    const vorn::OnvifVideoAnalyticsConfigurationVector list(reply.readAll(),
                                                            vorn::paths::GetVideoAnalyticsConfigurationsResponse);
    for (const vorn::OnvifVideoAnalyticsConfiguration &configuration : list) {
        out << configuration.token << '\n';
        for (const vorn::OnvifAnalyticsModule &module : configuration.analyticsEngineConfiguration)
            out << "  module " << module.name << " of type " << module.type << '\n';
        for (const vorn::OnvifRule &rule : configuration.ruleEngineConfiguration)
            out << "  rule " << rule.name << " of type " << rule.type << '\n';
    }
    return 0;
}
