#include <vorn/onvif/placeholderstring.h>

#include <sstream>

namespace vorn {
namespace {

template <typename Value>
std::string streamed(Value value)
{
    std::stringstream stream;
    stream << value;
    return stream.str();
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
    return replace(streamed(value));
}

PlaceHolderString &PlaceHolderString::arg(unsigned short value)
{
    return replace(streamed(value));
}

PlaceHolderString &PlaceHolderString::arg(int value)
{
    return replace(streamed(value));
}

PlaceHolderString &PlaceHolderString::arg(unsigned int value)
{
    return replace(streamed(value));
}

PlaceHolderString &PlaceHolderString::arg(long value)
{
    return replace(streamed(value));
}

PlaceHolderString &PlaceHolderString::arg(unsigned long value)
{
    return replace(streamed(value));
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
    const std::size_t hit = m_private->text.find_first_of(m_private->placeHolder, m_private->position);
    if (hit != std::string::npos) {
        m_private->text.replace(hit, m_private->placeHolder.size(), value);
        m_private->position = hit + value.size();
    }
    return *this;
}

} // namespace vorn
