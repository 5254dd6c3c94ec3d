#pragma once

// Runs camera-report and simulated-device, which talk to each other over sockets on loopback.

#include "support/patience.h"
#include "support/printing.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <gtest/gtest.h>

namespace test {

inline QString samples(const QString &name)
{
    return QStringLiteral(SAMPLES_FOLDER "/") + name;
}

/// A folder with one reply, for a device to answer from.
class ReplyFolder
{
public:
    /// \a content stands in the response to \a action.
    ReplyFolder(const QString &action, const QByteArray &content)
        : m_file(m_folder.filePath(action + ".xml"))
    {
        const QByteArray element = action.toUtf8() + "Response>";
        EXPECT_TRUE(m_file.open(QIODevice::WriteOnly));
        m_file.write("<Envelope><Body><" + element + content + "</" + element + "</Body></Envelope>");
        m_file.close();
    }

    QString path() const { return m_folder.path(); }

    QString fileName() const { return m_file.fileName(); }

private:
    QTemporaryDir m_folder;
    QFile m_file;
};

/// A device that is simulated for as long as this object lives. In the arguments of camera-report, its addresses are
/// filled in: {address} and {probe}.
class SimulatedDevice
{
public:
    explicit SimulatedDevice(const QStringList &arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(DEVICE_PROGRAM), arguments);
        QByteArray line;
        while (!line.endsWith('\n') && m_process.waitForReadyRead(patience))
            line += m_process.readAllStandardOutput();
        const QJsonObject ready = QJsonDocument::fromJson(line).object();
        for (const QJsonValue &device : ready["devices"].toArray())
            m_addresses += device.toString();
        m_probe = ready["probe"].toString();
        m_takesMulticast = ready["multicast"].toBool();
        EXPECT_FALSE(m_addresses.isEmpty()) << line.toStdString();
    }

    ~SimulatedDevice()
    {
        m_process.terminate();
        EXPECT_TRUE(m_process.waitForFinished(patience));
        EXPECT_EQ(m_process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(m_process.exitCode(), 0);
    }

    SimulatedDevice(const SimulatedDevice &) = delete;
    SimulatedDevice &operator=(const SimulatedDevice &) = delete;

    QString address() const { return m_addresses.value(0); }

    QStringList addresses() const { return m_addresses; }

    bool takesMulticast() const { return m_takesMulticast; }

    QString filledIn(const QString &text) const
    {
        return QString(text).replace("{address}", address()).replace("{probe}", m_probe);
    }

private:
    QProcess m_process;
    QStringList m_addresses;
    QString m_probe;
    bool m_takesMulticast = false;
};

struct Result
{
    int exitCode = -1;
    QString output;
    QString errors;
};

/// Keeps what is JSON of the \a output of camera-report, for the schema to be held against it.
inline void keepJson(const QByteArray &output)
{
    static QFile file(QStringLiteral(JSON_FILE));
    if (!output.startsWith('{'))
        return;
    EXPECT_TRUE(file.isOpen() || file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(output);
    file.flush();
}

inline Result resultOf(QProcess &process)
{
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit)
        return {};
    const QByteArray output = process.readAllStandardOutput();
    if (process.program() == QStringLiteral(REPORT_PROGRAM))
        keepJson(output);
    return {process.exitCode(), QString::fromUtf8(output), QString::fromUtf8(process.readAllStandardError())};
}

/// Runs camera-report, which says only what failed.
inline Result report(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(REPORT_PROGRAM), QStringList("--quiet") + arguments);
    return resultOf(process);
}

/// The same against \a device.
inline Result report(const SimulatedDevice &device, const QStringList &arguments)
{
    QStringList filledIn;
    for (const QString &argument : arguments)
        filledIn += device.filledIn(argument);
    return report(filledIn);
}

/// Has \a search take longer each time until it has printed \a text as often as \a times: nobody knows how long an
/// answer takes on a machine that has much else to do.
template <typename Search>
Result searchUntil(const QString &text, qsizetype times, const Search &search)
{
    Result result;
    for (const char *seconds : {"0.5", "2", "8", "32", "120"}) {
        result = search(QStringList{"--timeout", seconds});
        if (result.output.count(text) >= times)
            break;
    }
    return result;
}

/// Searches for \a device until \a text is printed as often as \a times.
inline Result search(const SimulatedDevice &device, const QStringList &arguments, const QString &text,
                     qsizetype times = 1)
{
    return searchUntil(text, times, [&](const QStringList &timeout) { return report(device, arguments + timeout); });
}

} // namespace test
