#pragma once

#include "foundcamera.h"
#include "options.h"
#include "report.h"
#include "support/progressline.h"

#include <QtCore/QString>

namespace client {

/// Writes what comes out: cameras and reports to standard output, all else to standard error.
class Printer
{
public:
    Printer(Form form, bool quiet);

    /// A camera that a search has found. In a table it has its line later.
    void show(const FoundCamera &found);

    void show(const Report &report);

    /// A request that would set something at \a address.
    void show(const QString &address, const QByteArray &message);

    /// Says what happens.
    void progress(const QString &line);

    /// Says how far things are, where there is a terminal.
    void progressOf(const QString &text);

    /// Whether \a text of progressOf() is seen by anybody.
    bool hasProgressLine() const { return !m_quiet && m_line.isShown(); }

    void complain(const QString &sentence);

private:
    enum class Last { Nothing, Camera, Report };

    void write(const QString &text);
    void separateFrom(Last next);

    Form m_form;
    bool m_quiet;
    Last m_last = Last::Nothing; ///< what was printed
    QString m_progress;          ///< the text of the line
    example::ProgressLine m_line;
};

} // namespace client
