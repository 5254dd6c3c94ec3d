#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

#include <cstdlib>

namespace test {

struct RunResult
{
    int status = -1;   // what std::system() gives: 0 if all is well
    QByteArray output; // of both streams
};

/// Runs the program that \a command starts with, to its end. Not by QProcess, which can start nothing in a program that
/// is emulated.
inline RunResult run(const QStringList &command)
{
    const QTemporaryDir folder;
    QFile output(folder.filePath(QStringLiteral("output")));
    const QString line = QStringLiteral("'%1' >'%2' 2>&1").arg(command.join(QStringLiteral("' '")), output.fileName());
    const int status = std::system(QFile::encodeName(line).constData());
    return {status, output.open(QIODevice::ReadOnly) ? output.readAll() : QByteArray("no output")};
}

} // namespace test
