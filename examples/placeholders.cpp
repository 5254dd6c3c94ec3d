#include <vorn/onvif/paths.h>
#include <vorn/onvif/placeholderstring.h>
#include <vorn/onvif/profiles.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

namespace {

QString streamRequest(const QString &profileToken)
{
    return vorn::PlaceHolderString("<trt:GetStreamUri><trt:StreamSetup><tt:Stream>RTP-Unicast</tt:Stream><tt:Transport>"
                                   "<tt:Protocol>$@</tt:Protocol></tt:Transport></trt:StreamSetup>"
                                   "<trt:ProfileToken>$@</trt:ProfileToken></trt:GetStreamUri>",
                                   "$@")
        .arg("RTSP")
        .arg(profileToken.toHtmlEscaped())
        .qStr();
}

} // namespace

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    const vorn::OnvifProfileVector profiles(reply.readAll(), vorn::paths::GetProfilesResponse);
    for (const vorn::OnvifProfile &profile : profiles)
        out << streamRequest(profile.token) << '\n';
    return 0;
}
