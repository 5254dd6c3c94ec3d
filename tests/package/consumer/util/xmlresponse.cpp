// Answers as the library's own utility library does, which it is built over: that one's sources are compiled with
// another name for their namespace.

#define vorn kit
#include UTIL_HEADER
#undef vorn

#include <vorn/util/xmlresponse.h>

#include <utility>

namespace vorn {
namespace {

XmlResponseNode converted(const kit::XmlResponseNode &node)
{
    XmlResponseNode result{node.valid, node.name, node.element, {}};
    for (const kit::XmlResponseNode &child : node.children)
        result.children.append(converted(child));
    return result;
}

kit::XmlResponseNode converted(const XmlResponseNode &node)
{
    kit::XmlResponseNode result;
    result.valid = node.valid;
    result.name = node.name;
    result.element = node.element;
    for (const XmlResponseNode &child : node.children)
        result.children.append(converted(child));
    return result;
}

} // namespace

class XmlResponse::Reply : public kit::XmlResponse
{
public:
    using kit::XmlResponse::XmlResponse;
};

XmlResponse::XmlResponse()
    : m_reply(std::make_unique<Reply>())
{
}

XmlResponse::XmlResponse(const QByteArray &bytes, const QString &root)
    : m_reply(std::make_unique<Reply>(bytes, root))
{
}

XmlResponse::XmlResponse(const XmlResponse &other)
    : m_reply(std::make_unique<Reply>(*other.m_reply))
{
}

XmlResponse::XmlResponse(XmlResponse &&other) noexcept
    : m_reply(std::exchange(other.m_reply, std::make_unique<Reply>()))
{
}

XmlResponse &XmlResponse::operator=(const XmlResponse &other)
{
    *m_reply = *other.m_reply;
    return *this;
}

XmlResponse &XmlResponse::operator=(XmlResponse &&other) noexcept
{
    *m_reply = std::move(*other.m_reply);
    return *this;
}

XmlResponse::~XmlResponse() = default;

QString XmlResponse::xml() const
{
    return m_reply->xml();
}

XmlResponseNode XmlResponse::get(const QString &path)
{
    return converted(m_reply->get(path));
}

XmlResponseNode XmlResponse::get(const XmlResponseNode &node, const QString &path)
{
    return converted(m_reply->get(converted(node), path));
}

QList<XmlResponseNode> XmlResponse::getAll(const QString &path)
{
    QList<XmlResponseNode> nodes;
    for (const kit::XmlResponseNode &node : m_reply->getAll(path))
        nodes.append(converted(node));
    return nodes;
}

QString XmlResponse::getText(const QString &path)
{
    return m_reply->getText(path);
}

QString XmlResponse::getText(const XmlResponseNode &node, const QString &path)
{
    return m_reply->getText(converted(node), path);
}

unsigned int XmlResponse::getUInt(const QString &path)
{
    return m_reply->getUInt(path);
}

unsigned int XmlResponse::getUInt(const XmlResponseNode &node, const QString &path)
{
    return m_reply->getUInt(converted(node), path);
}

bool XmlResponse::getBool(const QString &path)
{
    return m_reply->getBool(path);
}

QString XmlResponse::getAttribute(const QString &attribute, const QString &path)
{
    return m_reply->getAttribute(attribute, path);
}

} // namespace vorn
