#pragma once

#include "answer.h"
#include "clock.h"
#include "credentials.h"
#include "httpdigest.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtNetwork/QNetworkAccessManager>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace client {

/// How devices are asked.
struct Access
{
    Credentials credentials; ///< without, requests go out without any
    std::chrono::milliseconds timeout = std::chrono::seconds(5);
    std::chrono::seconds clockLimit = std::chrono::hours(7 * 24); ///< a clock that is further off is not used
    bool insecure = false;                                        ///< accepts any certificate, if it stays the same
};

/// Sends requests to one device, one at a time, and authenticates them.
class SoapClient : public QObject
{
public:
    using Done = std::function<void(const Answer &)>;
    using ClockDone = std::function<void(const Answer &, const ClockReading &)>;

    explicit SoapClient(const Access &access);
    ~SoapClient() override;

    /// Asks the device at \a url for its clock, by which proofs of who asks go from then on: it refuses those of
    /// another time. If it tells no time, or one that is too far off, they go by the clock of this machine.
    void askClock(const QUrl &url, const ClockDone &done);

    /// Sends \a request to \a url, and calls \a done once with what came of it.
    ///
    /// With credentials, the clock is asked first, unless it has been. If the device cannot be reached for that, this
    /// is what \a done is told.
    void ask(const QUrl &url, const Request &request, const Done &done);

    /// What of the last request proved who asks, and must be kept nowhere.
    const QList<QByteArray> &secretsSent() const { return m_secretsSent; }

private:
    void askOfKnownClock(const QUrl &url, const Request &request, int challenges, const Done &done);
    void post(const QUrl &url, const Request &request, bool authenticated, const HttpExchange::Done &done);
    QByteArray authorizationFor(const QUrl &url);
    QByteArray acceptedFingerprint() const;

    std::unique_ptr<QNetworkAccessManager> m_manager;
    Access m_access;
    std::optional<ClockReading> m_clock;
    std::optional<DigestChallenge> m_challenge;
    QByteArray m_fingerprint; ///< of the certificate that the device showed first
    QList<QByteArray> m_secretsSent;
    unsigned int m_challengeUses = 0;
    unsigned int m_answers = 0;
};

} // namespace client
