// Snapshots: later changes of the collection don't reach them.
#include "Mox/HashMap.h"
#include "Mox/ListRaw.h"
#include "Mox/SnapshotIterator.h"

#include <gtest/gtest.h>

namespace Mox {
namespace {

using Member = PtrInterface::NotifieeConst;
using List = ListRaw<Member>;

TEST(SnapshotIteratorTest, WalksFromHeadToTailOnce) {
  List list;
  Ptr<Member> const a = new Member;
  Ptr<Member> const b = new Member;
  list.linkTail(a.ptr());
  list.linkTail(b.ptr());
  SnapshotIterator<List> at(&list);
  EXPECT_EQ(at.ptr(), a.ptr());
  ++at;
  EXPECT_EQ(&*at, b.ptr());
  ++at;
  EXPECT_FALSE(at);
}

TEST(SnapshotIteratorTest, HoldsEachMember) {
  List list;
  Ptr<Member> const a = new Member;
  list.linkTail(a.ptr());
  {
    SnapshotIterator<List> const at(&list);
    EXPECT_EQ(a->references(), 2u);
  }
  EXPECT_EQ(a->references(), 1u);
}

TEST(SnapshotIteratorTest, LaterChangesDontReachIt) {
  List list;
  Ptr<Member> const a = new Member;
  Ptr<Member> const b = new Member;
  list.linkTail(a.ptr());
  SnapshotIterator<List> at(&list);
  list.linkTail(b.ptr());
  list.unlink(a.ptr());
  EXPECT_EQ(at.ptr(), a.ptr());
  ++at;
  EXPECT_FALSE(at);
}

TEST(SnapshotIteratorTest, EmptyCollectionIsAtTheEnd) {
  List list;
  EXPECT_FALSE(SnapshotIterator<List>(&list));
}

TEST(SnapshotIteratorTest, MapInItsOwnOrder) {
  using Node = MapNode<U32, U32>;
  using Map = HashMap<Node, U32, U32>;
  Map map(4);
  for (U32 const key : {1, 2, 3, 4}) map.newMember(new Node(key));
  SnapshotIterator<Map> at(&map);
  map.emptyAllBuckets();
  for (U32 const key : {4, 2, 1, 3}) {
    EXPECT_EQ(at->key(), key);
    ++at;
  }
}

}  // namespace
}  // namespace Mox
