// What an iterator of a hash map sees when its map changes.
#include "standin/mox/TestMaps.h"

#include <gtest/gtest.h>

namespace Mox {
namespace {

using namespace maptest;

TEST(HashMapIteratorTest, DeletingTheCurrentGivesTheOneThatWouldHaveFollowed) {
  Map map(4);
  add(map, {1, 2, 3, 4});
  auto at = map.iteratorAt(2);
  map.deleteKey(2);
  EXPECT_EQ(at.key(), 2u);
  EXPECT_EQ(at.value(), 20u);
  ++at;
  EXPECT_EQ(at.key(), 1u);
}

TEST(HashMapIteratorTest, DeletedOneAheadIsntSeen) {
  Map map(4);
  add(map, {1, 2, 3, 4});
  auto const at = map.iteratorAt(2);
  map.deleteKey(1);
  EXPECT_EQ(rest(at), "2 3");
}

TEST(HashMapIteratorTest, InsertedBehindThePositionIsSeen) {
  Map map(8);
  add(map, {1, 2, 3, 4});
  auto const at = map.iteratorAt(2);
  add(map, {5});
  EXPECT_EQ(rest(at), "2 1 5 3");
}

TEST(HashMapIteratorTest, InsertedAheadOfThePositionIsntSeen) {
  Map map(8);
  add(map, {1, 2, 3, 4});
  auto const at = map.iteratorAt(2);
  add(map, {8});
  EXPECT_EQ(rest(at), "2 1 3");
}

TEST(HashMapIteratorTest, InsertedInTheCurrentChainIsSeenIfItIsGreater) {
  Map map(4);
  add(map, {8});
  auto const at = map.iterator();
  add(map, {4, 12});
  EXPECT_EQ(rest(at), "8 12");
}

TEST(HashMapIteratorTest, AllAheadDeletedEndsTheWalk) {
  Map map(4);
  add(map, {1, 2, 3, 4});
  auto at = map.iterator();
  map.emptyAllBuckets();
  EXPECT_EQ(at.key(), 4u);
  ++at;
  EXPECT_FALSE(at);
}

TEST(HashMapIteratorTest, DeletingEachCurrentEmptiesTheMap) {
  Map map(4);
  add(map, {1, 2, 3, 4, 5, 6, 7});
  U32 seen = 0;
  for (auto at = map.iterator(); at; ++at, ++seen) map.deleteMember(at.node());
  EXPECT_EQ(seen, 7u);
  EXPECT_TRUE(map.empty());
}

TEST(HashMapIteratorTest, GrowthGoesOnByKeyOrderOfTheNewTable) {
  Map map(4);
  add(map, {1, 2, 3, 4});
  auto at = map.iteratorAt(2);
  add(map, {6});
  EXPECT_EQ(order(map), "4 2 6 1 3");
  EXPECT_EQ(rest(at), "2 6 1 3");
}

TEST(HashMapIteratorTest, HoldsItsNode) {
  Map map(4);
  add(map, {1, 2});
  auto at = map.iterator();
  Ptr<Node> const node = at.node();
  EXPECT_EQ(node->references(), 3u);
  ++at;
  EXPECT_EQ(node->references(), 2u);
}

TEST(HashMapIteratorTest, StartsAtAKeyThatIsThere) {
  Map map(4);
  add(map, {1, 2, 3, 4});
  EXPECT_EQ(rest(map.iteratorAt(1)), "1 3");
}

TEST(HashMapIteratorTest, StartsBehindAKeyThatIsAbsent) {
  Map map(4);
  add(map, {4, 12, 1, 3});
  EXPECT_EQ(rest(map.iteratorAt(8)), "12 1 3");
  EXPECT_EQ(rest(map.iteratorAt(2)), "1 3");
  EXPECT_FALSE(map.iteratorAt(7));
}

TEST(HashMapIteratorTest, StaysAtTheEnd) {
  Map map(4);
  add(map, {1});
  auto at = map.iteratorAt(3);
  EXPECT_FALSE(at);
  add(map, {3});
  ++at;
  EXPECT_FALSE(at);
  EXPECT_EQ(at.node(), nullptr);
}

TEST(HashMapIteratorTest, EqualOnTheSameNodeOrBothAtTheEnd) {
  Map map(4);
  add(map, {1, 2});
  EXPECT_EQ(map.iterator(), map.iteratorAt(2));
  EXPECT_NE(map.iterator(), map.iteratorAt(1));
  EXPECT_EQ(Map::Iterator(), map.iteratorAt(3));
}

TEST(HashMapIteratorTest, TellsWhetherTheMapHasAKey) {
  Map map(4);
  add(map, {1, 2});
  Map::IteratorConst const at = map.iterator();
  EXPECT_TRUE(at.isMemberOf(1));
  EXPECT_FALSE(map.iteratorConst().isMemberOf(3));
  EXPECT_FALSE(Map::IteratorConst().isMemberOf(1));
}

TEST(HashMapIteratorTest, RawStepFindsItsWayFromARemovedNode) {
  Map map(4);
  add(map, {1, 2, 3, 4});
  Ptr<Node> const gone = map.deleteKey(2);
  EXPECT_EQ(map.first()->key(), 4u);
  EXPECT_EQ(map.after(gone.ptr())->key(), 1u);
  EXPECT_EQ(map.after(map.find(3)), nullptr);
}

}  // namespace
}  // namespace Mox
