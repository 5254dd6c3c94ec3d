#pragma once

#include "interfacechange.h"
#include "probe.h"
#include "soapclient.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

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

/// In which form cameras are shown.
enum class Form { Text, Json, Table };

/// What the user wants.
struct Options
{
    QStringList addresses; ///< of the cameras to ask
    bool searches = false; ///< whether cameras are searched for instead
    ProbeTarget probe;     ///< where to
    bool all = false;      ///< a report for each camera that is found
    Access access;         ///< but for the password
    QString passwordFile;
    int jobs = 16;      ///< how many are asked at once
    QString saveFolder; ///< where replies are kept; empty: nowhere
    std::optional<InterfaceChange> change;
    bool apply = false;
    Form form = Form::Text;
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
