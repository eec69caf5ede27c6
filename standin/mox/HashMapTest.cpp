// Hash maps: the order of the walk, growth, and what an iterator sees when its map changes.
#include "Mox/HashMap.h"
#include "Mox/Name.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace Mox {
namespace {

using Node = MapNode<U32, U32>;
using Map = HashMap<Node, U32, U32>;

void add(Map& map, std::initializer_list<U32> keys) {
  for (U32 const key : keys) map.newMember(new Node(key, key * 10));
}

std::string list(std::vector<U32> const& keys) {
  std::string text;
  for (U32 const key : keys) text += (text.empty() ? "" : " ") + std::to_string(key);
  return text;
}

std::string order(Map const& map) {
  std::vector<U32> keys;
  for (Node const& node : map) keys.push_back(node.key());
  return list(keys);
}

// Walks to the end and tells the keys from the current one on.
template <class Iterator>
std::string rest(Iterator at) {
  std::vector<U32> keys;
  for (; at; ++at) keys.push_back(at.key());
  return list(keys);
}

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

using NameNode = MapNode<Name, U32>;
using NameMap = HashMap<NameNode, Name, U32>;

TEST(HashMapKeysTest, NameIsFoundByEqualBytes) {
  NameMap map(4);
  for (char const* const name : {"Ethernet1/1", "Ethernet1/2", "Ethernet2/1", "e", ""})
    map.newMember(new NameNode(name, 1));
  EXPECT_EQ(map.find("Ethernet1/2")->key(), Name("Ethernet1/2"));
  EXPECT_EQ(map.find("")->key(), Name());
  EXPECT_EQ(map.find("Ethernet1/3"), nullptr);
  EXPECT_EQ(map.find("Ethernet1/"), nullptr);
}

TEST(HashMapKeysTest, NodeKeepsTheHashOfAString) {
  Ptr<NameNode> const node = new NameNode("Ethernet1/1");
  EXPECT_EQ(node->keyHash(), Name("Ethernet1/1").hash());
}

enum class Color : U8 { red = 1, green = 2 };

struct Plain {
  U8 number;
  U32 value() const { return number; }
  bool operator==(Plain const&) const = default;
};

struct Chunk {
  U8 pool;
  U32 hash() const { return pool * 3; }
  bool operator==(Chunk const&) const = default;
};

}  // namespace

template <>
struct KeyOps<Plain> {
  static U32 hash(Plain const& key) { return key.number; }
  static bool equals(Plain const& a, Plain const& b) { return a == b; }
  static bool less(Plain const& a, Plain const& b) { return a.number < b.number; }
};

namespace {

TEST(HashMapKeysTest, HashOfAKey) {
  EXPECT_EQ(KeyOps<Color>::hash(Color::green), 2u);
  EXPECT_EQ(KeyOps<U64>::hash(0x100000007), 7u);
  EXPECT_EQ(KeyOps<S8>::hash(-1), 0xFFFFFFFFu);
  EXPECT_EQ(KeyOps<bool>::hash(true), 1u);
  EXPECT_EQ(KeyOps<Chunk>::hash(Chunk{4}), 12u);
}

TEST(HashMapKeysTest, KeyWithoutAnOrderIsOrderedByItsOperations) {
  using PlainNode = MapNode<Plain, bool>;
  HashMap<PlainNode, Plain, bool> map(4);
  for (U8 const number : {8, 4, 0}) map.newMember(new PlainNode(Plain{number}, true));
  std::vector<U32> keys;
  for (auto at = map.iterator(); at; ++at) keys.push_back(at.key().number);
  EXPECT_EQ(list(keys), "0 4 8");
}

// Keys of which none is less than another stand in the order of their arrival.
struct Unordered {
  U32 number;
  U32 hash() const { return 0; }
  bool operator==(Unordered const&) const = default;
  bool operator<(Unordered const&) const { return false; }
};

TEST(HashMapKeysTest, UnorderedKeysAreAllWalkedAfterAChange) {
  using UnorderedNode = MapNode<Unordered, bool>;
  HashMap<UnorderedNode, Unordered, bool> map(4);
  for (U32 const number : {3, 1, 2}) map.newMember(new UnorderedNode(Unordered{number}, true));
  auto at = map.iterator();
  for (U32 const number : {9, 8, 7}) map.newMember(new UnorderedNode(Unordered{number}, true));
  std::vector<U32> keys;
  for (; at; ++at) keys.push_back(at.key().number);
  EXPECT_EQ(list(keys), "3 1 2 9 8 7");
}

// Keys that all collide; in descending order each goes to the head of the one chain.
struct Colliding {
  U32 number;
  U32 hash() const { return 0; }
  bool operator==(Colliding const&) const = default;
  bool operator<(Colliding const& other) const { return number < other.number; }
};

TEST(HashMapKeysTest, LongChainIsFreedWithoutRecursion) {
  using CollidingNode = MapNode<Colliding, bool>;
  HashMap<CollidingNode, Colliding, bool> map(1 << 18);
  for (U32 number = 1 << 18; number > 0; --number)
    map.newMember(new CollidingNode(Colliding{number}, true));
  EXPECT_EQ(map.first()->key().number, 1u);
  map.emptyAllBuckets();
  EXPECT_EQ(map.count(), 0u);
}

// An object that is its own node, keyed by what it says itself.
class Child : public PtrInterface {
 public:
  explicit Child(U8 slot) : slot_(slot) {}
  U8 moxKey() const { return slot_; }

