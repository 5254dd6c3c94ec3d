#include "replies.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>

#include <cctype>
#include <cstdlib>
#include <iostream>

namespace bench {
namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    require(file.open(QIODevice::ReadOnly), "cannot read " + path.toStdString());
    return file.readAll();
}

QByteArray withoutSpaceBetweenElements(const QByteArray &reply)
{
    QByteArray compact;
    for (qsizetype i = 0; i < reply.size(); ++i) {
        compact += reply[i];
        if (reply[i] != '>')
            continue;
        qsizetype next = i + 1;
        while (next < reply.size() && std::isspace(static_cast<unsigned char>(reply[next])) != 0)
            ++next;
        if (next == reply.size() || reply[next] == '<')
            i = next - 1;
    }
    return compact;
}

QByteArray envelope(const QByteArray &operation, const QByteArray &content)
{
    return "<s:Envelope><s:Body><tds:" + operation + "Response>" + content + "</tds:" + operation
           + "Response></s:Body></s:Envelope>";
}

} // namespace

std::vector<Reply> repliesTo(const QString &operation, const QString &folder)
{
    std::vector<Reply> replies;
    const QStringList names = {operation + QLatin1String(".xml"), operation + QLatin1String(".Response.xml")};
    QStringList paths;
    for (QDirIterator files(folder, names, QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
        paths.append(files.next());
    paths.sort();
    for (const QString &path : paths) {
        const QByteArray bytes = contentOf(path);
        const QByteArray compact = withoutSpaceBetweenElements(bytes);
        const QFileInfo file(QDir(folder).relativeFilePath(path));
        std::string name = file.path().toStdString();
        if (operation.contains(u'*'))
            name += '/' + file.baseName().toStdString();
        // What has hardly any white space between its elements is one of the compact ones as it stands.
        const bool isIndented = compact.size() < bytes.size() - bytes.size() / 20;
        if (isIndented)
            replies.push_back({name, bytes});
        replies.push_back({isIndented ? name + ", compact" : name, isIndented ? compact : bytes});
    }
    return replies;
}

QByteArray replyWithProfiles(int count)
{
    const QByteArray reply = contentOf(QStringLiteral(SAMPLES_FOLDER "/short-prefixes/GetProfiles.xml"));
    const QByteArray endTag = "</trt:Profiles>";
    const qsizetype start = reply.indexOf("<trt:Profiles ");
    const qsizetype end = reply.indexOf(endTag) + endTag.size();
    return reply.first(start) + reply.sliced(start, end - start).repeated(count)
           + reply.sliced(reply.lastIndexOf(endTag) + endTag.size());
}

QByteArray replyWithInterfaces(int count)
{
    QByteArray interfaces;
    for (int i = 0; i < count; ++i) {
        interfaces += "<tds:NetworkInterfaces token=\"" + QByteArray::number(i)
                      + "\"><tt:Enabled>true</tt:Enabled><tt:IPv4><tt:Enabled>true</tt:Enabled><tt:Config><tt:Manual>"
                        "<tt:Address>192.0.2.1</tt:Address><tt:PrefixLength>24</tt:PrefixLength></tt:Manual>"
                        "<tt:DHCP>false</tt:DHCP></tt:Config></tt:IPv4></tds:NetworkInterfaces>";
    }
    return envelope("GetNetworkInterfaces", interfaces);
}

QByteArray replyWithScopes(int count)
{
    QByteArray scopes;
    for (int i = 0; i < count; ++i) {
        scopes += "<tds:Scopes><tt:ScopeDef>Fixed</tt:ScopeDef><tt:ScopeItem>onvif://www.onvif.org/location/place/"
                  + QByteArray::number(i) + "</tt:ScopeItem></tds:Scopes>";
    }
    return envelope("GetScopes", scopes);
}

void require(bool holds, const std::string &what)
{
    if (!holds) {
        std::cerr << "vornsdk-benchmarks: " << what << '\n';
        std::exit(2);
    }
}

} // namespace bench
