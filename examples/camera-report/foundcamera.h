#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtNetwork/QHostAddress>

#include <optional>

namespace client {

/// A camera that answered a probe: what is shown of it, and no more, as anybody can send answers.
struct FoundCamera
{
    QHostAddress sender;   ///< who sent the answer
    QStringList addresses; ///< all that the camera names; those of TLS as URLs
    QString name;
    QString hardware;
    QStringList types;     ///< what kinds of device it is, in its own order
    QStringList locations; ///< where it is, likewise
    QString endpoint;      ///< its identity, which some makers give to all their devices
    QString path;          ///< of its device service; empty if that is the usual one

    /// What --address takes for the first of the addresses that is the sender's; empty if none is. An answer may name
    /// anyone: whoever is asked, and gets what can be made of the password to see, has at least answered himself.
    QString ownAddress() const;

    /// How much memory its texts take, in bytes.
    qsizetype size() const;
};

/// The camera in \a datagram, an answer to a probe; nothing if there is none.
std::optional<FoundCamera> foundCamera(const QByteArray &datagram, const QHostAddress &sender);

/// \a message with all its white space made plain: the library takes only blanks for what separates scopes and
/// addresses, as documented, but some devices send line breaks. In UTF-8 and other encodings that have ASCII in them
/// this does no harm; a message of another encoding stays as it is.
QByteArray withPlainSpaces(const QByteArray &message);

} // namespace client
