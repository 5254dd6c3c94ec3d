#include "core/listrecord.h"
#include "support/nodes.h"
#include "support/printing.h"

#include <vorn/onvif/bases.h>

#include <gtest/gtest.h>

using vorn::OnvifDataStructure;
using vorn::OnvifResponseStructure;
using vorn::RecordElement;

namespace {

struct Element : OnvifDataStructure
{
    QString text;
    bool copied = false;

    Element() = default;

    Element(const Element &other)
        : OnvifDataStructure(other)
        , text(other.text)
        , copied(true)
    {
    }

    Element &operator=(const Element &) = default;
};

void readValue(const RecordElement &element, Element &record)
{
    record.text = element.text();
}

struct ElementVector : QList<Element>, OnvifResponseStructure
{
    ElementVector(const QByteArray &bytes, const QString &root)
        : OnvifResponseStructure(bytes, root)
    {
        vorn::readElements(*this, {QStringLiteral("/Item"), QStringLiteral("/Options")});
    }
};

TEST(ReadElements, takesEachMatchInDocumentOrder)
{
    const ElementVector list("<r><Item>1</Item><Other/><x:Item>2</x:Item></r>", "/r");
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0].text, "1");
    EXPECT_EQ(list[1].text, "2");
    EXPECT_FALSE(list[0].isNull());
    EXPECT_EQ(list.xml, "<r><Item>1</Item><Other/><x:Item>2</x:Item></r>");
}

TEST(ReadElements, keepsElementsWithoutContent)
{
    const ElementVector list("<r><Item/></r>", "/r");
    ASSERT_EQ(list.size(), 1);
    EXPECT_TRUE(list[0].text.isEmpty());
    EXPECT_FALSE(list[0].isNull());
}

TEST(ReadElements, givesAnEmptyListForAnotherReply)
{
    EXPECT_TRUE(ElementVector("<r><Item/></r>", "/other").isEmpty());
    EXPECT_TRUE(ElementVector("no xml", "/r").isEmpty());
    EXPECT_TRUE(ElementVector(QByteArray(), QString()).isEmpty());
}

TEST(ReadElements, takesOnePathAfterTheOther)
{
    const ElementVector list("<r><Options>3</Options><Item>1</Item><Options>4</Options><Item>2</Item></r>", "/r");
    ASSERT_EQ(list.size(), 4);
    for (qsizetype i = 0; i < 4; ++i)
        EXPECT_EQ(list[i].text, QString::number(i + 1));
}

TEST(ReadElements, takesNoMoreRoomThanTheElementsNeed)
{
    const ElementVector list("<r><Item/><Options/><Options/><Options/><Options/><Options/></r>", "/r");
    EXPECT_EQ(list.size(), 6);
    EXPECT_EQ(list.capacity(), 6);
}

TEST(ReadElements, putsElementsThroughTheirOwnCopyOperation)
{
    const ElementVector list("<r><Item/></r>", "/r");
    ASSERT_EQ(list.size(), 1);
    EXPECT_TRUE(list[0].copied);
}

struct Items : QList<Element>
{
};

TEST(ReadList, replacesWhatTheListHoldsByTheChildrenOfOneName)
{
    const QByteArray xml = "<Element><Item>1</Item><Other/><x:Item>2</x:Item></Element>";
    const vorn::XmlResponse response(xml, QString());
    const vorn::XmlResponseNode node = test::nodeOf(xml);
    for (const RecordElement &element : {RecordElement(node), RecordElement(response.view(u"/Element"))}) {
        Items items;
        items.resize(3);
        vorn::readList(element, "Item", items);
        ASSERT_EQ(items.size(), 2);
        EXPECT_EQ(items[0].text, "1");
        EXPECT_EQ(items[1].text, "2");
        EXPECT_FALSE(items[1].isNull());
    }
}

} // namespace
