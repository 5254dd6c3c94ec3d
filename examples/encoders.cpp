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

    const vorn::OnvifVideoEncoderConfigurationVector encoders(reply.readAll(),
                                                              vorn::paths::GetVideoEncoderConfigurationsResponse);
    for (const vorn::OnvifVideoEncoderConfiguration &encoder : encoders) {
        out << encoder.token << ": " << encoder.encoding;
        if (encoder.resolution.isValid())
            out << ", " << encoder.resolution.width() << " x " << encoder.resolution.height();
        out << ", " << encoder.frameRateLimit << " frames/s, " << encoder.bitrateLimit << " kbit/s\n";
    }

    // Equal means: of the same token. So a record of which only the token is known finds the whole one.
    vorn::OnvifVideoEncoderConfiguration wanted;
    wanted.token = "vec_2";
    const qsizetype index = encoders.indexOf(wanted);
    if (index >= 0)
        out << "vec_2 is called " << encoders[index].name << '\n';
    return 0;
}
