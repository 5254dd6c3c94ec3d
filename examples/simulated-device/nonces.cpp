#include "nonces.h"

#include <QtCore/QUuid>

namespace simulator {
namespace {

/// No more are remembered, however often somebody asks.
constexpr qsizetype mostIssued = 10000;

} // namespace

Nonces::Nonces(int uses, std::chrono::seconds life)
    : m_uses(uses)
    , m_life(life)
{
}

QByteArray Nonces::issue()
{
    if (m_inOrder.size() == mostIssued)
        m_issued.remove(m_inOrder.takeFirst());
    QByteArray nonce = QUuid::createUuid().toByteArray(QUuid::Id128);
    m_issued.insert(nonce, {QDeadlineTimer(m_life), {}});
    m_inOrder.append(nonce);
    return nonce;
}

Nonces::Verdict Nonces::use(const QByteArray &nonce, const QByteArray &count)
{
    const auto issued = m_issued.find(nonce);
    if (issued == m_issued.end() || issued->end.hasExpired() || issued->counts.size() == m_uses)
        return Verdict::Stale;
    bool isNumber = false;
    const uint number = count.toUInt(&isNumber, 16);
    if (!isNumber || issued->counts.contains(number))
        return Verdict::Replayed;
    issued->counts.insert(number);
    return Verdict::Good;
}

} // namespace simulator
