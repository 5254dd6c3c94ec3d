#include "encoding.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QStringDecoder>

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace vorn {
namespace {

constexpr QByteArrayView declarationStart("<?xml");

/// Recognises the encodings that show in the first bytes: by a byte order mark, or by the zero bytes of UTF-16 and
/// UTF-32. A reply starts with markup or, from some devices, with white space.
std::optional<QStringConverter::Encoding> detectedEncoding(QByteArrayView bytes)
{
    if (bytes.size() > 1 && bytes[0] == '<' && bytes[1] != '\0') // nearly every reply
        return std::nullopt;
    for (const char16_t first : {u'<', u'\n', u'\r', u' ', u'\t'}) {
        if (const auto encoding = QStringConverter::encodingForData(bytes, first))
            return encoding;
    }
    return std::nullopt;
}

/// Tells the XML declaration from a processing instruction such as <?xml-stylesheet?>.
bool startsWithDeclaration(QByteArrayView reply)
{
    return reply.startsWith(declarationStart) && reply.size() > declarationStart.size()
           && QByteArrayView(" \t\r\n").contains(reply[declarationStart.size()]);
}

/// Whether \a name is made of the characters that XML allows in it. Others must not reach a converter, which may take
/// them for the path of a file.
bool isEncodingName(QByteArrayView name)
{
    const auto isAllowed = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.' || c == '_'
               || c == '-';
    };
    return std::all_of(name.begin(), name.end(), isAllowed);
}

/// The encoding's name in the XML declaration; empty if there is none.
QByteArrayView declaredEncoding(QByteArrayView bytes)
{
    const QByteArrayView reply = bytes.trimmed();
    if (!startsWithDeclaration(reply))
        return {};
    const QByteArrayView declaration = reply.first(qMax(reply.indexOf('>'), qsizetype(0)));

    constexpr std::string_view keyword("encoding");
    const std::string_view text(declaration.data(), std::size_t(declaration.size()));
    const auto position = text.find(keyword);
    if (position == std::string_view::npos)
        return {};
    QByteArrayView rest = QByteArrayView(text.substr(position + keyword.size())).trimmed();
    if (!rest.startsWith('='))
        return {};
    rest = rest.sliced(1).trimmed();
    if (!rest.startsWith('"') && !rest.startsWith('\''))
        return {};
    const qsizetype end = rest.indexOf(rest.front(), 1);
    return end < 0 ? QByteArrayView() : rest.sliced(1, end - 1);
}

/// Decodes by the name in the XML declaration, unless that is UTF-8 or of no use.
std::optional<QString> decodedAsDeclared(const QByteArray &bytes)
{
    const QByteArrayView declared = declaredEncoding(bytes);
    if (declared.isEmpty() || declared.compare("UTF-8", Qt::CaseInsensitive) == 0)
        return std::nullopt;
    if (!isEncodingName(declared))
        return std::nullopt;
    const QByteArray name = declared.toByteArray();
    const auto encoding = QStringConverter::encodingForName(name.constData());
    if (encoding == QStringConverter::Utf8)
        return std::nullopt;
    if (encoding == QStringConverter::System) // what a reply says must not depend on the client's locale
        return std::nullopt;
    QStringDecoder decoder(name.constData());
    if (!decoder.isValid())
        return std::nullopt;
    QString text = decoder(bytes);
    // Devices declare "utf-16" because their text was in memory that way, and then send UTF-8. A declaration that does
    // not survive its own encoding is wrong.
    if (!QStringView(text).trimmed().startsWith(QLatin1String(declarationStart)))
        return std::nullopt;
    return text;
}

std::optional<QString> decodedFromOtherThanUtf8(const QByteArray &bytes)
{
    const auto detected = detectedEncoding(bytes);
    if (!detected)
        return decodedAsDeclared(bytes);
    if (detected == QStringConverter::Utf8)
        return std::nullopt;
    QStringDecoder decoder(*detected);
    return decoder(bytes);
}

/// \a bytes with U+FFFD in place of each NUL. In one pass: QByteArray::replace() moves all that follows again and
/// again, so that its time grows with the square of the size.
QByteArray withNulsReplaced(QByteArrayView bytes)
{
    constexpr QByteArrayView replacement("\xEF\xBF\xBD");
    QByteArray result;
    result.reserve(bytes.size() + bytes.count('\0') * (replacement.size() - 1));
    for (const char byte : bytes) {
        if (byte == '\0')
            result += replacement;
        else
            result += byte;
    }
    return result;
}

} // namespace

DecodedReply decodeReply(const QByteArray &bytes)
{
    DecodedReply reply;
    if (auto text = decodedFromOtherThanUtf8(bytes)) {
        reply.text = *std::move(text);
        reply.utf8 = reply.text.toUtf8();
    } else {
        reply.text = QString::fromUtf8(bytes);
        reply.utf8 = bytes;
    }

    // The parser takes a NUL for the end of the reply. Behind the reply it is one: the terminator of a C string that
    // the device sent along.
    if (reply.utf8.contains('\0')) {
        QByteArrayView kept(reply.utf8);
        while (kept.endsWith('\0'))
            kept.chop(1);
        reply.utf8 = withNulsReplaced(kept);
    }
    return reply;
}

} // namespace vorn
