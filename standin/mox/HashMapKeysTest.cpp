// Hash maps of all sorts of keys, and of objects that are their own nodes.
#include "Mox/Name.h"
#include "standin/mox/TestMaps.h"
#include "standin/mox/TestThreadSafe.h"

#include <gtest/gtest.h>

namespace Mox {
namespace {

using namespace maptest;

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

// Keys of which each is less than the other, as groups of tables can be.
struct Contrary {
  U32 number;
  U32 hash() const { return 0; }
  bool operator==(Contrary const&) const = default;
  bool operator<(Contrary const& other) const { return !(*this == other); }
};

TEST(HashMapKeysTest, ContraryKeysAreWalkedByTheirLinks) {
  using ContraryNode = MapNode<Contrary, bool>;
  for (bool const atomic : {false, true}) {
    ThreadSafe const threadSafe(atomic);
    HashMap<ContraryNode, Contrary, bool> map(4);
    for (U32 const number : {3, 1, 2}) map.newMember(new ContraryNode(Contrary{number}, true));
    std::vector<U32> keys;
    for (auto at = map.iterator(); at && keys.size() < 9; ++at) keys.push_back(at.key().number);
    EXPECT_EQ(list(keys), "2 1 3") << atomic;
  }
}

TEST(HashMapKeysTest, ContraryKeyThatIsThereIsLeftForwardsAfterAChange) {
  using ContraryNode = MapNode<Contrary, bool>;
  HashMap<ContraryNode, Contrary, bool> map(8);
  for (U32 const number : {3, 1, 2}) map.newMember(new ContraryNode(Contrary{number}, true));
  std::vector<U32> keys;
  for (auto at = map.iterator(); at && keys.size() < 9; ++at) {
    keys.push_back(at.key().number);
    map.newMember(new ContraryNode(Contrary{10 + static_cast<U32>(keys.size())}, true));
  }
  EXPECT_EQ(list(keys), "2 1 3");
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

}  // namespace
}  // namespace Mox
