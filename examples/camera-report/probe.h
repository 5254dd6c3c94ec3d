#pragma once

#include "foundcamera.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QNetworkInterface>
#include <QtNetwork/QUdpSocket>

#include <chrono>
#include <functional>

namespace client {

/// No more cameras than this are taken note of in one search, and no more bytes of what they say, so that nobody can
/// fill the memory with answers.
inline constexpr qsizetype maximumCameras = 4096;
inline constexpr qsizetype maximumFoundSize = qsizetype(16) * 1024 * 1024;

/// Longer answers are not read: none of an honest device comes near.
inline constexpr qsizetype maximumAnswerSize = qsizetype(16) * 1024;

/// Where a probe is sent.
struct ProbeTarget
{
    QHostAddress address = QHostAddress("239.255.255.250");
    quint16 port = 3702;
    QNetworkInterface interface; ///< through which; if it is not valid, the system chooses
};

/// What a search came to.
struct SearchResult
{
    qsizetype found = 0;
    bool isFull = false; ///< whether more answered than are taken note of
};

/// Looks for cameras with WS-Discovery over IPv4.
class Probe : public QObject
{
public:
    using Found = std::function<void(const FoundCamera &)>;
    using Done = std::function<void(const SearchResult &)>;

    /// Waits for answers for all of \a duration, unless no more can be taken note of. Calls \a found for each camera
    /// when it answers for the first time, and \a done at the end.
    Probe(const ProbeTarget &target, std::chrono::milliseconds duration, Found found, Done done);

    /// Sends the probe. Returns one sentence if that fails, and then \a done is not called.
    QString start();

private:
    QString send();
    void receive();
    void take(const QByteArray &bytes, const QHostAddress &sender);

    ProbeTarget m_target;
    std::chrono::milliseconds m_duration;
    Found m_foundOne;
    Done m_done;
    QUdpSocket m_socket;
    QByteArray m_message;
    SearchResult m_result;
    qsizetype m_foundSize = 0;
    QSet<QByteArray> m_known; ///< hashes of what tells a camera from others
    QTimer m_again;           ///< when the probe is sent once more
    QTimer m_end;
};

} // namespace client
