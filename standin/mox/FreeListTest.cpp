// The free lists: what they keep, and that blocks may cross the thread-safety switch.
#include "Mox/MapNode.h"
#include "standin/mox/FreeList.h"
#include "standin/mox/TestThreadSafe.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace Mox {
namespace {

// With a sanitizer at work no block comes back at once: it must see a use after free.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool keeps = false;
#elif defined(__has_feature)
constexpr bool keeps = !__has_feature(address_sanitizer);
#else
constexpr bool keeps = true;
#endif

// A size that nothing else in this program uses.
constexpr std::size_t size = 232;

TEST(FreeListTest, BlockComesBack) {
  void* const block = FreeList::take(size);
  FreeList::give(block, size);
  void* const again = FreeList::take(size);
  EXPECT_EQ(again == block, keeps);
  FreeList::give(again, size);
}

TEST(FreeListTest, SizesOfAClassShareTheirBlocks) {
  void* const block = FreeList::take(size - 7);
  FreeList::give(block, size - 7);
  void* const again = FreeList::take(size);
  EXPECT_EQ(again == block, keeps);
  FreeList::give(again, size);
}

TEST(FreeListTest, EverySizeIsServed) {
  for (std::size_t each : {std::size_t{0}, std::size_t{1}, std::size_t{8}, FreeList::largest,
                           FreeList::largest + 1, std::size_t{100000}}) {
    void* const block = FreeList::take(each);
    ASSERT_NE(block, nullptr);
    FreeList::give(block, each);
  }
}

TEST(FreeListTest, KeepsNoMoreThanItsBound) {
  std::vector<void*> blocks;
  for (std::size_t bytes = 0; bytes < 2 * FreeList::bytesKept; bytes += size)
    blocks.push_back(FreeList::take(size));
  for (void* const block : blocks) FreeList::give(block, size);
  EXPECT_LE(FreeList::kept(size) * size, FreeList::bytesKept);
  EXPECT_EQ(FreeList::kept(size) > 0, keeps);
}

TEST(FreeListTest, WhileThreadSafeNothingIsKept) {
  std::size_t const before = FreeList::kept(size);
  ThreadSafe const on;
  FreeList::give(FreeList::take(size), size);
  EXPECT_EQ(FreeList::kept(size), before);
}

TEST(FreeListTest, BlocksMayCrossTheSwitch) {
  std::size_t const before = FreeList::kept(size);
  void* const early = FreeList::take(size);
  void* late = nullptr;
  {
    ThreadSafe const on;
    FreeList::give(early, size);
    late = FreeList::take(size);
  }
  FreeList::give(late, size);
  EXPECT_EQ(FreeList::kept(size), keeps ? std::max(before, std::size_t{1}) : 0);
}

TEST(FreeListTest, CountedObjectComesFromItsList) {
  using Node = MapNode<U32, U32>;
  PtrInterface* first = nullptr;
  {
    Ptr<Node> const node = new Node(1);
    first = node.ptr();
  }
  Ptr<Node> const node = new Node(2);
  EXPECT_EQ(node.ptr() == first, keeps);
}

}  // namespace
}  // namespace Mox
