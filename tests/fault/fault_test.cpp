// OnvifFault as a value.

#include "support/allocations.h"
#include "support/printing.h"

#include <vorn/onvif/faults.h>

#include <gtest/gtest.h>

#include <type_traits>

using vorn::ErrorInterface;
using vorn::OnvifFault;
using vorn::OnvifResponseStructure;

static_assert(std::is_abstract_v<ErrorInterface>);
static_assert(std::has_virtual_destructor_v<ErrorInterface>);
static_assert(sizeof(ErrorInterface) == sizeof(void *), "no data");

/// An error of a program's own.
struct WholeError : ErrorInterface
{
    QString toString() const override { return QStringLiteral("whole"); }

    int errorId() const override { return 1; }

    void reset() override {}

    bool hasError() const override { return true; }
};

struct ErrorWithoutText : ErrorInterface
{
    int errorId() const override { return 1; }

    void reset() override {}

    bool hasError() const override { return true; }
};

struct ErrorWithoutId : ErrorInterface
{
    QString toString() const override { return {}; }

    void reset() override {}

    bool hasError() const override { return true; }
};

struct ErrorWithoutReset : ErrorInterface
{
    QString toString() const override { return {}; }

    int errorId() const override { return 1; }

    bool hasError() const override { return true; }
};

struct ErrorWithoutVerdict : ErrorInterface
{
    QString toString() const override { return {}; }

    int errorId() const override { return 1; }

    void reset() override {}
};

static_assert(!std::is_abstract_v<WholeError>);
static_assert(std::is_abstract_v<ErrorWithoutText>);
static_assert(std::is_abstract_v<ErrorWithoutId>);
static_assert(std::is_abstract_v<ErrorWithoutReset>);
static_assert(std::is_abstract_v<ErrorWithoutVerdict>);

/// The bases and fields of OnvifFault in their order.
struct Layout : ErrorInterface, OnvifResponseStructure
{
    qint32 faultType;
    qint32 subcodeType;
    qint32 specificType;
    const char *action;
    unsigned int responseId;
};

static_assert(sizeof(OnvifFault) == sizeof(Layout));
static_assert(std::is_base_of_v<ErrorInterface, OnvifFault>);
static_assert(std::is_base_of_v<OnvifResponseStructure, OnvifFault>);
static_assert(std::is_same_v<std::underlying_type_t<OnvifFault::FaultType>, qint32>);
static_assert(std::is_same_v<std::underlying_type_t<OnvifFault::SubcodeType>, qint32>);
static_assert(std::is_same_v<std::underlying_type_t<OnvifFault::SpecificType>, qint32>);
static_assert(std::is_same_v<decltype(OnvifFault::action), const char *>);

