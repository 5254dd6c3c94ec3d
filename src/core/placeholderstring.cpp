#include <vorn/onvif/placeholderstring.h>

#include <algorithm>
#include <locale>
#include <sstream>
#include <string>

namespace vorn {
namespace {

template <typename Value>
std::string streamed(Value value)
{
    std::stringstream stream;
    stream << value;
    return stream.str();
}

/// Whether the locale of the program has the facet of the classic one. Locales are not asked whether they are equal, as
/// their names decide that.
template <typename Facet>
bool hasClassic(const std::locale &locale)
{
    return &std::use_facet<Facet>(locale) == &std::use_facet<Facet>(std::locale::classic());
}

/// As streamed(), at a small part of the cost in a program that changes no locale.
template <typename Integer>
std::string streamedInteger(Integer value)
{
    const std::locale locale;
    const bool isPlain = hasClassic<std::num_put<char>>(locale) && hasClassic<std::numpunct<char>>(locale);
    return isPlain ? std::to_string(value) : streamed(value);
}

} // namespace

struct PlaceHolderString::Private
{
    std::string text;
    std::string placeHolder;
    std::size_t position = 0; // where the search for the next placeholder starts
};

PlaceHolderString::PlaceHolderString(const std::string &text, const std::string &placeHolder)
    : m_private(new Private{text, placeHolder})
{
}

PlaceHolderString::~PlaceHolderString() = default;

PlaceHolderString &PlaceHolderString::arg(const std::string &value)
{
    return replace(value);
}

PlaceHolderString &PlaceHolderString::arg(const QString &value)
{
    return replace(value.toStdString());
}

PlaceHolderString &PlaceHolderString::arg(short value)
{
    return replace(streamedInteger(value));
}

PlaceHolderString &PlaceHolderString::arg(unsigned short value)
{
    return replace(streamedInteger(value));
}

PlaceHolderString &PlaceHolderString::arg(int value)
{
    return replace(streamedInteger(value));
}

PlaceHolderString &PlaceHolderString::arg(unsigned int value)
{
    return replace(streamedInteger(value));
}

PlaceHolderString &PlaceHolderString::arg(long value)
{
    return replace(streamedInteger(value));
}

PlaceHolderString &PlaceHolderString::arg(unsigned long value)
{
    return replace(streamedInteger(value));
}

PlaceHolderString &PlaceHolderString::arg(float value)
{
    return replace(streamed(value));
}

PlaceHolderString &PlaceHolderString::arg(double value)
{
    return replace(streamed(value));
}

PlaceHolderString &PlaceHolderString::arg(long double value)
{
    return replace(streamed(value));
}

PlaceHolderString &PlaceHolderString::arg(void *value)
{
    return replace(streamed<const void *>(value));
}

PlaceHolderString &PlaceHolderString::arg(const char *value)
{
    return replace(streamed(value));
}

PlaceHolderString &PlaceHolderString::arg(bool value)
{
    return replace(value ? "true" : "false");
}

const std::string &PlaceHolderString::str() const
{
    return m_private->text;
}

QString PlaceHolderString::qStr() const
{
    return QString::fromStdString(m_private->text);
}

PlaceHolderString &PlaceHolderString::replace(const std::string &value)
{
    std::size_t hit = std::string::npos;
    for (const char character : m_private->placeHolder) // as find_first_of(), which searches byte by byte
        hit = std::min(hit, m_private->text.find(character, m_private->position));
    if (hit != std::string::npos) {
        m_private->text.replace(hit, m_private->placeHolder.size(), value);
        m_private->position = hit + value.size();
    }
    return *this;
}

} // namespace vorn
