#include "support/allocations.h"
#include "support/printing.h"

#include <vorn/onvif/bases.h>

#include <gtest/gtest.h>

#include <type_traits>

using vorn::OnvifDataStructure;
using vorn::OnvifResponseStructure;

static_assert(std::has_virtual_destructor_v<OnvifDataStructure>);
static_assert(!std::is_polymorphic_v<OnvifResponseStructure>);

// The assignment takes its argument by value.
static_assert(std::is_same_v<decltype(&OnvifDataStructure::operator=),
                             OnvifDataStructure &(OnvifDataStructure::*)(OnvifDataStructure)>);

namespace {

struct Record : OnvifDataStructure
{
    Record() = default;

    using OnvifDataStructure::OnvifDataStructure;
    using OnvifDataStructure::setNull;

    QString toString() const override { return QStringLiteral("record"); }
};

TEST(OnvifDataStructure, isNullByDefault)
{
    EXPECT_TRUE(OnvifDataStructure().isNull());
}

TEST(OnvifDataStructure, takesItsNullFlag)
{
    EXPECT_TRUE(OnvifDataStructure(true).isNull());
    EXPECT_FALSE(OnvifDataStructure(false).isNull());
}

TEST(OnvifDataStructure, hasNoText)
{
    EXPECT_TRUE(OnvifDataStructure().toString().isNull());
    EXPECT_TRUE(OnvifDataStructure(false).toString().isNull());
}

TEST(OnvifDataStructure, textIsVirtual)
{
    const Record record(false);
    const OnvifDataStructure &base = record;
    EXPECT_EQ(base.toString(), "record");
}

TEST(OnvifDataStructure, copyAndAssignmentTakeTheFlag)
{
    const OnvifDataStructure filled(false);
    const OnvifDataStructure copy(filled);
    EXPECT_FALSE(copy.isNull());

    OnvifDataStructure target;
    target = filled;
    EXPECT_FALSE(target.isNull());
    EXPECT_FALSE(filled.isNull());
    target = OnvifDataStructure();
    EXPECT_TRUE(target.isNull());
    OnvifDataStructure &same = target;
    target = same;
    EXPECT_TRUE(target.isNull());
}

TEST(OnvifDataStructure, derivedRecordsSetTheFlag)
{
    Record record;
    record.setNull(false);
    EXPECT_FALSE(record.isNull());
    record.setNull(true);
    EXPECT_TRUE(record.isNull());
}

TEST(OnvifResponseStructure, isEmptyByDefault)
{
    OnvifResponseStructure structure;
    EXPECT_TRUE(structure.xml.isEmpty());
    EXPECT_FALSE(structure.response.get("/Envelope").valid);
    EXPECT_FALSE(structure.response.get("").valid);
    EXPECT_TRUE(structure.response.getAll("/Envelope").isEmpty());
    EXPECT_TRUE(structure.response.getText("/Envelope").isEmpty());
    EXPECT_EQ(structure.response.getUInt("/Envelope"), 0U);
    EXPECT_FALSE(structure.response.getBool("/Envelope"));
    EXPECT_TRUE(structure.response.getAttribute("token", "/Envelope").isEmpty());
}

TEST(OnvifResponseStructure, allocatesNothingByDefault)
{
    const test::AllocationCounter allocations;
    const OnvifResponseStructure structure;
    const OnvifResponseStructure copy(structure);
    EXPECT_EQ(allocations.count(), 0U);
}

TEST(OnvifResponseStructure, parsesBelowTheRootAndKeepsTheText)
{
    OnvifResponseStructure structure("<Envelope><Body>1</Body></Envelope>", "/Envelope");
    EXPECT_EQ(structure.response.getUInt("/Body"), 1U);
    EXPECT_EQ(structure.xml, "<Envelope><Body>1</Body></Envelope>");
}

TEST(OnvifResponseStructure, isViewedWhereItIsConst)
{
    const OnvifResponseStructure structure("<Envelope><Body>1</Body></Envelope>", "/Envelope");
    EXPECT_EQ(structure.response.view("/Body").text(), "1");
}

TEST(OnvifResponseStructure, keepsTheTextOfWhatCannotBeParsed)
{
    EXPECT_EQ(OnvifResponseStructure("no xml", "/Envelope").xml, "no xml");
}

TEST(OnvifResponseStructure, copiesMovesAndAssignsBothFields)
{
    OnvifResponseStructure source("<a>1</a>", "");
    OnvifResponseStructure copy(source);
    EXPECT_EQ(copy.response.getText("/a"), "1");
    EXPECT_EQ(copy.xml, "<a>1</a>");

    OnvifResponseStructure moved(std::move(copy));
    EXPECT_FALSE(copy.response.get("/a").valid); // NOLINT: the document has gone to the other
    EXPECT_EQ(moved.response.getText("/a"), "1");
    EXPECT_EQ(moved.xml, "<a>1</a>");

    OnvifResponseStructure assigned;
    assigned = moved;
    EXPECT_EQ(assigned.response.getText("/a"), "1");
    EXPECT_EQ(assigned.xml, "<a>1</a>");

    OnvifResponseStructure moveAssigned;
    moveAssigned = std::move(moved);
    EXPECT_FALSE(moved.response.get("/a").valid); // NOLINT
    EXPECT_EQ(moveAssigned.response.getText("/a"), "1");
    EXPECT_EQ(moveAssigned.xml, "<a>1</a>");
    EXPECT_EQ(source.response.getText("/a"), "1");
}

TEST(OnvifResponseStructure, textIsTheCallersToChange)
{
    OnvifResponseStructure structure("<a>1</a>", "");
    structure.xml = "mine";
    EXPECT_EQ(structure.response.getText("/a"), "1");
    EXPECT_EQ(OnvifResponseStructure(structure).xml, "mine");
}

} // namespace
