#include "fleet.h"

#include <algorithm>
#include <chrono>

namespace client {
namespace {

/// How long a camera may take for an answer and still count as one that is asked.
constexpr std::chrono::milliseconds patience(500);

} // namespace

Fleet::Fleet(const Access &access, int jobs, const QString &saveFolder, Progress progress, Reported reported)
    : m_access(access)
    , m_jobs(jobs)
    , m_saveFolder(saveFolder)
    , m_progress(std::move(progress))
    , m_reported(std::move(reported))
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, [this] { startMore(); });
}

void Fleet::add(const QString &address)
{
    if (m_known.contains(address))
        return;
    m_known.insert(address);
    m_waiting.append(address);
    m_next.start();
}

void Fleet::startMore()
{
    m_finished.clear();
    while (!m_waiting.isEmpty() && counting() < static_cast<std::size_t>(m_jobs))
        start(m_waiting.takeFirst());
}

void Fleet::start(const QString &address)
{
    std::optional<SavedReplies> saved;
    if (!m_saveFolder.isEmpty())
        saved.emplace(m_isForOne ? m_saveFolder : folderOf(m_saveFolder, address), m_access.credentials);

    const auto run = m_running.emplace(m_running.end());
    run->patience = std::make_unique<QTimer>();
    run->patience->setSingleShot(true);
    connect(run->patience.get(), &QTimer::timeout, this, [this] { m_next.start(); });
    run->patience->start(patience);
    // Each request says that the one before was answered.
    const auto progress = [this, timer = run->patience.get()](const QString &line) {
        timer->start();
        m_progress(line);
    };
    run->walk = std::make_unique<CameraWalk>(address, m_access, saved, progress,
                                             [this, run](const Report &report) { finish(run, report); });
    run->walk->start();
}

std::size_t Fleet::counting() const
{
    return static_cast<std::size_t>(
        std::count_if(m_running.begin(), m_running.end(), [](const Run &run) { return run.patience->isActive(); }));
}

void Fleet::finish(std::list<Run>::iterator run, const Report &report)
{
    m_finished.splice(m_finished.end(), m_running, run);
    ++m_done;
    m_next.start();
    m_reported(report);
}

} // namespace client
