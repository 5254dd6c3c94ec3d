#pragma once

#include <vorn/onvif/discovery.h>

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QNetworkInterface>
#include <QtNetwork/QUdpSocket>

#include <chrono>
#include <functional>

namespace client {

/// No more cameras than this are taken note of in one search, so that nobody can fill the memory with answers.
inline constexpr qsizetype maximumCameras = 4096;

/// A camera that answered a probe.
struct FoundCamera
{
    vorn::OnvifCamera camera;
    QHostAddress sender; ///< who sent the answer

    /// All addresses that the camera names.
    QStringList addresses() const;

    /// What kinds of device it is, in its own order.
    QStringList types() const;

    /// The first of the addresses that is the sender's; empty if none is. An answer may name anyone: whoever is asked,
    /// and gets the user's credentials to see, has at least answered himself.
    QString ownAddress() const;
};

/// Where a probe is sent.
struct ProbeTarget
{
    QHostAddress address = QHostAddress("239.255.255.250");
    quint16 port = 3702;
    QNetworkInterface interface; ///< through which; if it is not valid, the system chooses
};

/// Looks for cameras with WS-Discovery over IPv4.
class Probe : public QObject
{
public:
    using Done = std::function<void(const QList<FoundCamera> &)>;

    /// Waits for answers for all of \a duration, then calls \a done.
    Probe(const ProbeTarget &target, std::chrono::milliseconds duration, Done done);

    /// Sends the probe. Returns one sentence if that fails, and then \a done is not called.
    QString start();

private:
    QString send();
    void receive();
    void take(const QByteArray &bytes, const QHostAddress &sender);

    ProbeTarget m_target;
    std::chrono::milliseconds m_duration;
    Done m_done;
    QUdpSocket m_socket;
    QByteArray m_message;
    QList<FoundCamera> m_found;
    QSet<QString> m_known;
    QTimer m_again; ///< when the probe is sent once more
    QTimer m_end;
};

} // namespace client
