// Walking, finding and changing take no storage beyond the node of a new element.
#include "Mox/HashMap.h"
#include "Mox/Name.h"
#include "Mox/RbTreeMap.h"
#include "standin/mox/TestAllocations.h"

#include <array>
#include <gtest/gtest.h>

namespace Mox {
namespace {

using Node = MapNode<U32, U32>;
using Map = HashMap<Node, U32, U32>;

TEST(NoAllocationTest, CountsWhatTheRuntimeTakes) {
  Allocations const taken;
  Ptr<PtrInterface> const large = new MapNode<U32, std::array<U32, 200>>(1);
  EXPECT_EQ(taken.now(), 1u);
}

TEST(NoAllocationTest, FindAndWalk) {
  Map map(4);
  for (U32 key = 0; key < 20; ++key) map.newMember(new Node(key));
  Allocations const taken;
  U32 seen = 0;
  for (auto at = map.iterator(); at; ++at) seen += map.isMember(at.key());
  for (Node const& node : map) seen += map.find(node.key()) == &node;
  EXPECT_EQ(seen, 40u);
  EXPECT_EQ(taken.now(), 0u);
}

TEST(NoAllocationTest, FindByName) {
  using NameNode = MapNode<Name, U32>;
  HashMap<NameNode, Name, U32> map(4);
  map.newMember(new NameNode("Ethernet1/1"));
  Name const key("Ethernet1/1");
  Allocations const taken;
  EXPECT_TRUE(map.isMember(key));
  EXPECT_EQ(taken.now(), 0u);
}

TEST(NoAllocationTest, RemovalAndInsertionOfANodeThatIsThere) {
  Map map(4);
  for (U32 key = 0; key < 4; ++key) map.newMember(new Node(key));
  Allocations const taken;
  Ptr<Node> const node = map.deleteKey(2);
  map.newMember(node);
  for (auto at = map.iterator(); at; ++at) map.deleteMember(at.node());
  EXPECT_EQ(taken.now(), 0u);
}

TEST(NoAllocationTest, NewElementTakesAtMostItsNode) {
  Map map(64);
  Allocations const taken;
  for (U32 key = 0; key < 10; ++key) map.newMember(new Node(key));
  EXPECT_LE(taken.now(), 10u);
}

TEST(NoAllocationTest, TreeTakesAtMostItsNodes) {
  using TreeNode = RbTreeNode<U32, U32>;
  RbTreeMap<TreeNode, U32, U32> map;
  Allocations const taken;
  for (U32 key = 0; key < 10; ++key) map.newMember(new TreeNode(key));
  U32 const inserting = taken.now();
  for (auto at = map.iterator(); at; ++at) map.deleteMember(at.node());
  EXPECT_LE(inserting, 10u);
  EXPECT_EQ(taken.now(), inserting);
}

}  // namespace
}  // namespace Mox
