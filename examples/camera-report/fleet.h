#pragma once

#include "camerawalk.h"

#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <functional>
#include <list>
#include <memory>

namespace client {

/// Reports on many cameras side by side.
///
/// Only so many are asked at once; but one that keeps this program waiting does not count, so that silent ones do not
/// keep the others from their turn.
class Fleet : public QObject
{
public:
    using Reported = std::function<void(const Report &)>;
    using Progress = CameraWalk::Progress;

    /// Replies are kept in folders below \a saveFolder, unless that is empty.
    Fleet(const Access &access, int jobs, const QString &saveFolder, Progress progress, Reported reported);

    /// Adds the camera at \a address, unless it has been added before. It has its turn in the event loop.
    void add(const QString &address);

    /// Whether the folder of replies is for one camera alone, and has none below it for each.
    void setIsForOne(bool isForOne) { m_isForOne = isForOne; }

    bool isIdle() const { return m_waiting.isEmpty() && m_running.empty(); }

    int done() const { return m_done; }

    int all() const { return static_cast<int>(m_known.size()); }

private:
    /// A walk under way.
    struct Run
    {
        std::unique_ptr<CameraWalk> walk;
        std::unique_ptr<QTimer> patience; ///< runs while the camera counts
    };

    void startMore();
    void start(const QString &address);
    std::size_t counting() const;
    void finish(std::list<Run>::iterator run, const Report &report);

    Access m_access;
    int m_jobs;
    QString m_saveFolder;
    Progress m_progress;
    Reported m_reported;
    bool m_isForOne = false;
    int m_done = 0;
    QStringList m_waiting; ///< for their turn
    QSet<QString> m_known;
    std::list<Run> m_running;
    std::list<Run> m_finished; ///< what is still on the stack when it has finished
    QTimer m_next;
};

} // namespace client
