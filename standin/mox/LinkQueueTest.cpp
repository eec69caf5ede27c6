// Queues: first in, first out, entries by key, and walks that remove.
#include "Mox/LinkQueue.h"

#include <gtest/gtest.h>
#include <string>

namespace Mox {
namespace {

using Node = MapNode<U32, U32>;
using Queue = LinkQueue<Node, U32, U32>;

void enter(Queue& queue, std::initializer_list<U32> keys) {
  for (U32 const key : keys) queue.enq(new Node(key, key * 10));
}

std::string order(Queue const& queue) {
  std::string text;
  for (auto at = queue.iterator(); at; ++at)
    text += (text.empty() ? "" : " ") + std::to_string(at.key());
  return text;
}

TEST(LinkQueueTest, StartsEmpty) {
  Queue queue;
  EXPECT_TRUE(queue.empty());
  EXPECT_EQ(queue.head(), nullptr);
  EXPECT_FALSE(queue.deq());
  EXPECT_EQ(queue.changes(), 0u);
}

TEST(LinkQueueTest, FirstInIsFirstOut) {
  Queue queue;
  enter(queue, {3, 1, 2});
  EXPECT_EQ(queue.deq()->key(), 3u);
  EXPECT_EQ(queue.deq()->value(), 10u);
  enter(queue, {7});
  EXPECT_EQ(order(queue), "2 7");
  EXPECT_EQ(queue.count(), 2u);
  EXPECT_EQ(queue.changes(), 6u);
}

TEST(LinkQueueTest, DequeuedEntryIsTheCallersAlone) {
  Queue queue;
  enter(queue, {1, 2});
  EXPECT_EQ(queue.deq()->references(), 1u);
}

TEST(LinkQueueTest, KeysMayRepeatAndTheFirstIsFound) {
  Queue queue;
  queue.enq(new Node(1, 10));
  queue.enq(new Node(1, 11));
  EXPECT_EQ(queue.find(1)->value(), 10u);
  EXPECT_EQ(queue.find(2), nullptr);
}

TEST(LinkQueueTest, RemovalFixesHeadAndTail) {
  Queue queue;
  enter(queue, {1, 2, 3});
  EXPECT_TRUE(queue.deleteMember(Ptr<Node>(queue.find(3))));
  EXPECT_TRUE(queue.deleteMember(Ptr<Node>(queue.find(1))));
  enter(queue, {4});
  EXPECT_EQ(order(queue), "2 4");
}

TEST(LinkQueueTest, RemovingAStrangerChangesNothing) {
  Queue queue;
  enter(queue, {1});
  EXPECT_FALSE(queue.deleteMember(Ptr<Node>(new Node(1))));
  EXPECT_FALSE(queue.deleteMember(nullptr));
  EXPECT_EQ(queue.changes(), 1u);
}

TEST(LinkQueueTest, RemovalByTheIteratorStepsIt) {
  Queue queue;
  enter(queue, {1, 2, 3, 4});
  auto at = queue.iterator();
  ++at;
  EXPECT_EQ(queue.deleteAt(at)->key(), 2u);
  EXPECT_EQ(at.key(), 3u);
  EXPECT_EQ(order(queue), "1 3 4");
}

TEST(LinkQueueTest, RemovalAtTheEndGivesNull) {
  Queue queue;
  auto at = queue.iterator();
  EXPECT_FALSE(queue.deleteAt(at));
}

TEST(LinkQueueTest, WalkSeesWhatJoins) {
  Queue queue;
  enter(queue, {1});
  auto at = queue.iterator();
  enter(queue, {2});
  ++at;
  EXPECT_EQ(at.key(), 2u);
  ++at;
  EXPECT_FALSE(at);
}

TEST(LinkQueueTest, LongQueueIsFreedWithoutRecursion) {
  LinkedQueue<Node, U32, U32> queue;
  for (U32 key = 0; key < 200000; ++key) queue.enq(new Node(key));
  queue.deleteAll();
  EXPECT_TRUE(queue.empty());
}

}  // namespace
}  // namespace Mox
