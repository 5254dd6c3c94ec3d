#include "options.h"

#include "addressfile.h"
#include "help.h"
#include "soap.h"

#include <vorn/onvif/version.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace client {
namespace {

/// The options as the parser takes them. The help is written by hand, in groups.
struct Known
{
    QCommandLineOption help{{"h", "help"}};
    QCommandLineOption version{{"v", "version"}};
    QCommandLineOption address{"address", {}, "ADDRESS"};
    QCommandLineOption addresses{"addresses", {}, "FILE"};
    QCommandLineOption interface {
        "interface", {}, "NAME"
    };
    QCommandLineOption probeAddress{"probe-address", {}, "IP:PORT"};
    QCommandLineOption all{"all"};
    QCommandLineOption user{"user", {}, "NAME"};
    QCommandLineOption passwordFile{"password-file", {}, "FILE"};
    QCommandLineOption insecure{"insecure"};
    QCommandLineOption clockLimit{"clock-limit", {}, "DAYS", "7"};
    QCommandLineOption timeout{"timeout", {}, "SECONDS", "5"};
    QCommandLineOption jobs{"jobs", {}, "NUMBER", "16"};
    QCommandLineOption json{"json"};
    QCommandLineOption table{"table"};
    QCommandLineOption save{"save", {}, "FOLDER"};
    QCommandLineOption quiet{"quiet"};
    QCommandLineOption setDhcp{"set-dhcp", {}, "INTERFACE"};
    QCommandLineOption setAddress{"set-address", {}, "INTERFACE=ADDRESS/PREFIX"};
    QCommandLineOption apply{"apply"};

    QList<QCommandLineOption> inOrder() const
    {
        return {help,  version,      address,  addresses,  interface,  probeAddress, all,
                user,  passwordFile, insecure, clockLimit, timeout,    jobs,         json,
                table, save,         quiet,    setDhcp,    setAddress, apply};
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

/// The number that \a option has; nothing if it has none from \a smallest to \a largest.
std::optional<double> numberOf(const QCommandLineParser &parser, const QCommandLineOption &option, double smallest,
                               double largest)
{
    bool isNumber = false;
    const double number = parser.value(option).toDouble(&isNumber);
    return isNumber && number >= smallest && number <= largest ? std::optional<double>(number) : std::nullopt;
}

// Each of these reads some of the options, and returns one sentence if they are wrong.

QString readTarget(const QCommandLineParser &parser, Options &options)
{
    options.addresses = parser.values(known.address);
    options.all = parser.isSet(known.all);
    options.searches = parser.isSet(known.interface) || parser.isSet(known.probeAddress);
    const bool isNamed = parser.isSet(known.address) || parser.isSet(known.addresses);
    if (isNamed == options.searches) {
        return QString("Name cameras with --address, or with --interface where to search for cameras: %1.")
            .arg(interfaceNames());
    }
    if (isNamed && options.all)
        return "--all is for a search: give --interface instead of --address.";
    for (const QString &address : std::as_const(options.addresses)) {
        if (!deviceServiceUrl(address).isValid())
            return QString("%1 is no address: %2").arg(address, addressForms);
    }
    for (const QString &file : parser.values(known.addresses)) {
        const AddressList list = addressesIn(file);
        if (!list.complaint.isEmpty())
            return list.complaint;
        options.addresses += list.addresses;
    }
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

QString readAccess(const QCommandLineParser &parser, Options &options)
{
    options.access.credentials.user = parser.value(known.user);
    options.access.insecure = parser.isSet(known.insecure);
    options.passwordFile = parser.value(known.passwordFile);
    if (options.access.credentials.isEmpty() && (parser.isSet(known.user) || parser.isSet(known.passwordFile)))
        return "--user wants the name of the user, also where --password-file is given.";
    const auto seconds = numberOf(parser, known.timeout, 0.01, 3600);
    if (!seconds)
        return "--timeout wants a number of seconds from 0.01 to 3600.";
    options.access.timeout = std::chrono::milliseconds(static_cast<qint64>(*seconds * 1000));
    const auto days = numberOf(parser, known.clockLimit, 0, 100000);
    if (!days)
        return "--clock-limit wants a number of days from 0 to 100000.";
    options.access.clockLimit = std::chrono::seconds(static_cast<qint64>(*days * 24 * 3600));
    const auto jobs = numberOf(parser, known.jobs, 1, 1000);
    if (!jobs)
        return "--jobs wants a number from 1 to 1000.";
    options.jobs = static_cast<int>(*jobs);
    return {};
}

QString readForm(const QCommandLineParser &parser, Options &options)
{
    options.quiet = parser.isSet(known.quiet);
    options.saveFolder = parser.value(known.save);
    if (parser.isSet(known.json) && parser.isSet(known.table))
        return "--json and --table exclude each other.";
    if (parser.isSet(known.json))
        options.form = Form::Json;
    else if (parser.isSet(known.table))
        options.form = Form::Table;
    if (options.searches && !options.all && (options.form == Form::Table || parser.isSet(known.save)))
        return "--table and --save go with --address, or with a search and --all.";
    if (parser.isSet(known.save) && !QDir().mkpath(options.saveFolder))
        return QString("The folder %1 cannot be made.").arg(options.saveFolder);
    if (parser.isSet(known.save) && !QFileInfo(options.saveFolder).isWritable())
        return QString("Nothing can be written to the folder %1.").arg(options.saveFolder);
    if (!parser.positionalArguments().isEmpty())
        return QString("%1 is not understood.").arg(parser.positionalArguments().constFirst());
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
    if (options.change && options.addresses.size() != 1)
        return "An interface can be set only of the one camera that --address names.";
    if (options.change && (options.form == Form::Table || !options.saveFolder.isEmpty()))
        return "--table and --save are for reports.";
    if (options.apply && !options.change)
        return "--apply goes with --set-dhcp or --set-address.";
    return {};
}

QString readOptions(const QCommandLineParser &parser, Options &options)
{
    for (const auto read : {readAccess, readTarget, readProbe, readForm, readChange}) {
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
    parser.addOptions(known.inOrder());
    CommandLine line;
    Options options;
    if (!parser.parse(arguments))
        line.complaint = parser.errorText();
    else if (parser.isSet(known.help))
        line.answer = helpText;
    else if (parser.isSet(known.version))
        line.answer = "camera-report " VORNSDK_ONVIF_VERSION_STRING "\n";
    else
        line.complaint = readOptions(parser, options);
    if (line.answer.isEmpty() && line.complaint.isEmpty())
        line.options = options;
    return line;
}

} // namespace client
