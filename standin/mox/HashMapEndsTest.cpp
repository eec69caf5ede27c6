// Nodes of a hash map that change it while they end, in the midst of walks.
#include "Mox/HashMap.h"
#include "standin/mox/TestThreadSafe.h"

#include <functional>
#include <gtest/gtest.h>
#include <utility>

namespace Mox {
namespace {

/// Says once that it ends, and when it has no reference left.
class Ending : public MapNode<U32, U32> {
 public:
  explicit Ending(U32 key, U32 value = 0) : MapNode(key, value) {}
  ~Ending() override { tell(ended); }
  void zeroReferencesIs(bool) override { tell(dropped); }

  static inline std::function<void()> ended;
  static inline std::function<void()> dropped;

 private:
  static void tell(std::function<void()>& hook) {
    if (auto const call = std::exchange(hook, nullptr)) call();
  }
};

using Map = HashMap<Ending, U32, U32>;

class HashMapEndsTest : public testing::TestWithParam<bool> {
 protected:
  static void fill(Map& map, U32 from, U32 to) {
    for (U32 key = from; key < to; ++key) map.newMember(new Ending(key));
  }
  static U32 countRest(Map::Iterator at) {
    U32 elements = 0;
    for (; at; ++at) ++elements;
    return elements;
  }

 private:
  ThreadSafe const threadSafe_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Counts, HashMapEndsTest, testing::Bool(),
                         [](auto const& test) { return test.param ? "atomic" : "plain"; });

TEST_P(HashMapEndsTest, ChangeByTheNodeThatAStepDropsIsSeen) {
  Map map(4);
  fill(map, 1, 5);  // walked as 4 2 1 3
  auto at = map.iterator();
  map.deleteKey(4);
  Ending::ended = [&map] {
    map.deleteKey(2);
    map.deleteKey(1);
  };
  ++at;
  EXPECT_EQ(at.key(), 2u);
  EXPECT_EQ(at.node()->references(), 1u);
  bool gone = false;
  Ending::ended = [&gone] { gone = true; };
  ++at;
  EXPECT_TRUE(gone);
  EXPECT_EQ(at.key(), 3u);
}

TEST_P(HashMapEndsTest, StepSurvivesThatItsMapIsEmptiedAndResized) {
  Map map(4);
  fill(map, 1, 40);
  auto at = map.iterator();
  map.deleteKey(at.key());
  Ending::ended = [&map] {
    map.deleteAll();
    map.setSize0(1);
    map.setSize0(1024);
  };
  ++at;
  ASSERT_TRUE(at);
  EXPECT_EQ(at.node()->references(), 1u);
  ++at;
  EXPECT_FALSE(at);
  fill(map, 1, 4);
  ++at;
  EXPECT_FALSE(at);
}

TEST_P(HashMapEndsTest, NodeMayGoBackWhenItHasNoReferenceLeft) {
  Map map(4);
  fill(map, 1, 11);
  auto at = map.iterator();
  Ending* const node = at.node();
  map.deleteKey(node->key());
  Ending::dropped = [&map, node] { map.newMember(Ptr<Ending>(node)); };
  ++at;
  EXPECT_EQ(map.find(node->key()), node);
  EXPECT_EQ(node->references(), 1u);
  EXPECT_EQ(countRest(at), 9u);
}

TEST_P(HashMapEndsTest, GrowthInAStepReordersTheRest) {
  Map map(4);
  fill(map, 1, 5);
  auto at = map.iterator();
  map.deleteKey(4);
  Ending::ended = [&map] { fill(map, 100, 1500); };
  ++at;
  EXPECT_EQ(at.key(), 2u);
  U32 behind = 0;
  bool found = false;
  for (Ending const& node : map) {
    if (found) ++behind;
    found = found || node.key() == 2;
  }
  EXPECT_EQ(countRest(at), behind + 1);
}

TEST_P(HashMapEndsTest, WalkGoesOnInWhatWasAssigned) {
  Map map(16);
  Map other(8);
  fill(map, 1, 31);
  fill(other, 1, 6);
  auto at = map.iterator();
  map = other;
  EXPECT_LE(countRest(at), 6u);
  EXPECT_EQ(countRest(map.iterator()), 5u);
  auto again = map.iterator();
  map = Map(1);
  ++again;
  EXPECT_FALSE(again);
}

}  // namespace
}  // namespace Mox
