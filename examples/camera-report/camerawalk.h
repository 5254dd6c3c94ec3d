#pragma once

#include "report.h"
#include "soapclient.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QUrl>

#include <cstddef>
#include <functional>

namespace client {

/// Asks one camera for all that a report holds, one request after the other.
///
/// It goes on after a fault, but ends at a failure of the transport. It also ends if the first request brings neither
/// an answer nor a fault of SOAP, as then there is no ONVIF device; and if the credentials are refused for it, as
/// devices lock out users who try a wrong password too often.
class CameraWalk
{
public:
    using Done = std::function<void(const Report &)>;
    using Progress = std::function<void(const QString &)>; ///< is told one line about what happens

    /// \a address is a host with an optional port.
    CameraWalk(const QString &address, const Credentials &credentials, std::chrono::milliseconds timeout,
               Progress progress, Done done);

    void start();

private:
    void next();
    void take(const Answer &answer);
    bool isWorthGoingOn(const Answer &answer) const;
    QString xAddrOf(Service service) const;
    bool isUnavailable(Service service) const;

    QUrl m_entry; ///< the device service
    bool m_withCredentials;
    SoapClient m_client;
    Progress m_progress;
    Done m_done;
    Report m_report;
    QStringList m_notAsked; ///< addresses of other hosts that the user has been told of
    std::size_t m_step = 0;
};

} // namespace client
