#include "xmltext.h"

#include "numbers.h"
#include "xmlnames.h"

#include <QtCore/QStringDecoder>
#include <QtCore/QVarLengthArray>

#include <cstdint>
#include <cstring>

namespace vorn {
namespace {

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

/// Keeps a U+FEFF at the start, which is a byte order mark before a document but a character in a value.
QStringDecoder valueDecoder()
{
    return QStringDecoder(QStringDecoder::Utf8,
                          QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
}

/// Looks at eight bytes at once.
bool isAscii(QByteArrayView bytes)
{
    const char *next = bytes.begin();
    std::uint64_t allBits = 0;
    for (; bytes.end() - next >= 8; next += 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, next, sizeof word);
        allBits |= word;
    }
    for (; next != bytes.end(); ++next)
        allBits |= static_cast<unsigned char>(*next);
    return (allBits & 0x8080808080808080U) == 0;
}

bool isBlank(const char *utf8)
{
    while (*utf8 == ' ' || *utf8 == '\n' || *utf8 == '\t' || *utf8 == '\r')
        ++utf8;
    return *utf8 == '\0';
}

/// Calls \a visit with each piece of character data in \a element and below, in document order. The depth of a
/// document is bounded, and so is the recursion.
template <typename Visitor>
void visitCharacterData(pugi::xml_node element, const Visitor &visit)
{
    if (isCharacterData(pugi::node_pcdata, element.value()))
        visit(element.value());
    for (pugi::xml_node child = element.first_child(); child; child = child.next_sibling()) {
        if (child.type() == pugi::node_element)
            visitCharacterData(child, visit);
        else if (isCharacterData(child.type(), child.value()))
            visit(child.value());
    }
}

/// The text of an element for as long as it takes to look at it; on the stack, unless it is uncommonly long.
class TransientText
{
public:
    explicit TransientText(pugi::xml_node element)
    {
        visitCharacterData(element, [this](const char *utf8) { append(utf8); });
    }

    QStringView view() const { return QStringView(m_characters.data(), m_characters.size()); }

private:
    void append(QByteArrayView utf8)
    {
        QStringDecoder decoder = valueDecoder();
        const qsizetype size = m_characters.size();
        const qsizetype needed = size + decoder.requiredSpace(utf8.size());
        if (needed > m_characters.capacity())
            m_characters.reserve(qMax(needed, 2 * m_characters.capacity())); // else each piece would copy all before it
        m_characters.resize(needed);
        const QChar *end = decoder.appendToBuffer(m_characters.data() + size, utf8);
        m_characters.resize(end - m_characters.data());
    }

    QVarLengthArray<QChar, 64> m_characters;
};

} // namespace

QString toQString(QByteArrayView utf8)
{
    if (isAscii(utf8)) // as nearly all is; then it need not be decoded
        return QString::fromLatin1(utf8);
    return utf8.startsWith(byteOrderMark) ? QString(valueDecoder()(utf8)) : QString::fromUtf8(utf8);
}

bool isCharacterData(pugi::xml_node_type type, const char *utf8)
{
    return type == pugi::node_cdata || (type == pugi::node_pcdata && !isBlank(utf8));
}

QString textOf(pugi::xml_node element)
{
    if (!element)
        return {};
    const char *ownText = element.value();
    if (!element.first_child() && !isBlank(ownText)) // as nearly all are
        return toQString(ownText);
    QString text;
    visitCharacterData(element, [&text](const char *utf8) { text += toQString(utf8); });
    return text.isNull() ? QString(QLatin1String("")) : text;
}

bool hasText(pugi::xml_node element, QAnyStringView text)
{
    if (!element)
        return false;
    if (!element.first_child() && !isBlank(element.value()))
        return text.visit([element](auto view) { return equals(element.value(), view); });
    return text.visit([element](auto view) { return textOf(element) == toText(view); });
}

unsigned int uintOf(pugi::xml_node element)
{
    return element.first_child() ? toUInt(TransientText(element).view()) : toUInt(QByteArrayView(element.value()));
}

int intOf(pugi::xml_node element)
{
    return element.first_child() ? toInt(TransientText(element).view()) : toInt(QByteArrayView(element.value()));
}

double doubleOf(pugi::xml_node element)
{
    return element.first_child() ? toDouble(TransientText(element).view()) : toDouble(QByteArrayView(element.value()));
}

bool boolOf(pugi::xml_node element)
{
    if (!element)
        return false;
    if (!element.first_child()) { // nothing, or one piece of text, which nearly always is one of these words
        if (std::strcmp(element.value(), "true") == 0)
            return true;
        if (std::strcmp(element.value(), "false") == 0 || *element.value() == '\0')
            return false;
    }
    const TransientText text(element);
    const QStringView word = text.view().trimmed();
    return word == QLatin1String("true") || word == QLatin1String("1");
}

} // namespace vorn
