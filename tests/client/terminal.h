#pragma once

#include "support/patience.h"

#include <QtCore/QByteArray>
#include <QtCore/QProcess>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/ioctl.h>
#include <unistd.h>

namespace test {

/// A terminal that a program can be started at, and somebody who types.
class Terminal
{
public:
    Terminal()
        : m_keyboard(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        EXPECT_TRUE(grantpt(m_keyboard) == 0 && unlockpt(m_keyboard) == 0);
        std::array<char, 256> name = {};
        EXPECT_EQ(ptsname_r(m_keyboard, name.data(), name.size()), 0);
        m_name = name.data();
    }

    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    ~Terminal() { close(m_keyboard); }

    /// Makes this the terminal of \a process, which is not started yet; and its standard error, if it \a hasErrors.
    void giveTo(QProcess &process, bool hasErrors = false) const
    {
        process.setChildProcessModifier([name = m_name, hasErrors] {
            setsid();
            const int terminal = open(name.c_str(), O_RDWR);
            ioctl(terminal, TIOCSCTTY, 0);
            if (hasErrors)
                dup2(terminal, STDERR_FILENO);
        });
    }

    void type(const QByteArray &keys) const
    {
        EXPECT_EQ(write(m_keyboard, keys.constData(), static_cast<std::size_t>(keys.size())), keys.size());
    }

    /// What the terminal shows until it shows \a end.
    QByteArray shownUntil(const QByteArray &end) const
    {
        QByteArray shown;
        pollfd waiting{m_keyboard, POLLIN, 0};
        while (!shown.contains(end) && poll(&waiting, 1, test::patience) == 1) {
            std::array<char, 256> buffer = {};
            const ssize_t size = read(m_keyboard, buffer.data(), buffer.size());
            if (size <= 0)
                break;
            shown.append(buffer.data(), size);
        }
        return shown;
    }

private:
    int m_keyboard;
    std::string m_name;
};

} // namespace test
