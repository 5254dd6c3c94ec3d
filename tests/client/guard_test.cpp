// What simulated-device takes for a proof of who asks.

#include "camera-report/credentials.h"
#include "camera-report/httpdigest.h"
#include "client/rawhttp.h"

#include <QtCore/QDateTime>

namespace {

using test::httpPost;
using test::replyTo;
using test::report;
using test::samples;
using test::SimulatedDevice;
using test::statusOf;

const client::Credentials operatorSimulated{"operator", "simulated"};
const QByteArray getScopes = "<Envelope><Body><GetScopes/></Body></Envelope>";

/// The challenge of a device, in the words of the header line.
QByteArray challengeFrom(const SimulatedDevice &device)
{
    const QByteArray reply = replyTo(device.address(), httpPost(getScopes));
    const qsizetype start = reply.indexOf("Digest ");
    return reply.mid(start, reply.indexOf("\r\n", start) - start);
}

/// What a device answers to a request that answers \a challenge, as the use of number \a count.
QByteArray answerWith(const SimulatedDevice &device, const QByteArray &challenge, unsigned int count)
{
    const QByteArray authorization = client::digestAuthorization(*client::digestChallenge(challenge), operatorSimulated,
                                                                 {"POST", "/onvif/device_service", "abc", count});
    return replyTo(device.address(), httpPost(getScopes, "Authorization: " + authorization + "\r\n"));
}

TEST(Digest, admitsOneRunAfterTheOther)
{
    QTemporaryDir folder;
    QFile password(folder.filePath("password"));
    ASSERT_TRUE(password.open(QIODevice::WriteOnly));
    password.write("simulated\n");
    password.close();
    const SimulatedDevice device({samples("short-prefixes"), "--auth", "http", "--nonce-uses", "3"});
    for (int run = 0; run < 3; ++run) {
        const test::Result result = report(device, {"--address", "{address}", "--timeout", "60", "--user", "operator",
                                                    "--password-file", password.fileName()});
        EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    }
}

TEST(Digest, countsTheUsesOfEachNonceByItself)
{
    const SimulatedDevice device({samples("short-prefixes"), "--auth", "http"});
    const QByteArray first = challengeFrom(device);
    const QByteArray second = challengeFrom(device);
    EXPECT_NE(first, second);
    EXPECT_EQ(statusOf(answerWith(device, first, 1)), 200);
    EXPECT_EQ(statusOf(answerWith(device, second, 1)), 200);
    EXPECT_EQ(statusOf(answerWith(device, first, 2)), 200);
}

TEST(Digest, isRefusedTheSecondTime)
{
    const SimulatedDevice device({samples("short-prefixes"), "--auth", "http"});
    const QByteArray challenge = challengeFrom(device);
    EXPECT_EQ(statusOf(answerWith(device, challenge, 1)), 200);
    const QByteArray again = answerWith(device, challenge, 1);
    EXPECT_EQ(statusOf(again), 401);
    EXPECT_FALSE(again.contains("stale"));
}

TEST(Digest, isStaleAtTheEndOfItsNonce)
{
    const SimulatedDevice device({samples("short-prefixes"), "--auth", "http", "--nonce-uses", "1"});
    const QByteArray challenge = challengeFrom(device);
    EXPECT_FALSE(challenge.contains("stale"));
    EXPECT_EQ(statusOf(answerWith(device, challenge, 1)), 200);
    const QByteArray late = answerWith(device, challenge, 2);
    EXPECT_EQ(statusOf(late), 401);
    EXPECT_TRUE(late.contains(", stale=true\r\n")) << late.toStdString();
}

TEST(Digest, isStaleWhenTheTimeOfItsNonceIsOver)
{
    const SimulatedDevice device({samples("short-prefixes"), "--auth", "http", "--nonce-life", "0"});
    const QByteArray late = answerWith(device, challengeFrom(device), 1);
    EXPECT_EQ(statusOf(late), 401);
    EXPECT_TRUE(late.contains(", stale=true\r\n")) << late.toStdString();
}

/// A request with a token of \a nonce and \a created, whose digest is right.
QByteArray tokenRequest(const QByteArray &nonce, const QByteArray &created)
{
    return httpPost("<Envelope><Header><Security><UsernameToken><Username>operator</Username><Password>"
                    + client::tokenDigest(nonce, created, "simulated") + "</Password><Nonce>" + nonce.toBase64()
                    + "</Nonce><Created>" + created
                    + "</Created></UsernameToken></Security></Header><Body><GetScopes/></Body></Envelope>");
}

TEST(Token, needsANonceAndATime)
{
    const SimulatedDevice device({samples("short-prefixes"), "--auth", "token"});
    const QByteArray now = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toLatin1();
    EXPECT_EQ(statusOf(replyTo(device.address(), tokenRequest("nonce", now))), 200);
    EXPECT_EQ(statusOf(replyTo(device.address(), tokenRequest("nonce", now))), 400); // it is used
    EXPECT_EQ(statusOf(replyTo(device.address(), tokenRequest("", now))), 400);
    EXPECT_EQ(statusOf(replyTo(device.address(), tokenRequest("other", ""))), 400);
    const QByteArray without = tokenRequest("third", "").replace("<Created></Created>", "                   ");
    EXPECT_EQ(statusOf(replyTo(device.address(), without)), 400);
}

TEST(Request, canComeInChunks)
{
    const SimulatedDevice device({samples("short-prefixes")});
    const QByteArray reply =
        replyTo(device.address(), "POST / HTTP/1.1\r\nHost: device\r\nTransfer-Encoding: chunked\r\n\r\n"
                                  "A;x=y\r\n<Envelope>\r\n6\r\n<Body>\r\n1e\r\n<GetScopes/></Body></Envelope>\r\n"
                                  "0\r\n\r\n");
    EXPECT_EQ(statusOf(reply), 200) << reply.toStdString();
    EXPECT_TRUE(reply.contains("GetScopesResponse"));
}

TEST(Request, canWaitForLeaveToContinue)
{
    const SimulatedDevice device({samples("short-prefixes")});
    QTcpSocket socket;
    socket.connectToHost("127.0.0.1", static_cast<quint16>(device.address().section(':', 1).toUInt()));
    socket.write("POST / HTTP/1.1\r\nHost: device\r\nExpect: 100-continue\r\nContent-Length: "
                 + QByteArray::number(getScopes.size()) + "\r\n\r\n");
    ASSERT_TRUE(socket.waitForReadyRead(test::patience));
    EXPECT_EQ(socket.readAll(), "HTTP/1.1 100 Continue\r\n\r\n");
    socket.write(getScopes);
    while (socket.waitForReadyRead(test::patience)) {
    }
    EXPECT_TRUE(socket.readAll().contains("GetScopesResponse"));
}

} // namespace
