#include <vorn/onvif/paths.h>
#include <vorn/onvif/profiles.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    const vorn::OnvifProfile profile(reply.readAll(), vorn::paths::CreateProfileResponse);
    if (profile.token.isEmpty())
        out << "no profile\n"; // isNull() does not tell: it is false
    else
        out << profile.token << ": " << profile.name << '\n';
    return 0;
}
