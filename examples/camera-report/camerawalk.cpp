#include "camerawalk.h"

namespace client {

CameraWalk::CameraWalk(const QString &address, const Access &access, const std::optional<SavedReplies> &saved,
                       Progress progress, Done done)
    : m_entry(deviceServiceUrl(address))
    , m_withCredentials(!access.credentials.isEmpty())
    , m_client(access)
    , m_saved(saved)
    , m_progress(std::move(progress))
    , m_done(std::move(done))
    , m_questions(questionsFor(m_report))
{
    m_report.address = address;
}

void CameraWalk::start()
{
    m_progress(QString("asking %1 for GetSystemDateAndTime").arg(m_entry.toString()));
    m_client.askClock(m_entry,
                      [this](const Answer &answer, const ClockReading &reading) { takeClock(answer, reading); });
}

void CameraWalk::takeClock(const Answer &answer, const ClockReading &reading)
{
    m_report.tls = answer.http.tls;
    m_report.clock.notAnswered = complaintAbout(answer);
    if (answer.isReply)
        m_report.clock.record = reading;
    else
        m_report.failures.append({answer.request.action, m_report.clock.notAnswered});
    keep(answer);
    if (goesOnAfter(answer, false))
        next();
}

void CameraWalk::next()
{
    if (m_questions.empty())
        return end({});
    const Question question = m_questions.front();
    m_questions.pop_front();
    const QUrl url = urlOf(question.request.service);
    m_progress(QString("asking %1 for %2").arg(url.toString(), question.request.action));
    m_client.ask(url, question.request, [this, question](const Answer &answer) { take(question, answer); });
}

void CameraWalk::take(const Question &question, const Answer &answer)
{
    const Questions more = question.take(answer, complaintAbout(answer));
    m_questions.insert(m_questions.begin(), more.begin(), more.end());
    keep(answer);
    if (goesOnAfter(answer, m_withCredentials))
        next();
}

bool CameraWalk::goesOnAfter(const Answer &answer, bool hadProof)
{
    const TransportFailure failure = answer.http.failure;
    const bool isEntry =
        answer.http.url.authority() == m_entry.authority() && answer.http.url.scheme() == m_entry.scheme();
    const bool wasReached = m_isReached;
    m_isReached = m_isReached || answer.http.status != 0;
    m_silences = answer.http.isSilence ? m_silences + 1 : 0;
    m_failures = answer.http.status != 0 ? 0 : m_failures + 1;
    if (hadProof && answer.isRefusal())
        end("It was not asked, as the device has refused the user or the password.");
    else if (isFinal(failure) && isEntry)
        end("It was not asked, as there is no connection to the device.");
    else if (answer.http.isSilence && (!wasReached || m_silences > 1))
        end("It was not asked, as the device has fallen silent.");
    else if (!m_isReached && m_failures > 1)
        end("It was not asked, as the device answers nothing over HTTP.");
    else
        return true;
    return false;
}

void CameraWalk::end(const QString &why)
{
    leaveOpen(m_report, why);
    m_done(m_report);
}

QString CameraWalk::complaintAbout(const Answer &answer) const
{
    const QString complaint = answer.complaint();
    return answer.isRefusal() && !m_withCredentials ? complaint + " Give --user." : complaint;
}

void CameraWalk::keep(const Answer &answer)
{
    if (!m_saved || !answer.isReceived())
        return;
    const QString complaint = m_saved->keep(answer.request, answer.http.body, m_client.secretsSent());
    if (!complaint.isEmpty())
        m_report.failures.append({"--save", complaint});
}

QUrl CameraWalk::urlOf(Service service)
{
    const auto &capabilities = m_report.capabilities.record;
    QString xAddr;
    if (capabilities && service == Service::Media)
        xAddr = capabilities->media.xAddr;
    if (capabilities && service == Service::DeviceIO)
        xAddr = capabilities->device.io.xAddr;
    if (xAddr.isEmpty())
        return m_entry; // which has answered
    QUrl url = urlOnSameHost(m_entry, xAddr);
    if (url.host() != QUrl(xAddr.trimmed()).host() && !m_notAsked.contains(xAddr)) {
        m_notAsked.append(xAddr);
        m_progress(QString("%1 is no address of the host that was asked, which is asked instead").arg(xAddr));
    }
    return url;
}

} // namespace client
