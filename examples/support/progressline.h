#pragma once

#include <QtCore/QString>

namespace example {

/// One line on a terminal that tells how far things are, and is written anew each time. Nothing if standard error is no
/// terminal.
class ProgressLine
{
public:
    ProgressLine();
    ~ProgressLine();

    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

    bool isShown() const { return m_isShown; }

    /// Shows \a text instead of what was shown.
    void set(const QString &text);

    /// Takes the line away, so that something else can be written.
    void clear();

private:
    bool m_isShown;
    bool m_isWritten = false;
};

} // namespace example
