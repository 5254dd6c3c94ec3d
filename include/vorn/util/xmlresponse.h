#pragma once

/// \file
/// Access to a SOAP reply, a WS-Discovery message or an error page by path.

#include <vorn/util/export.h>

#include <QtCore/QAnyStringView>
#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtXml/QDomDocument>
#include <QtXml/QDomElement>

#include <array>
#include <cstddef>
#include <iterator>
#include <memory>

namespace pugi {
struct xml_node_struct;
}

namespace vorn {

class XmlDocument;

/// One element of a reply, with everything below it.
///
/// A default-constructed node is the missing one: not valid, without name, element and children. It is also what a
/// query for a path that is not there returns.
struct VORNSDK_UTIL_EXPORT XmlResponseNode
{
    /// True when the node stands for an element that was found.
    bool valid = false;

    /// Local name of the element: "Name" for `tt:Name`. Empty on a missing node.
    QString name;

    /// The element with its attributes, text, CDATA sections and descendants; null on a missing node.
    ///
    /// It has no parent and no siblings. Comments and processing instructions are left out. `isNull()`, `text()` and
    /// `attribute()` go on working when the XmlResponse that the node came from is gone; all else that the element
    /// offers may be used only until that XmlResponse is assigned to, moved from or destroyed.
    QDomElement element;

    /// One node for each child element, in document order, filled in the same way.
    QList<XmlResponseNode> children;

    XmlResponseNode();
    XmlResponseNode(const XmlResponseNode &other);
    XmlResponseNode(XmlResponseNode &&other) noexcept;
    XmlResponseNode &operator=(const XmlResponseNode &other);
    XmlResponseNode &operator=(XmlResponseNode &&other) noexcept;
    ~XmlResponseNode();
};

class XmlElementViews;

/// One element of a reply, looked at where it stands: nothing is made or copied but the values that are asked for.
///
/// A view is as small as a pointer, and making, copying and walking from one to the next allocates nothing. A
/// default-constructed view is the missing one, and so is what leads to no element. It answers as a missing node does:
/// no name, no text, no attributes, no children, 0 and false.
///
/// A view may be used as long as any copy of the XmlResponse that it came from holds the document: it is left dangling
/// when the last of them is destroyed or assigned another document. Moving a response to one that lives on does it no
/// harm. Views of one document may be read on several threads at once.
///
/// A name or path may be any string of Qt's, or a literal; what is no literal is looked at during the call only.
class VORNSDK_UTIL_EXPORT XmlElementView
{
public:
    /// The missing element.
    constexpr XmlElementView() noexcept = default;

    /// True when there is no such element.
    constexpr bool isNull() const noexcept { return !m_element; }

    /// Local name of the element, as XmlResponseNode::name. Null if it is missing.
    QString name() const;

    /// The same where it stands: UTF-8, as ill-formed as the reply. Empty if the element is missing.
    QByteArrayView utf8Name() const noexcept;

    /// Whether name() is \a name. Never true of a missing element.
    bool hasName(QAnyStringView name) const;

    /// The text of the element, exactly as `QDomElement::text()` gives it for that of a node: verbatim, with the text
    /// of nested elements. Null if the element is missing.
    QString text() const;

    /// Whether text() is \a text. Never true of a missing element.
    bool hasText(QAnyStringView text) const;

    /// text() as a decimal number, with white space around it allowed; 0 if it is no such number or beyond the range of
    /// the type. As XmlResponse::getUInt.
    unsigned int toUInt() const;
    int toInt() const; ///< As above.

    /// text() as a number such as "-0.5" or "1e3", or "inf", "-inf" or "nan", with white space around it allowed; 0 if
    /// it is none, infinite if it is too large.
    double toDouble() const;

    /// Whether text() is "true" or "1", with white space around it allowed. As XmlResponse::getBool.
    bool toBool() const;

    /// The value of the attribute \a name, exactly as `QDomElement::attribute()` gives it: the attribute is named as it
    /// is written, with its prefix if it has one. Null if it is missing.
    QString attribute(QAnyStringView name) const;

    /// The element at \a path below this one: "/Resolution/Width" is the first "Width" in the first "Resolution".
    /// Unlike a path with a node, it does not name the element itself. The empty path leads to the element itself.
    XmlElementView at(QAnyStringView path) const;

