// Hosts that mean harm: floods, clocks that cannot be, challenges that want to know more, and texts that deceive.

#include "camera-report/credentials.h"
#include "client/fakeserver.h"
#include "client/programs.h"
#include "support/sanitizers.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QDate>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtNetwork/QNetworkDatagram>
#include <QtNetwork/QUdpSocket>

#include <csignal>
#include <sys/types.h>

namespace {

using test::FakeServer;
using test::httpReply;
using test::ReplyFolder;
using test::report;
using test::Result;
using test::samples;
using test::SimulatedDevice;

/// The answer to a probe of camera number \a number. \a filling stands in its Header.
QByteArray probeMatch(int number, const QByteArray &filling = {})
{
    return "<Envelope><Header>" + filling
           + "</Header><Body><ProbeMatches><ProbeMatch><Scopes>"
             "onvif://www.onvif.org/name/N</Scopes><XAddrs>http://127.0.0.1:"
           + QByteArray::number(number) + "/</XAddrs></ProbeMatch></ProbeMatches></Body></Envelope>";
}

/// A client that searches, and a socket that its probe has come to.
class Searcher
{
public:
    explicit Searcher(const QStringList &arguments)
    {
        EXPECT_TRUE(m_socket.bind(QHostAddress::LocalHost));
        m_process.start(QStringLiteral(REPORT_PROGRAM),
                        QStringList{"--quiet", "--probe-address", QString("127.0.0.1:%1").arg(m_socket.localPort())}
                            + arguments);
        EXPECT_TRUE(m_socket.waitForReadyRead(test::patience));
        const QNetworkDatagram probe = m_socket.receiveDatagram();
        m_port = static_cast<quint16>(probe.senderPort());
    }

    void send(const QByteArray &datagram) { m_socket.writeDatagram(datagram, QHostAddress::LocalHost, m_port); }

