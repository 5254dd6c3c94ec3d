#include "options.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFileInfo>

namespace simulator {
namespace {

const char *const description =
    R"(Simulates ONVIF devices that answer out of a folder: ACTION.xml is the reply to
the request ACTION, and ProbeMatches.xml that to a probe. The addresses in
XAddr and XAddrs become its own, and the time that of this machine. Requests for
what a profile token stands for may have a file of their own, such as
GetStreamUri.TOKEN.UDP.xml. A request without a file is answered with the fault
ActionNotSupported; but GetSystemDateAndTime, GetStreamUri, GetSnapshotUri,
SetNetworkInterfaces and probes are answered in any case. Nothing that a request
sets is kept, and there is no video.

When it is ready, it prints one line of JSON: the addresses of the devices,
where it takes probes, and whether it takes those by multicast, too. SIGINT or
SIGTERM stops it.

Exit codes: 0 it was stopped; 2 the command line is wrong, or it cannot listen.)";

struct Known
{
    QCommandLineOption help{{"h", "help"}, "Shows this help."};
    QCommandLineOption answer{"answer", "Answers ACTION with FILE. Can be repeated.", "ACTION=FILE"};
    QCommandLineOption trouble{"trouble",
                               "Makes the answer to ACTION, or all answers, go wrong: " + troubleNames().join(", ")
                                   + ". Can be repeated.",
                               "[ACTION=]KIND"};
    QCommandLineOption auth{"auth", "Wants authentication: token, http or basic.", "KIND"};
    QCommandLineOption user{"user", "The user that is let in. Without it: operator.", "NAME", "operator"};
    QCommandLineOption password{"password", "The password. Without it: simulated.", "TEXT", "simulated"};
    QCommandLineOption nonceUses{"nonce-uses", "After how many requests a nonce of Digest ends. Without it: 1000.",
                                 "NUMBER", "1000"};
    QCommandLineOption nonceLife{"nonce-life", "After how many seconds it ends in any case. Without it: 300.",
                                 "SECONDS", "300"};
    QCommandLineOption clockAhead{"clock-ahead", "By how much the clock is ahead.", "SECONDS", "0"};
    QCommandLineOption listen{"listen", "The IPv4 address to listen at. Without it: 127.0.0.1.", "ADDRESS",
                              "127.0.0.1"};
    QCommandLineOption port{"port", "The port of the first device, and so on. Without it: any.", "NUMBER", "0"};
    QCommandLineOption probePort{"probe-port", "A port for probes that come without multicast.", "NUMBER", "0"};
    QCommandLineOption devices{"devices", "How many devices, from 1 to 1000.", "NUMBER", "1"};
    QCommandLineOption tls{"tls", "Speaks HTTP over TLS only, with a certificate that it makes for itself."};
    QCommandLineOption keepAddresses{"keep-addresses", "Leaves the addresses in replies as they are."};
    QCommandLineOption record{"record", "Keeps each request in a file in FOLDER.", "FOLDER"};