    XmlElementViews children() const;                    ///< All child elements, in document order.
    XmlElementViews children(QAnyStringView name) const; ///< Those with the local name \a name.

    /// Whether both are the same element of the same document, or both are missing. What they hold is not compared.
    friend constexpr bool operator==(XmlElementView left, XmlElementView right) noexcept
    {
        return left.m_element == right.m_element;
    }

    friend constexpr bool operator!=(XmlElementView left, XmlElementView right) noexcept { return !(left == right); }

private:
    friend class XmlElementViews;
    friend class XmlResponse;

    explicit constexpr XmlElementView(pugi::xml_node_struct *element) noexcept
        : m_element(element)
    {
    }

    pugi::xml_node_struct *m_element = nullptr;
};

/// Elements beside each other, in document order, for a range-based for loop. May be used as long as a view of one of
/// them.
class VORNSDK_UTIL_EXPORT XmlElementViews
{
public:
    /// Goes from one element to the next.
    class VORNSDK_UTIL_EXPORT Iterator
    {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = XmlElementView;
        using difference_type = std::ptrdiff_t;
        using pointer = const XmlElementView *;
        using reference = XmlElementView;

        constexpr Iterator() noexcept = default;

        constexpr XmlElementView operator*() const noexcept { return m_view; }

        constexpr const XmlElementView *operator->() const noexcept { return &m_view; }

        Iterator &operator++();

        Iterator operator++(int) // NOLINT(cert-dcl21-cpp): a const value could not be moved
        {
            const Iterator old = *this;
            ++*this;
            return old;
        }

        /// Of iterators of one range.
        friend constexpr bool operator==(const Iterator &left, const Iterator &right) noexcept
        {
            return left.m_view == right.m_view;
        }

        friend constexpr bool operator!=(const Iterator &left, const Iterator &right) noexcept
        {
            return !(left == right);
        }

    private:
        friend class XmlElementViews;

        constexpr Iterator(XmlElementView view, bool ofOneName) noexcept
            : m_view(view)
            , m_ofOneName(ofOneName)
        {
        }

        XmlElementView m_view;
        bool m_ofOneName = false;
    };

    using const_iterator = Iterator;
    using iterator = Iterator;
    using value_type = XmlElementView;

    /// None.
    constexpr XmlElementViews() noexcept = default;

    constexpr Iterator begin() const noexcept { return {m_first, m_ofOneName}; }

    constexpr Iterator end() const noexcept { return {}; }

    constexpr bool isEmpty() const noexcept { return m_first.isNull(); }

private:
    friend class XmlElementView;
    friend class XmlResponse;

    constexpr XmlElementViews(XmlElementView first, bool ofOneName) noexcept
        : m_first(first)
        , m_ofOneName(ofOneName)
    {
    }

    XmlElementView m_first;
    bool m_ofOneName = false; // that of the first; else all are meant
};

/// A parsed reply that answers queries by path.
///
/// A path is a run of components, each with a leading slash: "/Envelope/Body/GetScopesResponse". A component is the
/// local name of an element, compared case-sensitively; prefixes and namespaces play no part, and no character but the
/// slash has a special meaning. Where several elements match a component, the first in document order is taken. A text
/// that is not a path of this form is the path of no element.
///
/// Paths without a node start at the root path that the constructor was given, and from there at the document element.
/// The empty path leads to the element at the root path; if the root path is empty too, to none. Paths with a node
/// start at that node: their first component is the node's own name.
///
/// No operation fails, throws or reports. Bytes that cannot be parsed give an object on which every path is missing.
/// These are such bytes:
/// - what the parser refuses, such as tags that do not match;
/// - more or fewer than one document element;
/// - text beside the document element;
/// - elements that are nested more than 256 levels deep.
///
/// Tolerated is what devices send all the same, though no XML document may hold it:
/// - ill-formed UTF-8: each bad sequence reads as U+FFFD;
/// - NUL characters, which read as U+FFFD and are ignored at the end of the reply, and other characters that XML
///   forbids, which stay as they are;
/// - `&` that starts no reference, and references to unknown entities: they stay as written;
/// - references to what XML forbids: one to 0, to a surrogate or beyond Unicode reads as U+FFFD, one to any other
///   character as that;
/// - `<` in the value of an attribute, and `]]>` in text: they stay as they are;
/// - a repeated attribute: the first counts;
/// - prefixes that are not declared, colons anywhere in a name, and any character beyond ASCII in it: the local name is
///   what stands behind the first colon. If that is nothing, as in `<A:/>`, no path leads there;
/// - `--` in comments, and any form of processing instructions behind the first letter of their name;
/// - XML declarations of any form, wherever a processing instruction may stand;
/// - DTDs before and behind the document element, of any form that shows where they end.
///
/// White space is what XML calls so: blanks, tabs and line ends. A piece of text that is nothing else counts as none,
/// also if it was written with references; one of U+00A0 counts, which QDomDocument would leave out. DTDs are skipped:
/// the entities and attributes that they declare are not known, and nothing outside the bytes is ever opened.
///
/// A byte order mark decides the encoding, or the zero bytes of UTF-16 and UTF-32, else the XML declaration at the
/// start; without any of these, or if the declaration cannot be right, the bytes are read as UTF-8. A surrogate of
/// UTF-16 or UTF-32 that is none of a pair reads as a question mark.
///
/// Copies share the parsed document, which never changes. Each object belongs to one thread at a time; copies of one
/// object may be used on different threads at once.
class VORNSDK_UTIL_EXPORT XmlResponse
{
public:
    /// A response on which every path is missing. Allocates nothing.
    XmlResponse();

