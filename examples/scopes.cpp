#include <vorn/onvif/scopes.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    const vorn::OnvifScopeMap scopes(reply.readAll());
    for (const char *category : {"name", "hardware", "color"}) {
        if (scopes.contains(category))
            out << category << ": " << scopes.fixedValue(category).value << '\n';
        else
            out << category << " is not told\n";
    }

    const QList<vorn::OnvifScope> locations = scopes.values("location");
    for (const vorn::OnvifScope &location : locations) {
        const bool canBeChanged = location.type == vorn::OnvifScope::Configurable;
        out << location.value << (canBeChanged ? ", can be changed" : "") << '\n';
    }
    return 0;
}
