#include "encoding.h"

#include <QtCore/QByteArrayView>
#include <QtCore/QStringDecoder>
#include <QtCore/QtEndian>

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

/// \a name in the form in which names are compared: case, "-" and "_" do not count.
QByteArray comparable(QByteArrayView name)
{
    QByteArray result;
    for (const char c : name) {
        if (c != '-' && c != '_')
            result += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return result;
}

// Versions of ICU differ in GB18030.

/// How many bytes the character at the start of \a bytes takes; 1 if it is none.
qsizetype sizeOfCharacterOfGb18030(QByteArrayView bytes)
{
    const auto isBetween = [bytes](qsizetype index, int first, int last) {
        return index < bytes.size() && static_cast<unsigned char>(bytes[index]) >= first
               && static_cast<unsigned char>(bytes[index]) <= last;
    };
    if (!isBetween(0, 0x81, 0xFE))
        return 1;
    if (isBetween(1, 0x40, 0x7E) || isBetween(1, 0x80, 0xFE))
        return 2;
    return isBetween(1, '0', '9') && isBetween(2, 0x81, 0xFE) && isBetween(3, '0', '9') ? 4 : 1;
}

/// A byte 0x80 that starts a character is none, or the sign for Euro in some versions. Here it is none, as 0xFF is
/// none.
QByteArray withoutEurosOfOneByte(QByteArray bytes)
{
    for (qsizetype i = 0; i < bytes.size(); i += sizeOfCharacterOfGb18030(QByteArrayView(bytes).sliced(i))) {
        if (bytes.at(i) == '\x80')
            bytes[i] = '\xFF';
    }
    return bytes;
}

/// These characters are read as what they have been since the edition of 2022, or as characters for private use, which
/// stood for them before. Here they are what they are now.
void replacePrivateCharactersOfGb18030(QString &text)
{
    constexpr QStringView before = u"\uE5E5\uE78D\uE78E\uE78F\uE790\uE791\uE792\uE793\uE794\uE795\uE796"
                                   u"\uE81E\uE826\uE82B\uE82C\uE832\uE843\uE854\uE864";
    constexpr QStringView now = u"\u3000\uFE10\uFE12\uFE11\uFE13\uFE14\uFE15\uFE16\uFE17\uFE18\uFE19"
                                u"\u9FB4\u9FB5\u9FB6\u9FB7\u9FB8\u9FB9\u9FBA\u9FBB";
    static_assert(before.size() == now.size());
    for (QChar &character : text) {
        const qsizetype index =
            character < before.front() || character > before.back() ? -1 : before.indexOf(character);
        if (index >= 0)
            character = now[index];
    }
}

/// The decoder for \a encoding, or an invalid one if Qt does not know it. Qt gives an invalid one when memory runs out
/// too, and other values would be read: so it is asked again, unless memory is too short.
QStringDecoder decoderFor(const QByteArray &encoding)
{
    QStringDecoder decoder(encoding.constData());
    if (decoder.isValid())
        return decoder;
    constexpr qsizetype roomForDecoder = 65536;
    (void)QByteArray(roomForDecoder, Qt::Uninitialized); // or std::bad_alloc
    return QStringDecoder(encoding.constData());
}

/// Decodes by the name in the XML declaration, unless that is UTF-8 or of no use.
std::optional<QString> decodedAsDeclared(const QByteArray &bytes)
{
    const QByteArrayView declared = declaredEncoding(bytes);
    if (declared.isEmpty() || declared.compare("UTF-8", Qt::CaseInsensitive) == 0)
        return std::nullopt;
    if (!isEncodingName(declared))
        return std::nullopt;
    const QByteArray name = comparable(declared);
    if (name == "utf8")
        return std::nullopt;
    if (name == "locale") // Qt's name for that of the client, on which it must not depend what a reply says
        return std::nullopt;
    QStringDecoder decoder = decoderFor(declared.toByteArray());
    if (!decoder.isValid())
        return std::nullopt;
    const bool isGb18030 = comparable(decoder.name()) == "gb18030"; // by whatever name
    QString text = decoder(isGb18030 ? withoutEurosOfOneByte(bytes) : bytes);
    if (isGb18030)
        replacePrivateCharactersOfGb18030(text);
    // Devices declare "utf-16" because their text was in memory that way, and then send UTF-8. A declaration that does
    // not survive its own encoding is wrong.
    if (!QStringView(text).trimmed().startsWith(QLatin1String(declarationStart)))
        return std::nullopt;
    return text;
}

/// UTF-32 with U+FFFD for each number beyond Unicode, of which QStringDecoder makes other characters in some versions.
QString decodedFromUtf32(QByteArrayView bytes, bool isBigEndian)
{
    QString text(bytes.size() / 2, Qt::Uninitialized); // enough for nothing but pairs
    QChar *next = text.data();
    for (; bytes.size() >= 4; bytes = bytes.sliced(4)) {
        const auto number =
            isBigEndian ? qFromBigEndian<char32_t>(bytes.data()) : qFromLittleEndian<char32_t>(bytes.data());
        if (QChar::requiresSurrogates(number) && number <= QChar::LastValidCodePoint) {
            *next++ = QChar::highSurrogate(number);
            *next++ = QChar::lowSurrogate(number);
        } else {
            *next++ = number <= 0xFFFF ? QChar(static_cast<char16_t>(number)) : QChar(QChar::ReplacementCharacter);
        }
    }
    text.truncate(next - text.data());
    if (text.startsWith(QChar::ByteOrderMark))
        text.remove(0, 1);
    return text;
}

std::optional<QString> decodedFromOtherThanUtf8(const QByteArray &bytes)
{
    const auto detected = detectedEncoding(bytes);
    if (!detected)
        return decodedAsDeclared(bytes);
    if (detected == QStringConverter::Utf8)
        return std::nullopt;
    if (detected == QStringConverter::Utf32LE || detected == QStringConverter::Utf32BE)
        return decodedFromUtf32(bytes, detected == QStringConverter::Utf32BE);
    QStringDecoder decoder(*detected);
    return decoder(bytes);
}

/// \a text with a question mark in place of each surrogate that is none of a pair. QString::toUtf8() writes one itself
/// in some versions, and leaves the surrogate out in others.
QString withLoneSurrogatesReplaced(const QString &text)
{
    QString result = text;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair)
            ++i;
        else if (text[i].isSurrogate())
            result[i] = QLatin1Char('?');
    }
    return result;
}

QByteArray toUtf8(const QString &text)
{
    const bool leavesSurrogatesOut = QStringView(u"\xD800").toUtf8() != "?";
    if (leavesSurrogatesOut && !text.isValidUtf16())
        return withLoneSurrogatesReplaced(text).toUtf8();
    return text.toUtf8();
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
        reply.utf8 = toUtf8(reply.text);
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
