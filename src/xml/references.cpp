#include "references.h"

#include <QtCore/QChar>
#include <QtCore/QStringView>

#include <algorithm>
#include <cstring>
#include <utility>

namespace vorn {
namespace {

/// What stands at an ampersand.
struct Reference
{
    qsizetype size = 0; // 0 if it is no reference
    char32_t number = 0;
};

constexpr char32_t beyondUnicode = QChar::LastValidCodePoint + 1;

bool isCharacter(char32_t number)
{
    return number != 0 && number < beyondUnicode && !QChar::isSurrogate(number);
}

/// The value of a digit, or \a base if \a c is none.
unsigned int digitValue(char c, unsigned int base)
{
    if (c >= '0' && c <= '9')
        return static_cast<unsigned int>(c - '0');
    const char lower = static_cast<char>(c | ' ');
    return base == 16 && lower >= 'a' && lower <= 'f' ? static_cast<unsigned int>(lower - 'a' + 10) : base;
}

/// The reference by number at the start of \a text.
Reference numericReference(QByteArrayView text)
{
    if (!text.startsWith("&#"))
        return {};
    const bool isHexadecimal = text.startsWith("&#x");
    const unsigned int base = isHexadecimal ? 16 : 10;
    const qsizetype first = isHexadecimal ? 3 : 2;
    qsizetype next = first;
    char32_t number = 0;
    for (; next < text.size() && digitValue(text[next], base) < base; ++next)
        number = std::min<char32_t>(number * base + digitValue(text[next], base), beyondUnicode);
    const bool isComplete = next > first && next < text.size() && text[next] == ';';
    return isComplete ? Reference{next + 1, number} : Reference();
}

Reference referenceAt(QByteArrayView text)
{
    for (const auto &[written, character] : {std::pair("&lt;", U'<'), std::pair("&gt;", U'>'), std::pair("&amp;", U'&'),
                                             std::pair("&quot;", U'"'), std::pair("&apos;", U'\'')}) {
        if (text.startsWith(written))
            return {static_cast<qsizetype>(std::strlen(written)), character};
    }
    return numericReference(text);
}

} // namespace

bool holdsReferenceToNoCharacter(QByteArrayView utf8)
{
    for (qsizetype next = utf8.indexOf('&'); next >= 0; next = utf8.indexOf('&', next + 1)) {
        const Reference reference = numericReference(utf8.sliced(next));
        if (reference.size > 0 && !isCharacter(reference.number))
            return true;
    }
    return false;
}

void resolveReferences(char *value)
{
    char *output = std::strchr(value, '&');
    if (!output)
        return;
    QByteArrayView rest(output);
    while (!rest.isEmpty()) {
        const Reference reference = referenceAt(rest);
        if (reference.size == 0) {
            *output++ = rest.front();
            rest = rest.sliced(1);
            continue;
        }
        const char32_t character = isCharacter(reference.number) ? reference.number : U'\uFFFD';
        const QByteArray utf8 = QStringView(QChar::fromUcs4(character)).toUtf8();
        output = std::copy(utf8.begin(), utf8.end(), output);
        rest = rest.sliced(reference.size);
    }
    *output = '\0';
}

} // namespace vorn
