// camera-report: the library at work against a device, over real sockets.

#include "options.h"
#include "password.h"
#include "program.h"
#include "support/stopsignals.h"
#include "support/terminal.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSocketNotifier>

#include <cstdlib>

namespace {

int fail(const QString &sentence)
{
    example::note("camera-report: " + example::printable(sentence));
    return client::CannotRun;
}

/// \a exitCode, unless the output is lost.
int afterOutput(int exitCode)
{
    return example::isOutputWritten() ? exitCode : fail("The output cannot be written.");
}

client::PasswordInput passwordFor(const client::Options &options, int stopDescriptor)
{
    return options.passwordFile.isEmpty()
               ? client::passwordFromTerminal(options.access.credentials.user, stopDescriptor)
               : client::passwordFromFile(options.passwordFile);
}

int run(const client::Options &options, int stopDescriptor)
{
    QSocketNotifier stopped(stopDescriptor, QSocketNotifier::Read);
    QObject::connect(&stopped, &QSocketNotifier::activated, [] { QCoreApplication::exit(client::Stopped); });
    client::Program program(options);
    QMetaObject::invokeMethod(
        &program, [&program] { program.start(); }, Qt::QueuedConnection);
    const int exitCode = afterOutput(QCoreApplication::exec());
    // What was broken off may still be under way in threads of Qt, whose end would be waited for: 5 s if a device
    // floods the head of its reply, and longer if no name server answers.
    if (exitCode != client::Complete)
        std::_Exit(exitCode);
    return exitCode;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const client::CommandLine line = client::readCommandLine(QCoreApplication::arguments());
    if (!line.complaint.isEmpty())
        return fail(line.complaint + " Try --help.");
    if (!line.options) {
        example::print(line.answer);
        return afterOutput(client::Complete);
    }

    const int stopDescriptor = example::catchStopSignals();
    client::Options options = *line.options;
    if (!options.access.credentials.isEmpty()) {
        const client::PasswordInput input = passwordFor(options, stopDescriptor);
        if (input.stopped)
            return client::Stopped;
        if (!input.password)
            return fail(input.complaint);
        options.access.credentials.password = *input.password;
    }
    return run(options, stopDescriptor);
}
