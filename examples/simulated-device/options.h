#pragma once

#include "troubles.h"

#include <QtCore/QDir>
#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtNetwork/QHostAddress>

#include <optional>

namespace simulator {

/// How requests have to prove who they come from.
enum class Authentication {
    None,
    Token, ///< WS-UsernameToken with a digest
    Http,  ///< Digest of HTTP; Basic is offered first
    Basic, ///< Basic of HTTP, which hands over the password
};

/// What the user wants to be simulated.
struct Options
{
    QDir folder;                     ///< ACTION.xml is the reply to ACTION
    QHash<QString, QString> answers; ///< files for some actions instead
    Troubles troubles;
    Authentication authentication = Authentication::None;
    QString user;
    QString password;
    int nonceUses = 0;     ///< how many requests a nonce of Digest is good for
    int nonceLife = 0;     ///< for how many seconds
    qint64 clockAhead = 0; ///< seconds by which the clock of the device is ahead of this machine's
    QHostAddress listen;
    quint16 port = 0;      ///< of the first device; 0: the system chooses for each
    quint16 probePort = 0; ///< for probes that are sent here alone; 0: the system chooses
    int devices = 1;
    bool tls = false;           ///< whether they speak HTTP over TLS
    bool keepAddresses = false; ///< whether the addresses in replies stay as they are
    QString recordFolder;       ///< where each request is kept; empty: nowhere
};

/// What came of reading the command line: one of the three.
struct CommandLine
{
    std::optional<Options> options;
    QString complaint; ///< one sentence
    QString answer;    ///< to --help
};

CommandLine readCommandLine(const QStringList &arguments);

} // namespace simulator
