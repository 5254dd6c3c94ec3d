#pragma once

#include <QtCore/QString>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QSslCertificate>
#include <QtNetwork/QSslKey>

namespace simulator {

/// A certificate that signs itself, or why there is none.
struct OwnCertificate
{
    QSslCertificate certificate;
    QSslKey key;
    QString complaint; ///< one sentence
};

/// Makes a certificate for a device at \a address. Qt can use certificates but makes none; the openssl command does,
/// which every system has packed, and so no library more is needed.
OwnCertificate makeCertificate(const QHostAddress &address);

} // namespace simulator
