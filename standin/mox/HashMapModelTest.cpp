// Random changes of a hash map beside a plain model of it.
#include "standin/mox/TestMaps.h"
#include "standin/mox/TestThreadSafe.h"

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>
#include <random>
#include <thread>

namespace Mox {
namespace {

using namespace maptest;

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

// The walk by links is one of plain counts; that of atomic ones must see the same.
class WalkModelTest : public testing::TestWithParam<bool> {
  ThreadSafe const threadSafe_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Counts, WalkModelTest, testing::Bool(),
                         [](auto const& test) { return test.param ? "atomic" : "plain"; });

TEST_P(WalkModelTest, RandomChangesInMidWalkAreSeenAsTold) {
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

TEST_P(WalkModelTest, HoldsTheCurrentNodeAlone) {
  Map map(4);
  add(map, {1, 2, 3, 4, 5, 6, 12});
  std::vector<Node*> nodes;
  for (Node& node : map) nodes.push_back(&node);
  auto at = map.iterator();
  for (Node const* const node : nodes) {
    ASSERT_EQ(at.node(), node);
    for (Node const* const other : nodes) ASSERT_EQ(other->references(), other == node ? 2u : 1u);
    ++at;
  }
  EXPECT_FALSE(at);
  EXPECT_EQ(nodes.back()->references(), 1u);
}

TEST(WalkThreadsTest, TwoWalkersOfOneMapCountAtomically) {
  Map map(4);
  add(map, {1, 2, 3, 4});
  ThreadSafe const threadSafe;
  std::atomic<int> begun = 0;
  auto const walk = [&map, &begun] {
    for (++begun; begun < 2;) std::this_thread::yield();
    for (int i = 0; i < 200000; ++i)
      for (auto at = map.iterator(); at; ++at) {
      }
  };
  std::thread other(walk);
  walk();
  other.join();
  for (Node& node : map) EXPECT_EQ(node.references(), 1u);
}

// A bucket's number of more than eight bits is reversed by another way than a short one.
TEST_P(WalkModelTest, WalksOfManyBucketsAgree) {
  for (U32 const size : {255u, 256u, 257u, 512u, 1000u, 5000u}) {
    Map map(4);
    Model model;
    for (U32 key = 0; key < size; ++key) change(map, model, key * 3);
    std::string const expected = model.order();
    EXPECT_EQ(order(map), expected) << size;
    EXPECT_EQ(rest(map.iterator()), expected) << size;
    std::vector<U32> visited;
    map.forEachNode([&visited](Node const& node) { visited.push_back(node.key()); });
    EXPECT_EQ(list(visited), expected) << size;
  }
}

}  // namespace
}  // namespace Mox
