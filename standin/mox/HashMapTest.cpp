// Hash maps: the order of the walk, growth, copies, and the engine below the typed face.
#include "standin/mox/TestMaps.h"

#include <gtest/gtest.h>

namespace Mox {
namespace {

using namespace maptest;

TEST(HashMapTest, StartsEmptyWithFourBuckets) {
  Map map(4);
  EXPECT_EQ(map.count(), 0u);
  EXPECT_EQ(map.changes(), 0u);
  EXPECT_EQ(map.bucketCount(), 4u);
  EXPECT_FALSE(map.iterator());
  EXPECT_EQ(map.first(), nullptr);
  EXPECT_EQ(order(map), "");
}

TEST(HashMapTest, SizeIsRoundedUpToAPowerOfTwo) {
  EXPECT_EQ(Map(0).bucketCount(), 1u);
  EXPECT_EQ(Map(1).bucketCount(), 1u);
  EXPECT_EQ(Map(5).bucketCount(), 8u);
}

TEST(HashMapTest, FourKeysInFourBucketsWalkByReversedBits) {
  Map map(4);
  add(map, {1, 2, 3, 4});
  EXPECT_EQ(order(map), "4 2 1 3");
  EXPECT_EQ(rest(map.iterator()), "4 2 1 3");
}

TEST(HashMapTest, OneBucketWalks) {
  Map map(1);
  EXPECT_EQ(order(map), "");
  add(map, {7});
  EXPECT_EQ(order(map), "7");
  EXPECT_EQ(rest(map.iterator()), "7");
}

TEST(HashMapTest, EveryWalkHasTheSameOrderAtEverySize) {
  for (U32 const size : {1, 2, 4, 8, 64}) {
    Map map(size);
    for (U32 key = 0; key < size; key += 1 + key % 3) add(map, {key, key + size});
    map.deleteKey(size);
    std::vector<U32> keys;
    map.forEachNode([&keys](Node& node) { keys.push_back(node.key()); });
    EXPECT_EQ(list(keys), order(map));
    EXPECT_EQ(rest(map.iterator()), order(map));
  }
}

TEST(HashMapTest, ChainAscendsByKey) {
  Map map(4);
  add(map, {8, 4, 12, 0});
  EXPECT_EQ(order(map), "0 4 8 12");
}

TEST(HashMapTest, FindsWhatIsThere) {
  Map map(4);
  add(map, {8, 4, 9});
  EXPECT_EQ(map.find(4)->value(), 40u);
  EXPECT_EQ(map[9]->value(), 90u);
  EXPECT_TRUE(map.isMember(8));
  EXPECT_EQ(map.find(12), nullptr);
  EXPECT_FALSE(map[5]);
}

TEST(HashMapTest, FindTakesNoReference) {
  Map map(4);
  add(map, {1});
  EXPECT_EQ(map.find(1)->references(), 1u);
  EXPECT_EQ(map[1]->references(), 2u);
}

TEST(HashMapTest, BucketsDoubleWhenElementsWouldOutnumberThem) {
  Map map(4);
  add(map, {1, 2, 3, 4});
  EXPECT_EQ(map.bucketCount(), 4u);
  add(map, {5});
  EXPECT_EQ(map.bucketCount(), 8u);
  EXPECT_EQ(order(map), "4 2 1 5 3");
}

TEST(HashMapTest, BucketsNeverShrink) {
  Map map(4);
  add(map, {1, 2, 3, 4, 5});
  for (U32 const key : {1, 2, 3, 4, 5}) map.deleteKey(key);
  EXPECT_EQ(map.bucketCount(), 8u);
  map.emptyAllBuckets();
  EXPECT_EQ(map.bucketCount(), 8u);
}

TEST(HashMapTest, EachInsertionAndRemovalIsOneChange) {
  Map map(4);
  add(map, {1, 2, 3, 4, 5});
  EXPECT_EQ(map.changes(), 5u);
  map.deleteKey(3);
  EXPECT_EQ(map.changes(), 6u);
  EXPECT_EQ(map.count(), 4u);
}

TEST(HashMapTest, RemovedNodeLivesWhileItIsHeld) {
  Map map(4);
  add(map, {1, 5});
  Ptr<Node> const held = map.deleteKey(1);
  EXPECT_EQ(held->value(), 10u);
  EXPECT_EQ(held->references(), 1u);
  EXPECT_EQ(order(map), "5");
}

TEST(HashMapTest, RemovingAStrangerChangesNothing) {
  Map map(4);
  add(map, {1});
  map.deleteMember(Ptr<Node>(new Node(1)));
  map.deleteMember(nullptr);
  EXPECT_FALSE(map.deleteKey(2));
  EXPECT_EQ(map.count(), 1u);
  EXPECT_EQ(map.changes(), 1u);
}

TEST(HashMapTest, EmptyAllBucketsUnlinksAll) {
  Map map(4);
  add(map, {1, 5, 9, 2});
  Ptr<Node> const held = map[5];
  map.emptyAllBuckets();
  EXPECT_EQ(map.count(), 0u);
  EXPECT_EQ(held->references(), 1u);
  EXPECT_EQ(order(map), "");
  map.newMember(held);
  EXPECT_EQ(order(map), "5");
}

TEST(HashMapCopyTest, HasTheBucketCountOfItsSourceAndNodesOfItsOwn) {
  Map map(4);
  add(map, {1, 2, 3, 4, 5});
  map.deleteKey(1);
  map.deleteKey(5);
  Map copy(map);
  EXPECT_EQ(copy.bucketCount(), 8u);
  EXPECT_EQ(order(copy), order(map));
  copy.find(2)->valueIs(7);
  EXPECT_EQ(map.find(2)->value(), 20u);
}

TEST(HashMapCopyTest, AssignmentReplacesWhatWasThere) {
  Map map(4);
  add(map, {1, 2, 3, 4, 5});
  Map other(16);
  add(other, {9});
  other = map;
  EXPECT_EQ(other.bucketCount(), 8u);
  EXPECT_EQ(order(other), "4 2 1 5 3");
  Map const& same = other;
  other = same;
  EXPECT_EQ(other.count(), 5u);
}

TEST(HashMapGenericTest, FindNextStartsWithNull) {
  Map map(4);
  add(map, {1, 4});
  int bucket = 9;
  PtrInterface* const first = map.findNextG(nullptr, &bucket);
  EXPECT_EQ(static_cast<Node*>(first)->key(), 4u);
  EXPECT_EQ(bucket, 0);
  EXPECT_EQ(static_cast<Node*>(map.findNextBucket(&bucket))->key(), 1u);
  EXPECT_EQ(map.findNextBucket(&bucket), nullptr);
}

TEST(HashMapGenericTest, InsertsAndRemovesByTheTableOfKeyOperations) {
  Map map(4);
  HashMapGeneric& generic = map;
  for (U32 key : {12, 4, 8, 1, 3}) generic.newMemberG(Ptr<PtrInterface>(new Node(key)), &key);
  EXPECT_EQ(map.bucketCount(), 8u);
  EXPECT_EQ(order(map), "8 4 12 1 3");
  generic.deleteMember(map[4]);
  EXPECT_EQ(order(map), "8 12 1 3");
}

TEST(HashMapGenericTest, StartAtHashTakesTheReversedHash) {
  Map map(4);
  add(map, {4, 12, 1});
  int bucket = -1;
  U32 const key = 8;
  auto const* const at = map.startAtHash(&key, bitReverse(key), &bucket);
  EXPECT_EQ(static_cast<Node const*>(at)->key(), 12u);
}

TEST(HashMapGenericTest, SetSizeMakesTheBuckets) {
  Map map(4);
  map.setSize0(32);
  EXPECT_EQ(map.bucketCount(), 32u);
  map.setSize0(2);
  EXPECT_EQ(map.bucketCount(), 2u);
}

TEST(HashMapVTableTest, OneInstanceForANodeType) {
  EXPECT_EQ((HashMapVTable<Node, U32>::instance()), (HashMapVTable<Node, U32>::instance()));
}

TEST(HashMapVTableTest, HashIsBitReversed) {
  auto const* const keys = HashMapVTable<Node, U32>::instance();
  Ptr<Node> const node = new Node(1);
  EXPECT_EQ(keys->hash(node.ptr()), 0x80000000u);
}

TEST(HashMapVTableTest, KeyAgainstNode) {
  auto const* const keys = HashMapVTable<Node, U32>::instance();
  Ptr<Node> const node = new Node(5);
  U32 const same = 5;
  U32 const other = 6;
  EXPECT_TRUE(keys->keyEquals(&same, node.ptr()));
  EXPECT_FALSE(keys->keyEquals(&other, node.ptr()));
}

TEST(HashMapVTableTest, StrictOrderOfKeys) {
  auto const* const keys = HashMapVTable<Node, U32>::instance();
  Ptr<Node> const four = new Node(4);
  Ptr<Node> const five = new Node(5);
  U32 const key = 4;
  EXPECT_TRUE(keys->keyLessThan(&key, nullptr, nullptr));
  EXPECT_TRUE(keys->keyLessThan(nullptr, five.ptr(), four.ptr()));
  EXPECT_FALSE(keys->keyLessThan(nullptr, four.ptr(), five.ptr()));
  EXPECT_FALSE(keys->keyLessThan(nullptr, four.ptr(), four.ptr()));
  EXPECT_TRUE(keys->keyLessThan(&key, five.ptr(), nullptr));
  EXPECT_FALSE(keys->keyLessThan(&key, four.ptr(), nullptr));
}

TEST(HashMapVTableTest, SetNextCounts) {
  auto const* const keys = HashMapVTable<Node, U32>::instance();
  Ptr<Node> const node = new Node(1);
  Ptr<Node> const next = new Node(2);
  keys->setNext(node.ptr(), next.ptr());
  EXPECT_EQ(next->references(), 2u);
  keys->setNext(node.ptr(), nullptr);
  EXPECT_EQ(next->references(), 1u);
}

}  // namespace
}  // namespace Mox
