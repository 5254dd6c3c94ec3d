// Reading opens nothing, connects to nothing and prints nothing.

#include "documents.h"
#include "readers.h"
#include "support/emulation.h"
#include "support/sanitizers.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

/// From here on the kernel kills the process with SIGSYS when it looks for, opens, connects, writes or starts anything.
void isolate()
{
    std::vector<sock_filter> program{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (const int call : {
#ifdef SYS_open // each processor has a choice of its own
             SYS_open,       SYS_stat,   SYS_creat,    SYS_fork,    SYS_vfork,
#endif
#ifdef SYS_newfstatat
             SYS_newfstatat,
#endif
#ifdef SYS_fstatat64
             SYS_fstatat64,  SYS_stat64, SYS_lstat64,
#endif
#ifdef SYS_socketcall
             SYS_socketcall,
#endif
             SYS_openat,     SYS_statx,  SYS_socket,   SYS_connect, SYS_sendto, SYS_sendmsg,
             SYS_write,      SYS_writev, SYS_pwrite64, SYS_clone,   SYS_clone3, SYS_execve,
         }) {
        program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned int>(call), 0, 1));
        program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_KILL_PROCESS));
    }
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));

    sock_fprog filter = {static_cast<unsigned short>(program.size()), program.data()};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) != 0) {
        std::perror("no filter can be installed");
        std::_Exit(2);
    }
}

/// Runs \a task isolated and ends the process; with what the task printed into a buffer, too.
template <typename Task>
void runIsolated(const Task &task)
{
    std::fflush(nullptr);
    isolate();
    task();
    std::fflush(nullptr);
    std::_Exit(EXIT_SUCCESS);
}

class IsolationDeathTest : public testing::Test
{
    void SetUp() override
    {
        if (test::sanitized)
            GTEST_SKIP() << "The sanitizers write to pipes of their own.";
        if (test::isEmulated())
            GTEST_SKIP() << "System calls cannot be filtered here, as in an emulated program.";
        qunsetenv("ICU_DATA"); // ICU looks in this folder for encodings that it does not know
    }
};

TEST_F(IsolationDeathTest, endsWhatOpensConnectsPrintsOrStartsAnything)
{
    const testing::KilledBySignal killed(SIGSYS);
    const auto open = [] { [[maybe_unused]] std::FILE *const file = std::fopen("/dev/null", "r"); };
    EXPECT_EXIT(runIsolated(open), killed, "");
    EXPECT_EXIT(runIsolated([] {
                    struct stat status;
                    (void)stat("/dev/null", &status);
                }),
                killed, "");
    EXPECT_EXIT(runIsolated([] { (void)socket(AF_INET, SOCK_STREAM, 0); }), killed, "");
    EXPECT_EXIT(runIsolated([] { std::printf("x"); }), killed, "");
    EXPECT_EXIT(runIsolated([] { qWarning("x"); }), killed, "");
    EXPECT_EXIT(runIsolated([] { std::thread([] {}).join(); }), killed, "");
    EXPECT_EXIT(runIsolated([] {}), testing::ExitedWithCode(EXIT_SUCCESS), "");
}

TEST_F(IsolationDeathTest, sparesAllRecordsOfHostileReplies)
{
    for (const hostile::Document &document : hostile::documents()) {
        const QByteArray reply = document.make(document.count / 1000);
        EXPECT_EXIT(runIsolated([&] { hostile::readAll(reply); }), testing::ExitedWithCode(EXIT_SUCCESS), "")
            << document.name;
    }
}

TEST_F(IsolationDeathTest, sparesAllRecordsOfRepliesThatNameAFileAsTheirEncoding)
{
    for (const char *name : {"/etc/passwd", "../../etc/passwd", "file:///etc/passwd", "iso-8859-1", "gb2312", "utf-16",
                             "no-such-encoding", "system"}) {
        const QByteArray reply = "<?xml version='1.0' encoding='" + QByteArray(name) + "'?><a>\xE9</a>";
        EXPECT_EXIT(runIsolated([&] { hostile::readAll(reply); }), testing::ExitedWithCode(EXIT_SUCCESS), "") << name;
    }
}

} // namespace
