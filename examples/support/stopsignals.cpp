#include "stopsignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace example {
namespace {

// A signal handler can reach nothing else.
std::array<int, 2> stopPipe = {-1, -1};

} // namespace

extern "C" {

static void tellThePipe(int)
{
    const int savedError = errno;
    const char anything = 0;
    (void)!write(stopPipe[1], &anything, 1);
    errno = savedError;
}

} // extern "C"

int catchStopSignals()
{
    if (pipe(stopPipe.data()) != 0)
        return -1;
    for (const int end : stopPipe) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK); // a handler must not wait, however many signals come
    }
    struct sigaction action = {};
    action.sa_handler = tellThePipe;
    sigemptyset(&action.sa_mask);
    const bool caught = sigaction(SIGINT, &action, nullptr) == 0 && sigaction(SIGTERM, &action, nullptr) == 0;
    return caught ? stopPipe[0] : -1;
}

} // namespace example
