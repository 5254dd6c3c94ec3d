#include <vorn/onvif/paths.h>
#include <vorn/util/xmlresponse.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    const QByteArray bytes = reply.readAll();
    //! [views]
    const vorn::XmlResponse response(bytes, vorn::paths::GetVideoSourcesResponse);
    if (response.view("").isNull())
        out << "no answer to GetVideoSources\n";
    for (const vorn::XmlElementView source : response.viewAll("/VideoSources")) {
        out << source.attribute("token") << ": " << source.at("/Resolution/Width").toInt() << " x "
            << source.at("/Resolution/Height").toInt() << '\n';

        // What is missing has no children: a source without "Imaging" needs no case of its own.
        for (const vorn::XmlElementView setting : source.at("/Imaging").children()) {
            if (setting.children().isEmpty())
                out << "  " << setting.name() << ' ' << setting.toDouble() << '\n';
        }
    }
    //! [views]
    return 0;
}