 private:
  template <class AnyNode>
  friend struct Mox::NodeOps;

  void* filler_[200] = {};
  Ptr<PtrInterface> moxNext_;
  U8 slot_;
};

TEST(HashMapOwnedTest, ElementIsTheNode) {
  HashMap<Child, U8, Child> map(4);
  Ptr<Child> const child = new Child(3);
  map.newMember(child);
  EXPECT_EQ(map.find(3), child.ptr());
  EXPECT_EQ(map.iterator().value(), child);
  EXPECT_EQ(map.iteratorConst().key(), 3);
  HashMapGeneric& generic = map;
  generic.deleteMember(child);
  EXPECT_EQ(map.find(3), nullptr);
}

// The same walk told by a plain model: an ordered map by place in the order of the walk.
class Model {
 public:
  std::string order() const {
    std::vector<U32> keys;
    for (U32 const key : keys_) keys.push_back(key);
    std::sort(keys.begin(), keys.end(), [this](U32 a, U32 b) { return before(a, b); });
    return list(keys);
  }
  void insert(U32 key) {
    if (keys_.size() >= buckets_) buckets_ *= 2;
    keys_.push_back(key);
  }
  void erase(U32 key) { std::erase(keys_, key); }
  bool has(U32 key) const { return std::ranges::find(keys_, key) != keys_.end(); }
  // What a walk that stands on `key` sees next; -1 at the end.
  S64 behind(U32 key) const {
    S64 next = -1;
    for (U32 const other : keys_)
      if (before(key, other) && (next < 0 || before(other, static_cast<U32>(next)))) next = other;
    return next;
  }
  U32 size() const { return static_cast<U32>(keys_.size()); }

 private:
  U32 place(U32 key) const { return bitReverse(key) >> (32 - std::bit_width(buckets_ - 1)); }
  bool before(U32 a, U32 b) const { return place(a) != place(b) ? place(a) < place(b) : a < b; }

  std::vector<U32> keys_;
  U32 buckets_ = 4;
};

void change(Map& map, Model& model, U32 key) {
  if (model.has(key)) {
    map.deleteKey(key);
    model.erase(key);
  } else {
    map.newMember(new Node(key, 1));
    model.insert(key);
  }
}

TEST(HashMapModelTest, RandomChangesKeepTheOrder) {
  std::mt19937 random(7);
  Map map(4);
  Model model;
  for (int i = 0; i < 2000; ++i) {
    change(map, model, static_cast<U32>(random() % 100) * (random() % 2 ? 1 : 64));
    ASSERT_EQ(order(map), model.order());
    ASSERT_EQ(rest(map.iterator()), model.order());
  }
}

TEST(HashMapModelTest, RandomChangesInMidWalkAreSeenAsTold) {
  std::mt19937 random(11);
  Map map(4);
  Model model;
  for (int walk = 0; walk < 300; ++walk) {
    if (map.empty()) change(map, model, walk);
    for (auto at = map.iterator(); at;) {
      for (U32 changes = random() % 4; changes > 0; --changes)
        change(map, model, static_cast<U32>(random() % 200));
      S64 const next = model.behind(at.key());
      ++at;
      ASSERT_EQ(at ? S64{at.key()} : -1, next);
      ASSERT_EQ(map.count(), model.size());
    }
  }
}

}  // namespace
}  // namespace Mox
