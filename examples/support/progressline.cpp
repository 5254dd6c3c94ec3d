#include "progressline.h"

#include "terminal.h"

#include <cstdio>
#include <unistd.h>

namespace example {
namespace {

void writeNow(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    (void)std::fflush(stdout); // which may be the same terminal
    (void)std::fwrite(utf8.constData(), 1, static_cast<std::size_t>(utf8.size()), stderr);
    (void)std::fflush(stderr);
}

} // namespace

ProgressLine::ProgressLine()
    : m_isShown(isatty(STDERR_FILENO) != 0)
{
}

ProgressLine::~ProgressLine()
{
    clear();
}

void ProgressLine::set(const QString &text)
{
    if (!m_isShown)
        return;
    writeNow("\r\033[K" + printable(text));
    m_isWritten = true;
}

void ProgressLine::clear()
{
    if (m_isWritten)
        writeNow("\r\033[K");
    m_isWritten = false;
}

} // namespace example
