#include "instructions.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

#include <iostream>

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#define HAS_CALLGRIND 1
#else
#define HAS_CALLGRIND 0
#endif

namespace bench {
namespace {

/// Adds what callgrind wrote to \a file: what its task is called, and its instructions.
void addCount(const QString &file, Costs &instructions)
{
    QFile dump(file);
    if (!dump.open(QIODevice::ReadOnly))
        return;
    const QByteArray nameStart = "desc: Trigger: Client Request: ";
    const QByteArray countStart = "summary: ";
    std::string name;
    while (!dump.atEnd()) {
        const QByteArray line = dump.readLine().trimmed();
        if (line.startsWith(nameStart))
            name = line.mid(nameStart.size()).toStdString();
        else if (line.startsWith(countStart))
            instructions[name] = line.mid(countStart.size()).toDouble();
    }
}

} // namespace

bool canCountInstructions()
{
    return HAS_CALLGRIND != 0 && !QStandardPaths::findExecutable(QStringLiteral("valgrind")).isEmpty();
}

Costs countInstructions()
{
    const QTemporaryDir folder;
    QProcess valgrind;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_HASH_SEED"), QStringLiteral("0")); // else each run counts a little different
    // glibc consolidates its fast bins earlier or later with the state of the heap: the length of an argument moved a
    // row by 11 %.
    environment.insert(QStringLiteral("GLIBC_TUNABLES"), QStringLiteral("glibc.malloc.mxfast=0"));
    valgrind.setProcessEnvironment(environment);
    valgrind.start(QStringLiteral("valgrind"),
                   QStringList{QStringLiteral("--tool=callgrind"), QStringLiteral("--instr-atstart=no"),
                               QStringLiteral("--callgrind-out-file=") + folder.filePath(QStringLiteral("counts")),
                               QCoreApplication::applicationFilePath()}
                       + QCoreApplication::arguments().mid(1) + QStringList{countOption()});
    if (!valgrind.waitForFinished(-1) || valgrind.exitStatus() != QProcess::NormalExit || valgrind.exitCode() != 0) {
        std::cerr << valgrind.readAllStandardError().toStdString();
        return {};
    }
    Costs instructions;
    const QFileInfoList dumps = QDir(folder.path()).entryInfoList({QStringLiteral("counts.*")});
    for (const QFileInfo &dump : dumps)
        addCount(dump.filePath(), instructions);
    return instructions;
}

QString countOption()
{
    return QStringLiteral("--count");
}

bool isCountedRun()
{
    return QCoreApplication::arguments().constLast() == countOption();
}

void runCounted(const Task &task)
{
    task.run(); // so that what is done only once is not counted
#if HAS_CALLGRIND
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
    task.run();
    CALLGRIND_DUMP_STATS_AT(task.name.c_str());
    CALLGRIND_STOP_INSTRUMENTATION;
#endif
}

} // namespace bench
