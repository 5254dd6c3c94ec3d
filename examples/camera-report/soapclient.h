#pragma once

#include "credentials.h"
#include "httpdigest.h"
#include "httpexchange.h"
#include "soap.h"

#include <vorn/onvif/faults.h>

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtNetwork/QNetworkAccessManager>

#include <chrono>
#include <functional>
#include <optional>

namespace client {

/// What came of a request.
struct Answer
{
    const char *action = ""; ///< name of the request
    QByteArray bytes;        ///< the reply, or the document that stands for a failure
    vorn::OnvifFault fault;  ///< what the library makes of the bytes
    QString remark;          ///< what the transport or the device itself says of a failure; may be empty
    bool received = false;   ///< whether the device gave a reply, good or bad

    /// One sentence if the request failed; empty if the reply is the answer. Text of the device's is in it verbatim.
    QString complaint() const;

    /// Whether the device refused for want of a valid user and password.
    bool isRefusal() const;
};

/// Sends requests to one device, one at a time, and authenticates them.
class SoapClient : public QObject
{
public:
    using Done = std::function<void(const Answer &)>;

    /// Without \a credentials, requests go out without any.
    SoapClient(const Credentials &credentials, std::chrono::milliseconds timeout);

    /// Sends \a request to \a url, and calls \a done once with what came of it.
    ///
    /// With credentials, the clock of the device is asked first, once: a device refuses tokens of another time. If the
    /// device cannot be reached for that, this is what \a done is told.
    void ask(const QUrl &url, const Request &request, const Done &done);

private:
    void askClock(const QUrl &url, const Request &request, const Done &done);
    void askOfKnownClock(const QUrl &url, const Request &request, const Done &done);
    void post(const QUrl &url, const Request &request, bool authenticated, const HttpExchange::Done &done);
    QByteArray authorizationFor(const QUrl &url);
    Answer answerTo(const Request &request, const HttpReply &reply);

    QNetworkAccessManager m_manager;
    Credentials m_credentials;
    std::chrono::milliseconds m_timeout;
    std::optional<qint64> m_clockAhead; ///< seconds by which the device's clock is ahead of this machine's
    std::optional<DigestChallenge> m_challenge;
    unsigned int m_challengeUses = 0;
    unsigned int m_answers = 0;
};

} // namespace client
