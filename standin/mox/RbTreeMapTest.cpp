// Ordered maps: ascending walks, replacement, balance, and iterators under change.
#include "Mox/RbTreeMap.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace Mox {
namespace {

// Lets a test look at the shape of the tree.
class Node : public RbTreeNode<U32, U32> {
 public:
  using RbTreeNode::RbTreeNode;
  RbLinks const& links() { return RbNodeOps<RbTreeNode<U32, U32>>::links(*this); }
};

class Map : public RbTreeMap<Node, U32, U32> {
 public:
  Node* root() const { return static_cast<Node*>(root_.ptr()); }
};

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

template <class Iterator>
std::string rest(Iterator at) {
  std::vector<U32> keys;
  for (; at; ++at) keys.push_back(at.key());
  return list(keys);
}

Node* child(Node* node, int side) { return static_cast<Node*>(node->links().child[side].ptr()); }

// Black nodes on each path below `node`, itself counted; -1 where the rules are broken.
int blackHeight(Node* node, Node* parent) {
  if (!node) return 0;
  RbLinks const& links = node->links();
  if (links.parent != parent || (links.red && parent && parent->links().red)) return -1;
  int const height = blackHeight(child(node, 0), node);
  if (height < 0 || height != blackHeight(child(node, 1), node)) return -1;
  return height + !links.red;
}

TEST(RbTreeMapTest, StartsEmpty) {
  Map map;
  EXPECT_TRUE(map.empty());
  EXPECT_EQ(map.changes(), 0u);
  EXPECT_EQ(map.first(), nullptr);
  EXPECT_FALSE(map.iterator());
  EXPECT_EQ(map.find(1), nullptr);
}

TEST(RbTreeMapTest, WalksInAscendingOrder) {
  Map map;
  add(map, {5, 1, 9, 3, 7});
  EXPECT_EQ(order(map), "1 3 5 7 9");
  EXPECT_EQ(rest(map.iterator()), "1 3 5 7 9");
  EXPECT_EQ(map.count(), 5u);
  EXPECT_EQ(map.changes(), 5u);
}

TEST(RbTreeMapTest, FindsWhatIsThere) {
  Map map;
  add(map, {5, 1});
  EXPECT_EQ(map.find(5)->value(), 50u);
  EXPECT_EQ(map[1]->references(), 2u);
  EXPECT_FALSE(map.isMember(3));
}

TEST(RbTreeMapTest, EqualKeyReplacesTheNode) {
  Map map;
  add(map, {1, 2, 3, 4, 5});
  Ptr<Node> const old = map[2];
  map.newMember(new Node(2, 7));
  EXPECT_EQ(map.find(2)->value(), 7u);
  EXPECT_EQ(order(map), "1 2 3 4 5");
  EXPECT_EQ(map.count(), 5u);
  EXPECT_EQ(old->references(), 1u);
  EXPECT_GE(blackHeight(map.root(), nullptr), 0);
}

TEST(RbTreeMapTest, InsertingTheSameNodeAgainChangesNothing) {
  Map map;
  add(map, {1});
  map.newMember(map[1]);
  EXPECT_EQ(map.changes(), 1u);
  EXPECT_EQ(order(map), "1");
}

TEST(RbTreeMapTest, RemovedNodeLivesWhileItIsHeld) {
  Map map;
  add(map, {1, 2, 3});
  Ptr<Node> const held = map.deleteKey(2);
  EXPECT_EQ(held->value(), 20u);
  EXPECT_EQ(held->references(), 1u);
  EXPECT_EQ(order(map), "1 3");
}

TEST(RbTreeMapTest, RemovingAStrangerChangesNothing) {
  Map map;
  add(map, {1});
  map.deleteMember(Ptr<Node>(new Node(1)));
  map.deleteMember(nullptr);
  EXPECT_FALSE(map.deleteKey(2));
  EXPECT_EQ(order(map), "1");
  EXPECT_EQ(map.changes(), 1u);
}

TEST(RbTreeMapTest, DeleteAllLeavesHeldNodesAlone) {
  Map map;
  for (U32 key = 0; key < 1000; ++key) map.newMember(new Node(key));
  Ptr<Node> const held = map[500];
  map.deleteAll();
  EXPECT_TRUE(map.empty());
  EXPECT_EQ(map.first(), nullptr);
  EXPECT_EQ(held->references(), 1u);
  map.newMember(held);
  EXPECT_EQ(order(map), "500");
}

TEST(RbTreeMapIteratorTest, StartsAtAKeyOrBehindIt) {
  Map map;
  add(map, {2, 4, 6});
  EXPECT_EQ(rest(map.iteratorAt(4)), "4 6");
  EXPECT_EQ(rest(map.iteratorAt(3)), "4 6");
  EXPECT_FALSE(map.iteratorAt(7));
}

TEST(RbTreeMapIteratorTest, DeletingTheCurrentKeepsItReadable) {
  Map map;
  add(map, {1, 2, 3});
  auto at = map.iteratorAt(2);
  map.deleteKey(2);
  EXPECT_TRUE(at.hasBookmark());
  EXPECT_EQ(at.value(), 20u);
  ++at;
  EXPECT_EQ(at.key(), 3u);
  EXPECT_FALSE(at.hasBookmark());
}

TEST(RbTreeMapIteratorTest, InsertedIsSeenIfItIsGreater) {
  Map map;
  add(map, {2, 6});
  auto const at = map.iterator();
  add(map, {1, 4});
  EXPECT_EQ(rest(at), "2 4 6");
}

TEST(RbTreeMapIteratorTest, ReplacedNodeIsABookmarkForItsKey) {
  Map map;
  add(map, {1, 2, 3});
  auto at = map.iteratorAt(2);
  map.newMember(new Node(2, 7));
  EXPECT_EQ(at.value(), 20u);
  ++at;
  EXPECT_EQ(at.key(), 3u);
}

TEST(RbTreeMapIteratorTest, StaysAtTheEnd) {
  Map map;
  add(map, {1});
  auto at = map.iterator();
  ++at;
  add(map, {2});
  ++at;
  EXPECT_FALSE(at);
  EXPECT_FALSE(at.hasBookmark());
  EXPECT_EQ(at, Map::Iterator());
}

TEST(RbTreeMapIteratorTest, ReadingWalkFromAWritingOne) {
  Map map;
  add(map, {1, 2});
  Map::IteratorConst const at = map.iteratorAt(2);
  EXPECT_EQ(at.key(), 2u);
  EXPECT_TRUE(at.isMemberOf(1));
  EXPECT_FALSE(at.isMemberOf(9));
}

TEST(RbTreeMapModelTest, AscendingInsertionStaysBalanced) {
  Map map;
  for (U32 key = 0; key < 1024; ++key) {
    map.newMember(new Node(key));
    ASSERT_GE(blackHeight(map.root(), nullptr), 0) << key;
  }
}

TEST(RbTreeMapModelTest, RandomChangesKeepOrderAndBalance) {
  std::mt19937 random(5);
  Map map;
  std::map<U32, U32> model;
  for (U32 i = 0; i < 5000; ++i) {
    U32 const key = random() % 80;
    if (random() % 2) {
      map.newMember(new Node(key, i));
      model[key] = i;
    } else {
      EXPECT_EQ(static_cast<bool>(map.deleteKey(key)), model.erase(key) == 1);
    }
    ASSERT_GE(blackHeight(map.root(), nullptr), 0);
    std::map<U32, U32> seen;
    for (Node const& node : map) seen.emplace_hint(seen.end(), node.key(), node.value());
    ASSERT_EQ(seen, model);
    ASSERT_EQ(map.count(), model.size());
  }
}

TEST(RbTreeMapModelTest, RandomChangesInMidWalkAreSeenAsTold) {
  std::mt19937 random(9);
  Map map;
  std::map<U32, bool> model;
  for (int walk = 0; walk < 200; ++walk) {
    map.newMember(new Node(0));
    model[0] = true;
    for (auto at = map.iterator(); at;) {
      for (U32 changes = random() % 3; changes > 0; --changes) {
        U32 const key = random() % 60;
        if (model.erase(key)) {
          map.deleteKey(key);
        } else {
          map.newMember(new Node(key));
          model[key] = true;
        }
      }
      auto const next = model.upper_bound(at.key());
      ++at;
      ASSERT_EQ(at ? S64{at.key()} : -1, next != model.end() ? S64{next->first} : -1);
    }
  }
}

}  // namespace
}  // namespace Mox