namespace {

const QByteArray noProfile =
    "<Envelope><Body><Fault><Code><Value>s:Sender</Value><Subcode><Value>ter:InvalidArgVal</Value><Subcode>"
    "<Value>ter:NoProfile</Value></Subcode></Subcode></Code></Fault></Body></Envelope>";

void expectNoProfile(const OnvifFault &fault, const char *action)
{
    EXPECT_EQ(fault.faultType, OnvifFault::Sender);
    EXPECT_EQ(fault.subcodeType, OnvifFault::InvalidArgVal);
    EXPECT_EQ(fault.specificType, OnvifFault::NoProfile);
    EXPECT_EQ(fault.action, action) << "the same pointer";
    EXPECT_EQ(fault.responseId(), 7U);
    EXPECT_EQ(fault.xml, QString::fromLatin1(noProfile));
    EXPECT_EQ(OnvifResponseStructure(fault).response.getText("/Envelope/Body/Fault/Code/Value"), "s:Sender");
}

TEST(OnvifFault, isNoFaultByDefault)
{
    const OnvifFault fault;
    EXPECT_EQ(fault.faultType, OnvifFault::NoFault);
    EXPECT_EQ(fault.subcodeType, OnvifFault::NoSubcode);
    EXPECT_EQ(fault.specificType, OnvifFault::NoSpecific);
    ASSERT_NE(fault.action, nullptr);
    EXPECT_STREQ(fault.action, "");
    EXPECT_EQ(fault.responseId(), 0U);
    EXPECT_TRUE(fault.xml.isEmpty());
    EXPECT_FALSE(fault.hasError());
    EXPECT_EQ(fault.errorId(), 0);
    EXPECT_EQ(fault.toString(), "No error.");
}

TEST(OnvifFault, hasItsFieldsInOrder)
{
    const OnvifFault fault;
    EXPECT_LT(static_cast<const void *>(static_cast<const ErrorInterface *>(&fault)),
              static_cast<const void *>(static_cast<const OnvifResponseStructure *>(&fault)));
    EXPECT_LT(static_cast<const void *>(&fault.xml), static_cast<const void *>(&fault.faultType));
    EXPECT_LT(static_cast<const void *>(&fault.faultType), static_cast<const void *>(&fault.subcodeType));
    EXPECT_LT(static_cast<const void *>(&fault.subcodeType), static_cast<const void *>(&fault.specificType));
    EXPECT_LT(static_cast<const void *>(&fault.specificType), static_cast<const void *>(&fault.action));
}

TEST(OnvifFault, handsEveryNumberBack)
{
    EXPECT_EQ(OnvifFault(noProfile, "", 0xFFFFFFFFU).responseId(), 0xFFFFFFFFU);
    EXPECT_EQ(OnvifFault({}, OnvifFault::Sender, {}, {}, 0xFFFFFFFFU).responseId(), 0xFFFFFFFFU);
}

TEST(OnvifFault, keepsANullAction)
{
    EXPECT_EQ(OnvifFault(noProfile, nullptr, 0).action, nullptr);
}

TEST(OnvifFault, keepsWhatItWasBuiltFrom)
{
    const char *const action = "GetProfile";
    const OnvifFault fault(noProfile, action, 7);
    expectNoProfile(fault, action);
}

TEST(OnvifFault, copiesMovesAndAssignsAllFields)
{
    const char *const action = "GetProfile";
    const OnvifFault source(noProfile, action, 7);
    OnvifFault copy(source);
    expectNoProfile(copy, action);
    OnvifFault moved(std::move(copy));
    expectNoProfile(moved, action);
    OnvifFault assigned;
    assigned = moved;
    expectNoProfile(assigned, action);
    OnvifFault moveAssigned;
    moveAssigned = std::move(moved);
    expectNoProfile(moveAssigned, action);
}

TEST(OnvifFault, statedByTheCallerIsNotClassified)
{
    const OnvifFault fault(noProfile, OnvifFault::HttpNotFound, OnvifFault::Tag, OnvifFault::EmptyScope, 9);
    EXPECT_EQ(fault.faultType, OnvifFault::HttpNotFound);
    EXPECT_EQ(fault.subcodeType, OnvifFault::Tag);
    EXPECT_EQ(fault.specificType, OnvifFault::EmptyScope);
    EXPECT_EQ(fault.responseId(), 9U);
    EXPECT_STREQ(fault.action, "");
    EXPECT_EQ(fault.xml, QString::fromLatin1(noProfile));
    EXPECT_TRUE(OnvifResponseStructure(fault).response.get("/Envelope").valid);
    EXPECT_FALSE(OnvifFault(noProfile, OnvifFault::NoFault, {}, {}, 0).hasError());
}

TEST(OnvifFault, errorIdIsTheFaultTypeAlone)
{
    EXPECT_EQ(OnvifFault(noProfile, "", 0).errorId(), 4);
    EXPECT_EQ(OnvifFault({}, OnvifFault::Sender, OnvifFault::Tag, OnvifFault::NoSpecific, 0).errorId(), 4);
    EXPECT_EQ(OnvifFault({}, OnvifFault::UnknownTransportError, {}, {}, 0).errorId(), 19);
    for (const int outside : {-1, 20, 1000})
        EXPECT_EQ(OnvifFault({}, static_cast<OnvifFault::FaultType>(outside), {}, {}, 0).errorId(), outside);
}

TEST(OnvifFault, hasErrorByTheFaultTypeAlone)
{
    EXPECT_TRUE(OnvifFault({}, OnvifFault::VersionMismatch, {}, {}, 0).hasError());
    for (const int outside : {-1, 20})
        EXPECT_TRUE(OnvifFault({}, static_cast<OnvifFault::FaultType>(outside), {}, {}, 0).hasError());
    EXPECT_FALSE(OnvifFault({}, OnvifFault::NoFault, OnvifFault::Tag, OnvifFault::NoProfile, 0).hasError());
}

TEST(OnvifFault, isComparesExactly)
{
    const OnvifFault fault(noProfile, "", 0);
    EXPECT_TRUE(fault.is(OnvifFault::Sender));
    EXPECT_FALSE(fault.is(OnvifFault::Receiver));
    EXPECT_TRUE(fault.is(OnvifFault::Sender, OnvifFault::InvalidArgVal));
    EXPECT_FALSE(fault.is(OnvifFault::Receiver, OnvifFault::InvalidArgVal));
    EXPECT_FALSE(fault.is(OnvifFault::Sender, OnvifFault::NoSubcode));
    EXPECT_TRUE(fault.is(OnvifFault::Sender, OnvifFault::InvalidArgVal, OnvifFault::NoProfile));
    EXPECT_FALSE(fault.is(OnvifFault::Sender, OnvifFault::InvalidArgVal, OnvifFault::NoSpecific));
    EXPECT_FALSE(fault.is(OnvifFault::Sender, OnvifFault::InvalidArgs, OnvifFault::NoProfile));
    EXPECT_FALSE(fault.is(OnvifFault::Receiver, OnvifFault::InvalidArgVal, OnvifFault::NoProfile));
}

TEST(OnvifFault, resetClearsTheReplyAndTheFaultTypeOnly)
{
    const char *const action = "GetProfile";
    OnvifFault fault(noProfile, action, 7);
    fault.reset();
    EXPECT_TRUE(fault.xml.isEmpty());
    EXPECT_FALSE(fault.response.get("/Envelope").valid);
    EXPECT_TRUE(fault.response.xml().isEmpty());
    EXPECT_EQ(fault.faultType, OnvifFault::NoFault);
    EXPECT_FALSE(fault.hasError());
    EXPECT_EQ(fault.errorId(), 0);
    EXPECT_EQ(fault.toString(), "No error.");

    EXPECT_EQ(fault.subcodeType, OnvifFault::InvalidArgVal);
    EXPECT_EQ(fault.specificType, OnvifFault::NoProfile);
    EXPECT_EQ(fault.action, action);
    EXPECT_EQ(fault.responseId(), 7U);
    EXPECT_TRUE(fault.is(OnvifFault::NoFault, OnvifFault::InvalidArgVal));
}

TEST(OnvifFault, worksThroughItsInterface)
{
    OnvifFault fault(noProfile, "", 0);
    ErrorInterface &error = fault;
    EXPECT_TRUE(error.hasError());
    EXPECT_EQ(error.errorId(), 4);
    EXPECT_EQ(error.toString(), "The requested profile does not exist.");
    error.reset();
    EXPECT_FALSE(error.hasError());

    std::unique_ptr<ErrorInterface> owned = std::make_unique<OnvifFault>(noProfile, "", 0);
    EXPECT_TRUE(owned->hasError());
    owned = std::make_unique<WholeError>();
    EXPECT_EQ(owned->toString(), "whole");
}

/// Notes in which order its virtual operations stand in the table of a compiler that follows the Itanium C++ ABI.
TEST(ErrorInterface, hasItsVirtualOperationsInOrder)
{
#if defined(__GXX_ABI_VERSION)
    OnvifFault fault(noProfile, "", 0);
    ErrorInterface *error = &fault;
    // Two entries for the destructor, then toString, errorId, reset and hasError.
    using ErrorId = int (*)(const ErrorInterface *);
    using Reset = void (*)(ErrorInterface *);
    using HasError = bool (*)(const ErrorInterface *);
    void **table = *reinterpret_cast<void ***>(error);
    EXPECT_EQ(reinterpret_cast<ErrorId>(table[3])(error), 4);
    EXPECT_TRUE(reinterpret_cast<HasError>(table[5])(error));
    EXPECT_EQ(error->errorId(), 4) << "the last one changes nothing";
    reinterpret_cast<Reset>(table[4])(error);
    EXPECT_FALSE(error->hasError());
#else
    GTEST_SKIP() << "The layout is known for the Itanium C++ ABI only.";
#endif
}

TEST(OnvifFaultAllocations, noneByDefaultAndInQueries)
{
    const OnvifFault fault(noProfile, "", 0);
    const test::AllocationCounter allocations;
    const OnvifFault none;
    EXPECT_TRUE(fault.hasError());
    EXPECT_EQ(fault.errorId(), 4);
    EXPECT_TRUE(fault.is(OnvifFault::Sender, OnvifFault::InvalidArgVal, OnvifFault::NoProfile));
    EXPECT_EQ(fault.responseId(), 0U);
    EXPECT_EQ(allocations.count(), 0U);
}

} // namespace
