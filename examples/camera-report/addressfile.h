#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace client {

/// What an address looks like, for those who gave another text.
inline const char *const addressForms =
    "give a host such as 192.0.2.7, 192.0.2.7:8080 or [2001:db8::7], or a URL such as https://192.0.2.7/onvif.";

/// What is in a file of addresses.
struct AddressList
{
    QStringList addresses;
    QString complaint; ///< one sentence if the file cannot be read, or something else stands in it
};

/// The addresses in \a fileName, one on each line; "-" is standard input. Empty lines and what stands behind a "#" do
/// not count.
AddressList addressesIn(const QString &fileName);

} // namespace client
