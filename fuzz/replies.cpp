// Replies that are well-formed, and changed element by element: what the other targets only get by luck.

#include "properties.h"

#include <pugixml.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Random = std::minstd_rand;

std::size_t below(Random &random, std::size_t end)
{
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
}

std::vector<pugi::xml_node> elementsOf(pugi::xml_document &document)
{
    struct Collector : pugi::xml_tree_walker
    {
        std::vector<pugi::xml_node> elements;

        bool for_each(pugi::xml_node &node) override
        {
            if (node.type() == pugi::node_element)
                elements.push_back(node);
            return depth() < 300;
        }
    };

    Collector collector;
    document.traverse(collector);
    return collector.elements;
}

/// Changes the tree at a place drawn by \a random.
void change(pugi::xml_document &document, Random &random)
{
    static const char *const texts[] = {"true",
                                        "false",
                                        "1",
                                        "0",
                                        "-1",
                                        "TRUE",
                                        "",
                                        " 7 ",
                                        "4294967296",
                                        "2147483647",
                                        "NaN",
                                        "1e999",
                                        "0.1",
                                        "open",
                                        "Half",
                                        "Stateful",
                                        "PT60S",
                                        "env:Sender",
                                        "ter:NoProfile",
                                        "&",
                                        "<",
                                        "\xEF\xBB\xBF",
                                        "onvif://www.onvif.org/name/a%zz",
                                        "http://192.168.001.020:80/x http://[fe80::1]:80/x"};
    static const char *const attributes[] = {"token", "fixed", "x", "y", "width", "height", "Name", "Type"};

    const std::vector<pugi::xml_node> elements = elementsOf(document);
    if (elements.empty())
        return;
    pugi::xml_node element = elements[below(random, elements.size())];
    const pugi::xml_node other = elements[below(random, elements.size())];
    const char *text = texts[below(random, std::size(texts))];
    const char *attribute = attributes[below(random, std::size(attributes))];
    switch (below(random, 9)) {
    case 0:
        element.parent().remove_child(element);
        break;
    case 1:
        element.parent().insert_copy_after(element, element);
        break;
    case 2:
        element.append_copy(other);
        break;
    case 3:
        element.parent().insert_copy_before(other, element);
        break;
    case 4:
        element.text().set(text);
        break;
    case 5:
        element.set_name(std::string(other.name()).c_str());
        break;
    case 6:
        element.remove_attribute(attribute);
        element.append_attribute(attribute).set_value(text);
        break;
    case 7:
        element.remove_attributes();
        break;
    default:
        element.append_child(pugi::node_cdata).set_value(text);
        break;
    }
}

std::string written(const pugi::xml_document &document)
{
    std::ostringstream output;
    document.save(output, "", pugi::format_raw | pugi::format_no_declaration);
    return output.str();
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t capacity,
                                               unsigned int seed)
{
    pugi::xml_document document;
    if (!document.load_buffer(data, size))
        document.load_string(
            "<s:Envelope><s:Body><t:GetProfilesResponse><t:Profiles token='1'/></t:GetProfilesResponse>"
            "</s:Body></s:Envelope>");
    Random random(seed);
    for (std::size_t changes = 1 + below(random, 4); changes > 0; --changes)
        change(document, random);
    const std::string reply = written(document);
    if (reply.size() > capacity)
        return size;
    std::copy(reply.begin(), reply.end(), data);
    return reply.size();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray reply(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    fuzz::checkRecords(reply);
    fuzz::checkFault(reply);
    return 0;
}
