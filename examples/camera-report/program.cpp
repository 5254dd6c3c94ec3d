#include "program.h"

#include <QtCore/QCoreApplication>

namespace client {

Program::Program(const Options &options)
    : m_options(options)
    , m_printer(options.form, options.quiet)
    , m_fleet(
          options.access, options.jobs, options.saveFolder,
          [this](const QString &line) {
              // Of many at once nobody wants to hear as much.
              if (m_fleet.all() == 1 && !m_options.searches)
                  m_printer.progress(line);
          },
          [this](const Report &report) { take(report); })
{
}

void Program::start()
{
    if (m_options.change)
        return changeInterface();
    if (m_options.searches)
        return search();
    for (const QString &address : std::as_const(m_options.addresses))
        m_fleet.add(address);
    m_fleet.setIsForOne(m_fleet.all() == 1);
    showProgress();
}

void Program::search()
{
    m_printer.progress(QString("searching through %1:%2 for %3 s")
                           .arg(m_options.probe.address.toString())
                           .arg(m_options.probe.port)
                           .arg(static_cast<double>(m_options.access.timeout.count()) / 1000));
    m_probe = std::make_unique<Probe>(
        m_options.probe, m_options.access.timeout, [this](const FoundCamera &found) { take(found); },
        [this](const SearchResult &result) { endSearch(result); });
    const QString complaint = m_probe->start();
    if (complaint.isEmpty())
        return;
    complain(complaint);
    QCoreApplication::exit(m_exitCode);
}

void Program::take(const FoundCamera &found)
{
    ++m_found;
    m_printer.show(found);
    if (m_options.all) {
        const QString address = found.ownAddress();
        if (!address.isEmpty())
            m_fleet.add(address);
        else
            complain(
                QString("The camera that answered from %1 names no address of that host, so it is not asked: %2.")
                    .arg(found.sender.toString(), found.addresses.isEmpty() ? "none" : found.addresses.join(", ")));
    }
    showProgress();
}

void Program::endSearch(const SearchResult &result)
{
    m_probe.release()->deleteLater(); // it is what calls this
    if (result.isFull)
        complain(QString("More answered than are taken note of, which is %1 cameras, or %2 MiB of what they say.")
                     .arg(maximumCameras)
                     .arg(maximumFoundSize / 1024 / 1024));
    if (m_found == 0) {
        m_printer.complain("No camera was found.");
        return QCoreApplication::exit(NothingFound);
    }
    m_printer.progress(QString("%1 found").arg(m_found));
    endIfDone();
}

void Program::take(const Report &report)
{
    if (!report.failures.isEmpty()) {
        ++m_failed;
        m_exitCode = Incomplete;
    }
    m_printer.show(report);
    showProgress();
    endIfDone();
}

void Program::changeInterface()
{
    const QString address = m_options.addresses.constFirst();
    m_printer.progress(QString("asking %1 for GetNetworkInterfaces").arg(address));
    m_changer = std::make_unique<InterfaceChanger>(
        address, m_options.access, *m_options.change, m_options.apply,
        [this, address](const QByteArray &message, const QString &complaint) {
            if (!message.isEmpty())
                m_printer.show(address, message);
            if (!complaint.isEmpty())
                complain(QString("%1: %2").arg(address, complaint));
            else
                m_printer.progress(m_options.apply ? "sent and accepted" : "not sent: add --apply to send it");
            QCoreApplication::exit(m_exitCode);
        });
    m_changer->start();
}

void Program::showProgress()
{
    if (m_fleet.all() < 2 && !m_options.searches)
        return;
    QString text = QString("%1 of %2 done, %3 failed").arg(m_fleet.done()).arg(m_fleet.all()).arg(m_failed);
    if (m_options.searches)
        text = QString("%1 found, ").arg(m_found) + text;
    m_printer.progressOf(text);
}

void Program::endIfDone()
{
    if (!m_probe && m_fleet.isIdle())
        QCoreApplication::exit(m_exitCode);
}

void Program::complain(const QString &sentence)
{
    m_exitCode = Incomplete;
    m_printer.complain(sentence);
}

} // namespace client
