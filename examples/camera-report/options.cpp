#include "options.h"

#include "soap.h"

#include <vorn/onvif/version.h>

#include <QtCore/QCommandLineParser>

namespace client {
namespace {

const char *const description =
    R"(Shows what an ONVIF camera tells of itself, or searches for cameras.

  camera-report --address HOST[:PORT]      a report on one camera
  camera-report --interface NAME           the cameras in the network there
  camera-report --interface NAME --all     the same, and a report on each
  camera-report --address HOST[:PORT] --set-dhcp INTERFACE [--apply]
                                           the request that sets a network
                                           interface; --apply sends it

The report goes to standard output. What happens, and each request that failed
in one sentence, goes to standard error. With a user, requests carry a
WS-UsernameToken, and Digest authentication of HTTP is answered; the password
itself is never sent. Only the host that was asked is contacted: where a camera
names another one for a service, it is asked itself.

Exit codes: 0 the report is complete; 1 a request failed or brought a fault;
2 the command line is wrong or the program lacks what it needs; 3 no camera
was found; 130 stopped by Ctrl-C.)";

/// The options as the parser takes them.
struct Known
{
    QCommandLineOption help{{"h", "help"}, "Shows this help."};
    QCommandLineOption version{{"v", "version"}, "Shows the version."};
    QCommandLineOption address{"address", "The camera to report on. Without a PORT: 80.", "HOST[:PORT]"};
    QCommandLineOption interface {
        "interface", "The network interface of this machine to search through.", "NAME"
    };
    QCommandLineOption probeAddress{
        "probe-address", "Where to send the probe of a search. Without it: 239.255.255.250:3702.", "ADDRESS:PORT"};
    QCommandLineOption all{"all", "Reports on each camera that is found and names the address it answers from."};
    QCommandLineOption user{"user", "The user of the camera. The password is asked for at the terminal.", "NAME"};
    QCommandLineOption passwordFile{"password-file", "A file whose first line is the password.", "FILE"};
    QCommandLineOption timeout{
        "timeout", "How long to wait for each reply, and for the answers of a search. Without it: 5.", "SECONDS"};
    QCommandLineOption setDhcp{"set-dhcp", "Lets INTERFACE of the camera take its address from DHCP.", "INTERFACE"};
    QCommandLineOption setAddress{"set-address", "Gives INTERFACE of the camera an IPv4 address.",
                                  "INTERFACE=ADDRESS/PREFIX"};
    QCommandLineOption apply{"apply", "Sends the request that --set-dhcp or --set-address prints."};
    QCommandLineOption json{"json", "Prints one line of JSON for each camera."};
    QCommandLineOption quiet{"quiet", "Says nothing about what happens, but still what failed."};

    QList<QCommandLineOption> inOrder() const
    {
        return {help,         version, address, interface,  probeAddress, all,  user,
                passwordFile, timeout, setDhcp, setAddress, apply,        json, quiet};
    }
};

const Known known;

QString interfaceNames()
{
    QStringList names;
    for (const QNetworkInterface &interface : QNetworkInterface::allInterfaces())
        names += interface.name();
    return names.join(", ");
}

// Each of these reads some of the options, and returns one sentence if they are wrong.

QString readTarget(const QCommandLineParser &parser, Options &options)
{
    options.address = parser.value(known.address);
    options.all = parser.isSet(known.all);
    const bool search = parser.isSet(known.interface) || parser.isSet(known.probeAddress);
    if (parser.isSet(known.address) == search) {
        return QString("Name one camera with --address, or with --interface where to search for cameras: %1.")
            .arg(interfaceNames());
    }
    if (!search && !deviceServiceUrl(options.address).isValid())
        return QString("%1 is no address such as 192.0.2.7 or 192.0.2.7:8080.").arg(options.address);
    if (!search && options.all)
        return "--all is for a search: give --interface instead of --address.";
    return {};
}

QString readProbe(const QCommandLineParser &parser, Options &options)
{
    if (parser.isSet(known.interface)) {
        options.probe.interface = QNetworkInterface::interfaceFromName(parser.value(known.interface));
        if (!options.probe.interface.isValid()) {
            return QString("This machine has no network interface %1; it has: %2.")
                .arg(parser.value(known.interface), interfaceNames());
        }
    }
    if (parser.isSet(known.probeAddress)) {
        const QString text = parser.value(known.probeAddress);
        const QUrl url("udp://" + text, QUrl::StrictMode);
        options.probe.address = QHostAddress(url.host());
        options.probe.port = static_cast<quint16>(url.port(0));
        if (options.probe.address.protocol() != QHostAddress::IPv4Protocol || options.probe.port == 0)
            return QString("%1 is no IPv4 address with a port, such as 192.0.2.7:3702.").arg(text);
    }
    return {};
}

QString readChange(const QCommandLineParser &parser, Options &options)
{
    const bool setDhcp = parser.isSet(known.setDhcp);
    const bool setAddress = parser.isSet(known.setAddress);
    options.apply = parser.isSet(known.apply);
    if (setDhcp && setAddress)
        return "--set-dhcp and --set-address exclude each other.";
    if (setDhcp)
        options.change = InterfaceChange{parser.value(known.setDhcp), {}};
    if (setAddress) {
        options.change = addressChange(parser.value(known.setAddress));
        if (!options.change)
            return QString("%1 has not the form eth0=192.0.2.7/24.").arg(parser.value(known.setAddress));
    }
    if (options.change && options.address.isEmpty())
        return "An interface can be set only of the camera that --address names.";
    if (options.apply && !options.change)
        return "--apply goes with --set-dhcp or --set-address.";
    return {};
}

QString readRest(const QCommandLineParser &parser, Options &options)
{
    options.user = parser.value(known.user);
    options.passwordFile = parser.value(known.passwordFile);
    options.json = parser.isSet(known.json);
    options.quiet = parser.isSet(known.quiet);
    if (options.user.isEmpty() && (parser.isSet(known.user) || parser.isSet(known.passwordFile)))
        return "--user wants the name of the user, also where --password-file is given.";
    if (parser.isSet(known.timeout)) {
        bool isNumber = false;
        const double seconds = parser.value(known.timeout).toDouble(&isNumber);
        if (!isNumber || !(seconds >= 0.01 && seconds <= 3600))
            return "--timeout wants a number of seconds from 0.01 to 3600.";
        options.timeout = std::chrono::milliseconds(static_cast<qint64>(seconds * 1000));
    }
    if (!parser.positionalArguments().isEmpty())
        return QString("%1 is not understood.").arg(parser.positionalArguments().constFirst());
    return {};
}

QString readOptions(const QCommandLineParser &parser, Options &options)
{
    for (const auto read : {readRest, readTarget, readProbe, readChange}) {
        QString complaint = read(parser, options);
        if (!complaint.isEmpty())
            return complaint;
    }
    return {};
}

} // namespace

CommandLine readCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    parser.addOptions(known.inOrder());
    CommandLine line;
    Options options;
    if (!parser.parse(arguments))
        line.complaint = parser.errorText();
    else if (parser.isSet(known.help))
        line.answer = parser.helpText();
    else if (parser.isSet(known.version))
        line.answer = "camera-report " VORNSDK_ONVIF_VERSION_STRING "\n";
    else
        line.complaint = readOptions(parser, options);
    if (line.answer.isEmpty() && line.complaint.isEmpty())
        line.options = options;
    return line;
}

} // namespace client
