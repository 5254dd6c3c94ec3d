// What an application does to show the library's texts in another language: docs/translating.md shows parts of this.

#include "support/printing.h"
#include "support/run.h"

#include <vorn/onvif/faults.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/relays.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <gtest/gtest.h>

namespace {

using vorn::OnvifFault;
using vorn::OnvifNetworkInterface;
using vorn::OnvifRelayOutput;

constexpr auto duplex = OnvifNetworkInterface::LinkSettings::Full;

/// What a translator's tool saves.
constexpr auto catalogue = R"(<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>vorn::OnvifFault</name>
    <message>
        <source>The requested profile does not exist.</source>
        <translation>Das verlangte Profil gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>vorn::OnvifNetworkInterface</name>
    <message>
        <source>Full</source>
        <comment>Meaning full duplex</comment>
        <translation>Voll</translation>
    </message>
</context>
<context>
    <name>vorn::OnvifRelayOutput</name>
    <message>
        <source>Closed</source>
        <translation>Geschlossen – zu</translation>
    </message>
</context>
</TS>
)";

class Translation : public testing::Test
{
protected:
    void SetUp() override
    {
        QFile file(folder.filePath("german.ts"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(catalogue);
        file.close();

        const test::RunResult lrelease =
            test::run({QStringLiteral(LRELEASE_PROGRAM), "-silent", file.fileName(), "-qm", compiled()});
        ASSERT_EQ(lrelease.status, 0) << lrelease.output.constData();
    }

    QString compiled() const { return folder.filePath("german.qm"); }

    const QTemporaryDir folder;
    int argc = 0;
    QCoreApplication application{argc, nullptr};
    const OnvifFault fault{{}, OnvifFault::Sender, OnvifFault::InvalidArgVal, OnvifFault::NoProfile, 0};
};

TEST_F(Translation, isTheSourceTextWithoutACatalogue)
{
    EXPECT_EQ(fault.toString(), "The requested profile does not exist.");
    EXPECT_EQ(vPrintable(duplex), "Full");
    EXPECT_EQ(vPrintable(OnvifRelayOutput::Closed), "Closed");
}

TEST_F(Translation, isThatOfAnInstalledCatalogue)
{
    //! [install]
    QTranslator translator;
    if (translator.load(compiled()))
        QCoreApplication::installTranslator(&translator);
    //! [install]

    EXPECT_EQ(fault.toString(), "Das verlangte Profil gibt es nicht.");
    EXPECT_EQ(vPrintable(duplex), "Voll");
    EXPECT_EQ(vPrintable(OnvifRelayOutput::Closed), "Geschlossen – zu");
}

TEST_F(Translation, isTheSourceTextWhereTheCatalogueHasNone)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(compiled()));
    QCoreApplication::installTranslator(&translator);

    EXPECT_EQ(OnvifFault().toString(), "No error.");
    EXPECT_EQ(vPrintable(OnvifNetworkInterface::LinkSettings::Half), "Half");
    EXPECT_EQ(vPrintable(OnvifRelayOutput::Open), "Open");
}

TEST_F(Translation, isLookedUpEachTimeATextIsAskedFor)
{
    const OnvifFault copy = fault;
    QTranslator translator;
    ASSERT_TRUE(translator.load(compiled()));

    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ(copy.toString(), "Das verlangte Profil gibt es nicht.");
    EXPECT_EQ(vPrintable(duplex), "Voll");
    EXPECT_EQ(vPrintable(OnvifRelayOutput::Closed), "Geschlossen – zu");

    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(copy.toString(), "The requested profile does not exist.");
    EXPECT_EQ(vPrintable(duplex), "Full");
    EXPECT_EQ(vPrintable(OnvifRelayOutput::Closed), "Closed");
}

} // namespace
