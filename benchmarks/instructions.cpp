#include "instructions.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <iostream>
#include <valgrind/callgrind.h>

namespace bench {

std::map<std::string, double> countInstructions(const QStringList &names)
{
    const QTemporaryDir folder;
    QProcess valgrind;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_HASH_SEED"), QStringLiteral("0")); // else each run counts a little different
    valgrind.setProcessEnvironment(environment);
    valgrind.start(QStringLiteral("valgrind"),
                   QStringList{QStringLiteral("--tool=callgrind"), QStringLiteral("--instr-atstart=no"),
                               QStringLiteral("--callgrind-out-file=") + folder.filePath(QStringLiteral("counts")),
                               QCoreApplication::applicationFilePath(), QStringLiteral("--count")}
                       + names);
    if (!valgrind.waitForFinished(-1) || valgrind.exitStatus() != QProcess::NormalExit || valgrind.exitCode() != 0) {
        std::cerr << valgrind.readAllStandardError().toStdString();
        return {};
    }

    std::map<std::string, double> instructions;
    const QFileInfoList dumps = QDir(folder.path()).entryInfoList({QStringLiteral("counts.*")});
    for (const QFileInfo &dump : dumps) {
        QFile file(dump.filePath());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray nameStart = "desc: Trigger: Client Request: ";
        const QByteArray countStart = "summary: ";
        std::string name;
        while (!file.atEnd()) {
            const QByteArray line = file.readLine().trimmed();
            if (line.startsWith(nameStart))
                name = line.mid(nameStart.size()).toStdString();
            else if (line.startsWith(countStart))
                instructions[name] = line.mid(countStart.size()).toDouble();
        }
    }
    return instructions;
}

void runCounted(const std::string &name, const std::function<void()> &task)
{
    task(); // so that what is done only once is not counted
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
    task();
    CALLGRIND_DUMP_STATS_AT(name.c_str());
    CALLGRIND_STOP_INSTRUMENTATION;
}

} // namespace bench
