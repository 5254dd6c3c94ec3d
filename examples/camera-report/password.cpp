#include "password.h"

#include "support/terminal.h"

#include <QtCore/QFile>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace client {
namespace {

constexpr qint64 maximumLength = 4096;

/// A terminal that does not show what is typed, until this object goes.
class SilentTerminal
{
public:
    SilentTerminal()
        : m_descriptor(open("/dev/tty", O_RDWR | O_CLOEXEC))
    {
        if (m_descriptor < 0 || tcgetattr(m_descriptor, &m_before) != 0)
            return;
        termios silent = m_before;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        m_isSilent = tcsetattr(m_descriptor, TCSAFLUSH, &silent) == 0;
    }

    SilentTerminal(const SilentTerminal &) = delete;
    SilentTerminal &operator=(const SilentTerminal &) = delete;

    ~SilentTerminal()
    {
        if (m_isSilent)
            tcsetattr(m_descriptor, TCSAFLUSH, &m_before);
        if (m_descriptor >= 0)
            close(m_descriptor);
    }

    int descriptor() const { return m_descriptor; }

    bool isSilent() const { return m_isSilent; }

private:
    int m_descriptor;
    termios m_before = {};
    bool m_isSilent = false;
};

/// Whether \a descriptor has something to read, before \a stopDescriptor has.
bool waitFor(int descriptor, int stopDescriptor)
{
    std::array<pollfd, 2> waiting = {{{descriptor, POLLIN, 0}, {stopDescriptor, POLLIN, 0}}};
    while (poll(waiting.data(), waiting.size(), -1) < 0) {
        if (errno != EINTR)
            return false;
    }
    return waiting[1].revents == 0;
}

} // namespace

PasswordInput passwordFromFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, false, QString("The password file %1 cannot be read: %2.").arg(fileName, file.errorString())};
    QByteArray line = file.readLine(maximumLength);
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    return {QString::fromUtf8(line), false, {}};
}

PasswordInput passwordFromTerminal(const QString &user, int stopDescriptor)
{
    const SilentTerminal terminal;
    if (!terminal.isSilent())
        return {{}, false, "There is no terminal to ask for the password at: give --password-file."};
    const QByteArray prompt = QString("Password of %1: ").arg(example::printable(user)).toUtf8();
    (void)!write(terminal.descriptor(), prompt.constData(), static_cast<std::size_t>(prompt.size()));

    QByteArray line;
    std::array<char, maximumLength> buffer = {};
    const bool typed = waitFor(terminal.descriptor(), stopDescriptor);
    if (typed)
        line.append(buffer.data(), std::max<ssize_t>(0, read(terminal.descriptor(), buffer.data(), buffer.size())));
    (void)!write(terminal.descriptor(), "\n", 1); // that of the user was not shown
    if (!line.endsWith('\n'))
        return {{}, true, {}};
    line.chop(1);
    return {QString::fromUtf8(line), false, {}};
}

} // namespace client
