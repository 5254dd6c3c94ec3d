#pragma once

#include "xml/numbers.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QAnyStringView>
#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <type_traits>
#include <utility>

namespace vorn {

/// Stands for the view of an element where the utility library offers none: each question is a query of its own.
class QueriedElement
{
public:
    QueriedElement() = default;

    QueriedElement(XmlResponse &response, QString path)
        : m_response(&response)
        , m_path(std::move(path))
    {
    }

    bool isNull() const { return !m_response->get(m_path).valid; }

    QString text() const { return m_response->getText(m_path); }

    bool hasText(QLatin1String text) const { return m_response->getText(m_path) == text; }

    int toInt() const { return vorn::toInt(m_response->getText(m_path)); }

    unsigned int toUInt() const { return m_response->getUInt(m_path); }

    double toDouble() const { return vorn::toDouble(m_response->getText(m_path)); }

    bool toBool() const { return m_response->getBool(m_path); }

    QString attribute(const QString &name) const { return m_response->getAttribute(name, m_path); }

    QueriedElement at(const QString &path) const { return {*m_response, m_path + path}; }

private:
    XmlResponse *m_response = nullptr;
    QString m_path;
};

template <typename Response, typename = void>
struct ElementViewOf
{
    using Type = QueriedElement;
};

template <typename Response>
struct ElementViewOf<Response, std::void_t<decltype(std::declval<const Response &>().view(QAnyStringView()).utf8Name()),
                                           decltype(std::declval<const Response &>().viewAll(QAnyStringView()))>>
{
    using Type = decltype(std::declval<const Response &>().view(QAnyStringView()));
};

/// Whether \a Response, of the utility library that the program brings, can show its elements where they stand. One
/// that cannot is asked for nodes where children are to be read, else queried.
template <typename Response>
inline constexpr bool offersViews = !std::is_same_v<typename ElementViewOf<Response>::Type, QueriedElement>;

/// What a record is read from: a view of an element, or a node, or the answers of queries. Missing elements have
/// neither text nor attributes nor children. Used while what it was made from lives.
class RecordElement
{
public:
    using View = ElementViewOf<XmlResponse>::Type;

    RecordElement(const XmlResponseNode &node)
        : m_node(&node)
    {
    }

    RecordElement(const View &view)
        : m_view(view)
    {
    }

    bool isNull() const { return m_node ? m_node->element.isNull() : m_view.isNull(); }

    QString text() const;
    bool hasText(QLatin1String text) const;
    int toInt() const;           ///< text() as a number; 0 if it is none of the type.
    unsigned int toUInt() const; ///< As above.
    double toDouble() const;     ///< As above.
    bool toBool() const;         ///< As the queries: true for "true" and "1", with white space around it.

    /// Null if there is none.
    QString attribute(const QString &name) const;

    /// The element at \a path below one that elementAt() gave.
    RecordElement at(const QString &path) const { return m_view.at(path); }

    /// Calls \a visit with the local name of each child, of a type that can be compared with a QLatin1String, and the
    /// child, in document order.
    template <typename Visitor>
    void visitChildren(const Visitor &visit) const
    {
        if (m_node) {
            for (const XmlResponseNode &child : m_node->children)
                visit(child.name, RecordElement(child));
        } else {
            visitViews(m_view, visit);
        }
    }

private:
    struct Utf8Name
    {
        QByteArrayView name;

        /// \a ascii holds nothing else.
        friend bool operator==(Utf8Name left, QLatin1String ascii) { return left.name == QByteArrayView(ascii); }
    };

    template <typename ElementView, typename Visitor>
    static void visitViews(const ElementView &element, const Visitor &visit)
    {
        if constexpr (offersViews<XmlResponse>) {
            for (const auto child : element.children())
                visit(Utf8Name{child.utf8Name()}, RecordElement(child));
        }
    }

    const XmlResponseNode *m_node = nullptr;
    View m_view;
};

/// The element that \a response holds at \a path. Its children can be visited where views are offered.
template <typename Response>
RecordElement elementAt(Response &response, const QString &path)
{
    if constexpr (offersViews<Response>)
        return response.view(path);
    else
        return typename ElementViewOf<Response>::Type(response, path);
}

/// The elements that \a response holds at \a path, in document order: each can be made a RecordElement of.
template <typename Response>
auto elementsAt(Response &response, const QString &path)
{
    if constexpr (offersViews<Response>)
        return response.viewAll(path);
    else
        return response.getAll(path);
}

} // namespace vorn
