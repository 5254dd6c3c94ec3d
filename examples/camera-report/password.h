#pragma once

#include <QtCore/QString>

#include <optional>

namespace client {

/// A password, or why there is none.
struct PasswordInput
{
    std::optional<QString> password;
    bool stopped = false; ///< the user gave up
    QString complaint;    ///< one sentence for any other reason
};

/// The first line of a file.
PasswordInput passwordFromFile(const QString &fileName);

/// Asks at the terminal, without showing what is typed. Gives up when \a stopDescriptor becomes readable.
PasswordInput passwordFromTerminal(const QString &user, int stopDescriptor);

} // namespace client