    QProcess &process() { return m_process; }

private:
    QUdpSocket m_socket;
    QProcess m_process;
    quint16 m_port = 0;
};

/// Sends answers to \a searcher as fast as can be, until it ends. A bound for the case that it never does.
void flood(Searcher &searcher)
{
    QElapsedTimer timer;
    timer.start();
    const QByteArray answer = probeMatch(80);
    while (!searcher.process().waitForFinished(0) && timer.elapsed() < test::patience) {
        for (int count = 0; count < 2000; ++count)
            searcher.send(answer);
    }
}

TEST(Flood, ofAnswersDoesNotKeepASearchFromItsEnd)
{
    Searcher searcher({"--timeout", "0.5"});
    flood(searcher);
    ASSERT_EQ(searcher.process().state(), QProcess::NotRunning);
    EXPECT_EQ(searcher.process().exitCode(), 0);
    EXPECT_EQ(searcher.process().readAllStandardOutput(), "127.0.0.1: N\n");
}

TEST(Flood, ofAnswersDoesNotKeepASearchFromBeingStopped)
{
    Searcher searcher({"--timeout", "3600"});
    for (int count = 0; count < 2000; ++count)
        searcher.send(probeMatch(80));
    ASSERT_EQ(kill(static_cast<pid_t>(searcher.process().processId()), SIGINT), 0);
    flood(searcher);
    ASSERT_EQ(searcher.process().state(), QProcess::NotRunning);
    EXPECT_EQ(searcher.process().exitCode(), 130);
}

/// The most memory that \a process has had by now, in KiB.
int peakMemoryOf(const QProcess &process)
{
    QFile file(QString("/proc/%1/status").arg(process.processId()));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray status = file.readAll();
    const qsizetype start = status.indexOf("VmHWM:") + 6;
    return status.mid(start, status.indexOf("kB", start) - start).trimmed().toInt();
}

TEST(Flood, ofLongAnswersTakesLittleMemory)
{
    if (test::sanitized)
        GTEST_SKIP() << "A sanitizer holds on to memory that was freed.";
    Searcher searcher({"--timeout", "3600", "--json"});
    searcher.process().setReadChannel(QProcess::StandardOutput);
    const int before = peakMemoryOf(searcher.process());
    if (before < 0)
        GTEST_SKIP() << "This system does not tell how much memory a process takes.";
    // Each takes more than 1 MiB once it is parsed.
    const QByteArray filling = QByteArray("<a/>").repeated(3900);
    int cameras = 0;
    for (int number = 1; number <= 1000; ++number) {
        searcher.send(probeMatch(number, filling));
        while (cameras < number && searcher.process().waitForReadyRead(test::patience)) {
            while (searcher.process().canReadLine()) {
                searcher.process().readLine();
                ++cameras;
            }
        }
        ASSERT_EQ(cameras, number);
    }
    EXPECT_LT(peakMemoryOf(searcher.process()) - before, 100 * 1024);
    searcher.process().kill();
    searcher.process().waitForFinished(test::patience);
}

TEST(Flood, ofLongerAnswersIsNotRead)
{
    Searcher searcher({"--timeout", "3600", "--json"});
    searcher.process().setReadChannel(QProcess::StandardOutput);
    searcher.send(probeMatch(1, QByteArray("<a/>").repeated(5000)));
    searcher.send(probeMatch(2) + QByteArray(20000, ' ')); // whole also where it is cut off
    searcher.send(probeMatch(3));
    while (!searcher.process().canReadLine() && searcher.process().waitForReadyRead(test::patience)) {
    }
    const QByteArray first = searcher.process().readLine();
    EXPECT_TRUE(first.contains("\"127.0.0.1:3\"")) << first.toStdString();
    searcher.process().kill();
    searcher.process().waitForFinished(test::patience);
}

TEST(Flood, ofCamerasIsCutOffAndSaid)
{
    Searcher searcher({"--timeout", "3600"});
    QElapsedTimer timer;
    timer.start();
    // Some get lost on the way; but the process reads while this one waits.
    int number = 0;
    while (!searcher.process().waitForFinished(1) && timer.elapsed() < test::patience) {
        for (int count = 0; count < 32; ++count)
            searcher.send(probeMatch(++number % 60000 + 1));
    }
    ASSERT_EQ(searcher.process().state(), QProcess::NotRunning);
    EXPECT_EQ(searcher.process().exitCode(), 1);
    EXPECT_EQ(searcher.process().readAllStandardOutput().count('\n'), 4096);
    EXPECT_EQ(
        searcher.process().readAllStandardError(),
        "camera-report: More answered than are taken note of, which is 4096 cameras, or 16 MiB of what they say.\n");
}

TEST(Flood, ofCamerasThatSayMuchIsCutOffSooner)
{
    Searcher searcher({"--timeout", "3600"});
    QElapsedTimer timer;
    timer.start();
    // 30 KB each, as UTF-16.
    const QByteArray name = "/name/" + QByteArray(15000, 'N');
    int number = 0;
    while (!searcher.process().waitForFinished(1) && timer.elapsed() < test::patience) {
        for (int count = 0; count < 8; ++count)
            searcher.send(probeMatch(++number % 60000 + 1).replace("/name/N", name));
    }
    ASSERT_EQ(searcher.process().state(), QProcess::NotRunning);
    EXPECT_EQ(searcher.process().exitCode(), 1);
    const qsizetype cameras = searcher.process().readAllStandardOutput().count('\n');
    EXPECT_GT(cameras, 500);
    EXPECT_LT(cameras, 560);
}

/// A reply to GetSystemDateAndTime that tells \a year.
QByteArray clockOf(int year)
{
    return "<SystemDateAndTime><UTCDateTime><Time><Hour>1</Hour><Minute>2</Minute><Second>3</Second></Time><Date><Year>"
           + QByteArray::number(year) + "</Year><Month>4</Month><Day>5</Day></Date></UTCDateTime></SystemDateAndTime>";
}

/// Runs camera-report with a user against a device whose clock shows \a year. Puts the times in the tokens that it sent
/// into \a created.
Result reportOnYear(int year, const QStringList &more, QStringList &created)
{
    const ReplyFolder clock("GetSystemDateAndTime", clockOf(year));
    const QTemporaryDir folder;
    QFile password(folder.filePath("password"));
    EXPECT_TRUE(password.open(QIODevice::WriteOnly));
    password.write("simulated\n");
    password.close();
    EXPECT_TRUE(QDir(folder.path()).mkdir("record"));
    const QDir record(folder.filePath("record"));
    const SimulatedDevice device(
        {samples("short-prefixes"), "--answer", "GetSystemDateAndTime=" + clock.fileName(), "--record", record.path()});
    const Result result = report(device, QStringList{"--address", "{address}", "--timeout", "60", "--user", "operator",
                                                     "--password-file", password.fileName()}
                                             + more);
    for (const QString &name : record.entryList(QDir::Files, QDir::Name)) {
        QFile file(record.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray message = file.readAll();
        vorn::XmlResponse request(message.mid(message.indexOf("\r\n\r\n") + 4), "/Envelope/Header/Security");
        const QString time = request.getText("/UsernameToken/Created");
        if (!time.isNull())
            created += time;
    }
    return result;
}

class Clocks : public testing::TestWithParam<std::pair<int, const char *>>
{
};

TEST_P(Clocks, areNotBelieved)
{
    const QString thisYear = QString::number(QDate::currentDate().year());
    QStringList created;
    const Result result = reportOnYear(GetParam().first, {}, created);
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_TRUE(result.output.contains(GetParam().second)) << result.output.toStdString();
    EXPECT_FALSE(created.isEmpty());
    for (const QString &time : created)
        EXPECT_EQ(time.left(4), thisYear);
}

const char *const notUsed = "  Not used: proofs of who asks do not go by it, as --clock-limit wants\n";

INSTANTIATE_TEST_SUITE_P(Hostile, Clocks,
                         testing::Values(std::pair(10000, "Clock\n  Time: none that can be\n"),
                                         std::pair(-1, "Clock\n  Time: none that can be\n"), std::pair(2099, notUsed),
                                         std::pair(1970, notUsed)));

TEST(Clock, isBelievedAsFarAsTheUserWants)
{
    QStringList created;
    const Result result = reportOnYear(1970, {"--clock-limit", "100000"}, created);
    EXPECT_FALSE(result.output.contains("Not used"));
    ASSERT_FALSE(created.isEmpty());
    EXPECT_EQ(created.constFirst().left(13), "1970-04-05T01");
}

TEST(Json, escapesWhatTheTextDoes)
{
    const ReplyFolder folder("GetDeviceInformation",
                             "<Model>a\xc2\x9b\xe2\x80\xae\xe2\x80\xa8\xf3\xa0\x80\xa1z \xc3\xb6</Model>");
    const SimulatedDevice device({folder.path()});
    const Result result = report(device, {"--address", "{address}", "--json", "--timeout", "60"});
    EXPECT_TRUE(result.output.contains(QString::fromUtf8(R"("model":"a\u009b\u202e\u2028\udb40\udc21z ö")")))
        << result.output.toStdString();
    EXPECT_EQ(QJsonDocument::fromJson(result.output.toUtf8()).object()["information"].toObject()["model"].toString(),
              QString::fromUtf8("a\xc2\x9b\xe2\x80\xae\xe2\x80\xa8\xf3\xa0\x80\xa1z \xc3\xb6"));
}

class Challenges : public testing::TestWithParam<const char *>
{
};

TEST_P(Challenges, areNotAnsweredWithoutAUser)
{
    FakeServer server([](const QByteArray &) {
        return httpReply("401 Unauthorized", "", QByteArray("WWW-Authenticate: ") + GetParam() + "\r\n");
    });
    EXPECT_EQ(report({"--address", server.address(), "--timeout", "60"}).exitCode, 1);
    const QList<QByteArray> requests = server.requests();
    EXPECT_EQ(requests.size(), 8); // none is sent anew
    for (const QByteArray &request : requests)
        EXPECT_FALSE(request.toLower().contains("authorization:")) << request.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Hostile, Challenges,
                         testing::Values("NTLM", "Negotiate", "Basic realm=\"r\"",
                                         "Digest realm=\"r\", nonce=\"n\", qop=\"auth\""));

TEST(Challenge, ofNtlmIsNotAnsweredForAUserEither)
{
    const QTemporaryDir folder;
    QFile password(folder.filePath("password"));
    ASSERT_TRUE(password.open(QIODevice::WriteOnly));
    password.write("simulated\n");
    password.close();
    FakeServer server([](const QByteArray &) {
        return httpReply(
            "401 Unauthorized", "",
            "WWW-Authenticate: NTLM\r\nWWW-Authenticate: Negotiate\r\nWWW-Authenticate: Basic realm=\"r\"\r\n");
    });
    EXPECT_EQ(report({"--address", server.address(), "--timeout", "60", "--user", "operator", "--password-file",
                      password.fileName()})
                  .exitCode,
              1);
    for (const QByteArray &request : server.requests())
        EXPECT_FALSE(request.toLower().contains("authorization:")) << request.toStdString();
}

TEST(Challenge, thatIsAlwaysStaleIsNotAnsweredForEver)
{
    const QTemporaryDir folder;
    QFile password(folder.filePath("password"));
    ASSERT_TRUE(password.open(QIODevice::WriteOnly));
    password.write("simulated\n");
    password.close();
    FakeServer server([](const QByteArray &) {
        return httpReply("401 Unauthorized", "",
                         "WWW-Authenticate: Digest realm=\"r\", nonce=\"n\", qop=\"auth\", stale=true\r\n");
    });
    EXPECT_EQ(report({"--address", server.address(), "--timeout", "60", "--user", "operator", "--password-file",
                      password.fileName()})
                  .exitCode,
              1);
    EXPECT_EQ(server.requests().size(), 4); // the clock, without a proof, and with two
}

TEST(MessageId, goesIntoTheAnswerAsItIs)
{
    const SimulatedDevice device({samples("short-prefixes")});
    const QString probe = device.filledIn("{probe}");
    const QByteArray id = "a\\1\\2b\\g{0}\\\\&amp;&lt;x&gt;\"\xc3\xbc\xe2\x82\xac";
    QUdpSocket socket;
    ASSERT_TRUE(socket.bind(QHostAddress::LocalHost));
    socket.writeDatagram("<Envelope><Header><MessageID>" + id + "</MessageID></Header><Body><Probe/></Body></Envelope>",
                         QHostAddress::LocalHost, static_cast<quint16>(probe.section(':', 1).toUInt()));
    ASSERT_TRUE(socket.waitForReadyRead(test::patience));
    vorn::XmlResponse answer(socket.receiveDatagram().data(), "/Envelope/Header");
    EXPECT_EQ(answer.getText("/RelatesTo"), QString::fromUtf8("a\\1\\2b\\g{0}\\\\&<x>\"\xc3\xbc\xe2\x82\xac"));
}

} // namespace
