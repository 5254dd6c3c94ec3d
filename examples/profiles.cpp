#include <vorn/onvif/paths.h>
#include <vorn/onvif/profiles.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>
#include <utility>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    vorn::OnvifProfileVector profiles(reply.readAll(), vorn::paths::GetProfilesResponse);
    for (const vorn::OnvifProfile &profile : std::as_const(profiles)) {
        out << profile.token << ": " << profile.name << (profile.fixed ? ", cannot be deleted\n" : "\n");
        if (!profile.videoEncoder.isNull())
            out << "  video: " << profile.videoEncoder.encoding << '\n';
        out << "  PTZ: " << (profile.ptz.isNull() ? "no" : "yes") << '\n';
        out << "  decoder: " << (profile.audioDecoder.isNull() ? "not in the list" : profile.audioDecoder.token)
            << '\n';
    }

    // What the profiles lose on their way into the list is read from the reply.
    vorn::XmlResponse &response = profiles.response;
    const QList<vorn::XmlResponseNode> nodes = response.getAll("/Profiles");
    for (const vorn::XmlResponseNode &node : nodes) {
        const vorn::OnvifAudioDecoderConfiguration decoder(
            response.get(node, "/Profiles/Extension/AudioDecoderConfiguration"));
        const vorn::OnvifMetadataConfiguration metadata(response.get(node, "/Profiles/MetadataConfiguration"));
        out << node.element.attribute("token") << ": decoder " << decoder.token << ", "
            << metadata.analyticsEngineConfiguration.size() << " modules in the metadata\n";
    }
    return 0;
}
