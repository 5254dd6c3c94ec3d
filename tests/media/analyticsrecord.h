#pragma once

// What holds for modules and rules alike, and for the lists of them: the tests of one of these are those of both.

#include "records.h"

#include <type_traits>
#include <utility>

namespace test {

/// \a Traits names the record, its list, the element that the list takes and an element that only the other takes.
template <typename Traits>
struct AnalyticsRecord : ::testing::Test
{
    using Record = typename Traits::Record;
    using Engine = typename Traits::Engine;

    static_assert(std::is_base_of_v<QList<Record>, Engine>);
    static_assert(!std::is_base_of_v<vorn::OnvifResponseStructure, Engine>);
    static_assert(std::is_default_constructible_v<Engine>);
    static_assert(std::is_constructible_v<Engine, const vorn::XmlResponseNode &>);
    static_assert(!std::is_constructible_v<Engine, const QByteArray &>);
    static_assert(!std::is_constructible_v<Engine, const QByteArray &, const QString &>);
    static_assert(!std::is_polymorphic_v<Engine>);
    static_assert(std::is_nothrow_move_constructible_v<Engine>);
    static_assert(std::is_nothrow_move_assignable_v<Engine>);

    static Record read(const QByteArray &xml) { return Record(nodeOf(xml)); }

    /// A list from \a children, which are written with "item" for the element that the list takes.
    static Engine engineOf(QByteArray children)
    {
        return Engine(nodeOf(element("Element", children.replace("item", Traits::child))));
    }

    static Record withUnsharedTexts()
    {
        Record record = read("<Element/>");
        record.name = QString(20, u'n');
        record.type = QString(20, u't');
        return record;
    }

    static void expectTexts(const Record &record)
    {
        EXPECT_FALSE(record.isNull());
        EXPECT_EQ(record.name, "nnnnnnnnnnnnnnnnnnnn");
        EXPECT_EQ(record.type, "tttttttttttttttttttt");
    }

    static bool areShared(const Record &record) { return !record.name.isDetached() && !record.type.isDetached(); }