    QList<QCommandLineOption> inOrder() const
    {
        return {help,       answer, trouble, auth,      user,    password, nonceUses,     nonceLife,
                clockAhead, listen, port,    probePort, devices, tls,      keepAddresses, record};
    }
};

/// "ACTION=VALUE", or "VALUE" for all actions.
std::pair<QString, QString> split(const QString &text)
{
    const qsizetype equals = text.indexOf('=');
    return {text.left(std::max<qsizetype>(equals, 0)), text.mid(equals + 1)};
}

// Each of these reads some of the options, and returns one sentence if they are wrong.

QString readReplies(const QCommandLineParser &parser, const Known &known, Options &options)
{
    if (parser.positionalArguments().size() > 1)
        return "Name only one folder with replies.";
    options.folder = QDir(parser.positionalArguments().value(0, SAMPLES_FOLDER "/short-prefixes"));
    if (!options.folder.exists())
        return QString("There is no folder %1.").arg(options.folder.path());
    for (const QString &text : parser.values(known.answer)) {
        const auto [action, file] = split(text);
        if (action.isEmpty() || !QFileInfo(file).isReadable())
            return QString("%1 names no action and a file that can be read.").arg(text);
        options.answers.insert(action, file);
    }
    if (options.answers.isEmpty() && options.folder.entryList({"*.xml"}, QDir::Files | QDir::Readable).isEmpty())
        return QString("The folder %1 holds no reply that can be read, such as GetScopes.xml.")
            .arg(options.folder.path());
    for (const QString &text : parser.values(known.trouble)) {
        const auto [action, name] = split(text);
        const Trouble trouble = troubleByName(name);
        if (trouble == Trouble::None)
            return QString("There is no trouble %1; there are: %2.").arg(name, troubleNames().join(", "));
        options.troubles.insert(action, trouble);
    }
    return {};
}

/// Reads the number of \a option into \a value; false if it is none from \a smallest to \a largest.
template <typename Number>
bool readNumber(const QCommandLineParser &parser, const QCommandLineOption &option, qint64 smallest, qint64 largest,
                Number &value)
{
    bool isNumber = false;
    const qint64 number = parser.value(option).toLongLong(&isNumber);
    value = static_cast<Number>(number);
    return isNumber && number >= smallest && number <= largest;
}

QString readAuthentication(const QCommandLineParser &parser, const Known &known, Options &options)
{
    const QHash<QString, Authentication> kinds = {{"", Authentication::None},
                                                  {"token", Authentication::Token},
                                                  {"http", Authentication::Http},
                                                  {"basic", Authentication::Basic}};
    if (!kinds.contains(parser.value(known.auth)))
        return "--auth wants token, http or basic.";
    options.authentication = kinds.value(parser.value(known.auth));
    options.user = parser.value(known.user);
    options.password = parser.value(known.password);
    if (!readNumber(parser, known.nonceUses, 1, 1000000, options.nonceUses))
        return "--nonce-uses wants a number from 1 to 1000000.";
    if (!readNumber(parser, known.nonceLife, 0, 1000000, options.nonceLife))
        return "--nonce-life wants a number of seconds from 0 to 1000000.";
    return {};
}

QString readPlace(const QCommandLineParser &parser, const Known &known, Options &options)
{
    options.listen = QHostAddress(parser.value(known.listen));
    options.tls = parser.isSet(known.tls);
    options.keepAddresses = parser.isSet(known.keepAddresses);
    options.recordFolder = parser.value(known.record);
    if (options.listen.protocol() != QHostAddress::IPv4Protocol || options.listen == QHostAddress::AnyIPv4)
        return "--listen wants an IPv4 address of this machine.";
    if (!readNumber(parser, known.devices, 1, 1000, options.devices))
        return "--devices wants a number from 1 to 1000.";
    if (!readNumber(parser, known.port, 0, 65536 - options.devices, options.port)
        || !readNumber(parser, known.probePort, 0, 65535, options.probePort))
        return "--port and --probe-port want the number of a port.";
    if (!readNumber(parser, known.clockAhead, -1000000000, 1000000000, options.clockAhead))
        return "--clock-ahead wants a number of seconds.";
    if (!options.recordFolder.isEmpty() && !QFileInfo(options.recordFolder).isDir())
        return QString("There is no folder %1.").arg(options.recordFolder);
    return {};
}

QString readOptions(const QCommandLineParser &parser, const Known &known, Options &options)
{
    for (const auto read : {readReplies, readAuthentication, readPlace}) {
        QString complaint = read(parser, known, options);
        if (!complaint.isEmpty())
            return complaint;
    }
    return {};
}

} // namespace

CommandLine readCommandLine(const QStringList &arguments)
{
    const Known known;
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    parser.addOptions(known.inOrder());
    parser.addPositionalArgument("FOLDER", "The folder with the replies. Without it: samples/short-prefixes.",
                                 "[FOLDER]");
    CommandLine line;
    Options options;
    if (!parser.parse(arguments))
        line.complaint = parser.errorText();
    else if (parser.isSet(known.help))
        line.answer = parser.helpText();
    else
        line.complaint = readOptions(parser, known, options);
    if (line.answer.isEmpty() && line.complaint.isEmpty())
        line.options = options;
    return line;
}

} // namespace simulator
