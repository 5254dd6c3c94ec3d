#pragma once

/// \file
/// Filling values into a text template.

#include <vorn/onvif/export.h>

#include <QtCore/QString>

#include <memory>
#include <string>

namespace vorn {

/// A text template whose placeholders are filled from left to right.
///
/// \code
/// PlaceHolderString("<tt:IPv4Address>$@</tt:IPv4Address>", "$@").arg(address).qStr()
/// \endcode
///
/// Each `arg` fills the next placeholder. What has been filled in is not looked at again, so that a value may hold the
/// placeholder's characters. Nothing is escaped: a value with markup goes in as it stands. Values beyond the last
/// placeholder are ignored; placeholders beyond the last value stay.
///
/// The template outside its placeholders must hold none of the placeholder's characters: any one of them is taken for
/// the start of a placeholder.
class VORNSDK_ONVIF_EXPORT PlaceHolderString
{
public:
    /// A template \a text with the placeholder \a placeHolder. If that is empty, the text never changes.
    PlaceHolderString(const std::string &text, const std::string &placeHolder);

    PlaceHolderString(const PlaceHolderString &) = delete;
    PlaceHolderString &operator=(const PlaceHolderString &) = delete;
    ~PlaceHolderString();

    PlaceHolderString &arg(const std::string &value); ///< Filled in as it stands.
    PlaceHolderString &arg(const QString &value);     ///< Filled in as UTF-8.

    /// A number in plain decimal, as a stream with the global C++ locale writes it.
    PlaceHolderString &arg(short value);
    PlaceHolderString &arg(unsigned short value); ///< \copybrief arg(short)
    PlaceHolderString &arg(int value);            ///< \copybrief arg(short)
    PlaceHolderString &arg(unsigned int value);   ///< \copybrief arg(short)
    PlaceHolderString &arg(long value);           ///< \copybrief arg(short)
    PlaceHolderString &arg(unsigned long value);  ///< \copybrief arg(short)

    /// A number with up to 6 significant digits: "3.5", "1.23457e+06".
    PlaceHolderString &arg(float value);
    PlaceHolderString &arg(double value);      ///< \copybrief arg(float)
    PlaceHolderString &arg(long double value); ///< \copybrief arg(float)

    PlaceHolderString &arg(void *value);       ///< The address, in the format of the standard library.
    PlaceHolderString &arg(const char *value); ///< A text that ends with a zero byte. Must not be null.
    PlaceHolderString &arg(bool value);        ///< "true" or "false".

    /// The text as filled so far. The reference is valid as long as the object.
    const std::string &str() const;

    /// The text as filled so far, read as UTF-8.
    QString qStr() const;

private:
    PlaceHolderString &replace(const std::string &value);

    struct Private;
    std::unique_ptr<Private> m_private;
};

} // namespace vorn
