// XmlResponse as a value: copies, moves, assignments, and what it takes from the heap.

#include "support/allocations.h"
#include "support/printing.h"

#include <vorn/util/xmlresponse.h>

#include <gtest/gtest.h>

#include <thread>
#include <type_traits>
#include <vector>

using vorn::XmlResponse;
using vorn::XmlResponseNode;

static_assert(std::is_nothrow_move_constructible_v<XmlResponse>);
static_assert(std::is_nothrow_move_assignable_v<XmlResponse>);
static_assert(std::is_copy_constructible_v<XmlResponse>);
static_assert(std::is_nothrow_move_constructible_v<XmlResponseNode>);

namespace {

const QByteArray reply = "<r token='t'><a>1</a><a>2</a></r>";

/// Whether all queries answer for the reply.
bool answers(XmlResponse &response)
{
    return response.getText("/a") == "1" && response.getAll("/a").size() == 2
           && response.getAttribute("token", "") == "t" && response.xml() == QString::fromLatin1(reply)
           && response.get("/a").element.text() == "1";
}

void expectEmpty(XmlResponse &response)
{
    EXPECT_FALSE(response.get("/a").valid);
    EXPECT_FALSE(response.get("").valid);
    EXPECT_TRUE(response.getAll("/a").isEmpty());
    EXPECT_TRUE(response.getText("/a").isNull());
    EXPECT_TRUE(response.getText("").isNull());
    EXPECT_EQ(response.getUInt("/a"), 0U);
    EXPECT_FALSE(response.getBool("/a"));
    EXPECT_TRUE(response.getAttribute("token", "").isNull());
    EXPECT_TRUE(response.xml().isEmpty());
}

TEST(XmlResponseValue, defaultIsEmpty)
{
    XmlResponse response;
    expectEmpty(response);
}

TEST(XmlResponseValue, copyAnswersAsItsSource)
{
    XmlResponse source(reply, "/r");
    XmlResponse copy(source);
    EXPECT_TRUE(answers(copy));
    EXPECT_TRUE(answers(source));
}

TEST(XmlResponseValue, copyOutlivesItsSource)
{
    auto source = std::make_unique<XmlResponse>(reply, "/r");
    XmlResponse copy(*source);
    source.reset();
    EXPECT_TRUE(answers(copy));
}

TEST(XmlResponseValue, outlivesItsBytes)
{
    QByteArray bytes = reply;
    bytes.detach();
    XmlResponse response(bytes, "/r");
    bytes.fill('x');
    EXPECT_TRUE(answers(response));
}

TEST(XmlResponseValue, moveTakesAllAndLeavesAnEmptyResponse)
{
    XmlResponse source(reply, "/r");
    ASSERT_TRUE(source.get("/a").valid);
    XmlResponse moved(std::move(source));
    EXPECT_TRUE(answers(moved));
    expectEmpty(source); // NOLINT(bugprone-use-after-move): a moved-from response is an empty one
}

TEST(XmlResponseValue, copyAssignmentReplaces)
{
    XmlResponse source(reply, "/r");
    XmlResponse target("<x><a>other</a></x>", "/x");
    ASSERT_EQ(target.get("/a").element.text(), "other");
    target = source;
    EXPECT_TRUE(answers(target));
    EXPECT_TRUE(answers(source));
}

TEST(XmlResponseValue, moveAssignmentReplaces)
{
    XmlResponse source(reply, "/r");
    XmlResponse target("<x><a>other</a></x>", "/x");
    ASSERT_EQ(target.get("/a").element.text(), "other");
    target = std::move(source);
    EXPECT_TRUE(answers(target));
}

TEST(XmlResponseValue, emptyResponseCanBeAssigned)
{
    XmlResponse target(reply, "/r");
    target = XmlResponse();
    expectEmpty(target);
    target = XmlResponse(reply, "/r");
    EXPECT_TRUE(answers(target));
}

TEST(XmlResponseValue, selfAssignmentChangesNothing)
{
    XmlResponse response(reply, "/r");
    const QDomDocument owner = response.get("/a").element.ownerDocument();
    XmlResponse &same = response;
    response = same;
    EXPECT_TRUE(answers(response));
    EXPECT_EQ(response.get("/a").element.ownerDocument(), owner);
}

TEST(XmlResponseValue, nodesOfACopyHaveAnOwnerOfTheirOwn)
{
    XmlResponse source(reply, "/r");
    const QDomDocument owner = source.get("/a").element.ownerDocument();
    XmlResponse copy(source);
    EXPECT_NE(copy.get("/a").element.ownerDocument(), owner);
    XmlResponse assigned;
    assigned = source;
    EXPECT_NE(assigned.get("/a").element.ownerDocument(), owner);
}

TEST(XmlResponseValue, copiesAreReadOnSeveralThreadsAtOnce)
{
    XmlResponse source(reply, "/r");
    ASSERT_TRUE(answers(source)); // so that there is something that copies must not share
    std::vector<std::thread> threads;
    std::vector<int> good(4);
    for (int &result : good) {
        threads.emplace_back([&result, copy = source]() mutable {
            for (int i = 0; i < 100; ++i)
                result += answers(copy) ? 1 : 0;
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(good, std::vector<int>({100, 100, 100, 100}));
}

TEST(XmlResponseValue, assignmentForgetsWhereThePathsLed)
{
    const QByteArray other = "<r><a><b>other</b></a></r>";
    XmlResponse copied(reply, "/r");
    XmlResponse moved(reply, "/r");
    ASSERT_FALSE(copied.get("/a/b").valid);
    ASSERT_FALSE(moved.get("/a/b").valid);
    const XmlResponse source(other, "/r");
    copied = source;
    moved = XmlResponse(other, "/r");
    EXPECT_EQ(copied.getText("/a/b"), "other");
    EXPECT_EQ(moved.getText("/a/b"), "other");
}

TEST(XmlResponseValue, movedResponseKeepsAnswering)
{
    XmlResponse source("<r><a><b>1</b><c>2</c></a></r>", "/r");
    ASSERT_EQ(source.getText("/a/b"), "1");
    XmlResponse target(std::move(source));
    EXPECT_EQ(target.getText("/a/c"), "2");
    source = XmlResponse("<r><a><b>3</b></a></r>", "/r");
    EXPECT_EQ(source.getText("/a/b"), "3");
}

TEST(XmlResponseAllocations, noneForADefaultOrEmptyResponse)
{
    const QByteArray none;
    const QByteArray empty("");
    const QString root;
    const test::AllocationCounter allocations;
    XmlResponse byDefault;
    XmlResponse overNull(none, root);
    XmlResponse overEmpty(empty, root);
    XmlResponse copy(overEmpty);
    XmlResponse moved(std::move(copy));
    byDefault = moved;
    EXPECT_EQ(allocations.count(), 0U);
}

TEST(XmlResponseAllocations, noneForAQueryThatFindsNothing)
{
    XmlResponse response(reply, "/r");
    const QString path = "/missing/b";
    const QString attribute = "missing";
    const QString root = "";
    const XmlResponseNode node = response.get("");
    const QString nodePath = "/r/missing";
    const test::AllocationCounter allocations;
    EXPECT_FALSE(response.get(path).valid);
    EXPECT_TRUE(response.getAll(path).isEmpty());
    EXPECT_TRUE(response.getText(path).isNull());
    EXPECT_EQ(response.getUInt(path), 0U);
    EXPECT_FALSE(response.getBool(path));
    EXPECT_TRUE(response.getAttribute(attribute, root).isNull());
    EXPECT_FALSE(response.get(node, nodePath).valid);
    EXPECT_TRUE(response.getText(node, nodePath).isNull());
    EXPECT_EQ(response.getUInt(node, nodePath), 0U);
    EXPECT_EQ(allocations.count(), 0U);
}

TEST(XmlResponseAllocations, noneForNumbersAndBooleans)
{
    XmlResponse response("<r><n> 4<!-- -->2 </n><b>true</b></r>", "/r");
    const QString number = "/n";
    const QString boolean = "/b";
    const test::AllocationCounter allocations;
    EXPECT_EQ(response.getUInt(number), 42U);
    EXPECT_TRUE(response.getBool(boolean));
    EXPECT_EQ(allocations.count(), 0U);
}

TEST(XmlResponseAllocations, oneForAText)
{
    XmlResponse response("<r a='value'><t>some text</t></r>", "/r");
    const QString path = "/t";
    const QString attribute = "a";
    const QString root = "";
    const test::AllocationCounter allocations;
    const QString text = response.getText(path);
    EXPECT_EQ(allocations.count(), 1U);
    const QString value = response.getAttribute(attribute, root);
    EXPECT_EQ(allocations.count(), 2U);
}

TEST(XmlResponseAllocations, noneForACopy)
{
    const XmlResponse response(reply, "/r");
    const test::AllocationCounter allocations;
    const XmlResponse copy(response);
    const QString text = copy.xml();
    EXPECT_EQ(allocations.count(), 0U);
}

} // namespace
