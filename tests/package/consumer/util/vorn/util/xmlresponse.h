#pragma once

// A utility library of the program's own, with the operations that the records need and no others.

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtXml/QDomElement>

#include <memory>

namespace vorn {

struct XmlResponseNode
{
    bool valid = false;
    QString name;
    QDomElement element;
    QList<XmlResponseNode> children;
};

class XmlResponse
{
public:
    XmlResponse();
    XmlResponse(const QByteArray &bytes, const QString &root);
    XmlResponse(const XmlResponse &other);
    XmlResponse(XmlResponse &&other) noexcept;
    XmlResponse &operator=(const XmlResponse &other);
    XmlResponse &operator=(XmlResponse &&other) noexcept;
    ~XmlResponse();

    QString xml() const;
    XmlResponseNode get(const QString &path);
    XmlResponseNode get(const XmlResponseNode &node, const QString &path);
    QList<XmlResponseNode> getAll(const QString &path);
    QString getText(const QString &path);
    QString getText(const XmlResponseNode &node, const QString &path);
    unsigned int getUInt(const QString &path);
    unsigned int getUInt(const XmlResponseNode &node, const QString &path);
    bool getBool(const QString &path);
    QString getAttribute(const QString &attribute, const QString &path);

private:
    class Reply;

    std::unique_ptr<Reply> m_reply;
};

} // namespace vorn
