#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <string>
#include <vector>

namespace bench {

struct Reply
{
    std::string name; ///< the folder, and whether the white space between the elements was removed
    QByteArray bytes;
};

/// The replies below \a folder whose files are called \a operation, each as it stands and with the white space between
/// its elements removed.
std::vector<Reply> repliesTo(const QString &operation, const QString &folder);

/// A reply with \a count profiles, each the first of a sample.
QByteArray replyWithProfiles(int count);

QByteArray replyWithInterfaces(int count);
QByteArray replyWithScopes(int count);

/// Ends the program with \a what unless \a holds: a cost is worth nothing where the result is wrong.
void require(bool holds, const std::string &what);

} // namespace bench
