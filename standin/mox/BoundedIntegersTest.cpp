// The integers of few bits: their bounds, messages and text forms.
#include "Mox/BoundedIntegers.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using Mox::strepToValue;
using Mox::valueToStrep;

template <class Action>
Mox::String8 complaint(Action action) {
  try {
    action();
  } catch (Mox::RangeException const& exception) {
    return exception.message();
  }
  return "";
}

TEST(BoundedIntegerTest, StartsAtZero) {
  EXPECT_EQ(U1(), 0u);
  EXPECT_EQ(U4(), 0u);
  EXPECT_EQ(U6(), 0u);
  EXPECT_EQ(U22(), 0u);
}

TEST(BoundedIntegerTest, IsAsWideAsItsStorage) {
  EXPECT_EQ(sizeof(U1), 1u);
  EXPECT_EQ(sizeof(U4), 1u);
  EXPECT_EQ(sizeof(U6), 1u);
  EXPECT_EQ(sizeof(U22), 4u);
}

TEST(BoundedIntegerTest, TakesTheGreatestLegalValue) {
  EXPECT_EQ(U1(1), 1);
  EXPECT_EQ(U4(15), 15);
  EXPECT_EQ(U6(63), 63);
  EXPECT_EQ(U22(0x3FFFFF), 0x3FFFFFu);
}

TEST(BoundedIntegerTest, RefusesTheNextWithItsMessage) {
  EXPECT_EQ(complaint([] { U1(2); }), "U1::value < 0 or > 0x01 not allowed");
  EXPECT_EQ(complaint([] { U4(16); }), "U4::value < 0 or > 0x0f not allowed");
  EXPECT_EQ(complaint([] { U6(64); }), "U6::value < 0 or > 0x3f not allowed");
  EXPECT_EQ(complaint([] { U22(0x400000); }), "U22::value < 0 or > 0x003fffff not allowed");
}

TEST(BoundedIntegerTest, RefusalLeavesTheOldValue) {
  U4 lane = 3;
  EXPECT_NE(complaint([&lane] { lane = 16; }), "");
  EXPECT_EQ(lane, 3);
}

TEST(BoundedIntegerTest, ComparesWithItsLikeAndWithNumbers) {
  U4 const three = 3, four = 4;
  EXPECT_TRUE(three == U4(3));
  EXPECT_TRUE(three != four);
  EXPECT_TRUE(three < four);
  EXPECT_TRUE(three == 3);
  EXPECT_TRUE(four > three && four >= 4);
}

TEST(BoundedIntegerTest, PrintsADecimalNumberNotAByte) {
  std::ostringstream out;
  out << U4(7) << ' ' << U22(65);
  EXPECT_EQ(out.str(), "7 65");
  EXPECT_EQ(valueToStrep(U6(63)), "63");
}

TEST(BoundedIntegerTest, ReadsWhatItPrints) {
  EXPECT_EQ(strepToValue<U4>("15"), 15);
  EXPECT_EQ(strepToValue<U22>("4194303"), 4194303u);
}

TEST(BoundedIntegerTest, ParserNarrowsBeforeItChecks) {
  EXPECT_EQ(strepToValue<U4>("257"), 1);
  EXPECT_EQ(complaint([] { strepToValue<U4>("16"); }), "U4::value < 0 or > 0x0f not allowed");
  EXPECT_EQ(complaint([] { strepToValue<U4>("-1"); }), "U4::value < 0 or > 0x0f not allowed");
}

TEST(BoundedIntegerTest, KnowsItsDescriptor) {
  EXPECT_EQ(U4(3).fwkType(), U4::_fwkType());
  EXPECT_EQ(U22().fwkType(), U22::_fwkType());
}

TEST(BoundedIntegerTest, ParserComplainsOfTheAttributeValue) {
  EXPECT_EQ(complaint([] { strepToValue<U4>("x"); }),
            "attribute 'value': column 0: expected long long, found 'x'");
  EXPECT_EQ(complaint([] { strepToValue<U4>("3x"); }), "junk at column 1 deserializing 3x");
}

}  // namespace
