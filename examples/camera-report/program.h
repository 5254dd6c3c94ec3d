#pragma once

#include "camerawalk.h"
#include "credentials.h"
#include "interfacechange.h"
#include "options.h"
#include "probe.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <memory>

namespace client {

/// Does what the options say, in the event loop, and ends it with the exit code.
class Program : public QObject
{
public:
    Program(const Options &options, const Credentials &credentials);

    void start();

private:
    void search();
    void show(const QList<FoundCamera> &found);
    void reportOnNext();
    void show(const Report &report);
    void changeInterface();
    void show(const QByteArray &message, const QString &complaint);
    void progress(const QString &line) const;
    void complain(const QString &sentence);

    Options m_options;
    Credentials m_credentials;
    int m_exitCode = Complete;
    QStringList m_addresses; ///< of the cameras that are still to be reported on
    QTimer m_next;           ///< for the next of them
    std::unique_ptr<Probe> m_probe;
    std::unique_ptr<CameraWalk> m_walk;
    std::unique_ptr<InterfaceChanger> m_changer;
};

} // namespace client