    static bool areUnshared(const Record &record) { return record.name.isDetached() && record.type.isDetached(); }
};

TYPED_TEST_SUITE_P(AnalyticsRecord);

TYPED_TEST_P(AnalyticsRecord, readsEachAttribute)
{
    const auto named = TestFixture::read("<Element Name=' n '/>");
    EXPECT_EQ(named.name, " n ");
    EXPECT_TRUE(named.type.isEmpty());
    const auto typed = TestFixture::read("<Element Type='tt:T'/>");
    EXPECT_TRUE(typed.name.isEmpty());
    EXPECT_EQ(typed.type, "tt:T");
}

TYPED_TEST_P(AnalyticsRecord, doesNotReadChildren)
{
    const auto record =
        TestFixture::read("<Element><Name>n</Name><Type>t</Type><Parameters Name='p' Type='q'/></Element>");
    EXPECT_FALSE(record.isNull());
    expectDefaults(record);
}

TYPED_TEST_P(AnalyticsRecord, ignoresAttributesOfAnotherCase)
{
    expectDefaults(TestFixture::read("<Element name='n' TYPE='t' token='x'/>"));
}

TYPED_TEST_P(AnalyticsRecord, ofAMissingNodeIsEqualToADefaultOne)
{
    EXPECT_TRUE(typename TypeParam::Record(vorn::XmlResponseNode()) == typename TypeParam::Record());
}

TYPED_TEST_P(AnalyticsRecord, ofAnEmptyElementDiffersFromADefaultOne)
{
    EXPECT_FALSE(TestFixture::read("<Element/>") == typename TypeParam::Record());
    EXPECT_TRUE(TestFixture::read("<Element/>") == TestFixture::read("<Element/>"));
}

TYPED_TEST_P(AnalyticsRecord, isEqualByNullFlagNameAndType)
{
    const auto record = TestFixture::read("<Element Name='n' Type='t'/>");
    EXPECT_TRUE(record == TestFixture::read("<Element Name='n' Type='t' Other='o'><Child/></Element>"));
    EXPECT_FALSE(record == TestFixture::read("<Element Name='N' Type='t'/>"));
    EXPECT_FALSE(record == TestFixture::read("<Element Name='n' Type='T'/>"));
    EXPECT_FALSE(record == TestFixture::read("<Element Name='n'/>"));
    EXPECT_FALSE(record == TestFixture::read("<Element Type='t'/>"));
    typename TypeParam::Record null;
    null.name = "n";
    null.type = "t";
    EXPECT_FALSE(record == null);
}

// A text that was moved is shared with nothing afterwards; one that was copied is.

TYPED_TEST_P(AnalyticsRecord, isCopiedByConstruction)
{
    const auto source = TestFixture::withUnsharedTexts();
    const auto copy = source; // NOLINT(performance-unnecessary-copy-initialization)
    TestFixture::expectTexts(copy);
    EXPECT_TRUE(TestFixture::areShared(copy));
}

TYPED_TEST_P(AnalyticsRecord, isMovedByConstruction)
{
    auto source = TestFixture::withUnsharedTexts();
    const auto moved = std::move(source);
    TestFixture::expectTexts(moved);
    EXPECT_TRUE(TestFixture::areUnshared(moved));
}

TYPED_TEST_P(AnalyticsRecord, isMovedByAssignment)
{
    auto source = TestFixture::withUnsharedTexts();
    typename TypeParam::Record target;
    target = std::move(source);
    TestFixture::expectTexts(target);
    EXPECT_TRUE(TestFixture::areUnshared(target));
}

TYPED_TEST_P(AnalyticsRecord, movesTheNullFlag)
{
    typename TypeParam::Record null;
    const auto moved = std::move(null);
    EXPECT_TRUE(moved.isNull());
    auto target = TestFixture::read("<Element/>");
    target = typename TypeParam::Record();
    EXPECT_TRUE(target.isNull());
}

TYPED_TEST_P(AnalyticsRecord, listIsEmptyByDefaultAndForAMissingNode)
{
    EXPECT_TRUE(typename TypeParam::Engine().isEmpty());
    EXPECT_TRUE(typename TypeParam::Engine(vorn::XmlResponseNode()).isEmpty());
    EXPECT_TRUE(TestFixture::engineOf("").isEmpty());
}

TYPED_TEST_P(AnalyticsRecord, listTakesItsElementsInDocumentOrder)
{
    const auto engine = TestFixture::engineOf("<tt:item Name='a' Type='t1'/><tt:item Name='b' Type='t2'/>"
                                              "<tt:Extension><tt:item Name='x'/></tt:Extension>"
                                              "<tt:item Name='c' Type='t3'/>");
    ASSERT_EQ(engine.size(), 3);
    EXPECT_EQ(engine[0].name, "a");
    EXPECT_EQ(engine[0].type, "t1");
    EXPECT_EQ(engine[1].name, "b");
    EXPECT_EQ(engine[1].type, "t2");
    EXPECT_EQ(engine[2].name, "c");
    EXPECT_EQ(engine[2].type, "t3");
    EXPECT_FALSE(engine[2].isNull());
}

TYPED_TEST_P(AnalyticsRecord, listSkipsOtherElements)
{
    const QByteArray child(TypeParam::child);
    for (const QByteArray &name : {QByteArray(TypeParam::otherChild), child.toLower(), child.toUpper(), child + 's'})
        EXPECT_TRUE(TestFixture::engineOf(element(name)).isEmpty()) << name.constData();
}

TYPED_TEST_P(AnalyticsRecord, listKeepsEmptyElementsAndDuplicates)
{
    const auto engine = TestFixture::engineOf("<item/><item Name='n' Type='t'/><item Name='n' Type='t'/>");
    ASSERT_EQ(engine.size(), 3);
    EXPECT_FALSE(engine[0].isNull());
    EXPECT_TRUE(engine[0].name.isEmpty());
    EXPECT_TRUE(engine[1] == engine[2]);
}

TYPED_TEST_P(AnalyticsRecord, listIsCopiedMovedAndAssigned)
{
    const auto isSource = [](const typename TypeParam::Engine &engine) {
        return engine.size() == 2 && engine[0].name == "a" && engine[1].name == "b" && !engine[1].isNull();
    };
    const auto source = TestFixture::engineOf("<item Name='a'/><item Name='b'/>");
    auto copy = source;
    EXPECT_TRUE(isSource(copy));
    const auto *elements = copy.constData();
    auto moved = std::move(copy);
    EXPECT_TRUE(isSource(moved));
    EXPECT_EQ(moved.constData(), elements);
    auto assigned = TestFixture::engineOf("<item Name='x'/>");
    assigned = moved;
    EXPECT_TRUE(isSource(assigned));
    auto moveAssigned = TestFixture::engineOf("<item Name='x'/>");
    moveAssigned = std::move(moved);
    EXPECT_TRUE(isSource(moveAssigned));
    EXPECT_EQ(moveAssigned.constData(), elements);
    EXPECT_TRUE(isSource(source));
}

REGISTER_TYPED_TEST_SUITE_P(AnalyticsRecord, readsEachAttribute, doesNotReadChildren, ignoresAttributesOfAnotherCase,
                            ofAMissingNodeIsEqualToADefaultOne, ofAnEmptyElementDiffersFromADefaultOne,
                            isEqualByNullFlagNameAndType, isCopiedByConstruction, isMovedByConstruction,
                            isMovedByAssignment, movesTheNullFlag, listIsEmptyByDefaultAndForAMissingNode,
                            listTakesItsElementsInDocumentOrder, listSkipsOtherElements,
                            listKeepsEmptyElementsAndDuplicates, listIsCopiedMovedAndAssigned);

} // namespace test
