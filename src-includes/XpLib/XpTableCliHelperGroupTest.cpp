// Groups of tables: the set, its equality, the order that tells nothing, the hash, the text.
#include "XpLib/XpTableCliHelperRigTest.h"

namespace Kestrel::xpTableCliHelper {

namespace {

SharedTableGroup group(std::vector<U32> const& ids) {
  SharedTableGroup result;
  for (U32 id : ids) result.tableIdIs(id, true);
  return result;
}

void add(Mox::OneAtATime& hash, U32 id) {
  for (U32 shift : {0u, 8u, 16u, 24u}) hash.add(static_cast<U8>(id >> shift));
}

TEST(SharedTableGroupTest, DefaultIsTheEmptySet) {
  SharedTableGroup const empty;
  EXPECT_EQ(empty.tableIdCount(), 0u);
  EXPECT_FALSE(empty.tableId(0));
}

TEST(SharedTableGroupTest, HoldsWhatWasEntered) {
  SharedTableGroup both = group({7});
  both.newTableId(42, true);
  EXPECT_TRUE(both.tableId(7));
  EXPECT_TRUE(both.tableId(42));
  EXPECT_FALSE(both.tableId(8));
}

TEST(SharedTableGroupTest, ForgetsWhatWasRemoved) {
  SharedTableGroup both = group({7, 42});
  EXPECT_TRUE(both.tableIdDel(7));
  EXPECT_FALSE(both.tableIdDel(7));
  EXPECT_EQ(both, group({42}));
  both.tableIdDelAll();
  EXPECT_EQ(both, SharedTableGroup());
}

TEST(SharedTableGroupTest, CopyHasAMapOfItsOwn) {
  SharedTableGroup const one = group({1});
  SharedTableGroup copy = one;
  copy.tableIdIs(2, true);
  EXPECT_EQ(one, group({1}));
  EXPECT_EQ(copy, group({1, 2}));
}

TEST(SharedTableGroupTest, AssignmentTakesAMapOfItsOwn) {
  SharedTableGroup const one = group({1});
  SharedTableGroup other = group({8, 9});
  other = one;
  other.tableIdIs(1, false);
  EXPECT_TRUE(one.tableId(1));
}

TEST(SharedTableGroupTest, EqualityGoesByIdsAndValues) {
  EXPECT_EQ(group({1, 2, 3}), group({3, 1, 2}));
  EXPECT_NE(group({1, 2}), group({1, 3}));
  EXPECT_NE(group({1, 2}), group({1}));
  EXPECT_NE(group({1}), group({1, 2}));
  SharedTableGroup off = group({1});
  off.tableIdIs(1, false);
  EXPECT_NE(off, group({1}));
}

TEST(SharedTableGroupTest, EqualityIsBlindForBucketCounts) {
  SharedTableGroup grown;
  for (U32 id = 0; id < 100; ++id) grown.tableIdIs(id, true);
  for (U32 id = 2; id < 100; ++id) grown.tableIdDel(id);
  EXPECT_EQ(grown, group({0, 1}));
}

TEST(SharedTableGroupTest, NoneOfTwoThatDifferIsLess) {
  SharedTableGroup const a = group({1});
  SharedTableGroup const b = group({2, 3});
  EXPECT_FALSE(a < b);
  EXPECT_FALSE(b < a);
  EXPECT_TRUE(a <= b);
  EXPECT_TRUE(b <= a);
  EXPECT_TRUE(a >= b);
  EXPECT_TRUE(b >= a);
  EXPECT_FALSE(a > b);
  EXPECT_FALSE(b > a);
  EXPECT_NE(a, b);
}

TEST(SharedTableGroupTest, OrderOfTheEmptyGroup) {
  EXPECT_FALSE(SharedTableGroup() < group({1}));
  EXPECT_FALSE(group({1}) < SharedTableGroup());
  EXPECT_TRUE(SharedTableGroup() <= SharedTableGroup());
}

TEST(SharedTableGroupTest, FirstPairOfValuesThatDiffersDecidesTheOrder) {
  SharedTableGroup off;
  off.tableIdIs(5, false);
  EXPECT_TRUE(off < group({1}));
  EXPECT_FALSE(group({1}) < off);
  EXPECT_FALSE(off < off);
}

TEST(SharedTableGroupTest, HashGoesOverTheIdsInMapOrder) {
  Mox::OneAtATime expected;
  for (U32 id : {4u, 2u, 1u, 3u}) add(expected, id);  // the order of four buckets
  EXPECT_EQ(group({1, 2, 3, 4}).hash(), expected.finish());
}

TEST(SharedTableGroupTest, HashTakesAllFourBytesLeastSignificantFirst) {
  Mox::OneAtATime expected;
  for (U8 byte : {0x04, 0x03, 0x02, 0x81}) expected.add(byte);
  EXPECT_EQ(group({0x81020304}).hash(), expected.finish());
}

// Computed outside of this code.
TEST(SharedTableGroupTest, HashOfOneTable) { EXPECT_EQ(group({0x81020304}).hash(), 0x0624FF04u); }

TEST(SharedTableGroupTest, AssignedGroupHashesAsItsSource) {
  SharedTableGroup grown;
  for (U32 id = 0; id < 100; ++id) grown.tableIdIs(id, true);
  grown = group({1, 2, 3, 4});
  EXPECT_EQ(grown.hash(), group({1, 2, 3, 4}).hash());
}

TEST(SharedTableGroupTest, HashIsBlindForValues) {
  SharedTableGroup off;
  off.tableIdIs(7, false);
  EXPECT_EQ(off.hash(), group({7}).hash());
}

TEST(SharedTableGroupTest, EmptyGroupHashesToZeroAsDoesTableZero) {
  EXPECT_EQ(SharedTableGroup().hash(), 0u);
  EXPECT_EQ(group({0}).hash(), 0u);
  EXPECT_NE(SharedTableGroup(), group({0}));
}

TEST(SharedTableGroupTest, GroupsOfOneHashAreTwoKeys) {
  auto const map = tableSramMemoryMapFactory();
  map->legendIs(SharedTableGroup(), "A");
  map->legendIs(group({0}), "B");
  EXPECT_EQ(map->legend(SharedTableGroup()), "A");
  EXPECT_EQ(map->legend(group({0})), "B");
}

TEST(SharedTableGroupTest, TextIsNoneAlways) {
  EXPECT_EQ(valueToStrep(SharedTableGroup()), "None");
  EXPECT_EQ(valueToStrep(group({1, 2})), "None");
  std::ostringstream out;
  out << group({1, 2});
  EXPECT_EQ(out.str(), "None");
}

TEST(SharedTableGroupDeathTest, CannotBeParsed) {
  Mox::String8 const text = "None";
  auto at = text.begin();
  expectAssertion([&at, &text] { SharedTableGroup(at, text.end()); },
                  "This should not be used and doesn't work",
                  "Kestrel::SharedTableGroup::SharedTableGroup(Mox::String8::IteratorConst&, "
                  "const Mox::String8::IteratorConst&)");
}

}  // namespace

}  // namespace Kestrel::xpTableCliHelper
