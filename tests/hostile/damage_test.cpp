// A good reply that comes damaged: cut short, with a bit flipped, with NULs.

#include "fuzz/properties.h"
#include "readers.h"

#include <vorn/onvif/faults.h>
#include <vorn/onvif/relays.h>

#include <QtCore/QFile>
#include <gtest/gtest.h>

namespace {

QByteArray goodReply()
{
    QFile file(QStringLiteral(SAMPLES_FOLDER "/many-namespaces/GetRelayOutputs.xml"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

vorn::OnvifRelayOutputVector relaysOf(const QByteArray &reply)
{
    return vorn::OnvifRelayOutputVector(reply, QStringLiteral("/Envelope/Body/GetRelayOutputsResponse"));
}

/// All records of \a reply keep what they promise of any reply; else the program ends.
void check(const QByteArray &reply)
{
    fuzz::checkRecords(reply);
    fuzz::checkFault(reply);
}

TEST(DamagedReply, isOneOfTwoKilobytesThatHoldsRelays)
{
    EXPECT_GE(goodReply().size(), 2000);
    EXPECT_EQ(relaysOf(goodReply()).size(), 2);
}

TEST(DamagedReply, thatIsCutShortHoldsNothing)
{
    const QByteArray reply = goodReply().trimmed();
    for (qsizetype size = 0; size < reply.size(); ++size) {
        const QByteArray prefix = reply.first(size);
        hostile::readAll(prefix);
        EXPECT_TRUE(relaysOf(prefix).isEmpty()) << size;
        EXPECT_EQ(relaysOf(prefix).xml, QString::fromUtf8(prefix)) << size;
        EXPECT_FALSE(vorn::OnvifFault(prefix, "GetRelayOutputs", 1).hasError()) << size;
    }
}

TEST(DamagedReply, withAnyBitFlippedIsRead)
{
    QByteArray reply = goodReply();
    for (char &byte : reply) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            const char good = byte;
            byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << bit));
            hostile::readAll(reply);
            byte = good;
        }
    }
}

TEST(DamagedReply, withANulAnywhereKeepsThePromises)
{
    const QByteArray reply = goodReply();
    for (qsizetype i = 0; i <= reply.size(); ++i)
        check(QByteArray(reply).insert(i, '\0'));
}

TEST(DamagedReply, ofNulsAloneHoldsNothing)
{
    for (qsizetype size = 0; size < 100; ++size) {
        const QByteArray reply(size, '\0');
        check(reply);
        EXPECT_TRUE(relaysOf(reply).isEmpty()) << size;
    }
}

} // namespace
