#pragma once

#include "interfacechange.h"
#include "probe.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>
#include <optional>

namespace client {

/// How the program ends. The numbers are promised by --help.
enum ExitCode : int {
    Complete = 0,     ///< All that was asked for was answered.
    Incomplete = 1,   ///< A request failed, or was answered with a fault.
    CannotRun = 2,    ///< The command line is wrong, or the program lacks what it needs.
    NothingFound = 3, ///< No camera answered the search.
    Stopped = 130,    ///< The user stopped the program.
};

/// What the user wants.
struct Options
{
    QString address;   ///< of one camera; if empty, cameras are searched for
    ProbeTarget probe; ///< where to
    bool all = false;  ///< a report for each camera that is found
    QString user;
    QString passwordFile;
    std::chrono::milliseconds timeout = std::chrono::seconds(5);
    std::optional<InterfaceChange> change;
    bool apply = false;
    bool json = false;
    bool quiet = false;
};

/// What came of reading the command line: one of the three.
struct CommandLine
{
    std::optional<Options> options;
    QString complaint; ///< one sentence
    QString answer;    ///< to --help and --version
};

CommandLine readCommandLine(const QStringList &arguments);

} // namespace client
