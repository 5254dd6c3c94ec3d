// Preloaded into a program, says when one of its threads waits for another of Qt's, and does not wait.

#include <QtCore/QDeadlineTimer>
#include <QtCore/QThread>

#include <cstdio>

bool QThread::wait(QDeadlineTimer)
{
    std::fputs("waits for a thread\n", stderr);
    return false;
}
