#pragma once

#include "credentials.h"
#include "soap.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtCore/QString>

namespace client {

/// A folder in which the replies of one camera are kept, for onvif-inspect and simulated-device to read.
class SavedReplies
{
public:
    SavedReplies(const QString &folder, const Credentials &credentials);

    /// Keeps \a reply, the bytes that came for \a request, but for what withoutSecrets() takes out of it. The first
    /// reply to an action has the name of that; further ones have the variant of their request in their names. Returns
    /// one sentence if it cannot be kept.
    QString keep(const Request &request, const QByteArray &reply, const QList<QByteArray> &secrets);

private:
    QString m_folder;
    QList<QByteArray> m_secrets; ///< the password in the forms in which it could stand in a reply
    QSet<QString> m_kept;        ///< the names of the files
};

/// \a reply without any of \a secrets, without tokens that prove who asks, and without what looks like a password in
/// addresses: some devices send back what they are sent, or write the user into the address of a stream.
QByteArray withoutSecrets(const QByteArray &reply, const QList<QByteArray> &secrets);

/// The folder below \a folder for the replies of the camera at \a address, where there are several.
QString folderOf(const QString &folder, const QString &address);

} // namespace client
