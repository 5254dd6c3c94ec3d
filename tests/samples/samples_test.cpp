// Every sample reads the same by every road. That each is shown as the outline beside it says, shown.cmake checks.

#include "fuzz/sameview.h"
#include "samples.h"
#include "support/printing.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QSet>
#include <QtXml/QDomDocument>
#include <gtest/gtest.h>

using vorn::XmlResponse;
using vorn::XmlResponseNode;

namespace {

class Samples : public testing::TestWithParam<test::Sample>
{
};

/// Compares the roads to \a node, the first of path \a path, and to the first of each path below it.
void expectAgreement(XmlResponse &response, const XmlResponseNode &node, const QString &path)
{
    const XmlResponseNode found = response.get(path);
    ASSERT_TRUE(found.valid) << path.toStdString();
    EXPECT_EQ(found.name, node.name);
    EXPECT_EQ(found.element.text(), node.element.text()) << path.toStdString();
    EXPECT_EQ(response.getText(path), found.element.text()) << path.toStdString();
    EXPECT_EQ(response.getText(path).isNull(), found.element.text().isNull()) << path.toStdString();
    EXPECT_EQ(response.getUInt(path), found.element.text().toUInt()) << path.toStdString();
    EXPECT_TRUE(fuzz::isSame(response.view(path), found)) << path.toStdString();
    const QDomNamedNodeMap attributes = found.element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QString name = attributes.item(i).nodeName();
        EXPECT_EQ(response.getAttribute(name, path), found.element.attribute(name)) << path.toStdString();
    }
    QSet<QString> seen;
    for (const XmlResponseNode &child : node.children) {
        if (!seen.contains(child.name))
            expectAgreement(response, child, path + '/' + child.name);
        seen.insert(child.name);
    }
}

QString localName(const QDomElement &element)
{
    return element.tagName().section(':', -1);
}

/// Compares with Qt's DOM the text and attributes of the first element of each path.
void expectAgreement(XmlResponse &response, const QDomElement &element, const QString &path)
{
    EXPECT_EQ(response.getText(path), element.text()) << path.toStdString();
    EXPECT_EQ(response.get(path).element.text(), element.text()) << path.toStdString();
    const QDomNamedNodeMap attributes = element.attributes();
    EXPECT_EQ(response.get(path).element.attributes().count(), attributes.count()) << path.toStdString();
    for (int i = 0; i < attributes.count(); ++i)
        EXPECT_EQ(response.getAttribute(attributes.item(i).nodeName(), path), attributes.item(i).nodeValue());

    QSet<QString> seen;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const QString name = localName(child);
        if (!seen.contains(name))
            expectAgreement(response, child, path + '/' + name);
        seen.insert(name);
    }
}

TEST_P(Samples, readTheSameByEveryRoad)
{
    const QByteArray bytes = GetParam().bytes();
    ASSERT_FALSE(bytes.isEmpty());
    XmlResponse response(bytes, QString());
    for (const char *path : {"/Envelope", "/Fault", "/html"}) {
        const XmlResponseNode documentElement = response.get(path);
        if (documentElement.valid)
            expectAgreement(response, documentElement, path);
    }
}

/// False if there is nothing to compare with: Qt refuses the sample, or reads more into it, such as entities.
bool compareWithQtsDom(const test::Sample &sample)
{
    QDomDocument plain;
    const QByteArray bytes = sample.bytes();
    const bool isComparable = !bytes.contains("encoding=\"GB2312\"") && !bytes.contains("<!DOCTYPE");
    const bool takenByQt = isComparable && plain.setContent(bytes);
    if (!takenByQt)
        return false;
    XmlResponse response(bytes, QString());
    expectAgreement(response, plain.documentElement(), '/' + localName(plain.documentElement()));
    return true;
}

TEST(SamplesFolder, readsAsQtsDomReadsIt)
{
    int compared = 0;
    for (const test::Sample &sample : test::allSamples()) {
        SCOPED_TRACE(sample.path);
        compared += compareWithQtsDom(sample) ? 1 : 0;
    }
    EXPECT_GE(compared, 40);
}

INSTANTIATE_TEST_SUITE_P(All, Samples, testing::ValuesIn(test::allSamples()));

TEST(SamplesFolder, holdsAnExpectationForEachSampleAndNoOther)
{
    const std::vector<test::Sample> samples = test::allSamples();
    EXPECT_GE(samples.size(), 15U);
    for (const test::Sample &sample : samples)
        EXPECT_TRUE(QFile::exists(sample.fileName() + ".expected")) << sample.path;
    QDirIterator expectations(QStringLiteral(SAMPLES_FOLDER), {"*.expected"}, QDir::Files,
                              QDirIterator::Subdirectories);
    while (expectations.hasNext()) {
        const QString name = expectations.next();
        EXPECT_TRUE(QFile::exists(name.chopped(int(qstrlen(".expected"))))) << name.toStdString();
    }
}

} // namespace
