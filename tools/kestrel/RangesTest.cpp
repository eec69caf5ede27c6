// How numbers are listed.
#include "tools/kestrel/Ranges.h"

#include <gtest/gtest.h>

namespace kestrel {

namespace {

TEST(RangesTest, NumbersOneByOne) {
  EXPECT_EQ(rangesText({}), "");
  EXPECT_EQ(rangesText({7}), "7");
  EXPECT_EQ(rangesText({0, 2, 4}), "0, 2, 4");
}

TEST(RangesTest, RunsAsFirstAndLast) {
  EXPECT_EQ(rangesText({0, 1}), "0, 1");
  EXPECT_EQ(rangesText({0, 1, 2, 5, 7, 8}), "0 to 2, 5, 7, 8");
}

TEST(RangesTest, LargestNumberEndsARun) {
  EXPECT_EQ(rangesText({0xFFFFFFFD, 0xFFFFFFFE, 0xFFFFFFFF}), "4294967293 to 4294967295");
}

}  // namespace

}  // namespace kestrel
