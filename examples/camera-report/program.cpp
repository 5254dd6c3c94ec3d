#include "program.h"

#include "support/terminal.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace client {
namespace {

void printJson(const QJsonObject &json)
{
    example::print(QString::fromUtf8(QJsonDocument(json).toJson(QJsonDocument::Compact)) + '\n');
}

QJsonObject jsonOf(const FoundCamera &found)
{
    return {{"sender", found.sender.toString()},
            {"addresses", QJsonArray::fromStringList(found.addresses())},
            {"name", found.camera.scopes.value("name")},
            {"hardware", found.camera.scopes.value("hardware")},
            {"types", QJsonArray::fromStringList(found.types())}};
}

QString textOf(const FoundCamera &found)
{
    return QString("%1: %2 (%3)\n")
        .arg(example::printable(found.addresses().join(", ")), example::printable(found.camera.scopes.value("name")),
             example::printable(found.types().join(", ")));
}

} // namespace

Program::Program(const Options &options, const Credentials &credentials)
    : m_options(options)
    , m_credentials(credentials)
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, [this] { reportOnNext(); });
}

void Program::start()
{
    if (m_options.change)
        return changeInterface();
    if (m_options.address.isEmpty())
        return search();
    m_addresses = {m_options.address};
    reportOnNext();
}

void Program::search()
{
    progress(QString("searching through %1:%2 for %3 s")
                 .arg(m_options.probe.address.toString())
                 .arg(m_options.probe.port)
                 .arg(static_cast<double>(m_options.timeout.count()) / 1000));
    m_probe = std::make_unique<Probe>(m_options.probe, m_options.timeout,
                                      [this](const QList<FoundCamera> &found) { show(found); });
    const QString complaint = m_probe->start();
    if (complaint.isEmpty())
        return;
    complain(complaint);
    QCoreApplication::exit(Incomplete);
}

void Program::show(const QList<FoundCamera> &found)
{
    if (found.isEmpty()) {
        complain("No camera was found.");
        return QCoreApplication::exit(NothingFound);
    }
    for (const FoundCamera &camera : found) {
        if (m_options.json)
            printJson({{"found", jsonOf(camera)}});
        else
            example::print(textOf(camera));
        if (!m_options.all)
            continue;
        const QString address = camera.ownAddress();
        if (address.isEmpty())
            complain(QString("The camera that answered from %1 names only other addresses, so it is not asked: %2.")
                         .arg(camera.sender.toString(), camera.addresses().join(", ")));
        else
            m_addresses.append(address);
    }
    progress(QString("%1 found").arg(found.size()));
    reportOnNext();
}

void Program::reportOnNext()
{
    if (m_addresses.isEmpty())
        return QCoreApplication::exit(m_exitCode);
    m_walk = std::make_unique<CameraWalk>(
        m_addresses.takeFirst(), m_credentials, m_options.timeout, [this](const QString &line) { progress(line); },
        [this](const Report &report) { show(report); });
    m_walk->start();
}

void Program::show(const Report &report)
{
    for (const Failure &failure : report.failures)
        complain(QString("%1: %2: %3").arg(report.address, failure.request, failure.sentence));
    if (report.refused && m_credentials.isEmpty())
        complain(QString("%1 wants to know who asks: give --user.").arg(report.address));
    if (m_options.json)
        printJson(jsonOf(report));
    else if (!report.isEmpty())
        example::print((m_options.address.isEmpty() ? "\n" : "") + textOf(report));
    // The walk that calls this is gone only when it has returned.
    m_next.start();
}

void Program::changeInterface()
{
    progress(QString("asking %1 for GetNetworkInterfaces").arg(m_options.address));
    m_changer = std::make_unique<InterfaceChanger>(
        m_options.address, m_credentials, m_options.timeout, *m_options.change, m_options.apply,
        [this](const QByteArray &message, const QString &complaint) { show(message, complaint); });
    m_changer->start();
}

void Program::show(const QByteArray &message, const QString &complaint)
{
    if (m_options.json && !message.isEmpty())
        printJson({{"address", m_options.address}, {"request", QString::fromUtf8(message)}});
    else if (!message.isEmpty())
        example::print(example::printable(QString::fromUtf8(message)) + '\n');
    if (!complaint.isEmpty())
        complain(QString("%1: %2").arg(m_options.address, complaint));
    else
        progress(m_options.apply ? "sent and accepted" : "not sent: add --apply to send it");
    QCoreApplication::exit(m_exitCode);
}

void Program::progress(const QString &line) const
{
    if (!m_options.quiet)
        example::note("camera-report: " + example::printable(line));
}

void Program::complain(const QString &sentence)
{
    m_exitCode = Incomplete;
    example::note("camera-report: " + example::printable(sentence));
}

} // namespace client
