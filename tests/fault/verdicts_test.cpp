// The verdicts on the documents of samples/faults, which stand in one table beside them.

#include "expectations.h"
#include "samples/samples.h"
#include "support/printing.h"

#include <vorn/onvif/faults.h>

#include <QtCore/QDir>
#include <QtCore/QMap>
#include <QtCore/QStringList>
#include <gtest/gtest.h>

using vorn::OnvifFault;

namespace {

const QString folder = QStringLiteral(SAMPLES_FOLDER "/faults/");

/// The three names by file.
QMap<QString, QStringList> verdicts()
{
    QMap<QString, QStringList> table;
    const QStringList lines =
        QString::fromUtf8(test::contentsOf(folder + "verdicts.txt")).split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (line.startsWith('#'))
            continue;
        const QStringList columns = line.split(' ', Qt::SkipEmptyParts);
        EXPECT_EQ(columns.size(), 4) << line.toStdString();
        table.insert(columns.value(0), columns.mid(1));
    }
    return table;
}

template <std::size_t size>
int valueOf(const test::CodeName (&codes)[size], const QString &name)
{
    for (const test::CodeName &code : codes) {
        if (name == code.name)
            return code.value;
    }
    EXPECT_EQ(name, "NoSpecific");
    return 0;
}

TEST(FaultSamples, areAllInTheTable)
{
    const QStringList files = QDir(folder).entryList({"*.xml"}, QDir::Files, QDir::Name);
    EXPECT_GE(files.size(), 25);
    QStringList listed = verdicts().keys();
    for (QString &name : listed)
        name += ".xml";
    EXPECT_EQ(listed, files);
}

TEST(FaultSamples, getTheirVerdicts)
{
    const QMap<QString, QStringList> table = verdicts();
    ASSERT_FALSE(table.isEmpty());
    for (auto row = table.begin(); row != table.end(); ++row) {
        const OnvifFault fault(test::contentsOf(folder + row.key() + ".xml"), "", 0);
        EXPECT_EQ(fault.faultType, valueOf(test::faultTypes, row.value().at(0))) << row.key().toStdString();
        EXPECT_EQ(fault.subcodeType, valueOf(test::subcodeTypes, row.value().at(1))) << row.key().toStdString();
        EXPECT_EQ(fault.specificType, valueOf(test::specificTypes, row.value().at(2))) << row.key().toStdString();
        EXPECT_EQ(fault.hasError(), row.value().at(0) != "NoFault") << row.key().toStdString();
    }
}

} // namespace
