#pragma once

#include "questions.h"
#include "report.h"
#include "savedreplies.h"
#include "soapclient.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QUrl>

#include <functional>
#include <optional>

namespace client {

/// Asks one camera for all that a report holds, one request after the other.
///
/// A bad answer to one request does not end it. It ends where going on is pointless: if there is no connection, if the
/// device is silent to the first request or to two in a row, or answers nothing over HTTP to the first two; and if the
/// user or the password is refused, as devices lock out who tries a wrong password too often.
class CameraWalk
{
public:
    using Done = std::function<void(const Report &)>;
    using Progress = std::function<void(const QString &)>; ///< is told one line about what happens

    /// \a address is one that deviceServiceUrl() takes. Each reply is kept in \a saved, if there is one.
    CameraWalk(const QString &address, const Access &access, const std::optional<SavedReplies> &saved,
               Progress progress, Done done);

    void start();

private:
    void takeClock(const Answer &answer, const ClockReading &reading);
    void next();
    void take(const Question &question, const Answer &answer);
    bool goesOnAfter(const Answer &answer, bool hadProof);
    void end(const QString &why);
    QString complaintAbout(const Answer &answer) const;
    void keep(const Answer &answer);
    QUrl urlOf(Service service);

    QUrl m_entry; ///< the device service
    bool m_withCredentials;
    SoapClient m_client;
    std::optional<SavedReplies> m_saved;
    Progress m_progress;
    Done m_done;
    Report m_report;
    Questions m_questions;
    QStringList m_notAsked;   ///< addresses of other hosts that the user has been told of
    bool m_isReached = false; ///< whether the device has given any reply over HTTP
    int m_silences = 0;       ///< in a row
    int m_failures = 0;       ///< of requests in a row that no reply over HTTP came to
};

} // namespace client
