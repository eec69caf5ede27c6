// Exceptions: their ids, and whether they were expected.
#include "Mox/Exception.h"

#include <gtest/gtest.h>
#include <string>
#include <thread>

namespace Mox {
namespace {

template <class Kind, class Raise>
Kind caught(Raise raise) {
  try {
    raise();
  } catch (Kind const& exception) {
    return exception;
  }
  throw std::logic_error("nothing was raised");
}

bool rangeIsExpected() {
  return caught<RangeException>([] { throwRangeException("x"); }).expected();
}

TEST(ExceptionTest, RaisersKeepTheMessage) {
  EXPECT_EQ(caught<RangeException>([] { throwRangeException("low"); }).message(), "low");
  EXPECT_EQ(caught<RangeException>([] { throwRangeException(String8("s")); }).message(), "s");
  EXPECT_EQ(caught<InternalException>([] { throwInternalException("i"); }).message(), "i");
  EXPECT_EQ(caught<InternalException>([] { throwInternalException(String8("j")); }).message(), "j");
  EXPECT_EQ(caught<NameInUseException>([] { throwNameInUseException("n"); }).message(), "n");
}

TEST(ExceptionTest, EachKindBearsItsId) {
  EXPECT_TRUE(RangeException("").ids().isMember(Exception::rangeId));
  EXPECT_TRUE(InternalException("").ids().isMember(Exception::internalId));
  EXPECT_TRUE(NameInUseException("").ids().isMember(Exception::nameInUseId));
  EXPECT_TRUE(AttrLogEntityException("").ids().isMember(Exception::attrLogEntityId));
  EXPECT_FALSE(RangeException("").ids().isMember(Exception::internalId));
}

TEST(ExceptionTest, GivenIdsAreKept) {
  Exception::IdBitArray ids;
  ids.add(63);
  EXPECT_TRUE(RangeException("", ids).ids().isMember(63));
  EXPECT_TRUE(RangeException("", ids).ids().isMember(Exception::rangeId));
}

TEST(ExceptionTest, IdZeroIsNeverAMember) {
  Exception::IdBitArray ids;
  ids.add(0);
  EXPECT_FALSE(ids.isMember(0));
  EXPECT_FALSE(ids.isMember(64));
}

TEST(ExceptionDeathTest, IdBeyondTheSetEndsTheProcess) {
  Exception::IdBitArray ids;
  EXPECT_DEATH(ids.add(64), "Assertion `id <= maxId' failed");
}

TEST(ExceptionTest, CopyIsTheSame) {
  RangeException const original("message");
  RangeException const copy = original;
  EXPECT_EQ(copy.message().charPtr(), original.message().charPtr());
  EXPECT_TRUE(copy.ids().isMember(Exception::rangeId));
}

TEST(ExceptionTest, ReadsAsStandardException) {
  try {
    throwRangeException("null ValidPtr");
  } catch (std::exception const& exception) {
    EXPECT_STREQ(exception.what(), "null ValidPtr");
  }
}

TEST(ExpectTest, NothingIsExpectedOutsideAScope) {
  EXPECT_EQ(Expect::innermost(), 0u);
  EXPECT_FALSE(rangeIsExpected());
}

TEST(ExpectTest, ScopeSaysWhatIsExpected) {
  Expect const range(Exception::rangeId);
  EXPECT_TRUE(rangeIsExpected());
  EXPECT_FALSE(InternalException("").expected());
}

TEST(ExpectTest, ScopesNestAndEnd) {
  Expect const outer(Exception::rangeId);
  {
    Expect const inner(Exception::internalId);
    EXPECT_EQ(Expect::innermost(), Exception::internalId);
    EXPECT_TRUE(rangeIsExpected());
  }
  EXPECT_EQ(Expect::innermost(), Exception::rangeId);
}

TEST(ExpectTest, IdZeroHidesTheScopesAround) {
  Expect const caller(Exception::rangeId);
  {
    Expect const hook(0);
    EXPECT_FALSE(rangeIsExpected());
    Expect const ofTheHook(Exception::rangeId);
    EXPECT_TRUE(rangeIsExpected());
  }
  EXPECT_TRUE(rangeIsExpected());
}

TEST(ExpectTest, ScopeEndsWithTheExceptionThatLeavesIt) {
  try {
    Expect const range(Exception::rangeId);
    throwRangeException("x");
  } catch (RangeException const& exception) {
    EXPECT_TRUE(exception.expected());
  }
  EXPECT_EQ(Expect::innermost(), 0u);
}

TEST(ExpectTest, EachThreadHasItsOwn) {
  Expect const here(Exception::rangeId);
  bool expectedThere = true;
  std::thread([&expectedThere] { expectedThere = rangeIsExpected(); }).join();
  EXPECT_FALSE(expectedThere);
  EXPECT_TRUE(rangeIsExpected());
}

}  // namespace
}  // namespace Mox
