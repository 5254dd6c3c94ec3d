#include "peers.h"

#include "replies.h"
#include "roads.h"

#include <vorn/onvif/profiles.h>

#include <QtCore/QXmlStreamReader>
#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <algorithm>
#include <iomanip>
#include <memory>
#include <optional>
#include <ostream>
#include <string_view>

#ifdef HAS_GSOAP
#include "gsoap/profiles.h"
#endif
#ifdef HAS_LIBXML2
#include <libxml/parser.h>
#endif

namespace bench {
namespace {

using Profiles = std::optional<qsizetype>; ///< how many a reply has; nothing if it is refused

constexpr const char *pathToProfiles[] = {"Envelope", "Body", "GetProfilesResponse"};
constexpr const char *profileName = "Profiles";

Profiles readRecords(const QByteArray &reply)
{
    return vorn::OnvifProfileVector(reply, QStringLiteral("/Envelope/Body/GetProfilesResponse")).size();
}

/// Whether \a qualified is \a name, with or without a prefix.
bool isCalled(std::string_view qualified, std::string_view name)
{
    return qualified.substr(qualified.find(':') + 1) == name; // without a prefix, npos + 1 is 0
}

#ifdef HAS_LIBXML2
/// libxml2 leaves a prefix that is not declared in the name.
bool isCalled(const xmlNode *node, const char *name)
{
    return node->type == XML_ELEMENT_NODE && isCalled(reinterpret_cast<const char *>(node->name), name);
}

Profiles readLibxml2(const QByteArray &reply)
{
    // Without the options that would have it load DTDs and replace entities, it opens nothing but the reply.
    constexpr int options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc *)> document(
        xmlReadMemory(reply.constData(), static_cast<int>(reply.size()), nullptr, nullptr, options), xmlFreeDoc);
    if (!document)
        return {};
    const xmlNode *response = reinterpret_cast<const xmlNode *>(document.get());
    for (const char *name : pathToProfiles) {
        response = response->children;
        while (response != nullptr && !isCalled(response, name))
            response = response->next;
        if (response == nullptr)
            return 0;
    }
    qsizetype profiles = 0;
    for (const xmlNode *child = response->children; child != nullptr; child = child->next)
        profiles += isCalled(child, profileName) ? 1 : 0;
    return profiles;
}
#endif

Profiles readStream(const QByteArray &reply)
{
    QXmlStreamReader reader(reply);
    qsizetype profiles = 0;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String(profileName))
            ++profiles;
    }
    return reader.hasError() ? Profiles() : profiles;
}

Profiles readPugixml(const QByteArray &reply)
{
    pugi::xml_document document;
    if (!document.load_buffer(reply.constData(), static_cast<std::size_t>(reply.size())))
        return {};
    pugi::xml_node response = document;
    for (const char *name : pathToProfiles)
        response = response.find_child([name](const pugi::xml_node &child) { return isCalled(child.name(), name); });
    return std::count_if(response.begin(), response.end(),
                         [](const pugi::xml_node &child) { return isCalled(child.name(), profileName); });
}

struct Peer
{
    const char *name;
    Profiles (*read)(const QByteArray &reply); ///< from the bytes to what it makes of them, and on to its destruction;
                                               ///< null if it was missing when this was built
};

#ifndef HAS_GSOAP
constexpr decltype(Peer::read) readGsoap = nullptr;
#endif
#ifndef HAS_LIBXML2
constexpr decltype(Peer::read) readLibxml2 = nullptr;
#endif
constexpr Peer peers[] = {
    {"OnvifProfileVector", readRecords}, {"gSOAP", readGsoap},     {"libxml2", readLibxml2},
    {"QXmlStreamReader", readStream},    {"pugixml", readPugixml},
};

std::string taskName(const std::string &reply, const std::string &peer)
{
    return "GetProfiles: " + reply + " (" + peer + ')';
}

std::string yardstickName(const std::string &reply)
{
    return taskName(reply, "setContent");
}

} // namespace

Peers::Peers(const QStringList &folders)
{
    for (const QString &folder : folders) {
        for (const Reply &reply : repliesTo(QStringLiteral("GetProfiles"), folder)) {
            const QByteArray bytes = reply.bytes;
            const Profiles profiles = readRecords(bytes);
            if (profiles == 0)
                continue;
            m_rows.push_back({reply.name, bytes.size(), *profiles});
            m_tasks.push_back({yardstickName(reply.name), [=] { setContent(bytes); }});
            for (const Peer &peer : peers) {
                const Profiles found = peer.read == nullptr ? Profiles() : peer.read(bytes);
                if (!found)
                    continue;
                const std::string name = taskName(reply.name, peer.name);
                require(found == profiles, name + " is read wrongly");
                m_tasks.push_back({name, [=] { benchmark::DoNotOptimize(peer.read(bytes)); }});
            }
        }
    }
}

void Peers::print(std::ostream &output, const Costs &times, const Costs &instructions) const
{
    std::string ruler = "|---|--:|--:|";
    output << "| Reply | Bytes | Profiles |";
    for (const Peer &peer : peers) {
        if (peer.read == nullptr)
            continue;
        output << ' ' << peer.name << ": time | instructions |";
        ruler += "--:|--:|";
    }
    output << '\n' << ruler << '\n' << std::fixed;
    std::string notes;
    for (const Row &row : m_rows) {
        const std::string yardstick = yardstickName(row.reply);
        output << "| " << row.reply << " | " << row.bytes << " | " << row.profiles << " |";
        for (const Peer &peer : peers) {
            if (peer.read == nullptr)
                continue;
            const std::string task = taskName(row.reply, peer.name);
            if (instructions.count(task) == 0) {
                output << " - | - |";
                notes += std::string(peer.name) + " refuses the reply " + row.reply + ".\n";
                continue;
            }
            output << ' ' << std::setprecision(2) << times.at(task) / times.at(yardstick) << " | "
                   << std::setprecision(3) << instructions.at(task) / instructions.at(yardstick) << " |";
        }
        output << '\n';
    }
    for (const Peer &peer : peers) {
        if (peer.read == nullptr)
            notes += std::string(peer.name) + " is left out: it was missing when this was built.\n";
    }
    if (!notes.empty())
        output << '\n' << notes;
}

} // namespace bench