    /// Parses \a bytes; the paths of all queries without a node start at \a root, which may be empty.
    XmlResponse(const QByteArray &bytes, const QString &root);

    XmlResponse(const XmlResponse &other);
    XmlResponse(XmlResponse &&other) noexcept;
    XmlResponse &operator=(const XmlResponse &other);
    XmlResponse &operator=(XmlResponse &&other) noexcept;
    ~XmlResponse();

    /// The whole reply as text: the bytes decoded, whether they could be parsed or not.
    QString xml() const;

    /// The element at \a path, or a missing node.
    XmlResponseNode get(const QString &path);

    /// The element at \a path, which starts with the name of \a node, or a missing node.
    XmlResponseNode get(const XmlResponseNode &node, const QString &path);

    /// All elements that the last component of \a path matches below the element that the other components lead to, in
    /// document order. Empty if there is none.
    QList<XmlResponseNode> getAll(const QString &path);

    /// The text of the element at \a path, exactly as `QDomElement::text()` of that element gives it: verbatim, with
    /// the text of nested elements. Null if the element is missing.
    QString getText(const QString &path);

    /// The text of the element at \a path, which starts with the name of \a node. Null if the element is missing.
    QString getText(const XmlResponseNode &node, const QString &path);

    /// The text of the element at \a path as a decimal number. White space around it is allowed; 0 if the element is
    /// missing or its text is no such number.
    unsigned int getUInt(const QString &path);

    /// As above; \a path starts with the name of \a node.
    unsigned int getUInt(const XmlResponseNode &node, const QString &path);

    /// True if the text of the element at \a path is "true" or "1", the two words of an XML Schema boolean for true.
    /// White space around it is allowed.
    bool getBool(const QString &path);

    /// The value of \a attribute on the element at \a path, exactly as `QDomElement::attribute()` of that element gives
    /// it: the attribute is named as it is written, with its prefix if it has one. Null if either is missing.
    QString getAttribute(const QString &attribute, const QString &path);

    /// The element at \a path, where it stands. It is the one that get() makes a node of, at a fraction of the cost.
    XmlElementView view(QAnyStringView path) const;

    /// The elements that getAll() makes nodes of, where they stand.
    XmlElementViews viewAll(QAnyStringView path) const;

private:
    pugi::xml_node_struct *find(const QString &path);

    std::shared_ptr<const XmlDocument> m_document;
    QDomDocument m_nodeOwner; // of the elements that queries hand out; null until one does

    // Where the parent of the last path is, as one query often asks for a sibling of what the last one asked for.
    // The path is kept as a copy in place: a query allocates nothing, and the caller's text may be gone by the next.
    std::array<char16_t, 48> m_parentPath = {};
    qsizetype m_parentPathSize = 0;
    pugi::xml_node_struct *m_parent = nullptr;
};

} // namespace vorn

Q_DECLARE_TYPEINFO(vorn::XmlResponseNode, Q_RELOCATABLE_TYPE);
