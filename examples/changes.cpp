#include <vorn/onvif/compare.h>
#include <vorn/onvif/debug.h>
#include <vorn/onvif/paths.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

// A line for each field that has changed, in the records within, too.
template <typename Value>
static void showChanges(QTextStream &out, const QString &name, const Value &before, const Value &now)
{
    if constexpr (vorn::hasFields<Value>) {
        vorn::visitFields([&](QLatin1StringView field, const auto &was,
                              const auto &is) { showChanges(out, name + "." + field, was, is); },
                          before, now);
    } else if (before != now) {
        QString line;
        QDebug(&line).nospace() << before << " -> " << now;
        out << name << ": " << line << '\n';
    }
}

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    QByteArray bytes = reply.readAll();
    const vorn::OnvifNetworkInterfaceVector before(bytes, vorn::paths::GetNetworkInterfacesResponse);
    bytes.replace("Full", "Half").replace("true", "false"); // meanwhile, at the camera
    const vorn::OnvifNetworkInterfaceVector now(bytes, vorn::paths::GetNetworkInterfacesResponse);

    out << (before == now ? "equal" : "not equal") << '\n';
    out << (vorn::sameContent(before, now) ? "of the same content" : "not of the same content") << '\n';
    for (qsizetype i = 0; i < before.size() && i < now.size(); ++i)
        showChanges(out, now[i].token, before[i], now[i]);
    return 0;
}
