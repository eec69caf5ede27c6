// Small bit sets, and the end of the process at a position out of range.
#include "Mox/BitSet.h"
#include "Mox/Integers.h"

#include <gtest/gtest.h>

namespace Mox {
namespace {

using Set = BitSet<29, U32>;

TEST(BitSetTest, StartsEmpty) { EXPECT_TRUE(Set().empty()); }

TEST(BitSetTest, SetsAndResetsFromEndToEnd) {
  Set set;
  set.set(0);
  set.set(28);
  EXPECT_EQ(set.word(), 0x10000001u);
  EXPECT_TRUE(set.isSet(28));
  set.reset(0);
  EXPECT_FALSE(set.isSet(0));
  EXPECT_EQ(set.word(), 0x10000000u);
}

TEST(BitSetTest, EqualByContent) {
  Set a;
  Set b;
  a.set(3);
  EXPECT_NE(a, b);
  b.set(3);
  EXPECT_EQ(a, b);
}

TEST(BitSetDeathTest, PositionOutOfRangeEndsTheProcess) {
  Set set;
  char const* const text = "/usr/include/Mox/BitSet\\.h:.*Assertion `pos>=0 && pos<bits' failed";
  EXPECT_DEATH(set.set(29), text);
  EXPECT_DEATH(set.set(-1), text);
  EXPECT_DEATH(set.reset(29), text);
  EXPECT_DEATH(set.reset(-1), text);
}

}  // namespace
}  // namespace Mox
